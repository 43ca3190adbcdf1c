#include <ipgen/core/project.h>

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>

using Ipgen::Exit;
using Ipgen::Project;
using Ipgen::Status;

namespace {

/// As saved: entries in key order, one a line.
const QByteArray savedText = R"({
  "data": {
    "Q0_BIAS": 9,
    "Q1_BIAS": 9.0
  },
  "device": "RZ7X-60B",
  "format": 1,
  "instances": {
    "a": {
      "config": {
        "big": 9007199254740993,
        "flag": false,
        "list": ["x", "y"],
        "mixed": ["x", 1, 1.0, null],
        "none": [],
        "real": 1.0,
        "text": "1",
        "whole": 1
      },
      "ip": "tiny",
      "note": {
        "mine": true
      }
    },
    "b": {
      "config": {},
      "ip": "tiny"
    }
  },
  "later": [
    {
      "kept": 1.0
    }
  ]
}
)";

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

void put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

using Change = std::function<void(Project&)>;

Change config(const char* instance, const QVariant& value) {
    return [=](Project& project) {
        Ipgen::ProjectInstance one = project.instance(QLatin1String(instance));
        one.config.insert(QStringLiteral("key"), value);
        one.ip = QStringLiteral("tiny");
        project.setInstance(QLatin1String(instance), one);
    };
}

Change removed(const char* instance) {
    return [=](Project& project) { project.removeInstance(QLatin1String(instance)); };
}

Change renamed(const char* from, const char* to) {
    return
        [=](Project& project) { project.renameInstance(QLatin1String(from), QLatin1String(to)); };
}

Change data(const char* key, const QVariant& value) {
    return [=](Project& project) {
        QVariantMap store = project.data();
        store.insert(QLatin1String(key), value);
        project.setData(store);
    };
}

Change device(const char* name) {
    return [=](Project& project) { project.setDeviceName(QLatin1String(name)); };
}

} // namespace

Q_DECLARE_METATYPE(Change)

class ProjectTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        m_file = m_dir->filePath(QStringLiteral("project.json"));
    }

    void make() {
        const DEV::DeviceArg device(QStringLiteral("id-1"), QStringLiteral("Model A"));
        const QString folder = m_dir->filePath(QStringLiteral("deep/p"));
        Project project;
        QVERIFY(Project::make(folder, device, &project).ok());
        QCOMPARE(project.folder(), folder);
        QCOMPARE(project.file(), folder + "/project.json");
        QCOMPARE(project.workingDir(), folder + "/transceiver");
        QCOMPARE(project.deviceName(), QStringLiteral("id-1"));
        QVERIFY(!project.changed());
        const QByteArray text = contentOf(project.file());
        const Status again = Project::make(folder, {"id-2", "B"}, &project);
        QCOMPARE(again.code(), Exit::Refused);
        QCOMPARE(again.what(), folder + "/project.json");
        QCOMPARE(contentOf(folder + "/project.json"), text);
        QVERIFY(Project::load(folder, &project).ok());
        QCOMPARE(project.deviceName(), QStringLiteral("id-1"));
    }

    void loads() {
        put(m_file, savedText);
        const Project project = loaded();
        QVERIFY(!project.changed());
        QCOMPARE(project.instanceNames(), QStringList({"a", "b"}));
        QVERIFY(project.hasInstance(QStringLiteral("a")));
        QVERIFY(!project.hasInstance(QStringLiteral("A")));
        QCOMPARE(project.instance(QStringLiteral("a")).ip, QStringLiteral("tiny"));
        QCOMPARE(project.data().keys(), QStringList({"Q0_BIAS", "Q1_BIAS"}));
    }

    void kindsOfConfigurations_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("kind");
        QTest::newRow("text") << "text" << int(QMetaType::QString);
        QTest::newRow("boolean") << "flag" << int(QMetaType::Bool);
        QTest::newRow("whole number") << "whole" << int(QMetaType::Int);
        QTest::newRow("wide whole number") << "big" << int(QMetaType::LongLong);
        QTest::newRow("real number") << "real" << int(QMetaType::Double);
        QTest::newRow("texts") << "list" << int(QMetaType::QStringList);
        QTest::newRow("empty list") << "none" << int(QMetaType::QStringList);
        QTest::newRow("mixed list") << "mixed" << int(QMetaType::QVariantList);
    }
    void kindsOfConfigurations() {
        QFETCH(QString, key);
        QFETCH(int, kind);
        put(m_file, savedText);
        QCOMPARE(int(loaded().instance(QStringLiteral("a")).config.value(key).userType()), kind);
    }

    void unknownKeysAndKindsSurvive() {
        put(m_file, savedText);
        Project project = loaded();
        const Ipgen::ProjectInstance a = project.instance(QStringLiteral("a"));
        project.setInstance(QStringLiteral("a"), a);
        QVERIFY(!project.changed());
        project.setInstance(QStringLiteral("c"), a);
        QVERIFY(project.changed());
        QVERIFY(project.save().ok());
        QVERIFY(!project.changed());
        project.removeInstance(QStringLiteral("c"));
        QVERIFY(project.save().ok());
        QCOMPARE(contentOf(m_file), savedText);
        config("a", true)(project);
        QVERIFY(project.save().ok());
        QByteArray expected = savedText;
        QCOMPARE(contentOf(m_file),
                 expected.replace("\"list\"", "\"key\": true,\n        \"list\""));
    }

    void renamingKeepsAllKeys() {
        put(m_file, savedText);
        Project project = loaded();
        renamed("a", "b")(project); // taken
        renamed("none", "c")(project);
        QVERIFY(!project.changed());
        renamed("b", "a2")(project);
        renamed("a", "b")(project);
        renamed("a2", "a")(project);
        QVERIFY(project.save().ok());
        const Project now = loaded();
        QCOMPARE(now.instance(QStringLiteral("b")).config.size(), 8);
        QCOMPARE(now.instance(QStringLiteral("a")).config.size(), 0);
        QVERIFY(contentOf(m_file).contains("\"note\": {\n        \"mine\": true"));
    }

    void refusedFiles_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("why");
        const auto row = [](const char* name, const QByteArray& text, const char* why) {
            QTest::newRow(name) << text << QString::fromLatin1(why);
        };
        const auto rest = [](const char* text) {
            return QByteArray("{\"format\": 1, \"device\": \"d\", ") + text + "}";
        };
        row("no bytes", "", "line 1, column 1: ");
        row("zeros", QByteArray(16, '\0'), "line 1, column 1: ");
        row("cut off", savedText.left(30), "line 3, column ");
        row("more after the end", savedText + "}", "line 36, column 1: ");
        row("key twice", "{\"format\": 1,\n\"device\": \"a\",\n  \"device\": \"a\"}",
            "line 3, column 3: the key \"device\" is given twice");
        row("instance twice",
            rest("\n\"instances\": {\"a\": {\"ip\": \"t\", \"config\": {}},\n"
                 "              \"a\": {\"ip\": \"t\", \"config\": {}}}"),
            "line 3, column 15: the key \"a\" is given twice");
        row("configuration key twice",
            rest("\"instances\": {\"a\": {\"ip\": \"t\", \"config\": {\"k\": 1,\n\"k\": 1}}}"),
            "line 2, column 1: the key \"k\" is given twice");
        row("a list", "[]", "a project file is a JSON object");
        row("no format", "{\"device\": \"d\"}", "the key \"format\" is missing");
        row("format 0", "{\"format\": 0, \"device\": \"d\"}",
            "line 1, column 2: the format is 0; this program reads format 1");
        row("format 2", "{\"format\": 2, \"device\": \"d\"}",
            "line 1, column 2: the format is 2; this program reads format 1");
        row("a text for the format", "{\"format\": \"1\", \"device\": \"d\"}",
            "line 1, column 2: the key \"format\" is no whole number");
        row("no device", "{\"format\": 1}", "the key \"device\" is missing");
        row("a number for the device", "{\"format\": 1, \"device\": 7}",
            "line 1, column 15: the key \"device\" is no text");
        row("a list for the instances", rest("\"instances\": []"),
            "line 1, column 30: the key \"instances\" is no object");
        row("null for the instances", rest("\"instances\": null"),
            "line 1, column 30: the key \"instances\" is no object");
        row("a text for the data", rest("\"data\": \"\""),
            "line 1, column 30: the key \"data\" is no object");
        row("a text for an instance", rest("\"instances\": {\"a\": \"x\"}"),
            "line 1, column 44: the instance \"a\" is no object");
        row("no IP", rest("\"instances\": {\"a\": {\"config\": {}}}"),
            "line 1, column 44: the instance \"a\": the key \"ip\" is missing");
        row("a number for a copy's original",
            rest("\"instances\": {\"a\": {\"ip\": \"t\", \"config\": {}, \"copiedFrom\": 5}}"),
            "line 1, column 75: the instance \"a\": the key \"copiedFrom\" is no text");
        row("a list for the configuration",
            rest("\"instances\": {\"a\": {\"ip\": \"t\", \"config\": []}}"),
            "line 1, column 61: the instance \"a\": the key \"config\" is no object");
    }
    void refusedFiles() {
        QFETCH(QByteArray, text);
        QFETCH(QString, why);
        put(m_file, savedText);
        Project project = loaded();
        config("a", 1)(project);
        put(m_file, text);
        Project fresh;
        for (const Status& status : {Project::load(m_dir->path(), &fresh), project.save()}) {
            QCOMPARE(status.code(), Exit::BadInput);
            QCOMPARE(status.what(), m_file);
            QVERIFY2(status.why().startsWith(why), qPrintable(status.why()));
        }
        QCOMPARE(fresh.folder(), QString());
        QVERIFY(project.changed()); // nothing is lost
        QCOMPARE(contentOf(m_file), text);
    }

    void noFile() {
        Project project;
        const Status status = Project::load(m_dir->path(), &project);
        QCOMPARE(status.code(), Exit::BadInput);
        QCOMPARE(status.text(), m_file + ": cannot read: No such file or directory");
    }

    void saveThatCannotWrite() {
        put(m_file, savedText);
        Project project = loaded();
        config("a", 1)(project);
        QVERIFY(QFile::remove(m_file));
        const Status status = project.save();
        QVERIFY(!status.ok());
        QVERIFY(!QFile::exists(m_file)); // no project is made of a part of one
        QVERIFY(project.changed());
    }

    void twoPrograms_data() {
        QTest::addColumn<Change>("mine");
        QTest::addColumn<Change>("theirs");
        QTest::addColumn<QString>("clash"); // empty: merged
        const auto row = [](const char* name, const Change& theirs, const Change& mine,
                            const char* clash) {
            QTest::newRow(name) << mine << theirs << QString::fromLatin1(clash);
        };
        row("two instances", config("a", 1), config("b", 2), "");
        row("two new instances", config("c", 1), config("d", 2), "");
        row("instance and data", config("a", 1), data("Q0_BIAS", 1), "");
        row("two data entries", data("Q0_BIAS", 1), data("Q2_BIAS", 2), "");
        row("device and instance", device("RZ7X-138"), config("a", 1), "");
        row("removed and another changed", removed("a"), config("b", 1), "");
        row("both removed two", removed("a"), removed("b"), "");
        row("renamed and another changed", renamed("a", "c"), config("b", 1), "");
        row("same instance, same change", config("a", 1), config("a", 1), "");
        row("same instance removed", removed("a"), removed("a"), "");
        row("same data, same change", data("Q0_BIAS", 1), data("Q0_BIAS", 1), "");
        row("same instance", config("a", 1), config("a", 2), "a");
        row("same new instance", config("c", 1), config("c", 2), "c");
        row("same instance, another kind", config("a", 1), config("a", 1.0), "a");
        row("same instance, number and text", config("a", 1), config("a", "1"), "a");
        row("removed and changed", removed("a"), config("a", 1), "a");
        row("changed and removed", config("a", 1), removed("a"), "a");
        row("renamed and changed", renamed("a", "c"), config("a", 1), "a");
        row("renamed to the same name", renamed("a", "c"), renamed("b", "c"), "c");
        row("same data", data("Q0_BIAS", 1), data("Q0_BIAS", 2), "data \"Q0_BIAS\"");
        row("same data, another kind", data("Q0_BIAS", 1), data("Q0_BIAS", 1.0),
            "data \"Q0_BIAS\"");
        row("device", device("x"), device("y"), "key \"device\"");
    }
    void twoPrograms() {
        QFETCH(Change, mine);
        QFETCH(Change, theirs);
        QFETCH(QString, clash);
        put(m_file, savedText);
        Project first = loaded();
        Project second = loaded();
        theirs(first);
        mine(second);
        QVERIFY(first.save().ok());
        const QByteArray afterFirst = contentOf(m_file);
        const Status status = second.save();
        if (!clash.isEmpty()) {
            QCOMPARE(status.code(), Exit::Refused);
            QCOMPARE(status.what(), clash);
            QCOMPARE(contentOf(m_file), afterFirst);
            QVERIFY(second.changed());
            return;
        }
        QVERIFY2(status.ok(), qPrintable(status.text()));
        // One program that does both, one after the other, gives the same file.
        const QByteArray afterSecond = contentOf(m_file);
        put(m_file, savedText);
        Project both = loaded();
        theirs(both);
        mine(both);
        QVERIFY(both.save().ok());
        QCOMPARE(afterSecond, contentOf(m_file));
        // The second program sees the first one's changes from here on.
        QCOMPARE(second.instanceNames(), both.instanceNames());
        QCOMPARE(second.data(), both.data());
        QCOMPARE(second.deviceName(), both.deviceName());
    }

    void anothersUnknownKeysSurvive() {
        put(m_file, savedText);
        Project project = loaded();
        config("a", 1)(project);
        QByteArray theirs = savedText;
        theirs.replace("\"later\"", "\"colour\": \"red\",\n  \"later\"");
        put(m_file, theirs);
        QVERIFY(project.save().ok());
        const QByteArray now = contentOf(m_file);
        QVERIFY(now.contains("\"colour\": \"red\""));
        QVERIFY(now.contains("\"key\": 1"));
    }

    void instanceNames_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("why"); // empty: may be given
        const auto row = [](const char* title, const QString& name, const char* why) {
            QTest::newRow(title) << name << QString::fromLatin1(why);
        };
        row("letters", "link0", "");
        row("blank inside", "my link", "");
        row("not ASCII", QString(QChar(0xE9)), "");
        row("separators are no path here", "a/b", "");
        row("dots", "..", "");
        row("longest", QString(200, 'n'), "");
        row("empty", "", "the name is empty");
        row("too long", QString(201, 'n'), "the name has more than 200 characters");
        row("line feed", "a\nb", "the name has a control character");
        row("zero character", QString(QChar(0)), "the name has a control character");
        row("line separator", QString(QChar(0x2028)), "the name has a control character");
        row("blank in front", " a", "the name begins or ends with a blank");
        row("blank at the end", "a ", "the name begins or ends with a blank");
        row("only a blank", " ", "the name begins or ends with a blank");
        row("an option", "--json", "the name begins like an option, with \"-\"");
        row("minus inside", "a-b", "");
    }
    void instanceNames() {
        QFETCH(QString, name);
        QFETCH(QString, why);
        const Status status = Project::checkInstanceName(name);
        QCOMPARE(status.code(), why.isEmpty() ? Exit::Done : Exit::Refused);
        QCOMPARE(status.why(), why);
        QVERIFY(status.text().count('\n') == 0);
    }

    void knownInstances() {
        put(m_file, savedText);
        Project project = loaded();
        QVERIFY(project.checkKnown(QStringLiteral("b")).ok());
        QCOMPARE(project.checkKnown(QStringLiteral("c")).text(),
                 QStringLiteral("c: no such instance; the project has: a, b"));
        removed("a")(project);
        removed("b")(project);
        QCOMPARE(project.checkKnown(QStringLiteral("a")).text(),
                 QStringLiteral("a: no such instance; the project has none"));
    }

private:
    Project loaded() const {
        Project project;
        const Status status = Project::load(m_dir->path(), &project);
        if (!status.ok()) {
            qFatal("%s", qPrintable(status.text()));
        }
        return project;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_file;
};

QTEST_GUILESS_MAIN(ProjectTest)
#include "project_test.moc"
