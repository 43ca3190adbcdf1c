// Failures of the commands: what is damaged or cannot be written is named, and what stood stays.

#include "../../support/smalldisk.h"
#include "programrun.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <sys/stat.h>

namespace {

const QByteArray damagedText = "{\"format\": 1,\n \"device\": \"RZ7X-60B\",\n"
                               " \"instances\": {\"a\": {\"ip\": \"tiny\", \"config\": {}}},\n"
                               "   \"device\": \"RZ7X-60B\"}\n";

QByteArray projectText(const QByteArray& ip, const QByteArray& config) {
    return "{\"format\": 1, \"device\": \"RZ7X-60B\", \"instances\": {\"x\": {\"ip\": \"" + ip +
           "\", \"config\": {" + config + "}}}}\n";
}

/// A configuration of either IP; the value ends up in the generated files.
QByteArray configOf(const QByteArray& ip, const QByteArray& file, const QByteArray& value) {
    const QByteArray common = "\"file\": " + file + ", \"module\": \"m\", ";
    if (ip == "tiny") {
        return common + "\"lines\": 3000, \"rate\": \"" + value + "\"";
    }
    return common + R"("type": "customized", "recordlanes": ["Q0 Lane0"], "Q0_LN0": true, )" +
           R"("REFERENCE_CLOCK_FREQ": "125", "TX_RATE": ")" + value + "\"";
}

QMap<QString, QByteArray> contentsBelow(const QString& folder) {
    QMap<QString, QByteArray> contents;
    const QStringList files = filesBelow(folder);
    for (const QString& file : files) {
        if (file != QLatin1String("filler")) {
            contents.insert(file, contentOf(folder + QLatin1Char('/') + file));
        }
    }
    return contents;
}

/// The program's own lines; what an IP prints stands beside them.
QByteArray messagesOf(const ProgramRun& run) {
    QByteArray messages;
    for (const QByteArray& line : run.err.split('\n')) {
        messages += line.startsWith("ipgen: ") ? line + '\n' : QByteArray();
    }
    return messages;
}

} // namespace

class FailuresTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_dir = std::make_unique<QTemporaryDir>();
        m_project = m_dir->filePath(QStringLiteral("p"));
        QVERIFY(QDir().mkpath(m_project));
    }

    void damagedProjects_data() {
        QTest::addColumn<QStringList>("arguments"); // %1: the project, %2: another folder
        const auto row = [](const QStringList& arguments) {
            QTest::newRow(qPrintable(arguments.join(' '))) << arguments;
        };
        row({"list", "%1"});
        row({"list", "%1", "--json"});
        row({"generate", "%1"});
        row({"generate", "%1", "a", "--netlist"});
        row({"generate", "%1", "--json"});
        row({"resources", "%1"});
        row({"resources", "%1", "--json"});
        row({"remove", "%1", "a"});
        row({"create", "%1", "new", "--ip", "tiny", "--set", "tab1/spinLines=2"});
        row({"open", "%1", "a", "--set", "tab1/spinLines=2"});
        row({"open", "%1", "a", "--script", "%2/p/project.json", "--report", "%2/report"});
        row({"check", "%1"});
        row({"check", "%1", "a", "--json"});
        row({"figure", "%1", "a", "--json"});
        row({"figure", "%1", "a", "--svg", "%2/figure.svg"});
        row({"example", "%1", "a", "--out", "%2/d"});
    }
    void damagedProjects() {
        QFETCH(QStringList, arguments);
        const QString file = m_project + "/project.json";
        writeFile(file, damagedText);
        struct stat before {};
        struct stat after {};
        ::stat(QFile::encodeName(file).constData(), &before);
        arguments.replaceInStrings("%1", m_project).replaceInStrings("%2", m_dir->path());
        const ProgramRun run = runIpgen(arguments);
        QCOMPARE(QString::fromUtf8(run.err),
                 "ipgen: " + file + ": line 4, column 4: the key \"device\" is given twice\n");
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.status, 3);
        ::stat(QFile::encodeName(file).constData(), &after);
        QCOMPARE(after.st_ino, before.st_ino);
        QCOMPARE(contentOf(file), damagedText);
        QCOMPARE(filesBelow(m_dir->path()), QStringList("p/project.json"));
    }

    void newOverADamagedProject() {
        writeFile(m_project + "/project.json", damagedText);
        const ProgramRun run = runIpgen({"new", m_project, "--device", "RZ7X-60B"});
        QCOMPARE(run.status, 1);
        QCOMPARE(contentOf(m_project + "/project.json"), damagedText);
    }

    void fileNames_data() {
        QTest::addColumn<QByteArray>("ip");
        QTest::addColumn<QByteArray>("file"); // as it stands in JSON
        QTest::addColumn<QByteArray>("why");
        for (const char* ip : {"tiny", "customized"}) {
            const auto row = [&](const char* name, const char* file, const char* why) {
                QTest::addRow("%s, %s", ip, name)
                    << QByteArray(ip) << QByteArray(file) << QByteArray(why);
            };
            row("above", R"("..")", "the name leaves its folder");
            row("here", R"(".")", "the name leaves its folder");
            row("way out", R"("../x")", "the name has a path separator");
            row("below", R"("a/b")", "the name has a path separator");
            row("folder", R"("a/")", "the name has a path separator");
            row("absolute", R"("/tmp/x")", "the name has a path separator");
            row("other separator", R"("..\\x")", "the name has a path separator");
            row("empty", R"("")", "the name is empty");
            row("zero character", R"("a\u0000/../..")", "the name has a path separator");
            row("line feed", R"("a\n")", "the name has a control character");
            row("null", "null", "the name is empty");
        }
    }
    void fileNames() {
        QFETCH(QByteArray, ip);
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, why);
        const QByteArray config = configOf(ip, file, "1.25");
        writeFile(m_project + "/project.json", projectText(ip, config));
        writeFile(m_dir->filePath("c.json"), '{' + config + '}');
        const QMap<QString, QByteArray> before = contentsBelow(m_dir->path());
        const QString out = m_dir->filePath("out");
        for (const QStringList& arguments :
             {QStringList({"generate", m_project}),
              QStringList({"emit", "--config", m_dir->filePath("c.json"), "--device", "RZ7X-60B",
                           "--ip", ip, "--out", out})}) {
            const ProgramRun run = runIpgen(arguments);
            QVERIFY2(run.err.endsWith(": " + why + '\n'), run.err.constData());
            QVERIFY2(run.err.contains(": file name \""), run.err.constData());
            QCOMPARE(run.err.count('\n'), 1);
            QCOMPARE(run.status, 1);
            QCOMPARE(contentsBelow(m_dir->path()), before);
        }
        QVERIFY(!QFile::exists(m_project + "/transceiver"));
    }

    void exampleRefusesFileNames() {
        writeFile(m_project + "/project.json",
                  projectText("customized", configOf("customized", R"("../x")", "1.25")));
        const ProgramRun run = runIpgen({"example", m_project, "x", "--out", m_dir->filePath("d")});
        QVERIFY2(run.err.contains("the name has a path separator"), run.err.constData());
        QCOMPARE(run.status, 1);
        QCOMPARE(filesBelow(m_dir->path()), QStringList("p/project.json"));
    }

    void filesThatCannotBeWritten_data() {
        QTest::addColumn<QByteArray>("ip");
        QTest::addColumn<QString>("how");
        QTest::addColumn<QByteArray>("why");
        const auto row = [](const char* ip, const char* how, const char* why) {
            QTest::addRow("%s, %s", ip, how)
                << QByteArray(ip) << QString::fromLatin1(how) << QByteArray(why);
        };
        row("tiny", "full disk", "cannot write: No space left on device");
        row("tiny", "read-only disk", "cannot make a file in its folder: Read-only file system");
        row("tiny", "size limit", "cannot write: File too large");
        row("customized", "full disk", "cannot write: No space left on device");
        row("customized", "read-only disk",
            "cannot make a file in its folder: Read-only file system");
        row("customized", "size limit", "cannot write: File too large");
    }
    void filesThatCannotBeWritten() {
        QFETCH(QByteArray, ip);
        QFETCH(QString, how);
        QFETCH(QByteArray, why);
        std::unique_ptr<SmallDisk> disk;
        if (how.endsWith("disk")) {
            disk = std::make_unique<SmallDisk>(m_project, 512);
            if (!disk->isMounted()) {
                QSKIP("only root may mount a small disk; the size limit shows the same");
            }
        }
        writeFile(m_project + "/project.json", projectText(ip, configOf(ip, R"("f")", "1.25")));
        QCOMPARE(runIpgen({"generate", m_project}).status, 0);
        writeFile(m_project + "/project.json", projectText(ip, configOf(ip, R"("f")", "2.5")));
        const QMap<QString, QByteArray> before = contentsBelow(m_project);
        QVERIFY(before.size() >= 3);
        std::unique_ptr<FileSizeLimit> limit;
        if (how == "full disk") {
            disk->fill();
        } else if (how == "read-only disk") {
            QVERIFY(disk->makeReadOnly());
        } else {
            limit = std::make_unique<FileSizeLimit>(20);
        }
        const ProgramRun run = runIpgen({"generate", m_project});
        limit.reset();
        QCOMPARE(run.status, 4);
        const QByteArray message = messagesOf(run);
        QVERIFY2(message.startsWith("ipgen: x: " + m_project.toUtf8() + "/transceiver/f/temp/"),
                 run.err.constData());
        QVERIFY2(message.endsWith(": " + why + '\n'), run.err.constData());
        QCOMPARE(message.count('\n'), 1);
        QCOMPARE(contentsBelow(m_project), before);
    }

    void aFullDiskAndNothingThereYet() {
        SmallDisk disk(m_project, 64);
        if (!disk.isMounted()) {
            QSKIP("only root may mount a small disk");
        }
        writeFile(m_project + "/project.json",
                  projectText("tiny", configOf("tiny", R"("f")", "1.25")));
        disk.fill();
        const ProgramRun run = runIpgen({"generate", m_project});
        QCOMPARE(run.status, 4);
        QVERIFY2(run.err.contains("/transceiver/f/temp/TINY") &&
                     run.err.contains(": No space left on device"),
                 run.err.constData());
        QCOMPARE(filesBelow(m_project), QStringList({"filler", "project.json"}));
    }

    void aProjectThatCannotBeSaved_data() {
        QTest::addColumn<bool>("full");
        QTest::newRow("full disk") << true;
        QTest::newRow("read-only disk") << false;
    }
    void aProjectThatCannotBeSaved() {
        QFETCH(bool, full);
        SmallDisk disk(m_project, 512);
        if (!disk.isMounted()) {
            QSKIP("only root may mount a small disk");
        }
        const QByteArray config = configOf("tiny", R"("f")", "1.25");
        writeFile(m_project + "/project.json", projectText("tiny", config));
        QCOMPARE(runIpgen({"generate", m_project}).status, 0);
        // The same files again, and a data store that has changed.
        writeFile(m_project + "/project.json", projectText("tiny", config + ", \"count\": true"));
        const QMap<QString, QByteArray> before = contentsBelow(m_project);
        if (full) {
            disk.fill();
        } else {
            QVERIFY(disk.makeReadOnly());
        }
        const QByteArray why = full ? "cannot write: No space left on device"
                                    : "cannot make a file in its folder: Read-only file system";
        for (const QStringList& arguments :
             {QStringList({"generate", m_project}), QStringList({"remove", m_project, "x"})}) {
            const ProgramRun run = runIpgen(arguments);
            QCOMPARE(messagesOf(run),
                     "ipgen: " + m_project.toUtf8() + "/project.json: " + why + '\n');
            QCOMPARE(run.status, 4);
            QCOMPARE(contentsBelow(m_project), before);
        }
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_project;
};

QTEST_GUILESS_MAIN(FailuresTest)
#include "failures_test.moc"
