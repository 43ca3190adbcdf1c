// Configurations that hold every pair of option values, through generation, the netlist flow and
// Verilator: each is read, checked and synthesised, and the netlist has the ports of the symbol.
// A sample by default; all of them with the argument --all.

#include "configurations.h"
#include "fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

namespace {

bool wanted = false; ///< all of them
constexpr int sampleSize = 12;

QMap<QString, Port> portsOf(const QByteArray& json, const QString& module) {
    const QJsonObject top = QJsonDocument::fromJson(json)
                                .object()[QStringLiteral("modules")]
                                .toObject()[module]
                                .toObject();
    const QJsonObject list = top[QStringLiteral("ports")].toObject();
    QMap<QString, Port> ports;
    for (auto it = list.begin(); it != list.end(); ++it) {
        const QJsonObject port = it.value().toObject();
        ports.insert(it.key(),
                     {port[QStringLiteral("bits")].toArray().size(),
                      port[QStringLiteral("direction")].toString() == QLatin1String("output")});
    }
    return ports;
}

QByteArray describe(const QMap<QString, Port>& ports) {
    QByteArray text;
    for (auto it = ports.begin(); it != ports.end(); ++it) {
        text +=
            it.key().toUtf8() + '[' + QByteArray::number(it->bits) + (it->output ? "]o " : "]i ");
    }
    return text;
}

} // namespace

class ConfigurationsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPairOccurs();
    void netlist_data();
    void netlist();

private:
    QList<Configuration> m_configurations;
    QTemporaryDir m_folder;
};

void ConfigurationsTest::initTestCase() {
    CoveringArray array = coveringArray();
    QList<CoveringArray::Choice> choices;
    m_configurations = coveringConfigurations(&array, &choices);
    if (!wanted) {
        // Spread over the list, whose first ones hold the most pairs.
        QList<Configuration> sample;
        for (int i = 0; i < sampleSize; ++i) {
            sample.append(m_configurations[i * m_configurations.size() / sampleSize]);
        }
        m_configurations = sample;
    }
    const QByteArray problem = emitAll(m_configurations, m_folder.path());
    QVERIFY2(problem.isEmpty(), problem);
}

void ConfigurationsTest::everyPairOccurs() {
    CoveringArray array = coveringArray();
    QList<CoveringArray::Choice> choices;
    const int count = coveringConfigurations(&array, &choices).size();
    QVERIFY(count >= 300);
    QCOMPARE(array.missingPairs(choices), 0);
    // The array can tell when a pair is missing.
    QVERIFY(array.missingPairs(choices.mid(0, 5)) > 0);
    QVERIFY2(array.possiblePairs() > 1500, QByteArray::number(array.possiblePairs()));
    qInfo("%d configurations, %d pairs, %d pairs that the rules exclude", count,
          array.possiblePairs(), array.impossiblePairs());
}

void ConfigurationsTest::netlist_data() {
    QTest::addColumn<int>("index");
    for (int i = 0; i < m_configurations.size(); ++i) {
        QTest::newRow(qPrintable(m_configurations[i].name)) << i;
    }
}

void ConfigurationsTest::netlist() {
    QFETCH(int, index);
    const Configuration& one = m_configurations[index];
    const QString root = m_folder.filePath(one.name);
    IPSERDESIP::serdes::instance()->openProject({}, root, {});
    NamedProtocol protocol;
    protocol.file = one.config[QStringLiteral("file")].toString();
    protocol.module = one.config[QStringLiteral("module")].toString();
    QString text;
    const bool done = IPSERDESIP::waitForRunSyntheSis(
        {}, {}, {{QStringLiteral("ipcore.dir.data"), QStringLiteral(SOURCE_DIR "/ip/data")}},
        {QStringLiteral("customized_phy_wrapper.v"), QStringLiteral("customized_phy.v")},
        QStringLiteral("CUSTOMIZED"), text, &protocol);
    QVERIFY2(done, qPrintable(text));
    const QString folder =
        root + QLatin1Char('/') + protocol.file + QStringLiteral("/temp/CUSTOMIZED");

    QByteArray json;
    QVERIFY(Utils::readFile(
        folder + QLatin1Char('/') + protocol.module + QStringLiteral("_netlist.json"), &json));
    const QMap<QString, Port> ports = portsOf(json, protocol.module);
    QVERIFY(!ports.isEmpty());
    QVERIFY2(ports == expectedPorts(one),
             "is " + describe(ports) + "\nshould be " + describe(expectedPorts(one)));

    QProcess verilator;
    verilator.setProcessChannelMode(QProcess::MergedChannels);
    const QString data = QStringLiteral(SOURCE_DIR "/ip/data/");
    const QString primitives = QStringLiteral(SOURCE_DIR "/host/data/primitives/");
    verilator.start(QStringLiteral("verilator"),
                    {QStringLiteral("--lint-only"), QStringLiteral("-Wall"),
                     QStringLiteral("-DSYNTHESIS"), QStringLiteral("-I") + folder,
                     QStringLiteral("-I") + data, QStringLiteral("-I") + primitives,
                     QStringLiteral("--top-module"), protocol.module,
                     data + QStringLiteral("example/bench/lint.vlt"),
                     data + QStringLiteral("customized_phy_wrapper.v"),
                     data + QStringLiteral("customized_phy.v"),
                     primitives + QStringLiteral("xcvr_primitives.v")});
    QVERIFY(verilator.waitForFinished(60000));
    const QByteArray output = verilator.readAll();
    QVERIFY2(verilator.exitCode() == 0 && output.isEmpty(), output.left(2000));
}

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QStringList arguments = app.arguments();
    wanted = arguments.removeAll(QStringLiteral("--all")) > 0;
    ConfigurationsTest test;
    return QTest::qExec(&test, arguments);
}
#include "configurations_test.moc"
