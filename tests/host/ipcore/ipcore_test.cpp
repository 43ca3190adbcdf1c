#include <core/viewmanager.h>
#include <ipcore/ipcore.h>

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

void put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QStringList everything(const QString& folder) {
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QMap<QString, QVariant> commonInfo(const QVariant& id, const QVariant& name,
                                   const QVariant& version) {
    return {{"ipcore.id", id}, {"ipcore.name", name}, {"ipcore.version", version}};
}

} // namespace

Q_DECLARE_METATYPE(DEV::DeviceArg)

class IpCoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        Core::ViewManager::setErrorSink([this](const QString& what, const QString& why) {
            m_reported.append(what + QStringLiteral(": ") + why);
        });
    }
    void init() {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        IPCore::setOutputRoot(QString());
        IPCore::startOutputLog();
        m_reported.clear();
    }
    void cleanupTestCase() { Core::ViewManager::setErrorSink({}); }

    void describes() {
        put(path("a.ipspec"), "{\"ipcore\": {\"id\": \"x\", \"doc\": {\"deep\": {\"er\": 1}},\n"
                              "\"list\": [\"a\", \"b\"], \"none\": [], \"mixed\": [\"a\", 1],\n"
                              "\"real\": 1.0, \"yes\": true, \"nothing\": null},\n"
                              "\"top\": \"\xC3\xA9\", \"empty\": {}}");
        const QMap<QString, QVariant> info = IPCore::processIPInfoSpec(path("a.ipspec"));
        QCOMPARE(m_reported, QStringList());
        QCOMPARE(info.keys(), QStringList({"ipcore.doc.deep.er", "ipcore.id", "ipcore.list",
                                           "ipcore.mixed", "ipcore.none", "ipcore.nothing",
                                           "ipcore.real", "ipcore.yes", "top"}));
        const auto kind = [&](const char* key) {
            return static_cast<int>(info.value(QLatin1String(key)).userType());
        };
        QCOMPARE(kind("ipcore.doc.deep.er"), int(QMetaType::Int));
        QCOMPARE(kind("ipcore.real"), int(QMetaType::Double));
        QCOMPARE(kind("ipcore.yes"), int(QMetaType::Bool));
        QCOMPARE(kind("ipcore.list"), int(QMetaType::QStringList));
        QCOMPARE(kind("ipcore.none"), int(QMetaType::QStringList));
        QCOMPARE(kind("ipcore.mixed"), int(QMetaType::QVariantList));
        QCOMPARE(info.value("ipcore.doc.deep.er").toInt(), 1);
        QCOMPARE(info.value("ipcore.list").toStringList(), QStringList({"a", "b"}));
        QVERIFY(!info.value("ipcore.nothing").isValid());
        QCOMPARE(info.value("top").toString(), QString(QChar(0xE9)));
    }

    void damagedDescriptions_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("why");
        const auto row = [](const char* name, const char* text, const char* why) {
            QTest::newRow(name) << QByteArray(text) << QString::fromLatin1(why);
        };
        row("no bytes", "", "line 1, column 1: ");
        row("cut off", "{\"ipcore\":\n {\"id\": \"x", "line 2, column 11: ");
        row("doubled key", "{\"a\": 1,\n  \"b\": 1,\n  \"a\": 2}",
            "line 3, column 3: the key \"a\" is given twice");
        row("not UTF-8", "{\"a\":\n\"\xFF\"}", "line 2, column 2: ");
        row("a list", "[\"ipcore\"]", "an IP description is a JSON object");
        row("nothing in it", "{\"ipcore\": {}}", "the IP description is empty");
    }
    void damagedDescriptions() {
        QFETCH(QByteArray, text);
        QFETCH(QString, why);
        put(path("a.ipspec"), text);
        QVERIFY(IPCore::processIPInfoSpec(path("a.ipspec")).isEmpty());
        QCOMPARE(m_reported.size(), 1);
        QVERIFY2(m_reported[0].startsWith(path("a.ipspec") + ": " + why),
                 qPrintable(m_reported[0]));
        QCOMPARE(contentOf(path("a.ipspec")), text);
    }

    void missingDescription() {
        QVERIFY(IPCore::processIPInfoSpec(path("none")).isEmpty());
        QCOMPARE(m_reported,
                 QStringList(path("none") + ": cannot read: No such file or directory"));
    }

    void commonInfo_data() {
        QTest::addColumn<QVariant>("id");
        QTest::addColumn<QVariant>("name");
        QTest::addColumn<QVariant>("version");
        QTest::addColumn<QString>("report"); // empty: complete
        const auto row = [](const char* title, const QVariant& id, const QVariant& name,
                            const QVariant& version, const char* report) {
            QTest::newRow(title) << id << name << version << QString::fromLatin1(report);
        };
        row("complete", "x", "X", "1.0", "");
        row("empty id", "", "X", "1",
            "IP description: the IP description has no text for ipcore.id");
        row("blank name", "x", "  ", "1", "x: the IP description has no text for ipcore.name");
        row("a number for the version", "x", "X", 1.0,
            "x: the IP description has no text for ipcore.version");
        row("absent version", "x", "X", QVariant(),
            "x: the IP description has no text for ipcore.version");
        row("a list for the name", "x", QStringList({"X"}), "1",
            "x: the IP description has no text for ipcore.name");
        row("two", "x", QVariant(), "",
            "x: the IP description has no text for ipcore.name, ipcore.version");
    }
    void commonInfo() {
        QFETCH(QVariant, id);
        QFETCH(QVariant, name);
        QFETCH(QVariant, version);
        QFETCH(QString, report);
        QCOMPARE(IPCore::checkCommonInfo(::commonInfo(id, name, version)), report.isEmpty());
        QCOMPARE(m_reported.join('|'), report);
    }

    void commonInfoOfNothing() { QVERIFY(!IPCore::checkCommonInfo({})); }

    void supported_data() {
        QTest::addColumn<DEV::DeviceArg>("device");
        QTest::addColumn<QStringList>("unsupported");
        QTest::addColumn<QStringList>("supported");
        QTest::addColumn<bool>("is");
        const DEV::DeviceArg device(QStringLiteral("id-1"), QStringLiteral("Model A"));
        const auto row = [&](const char* name, const QStringList& unsupported,
                             const QStringList& supported, bool is) {
            QTest::newRow(name) << device << unsupported << supported << is;
        };
        row("no list", {}, {}, false);
        row("by id", {}, {"z", "id-1"}, true);
        row("by model name", {}, {"Model A"}, true);
        row("another device", {}, {"id-2"}, false);
        row("a part of the name", {}, {"Model", "id", "Model A2"}, false);
        row("another case", {}, {"model a", "ID-1"}, false);
        row("all", {}, {"*"}, true);
        row("all but it, by id", {"id-1"}, {"*"}, false);
        row("all but it, by model name", {"Model A"}, {"*"}, false);
        row("all but another", {"id-2"}, {"*"}, true);
        row("in both", {"id-1"}, {"Model A"}, false);
        row("only the other list", {"id-2"}, {}, false);
        row("no pattern but \"*\"", {}, {"id-*"}, false);
        row("\"*\" as unsupported names nothing", {"*"}, {"id-1"}, true);
        QTest::newRow("null device")
            << DEV::DeviceArg() << QStringList() << QStringList("*") << false;
        QTest::newRow("null device, empty name")
            << DEV::DeviceArg() << QStringList() << QStringList("") << false;
    }
    void supported() {
        QFETCH(DEV::DeviceArg, device);
        QFETCH(QStringList, unsupported);
        QFETCH(QStringList, supported);
        QFETCH(bool, is);
        QCOMPARE(IPCore::isSupported(device, unsupported, supported), is);
    }

    void makesDirs_data() {
        QTest::addColumn<QString>("folder"); // %1: the test's folder
        QTest::addColumn<QString>("report"); // empty: made
        const auto row = [](const char* name, const char* folder, const char* report) {
            QTest::newRow(name) << QString::fromLatin1(folder) << QString::fromLatin1(report);
        };
        row("one", "%1/root/a", "");
        row("many", "%1/root/a/b/c/d", "");
        row("there already", "%1/root/there", "");
        row("the root itself", "%1/root", "");
        row("name with dots", "%1/root/..a/b..", "");
        row("link that stays inside", "%1/root/inner/x", "");
        row("empty", "", ": IP: the path is empty");
        row("two separators", "%1/root//a", "%1/root//a: IP: the path has an empty component");
        row("separator at the end", "%1/root/a/",
            "%1/root/a/: IP: the path has an empty component");
        row("here", "%1/root/./a", "%1/root/./a: IP: the path has a \".\" component");
        row("above", "%1/root/../x", "%1/root/../x: IP: the path has a \"..\" component");
        row("above and back", "%1/root/../root/a",
            "%1/root/../root/a: IP: the path has a \"..\" component");
        row("above at the end", "%1/root/a/..",
            "%1/root/a/..: IP: the path has a \"..\" component");
        row("beside the root", "%1/other", "%1/other: IP: lies outside the output folder %1/root");
        row("root's name as a prefix", "%1/root2",
            "%1/root2: IP: lies outside the output folder %1/root");
        row("above the root", "%1", "%1: IP: lies outside the output folder %1/root");
        row("link leading out", "%1/root/out/x",
            "%1/root/out/x: IP: lies outside the output folder %1/root");
        row("link to nothing", "%1/root/dangling/x",
            "%1/root/dangling: IP: cannot make the folder: File exists");
        row("a file in the way", "%1/root/file/x",
            "%1/root/file: IP: cannot make the folder: File exists");
        row("a file in its place", "%1/root/file",
            "%1/root/file: IP: cannot make the folder: File exists");
    }
    void makesDirs() {
        QFETCH(QString, folder);
        QFETCH(QString, report);
        makeTree();
        const QString target = folder.replace("%1", m_dir->path());
        QCOMPARE(IPCore::makeDirs(target, QStringLiteral("IP")), report.isEmpty());
        QCOMPARE(m_reported.join('|'), report.replace("%1", m_dir->path()));
        QCOMPARE(IPCore::outputLog().folders,
                 report.isEmpty() ? QStringList(target) : QStringList());
        if (report.isEmpty()) {
            QVERIFY(QFileInfo(target).isDir());
        } else {
            QCOMPARE(everything(path("root")),
                     QStringList({"dangling", "file", "inner", "out", "there"}));
        }
        QCOMPARE(everything(m_dir->path()), QStringList({"outside", "root"}));
        QCOMPARE(everything(path("outside")), QStringList());
        QCOMPARE(contentOf(path("root/file")), QByteArray("old"));
    }

    void makesDirsWithoutBound() {
        QVERIFY(IPCore::makeDirs(path("a/b"), QString()));
        QVERIFY(QFileInfo(path("a/b")).isDir());
        QVERIFY(!IPCore::makeDirs(path("a/../c"), QString()));
        QCOMPARE(m_reported, QStringList(path("a/../c") + ": the path has a \"..\" component"));
    }

    void generates_data() {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("header");
        QTest::addColumn<QByteArray>("bytes");
        const auto row = [](const char* name, const QStringList& lines, const QString& header,
                            const QByteArray& bytes) {
            QTest::newRow(name) << lines << header << bytes;
        };
        row("nothing", {}, "", "");
        row("a line", {"a"}, "", "a\n");
        row("lines", {"a", "", " b "}, "", "a\n\n b \n");
        row("not ASCII", {QString::fromUtf8("\xC2\xB5 \xE2\x86\x92")}, "",
            "\xC2\xB5 \xE2\x86\x92\n");
        row("outside the plane", {QString::fromUtf8("\xF0\x9D\x84\x9E")}, "", "\xF0\x9D\x84\x9E\n");
        row("placeholders stay", {"%1 %2 %%"}, "%1\n", "%1\n%1 %2 %%\n");
        row("header as it stands", {"a"}, "// h", "// ha\n");
        row("header of two lines", {"a"}, "x\r\ny\n", "x\r\ny\na\n");
        row("header alone", {}, "h", "h");
    }
    void generates() {
        QFETCH(QStringList, lines);
        QFETCH(QString, header);
        QFETCH(QByteArray, bytes);
        IPCore::setOutputRoot(m_dir->path());
        put(path("f"), "something that was longer, and stood here before");
        for (const QString& file : {path("f"), path("fresh")}) {
            QVERIFY(IPCore::generateFile(file, lines, nullptr, header));
            QCOMPARE(contentOf(file), bytes);
        }
        QCOMPARE(m_reported, QStringList());
        QCOMPARE(everything(m_dir->path()), QStringList({"f", "fresh"}));
        QCOMPARE(IPCore::outputLog().files, QStringList({path("f"), path("fresh")}));
    }

    void leavesEqualFilesAlone() {
        put(path("f"), "a\nb\n");
        const QByteArray name = QFile::encodeName(path("f"));
        const struct timespec longAgo[2] = {{1000, 5}, {1000, 5}};
        QCOMPARE(::utimensat(AT_FDCWD, name.constData(), longAgo, 0), 0);
        struct stat before {};
        struct stat after {};
        ::stat(name.constData(), &before);
        QVERIFY(IPCore::generateFile(path("f"), {"a", "b"}, nullptr, QString()));
        ::stat(name.constData(), &after);
        QCOMPARE(after.st_ino, before.st_ino);
        QCOMPARE(after.st_mtim.tv_sec, time_t(1000));
        QCOMPARE(IPCore::outputLog().files, QStringList(path("f")));
        QVERIFY(IPCore::generateFile(path("f"), {"a", "c"}, nullptr, QString()));
        ::stat(name.constData(), &after);
        QVERIFY(after.st_mtim.tv_sec != time_t(1000));
    }

    void generationFails_data() {
        QTest::addColumn<QString>("file"); // %1: the test's folder
        QTest::addColumn<QString>("why");
        const auto row = [](const char* name, const char* file, const char* why) {
            QTest::newRow(name) << QString::fromLatin1(file) << QString::fromLatin1(why);
        };
        row("no folder", "%1/root/none/f",
            "cannot make a file in its folder: No such file or directory");
        row("a folder in its place", "%1/root/there", "cannot write: Is a directory");
        row("a file for its folder", "%1/root/file/f",
            "cannot make a file in its folder: Not a directory");
        row("outside", "%1/f", "lies outside the output folder %1/root");
        row("above", "%1/root/../f", "lies outside the output folder %1/root");
        row("through a link leading out", "%1/root/out/f",
            "lies outside the output folder %1/root");
        row("a link to nothing", "%1/root/dangling", "is a link to nothing");
    }
    void generationFails() {
        QFETCH(QString, file);
        QFETCH(QString, why);
        makeTree();
        const QString target = file.replace("%1", m_dir->path());
        QVERIFY(!IPCore::generateFile(target, {"new"}, nullptr, QString()));
        QCOMPARE(m_reported, QStringList(target + ": " + why.replace("%1", m_dir->path())));
        QCOMPARE(everything(m_dir->path()), QStringList({"outside", "root"}));
        QCOMPARE(everything(path("root")),
                 QStringList({"dangling", "file", "inner", "out", "there"}));
        QCOMPARE(everything(path("outside")), QStringList());
        QCOMPARE(contentOf(path("root/file")), QByteArray("old"));
        QCOMPARE(IPCore::outputLog().files, QStringList());
    }

    void aLinkedFileLeadingOutIsRefused() {
        makeTree();
        put(path("outside/f"), "theirs");
        QVERIFY(QFile::link(path("outside/f"), path("root/f")));
        QVERIFY(!IPCore::generateFile(path("root/f"), {"new"}, nullptr, QString()));
        QCOMPARE(m_reported,
                 QStringList(path("root/f") + ": lies outside the output folder " + path("root")));
        QCOMPARE(contentOf(path("outside/f")), QByteArray("theirs"));
    }

private:
    QString path(const char* name) const { return m_dir->filePath(QString::fromUtf8(name)); }

    /// An output root with something of each kind in it, and a folder outside.
    void makeTree() {
        QVERIFY(QDir(m_dir->path()).mkpath(QStringLiteral("root/there")));
        QVERIFY(QDir(m_dir->path()).mkpath(QStringLiteral("outside")));
        put(path("root/file"), "old");
        QVERIFY(QFile::link(path("outside"), path("root/out")));
        QVERIFY(QFile::link(path("root/there"), path("root/inner")));
        QVERIFY(QFile::link(path("outside/none"), path("root/dangling")));
        IPCore::setOutputRoot(path("root"));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QStringList m_reported;
};

QTEST_GUILESS_MAIN(IpCoreTest)
#include "ipcore_test.moc"
