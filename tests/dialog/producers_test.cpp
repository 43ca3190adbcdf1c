// The dialog and the generation write a lane's script from one catalogue: for the same
// configuration their lines are the same but in the few points that are named here.

#include "savedkeys.h"
#include "walk.h"

#include "model/config/lanelines.h"

#include <serdesip/baseprotocol.h>
#include <serdesip/protocolgendlg.h>

#include <QFile>
#include <QtTest>

#include <algorithm>
#include <random>

using namespace DialogTest;
using namespace IPCUSTOMIZED;

namespace {

/// What the dialog writes where the generation writes `lines`.
QStringList asTheDialogWrites(const QStringList& lines, const ConfigMap& config,
                              const QString& lane) {
    const QMap<QString, QString> numbers{{"1:1", "1"}, {"1:2", "2"}, {"1:4", "4"}};
    QStringList written;
    for (QString line : lines) {
        if (line.startsWith(lane + "_tx_gearbox ") || line.startsWith(lane + "_rx_gearbox ")) {
            continue;
        }
        // The number that stands beside the selected ratio, and always a line.
        if (line.startsWith(lane + "_word_align ")) {
            for (const QString side : {"TX", "RX"}) {
                const QString ratio = config.value(side + "_EXTERNAL_DATA_RATIO").toString();
                written.append(lane + '_' + side.toLower() + "_gearbox " +
                               numbers.value(ratio, "0"));
            }
        }
        // One blank before every master.
        line.replace("_ctc_mst_sel  ", "_ctc_mst_sel ");
        // No device has a rule of its own.
        if (line.startsWith(lane + "_cdr_refclk_sel")) {
            const bool automatic = config.value("RefMode").toString() == "Auto";
            line = lane + "_cdr_refclk_sel " +
                   (automatic ? QString("auto") : config.value("RXREFSOURCE").toString().toLower());
        }
        written.append(line);
    }
    return written;
}

/// A configuration of texts that the dialog may hold, some of them none.
class RandomConfig {
public:
    explicit RandomConfig(unsigned seed)
        : m_random(seed) {}

    ConfigMap make() {
        ConfigMap config;
        const auto one = [&](const char* key, const QStringList& values) {
            config.insert(key, values.at(below(values.size())));
        };
        const auto flag = [&](const char* key) { config.insert(key, below(2) == 1); };
        const auto number = [&](const char* key, int bound) { config.insert(key, below(bound)); };
        const QStringList widths{"8", "10", "16", "20", ""};
        const QStringList ratios{"1:1", "1:2", "1:4", ""};
        const QStringList codings{"OFF", "8B10B", "64B66B", "64B67B", ""};
        const QStringList masters{"Q0 Lane0", "Q0 Lane3", "Q1 Lane0", "Q1 Lane2", ""};
        const QStringList bytes{"7C", "00", "FF"};
        const QStringList depths{"0", "16", "31"};
        one("TX_RATE", {"1.25", "0.5", "0.07", "10.3125", ""});
        one("RX_RATE", {"1.25", "12.5"});
        one("TX_RATE_RATIO", {"NA", "5x", "20x", ""});
        one("PLL_SELECTION", {"QPLL0", "QPLL1", "CPLL", ""});
        one("Loopback_Mode", {"OFF", "LB_NES", ""});
        one("OPERATION_MODE", {"TX and RX", "TX Only", "RX Only", ""});
        one("RefMode", {"Auto", "Manual", ""});
        one("RXREFSOURCE", {"REFMUX0", "REFMUX3", "GPIO", ""});
        for (const char* key :
             {"INTERNAL_DATA_WIDTH", "TX_INTERNAL_DATA_WIDTH", "RX_INTERNAL_DATA_WIDTH"}) {
            one(key, widths);
        }
        one("TX_EXTERNAL_DATA_RATIO", ratios);
        one("RX_EXTERNAL_DATA_RATIO", ratios);
        one("TX_ENCODING", codings);
        one("RX_DECODING", codings);
        one("64B66BMODE", {"10GBASER with FIFO", "Async with FIFO", ""});
        one("RX_INTERLAKEN_META_FRAME_LENGTH", {"32", "16383", ""});
        for (const char* key :
             {"ENABLE_ENCODING", "ENABLE_DECODING", "WORD_ALIGNMENT", "ENBALE_WAPATTERN0",
              "ENABLE_MASK0", "TXBITPOLARITYINVERT", "RXBITPOLARITYINVERT", "PATTERN1_K_CHARACTER",
              "TX_CHANNEL_BONDING", "CTC_PATTERN1_IS_K"}) {
            flag(key);
        }
        one("WAPATTERN0", {"K28.5", "K30.7", ""});
        one("MASK0", {"1111111111", "0000011111"});
        one("RX_CHANNEL_BONDING", {"None", "One Word", "Two Words", "Four Words", ""});
        one("CLOCK_CORRECTION", {"None", "One Word", "Two Words", ""});
        one("CLOCK_CLKSOURCE", {"User", "Quad", "TX", ""});
        for (const char* key : {"RX_MASTER_CHANNEL_SELECTION", "TX_MASTER_CHANNEL_SELECTION",
                                "CLOCK_MASTERCHANNELSEL"}) {
            one(key, masters);
        }
        for (const char* key :
             {"PATTERN0", "PATTERN1", "PATTERN2", "PATTERN3", "CTC_PATTERN0", "CTC_PATTERN1"}) {
            one(key, bytes);
        }
        for (const char* key : {"PATTERN_MAX_SKEW", "RX_READ_START_DEPTH", "TX_READ_START_DEPTH",
                                "CTC_READ_START_DEPTH"}) {
            one(key, depths);
        }
        one("DIFFERENTIAL_SWING", {"900mV", "180mV"});
        one("FFEMODE", {"Auto", "Manual"});
        number("FFE_CM", 20);
        number("FFE_C1", 20);
        one("FFE_C0", {"40", "21"});
        one("SD_THRESHOLD", {"25mV", "200mV"});
        one("Equalization_Mode", {"Auto", "Manual"});
        number("ATT", 11);
        number("BOOST", 16);
        config.insert("recordlanes", below(2) == 0 ? QStringList{"Q0 Lane0"}
                                                   : QStringList{"Q0 Lane0", "Q1 Lane2"});
        return config;
    }

private:
    int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }
    std::mt19937 m_random;
};

