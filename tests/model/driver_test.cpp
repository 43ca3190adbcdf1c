// What a generation does around the lanes' own lines: device, bonding control, reference clocks,
// receive clocks, bias, the last defines, options, the output folder.
#include "goldencases.h"
#include "harness.h"
#include "linerows.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {

const QString k60 = QStringLiteral("60k_one_lane");
const QString k15 = QStringLiteral("15k_one_lane");
const QString k138 = QStringLiteral("138k_one_lane");
const QStringList kBases{k60, k15, k138};
const QVariant kAbsent;

// The one clock of the bases.
const QString kClock = QStringLiteral("q0_refclk0_freq 125");
const QString kClockParameter = QStringLiteral("parameter q0_refclk0_freq = 125;");

Edits clocks(const QStringList& script, const QStringList& parameters) {
    return {{kClock, script}, {kClockParameter, parameters}};
}

} // namespace

class DriverTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void wholeCases_data();
    void wholeCases() { check(); }
    void referenceClocks_data();
    void referenceClocks() { check(); }
    void receiveClocks_data();
    void receiveClocks() { check(); }
    void bias_data();
    void bias() { check(); }
    void laneKeys_data();
    void laneKeys() { check(); }
    void lastDefinesAndOptions_data();
    void lastDefinesAndOptions() { check(); }
    void callersLines_data();
    void callersLines() { check(); }

    void emptyConfigurationWritesNothing();
    void ownDeviceComesBeforeTheConfigurations();
    void deviceIsLookedUpOnce();
    void threeFilesAndNoMore();
    void textIsLeftAloneWithoutNetlist();
    void listsKeepTheirLinesWhenTheFolderFails();
    void secondRunGivesTheSameBytes();

private:
    void check();

    Harness m_host;
};

void DriverTest::initTestCase() {
    QVERIFY2(m_host.error().isEmpty(), qPrintable(m_host.error()));
}

