// The netlist generation from the command line: files, messages and exit statuses.

#include "configurations.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

namespace {

struct Outcome {
    int status = -1;
    QByteArray out;
    QByteArray err;
};

/// A project with one instance "link0".
class ProjectFolder {
public:
    explicit ProjectFolder(const QJsonObject& changes = {}) {
        const Configuration c =
            configuration(QStringLiteral("link0"), QStringLiteral("60k"), {0}, changes);
        const QJsonObject instance{{QStringLiteral("ip"), QStringLiteral("customized")},
                                   {QStringLiteral("config"), c.config}};
        const QJsonObject project{{QStringLiteral("format"), 1},
                                  {QStringLiteral("device"), c.device},
                                  {QStringLiteral("instances"), QJsonObject{{c.name, instance}}},
                                  {QStringLiteral("data"), QJsonObject()}};
        QFile file(root.filePath(QStringLiteral("project.json")));
        m_made = file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(project).toJson()) > 0;
        file.close();
        m_made = m_made && QDir(root.path()).mkpath(QStringLiteral("tools"));
    }
    bool isMade() const { return m_made; }

    QString folder() const {
        return root.filePath(QStringLiteral("transceiver/link0/temp/CUSTOMIZED"));
    }
    QByteArray read(const char* name) const {
        QFile file(folder() + QLatin1Char('/') + QLatin1String(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Puts a stand-in for the synthesis program in front of the search path.
    bool installFake(const QByteArray& body) const {
        QFile file(root.filePath(QStringLiteral("tools/yosys")));
        return file.open(QIODevice::WriteOnly) && file.write("#!/bin/sh\n" + body) > 0 &&
               file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void prepare(QProcess& process, bool onlyTools) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QString tools = root.filePath(QStringLiteral("tools"));
        environment.insert(QStringLiteral("PATH"),
                           onlyTools ? tools
                                     : tools + QLatin1Char(':') +
                                           environment.value(QStringLiteral("PATH")));
        process.setProcessEnvironment(environment);
    }
    Outcome ipgen(const QStringList& arguments, bool onlyTools = false) const {
        QProcess process;
        prepare(process, onlyTools);
        process.start(QStringLiteral(BUILD_DIR "/bin/ipgen"), arguments);
        if (!process.waitForFinished(60000)) {
            return {};
        }
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }
    Outcome generate(bool onlyTools = false) const {
        return ipgen({QStringLiteral("generate"), root.path(), QStringLiteral("--netlist")},
                     onlyTools);
    }

    QTemporaryDir root;

private:
    bool m_made = false;
};

} // namespace

class NetlistCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writesTheNetlist();
    void optionsReachTheNetlist();
    void missingProgramIsStatus5();
    void failingProgramIsStatus5();
    void hostileModuleIsRefused();
    void interruptCancels_data();
    void interruptCancels();
    void exampleOfAnUnknownInstance();
};

void NetlistCommandTest::writesTheNetlist() {
    const ProjectFolder project;
    QVERIFY(project.isMade());
    const Outcome outcome = project.generate();
    QVERIFY2(outcome.status == 0, outcome.err);
    QCOMPARE(outcome.err, QByteArray()); // no terminal, no progress line
    const QByteArray folder = "link0: " + project.folder().toUtf8() + '/';
    QCOMPARE(outcome.out, folder + "define.vh\n" + folder + "param.v\n" + folder +
                              "customized.ini\n" + folder + "Link0_netlist.v\n");
    QVERIFY(project.read("Link0_netlist.v").contains("module Link0("));
}

void NetlistCommandTest::optionsReachTheNetlist() {
    const ProjectFolder project;
    QVERIFY(project.isMade());
    QCOMPARE(project.generate().status, 0);
    const QByteArray netlist = project.read("Link0_netlist.v");
    for (const char* attribute :
         {"protocol_module_type = \"customized\"", "Q0Lane0 = \"true\"",
          "Clock_Correction = \"None\"", "Word_Alignment = \"false\"",
          "RX_Channel_Bonding = \"None\"", "EnableDRP = \"false\"", "DRPPorts = \"false\"",
          "TX_Encoding_Mode = \"OFF\"", "RX_Decoding_Mode = \"OFF\""}) {
        QVERIFY2(netlist.contains("(* " + QByteArray(attribute) + " *)"), attribute);
    }
}

void NetlistCommandTest::missingProgramIsStatus5() {
    const ProjectFolder project;
    QVERIFY(project.isMade());
    const Outcome outcome = project.generate(true);
    QCOMPARE(outcome.status, 5);
    QCOMPARE(outcome.err, QByteArray("ipgen: link0: the synthesis program \"yosys\" is not "
                                     "installed or cannot be run\n"));
}

void NetlistCommandTest::failingProgramIsStatus5() {
    const ProjectFolder project;
    QVERIFY(project.isMade() && project.installFake("echo 'ERROR: no good' > yosys.log\nexit 3\n"));
    const Outcome outcome = project.generate();
    QCOMPARE(outcome.status, 5);
    QCOMPARE(outcome.err, "ipgen: link0: yosys failed: ERROR: no good; its log is " +
                              project.folder().toUtf8() + "/yosys.log\n");
}

void NetlistCommandTest::hostileModuleIsRefused() {
    const ProjectFolder project({{QStringLiteral("module"), QStringLiteral("a;b")}});
    QVERIFY(project.isMade() && project.installFake("touch \"$0.ran\"\n"));
    const Outcome outcome = project.generate();
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err, QByteArray("ipgen: link0: module name \"a;b\": \";\" is neither a "
                                     "letter, a digit nor \"_\"\n"));
    QVERIFY(!QFile::exists(project.root.filePath(QStringLiteral("tools/yosys.ran"))));
}

void NetlistCommandTest::interruptCancels_data() {
    QTest::addColumn<int>("signal");
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("terminate") << SIGTERM;
}

void NetlistCommandTest::interruptCancels() {
    QFETCH(int, signal);
    const ProjectFolder project;
    QVERIFY(project.isMade());
    QCOMPARE(project.generate().status, 0);
    const QByteArray former = project.read("Link0_netlist.v");
    QVERIFY(!former.isEmpty());
    QVERIFY(project.installFake("echo > \"$0.started\"\nsleep 60\n"));
    QProcess process;
    project.prepare(process, false);
    process.start(QStringLiteral(BUILD_DIR "/bin/ipgen"),
                  {QStringLiteral("generate"), project.root.path(), QStringLiteral("--netlist")});
    QVERIFY(process.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(
        QFile::exists(project.root.filePath(QStringLiteral("tools/yosys.started"))), 30000);
    ::kill(static_cast<pid_t>(process.processId()), signal);
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardError(),
             QByteArray("ipgen: link0: the netlist generation was cancelled\n"));
    QCOMPARE(project.read("Link0_netlist.v"), former);
    QCOMPARE(QDir(project.folder())
                 .entryList({QStringLiteral(".*")},
                            QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
}

void NetlistCommandTest::exampleOfAnUnknownInstance() {
    const ProjectFolder project;
    QVERIFY(project.isMade());
    const QString out = project.root.filePath(QStringLiteral("example"));
    const Outcome outcome = project.ipgen({QStringLiteral("example"), project.root.path(),
                                           QStringLiteral("nobody"), QStringLiteral("--out"), out});
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.err.startsWith("ipgen: nobody: "), outcome.err);
    QVERIFY(!QFile::exists(out));
}

QTEST_GUILESS_MAIN(NetlistCommandTest)
#include "netlistcommand_test.moc"