/// The script's part of a .csr file: after the device, before what was solved.
QStringList settingsOf(const QByteArray& file) {
    QStringList lines = QString::fromUtf8(file).split('\n');
    const auto solved = std::find_if(lines.begin(), lines.end(), [](const QString& line) {
        return line.contains("_tx_loop ") || line.contains("_rx_loop ");
    });
    lines.erase(solved, lines.end());
    return lines.mid(2);
}

QString firstDifference(const QStringList& actual, const QStringList& expected) {
    for (int i = 0; i < qMax(actual.size(), expected.size()); ++i) {
        if (actual.value(i) != expected.value(i)) {
            return QString("line %1 is \"%2\", not \"%3\"")
                .arg(QString::number(i + 1), actual.value(i), expected.value(i));
        }
    }
    return {};
}

void addClasses() {
    QTest::addColumn<int>("which");
    QTest::addColumn<QString>("device");
    QTest::newRow("60k") << static_cast<int>(DeviceClass::K60) << "RZ7X-60B";
    QTest::newRow("15k") << static_cast<int>(DeviceClass::K15) << "RZ7X-15A";
    QTest::newRow("138k") << static_cast<int>(DeviceClass::K138) << "RZ7X-138";
}

} // namespace

class ProducersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void differOnlyWhereNamed_data() { addClasses(); }
    void differOnlyWhereNamed();
    void loneLaneOfQuad1();
    void acceptedScripts_data() { addClasses(); }
    void acceptedScripts();
    void linesAfterTheLanes_data();
    void linesAfterTheLanes();
};

void ProducersTest::differOnlyWhereNamed() {
    QFETCH(int, which);
    const auto device = static_cast<DeviceClass>(which);
    const struct {
        const char* prefix;
        const char* key;
        const char* quad;
    } lanesTried[] = {{"q0_ln0", "Q0_LN0", "q0"}, {"q1_ln2", "Q1_LN2", "q1"}};
    for (unsigned seed = 0; seed < 2000; ++seed) {
        const ConfigMap config = RandomConfig(seed).make();
        for (const auto& lane : lanesTried) {
            QStringList parameters;
            QStringList defines;
            QStringList generated;
            LaneLines(config, device)
                .append(parameters, defines, generated, lane.prefix, lane.key, lane.quad);
            QVERIFY(!parameters.isEmpty() && !defines.isEmpty());
            QStringList noParameters;
            QStringList noDefines;
            QStringList written;
            LaneLines(config, device, dialogWriter)
                .append(noParameters, noDefines, written, lane.prefix, lane.key, lane.quad);
            QCOMPARE(written, asTheDialogWrites(generated, config, lane.prefix));
            QVERIFY(noParameters.isEmpty() && noDefines.isEmpty());
        }
    }
}

void ProducersTest::loneLaneOfQuad1() {
    QStringList none;
    QStringList script;
    const ConfigMap config{{"CLOCK_MASTERCHANNELSEL", "Q1 Lane0"},
                           {"RefMode", "Auto"},
                           {"TX_EXTERNAL_DATA_RATIO", "1:4"},
                           {"RX_EXTERNAL_DATA_RATIO", "1:2"}};
    LaneLines(config, DeviceClass::K138, dialogWriter)
        .append(none, none, script, "q1_ln2", QString(), "q1");
    QCOMPARE(script.mid(0, 2), (QStringList{"q1_ln2_enable true", "q1_enable true"}));
    QVERIFY(!script.contains("q0_enable true"));
    QVERIFY(script.contains("q1_ln2_ctc_mst_sel q1_ln0"));
    QVERIFY(script.contains("q1_ln2_tx_gearbox 4"));
    QVERIFY(script.contains("q1_ln2_rx_gearbox 2"));
    QCOMPARE(script.last(), QString("q1_ln2_cdr_refclk_sel auto"));
}