void DriverTest::check() {
    QFETCH(LineRow, row);
    const QString problem = rowProblem(m_host, row);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

// The tables: one row a line.
// clang-format off

void DriverTest::wholeCases_data()
{
    QTest::addColumn<LineRow>("row");
    for (const GoldenCase& golden : goldenCases()) {
        const QVariantMap input = QJsonDocument::fromJson(golden.input).object().toVariantMap();
        addRow(golden.name, golden.name, {}, {}, input.value("data").toMap(), input.value("script").toStringList(), input.value("options").toStringList());
    }
}

void DriverTest::referenceClocks_data()
{
    QTest::addColumn<LineRow>("row");
    const Edits rxOnly{{"q0_ln0_loopback_mode off", {"q0_ln0_loopback_mode rx_only"}}};
    const Edits refmux0{{"q0_ln0_cdr_refclk_sel auto", {"q0_ln0_cdr_refclk_sel refmux0"}}};

    for (const QString& base : {k60, k15}) {
        addRow(base + ": RX Only, REFMUX1", base,
               {{"OPERATION_MODE", "RX Only"}, {"PLLREFSOURCE", "REFMUX1"}, {"REFMUX1SOURCE", "Q0 REFCLK1"}, {"MUX1Freq", "156.250"}},
               rxOnly + clocks({"q0_refclk1_freq 156.25"}, {"parameter q0_refclk1_freq = 156.250;"}));
        addRow(base + ": RX Only, REFMUX1 with a source of no name", base,
               {{"OPERATION_MODE", "RX Only"}, {"PLLREFSOURCE", "REFMUX1"}, {"REFMUX1SOURCE", "GPIO"}}, rxOnly + clocks({}, {}));
        addRow(base + ": RX Only, GPIO", base, {{"OPERATION_MODE", "RX Only"}, {"PLLREFSOURCE", "GPIO"}, {"GPIOFreq", "50.50"}}, rxOnly + clocks({"q0_gpio_freq 50.5"}, {}));
        addRow(base + ": RX Only, Q0 REFIN", base, {{"OPERATION_MODE", "RX Only"}, {"PLLREFSOURCE", "Q0 REFIN"}, {"GPIOFreq", "50"}}, rxOnly + clocks({"q0_gpio_freq 50"}, {}));
        addRow(base + ": RX Only, MCLK", base, {{"OPERATION_MODE", "RX Only"}, {"PLLREFSOURCE", "MCLK"}, {"MCLKFreq", "27.0"}}, rxOnly + clocks({"mclk_freq 27"}, {}));
        for (const QVariant& source : {QVariant("REFMUX0"), QVariant("REFMUX2"), QVariant("gpio"), QVariant(""), kAbsent}) {
            addRow(base + QStringLiteral(": RX Only, \"%1\"%2").arg(source.toString(), source.isValid() ? "" : " absent"), base,
                   {{"OPERATION_MODE", "RX Only"}, {"PLLREFSOURCE", source}, {"REFMUX0SOURCE", "Q0 REFCLK0"}, {"REFMUX1SOURCE", "Q0 REFCLK1"}}, rxOnly + clocks({}, {}));
        }
        addRow(base + ": RX Only, frequency absent", base, {{"OPERATION_MODE", "RX Only"}, {"PLLREFSOURCE", "GPIO"}, {"GPIOFreq", kAbsent}}, rxOnly + clocks({"q0_gpio_freq 0"}, {}));
    }
    for (const QString& base : {k60, k15}) {
        const Edits cdr = base == k60 ? refmux0 : Edits{};
        const Changes manual{{"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX0"}, {"REFMUX0SOURCE", "Q0 REFCLK2"}, {"REFMUX1SOURCE", "Q0 REFCLK3"}, {"MUX0Freq", "100"}, {"MUX1Freq", "200"}};
        addRow(base + ": Manual, GPIO", base, manual + Changes{{"PLLREFSOURCE", "GPIO"}, {"GPIOFreq", "33.30"}}, cdr + clocks({"q0_gpio_freq 33.3"}, {}));
        addRow(base + ": Manual, Q0 REFIN", base, manual + Changes{{"PLLREFSOURCE", "Q0 REFIN"}, {"GPIOFreq", "33.30"}}, cdr + clocks({"q0_gpio_freq 33.3"}, {}));
        addRow(base + ": Manual, MCLK", base, manual + Changes{{"PLLREFSOURCE", "MCLK"}, {"MCLKFreq", "66"}}, cdr + clocks({"mclk_freq 66"}, {}));
        for (const char* source : {"REFMUX0", "REFMUX1", "", "Q0 REFIN0", "Gpio"}) {
            addRow(base + QStringLiteral(": Manual, \"%1\" takes the multiplexers").arg(source), base, manual + Changes{{"PLLREFSOURCE", source}},
                   cdr + clocks({"q0_refclk2_freq 100", "q0_refclk3_freq 200"}, {"parameter q0_refclk2_freq = 100;", "parameter q0_refclk3_freq = 200;"}));
        }
        addRow(base + ": mode absent takes the multiplexers", base, Changes{{"REFMUX0SOURCE", "Q0 REFCLK2"}, {"REFMUX1SOURCE", "Q0 REFCLK3"}, {"RefMode", kAbsent}, {"MUX0Freq", "100"}},
               clocks({"q0_refclk2_freq 100", "q0_refclk3_freq 125"}, {"parameter q0_refclk2_freq = 100;", "parameter q0_refclk3_freq = 125;"}));
        addRow(base + ": operation mode absent is not RX Only", base, {{"OPERATION_MODE", kAbsent}, {"PLLREFSOURCE", "MCLK"}}, {});
        addRow(base + ": GPIO in Auto is not looked at", base, {{"PLLREFSOURCE", "GPIO"}}, {});
    }

    // The pairs of multiplexers.
    const auto pair = [&](const QString& name, const char* source0, const char* freq0, const char* source1, const char* freq1, const QStringList& script, const QStringList& parameters) {
        for (const QString& base : kBases) {
            addRow(base + ": " + name, base,
                   {{"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX0"}, {"PLLREFSOURCE", "REFMUX0"}, {"REFMUX0SOURCE", source0}, {"MUX0Freq", freq0}, {"REFMUX1SOURCE", source1}, {"MUX1Freq", freq1}},
                   (base == k15 ? Edits{} : refmux0) + clocks(script, parameters));
        }
    };
    pair("one clock", "Q0 REFCLK1", "100", "Q0 REFCLK1", "100", {"q0_refclk1_freq 100"}, {"parameter q0_refclk1_freq = 100;"});
    pair("one clock, two spellings", "Q0 REFCLK1", "100.0", "Q0 REFCLK1", "0100", {"q0_refclk1_freq 100"}, {"parameter q0_refclk1_freq = 100.0;"});
    pair("one source, two frequencies", "Q0 REFCLK1", "100", "Q0 REFCLK1", "101", {"q0_refclk1_freq 100", "q0_refclk1_freq 101"}, {"parameter q0_refclk1_freq = 100;", "parameter q0_refclk1_freq = 101;"});
    pair("two sources, one frequency", "Q0 REFCLK1", "100", "Q0 REFIN3", "100", {"q0_refclk1_freq 100", "q0_gpio3_freq 100"}, {"parameter q0_refclk1_freq = 100;", "parameter q0_gpio3_freq = 100;"});
    pair("only the second known", "Q0 PIN", "100", "Q1 REFCLK1", "90", {"q1_refclk1_freq 90"}, {"parameter q1_refclk1_freq = 90;"});
    pair("sources of another case differ", "Q0 REFCLK1", "100", "q0 refclk1", "100", {"q0_refclk1_freq 100"}, {"parameter q0_refclk1_freq = 100;"});
    pair("neither known", "", "", "", "", {}, {});
    pair("frequencies without sources", "", "1", "", "2", {}, {});

    // The second pair counts on the 60k class only, and only beside the first.
    const Changes second{{"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX0"}, {"REFMUX0SOURCE", "Q0 REFCLK0"}, {"REFMUX1SOURCE", "Q0 REFCLK0"},
                         {"REFMUX2SOURCE", "Q0 REFCLK1"}, {"MUX2Freq", "10"}, {"REFMUX3SOURCE", "Q0 REFCLK2"}, {"MUX3Freq", "20.0"}};
    addRow("60k: second pair", k60, second, refmux0 + clocks({kClock, "q0_refclk1_freq 10", "q0_refclk2_freq 20"}, {kClockParameter, "parameter q0_refclk1_freq = 10;", "parameter q0_refclk2_freq = 20.0;"}));
    addRow("60k: second pair is one clock", k60, second + Changes{{"REFMUX3SOURCE", "Q0 REFCLK1"}, {"MUX3Freq", "10.00"}},
           refmux0 + clocks({kClock, "q0_refclk1_freq 10"}, {kClockParameter, "parameter q0_refclk1_freq = 10;"}));
    addRow("60k: both pairs of one clock name it twice", k60, second + Changes{{"REFMUX2SOURCE", "Q0 REFCLK0"}, {"MUX2Freq", "125"}, {"REFMUX3SOURCE", "Q0 REFCLK0"}, {"MUX3Freq", "125"}},
           refmux0 + clocks({kClock, kClock}, {kClockParameter, kClockParameter}));
    addRow("60k: no second pair in Auto", k60, second + Changes{{"RefMode", "Auto"}}, {});
    addRow("60k: no second pair with GPIO", k60, second + Changes{{"PLLREFSOURCE", "GPIO"}}, refmux0 + clocks({"q0_gpio_freq 125"}, {}));
    addRow("60k: no second pair with MCLK", k60, second + Changes{{"PLLREFSOURCE", "MCLK"}}, refmux0 + clocks({"mclk_freq 125"}, {}));
    addRow("60k: no second pair in RX Only", k60, second + Changes{{"OPERATION_MODE", "RX Only"}, {"PLLREFSOURCE", "REFMUX1"}},
           Edits{{"q0_ln0_loopback_mode off", {"q0_ln0_loopback_mode rx_only"}}});
    addRow("15k: no second pair", k15, second, {});
    addRow("138k: no second pair", k138, second, refmux0);

    // The 138k class knows neither the operation mode nor GPIO and MCLK here.
    for (const char* source : {"GPIO", "MCLK", "Q0 REFIN", "REFMUX1", ""}) {
        addRow(QStringLiteral("138k: Manual, \"%1\" takes the multiplexers").arg(source), k138,
               {{"RefMode", "Manual"}, {"RXREFSOURCE", "REFMUX0"}, {"PLLREFSOURCE", source}, {"REFMUX0SOURCE", "Q1 REFCLK0"}, {"REFMUX1SOURCE", "Q1 REFCLK1"}},
               refmux0 + clocks({"q1_refclk0_freq 125", "q1_refclk1_freq 125"}, {"parameter q1_refclk0_freq = 125;", "parameter q1_refclk1_freq = 125;"}));
        addRow(QStringLiteral("138k: RX Only, Auto, \"%1\"").arg(source), k138, {{"OPERATION_MODE", "RX Only"}, {"PLLREFSOURCE", source}}, {});
    }

    // Numbers: general form on the script line, the text itself on the parameter line.
    const auto number = [&](const char* text, const char* shown) {
        addRow(QStringLiteral("number \"%1\"").arg(text), k60, {{"REFERENCE_CLOCK_FREQ", text}},
               clocks({"q0_refclk0_freq " + QString::fromLatin1(shown)}, {"parameter q0_refclk0_freq = " + QString::fromLatin1(text) + ";"}));
    };
    number("322.265625", "322.265625");
    number("148.351648351648", "148.351648351648");
    number("00125.500", "125.5");
    number(" 125 ", "125");
    number(".5", "0.5");
    number("125.", "125");
    number("1e2", "100");
    number("1234567", "1234567");
    number("0.1", "0.1");
    number("125,5", "0");
    number("125 MHz", "0");
    number("", "0");
}

void DriverTest::receiveClocks_data()
{
    QTest::addColumn<LineRow>("row");
    // One Word of both kinds; then the lane lines of these stay the same through the rows.
    const Changes bonded{{"RX_CHANNEL_BONDING", "One Word"}, {"CLOCK_CORRECTION", "One Word"}};
    const Edits lane{
        {"q0_ln0_channel_bonding disable", {"q0_ln0_channel_bonding enable"}},
        {"parameter q0_ln0_channel_bonding = 0;", {"parameter q0_ln0_channel_bonding = 1;"}},
        {"-Link0RX_Channel_Bonding None", {"-Link0RX_Channel_Bonding OneWord"}},
        {"q0_ln0_ctc disable", {"q0_ln0_ctc enable"}},
        {"parameter q0_ln0_ctc = 0;", {"parameter q0_ln0_ctc = 1;"}},
        {"`define Q0_LN0_CTC_MASTER_SEL 0", {"`define Q0_LN0_CTC_MASTER_SEL 0", "`define Q0_LN0_CTC"}},
        {"-Link0Clock_Correction None", {"-Link0Clock_Correction OneWord"}},
        {"q0_ln0_rx_bonding_clk_src_sel lane_rx_clk", {"q0_ln0_rx_bonding_clk_src_sel quad_rx_clk"}},
        {"parameter q0_ln0_rx_bonding_clk_src_sel = \"lane_rx_clk\";", {"parameter q0_ln0_rx_bonding_clk_src_sel = \"quad_rx_clk\";"}},
    };
    struct Master {
        const char* caption;
        const char* quad;
        const char* lane;
        int index;
    };
    const QList<Master> masters{{"Q0 Lane0", "q0", "ln0", 0}, {"Q0 Lane1", "q0", "ln1", 1}, {"Q0 Lane2", "q0", "ln2", 2}, {"Q0 Lane3", "q0", "ln3", 3},
                                {"Q1 Lane0", "q1", "ln0", 4}, {"Q1 Lane1", "q1", "ln1", 5}, {"Q1 Lane2", "q1", "ln2", 6}, {"Q1 Lane3", "q1", "ln3", 7},
                                {"Q0 Lane4", "", "", -1},     {"", "", "", -1}};
    for (const Master& master : masters) {
        const QString quad = QString::fromLatin1(master.quad);
        const QString bare = QString::fromLatin1(master.lane);
        const QString dMaster = "`define Q0_LN0_CHANNEL_BONDING_MASTER_SEL 0";
        const QString index = QString::number(std::max(master.index, 0));
        Edits selection{{"q0_ln0_channel_bonding_master_sel q0_ln0", {}}, {dMaster, {"`define Q0_LN0_CHANNEL_BONDING", "`define Q0_LN0_CHANNEL_BONDING_MASTER_SEL " + index}},
                        {"parameter q0_ln0_channel_bounding_master_sel = 0;", {"parameter q0_ln0_channel_bounding_master_sel = " + index + ";"}}};
        if (master.index >= 0) {
            selection.first().second = QStringList{"q0_ln0_channel_bonding_master_sel " + quad + "_" + bare};
        }
        const Changes changes = bonded + Changes{{"RX_MASTER_CHANNEL_SELECTION", master.caption}};
        const QString name = QStringLiteral(", master \"%1\"").arg(master.caption);
        for (const QString& base : kBases) {
            addRow(base + ": quad 0" + name, base, changes + Changes{{"recordlanes", QStringList{"Q0 Lane0", "Q0 Lane3"}}},
                   lane + selection + Edits{{kClock, {kClock, "q0_rx_quad_clk_sel internal", "q0_rx_quad_clk_internal_sel " + bare + "_pma_rx_clk"}}});
        }
        addRow("quad 1" + name, k138, changes + Changes{{"recordlanes", QStringList{"Q1 Lane0", "Q1 Lane3"}}},
               lane + selection + Edits{{kClock, {kClock, "q1_rx_quad_clk_sel internal", "q1_rx_quad_clk_internal_sel " + bare + "_pma_rx_clk"}}});
        addRow("both quads" + name, k138, changes + Changes{{"recordlanes", QStringList{"Q1 Lane0", "Q0 Lane3"}}},
               lane + selection
                   + Edits{{kClock, {kClock, "q0_rx_quad_clk_sel common", "q1_rx_quad_clk_sel common", "common_clk_src_sel " + quad, "common_clk_from_" + quad + "_sel " + bare + "_pma_rx_clk"}}});
    }
    const Edits one = lane + Edits{{"`define Q0_LN0_CHANNEL_BONDING_MASTER_SEL 0", {"`define Q0_LN0_CHANNEL_BONDING", "`define Q0_LN0_CHANNEL_BONDING_MASTER_SEL 0"}}};
    addRow("entries of neither quad", k138, bonded + Changes{{"recordlanes", QStringList{"Lane0", "q1 Lane1"}}}, one);
    addRow("the last of many entries marks its quad", k138, bonded + Changes{{"recordlanes", QStringList{"Q0 Lane0", "Q0 Lane1", "Q0 Lane2", "Q1"}}},
           one + Edits{{kClock, {kClock, "q0_rx_quad_clk_sel common", "q1_rx_quad_clk_sel common", "common_clk_src_sel q0", "common_clk_from_q0_sel ln0_pma_rx_clk"}}});
    addRow("line held", k60, bonded + Changes{{"recordlanes", QStringList{"Q0 Lane0", "Q0 Lane1"}}},
           one + Edits{{kClock, {kClock, "q0_rx_quad_clk_internal_sel ln0_pma_rx_clk"}}}, {}, {"q0_rx_quad_clk_sel internal"});
    addRow("held by quad 1", k138, bonded + Changes{{"recordlanes", QStringList{"Q1 Lane0", "Q1 Lane1"}}},
           one + Edits{{kClock, {kClock, "q1_rx_quad_clk_internal_sel ln0_pma_rx_clk"}}}, {}, {"a b", "q1_rx_quad_clk_sel internal"});
    addRow("a longer line does not hold it", k60, bonded + Changes{{"recordlanes", QStringList{"Q0 Lane0", "Q0 Lane1"}}},
           one + Edits{{kClock, {kClock, "q0_rx_quad_clk_sel internal", "q0_rx_quad_clk_internal_sel ln0_pma_rx_clk"}}}, {},
           {"q0_rx_quad_clk_sel internal ", "Q0_rx_quad_clk_sel internal", "q1_rx_quad_clk_sel internal"});
    addRow("the common lines are not held", k138, bonded + Changes{{"recordlanes", QStringList{"Q0 Lane0", "Q1 Lane1"}}},
           one + Edits{{kClock, {kClock, "q0_rx_quad_clk_sel common", "q1_rx_quad_clk_sel common", "common_clk_src_sel q0", "common_clk_from_q0_sel ln0_pma_rx_clk"}}}, {},
           {"q0_rx_quad_clk_sel common", "q1_rx_quad_clk_sel common"});
    addRow("GPIO, receive clock and bias in this order", k60,
           bonded + Changes{{"recordlanes", QStringList{"Q0 Lane0", "Q0 Lane1"}}, {"RefMode", "Manual"}, {"PLLREFSOURCE", "GPIO"}, {"ifChangedAllOfBias", true}},
           one + Edits{{"q0_ln0_cdr_refclk_sel auto", {"q0_ln0_cdr_refclk_sel "}}, {kClockParameter, {}},
                       {kClock, {"q0_gpio_freq 125", "q0_rx_quad_clk_sel internal", "q0_rx_quad_clk_internal_sel ln0_pma_rx_clk", "q0_rx_eq_bias 2"}}},
           {{"Q0_BIAS", 2}});
}

void DriverTest::bias_data()
{
    QTest::addColumn<LineRow>("row");
    const auto after = [](const QStringList& lines) { return Edits{{kClock, QStringList{kClock} + lines}}; };
    for (const QString& base : kBases) {
        addRow(base + ": quad 0", base, {{"ifChangedAllOfBias", true}}, after({"q0_rx_eq_bias 9"}), {{"Q0_BIAS", 9}, {"Q1_BIAS", 5}});
        addRow(base + ": off", base, {}, {}, {{"Q0_BIAS", 9}, {"Q1_BIAS", 5}});
        addRow(base + ": absent", base, {{"ifChangedAllOfBias", kAbsent}}, {}, {{"Q0_BIAS", 9}, {"Q1_BIAS", 5}});
        addRow(base + ": not in the store", base, {{"ifChangedAllOfBias", true}}, after({"q0_rx_eq_bias 0"}));
    }
    addRow("quad 1", k138, {{"ifChangedAllOfBias", true}, {"recordlanes", QStringList{"Q1 Lane0"}}}, after({"q1_rx_eq_bias 5"}), {{"Q0_BIAS", 9}, {"Q1_BIAS", 5}});
    addRow("both, quad 0 first", k138, {{"ifChangedAllOfBias", true}, {"recordlanes", QStringList{"Q1 Lane0", "Q0 Lane0"}}}, after({"q0_rx_eq_bias 9", "q1_rx_eq_bias 5"}), {{"Q0_BIAS", 9}, {"Q1_BIAS", 5}});
    addRow("one line however many lanes", k138, {{"ifChangedAllOfBias", true}, {"recordlanes", QStringList{"Q0 Lane0", "Q0 Lane1", "Q0 Lane2"}}}, after({"q0_rx_eq_bias 9"}), {{"Q0_BIAS", 9}});
    addRow("no lane recorded", k138, {{"ifChangedAllOfBias", true}, {"recordlanes", QStringList()}}, {}, {{"Q0_BIAS", 9}});
    addRow("one text is a list of one", k138, {{"ifChangedAllOfBias", true}, {"recordlanes", "Q1 Lane3"}}, after({"q1_rx_eq_bias 5"}), {{"Q1_BIAS", 5}});
    addRow("a number is no list", k138, {{"ifChangedAllOfBias", true}, {"recordlanes", 3}}, {}, {{"Q0_BIAS", 9}});
    addRow("a truth value is no list", k138, {{"ifChangedAllOfBias", true}, {"recordlanes", true}}, {}, {{"Q0_BIAS", 9}});
    addRow("text true", k60, {{"ifChangedAllOfBias", "true"}}, after({"q0_rx_eq_bias 9"}), {{"Q0_BIAS", 9}});
    addRow("text false", k60, {{"ifChangedAllOfBias", "false"}}, {}, {{"Q0_BIAS", 9}});
    addRow("bias as a text", k60, {{"ifChangedAllOfBias", true}}, after({"q0_rx_eq_bias 12"}), {{"Q0_BIAS", "12"}});
    addRow("bias as a real", k60, {{"ifChangedAllOfBias", true}}, after({"q0_rx_eq_bias 12"}), {{"Q0_BIAS", 12.0}});
}

void DriverTest::laneKeys_data()
{
    QTest::addColumn<LineRow>("row");
    addRow("true as a text", k60, {{"Q0_LN0", "true"}}, {});
    addRow("true as a number", k138, {{"Q0_LN0", 1}}, {});
    addRow("others false in every kind", k138, {{"Q0_LN1", "false"}, {"Q0_LN2", 0}, {"Q0_LN3", ""}, {"Q1_LN0", "0"}, {"Q1_LN1", 0.0}, {"Q1_LN2", kAbsent}}, {});
    addRow("recorded lanes do not enable", k138, {{"recordlanes", QStringList{"Q0 Lane0", "Q1 Lane1"}}}, {});
    addRow("a lane key of no lane", k138, {{"Q0_LN4", true}, {"q1_ln0", true}}, {});
    addRow("older keys are passed over", k60, {{"LEGACY_OPTION", "7"}}, {});
}

void DriverTest::lastDefinesAndOptions_data()
{
    QTest::addColumn<LineRow>("row");
    const QString module = "`define MODULE_NAME Link0";
    for (const QString& base : kBases) {
        for (const QVariant& drp : {QVariant(true), QVariant("true"), QVariant(1)}) {
            addRow(base + ": DRP " + drp.typeName(), base, {{"DRP_Ports", drp}},
                   {{module, {module, "`define DRP"}}, {"-Link0EnableDRP false", {"-Link0EnableDRP true"}}, {"-Link0DRPPorts false", {"-Link0DRPPorts true"}}});
        }
        addRow(base + ": DRP absent", base, {{"DRP_Ports", kAbsent}}, {});
        addRow(base + ": DRP text false", base, {{"DRP_Ports", "false"}}, {});
    }
    addRow("no module", k138, {{"module", kAbsent}},
           {{module, {"`define MODULE_NAME "}},
            {"-Link0protocol_module_type customized", {"-protocol_module_type customized"}},
            {"-Link0Q0Lane0 true", {"-Q0Lane0 true"}},
            {"-Link0Clock_Correction None", {"-Clock_Correction None"}},
            {"-Link0Word_Alignment false", {"-Word_Alignment false"}},
            {"-Link0RX_Channel_Bonding None", {"-RX_Channel_Bonding None"}},
            {"-Link0EnableDRP false", {"-EnableDRP false"}},
            {"-Link0DRPPorts false", {"-DRPPorts false"}}});
    addRow("whitespace of every kind goes", k60, {{"CLOCK_CORRECTION", " No\tne\n\v\f\r "}},
           {{"q0_ln0_ctc disable", {}}, {"q0_ln0_two_words_ctc disable", {}}, {"-Link0Clock_Correction None", {"-Link0Clock_Correction None"}}});
    addRow("whitespace stays in the codings", k15, {{"TX_ENCODING", "8B 10B"}},
           {{"q0_ln0_tx_encode off", {"q0_ln0_tx_encode 8b 10b"}},
            {"`define Q0_LN0_RX_PMA_WIDTH 20", {"`define Q0_LN0_RX_PMA_WIDTH 20", "`define Q0_LN0_8B 10B_ENCODE"}},
            {"-Link0TX_Encoding_Mode OFF", {"-Link0TX_Encoding_Mode 8B 10B"}}});
}

void DriverTest::callersLines_data()
{
    QTest::addColumn<LineRow>("row");
    for (const QString& base : kBases) {
        addRow(base + ": kept in front", base, {}, {}, {}, {"first %1", "", "q0_ln0_enable true"}, {"-x", "-x", "%2"});
    }
    addRow("a held line is neither moved nor removed", k138, {}, {}, {}, {kClock, "q0_ln0_trigger_bonding_ctrl fabric"}, {"-Link0EnableDRP false"});
}

// clang-format on

void DriverTest::emptyConfigurationWritesNothing() {
    QTemporaryDir folder;
    m_host.openProject(folder.path());
    const auto model = m_host.model();
    model->setDevice(DEV::DeviceArg(deviceId("RZ7X-60B"), "RZ7X-60B"));
    QStringList script{"a"};
    QStringList options{"b"};
    QString text = "c";
    QVERIFY(!model->generate({}, script, QString(), options, text, false));
    QCOMPARE(script, QStringList{"a"});
    QCOMPARE(options, QStringList{"b"});
    QCOMPARE(text, QString("c"));
    QVERIFY(QDir(folder.path()).isEmpty());
}

void DriverTest::ownDeviceComesBeforeTheConfigurations() {
    m_host.openProject(m_host.workingDir());
    const auto model = m_host.model();
    model->setDevice(DEV::DeviceArg(deviceId("RZ7X-15A"), "RZ7X-15A"));
    QStringList script;
    QStringList options;
    QString text;
    QVERIFY(model->generate(goldenConfig(k138), script, QString(), options, text, false));
    QCOMPARE(model->device().device(), QString("RZ7X-15A"));
    QCOMPARE(script, goldenLines(k15, "customized.ini"));
    QCOMPARE(options, goldenLines(k15, "options.txt"));
}

void DriverTest::deviceIsLookedUpOnce() {
    m_host.openProject(m_host.workingDir());
    const auto model = m_host.model();
    QVERIFY(model->device().isNull());
    QStringList script;
    QStringList options;
    QString text;
    auto config = goldenConfig(k60);
    config.insert("target_device", deviceId("RZ7X-60B"));
    QVERIFY(model->generate(config, script, QString(), options, text, false));
    QCOMPARE(model->device().id(), deviceId("RZ7X-60B"));
    QCOMPARE(model->device().device(), QString("RZ7X-60B"));

    // Another configuration does not take the device away again.
    script.clear();
    options.clear();
    QVERIFY(model->generate(goldenConfig(k138), script, QString(), options, text, false));
    QCOMPARE(model->device().device(), QString("RZ7X-60B"));
    QCOMPARE(script, goldenLines(k60, "customized.ini"));
}

void DriverTest::threeFilesAndNoMore() {
    QTemporaryDir folder;
    m_host.openProject(folder.path());
    auto config = goldenConfig(k60);
    config.insert("file", QString::fromUtf8("a %1 é.v"));
    const Harness::Result result = m_host.generate(config);
    QVERIFY(result.ok);
    const QString output = folder.path() + QString::fromUtf8("/a %1 é.v/temp/CUSTOMIZED");
    QCOMPARE(result.folder, output);
    QCOMPARE(
        QDir(output).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
        (QStringList{"customized.ini", "define.vh", "param.v"}));
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QString::fromUtf8("a %1 é.v")});
    QVERIFY(m_host.takeErrors().isEmpty());
}

