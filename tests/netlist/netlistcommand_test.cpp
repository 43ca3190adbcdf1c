// The netlist generation from the command line: files, messages and exit statuses.

#include "configurations.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
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
    explicit ProjectFolder(const QJsonObject& changes = {}, const char* deviceClass = "60k",
                           const QList<int>& lanes = {0}) {
        const Configuration c =
            configuration(QStringLiteral("link0"), QLatin1String(deviceClass), lanes, changes);
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
    void portsAreTheFiguresPins_data();
    void portsAreTheFiguresPins();
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

void NetlistCommandTest::portsAreTheFiguresPins_data() {
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QList<int>>("lanes");
    QTest::addColumn<QJsonObject>("changes");
    const auto row = [](const char* tag, const char* device, const QList<int>& lanes,
                        const QJsonObject& changes) {
        QTest::newRow(tag) << QByteArray(device) << lanes << changes;
    };
    const QJsonObject blocks{{QStringLiteral("TX_ENCODING"), QStringLiteral("64B66B")},
                             {QStringLiteral("RX_DECODING"), QStringLiteral("64B66B")},
                             {QStringLiteral("TX_INTERNAL_DATA_WIDTH"), QStringLiteral("16")},
                             {QStringLiteral("RX_INTERNAL_DATA_WIDTH"), QStringLiteral("16")},
                             {QStringLiteral("TX_EXTERNAL_DATA_RATIO"), QStringLiteral("1:4")},
                             {QStringLiteral("RX_EXTERNAL_DATA_RATIO"), QStringLiteral("1:4")},
                             {QStringLiteral("DRP_Ports"), true}};
    const QJsonObject options{{QStringLiteral("WORD_ALIGNMENT"), true},
                              {QStringLiteral("RX_CHANNEL_BONDING"), QStringLiteral("Two Words")},
                              {QStringLiteral("CLOCK_CORRECTION"), QStringLiteral("One Word")}};
    row("plain, 60k", "60k", {0}, {});
    row("blocks and reconfiguration, 15k", "15k", {3}, blocks);
    row("two lanes with options, 60k", "60k", {1, 2}, options);
    row("two quads with options, 138k", "138k", {0, 5}, options);
}

// The netlist against the symbol that the dialog itself draws, order included.
void NetlistCommandTest::portsAreTheFiguresPins() {
    QFETCH(QByteArray, device);
    QFETCH(QList<int>, lanes);
    QFETCH(QJsonObject, changes);
    const ProjectFolder project(changes, device.constData(), lanes);
    QVERIFY(project.isMade());
    const Outcome figure = project.ipgen({QStringLiteral("figure"), project.root.path(),
                                          QStringLiteral("link0"), QStringLiteral("--json")});
    QVERIFY2(figure.status == 0, figure.err);
    const Outcome generated = project.generate();
    QVERIFY2(generated.status == 0, generated.err);
    QByteArray netlist = project.read("Link0_netlist.v");
    netlist.replace("\n, ", ", "); // a long port list goes over several lines

    QStringList pins;
    for (const QJsonValue& value : QJsonDocument::fromJson(figure.out).array()) {
        const QString name = value.toObject()[QStringLiteral("name")].toString();
        const QString bare = name.section(QLatin1Char('['), 0, 0);
        const QString range = name.mid(bare.size());
        pins.append(bare);
        // The port's name ends in its direction; the symbol draws one input among the outputs.
        const QByteArray direction = bare.endsWith(QLatin1String("_i")) ? "input" : "output";
        const QByteArray declared = "  " + direction + ' ' +
                                    (range.isEmpty() ? "" : range.toUtf8() + ' ') + bare.toUtf8() +
                                    ";\n";
        QVERIFY2(netlist.contains(declared), declared);
    }
    QVERIFY(pins.size() > 20);
    QVERIFY2(netlist.contains("module Link0(" + pins.join(QStringLiteral(", ")).toUtf8() + ");"),
             netlist.left(3000));
}

QTEST_GUILESS_MAIN(NetlistCommandTest)
#include "netlistcommand_test.moc"
