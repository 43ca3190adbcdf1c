#include "programrun.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class CommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_dir = std::make_unique<QTemporaryDir>();
        m_project = m_dir->filePath(QStringLiteral("p"));
    }

    void usage_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("err");
        const auto row = [](const char* name, const QStringList& arguments, const char* err) {
            QTest::newRow(name) << arguments << QByteArray(err);
        };
        row("nothing", {}, "ipgen: usage: a command is needed; see ipgen --help\n");
        row("no project", {"list"}, "ipgen: usage: PROJECT is required; see ipgen list --help\n");
        row("no device", {"new", "p"},
            "ipgen: usage: --device is required; see ipgen new --help\n");
        row("unknown option", {"catalog", "--nope"},
            "ipgen: usage: The following argument was not expected: --nope; "
            "see ipgen catalog --help\n");
        row("unknown command", {"nope"},
            "ipgen: usage: The following argument was not expected: nope; see ipgen --help\n");
        row("nothing to emit", {"emit", "--out", "d"},
            "ipgen: usage: --batch or --config is needed; see ipgen emit --help\n");
        row("no report", {"emit", "--batch", "b", "--out", "d"},
            "ipgen: usage: --batch requires --report; see ipgen emit --help\n");
        row("both",
            {"emit", "--batch", "b", "--report", "r", "--config", "c", "--device", "d", "--out",
             "d"},
            "ipgen: usage: --batch excludes --config; see ipgen emit --help\n");
        row("no jobs", {"emit", "--batch", "b", "--report", "r", "--out", "d", "--jobs", "0"},
            "ipgen: usage: --jobs: Value 0 not in range 1 to 256; see ipgen emit --help\n");
    }
    void usage() {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, err);
        const ProgramRun run = runIpgen(arguments);
        QCOMPARE(run.err, err);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.status, 2);
    }

    void help_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("all") << QStringList({"--help"})
                             << QStringList({"catalog", "devices", "new", "list", "generate",
                                             "remove", "emit", "--version", "--plugin-dir"});
        QTest::newRow("catalog") << QStringList({"catalog", "--help"})
                                 << QStringList({"--json", "--plugin-dir"});
        QTest::newRow("generate") << QStringList({"generate", "--help"})
                                  << QStringList({"PROJECT", "NAME", "--netlist", "--json"});
        QTest::newRow("emit") << QStringList({"emit", "--help"})
                              << QStringList({"--batch", "--config", "--device", "--out",
                                              "--report", "--jobs", "--ip", "--json"});
    }
    void help() {
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, words);
        const ProgramRun run = runIpgen(arguments);
        QCOMPARE(run.status, 0);
        QCOMPARE(run.err, QByteArray());
        for (const QString& word : qAsConst(words)) {
            QVERIFY2(run.out.contains(word.toUtf8()), qPrintable(word));
        }
        QVERIFY(!run.out.contains("--worker"));
    }

    void version() {
        const ProgramRun run = runIpgen({"--version"});
        QCOMPARE(run.out, QByteArray("ipgen 1.0.0\n"));
        QCOMPARE(run.status, 0);
    }

    void catalog() {
        const ProgramRun text = runIpgen({"catalog"});
        QCOMPARE(text.err, QByteArray());
        QCOMPARE(text.status, 0);
        QVERIFY2(text.out.endsWith("tiny\n"
                                   "  name: Tiny Link\n"
                                   "  version: 2.1\n"
                                   "  category: Test / Small\n"
                                   "  summary: One lane and a file.\n"
                                   "  devices: RZ7X-60B, RZ7X-60ES, RZ7X-15A, RZ7XR-15A, "
                                   "RZ7XR-15B, RZ7X-15B, RZ7NX-15A, RZ7NXR-15A, RZ7X-138\n"),
                 text.out.constData());
        const QVariantMap json = jsonOf(runIpgen({"catalog", "--json"}).out).toMap();
        QCOMPARE(json.value("problems").toList(), QVariantList());
        const QVariantMap tiny = json.value("ips").toList().last().toMap();
        QCOMPARE(tiny.value("id"), QVariant("tiny"));
        QCOMPARE(tiny.value("category"), QVariant(QStringList({"Test", "Small"})));
        QCOMPARE(tiny.value("devices").toStringList().size(), 9);
    }

    void brokenPluginsAreToldAndOthersServe_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("reason");
        QTest::newRow("a text file") << "text.so"
                                     << "'%1' is not an ELF object";
        QTest::newRow("an empty file") << "empty.so"
                                       << "'%1' is not an ELF object";
        QTest::newRow("half of a plug-in") << "half.so"
                                           << "'%1' is an invalid ELF object";
        QTest::newRow("a plain library") << "plain.so"
                                         << "Failed to extract plugin meta data from '%1'";
        QTest::newRow("another program's plug-in")
            << "foreign.so"
            << "a Qt plug-in, but no IP package (class ForeignPlugin)";
        QTest::newRow("an IP package with nothing in it")
            << "nothing.so"
            << "offers no IP: nothing.ipspec: is not there";
        QTest::newRow("an IP without its description")
            << "bare/tiny.so"
            << "offers no IP: %2/tiny.ipspec: cannot read: No such file or "
               "directory";
    }
    void brokenPluginsAreToldAndOthersServe() {
        QFETCH(QString, file);
        QFETCH(QString, reason);
        const QString path = m_dir->filePath(file);
        const QString folder = QFileInfo(path).path();
        QVERIFY(QDir().mkpath(folder));
        const QString plugin = testPlugins("tiny/libtiny.so");
        if (file == "text.so") {
            writeFile(path, QByteArray("this is no library\n").repeated(10));
        } else if (file == "empty.so") {
            writeFile(path, QByteArray());
        } else if (file == "half.so") {
            const QByteArray bytes = contentOf(plugin);
            writeFile(path, bytes.left(bytes.size() / 2));
        } else if (file == "plain.so") {
            QVERIFY(QFile::copy(QStringLiteral(BUILD_DIR "/lib/libhost_utils.so"), path));
        } else {
            const QString name = QFileInfo(path).baseName();
            QVERIFY(QFile::copy(testPlugins(name + "/lib" + name + ".so"), path));
        }
        const ProgramRun run = runIpgen({"catalog", "--plugin-dir", m_dir->path()});
        QString line = reason;
        line.replace("%1", path).replace("%2", folder);
        const QString err = QString::fromUtf8(run.err);
        QVERIFY2(err.startsWith("ipgen: " + path + ": " + line), run.err.constData());
        QCOMPARE(err.count('\n'), 1);
        QCOMPARE(run.status, 0);
        QVERIFY(run.out.contains("\n  name: Tiny Link\n"));
    }

    void anIpIsOfferedOnce() {
        QVERIFY(QFile::copy(testPlugins("tiny/libtiny.so"), m_dir->filePath("second.so")));
        QVERIFY(QFile::copy(testPlugins("tiny/tiny.ipspec"), m_dir->filePath("tiny.ipspec")));
        const ProgramRun run = runIpgen({"catalog", "--plugin-dir", m_dir->path()});
        QCOMPARE(QString::fromUtf8(run.err),
                 QStringLiteral("ipgen: %1: the IP \"tiny\" is on offer already, from %2\n")
                     .arg(m_dir->filePath("second.so"), testPlugins("tiny/libtiny.so")));
        QCOMPARE(run.out.count("\n  name: Tiny Link\n"), 1);
    }

    void devices() {
        const QVariantList list =
            jsonOf(runIpgen({"devices", "--json"}).out).toMap().value("devices").toList();
        QCOMPARE(list.size(), 10);
        const QVariantMap first = list.first().toMap();
        QCOMPARE(first.value("id"), QVariant("RZ7X-60B"));
        QCOMPARE(first.value("quads"), QVariant(1));
        QCOMPARE(first.value("lanes"), QVariant(4));
        QCOMPARE(list.last().toMap().value("id"), QVariant("RZ7X-138B"));
        QCOMPARE(list.last().toMap().value("lanes"), QVariant(8));
        QVERIFY(runIpgen({"devices"}).out.startsWith("id  "));
    }

    void newProject() {
        const ProgramRun run = runIpgen({"new", m_project, "--device", "RZ7X-60B"});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.out, (m_project + "/project.json\n").toUtf8());
        QCOMPARE(run.status, 0);
        QCOMPARE(contentOf(m_project + "/project.json"),
                 QByteArray("{\n  \"data\": {},\n  \"device\": \"RZ7X-60B\",\n  \"format\": 1,\n"
                            "  \"instances\": {}\n}\n"));
        const ProgramRun again = runIpgen({"new", m_project, "--device", "RZ7X-138"});
        QCOMPARE(again.err,
                 ("ipgen: " + m_project + "/project.json: is a project already\n").toUtf8());
        QCOMPARE(again.status, 1);
        QVERIFY(contentOf(m_project + "/project.json").contains("RZ7X-60B"));
    }

    void newProjectRefuses() {
        const ProgramRun run = runIpgen({"new", m_project, "--device", "rz7x-60b"});
        QVERIFY(run.err.startsWith("ipgen: device \"rz7x-60b\": not in the device database; known: "
                                   "RZ7X-60B, "));
        QCOMPARE(run.status, 1);
        QVERIFY(!QFile::exists(m_project));
        writeFile(m_project, "a file in its place");
        QCOMPARE(runIpgen({"new", m_project, "--device", "RZ7X-60B"}).status, 4);
    }

    void list() {
        makeProject();
        const ProgramRun run = runIpgen({"list", m_project});
        QCOMPARE(run.out, QByteArray("name   ip     lanes     pll       tx rate  rx rate\n"
                                     "link0  tiny   Q0 Lane1  Q0_QPLL0  2.5      1.25\n"
                                     "link1  tiny   -         -         -        -\n"
                                     "other  other  -         -         -        -\n"));
        QCOMPARE(QString::fromUtf8(run.err).section(';', 0, 0),
                 QStringLiteral("ipgen: other: IP \"other\": not found"));
        QCOMPARE(run.status, 0);
        const QVariantMap json = jsonOf(runIpgen({"list", m_project, "--json"}).out).toMap();
        QCOMPARE(json.value("device"), QVariant("RZ7X-60B"));
        const QVariantMap first = json.value("instances").toList().first().toMap();
        QCOMPARE(first, QVariantMap({{"name", "link0"},
                                     {"ip", "tiny"},
                                     {"lanes", QStringList({"Q0 Lane1"})},
                                     {"plls", QStringList({"Q0_QPLL0"})},
                                     {"txRate", 2.5},
                                     {"rxRate", 1.25},
                                     {"offered", true}}));
    }

    void generate() {
        makeProject();
        const QString folder = m_project + "/transceiver/f0/temp/TINY";
        const ProgramRun run = runIpgen({"generate", m_project, "link0"});
        // What an IP prints does not get between the lines of standard output.
        QCOMPARE(run.err, QByteArray("an IP may print what it likes\n"));
        QVERIFY(run.out.endsWith(
            ("link0: " + folder + "/tiny.txt\nlink0: " + folder + "/tiny.ini\n").toUtf8()));
        QCOMPARE(run.status, 0);
        QCOMPARE(contentOf(folder + "/tiny.txt"),
                 QByteArray("line 0 of m0 at 2.5\nbias 9 on RZ7X-60B\n"));
        QCOMPARE(contentOf(folder + "/tiny.ini"), QByteArray("tiny m0\n"));
        QCOMPARE(filesBelow(m_project),
                 QStringList({"project.json", "transceiver/f0/temp/TINY/tiny.ini",
                              "transceiver/f0/temp/TINY/tiny.txt"}));
    }

    void generateAllGoesOnAfterAFailure() {
        makeProject();
        const ProgramRun run = runIpgen({"generate", m_project, "--json"});
        QCOMPARE(QString::fromUtf8(run.err).count("\n"), 3);
        QVERIFY(run.err.contains("ipgen: link1: file name \"\": the name is empty\n"));
        QVERIFY(run.err.contains("ipgen: other: IP \"other\": not found; on offer: "));
        QCOMPARE(run.status, 1);
        QVERIFY(filesBelow(m_project).contains("transceiver/f0/temp/TINY/tiny.txt"));
    }

    void generateReportsAsJson() {
        makeProject();
        const QByteArray out = runIpgen({"generate", m_project, "link0", "--json"}).out;
        const QVariantMap one = jsonOf(out).toMap().value("instances").toList().value(0).toMap();
        QCOMPARE(one.value("ok"), QVariant(true));
        QCOMPARE(one.value("script"), QVariant(QStringList({"tiny m0"})));
        QCOMPARE(one.value("options"), QVariant(QStringList({"-m0 true"})));
        QCOMPARE(one.value("folder"), QVariant(m_project + "/transceiver/f0/temp/TINY"));
        QCOMPARE(one.value("error"), QVariant(QString("")));
    }

    void generateFails_data() {
        QTest::addColumn<QByteArray>("config");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("why");
        const auto row = [](const char* name, const char* config, int status, const char* why) {
            QTest::newRow(name) << QByteArray(config) << status << QByteArray(why);
        };
        row("empty", "{}", 1, "the configuration is empty");
        row("no file", "{\"module\":\"m\"}", 1, "file name \"\": the name is empty");
        row("above", "{\"file\":\"..\"}", 1, "file name \"..\": the name leaves its folder");
        row("here", "{\"file\":\".\"}", 1, "file name \".\": the name leaves its folder");
        row("below", "{\"file\":\"a/b\"}", 1, "file name \"a/b\": the name has a path separator");
        row("way out", "{\"file\":\"../../x\"}", 1,
            "file name \"../../x\": the name has a path separator");
        row("absolute", "{\"file\":\"/tmp\"}", 1,
            "file name \"/tmp\": the name has a path separator");
        row("other separator", "{\"file\":\"a\\\\b\"}", 1,
            "file name \"a\\b\": the name has a path separator");
        row("line feed", "{\"file\":\"a\\nb\"}", 1,
            "file name \"a\\nb\": the name has a control character");
        row("zero character", "{\"file\":\"a\\u0000b\"}", 1,
            "file name \"a\\x00b\": the name has a control character");
        row("refused", "{\"file\":\"f\",\"refuse\":true}", 1,
            "the IP refused to generate this configuration");
        row("exception", "{\"file\":\"f\",\"throw\":true}", 70,
            "the generation threw an exception: thrown on purpose");
    }
    void generateFails() {
        QFETCH(QByteArray, config);
        QFETCH(int, status);
        QFETCH(QByteArray, why);
        QVERIFY(QDir().mkpath(m_project));
        writeFile(m_project + "/project.json",
                  "{\"format\":1,\"device\":\"RZ7X-60B\",\"instances\":{\"x\":{\"ip\":\"tiny\","
                  "\"config\":" +
                      config + "}}}");
        const ProgramRun run = runIpgen({"generate", m_project});
        QCOMPARE(run.err, "ipgen: x: " + why + '\n');
        QCOMPARE(run.status, status);
        QCOMPARE(filesBelow(m_dir->path()), QStringList({"p/project.json"}));
    }

    void generateRefusesUnknownNames() {
        makeProject();
        const ProgramRun run = runIpgen({"generate", m_project, "link0", "nope"});
        QVERIFY(run.err.endsWith(
            "ipgen: nope: no such instance; the project has: link0, link1, other\n"));
        QCOMPARE(run.status, 1);
        QCOMPARE(filesBelow(m_project), QStringList({"project.json"}));
    }

    void theDataStoreIsKeptWithTheProject() {
        QVERIFY(QDir().mkpath(m_project));
        writeFile(m_project + "/project.json",
                  "{\"format\":1,\"device\":\"RZ7X-60B\",\"note\":[1,{}],\"instances\":{\"x\":{"
                  "\"ip\":\"tiny\",\"mine\":\"kept\",\"config\":{\"file\":\"f\",\"count\":true}}},"
                  "\"data\":{\"Q0_BIAS\":9}}");
        QCOMPARE(runIpgen({"generate", m_project}).status, 0);
        QCOMPARE(runIpgen({"generate", m_project}).status, 0);
        const QVariantMap now = jsonOf(contentOf(m_project + "/project.json")).toMap();
        QCOMPARE(now.value("data").toMap(), QVariantMap({{"Q0_BIAS", 9}, {"TINY_RUNS", 2}}));
        QCOMPARE(now.value("note").toList(), QVariantList({1, QVariantMap()}));
        QCOMPARE(now.value("instances").toMap().value("x").toMap().value("mine"), QVariant("kept"));
    }

    void remove() {
        makeProject();
        const ProgramRun run = runIpgen({"remove", m_project, "link0"});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.status, 0);
        const QVariantMap now = jsonOf(contentOf(m_project + "/project.json")).toMap();
        QCOMPARE(now.value("instances").toMap().keys(), QStringList({"link1", "other"}));
        QCOMPARE(now.value("data").toMap(), QVariantMap({{"Q0_BIAS", 9}}));
        const ProgramRun again = runIpgen({"remove", m_project, "link0"});
        QCOMPARE(again.err,
                 QByteArray("ipgen: link0: no such instance; the project has: link1, other\n"));
        QCOMPARE(again.status, 1);
    }

    void damagedProjectsAreNamedAndLeftAlone_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("why");
        const auto row = [](const char* name, const char* text, const char* why) {
            QTest::newRow(name) << QByteArray(text) << QByteArray(why);
        };
        row("empty", "", "line 1, column 1: ");
        row("cut off", "{\"format\": 1,\n \"device\": \"RZ", "line 2, column 15: ");
        row("doubled key", "{\"format\": 1,\n \"device\": \"a\",\n \"device\": \"b\"}",
            "line 3, column 2: the key \"device\" is given twice");
        row("a list", "[]", "a project file is a JSON object");
        row("no format", "{\"device\":\"x\"}", "the key \"format\" is missing");
        row("another format", "{\n \"format\":1.0,\"device\":\"x\"}",
            "line 2, column 2: the key \"format\" is no whole number");
        row("later format", "{\"format\":2,\"device\":\"x\"}",
            "line 1, column 2: the format is 2; this program reads format 1");
        row("no device", "{\"format\":1}", "the key \"device\" is missing");
        row("device", "{\"format\":1,\n\n  \"device\":5}",
            "line 3, column 3: the key \"device\" is no text");
        row("instances", "{\"format\":1,\"device\":\"x\",\"instances\":[]}",
            "line 1, column 26: the key \"instances\" is no object");
        row("instance", "{\"format\":1,\"device\":\"x\",\"instances\":{\"a\":1}}",
            "line 1, column 39: the instance \"a\" is no object");
        row("instance's IP",
            "{\"format\":1,\"device\":\"x\",\"ip\":1,\"instances\":{\"a\":{\n\"ip\":[]}}}",
            "line 2, column 1: the instance \"a\": the key \"ip\" is no text");
        row("no config", "{\"format\":1,\"device\":\"x\",\"instances\":{\n\"a\":{\"ip\":\"t\"}}}",
            "line 2, column 1: the instance \"a\": the key \"config\" is missing");
        row("data", "{\"format\":1,\"device\":\"x\",\"data\":1}",
            "line 1, column 26: the key \"data\" is no object");
    }
    void damagedProjectsAreNamedAndLeftAlone() {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, why);
        QVERIFY(QDir().mkpath(m_project));
        writeFile(m_project + "/project.json", text);
        for (const QStringList& arguments :
             {QStringList({"list", m_project}), QStringList({"generate", m_project}),
              QStringList({"remove", m_project, "a"})}) {
            const ProgramRun run = runIpgen(arguments);
            const QByteArray front = ("ipgen: " + m_project + "/project.json: ").toUtf8() + why;
            QVERIFY2(run.err.startsWith(front), run.err.constData());
            QCOMPARE(run.err.count('\n'), 1);
            QCOMPARE(run.status, 3);
        }
        QCOMPARE(contentOf(m_project + "/project.json"), text);
    }

    void noProject() {
        const ProgramRun run = runIpgen({"list", m_project});
        QCOMPARE(run.err,
                 ("ipgen: " + m_project + "/project.json: cannot read: No such file or directory\n")
                     .toUtf8());
        QCOMPARE(run.status, 3);
    }

    void unknownDeviceOfAProject() {
        QVERIFY(QDir().mkpath(m_project));
        writeFile(m_project + "/project.json", "{\"format\":1,\"device\":\"Q\"}");
        const ProgramRun run = runIpgen({"list", m_project});
        QVERIFY(run.err.startsWith(
            ("ipgen: " + m_project + "/project.json: device \"Q\": not in the device database")
                .toUtf8()));
        QCOMPARE(run.status, 3);
    }

    void fullStandardOutput() {
        QProcess process;
        process.setStandardOutputFile(QStringLiteral("/dev/full"));
        process.start(ipgenProgram(), {"devices"});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 4);
        QCOMPARE(process.readAllStandardError(),
                 QByteArray("ipgen: standard output: cannot write: No space left on device\n"));
    }

private:
    void makeProject() {
        QVERIFY(QDir().mkpath(m_project));
        writeFile(m_project + "/project.json",
                  "{\"format\": 1, \"device\": \"RZ7X-60B\", \"instances\": {\n"
                  "\"link0\": {\"ip\": \"tiny\", \"config\": {\"file\": \"f0\", \"module\": "
                  "\"m0\", \"lane\": \"Q0 Lane1\", \"rate\": \"2.5\", \"lines\": 1}},\n"
                  "\"link1\": {\"ip\": \"tiny\", \"config\": {\"module\": \"m1\"}},\n"
                  "\"other\": {\"ip\": \"other\", \"config\": {\"a\": 1}}},\n"
                  "\"data\": {\"Q0_BIAS\": 9}}\n");
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_project;
};

QTEST_GUILESS_MAIN(CommandsTest)
#include "commands_test.moc"