/// What Calculate hands to the host is what the generation of the accepted configuration writes.
/// (In another order where lanes are bonded and corrected, which these walks do not come to.)
void ProducersTest::acceptedScripts() {
    QFETCH(QString, device);
    int accepted = 0;
    for (unsigned seed = 1; seed <= 12; ++seed) {
        Bench bench(device);
        const ConfigMap config = bench.create([&](Dialog& dialog) {
            Walk walk(dialog, seed);
            QVERIFY(dialog.check("q0_l0", true));
            for (int i = 0; i < 15; ++i) {
                walk.step();
            }
            dialog.pressOk();
        });
        if (config.isEmpty()) {
            continue;
        }
        ++accepted;
        QFile file(bench.folder() + "/transceiver/link0/temp/CUSTOMIZED/customized.csr");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList resolved = settingsOf(file.readAll());
        QStringList script;
        QStringList options;
        QString text;
        QVERIFY(bench.model()->generate(config, script, QString(), options, text, false));
        for (const QString& caption : config.value("recordlanes").toStringList()) {
            const QString lane = caption.left(2).toLower() + "_ln" + caption.right(1);
            script = asTheDialogWrites(script, config, lane);
        }
        script.removeDuplicates(); // a setting stands once in the file, at its first place
        QVERIFY2(
            resolved == script,
            qPrintable(QString("seed %1: %2").arg(seed).arg(firstDifference(resolved, script))));
    }
    QVERIFY2(accepted >= 3, qPrintable(QString("%1 accepted").arg(accepted)));
}

void ProducersTest::linesAfterTheLanes_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QStringList>("lanes");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("lines");
    const QStringList quad0{"q0_rx_quad_clk_sel internal",
                            "q0_rx_quad_clk_internal_sel ln1_pma_rx_clk"};
    for (const char* device : {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"}) {
        QTest::addRow("%s, bias for both", device)
            << device << QStringList{"q0_l1", "q0_l3"} << "Yes"
            << quad0 + QStringList{"q0_refclk0_freq 125", "q0_rx_eq_bias 11"};
        QTest::addRow("%s, bias left alone", device)
            << device << QStringList{"q0_l1", "q0_l3"} << "No"
            << quad0 + QStringList("q0_refclk0_freq 125");
    }
    QTest::newRow("quad 1") << "RZ7X-138" << QStringList{"q1_l2", "q1_l3"} << "Yes"
                            << QStringList{"q1_rx_quad_clk_sel internal",
                                           "q1_rx_quad_clk_internal_sel ln2_pma_rx_clk",
                                           "q0_refclk0_freq 125", "q1_rx_eq_bias 11"};
    QTest::newRow("both quads") << "RZ7X-138" << QStringList{"q0_l3", "q1_l0"} << "Yes"
                                << QStringList{"q0_rx_quad_clk_sel common",
                                               "q1_rx_quad_clk_sel common",
                                               "common_clk_src_sel q0",
                                               "common_clk_from_q0_sel ln3_pma_rx_clk",
                                               "q0_refclk0_freq 125",
                                               "q0_rx_eq_bias 11",
                                               "q1_rx_eq_bias 11"};
}

/// Two bonded lanes with clock correction, without and with the quad's common bias.
void ProducersTest::linesAfterTheLanes() {
    QFETCH(QString, device);
    QFETCH(QStringList, lanes);
    QFETCH(QString, answer);
    QFETCH(QStringList, lines);
    Bench bench(device);
    bench.answer(answer);
    const ConfigMap config = bench.create([&](Dialog& dialog) {
        for (const QString& lane : qAsConst(lanes)) {
            QVERIFY(dialog.check(lane, true));
        }
        if (device == "RZ7X-138") {
            QVERIFY(dialog.check("checkBoxDecoding", true));
        } else {
            QVERIFY(dialog.choose("comboBoxRxDecoding", "8B10B"));
        }
        QVERIFY(dialog.choose("comboBoxRXChannelBoding", "One Word"));
        QVERIFY(dialog.choose("comboBoxClockCorrection", "One Word"));
        QVERIFY(dialog.setNumber("biasSpinBox", 11));
        dialog.pressOk();
    });
    QVERIFY2(!config.isEmpty(), qPrintable(bench.takeMessages().join(" | ")));
    QFile file(bench.folder() + "/transceiver/link0/temp/CUSTOMIZED/customized.csr");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList settings = settingsOf(file.readAll());
    const auto lastOfALane =
        std::find_if(settings.rbegin(), settings.rend(),
                     [](const QString& line) { return line.contains("_cdr_refclk_sel "); });
    settings.erase(settings.begin(), lastOfALane.base());
    QCOMPARE(settings, lines);
}

QTEST_MAIN(ProducersTest)
#include "producers_test.moc"