void DriverTest::textIsLeftAloneWithoutNetlist() {
    m_host.openProject(m_host.workingDir());
    QStringList script;
    QStringList options;
    QString text = "as it was";
    QVERIFY(m_host.model()->generate(goldenConfig(k60), script, "not used", options, text, false));
    QCOMPARE(text, QString("as it was"));
}

void DriverTest::listsKeepTheirLinesWhenTheFolderFails() {
    QTemporaryDir folder;
    QFile obstacle(folder.path() + "/link0");
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    obstacle.write("a file where the folder should be");
    obstacle.close();
    m_host.openProject(folder.path());
    m_host.takeErrors();
    const Harness::Result result = m_host.generate(goldenConfig(k15), {"before"}, {"in front"});
    QVERIFY(!result.ok);
    QCOMPARE(result.script, QStringList{"before"} + goldenLines(k15, "customized.ini"));
    QCOMPARE(result.options, QStringList{"in front"} + goldenLines(k15, "options.txt"));
    QCOMPARE(fileBytes(obstacle.fileName()), QByteArray("a file where the folder should be"));
}

void DriverTest::secondRunGivesTheSameBytes() {
    m_host.openProject(m_host.workingDir());
    const auto config = goldenConfig("138k_eight_lanes");
    const Harness::Result first = m_host.generate(config);
    const Harness::Result second = m_host.generate(config);
    QVERIFY(first.ok && second.ok);
    QVERIFY(!first.define.isEmpty() && !first.param.isEmpty() && !first.ini.isEmpty());
    QCOMPARE(second.define, first.define);
    QCOMPARE(second.param, first.param);
    QCOMPARE(second.ini, first.ini);
    QCOMPARE(second.script, first.script);
    QCOMPARE(second.options, first.options);
}

QTEST_MAIN(DriverTest)
#include "driver_test.moc"
