// The lines of one lane: for every option each value, an unknown one and none at all.
#include "harness.h"
#include "linerows.h"

#include <QTest>

namespace {

const QString k60 = QStringLiteral("60k_one_lane");
const QString k15 = QStringLiteral("15k_one_lane");
const QString k138 = QStringLiteral("138k_one_lane");
const QStringList kBases{k60, k15, k138};
const QVariant kAbsent;

} // namespace

class LaneLinesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void header_data();
    void header() { check(); }
    void rates_data();
    void rates() { check(); }
    void referenceClockSource_data();
    void referenceClockSource() { check(); }
    void pll_data();
    void pll() { check(); }
    void loopback_data();
    void loopback() { check(); }
    void listedWidths_data();
    void listedWidths() { check(); }
    void listedCoding_data();
    void listedCoding() { check(); }
    void otherWidthAndCoding_data();
    void otherWidthAndCoding() { check(); }
    void gearbox_data();
    void gearbox() { check(); }
    void wordAlignment_data();
    void wordAlignment() { check(); }
    void polarity_data();
    void polarity() { check(); }
    void rxBonding_data();
    void rxBonding() { check(); }
    void rxBondingPatterns_data();
    void rxBondingPatterns() { check(); }
    void rxBondingClock_data();
    void rxBondingClock() { check(); }
    void txBonding_data();
    void txBonding() { check(); }
    void clockCorrection_data();
    void clockCorrection() { check(); }
    void analog_data();
    void analog() { check(); }
    void cdrReference_data();
    void cdrReference() { check(); }
    void everyListedDevice_data();
    void everyListedDevice() { check(); }
    void longTexts_data();
    void longTexts() { check(); }

private:
    void check();

    Harness m_host;
};

void LaneLinesTest::initTestCase() {
    QVERIFY2(m_host.error().isEmpty(), qPrintable(m_host.error()));
}

void LaneLinesTest::check() {
    QFETCH(LineRow, row);
    const QString problem = rowProblem(m_host, row);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

// The tables: one row a line.
// clang-format off

void LaneLinesTest::header_data()
{
    QTest::addColumn<LineRow>("row");
    addRow("the configuration as it stands, 60k", k60, {}, {});
    addRow("the configuration as it stands, 15k", k15, {}, {});
    addRow("the configuration as it stands, 138k", k138, {}, {});
}

void LaneLinesTest::rates_data()
{
    QTest::addColumn<LineRow>("row");
    const QString sRate = "q0_ln0_tx_rate 1.25";
    const QString sMode = "q0_ln0_tx_ovs_mode off";
    const QString sRatio = "q0_ln0_tx_ovs_ratio na";
    const QString pRate = "parameter q0_ln0_tx_rate = 1.25;";

    for (const QString& base : kBases) {
        addRow(base + ": 0.625 by 4x", base, {{"TX_RATE", "0.625"}, {"TX_RATE_RATIO", "4x"}},
               {{sRate, {"q0_ln0_tx_rate 2.5"}},
                {sMode, {"q0_ln0_tx_ovs_mode buildin"}},
                {sRatio, {"q0_ln0_tx_ovs_ratio 4x"}},
                {pRate, {"parameter q0_ln0_tx_rate = 0.625;"}}});
    }
    addRow("exactly 1 is not oversampled", k60, {{"TX_RATE", "1"}, {"TX_RATE_RATIO", "4x"}},
           {{sRate, {"q0_ln0_tx_rate 1"}}, {pRate, {"parameter q0_ln0_tx_rate = 1;"}}});
    addRow("exactly 1.000, text kept", k60, {{"TX_RATE", "1.000"}, {"TX_RATE_RATIO", "4x"}},
           {{sRate, {"q0_ln0_tx_rate 1.000"}}, {pRate, {"parameter q0_ln0_tx_rate = 1.000;"}}});
    addRow("just below 1", k60, {{"TX_RATE", "0.999999"}, {"TX_RATE_RATIO", "5x"}},
           {{sRate, {"q0_ln0_tx_rate 4.999995"}},
            {sMode, {"q0_ln0_tx_ovs_mode buildin"}},
            {sRatio, {"q0_ln0_tx_ovs_ratio 5x"}},
            {pRate, {"parameter q0_ln0_tx_rate = 0.999999;"}}});
    addRow("no binary noise", k60, {{"TX_RATE", "0.07"}, {"TX_RATE_RATIO", "20x"}},
           {{sRate, {"q0_ln0_tx_rate 1.4"}},
            {sMode, {"q0_ln0_tx_ovs_mode buildin"}},
            {sRatio, {"q0_ln0_tx_ovs_ratio 20x"}},
            {pRate, {"parameter q0_ln0_tx_rate = 0.07;"}}});
    addRow("more than six digits", k60, {{"TX_RATE", "0.6444531"}, {"TX_RATE_RATIO", "8x"}},
           {{sRate, {"q0_ln0_tx_rate 5.1556248"}},
            {sMode, {"q0_ln0_tx_ovs_mode buildin"}},
            {sRatio, {"q0_ln0_tx_ovs_ratio 8x"}},
            {pRate, {"parameter q0_ln0_tx_rate = 0.6444531;"}}});
    addRow("below 1 with a ratio that is no number", k60, {{"TX_RATE", "0.5"}},
           {{sRate, {"q0_ln0_tx_rate 0"}},
            {sMode, {"q0_ln0_tx_ovs_mode buildin"}},
            {sRatio, {"q0_ln0_tx_ovs_ratio NA"}},
            {pRate, {"parameter q0_ln0_tx_rate = 0.5;"}}});
    addRow("every x of the ratio goes", k60, {{"TX_RATE", "0.5"}, {"TX_RATE_RATIO", "x1x0x"}},
           {{sRate, {"q0_ln0_tx_rate 5"}},
            {sMode, {"q0_ln0_tx_ovs_mode buildin"}},
            {sRatio, {"q0_ln0_tx_ovs_ratio x1x0x"}},
            {pRate, {"parameter q0_ln0_tx_rate = 0.5;"}}});
    addRow("blanks around rate and ratio", k60, {{"TX_RATE", " 0.5 "}, {"TX_RATE_RATIO", " 4x "}},
           {{sRate, {"q0_ln0_tx_rate 2"}},
            {sMode, {"q0_ln0_tx_ovs_mode buildin"}},
            {sRatio, {"q0_ln0_tx_ovs_ratio  4x "}},
            {pRate, {"parameter q0_ln0_tx_rate =  0.5 ;"}}});
    addRow("a decimal comma is no number", k60, {{"TX_RATE", "3,125"}},
           {{sRate, {"q0_ln0_tx_rate 0"}},
            {sMode, {"q0_ln0_tx_ovs_mode buildin"}},
            {sRatio, {"q0_ln0_tx_ovs_ratio NA"}},
            {pRate, {"parameter q0_ln0_tx_rate = 3,125;"}}});
    addRow("no TX rate", k60, {{"TX_RATE", kAbsent}},
           {{sRate, {"q0_ln0_tx_rate 0"}},
            {sMode, {"q0_ln0_tx_ovs_mode buildin"}},
            {sRatio, {"q0_ln0_tx_ovs_ratio NA"}},
            {pRate, {"parameter q0_ln0_tx_rate = ;"}}});
    addRow("no TX rate, no ratio", k60, {{"TX_RATE", kAbsent}, {"TX_RATE_RATIO", kAbsent}},
           {{sRate, {"q0_ln0_tx_rate 0"}},
            {sMode, {"q0_ln0_tx_ovs_mode buildin"}},
            {sRatio, {"q0_ln0_tx_ovs_ratio "}},
            {pRate, {"parameter q0_ln0_tx_rate = ;"}}});
    addRow("a ratio at full rate is not looked at", k138, {{"TX_RATE", "5.0"}, {"TX_RATE_RATIO", "8x"}},
           {{sRate, {"q0_ln0_tx_rate 5.0"}}, {pRate, {"parameter q0_ln0_tx_rate = 5.0;"}}});
    addRow("RX rate, no oversampling", k138, {{"RX_RATE", "0.3125"}, {"TX_RATE_RATIO", "4x"}},
           {{"q0_ln0_rx_rate 2.5", {"q0_ln0_rx_rate 0.3125"}},
            {"parameter q0_ln0_rx_rate = 2.5;", {"parameter q0_ln0_rx_rate = 0.3125;"}}});
    addRow("no RX rate", k60, {{"RX_RATE", kAbsent}},
           {{"q0_ln0_rx_rate 2.5", {"q0_ln0_rx_rate "}},
            {"parameter q0_ln0_rx_rate = 2.5;", {"parameter q0_ln0_rx_rate = ;"}}});
}

void LaneLinesTest::referenceClockSource_data()
{
    QTest::addColumn<LineRow>("row");
    struct Source {
        const char* name;
        int number;
        const char* script; ///< its frequency line without the number
    };
    const QList<Source> sources{
        {"Q0 REFCLK0", 0, "q0_refclk0_freq"}, {"Q0 REFCLK1", 1, "q0_refclk1_freq"},
        {"Q1 REFCLK0", 2, "q1_refclk0_freq"}, {"Q1 REFCLK1", 3, "q1_refclk1_freq"},
        {"Q0 REFCLK2", 2, "q0_refclk2_freq"}, {"Q0 REFCLK3", 3, "q0_refclk3_freq"},
        {"Q0 REFIN0", 4, "q0_gpio0_freq"},    {"Q0 REFIN1", 5, "q0_gpio1_freq"},
        {"Q0 REFIN2", 6, "q0_gpio2_freq"},    {"Q0 REFIN3", 7, "q0_gpio3_freq"},
        {"Q0 REFIN", 2, "q0_gpio_freq"},      {"MCLK", 3, "mclk_freq"},
    };
    for (const Source& source : sources) {
        for (const QString& base : kBases) {
            const QString script = QString::fromLatin1(source.script);
            addRow(base + QLatin1String(": ") + source.name, base,
                   {{"REFERENCE_CLOCK_SOURCE", source.name}, {"REFERENCE_CLOCK_FREQ", "148.500"}},
                   {{"parameter q0_ln0_refclk_source = 0;",
                     {"parameter q0_ln0_refclk_source = " + QString::number(source.number) + ";"}},
                    {"q0_refclk0_freq 125", {script + " 148.5"}},
                    {"parameter q0_refclk0_freq = 125;", {"parameter " + script + " = 148.500;"}}});
        }
    }
    for (const char* unknown : {"", "Q0 REFIN4", "q0 refclk0", "Q0_REFCLK0", "GPIO", " MCLK", "Q1 REFIN"}) {
        addRow(QStringLiteral("no source: \"%1\"").arg(unknown), k60, {{"REFERENCE_CLOCK_SOURCE", unknown}},
               {{"parameter q0_ln0_refclk_source = 0;", {}},
                {"q0_refclk0_freq 125", {}},
                {"parameter q0_refclk0_freq = 125;", {}}});
    }
    addRow("absent", k138, {{"REFERENCE_CLOCK_SOURCE", kAbsent}},
           {{"parameter q0_ln0_refclk_source = 0;", {}},
            {"q0_refclk0_freq 125", {}},
            {"parameter q0_refclk0_freq = 125;", {}}});
}

void LaneLinesTest::pll_data()
{
    QTest::addColumn<LineRow>("row");
    const QString s = "q0_ln0_pll_sel qpll0";
    const QString p = "parameter q0_ln0_pll_sel = 0;";
    addRow("QPLL0", k60, {{"PLL_SELECTION", "QPLL0"}}, {});
    addRow("QPLL1", k60, {{"PLL_SELECTION", "QPLL1"}},
           {{s, {"q0_ln0_pll_sel qpll1"}}, {p, {"parameter q0_ln0_pll_sel = 1;"}}});
    addRow("CPLL", k138, {{"PLL_SELECTION", "CPLL"}},
           {{s, {"q0_ln0_pll_sel cpll"}}, {p, {"parameter q0_ln0_pll_sel = 2;"}}});
    addRow("unknown", k15, {{"PLL_SELECTION", "QPLL2"}}, {{s, {"q0_ln0_pll_sel qpll2"}}, {p, {}}});
    addRow("of another case", k15, {{"PLL_SELECTION", "qpll1"}},
           {{s, {"q0_ln0_pll_sel qpll1"}}, {p, {}}});
    addRow("empty", k60, {{"PLL_SELECTION", ""}}, {{s, {"q0_ln0_pll_sel "}}, {p, {}}});
    addRow("absent", k60, {{"PLL_SELECTION", kAbsent}}, {{s, {"q0_ln0_pll_sel "}}, {p, {}}});
}

void LaneLinesTest::loopback_data()
{
    QTest::addColumn<LineRow>("row");
    const QString s = "q0_ln0_loopback_mode off";
    const QString p = "parameter q0_ln0_loopback_mode = \"off\";";
    for (const QString& base : kBases) {
        addRow(base + ": LB_NES", base, {{"Loopback_Mode", "LB_NES"}},
               {{s, {"q0_ln0_loopback_mode lb_nes"}},
                {p, {"parameter q0_ln0_loopback_mode = \"lb_nes\";"}}});
        addRow(base + ": LB_FES", base, {{"Loopback_Mode", "LB_FES"}},
               {{s, {"q0_ln0_loopback_mode lb_fes"}},
                {p, {"parameter q0_ln0_loopback_mode = \"lb_fes\";"}}});
        addRow(base + ": LB_ENC", base, {{"Loopback_Mode", "LB_ENC"}},
               {{s, {"q0_ln0_loopback_mode lb_enc"}},
                {p, {"parameter q0_ln0_loopback_mode = \"lb_enc\";"}}});
        addRow(base + ": unknown", base, {{"Loopback_Mode", "Near END"}},
               {{s, {"q0_ln0_loopback_mode near end"}},
                {p, {"parameter q0_ln0_loopback_mode = \"near end\";"}}});
        addRow(base + ": absent", base, {{"Loopback_Mode", kAbsent}},
               {{s, {"q0_ln0_loopback_mode "}}, {p, {"parameter q0_ln0_loopback_mode = \"\";"}}});
        addRow(base + ": mode absent", base, {{"OPERATION_MODE", kAbsent}}, {});
    }
    for (const QString& base : {k60, k15}) {
        addRow(base + ": TX Only", base, {{"OPERATION_MODE", "TX Only"}, {"Loopback_Mode", "LB_ENC"}},
               {{s, {"q0_ln0_loopback_mode tx_only"}},
                {p, {"parameter q0_ln0_loopback_mode = \"lb_enc\";"}}});
        // Receive only reads its clock from the PLL's source, and there is none here.
        addRow(base + ": RX Only", base, {{"OPERATION_MODE", "RX Only"}},
               {{s, {"q0_ln0_loopback_mode rx_only"}},
                {"q0_refclk0_freq 125", {}},
                {"parameter q0_refclk0_freq = 125;", {}}});
        addRow(base + ": unknown mode", base, {{"OPERATION_MODE", "tx only"}}, {{s, {}}});
        addRow(base + ": empty mode", base, {{"OPERATION_MODE", ""}}, {{s, {}}});
    }
    for (const char* mode : {"TX Only", "RX Only", "tx only", ""}) {
        addRow(QStringLiteral("138k: mode \"%1\" does not matter").arg(mode), k138,
               {{"OPERATION_MODE", mode}}, {});
    }
}

void LaneLinesTest::listedWidths_data()
{
    QTest::addColumn<LineRow>("row");
    const auto rowFor = [](const QString& base, const QString& name, const QVariant& tx, const QString& txNumber,
                           const QVariant& rx, const QString& rxNumber) {
        addRow(base + QLatin1String(": ") + name, base, {{"TX_INTERNAL_DATA_WIDTH", tx}, {"RX_INTERNAL_DATA_WIDTH", rx}},
               {{"q0_ln0_pma_tx_width_mode 10", {"q0_ln0_pma_tx_width_mode " + txNumber}},
                {"q0_ln0_pma_rx_width_mode 20", {"q0_ln0_pma_rx_width_mode " + rxNumber}},
                {"parameter q0_ln0_pma_tx_width = 10;", {"parameter q0_ln0_pma_tx_width = " + txNumber + ";"}},
                {"`define Q0_LN0_TX_PMA_WIDTH 10", {"`define Q0_LN0_TX_PMA_WIDTH " + txNumber}},
                {"parameter q0_ln0_pma_rx_width = 20;", {"parameter q0_ln0_pma_rx_width = " + rxNumber + ";"}},
                {"`define Q0_LN0_RX_PMA_WIDTH 20", {"`define Q0_LN0_RX_PMA_WIDTH " + rxNumber}}});
    };
    for (const QString& base : {k60, k15}) {
        rowFor(base, "8 and 16", "8", "8", "16", "16");
        rowFor(base, "16 and 8", "16", "16", "8", "8");
        rowFor(base, "20 and 10", "20", "20", "10", "10");
        rowFor(base, "leading zero, blanks", "010", "10", " 16 ", "16");
        rowFor(base, "not decimal", "0x10", "0", "16.5", "0");
        rowFor(base, "letters, empty", "wide", "0", "", "0");
        rowFor(base, "absent", kAbsent, "0", kAbsent, "0");
        rowFor(base, "numbers", 16, "16", 8.0, "8");
    }
    addRow("60k: the common width is not read", k60, {{"INTERNAL_DATA_WIDTH", "20"}}, {});
}

void LaneLinesTest::listedCoding_data()
{
    QTest::addColumn<LineRow>("row");
    const QString sTx = "q0_ln0_tx_encode off";
    const QString sRx = "q0_ln0_rx_decode off";
    const QString s66 = "q0_ln0_rx_64b66b_decode_10gbaser disable";
    const QString pWidth = "parameter q0_ln0_pma_rx_width = 20;";
    const QString dWidth = "`define Q0_LN0_RX_PMA_WIDTH 20";
    const QString oTx = "-Link0TX_Encoding_Mode OFF";
    const QString oRx = "-Link0RX_Decoding_Mode OFF";

    for (const QString& base : {k60, k15}) {
        addRow(base + ": encode 8B10B", base, {{"TX_ENCODING", "8B10B"}},
               {{sTx, {"q0_ln0_tx_encode 8b10b"}},
                {dWidth, {dWidth, "`define Q0_LN0_8B10B_ENCODE"}},
                {oTx, {"-Link0TX_Encoding_Mode 8B10B"}}});
        addRow(base + ": encode 64B66B", base, {{"TX_ENCODING", "64B66B"}},
               {{sTx, {"q0_ln0_tx_encode 64b66b"}},
                {dWidth, {dWidth, "`define Q0_LN0_64B66B_ENCODE"}},
                {oTx, {"-Link0TX_Encoding_Mode 64B66B"}}});
        addRow(base + ": encode 64B67B", base, {{"TX_ENCODING", "64B67B"}},
               {{sTx, {"q0_ln0_tx_encode 64b67b"}},
                {dWidth, {dWidth, "`define Q0_LN0_64B67B_ENCODE"}},
                {oTx, {"-Link0TX_Encoding_Mode 64B67B"}}});
        addRow(base + ": encode unknown", base, {{"TX_ENCODING", "off"}},
               {{sTx, {"q0_ln0_tx_encode off"}},
                {dWidth, {dWidth, "`define Q0_LN0_OFF_ENCODE"}},
                {oTx, {"-Link0TX_Encoding_Mode off"}}});
        addRow(base + ": encode empty", base, {{"TX_ENCODING", ""}},
               {{sTx, {"q0_ln0_tx_encode "}},
                {dWidth, {dWidth, "`define Q0_LN0__ENCODE"}},
                {oTx, {"-Link0TX_Encoding_Mode "}}});
        addRow(base + ": encode absent is not off", base, {{"TX_ENCODING", kAbsent}},
               {{sTx, {"q0_ln0_tx_encode "}},
                {dWidth, {dWidth, "`define Q0_LN0__ENCODE"}},
                {oTx, {"-Link0TX_Encoding_Mode "}}});
        addRow(base + ": decode 8B10B", base, {{"RX_DECODING", "8B10B"}},
               {{sRx, {"q0_ln0_rx_decode 8b10b"}},
                {dWidth, {dWidth, "`define Q0_LN0_8B10B_DECODE"}},
                {oRx, {"-Link0RX_Decoding_Mode 8B10B"}}});
        addRow(base + ": decode 8B10B, other mode", base, {{"RX_DECODING", "8B10B"}, {"64B66BMODE", "Async with FIFO"}},
               {{sRx, {"q0_ln0_rx_decode 8b10b"}},
                {dWidth, {dWidth, "`define Q0_LN0_8B10B_DECODE"}},
                {oRx, {"-Link0RX_Decoding_Mode 8B10B"}}});
        addRow(base + ": decode absent is not off", base, {{"RX_DECODING", kAbsent}},
               {{sRx, {"q0_ln0_rx_decode "}},
                {dWidth, {dWidth, "`define Q0_LN0__DECODE"}},
                {oRx, {"-Link0RX_Decoding_Mode "}}});
        addRow(base + ": decode 64B66B, 10GBASER", base, {{"RX_DECODING", "64B66B"}, {"64B66BMODE", "10GBASER with FIFO"}},
               {{sRx, {"q0_ln0_rx_decode 64b66b"}},
                {s66, {"q0_ln0_rx_64b66b_decode_10gbaser enable"}},
                {pWidth, {pWidth, "parameter q0_ln0_64b66b_mode = \"tengbaser_with_fifo\";"}},
                {dWidth, {dWidth, "`define Q0_LN0_64B66B_DECODE", "`define Q0_LN0_64B66B_TENGBASER_WITH_FIFO"}},
                {oRx, {"-Link0RX_Decoding_Mode 64B66B"}}});
        addRow(base + ": decode 64B66B, async", base, {{"RX_DECODING", "64B66B"}, {"64B66BMODE", "Async with FIFO"}},
               {{sRx, {"q0_ln0_rx_decode 64b66b"}},
                {pWidth, {pWidth, "parameter q0_ln0_64b66b_mode = \"async_with_fifo\";"}},
                {dWidth, {dWidth, "`define Q0_LN0_64B66B_DECODE", "`define Q0_LN0_64B66B_ASYNC_WITH_FIFO"}},
                {oRx, {"-Link0RX_Decoding_Mode 64B66B"}}});
        for (const QVariant& mode : {QVariant("async with fifo"), QVariant(""), kAbsent}) {
            addRow(base + QStringLiteral(": decode 64B66B, mode \"%1\"%2").arg(mode.toString(), mode.isValid() ? "" : " absent"),
                   base, {{"RX_DECODING", "64B66B"}, {"64B66BMODE", mode}},
                   {{sRx, {"q0_ln0_rx_decode 64b66b"}},
                    {dWidth, {dWidth, "`define Q0_LN0_64B66B_DECODE"}},
                    {oRx, {"-Link0RX_Decoding_Mode 64B66B"}}});
        }
        addRow(base + ": decode 64B67B", base, {{"RX_DECODING", "64B67B"}, {"RX_INTERLAKEN_META_FRAME_LENGTH", "00064"}},
               {{sRx, {"q0_ln0_rx_decode 64b67b", "q0_ln0_rx_64b67b_decode_ilk_metaframe_len 64"}},
                {dWidth, {dWidth, "`define Q0_LN0_64B67B_DECODE"}},
                {oRx, {"-Link0RX_Decoding_Mode 64B67B"}}});
        addRow(base + ": decode 64B67B, no length", base,
               {{"RX_DECODING", "64B67B"}, {"RX_INTERLAKEN_META_FRAME_LENGTH", kAbsent}},
               {{sRx, {"q0_ln0_rx_decode 64b67b", "q0_ln0_rx_64b67b_decode_ilk_metaframe_len 0"}},
                {dWidth, {dWidth, "`define Q0_LN0_64B67B_DECODE"}},
                {oRx, {"-Link0RX_Decoding_Mode 64B67B"}}});
    }
    addRow("the length of another decoding is not written", k60, {{"RX_INTERLAKEN_META_FRAME_LENGTH", "2048"}}, {});
    addRow("60k: the plain switches are not read", k60, {{"ENABLE_ENCODING", true}, {"ENABLE_DECODING", true}}, {});
}

void LaneLinesTest::otherWidthAndCoding_data()
{
    QTest::addColumn<LineRow>("row");
    const QString sWidth = "q0_ln0_pma_width_mode 8";
    const QString pWidth = "parameter q0_ln0_pma_width = 8;";
    const QString dWidth = "`define Q0_LN0_PMA_WIDTH 8";
    const auto width = [&](const QString& name, const QVariant& value, const QString& number) {
        addRow(name, k138, {{"INTERNAL_DATA_WIDTH", value}},
               {{sWidth, {"q0_ln0_pma_width_mode " + number}},
                {pWidth, {"parameter q0_ln0_pma_width = " + number + ";"}},
                {dWidth, {"`define Q0_LN0_PMA_WIDTH " + number}}});
    };
    width("width 10", "10", "10");
    width("width 16", "16", "16");
    width("width 20", "20", "20");
    width("width that is no number", "1O", "0");
    width("width empty", "", "0");
    width("width absent", kAbsent, "0");
    addRow("separate widths are not read", k138, {{"TX_INTERNAL_DATA_WIDTH", "20"}, {"RX_INTERNAL_DATA_WIDTH", "8"}}, {});

    addRow("encode", k138, {{"ENABLE_ENCODING", true}},
           {{"q0_ln0_8b10b_encode disable", {"q0_ln0_8b10b_encode enable"}},
            {dWidth, {dWidth, "`define Q0_LN0_8B10B_ENCODE"}},
            {"parameter q0_ln0_8b10b_encode = 0;", {"parameter q0_ln0_8b10b_encode = 1;"}}});
    addRow("decode", k138, {{"ENABLE_DECODING", true}},
           {{"q0_ln0_8b10b_decode disable", {"q0_ln0_8b10b_decode enable"}},
            {dWidth, {dWidth, "`define Q0_LN0_8B10B_DECODE"}},
            {"parameter q0_ln0_8b10b_decode = 0;", {"parameter q0_ln0_8b10b_decode = 1;"}}});
    addRow("both", k138, {{"ENABLE_ENCODING", "true"}, {"ENABLE_DECODING", 1}},
           {{"q0_ln0_8b10b_encode disable", {"q0_ln0_8b10b_encode enable"}},
            {"q0_ln0_8b10b_decode disable", {"q0_ln0_8b10b_decode enable"}},
            {dWidth, {dWidth, "`define Q0_LN0_8B10B_ENCODE", "`define Q0_LN0_8B10B_DECODE"}},
            {"parameter q0_ln0_8b10b_encode = 0;", {"parameter q0_ln0_8b10b_encode = 1;"}},
            {"parameter q0_ln0_8b10b_decode = 0;", {"parameter q0_ln0_8b10b_decode = 1;"}}});
    addRow("neither, absent", k138, {{"ENABLE_ENCODING", kAbsent}, {"ENABLE_DECODING", kAbsent}}, {});
    addRow("the codings by name are not read", k138,
           {{"TX_ENCODING", "64B66B"}, {"RX_DECODING", "64B67B"}, {"RX_INTERLAKEN_META_FRAME_LENGTH", "5"}}, {});
    addRow("the codings by name are not read, absent", k138, {{"TX_ENCODING", kAbsent}, {"RX_DECODING", kAbsent}}, {});
}

void LaneLinesTest::gearbox_data()
{
    QTest::addColumn<LineRow>("row");
    const auto tx = [](const QString& base, const QVariant& value, const QStringList& script, const QString& number) {
        addRow(base + QStringLiteral(": TX \"%1\"%2").arg(value.toString(), value.isValid() ? "" : " absent"), base, {{"TX_EXTERNAL_DATA_RATIO", value}},
               {{"q0_ln0_tx_gearbox 1", script},
                {"parameter q0_ln0_tx_gearbox = 1;", {"parameter q0_ln0_tx_gearbox = " + number + ";"}},
                {"`define Q0_LN0_TX_GEARBOX 1", {"`define Q0_LN0_TX_GEARBOX " + number}}});
    };
    const auto rx = [](const QString& base, const QVariant& value, const QStringList& script, const QString& number) {
        addRow(base + QStringLiteral(": RX \"%1\"%2").arg(value.toString(), value.isValid() ? "" : " absent"), base, {{"RX_EXTERNAL_DATA_RATIO", value}},
               {{"q0_ln0_rx_gearbox 2", script},
                {"parameter q0_ln0_rx_gearbox = 2;", {"parameter q0_ln0_rx_gearbox = " + number + ";"}},
                {"`define Q0_LN0_RX_GEARBOX 2", {"`define Q0_LN0_RX_GEARBOX " + number}}});
    };
    for (const QString& base : kBases) {
        tx(base, "1:1", {"q0_ln0_tx_gearbox 1"}, "1");
        tx(base, "1:2", {"q0_ln0_tx_gearbox 2"}, "2");
        tx(base, "1:4", {"q0_ln0_tx_gearbox 4"}, "4");
        rx(base, "1:1", {"q0_ln0_rx_gearbox 1"}, "1");
        rx(base, "1:2", {"q0_ln0_rx_gearbox 2"}, "2");
        rx(base, "1:4", {"q0_ln0_rx_gearbox 4"}, "4");
        for (const QVariant& none : {QVariant("1:3"), QVariant("1 :1"), QVariant("4"), QVariant(""), kAbsent}) {
            tx(base, none, {}, "0");
            rx(base, none, {}, "0");
        }
    }
}

void LaneLinesTest::wordAlignment_data()
{
    QTest::addColumn<LineRow>("row");
    const QString s = "q0_ln0_word_align disable";
    const QString sPattern = "q0_ln0_word_align_pattern k28.5";
    const QString sMask = "q0_ln0_word_align_pattern_mask 1111111111";
    const QString p = "parameter q0_ln0_word_align = 0;";
    const QString dGearbox = "`define Q0_LN0_RX_GEARBOX 2";
    const QString o = "-Link0Word_Alignment false";
    for (const QString& base : kBases) {
        addRow(base + ": on", base, {{"WORD_ALIGNMENT", true}, {"WAPATTERN0", "K28.1"}, {"MASK0", "0000000000"}},
               {{s, {"q0_ln0_word_align enable"}},
                {p, {"parameter q0_ln0_word_align = 1;"}},
                {dGearbox, {dGearbox, "`define Q0_LN0_WORD_ALIGN"}},
                {o, {"-Link0Word_Alignment true"}}});
        addRow(base + ": on, pattern and mask", base,
               {{"WORD_ALIGNMENT", true}, {"ENBALE_WAPATTERN0", true}, {"WAPATTERN0", "K28.1"}, {"ENABLE_MASK0", true}, {"MASK0", "0101010101"}},
               {{s, {"q0_ln0_word_align enable"}},
                {sPattern, {"q0_ln0_word_align_pattern k28.1"}},
                {sMask, {"q0_ln0_word_align_pattern_mask 0101010101"}},
                {p, {"parameter q0_ln0_word_align = 1;", "parameter q0_ln0_word_align_pattern = \"k28.1\";",
                     "parameter q0_ln0_word_align_pattern_mask = 10'b0101010101;"}},
                {dGearbox, {dGearbox, "`define Q0_LN0_WORD_ALIGN"}},
                {o, {"-Link0Word_Alignment true"}}});
        addRow(base + ": off, pattern enabled all the same", base, {{"ENBALE_WAPATTERN0", true}, {"WAPATTERN0", "K30.7"}},
               {{sPattern, {"q0_ln0_word_align_pattern k30.7"}},
                {p, {p, "parameter q0_ln0_word_align_pattern = \"k30.7\";"}}});
        addRow(base + ": off, mask enabled all the same", base, {{"ENABLE_MASK0", true}, {"MASK0", "0000011111"}},
               {{sMask, {"q0_ln0_word_align_pattern_mask 0000011111"}},
                {p, {p, "parameter q0_ln0_word_align_pattern_mask = 10'b0000011111;"}}});
        addRow(base + ": absent switches", base,
               {{"WORD_ALIGNMENT", kAbsent}, {"ENBALE_WAPATTERN0", kAbsent}, {"ENABLE_MASK0", kAbsent}, {"WAPATTERN0", "K28.1"}, {"MASK0", "1"}}, {});
        addRow(base + ": enabled, values absent", base, {{"ENBALE_WAPATTERN0", true}, {"WAPATTERN0", kAbsent}, {"ENABLE_MASK0", true}, {"MASK0", kAbsent}},
               {{sPattern, {"q0_ln0_word_align_pattern "}},
                {sMask, {"q0_ln0_word_align_pattern_mask "}},
                {p, {p, "parameter q0_ln0_word_align_pattern = \"\";", "parameter q0_ln0_word_align_pattern_mask = 10'b;"}}});
    }
    addRow("the rightly spelled key is another key", k60, {{"ENABLE_WAPATTERN0", true}, {"ENBALE_MASK0", true}, {"WAPATTERN0", "K28.1"}}, {});
}

void LaneLinesTest::polarity_data()
{
    QTest::addColumn<LineRow>("row");
    const Edits tx{{"q0_ln0_tx_pol_invert disable", {"q0_ln0_tx_pol_invert enable"}}, {"q0_ln0_tx_data_mpl disable", {"q0_ln0_tx_data_mpl enable"}}};
    const Edits rx{{"q0_ln0_rx_pol_invert disable", {"q0_ln0_rx_pol_invert enable"}}, {"q0_ln0_rx_data_mpl disable", {"q0_ln0_rx_data_mpl enable"}}};
    for (const QString& base : kBases) {
        addRow(base + ": transmit", base, {{"TXBITPOLARITYINVERT", true}}, tx);
        addRow(base + ": receive", base, {{"RXBITPOLARITYINVERT", true}}, rx);
        addRow(base + ": both", base, {{"TXBITPOLARITYINVERT", true}, {"RXBITPOLARITYINVERT", true}}, tx + rx);
        addRow(base + ": absent", base, {{"TXBITPOLARITYINVERT", kAbsent}, {"RXBITPOLARITYINVERT", kAbsent}}, {});
        addRow(base + ": texts", base, {{"TXBITPOLARITYINVERT", "true"}, {"RXBITPOLARITYINVERT", "false"}}, tx);
    }
}

void LaneLinesTest::rxBonding_data()
{
    QTest::addColumn<LineRow>("row");
    const QString s = "q0_ln0_channel_bonding disable";
    const QString sLength = "q0_ln0_channel_bonding_align_length 1";
    const QString sMaster = "q0_ln0_channel_bonding_master_sel q0_ln0";
    const QString p = "parameter q0_ln0_channel_bonding = 0;";
    const QString pMaster = "parameter q0_ln0_channel_bounding_master_sel = 0;";
    const QString dMaster = "`define Q0_LN0_CHANNEL_BONDING_MASTER_SEL 0";
    const QString o = "-Link0RX_Channel_Bonding None";
    const QString on = "q0_ln0_channel_bonding enable";
    const Edits bonded{{s, {on}}, {p, {"parameter q0_ln0_channel_bonding = 1;"}}, {dMaster, {"`define Q0_LN0_CHANNEL_BONDING", dMaster}}};
    for (const QString& base : kBases) {
        addRow(base + ": One Word", base, {{"RX_CHANNEL_BONDING", "One Word"}}, bonded + Edits{{o, {"-Link0RX_Channel_Bonding OneWord"}}});
        addRow(base + ": Two Words", base, {{"RX_CHANNEL_BONDING", "Two Words"}},
               bonded + Edits{{sLength, {"q0_ln0_channel_bonding_align_length 2"}}, {o, {"-Link0RX_Channel_Bonding TwoWords"}}});
        addRow(base + ": Four Words", base, {{"RX_CHANNEL_BONDING", "Four Words"}},
               bonded + Edits{{sLength, {"q0_ln0_channel_bonding_align_length 4"}}, {o, {"-Link0RX_Channel_Bonding FourWords"}}});
        addRow(base + ": unknown", base, {{"RX_CHANNEL_BONDING", "Three \tWords"}}, {{s, {}}, {sLength, {}}, {o, {"-Link0RX_Channel_Bonding ThreeWords"}}});
        addRow(base + ": empty", base, {{"RX_CHANNEL_BONDING", ""}}, {{s, {}}, {sLength, {}}, {o, {"-Link0RX_Channel_Bonding "}}});
        addRow(base + ": absent", base, {{"RX_CHANNEL_BONDING", kAbsent}}, {{s, {}}, {sLength, {}}, {o, {"-Link0RX_Channel_Bonding "}}});

        const QStringList masters{"Q0 Lane0", "Q0 Lane1", "Q0 Lane2", "Q0 Lane3", "Q1 Lane0", "Q1 Lane1", "Q1 Lane2", "Q1 Lane3"};
        const QStringList prefixes{"q0_ln0", "q0_ln1", "q0_ln2", "q0_ln3", "q1_ln0", "q1_ln1", "q1_ln2", "q1_ln3"};
        for (int i = 0; i < masters.size(); ++i) {
            const QString index = QString::number(i);
            addRow(base + ": master " + masters.at(i), base, {{"RX_MASTER_CHANNEL_SELECTION", masters.at(i)}},
                   {{sMaster, {"q0_ln0_channel_bonding_master_sel " + prefixes.at(i)}},
                    {pMaster, {"parameter q0_ln0_channel_bounding_master_sel = " + index + ";"}},
                    {dMaster, {"`define Q0_LN0_CHANNEL_BONDING_MASTER_SEL " + index}}});
        }
        for (const QVariant& unknown : {QVariant("Q0 Lane4"), QVariant("q0_ln1"), QVariant("Q1 lane1"), QVariant(""), kAbsent}) {
            addRow(base + QStringLiteral(": master \"%1\"%2").arg(unknown.toString(), unknown.isValid() ? "" : " absent"), base,
                   {{"RX_MASTER_CHANNEL_SELECTION", unknown}}, {{sMaster, {}}});
        }
    }
}

void LaneLinesTest::rxBondingPatterns_data()
{
    QTest::addColumn<LineRow>("row");
    struct Text {
        const char* key;
        const char* value; ///< in the base
        const char* script;
        const char* parameter;
    };
    const QList<Text> patterns{
        {"PATTERN0", "BC", "q0_ln0_channel_bonding_align_pattern", "q0_ln0_channel_bonding_align_pattern"},
        {"PATTERN1", "1A", "q0_ln0_2nd_channel_bonding_align_pattern", "q0_ln0_2nd_channel_bonding_align_pattern"},
        {"PATTERN2", "2B", "q0_ln0_3rd_channel_bonding_align_pattern", "q0_ln0_3rd_channel_bonding_align_pattern"},
        {"PATTERN3", "3C", "q0_ln0_4th_channel_bonding_align_pattern", "q0_ln0_4th_channel_bonding_align_pattern"},
    };
    const QList<Text> depths{
        {"PATTERN_MAX_SKEW", "7", "q0_ln0_channel_bonding_max_skew", "q0_ln0_channel_bonding_max_skew"},
        {"RX_READ_START_DEPTH", "16", "q0_ln0_rx_bonding_rd_start_depth", "q0_ln0_rx_bonding_rd_start_depth"},
    };
    const QList<Text> flags{
        {"PATTERN1_K_CHARACTER", "", "q0_ln0_2nd_channel_bonding_align_pattern_is_k", "q0_ln0_2nd_channel_bonding_align_pattern_is_k"},
        {"PATTERN2_K_CHARACTER", "", "q0_ln0_3rd_channel_bonding_align_pattern_is_k", "q0_ln0_3nd_channel_bonding_align_pattern_is_k"},
        {"PATTERN3_K_CHARACTER", "", "q0_ln0_4th_channel_bonding_align_pattern_is_k", "q0_ln0_4nd_channel_bonding_align_pattern_is_k"},
    };
    const auto text = [](const QString& base, const Text& t, const char* sized, const QVariant& value, const QString& shown) {
        addRow(base + QStringLiteral(": %1 \"%2\"%3").arg(t.key, value.toString(), value.isValid() ? "" : " absent"), base, {{t.key, value}},
               {{QStringLiteral("%1 %2").arg(t.script, t.value), {t.script + QLatin1String(" ") + shown}},
                {QStringLiteral("parameter %1 = %2%3;").arg(t.parameter, sized, t.value), {QStringLiteral("parameter %1 = ").arg(t.parameter) + sized + shown + ";"}}});
    };
    for (const QString& base : kBases) {
        for (const Text& pattern : patterns) {
            text(base, pattern, "8'h", "F7", "F7");
            text(base, pattern, "8'h", "fe", "fe");
            text(base, pattern, "8'h", "%1%2", "%1%2");
            text(base, pattern, "8'h", "", "");
            text(base, pattern, "8'h", kAbsent, "");
        }
        for (const Text& depth : depths) {
            text(base, depth, "", "0", "0");
            text(base, depth, "", "31", "31");
            text(base, depth, "", "007", "007");
            text(base, depth, "", 12, "12");
            text(base, depth, "", kAbsent, "");
        }
        for (const Text& flag : flags) {
            const QString script = QString::fromLatin1(flag.script);
            const QString parameter = QString::fromLatin1(flag.parameter);
            const Edits on{{script + " false", {script + " true"}}, {"parameter " + parameter + " = 0;", {"parameter " + parameter + " = 1;"}}};
            addRow(base + ": " + flag.key, base, {{flag.key, true}}, on);
            addRow(base + ": " + flag.key + " as text", base, {{flag.key, "true"}}, on);
            addRow(base + ": " + flag.key + " absent", base, {{flag.key, kAbsent}}, {});
        }
    }
}

void LaneLinesTest::rxBondingClock_data()
{
    QTest::addColumn<LineRow>("row");
    // Every case also shows in the receive-clock lines, which follow the same three conditions.
    const Edits twoWordsBonded{
        {"q0_ln0_channel_bonding disable", {"q0_ln0_channel_bonding enable"}},
        {"q0_ln0_channel_bonding_align_length 1", {"q0_ln0_channel_bonding_align_length 2"}},
        {"parameter q0_ln0_channel_bonding = 0;", {"parameter q0_ln0_channel_bonding = 1;"}},
        {"`define Q0_LN0_CHANNEL_BONDING_MASTER_SEL 0", {"`define Q0_LN0_CHANNEL_BONDING", "`define Q0_LN0_CHANNEL_BONDING_MASTER_SEL 0"}},
        {"-Link0RX_Channel_Bonding None", {"-Link0RX_Channel_Bonding TwoWords"}},
    };
    const Edits oneWordCorrected{
        {"q0_ln0_ctc disable", {"q0_ln0_ctc enable"}},
        {"parameter q0_ln0_ctc = 0;", {"parameter q0_ln0_ctc = 1;"}},
        {"`define Q0_LN0_CTC_MASTER_SEL 0", {"`define Q0_LN0_CTC_MASTER_SEL 0", "`define Q0_LN0_CTC"}},
        {"-Link0Clock_Correction None", {"-Link0Clock_Correction OneWord"}},
    };
    const Edits quadClock{
        {"q0_ln0_rx_bonding_clk_src_sel lane_rx_clk", {"q0_ln0_rx_bonding_clk_src_sel quad_rx_clk"}},
        {"parameter q0_ln0_rx_bonding_clk_src_sel = \"lane_rx_clk\";", {"parameter q0_ln0_rx_bonding_clk_src_sel = \"quad_rx_clk\";"}},
        {"q0_refclk0_freq 125", {"q0_refclk0_freq 125", "q0_rx_quad_clk_sel internal", "q0_rx_quad_clk_internal_sel ln0_pma_rx_clk"}},
    };
    const QStringList two{"Q0 Lane0", "Q0 Lane1"};
    for (const QString& base : kBases) {
        addRow(base + ": two lanes, bonded, not corrected", base, {{"recordlanes", two}, {"RX_CHANNEL_BONDING", "Two Words"}}, twoWordsBonded);
        addRow(base + ": two lanes, bonded, corrected", base, {{"recordlanes", two}, {"RX_CHANNEL_BONDING", "Two Words"}, {"CLOCK_CORRECTION", "One Word"}},
               twoWordsBonded + oneWordCorrected + quadClock);
        addRow(base + ": one lane, bonded, corrected", base, {{"RX_CHANNEL_BONDING", "Two Words"}, {"CLOCK_CORRECTION", "One Word"}}, twoWordsBonded + oneWordCorrected);
        addRow(base + ": two lanes, not bonded, corrected", base, {{"recordlanes", two}, {"CLOCK_CORRECTION", "One Word"}}, oneWordCorrected);
        addRow(base + ": no recorded lanes", base, {{"recordlanes", kAbsent}, {"RX_CHANNEL_BONDING", "Two Words"}, {"CLOCK_CORRECTION", "One Word"}},
               twoWordsBonded + oneWordCorrected);
        addRow(base + ": two lanes, both absent, are not None", base, {{"recordlanes", two}, {"RX_CHANNEL_BONDING", kAbsent}, {"CLOCK_CORRECTION", kAbsent}},
               quadClock
                   + Edits{{"q0_ln0_channel_bonding disable", {}},
                           {"q0_ln0_channel_bonding_align_length 1", {}},
                           {"q0_ln0_ctc disable", {}},
                           {"q0_ln0_two_words_ctc disable", {}},
                           {"-Link0RX_Channel_Bonding None", {"-Link0RX_Channel_Bonding "}},
                           {"-Link0Clock_Correction None", {"-Link0Clock_Correction "}}});
    }
}

void LaneLinesTest::txBonding_data()
{
    QTest::addColumn<LineRow>("row");
    const QStringList masters{"Q0 Lane0", "Q0 Lane1", "Q0 Lane2", "Q0 Lane3", "Q1 Lane0", "Q1 Lane1", "Q1 Lane2", "Q1 Lane3"};
    const QStringList prefixes{"q0_ln0", "q0_ln1", "q0_ln2", "q0_ln3", "q1_ln0", "q1_ln1", "q1_ln2", "q1_ln3"};
    const QStringList keys{"Q0_LN0", "Q0_LN1", "Q0_LN2", "Q0_LN3", "Q1_LN0", "Q1_LN1", "Q1_LN2", "Q1_LN3"};
    const QString s = "q0_ln0_rx_bonding_clk_src_sel lane_rx_clk";
    const QString p = "parameter q0_ln0_tx_if_mst_sel = 0;";
    const QString dBefore = "`define Q0_LN0_RX_GEARBOX 2";
    const QString d = "`define Q0_LN0_TX_IF_MST_SEL 0";
    for (const QString& base : kBases) {
        for (int i = 0; i < masters.size(); ++i) {
            const QString index = QString::number(i);
            addRow(base + ": " + masters.at(i), base, {{"TX_CHANNEL_BONDING", true}, {"TX_MASTER_CHANNEL_SELECTION", masters.at(i)}},
                   {{s, {s, "q0_ln0_tx_if_mst_sel " + prefixes.at(i), "q0_ln0_tx_if_rd_start_depth 5"}},
                    {p, {"parameter q0_ln0_tx_if_mst_sel = " + index + ";"}},
                    {dBefore, {dBefore, "`define " + keys.at(i) + "_TX_IF_BONDING"}},
                    {d, {"`define Q0_LN0_TX_IF_MST_SEL " + index}}});
            addRow(base + ": off, " + masters.at(i), base, {{"TX_MASTER_CHANNEL_SELECTION", masters.at(i)}}, {});
        }
        for (const QVariant& unknown : {QVariant("Q2 Lane0"), QVariant(""), kAbsent}) {
            addRow(base + QStringLiteral(": master \"%1\"%2").arg(unknown.toString(), unknown.isValid() ? "" : " absent"), base,
                   {{"TX_CHANNEL_BONDING", true}, {"TX_MASTER_CHANNEL_SELECTION", unknown}},
                   {{s, {s, "q0_ln0_tx_if_mst_sel ", "q0_ln0_tx_if_rd_start_depth 5"}}, {dBefore, {dBefore, "`define _TX_IF_BONDING"}}});
        }
        addRow(base + ": depth", base, {{"TX_CHANNEL_BONDING", true}, {"TX_READ_START_DEPTH", "31"}},
               {{s, {s, "q0_ln0_tx_if_mst_sel q0_ln0", "q0_ln0_tx_if_rd_start_depth 31"}},
                {dBefore, {dBefore, "`define Q0_LN0_TX_IF_BONDING"}},
                {"parameter q0_ln0_tx_if_rd_start_depth = 5;", {"parameter q0_ln0_tx_if_rd_start_depth = 31;"}}});
        addRow(base + ": off, depth", base, {{"TX_READ_START_DEPTH", "31"}}, {{"parameter q0_ln0_tx_if_rd_start_depth = 5;", {"parameter q0_ln0_tx_if_rd_start_depth = 31;"}}});
        addRow(base + ": absent", base, {{"TX_CHANNEL_BONDING", kAbsent}, {"TX_READ_START_DEPTH", kAbsent}},
               {{"parameter q0_ln0_tx_if_rd_start_depth = 5;", {"parameter q0_ln0_tx_if_rd_start_depth = ;"}}});
    }
}

void LaneLinesTest::clockCorrection_data()
{
    QTest::addColumn<LineRow>("row");
    const QString s = "q0_ln0_ctc disable";
    const QString sTwo = "q0_ln0_two_words_ctc disable";
    const QString p = "parameter q0_ln0_ctc = 0;";
    const QString pTwo = "parameter q0_ln0_two_words_ctc = 0;";
    const QString dMaster = "`define Q0_LN0_CTC_MASTER_SEL 0";
    const QString o = "-Link0Clock_Correction None";
    const QString sSource = "q0_ln0_ctc_clk_src_sel fabric_clk";
    const QString pSource = "parameter q0_ln0_ctc_clk_src_sel = \"fabric_clk\";";
    const QString sMaster = "q0_ln0_ctc_mst_sel q0_ln0";
    const QString pMaster = "parameter q0_ln0_ctc_master_sel = 0;";
    for (const QString& base : kBases) {
        addRow(base + ": One Word", base, {{"CLOCK_CORRECTION", "One Word"}},
               {{s, {"q0_ln0_ctc enable"}}, {p, {"parameter q0_ln0_ctc = 1;"}}, {dMaster, {dMaster, "`define Q0_LN0_CTC"}}, {o, {"-Link0Clock_Correction OneWord"}}});
        addRow(base + ": Two Words", base, {{"CLOCK_CORRECTION", "Two Words"}},
               {{s, {"q0_ln0_ctc enable"}}, {sTwo, {"q0_ln0_two_words_ctc enable"}}, {p, {"parameter q0_ln0_ctc = 1;"}}, {pTwo, {"parameter q0_ln0_two_words_ctc = 1;"}},
                {dMaster, {dMaster, "`define Q0_LN0_CTC"}}, {o, {"-Link0Clock_Correction TwoWords"}}});
        addRow(base + ": unknown", base, {{"CLOCK_CORRECTION", "Four Words"}}, {{s, {}}, {sTwo, {}}, {o, {"-Link0Clock_Correction FourWords"}}});
        addRow(base + ": absent", base, {{"CLOCK_CORRECTION", kAbsent}}, {{s, {}}, {sTwo, {}}, {o, {"-Link0Clock_Correction "}}});

        addRow(base + ": source Quad", base, {{"CLOCK_CLKSOURCE", "Quad"}},
               {{sSource, {"q0_ln0_ctc_clk_src_sel lane_bond_clk"}}, {pSource, {"parameter q0_ln0_ctc_clk_src_sel = \"lane_bond_clk\";"}}});
        addRow(base + ": source TX", base, {{"CLOCK_CLKSOURCE", "TX"}},
               {{sSource, {"q0_ln0_ctc_clk_src_sel lane_tx_clk"}}, {pSource, {"parameter q0_ln0_ctc_clk_src_sel = \"lane_tx_clk\";"}}});
        for (const QVariant& unknown : {QVariant("Lane"), QVariant("quad"), QVariant(""), kAbsent}) {
            addRow(base + QStringLiteral(": source \"%1\"%2").arg(unknown.toString(), unknown.isValid() ? "" : " absent"), base, {{"CLOCK_CLKSOURCE", unknown}},
                   {{sSource, {}}, {pSource, {}}});
        }

        const auto master = [&](const char* name, const QString& script, const QString& index) {
            addRow(base + ": master " + name, base, {{"CLOCK_MASTERCHANNELSEL", name}},
                   {{sMaster, {script}}, {pMaster, {"parameter q0_ln0_ctc_master_sel = " + index + ";"}}, {dMaster, {"`define Q0_LN0_CTC_MASTER_SEL " + index}}});
        };
        master("Q0 Lane0", "q0_ln0_ctc_mst_sel q0_ln0", "0");
        master("Q0 Lane1", "q0_ln0_ctc_mst_sel q0_ln1", "1");
        master("Q0 Lane2", "q0_ln0_ctc_mst_sel q0_ln2", "2");
        master("Q0 Lane3", "q0_ln0_ctc_mst_sel q0_ln3", "3");
        master("Q1 Lane0", "q0_ln0_ctc_mst_sel  q1_ln0", "4");
        master("Q1 Lane1", "q0_ln0_ctc_mst_sel  q1_ln1", "5");
        master("Q1 Lane2", "q0_ln0_ctc_mst_sel  q1_ln2", "6");
        master("Q1 Lane3", "q0_ln0_ctc_mst_sel  q1_ln3", "7");
        for (const QVariant& unknown : {QVariant("Q0 Lane4"), QVariant(""), kAbsent}) {
            addRow(base + QStringLiteral(": master \"%1\"%2").arg(unknown.toString(), unknown.isValid() ? "" : " absent"), base, {{"CLOCK_MASTERCHANNELSEL", unknown}},
                   {{sMaster, {}}, {pMaster, {}}, {dMaster, {}}});
        }

        addRow(base + ": patterns and depth", base, {{"CTC_PATTERN0", "0f"}, {"CTC_PATTERN1", "F0"}, {"CTC_READ_START_DEPTH", "31"}, {"CTC_PATTERN1_IS_K", true}},
               {{"q0_ln0_ctc_pattern 4D", {"q0_ln0_ctc_pattern 0f"}},
                {"q0_ln0_ctc_2nd_pattern 5E", {"q0_ln0_ctc_2nd_pattern F0"}},
                {"q0_ln0_ctc_2nd_pattern_is_k false", {"q0_ln0_ctc_2nd_pattern_is_k true"}},
                {"parameter q0_ln0_ctc_2nd_pattern_is_k = 0;", {"parameter q0_ln0_ctc_2nd_pattern_is_k = 1;"}},
                {"q0_ln0_ctc_rd_start_depth 9", {"q0_ln0_ctc_rd_start_depth 31"}},
                {"parameter q0_ln0_ctc_pattern = 8'h4D;", {"parameter q0_ln0_ctc_pattern = 8'h0f;"}},
                {"parameter q0_ln0_ctc_2nd_pattern = 8'h5E;", {"parameter q0_ln0_ctc_2nd_pattern = 8'hF0;"}},
                {"parameter q0_ln0_ctc_rd_start_depth = 9;", {"parameter q0_ln0_ctc_rd_start_depth = 31;"}}});
        addRow(base + ": patterns and depth absent", base, {{"CTC_PATTERN0", kAbsent}, {"CTC_PATTERN1", kAbsent}, {"CTC_READ_START_DEPTH", kAbsent}, {"CTC_PATTERN1_IS_K", kAbsent}},
               {{"q0_ln0_ctc_pattern 4D", {"q0_ln0_ctc_pattern "}},
                {"q0_ln0_ctc_2nd_pattern 5E", {"q0_ln0_ctc_2nd_pattern "}},
                {"q0_ln0_ctc_rd_start_depth 9", {"q0_ln0_ctc_rd_start_depth "}},
                {"parameter q0_ln0_ctc_pattern = 8'h4D;", {"parameter q0_ln0_ctc_pattern = 8'h;"}},
                {"parameter q0_ln0_ctc_2nd_pattern = 8'h5E;", {"parameter q0_ln0_ctc_2nd_pattern = 8'h;"}},
                {"parameter q0_ln0_ctc_rd_start_depth = 9;", {"parameter q0_ln0_ctc_rd_start_depth = ;"}}});
    }
}

void LaneLinesTest::analog_data()
{
    QTest::addColumn<LineRow>("row");
    struct Setting {
        const char* key;
        const char* line; ///< the script line up to its value
        const char* usual; ///< in the base, and the default of an absent key
        QList<QPair<QVariant, const char*>> values;
    };
    const QList<Setting> settings{
        {"DIFFERENTIAL_SWING", "q0_ln0_tx_differential_swing ", "900mV", {{"180mV", "180mV"}, {"612mV", "612mV"}, {"", ""}, {"Any Text", "Any Text"}}},
        {"FFEMODE", "q0_ln0_tx_ffe_mode ", "auto", {{"Manual", "manual"}, {"", ""}, {"OTHER", "other"}}},
        {"FFE_CM", "q0_ln0_tx_ffe_cm ", "0", {{19, "19"}, {"12", "12"}, {"x", "0"}, {"", "0"}}},
        {"FFE_C1", "q0_ln0_tx_ffe_c1 ", "0", {{1, "1"}, {" 3 ", "3"}, {"1.5", "0"}, {"", "0"}}},
        {"FFE_C0", "q0_ln0_tx_ffe_c0 ", "40", {{"0", "0"}, {"21", "21"}, {"-3", "-3"}, {20, "20"}, {"", "0"}, {"c0", "0"}}},
        {"SD_THRESHOLD", "q0_ln0_rx_sd_thsel ", "100mV", {{"25mV", "25mV"}, {"200mV", "200mV"}, {"", ""}}},
        {"Equalization_Mode", "q0_ln0_rx_eq_mode ", "auto", {{"Manual", "manual"}, {"", ""}, {"AUTO", "auto"}}},
        {"ATT", "q0_ln0_rx_att ", "7", {{0, "0"}, {10, "10"}, {"5", "5"}, {"", "0"}}},
        {"BOOST", "q0_ln0_rx_boost ", "9", {{0, "0"}, {15, "15"}, {"8", "8"}, {"", "0"}}},
    };
    for (const QString& base : kBases) {
        for (const Setting& setting : settings) {
            for (const auto& [value, shown] : setting.values) {
                addRow(base + QStringLiteral(": %1 \"%2\"").arg(setting.key, value.toString()), base, {{setting.key, value}},
                       {{setting.line + QString::fromLatin1(setting.usual), {setting.line + QString::fromLatin1(shown)}}});
            }
            addRow(base + QStringLiteral(": %1 absent").arg(setting.key), base, {{setting.key, kAbsent}}, {});
        }
    }
}

void LaneLinesTest::cdrReference_data()
{
    QTest::addColumn<LineRow>("row");
    const QString cdr = "q0_ln0_cdr_refclk_sel auto";
    const QString loopback = "q0_ln0_loopback_mode off";
    // Out of Auto the frequencies come from the multiplexers, which are empty here.
    const Edits noClock{{"q0_refclk0_freq 125", {}}, {"parameter q0_refclk0_freq = 125;", {}}};
    for (const QString& base : {k60, k138}) {
        for (const char* source : {"REFMUX0", "REFMUX1", "REFMUX2", "REFMUX3", "Some Text", ""}) {
            addRow(base + QStringLiteral(": Manual, \"%1\"").arg(source), base, {{"RefMode", "Manual"}, {"RXREFSOURCE", source}},
                   noClock + Edits{{cdr, {"q0_ln0_cdr_refclk_sel " + QString::fromLatin1(source).toLower()}}});
        }
        addRow(base + ": Manual, source absent", base, {{"RefMode", "Manual"}, {"RXREFSOURCE", kAbsent}}, noClock + Edits{{cdr, {"q0_ln0_cdr_refclk_sel refmux0"}}});
        addRow(base + ": empty mode", base, {{"RefMode", ""}, {"RXREFSOURCE", "REFMUX1"}}, noClock + Edits{{cdr, {"q0_ln0_cdr_refclk_sel refmux1"}}});
        addRow(base + ": mode absent stands for Auto here", base, {{"RefMode", kAbsent}, {"RXREFSOURCE", "REFMUX1"}}, noClock);
        addRow(base + ": Auto", base, {{"RXREFSOURCE", "REFMUX1"}}, {});
    }
    addRow("60k: TX Only", k60, {{"OPERATION_MODE", "TX Only"}, {"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX1"}}, noClock + Edits{{loopback, {"q0_ln0_loopback_mode tx_only"}}});
    addRow("60k: RX Only", k60, {{"OPERATION_MODE", "RX Only"}, {"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX1"}}, noClock + Edits{{loopback, {"q0_ln0_loopback_mode rx_only"}}});
    addRow("60k: unknown operation mode", k60, {{"OPERATION_MODE", ""}, {"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX1"}},
           noClock + Edits{{loopback, {}}, {cdr, {"q0_ln0_cdr_refclk_sel refmux1"}}});
    addRow("60k: operation mode absent", k60, {{"OPERATION_MODE", kAbsent}, {"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX1"}},
           noClock + Edits{{cdr, {"q0_ln0_cdr_refclk_sel refmux1"}}});
    addRow("138k: TX Only", k138, {{"OPERATION_MODE", "TX Only"}, {"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX1"}}, noClock + Edits{{cdr, {"q0_ln0_cdr_refclk_sel refmux1"}}});
    addRow("138k: RX Only", k138, {{"OPERATION_MODE", "RX Only"}, {"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX1"}}, noClock + Edits{{cdr, {"q0_ln0_cdr_refclk_sel refmux1"}}});
    addRow("15k: Manual", k15, {{"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX1"}}, noClock);
    addRow("15k: empty texts", k15, {{"RefMode", ""}, {"RXREFSOURCE", ""}}, noClock);
    addRow("15k: RX Only", k15, {{"OPERATION_MODE", "RX Only"}, {"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX1"}}, noClock + Edits{{loopback, {"q0_ln0_loopback_mode rx_only"}}});
}

void LaneLinesTest::everyListedDevice_data()
{
    QTest::addColumn<LineRow>("row");
    addRow("RZ7X-60B", k60, {{"target_device", deviceId("RZ7X-60B")}}, {});
    addRow("RZ7X-60ES", k60, {{"target_device", deviceId("RZ7X-60ES")}}, {});
    for (const char* device : {"RZ7X-15A", "RZ7XR-15A", "RZ7XR-15B", "RZ7X-15B", "RZ7NX-15A", "RZ7NXR-15A"}) {
        addRow(device, k15, {{"target_device", deviceId(device)}}, {});
    }
    addRow("RZ7X-138", k138, {{"target_device", deviceId("RZ7X-138")}}, {});
    addRow("RZ7X-138B", k138, {{"target_device", deviceId("RZ7X-138B")}}, {});
    // Names are matched whole and with their case; what no list holds is of the large class.
    addRow("unknown device", k138, {{"target_device", "RZ7X-60"}}, {});
    addRow("device of another case", k138, {{"target_device", "rz7x-60b"}}, {});
    addRow("no device", k138, {{"target_device", kAbsent}}, {});
}

void LaneLinesTest::longTexts_data()
{
    QTest::addColumn<LineRow>("row");
    const QString filler(100000, QLatin1Char('A'));
    const QString withMarks = QStringLiteral("%1") + filler + QStringLiteral("%2\"\\");
    addRow("pattern", k60, {{"PATTERN0", withMarks}},
           {{"q0_ln0_channel_bonding_align_pattern BC", {"q0_ln0_channel_bonding_align_pattern " + withMarks}},
            {"parameter q0_ln0_channel_bonding_align_pattern = 8'hBC;", {"parameter q0_ln0_channel_bonding_align_pattern = 8'h" + withMarks + ";"}}});
    addRow("loopback", k138, {{"Loopback_Mode", withMarks}},
           {{"q0_ln0_loopback_mode off", {"q0_ln0_loopback_mode " + withMarks.toLower()}},
            {"parameter q0_ln0_loopback_mode = \"off\";", {"parameter q0_ln0_loopback_mode = \"" + withMarks.toLower() + "\";"}}});
    addRow("coding", k15, {{"TX_ENCODING", filler.toLower()}},
           {{"q0_ln0_tx_encode off", {"q0_ln0_tx_encode " + filler.toLower()}},
            {"`define Q0_LN0_RX_PMA_WIDTH 20", {"`define Q0_LN0_RX_PMA_WIDTH 20", "`define Q0_LN0_" + filler + "_ENCODE"}},
            {"-Link0TX_Encoding_Mode OFF", {"-Link0TX_Encoding_Mode " + filler.toLower()}}});
    addRow("numbers", k60, {{"FFE_CM", filler}, {"ATT", filler}, {"REFERENCE_CLOCK_FREQ", filler}},
           {{"q0_ln0_rx_att 7", {"q0_ln0_rx_att 0"}},
            {"q0_refclk0_freq 125", {"q0_refclk0_freq 0"}},
            {"parameter q0_refclk0_freq = 125;", {"parameter q0_refclk0_freq = " + filler + ";"}}});
    addRow("module", k138, {{"module", withMarks}},
           {{"`define MODULE_NAME Link0", {"`define MODULE_NAME " + withMarks}},
            {"-Link0protocol_module_type customized", {"-" + withMarks + "protocol_module_type customized"}},
            {"-Link0Q0Lane0 true", {"-" + withMarks + "Q0Lane0 true"}},
            {"-Link0Clock_Correction None", {"-" + withMarks + "Clock_Correction None"}},
            {"-Link0Word_Alignment false", {"-" + withMarks + "Word_Alignment false"}},
            {"-Link0RX_Channel_Bonding None", {"-" + withMarks + "RX_Channel_Bonding None"}},
            {"-Link0EnableDRP false", {"-" + withMarks + "EnableDRP false"}},
            {"-Link0DRPPorts false", {"-" + withMarks + "DRPPorts false"}}});
}

// clang-format on

QTEST_MAIN(LaneLinesTest)
#include "lane_lines_test.moc"
