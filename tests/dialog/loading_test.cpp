// Opening a saved instance: what is refused, what is shown, and that nothing is lost.

#include "savedkeys.h"

#include <serdesip/baseprotocol.h>
#include <serdesip/protocolgendlg.h>
#include <serdesip/serdes.h>

#include <QSet>
#include <QtTest>

using namespace DialogTest;
using IPSERDESIP::serdes;

namespace {

/// What the user does to come to a configuration; the lanes of quad 0 are checked before.
using Steps = QList<QPair<const char*, QVariant>>;

bool perform(Dialog& dialog, const Steps& steps) {
    for (const auto& [name, value] : steps) {
        bool done = false;
        if (qobject_cast<QComboBox*>(dialog.find(name)) != nullptr) {
            done = dialog.choose(name, value.toString());
        } else if (qobject_cast<QLineEdit*>(dialog.find(name)) != nullptr) {
            done = dialog.type(name, value.toString());
        } else if (qobject_cast<QSpinBox*>(dialog.find(name)) != nullptr) {
            done = dialog.setNumber(name, value.toInt());
        } else {
            done = dialog.check(name, value.toBool());
        }
        if (!done) {
            qWarning("%s does not take %s", name, qPrintable(value.toString()));
            return false;
        }
    }
    return true;
}

const Steps quad0{{"q0_l0", true}, {"q0_l1", true}, {"q0_l2", true}, {"q0_l3", true}};

struct Case {
    const char* name;
    const char* device;
    Steps steps;
};

// clang-format off
/// Each class, operation mode and reference mode; coding, bonding, ratio and the rest among them.
const QList<Case>& cases() {
    static const QList<Case> all{
        {"60k auto", "RZ7X-60B", {}},
        {"60k auto 156.25", "RZ7X-60B",
         {{"CombBoxReferenceClockSource", "Q0 REFIN1"}, {"ReferenceClockFrequency", "156.25"},
          {"TXLineRate", "3.125"}, {"RXLineRate", "6.25"}, {"CombBoxPLLSelection", "CPLL"},
          {"LoopbackMode", "LB_FES"}, {"checkBoxDRPPort", true}}},
        {"60k manual", "RZ7X-60B",
         {{"comboBoxMode", "Manual"}, {"comboBoxRefMux2Source", "Q0 REFCLK3"},
          {"ReferenceMux2Freq", "100"}, {"comboBoxRefMux0Source", "Q0 REFIN0"},
          {"CombBoxPLLRefSource", "REFMUX2"}, {"CombBoxRxRefSource", "REFMUX0"}}},
        {"60k TX Only auto", "RZ7X-60B",
         {{"comboBoxOperationMode", "TX Only"}, {"ReferenceClockFrequency", "156.25"},
          {"TXLineRate", "6.25"}, {"checkBoxTXChannelBoding", true},
          {"comboBoxTXMasterChannelSelection", "Q0 Lane2"}, {"comboBoxTXReadStartDepth", "3"}}},
        {"60k TX Only manual", "RZ7X-60B",
         {{"comboBoxMode", "Manual"}, {"comboBoxOperationMode", "TX Only"},
          {"comboBoxRefMux1Source", "Q0 REFCLK1"}, {"CombBoxPLLRefSource", "REFMUX1"}}},
        {"60k RX Only", "RZ7X-60B",
         {{"comboBoxOperationMode", "RX Only"}, {"comboBoxRefMux1Source", "Q0 REFCLK1"},
          {"ReferenceMux1Freq", "250"}, {"RXLineRate", "5"}}},
        {"60k RX Only manual", "RZ7X-60B",
         {{"comboBoxMode", "Manual"}, {"comboBoxOperationMode", "RX Only"},
          {"comboBoxRefMux1Source", "Q0 REFCLK0"}, {"comboBoxRefMux3Source", "Q0 REFCLK2"},
          {"CombBoxRxRefSource", "REFMUX3"}}},
        {"60k auto after manual", "RZ7X-60B",
         {{"comboBoxMode", "Manual"}, {"CombBoxPLLRefSource", "REFMUX3"},
          {"CombBoxRxRefSource", "REFMUX2"}, {"comboBoxMode", "Auto"}}},
        {"60k auto after RX Only", "RZ7X-60B",
         {{"comboBoxOperationMode", "RX Only"}, {"comboBoxOperationMode", "TX and RX"}}},
        {"60k block codings", "RZ7X-60B",
         {{"comboBoxRXInternalDataWidth", "16"}, {"comboBoxRXExternalDataRatio", "1:4"},
          {"comboBoxRxDecoding", "64B67B"}, {"lineEditRxInterMetaFrameLength", "2048"},
          {"comboBoxTXInternalDataWidth", "16"}, {"comboBoxTXExternalDataRatio", "1:4"},
          {"comboBoxTxEncoding", "64B66B"}}},
        {"60k 64B66B async", "RZ7X-60B",
         {{"comboBoxRXInternalDataWidth", "16"}, {"comboBoxRXExternalDataRatio", "1:4"},
          {"comboBoxRxDecoding", "64B66B"}, {"comboBox64B66BMode", "Async with FIFO"}}},
        {"15k auto", "RZ7X-15A", {{"CombBoxReferenceClockSource", "MCLK"}}},
        {"15k manual GPIO", "RZ7X-15A",
         {{"comboBoxMode", "Manual"}, {"CombBoxPLLRefSource", "GPIO"}, {"GpioFrequency", "100"},
          {"MclkFrequency", "62.5"}}},
        {"15k manual mux", "RZ7X-15A",
         {{"comboBoxMode", "Manual"}, {"comboBoxRefMux0Source", "Q0 REFCLK0"},
          {"comboBoxRefMux1Source", "Q0 REFCLK1"}, {"ReferenceMux1Freq", "250"},
          {"CombBoxPLLRefSource", "REFMUX1"}}},
        {"15k TX Only auto", "RZ7X-15A", {{"comboBoxOperationMode", "TX Only"}}},
        {"15k TX Only manual", "RZ7X-15A",
         {{"comboBoxOperationMode", "TX Only"}, {"comboBoxMode", "Manual"},
          {"comboBoxRefMux0Source", "Q0 REFCLK0"}}},
        {"15k RX Only REFMUX1", "RZ7X-15A",
         {{"comboBoxOperationMode", "RX Only"}, {"comboBoxRefMux1Source", "Q0 REFCLK1"}}},
        {"15k RX Only MCLK", "RZ7X-15A",
         {{"comboBoxOperationMode", "RX Only"}, {"CombBoxPLLRefSource", "MCLK"},
          {"MclkFrequency", "125"}}},
        {"15k auto after manual TX Only", "RZ7X-15A",
         {{"comboBoxMode", "Manual"}, {"comboBoxOperationMode", "TX Only"},
          {"CombBoxPLLRefSource", "MCLK"}, {"comboBoxMode", "Auto"}}},
        {"138k auto", "RZ7X-138",
         {{"CombBoxReferenceClockSource", "Q1 REFCLK1"}, {"comboBoxInternalDataWidth", "20"},
          {"checkBoxEncoding", true}, {"checkBoxDecoding", true}}},
        {"138k eight lanes manual", "RZ7X-138",
         {{"q1_l0", true}, {"q1_l1", true}, {"q1_l2", true}, {"q1_l3", true},
          {"comboBoxMode", "Manual"}, {"comboBoxRefMux0Source", "Q1 REFCLK0"},
          {"ReferenceMux0Freq", "100"}, {"comboBoxRefMux1Source", "Q0 REFCLK1"},
          {"CombBoxRxRefSource", "REFMUX1"}}},
        {"138k oversampled", "RZ7X-138", {{"TXLineRate", "0.5"}, {"comboBoxTxLineRatio", "20x"}}},
        {"138k leading zero", "RZ7X-138", {{"TXLineRate", ".625"}, {"comboBoxTxLineRatio", "10x"}}},
        {"138k everything", "RZ7X-138",
         {{"WordAlignment", true}, {"comboBoxPattern", "K23.7"}, {"lineEditMask", "0011001100"},
          {"checkBoxTxBitPolarityInvert", true}, {"checkBoxRxBitPolarityInvert", true},
          {"checkBoxTXChannelBoding", true}, {"comboBoxTXMasterChannelSelection", "Q0 Lane3"},
          {"comboBoxTXReadStartDepth", "0"}, {"comboBoxRXChannelBoding", "Four Words"},
          {"comboBoxRXMasterChannelSelection", "Q0 Lane1"}, {"lineEditPattern0", "BC"},
          {"lineEditPattern1", "00"}, {"lineEditPattern2", "FF"}, {"lineEditPattern3", "05"},
          {"checkBoxPattern1Character", true}, {"checkBoxPattern3Character", true},
          {"comboBoxPatternMaxSkew", "31"}, {"comboBoxRXReadStartDepth", "1"},
          {"comboBoxClockCorrection", "Two Words"}, {"comboBoxClockSource", "Quad"},
          {"comboBoxMasterChannelSel", "Q0 Lane2"}, {"lineEditCTCPattern0", "1C"},
          {"lineEditCTCPattern1", "0A"}, {"checkBoxCTCPattern1isK", true},
          {"comboBoxCTCReadStartDepth", "7"}, {"differeSwingComboBox", "180mV"},
          {"ffeModeCombox", "Manual"}, {"cmSpinBox", 5}, {"c1SpinBox", 4},
          {"sdThresholdComboBox", "25mV"}, {"equalizationModeCombox", "Manual"},
          {"attSpinBox", 0}, {"boostSpinBox", 15}}},
    };
    return all;
}
// clang-format on

ConfigMap accepted(Bench& bench, const Steps& steps) {
    return bench.create([&](Dialog& dialog) {
        QVERIFY(perform(dialog, quad0));
        QVERIFY(perform(dialog, steps));
        dialog.pressOk();
    });
}

void addCases() {
    QTest::addColumn<int>("number");
    for (int i = 0; i < cases().size(); ++i) {
        QTest::newRow(cases().at(i).name) << i;
    }
}

} // namespace

class LoadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void version_data();
    void version();
    void theRefusalBox();
    void whatIsShownIsCollected_data() { addCases(); }
    void whatIsShownIsCollected();
    void whatIsCollectedIsShownAgain_data() { addCases(); }
    void whatIsCollectedIsShownAgain();
    void emptyConfigurationLoads_data();
    void emptyConfigurationLoads();
    void missingRatio_data();
    void missingRatio();
    void aSlowReceiversUnknownRatioStaysUnknown_data();
    void aSlowReceiversUnknownRatioStaysUnknown();
    void anUnknownWidthShutsNoCoding();
    void aRatePutBackTakesItsRatioAlong();
    void aHeldMultiplexerKeepsItsSource();
    void unknownTextsShowNothing_data();
    void unknownTextsShowNothing();
    void textsInPlaceOfKinds();
    void enabledKeysAreNotRestored();
    void lanesAreOpenedAndChecked();
    void biasOfTheStore_data();
    void biasOfTheStore();
    void biasFlag_data();
    void biasFlag();
    void loadingShowsNoWarning();
    void whatOthersFixIsShown();
    void ownResourcesAreFree();
    void frameIsRestored();
    void everyWidgetIsSavedOrSaysWhyNot();
};

void LoadingTest::version_data() {
    QTest::addColumn<QVariant>("version");
    QTest::addColumn<bool>("loads");
    QTest::newRow("1.0") << QVariant("1.0") << true;
    QTest::newRow("trailing blank") << QVariant("1.0 ") << false;
    QTest::newRow("leading blank") << QVariant(" 1.0") << false;
    QTest::newRow("1.00") << QVariant("1.00") << false;
    QTest::newRow("1") << QVariant("1") << false;
    QTest::newRow("number 1") << QVariant(1.0) << false;
    QTest::newRow("empty") << QVariant("") << false;
    QTest::newRow("missing") << QVariant() << false;
    QTest::newRow("1.1") << QVariant("1.1") << false;
}

void LoadingTest::version() {
    QFETCH(QVariant, version);
    QFETCH(bool, loads);
    Bench bench("RZ7X-60B");
    ConfigMap config{{"target_device", "RZ7X-60B"}};
    if (version.isValid()) {
        config.insert("version", version);
    }
    QVERIFY(bench.open(config, [](Dialog&) {}).isEmpty());
    QCOMPARE(bench.wasShown(), loads);
    QCOMPARE(bench.takeMessages(),
             loads ? QStringList()
                   : QStringList{"Error: This version of specified IP Config file is "
                                 "incompatible with current IP Core Generator."});
}

void LoadingTest::theRefusalBox() {
    Bench bench("RZ7X-60B");
    bench.open({{"version", "2.0"}}, [](Dialog&) {});
    const QList<Box> boxes = bench.takeBoxes();
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().buttons, QStringList{"OK"});
    QVERIFY(boxes.first().icon == QMessageBox::NoIcon);
    const QImage exclamation = QPixmap("://image/exclamation.png").toImage();
    QVERIFY(!exclamation.isNull());
    QCOMPARE(boxes.first().iconPixmap, exclamation);
    const QImage module = QIcon("://image/module.png").pixmap(16).toImage();
    QVERIFY(!module.isNull() && module != exclamation);
    QCOMPARE(boxes.first().windowIcon.pixmap(16).toImage(), module);
    QVERIFY(boxes.first().isModal);
    QVERIFY(boxes.first().belongsToDialog);
}

void LoadingTest::whatIsShownIsCollected() {
    QFETCH(int, number);
    const Case& made = cases().at(number);
    Bench bench(made.device);
    ConfigMap shown;
    ConfigMap config = bench.create([&](Dialog& dialog) {
        QVERIFY(perform(dialog, quad0));
        QVERIFY(perform(dialog, made.steps));
        shown = shownConfig(dialog);
        dialog.pressOk();
    });
    QCOMPARE(bench.takeMessages(), QStringList());
    QVERIFY(!config.isEmpty());
    shown.insert("ifChangedAllOfBias", true); // whole quads: nothing to confirm
    QCOMPARE(differences(config, shown), QStringList());
    // Each key once and nothing else.
    QCOMPARE(config.size(), static_cast<int>(savedKeys().size()) + otherKeys().size() + 1);
}

void LoadingTest::whatIsCollectedIsShownAgain() {
    QFETCH(int, number);
    const Case& made = cases().at(number);
    Bench bench(made.device);
    const ConfigMap config = accepted(bench, made.steps);
    QVERIFY(!config.isEmpty());
    for (int round = 0; round < 2; ++round) {
        ConfigMap again = bench.open(config, [&](Dialog& dialog) {
            ConfigMap shown = shownConfig(dialog);
            shown.insert("ifChangedAllOfBias", true);
            QCOMPARE(differences(shown, config), QStringList());
            dialog.pressOk();
        });
        QCOMPARE(differences(again, config), QStringList());
    }
    QCOMPARE(bench.takeMessages(), QStringList());
}

void LoadingTest::emptyConfigurationLoads_data() {
    QTest::addColumn<QString>("device");
    QTest::newRow("60k") << "RZ7X-60B";
    QTest::newRow("15k") << "RZ7X-15A";
    QTest::newRow("138k") << "RZ7X-138";
}

void LoadingTest::emptyConfigurationLoads() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.open({{"version", "1.0"}, {"target_device", device}}, [&](Dialog& dialog) {
        // A missing key reads as an empty text, false or 0.
        for (const SavedKey& key : savedKeys()) {
            if (key.from == From::Checked) {
                QVERIFY2(!dialog.box(key.widget)->isChecked(), key.widget);
            } else if (key.from == From::Number) {
                QVERIFY2(dialog.spin(key.widget)->value() == 0, key.widget);
            } else if (key.from == From::Text && QString(key.key) != "TX_RATE_RATIO" &&
                       QString(key.key) != "TX_RATE" && QString(key.widget) != "lineEditMask" &&
                       !QString(key.key).contains("PATTERN")) {
                QVERIFY2(dialog.text(key.widget).isEmpty(), key.widget);
            }
        }
        QCOMPARE(dialog.text("comboBoxTxLineRatio"), QString("NA"));
        QCOMPARE(dialog.combo("comboBoxPattern")->currentIndex(), -1);
    });
    QVERIFY(bench.wasShown());
    QCOMPARE(bench.takeMessages(), QStringList());
}

void LoadingTest::missingRatio_data() {
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QVariant>("ratio");
    QTest::addColumn<QString>("shown");
    QTest::newRow("fast, missing") << "2.5" << QVariant() << "NA";
    QTest::newRow("slow, missing") << "0.5" << QVariant() << "5x";
    QTest::newRow("slow, 40x") << "0.5" << QVariant("40x") << "40x";
    QTest::newRow("slow, unknown") << "0.5" << QVariant("7x") << "";
    QTest::newRow("fast, unknown") << "2.5" << QVariant("7x") << "";
}

void LoadingTest::missingRatio() {
    QFETCH(QString, rate);
    QFETCH(QVariant, ratio);
    Bench bench("RZ7X-60B");
    ConfigMap config = accepted(bench, {});
    config.insert("TX_RATE", rate);
    config.remove("TX_RATE_RATIO");
    if (ratio.isValid()) {
        config.insert("TX_RATE_RATIO", ratio);
    }
    bench.open(config, [&](Dialog& dialog) { QTEST(dialog.text("comboBoxTxLineRatio"), "shown"); });
    QVERIFY(bench.wasShown());
    QCOMPARE(bench.takeMessages(), QStringList());
}

void LoadingTest::aSlowReceiversUnknownRatioStaysUnknown_data() {
    QTest::addColumn<QString>("device");
    QTest::newRow("60k") << "RZ7X-60B";
    QTest::newRow("15k") << "RZ7X-15A";
}

/// Setting the PLL again, which such a configuration needs, rebuilds the ratio box.
void LoadingTest::aSlowReceiversUnknownRatioStaysUnknown() {
    QFETCH(QString, device);
    Bench bench(device);
    ConfigMap config = accepted(bench, {});
    config.insert("OPERATION_MODE", "RX Only");
    config.insert("PLL_SELECTION", "QPLL0");
    config.insert("TX_RATE", "0.5");
    config.insert("TX_RATE_RATIO", "3x");
    bench.open(config, [&](Dialog& dialog) {
        QCOMPARE(dialog.combo("comboBoxTxLineRatio")->currentIndex(), -1);
    });
    QVERIFY(bench.wasShown());
}

void LoadingTest::anUnknownWidthShutsNoCoding() {
    Bench bench("RZ7X-138");
    ConfigMap config = accepted(bench, {{"comboBoxInternalDataWidth", "20"}});
    QVERIFY(!config.isEmpty());
    config.insert("INTERNAL_DATA_WIDTH", "12");
    config.insert("ENABLE_ENCODING", true);
    config.insert("ENABLE_DECODING", true);
    bench.open(config, [&](Dialog& dialog) {
        QCOMPARE(dialog.combo("comboBoxInternalDataWidth")->currentIndex(), -1);
        for (const char* box : {"checkBoxEncoding", "checkBoxDecoding"}) {
            QVERIFY2(dialog.isEnabled(box), box);
            QVERIFY2(dialog.box(box)->isChecked(), box);
        }
    });
    QVERIFY(bench.wasShown());
}

/// A rate that the field does not take is put back to the default, which needs no ratio.
void LoadingTest::aRatePutBackTakesItsRatioAlong() {
    for (const char* rate : {"0.123456789", "0.5 "}) {
        Bench bench("RZ7X-60B");
        ConfigMap config = accepted(bench, {});
        config.insert("TX_RATE", rate);
        config.insert("TX_RATE_RATIO", "10x");
        const ConfigMap saved = bench.open(config, [&](Dialog& dialog) {
            QCOMPARE(dialog.text("comboBoxTxLineRatio"), QString("10x"));
            QVERIFY(dialog.click("ButtonCalculate"));
            QCOMPARE(dialog.text("TXLineRate"), QString("1.25"));
            QCOMPARE(dialog.text("comboBoxTxLineRatio"), QString("NA"));
            QVERIFY(!dialog.isEnabled("comboBoxTxLineRatio"));
            dialog.pressOk();
        });
        QCOMPARE(saved.value("TX_RATE"), QVariant("1.25"));
        QCOMPARE(saved.value("TX_RATE_RATIO"), QVariant("NA"));
    }
}

void LoadingTest::aHeldMultiplexerKeepsItsSource() {
    Bench bench("RZ7X-60B");
    const ConfigMap config = accepted(bench, {{"comboBoxMode", "Manual"},
                                              {"comboBoxRefMux0Source", "Q0 REFIN0"},
                                              {"ReferenceMux0Freq", "100"}});
    QVERIFY(!config.isEmpty());
    IPSERDESIP::Message other = holder({}, {}, 0.0, "Q0_REFCLK0", 156.25);
    other.muxes.insert("Q0_MUX0", "Q0_REFCLK0");
    bench.occupy("other", other);
    bench.open(config, [&](Dialog& dialog) {
        QCOMPARE(dialog.items("comboBoxRefMux0Source"), QStringList{"Q0 REFCLK0"});
        QCOMPARE(dialog.text("comboBoxRefMux0Source"), QString("Q0 REFCLK0"));
        QVERIFY(!dialog.isEnabled("comboBoxRefMux0Source"));
        QCOMPARE(dialog.text("ReferenceMux0Freq"), QString("156.25"));
    });
    QVERIFY(bench.wasShown());
}

void LoadingTest::unknownTextsShowNothing_data() {
    QTest::addColumn<QString>("device");
    QTest::newRow("60k") << "RZ7X-60B";
    QTest::newRow("15k") << "RZ7X-15A";
    QTest::newRow("138k") << "RZ7X-138";
}

void LoadingTest::unknownTextsShowNothing() {
    QFETCH(QString, device);
    Bench bench(device);
    const ConfigMap good = accepted(bench, {});
    bench.open(good, [&](Dialog& dialog) {
        for (const SavedKey& key : savedKeys()) {
            const auto* combo = qobject_cast<QComboBox*>(dialog.find(key.widget));
            if (combo == nullptr || key.from != From::Text) {
                continue;
            }
            ConfigMap config = good;
            // Another case of a text that is an item, and where there is none, no item at all.
            const QString saved = good.value(key.key).toString();
            const QString other = saved.toLower() != saved ? saved.toLower() : "no item";
            config.insert(key.key, other);
            bench.open(config, [&](Dialog& second) {
                QVERIFY2(second.combo(key.widget)->currentIndex() == -1, key.key);
                QVERIFY2(second.text(key.widget).isEmpty(), key.key);
            });
            QVERIFY2(bench.wasShown(), key.key);
        }
    });
    QCOMPARE(bench.takeMessages(), QStringList());
}

void LoadingTest::textsInPlaceOfKinds() {
    Bench bench("RZ7X-138");
    ConfigMap config = accepted(bench, cases().last().steps);
    for (QVariant& value : config) {
        if (value.type() != QVariant::StringList) {
            value = value.toString(); // as a host that keeps texts only would give it back
        }
    }
    bench.open(config, [&](Dialog& dialog) {
        ConfigMap shown = shownConfig(dialog);
        for (QVariant& value : shown) {
            value = value.type() == QVariant::StringList ? value : QVariant(value.toString());
        }
        shown.insert("ifChangedAllOfBias", "true");
        QCOMPARE(differences(shown, config), QStringList());
    });
    QVERIFY(bench.wasShown());
}

void LoadingTest::enabledKeysAreNotRestored() {
    Bench bench("RZ7X-60B");
    ConfigMap config = accepted(bench, {});
    config.insert("ENBALE_WAPATTERN0", true);
    config.insert("ENABLE_MASK0", true);
    bench.open(config, [&](Dialog& dialog) {
        QVERIFY(!dialog.isEnabled("comboBoxPattern"));
        QVERIFY(!dialog.isEnabled("lineEditMask"));
    });
    config.insert("WORD_ALIGNMENT", true);
    config.insert("ENBALE_WAPATTERN0", false);
    config.insert("ENABLE_MASK0", false);
    bench.open(config, [&](Dialog& dialog) {
        QVERIFY(dialog.isEnabled("comboBoxPattern"));
        QVERIFY(dialog.isEnabled("lineEditMask"));
    });
    QVERIFY(bench.wasShown());
}

void LoadingTest::lanesAreOpenedAndChecked() {
    Bench bench("RZ7X-60B");
    ConfigMap config = accepted(bench, {});
    config.insert("Q0_LN1", false);
    bench.occupy("other", holder({"Q0 Lane0", "Q0 Lane1"}));
    bench.open(config, [&](Dialog& dialog) {
        // A saved lane is opened even where another instance has come to hold it.
        QVERIFY(dialog.isEnabled("q0_l0"));
        QVERIFY(dialog.box("q0_l0")->isChecked());
        QVERIFY(!dialog.isEnabled("q0_l1"));
        QVERIFY(!dialog.box("q0_l1")->isChecked());
        QVERIFY(dialog.box("q0_l3")->isChecked());
    });
    QVERIFY(bench.wasShown());
}

void LoadingTest::biasOfTheStore_data() {
    QTest::addColumn<QString>("lanes");
    QTest::addColumn<QString>("store");
    QTest::addColumn<int>("bias");
    QTest::newRow("quad 0") << "Q0_LN0"
                            << "Q0_BIAS=11 Q1_BIAS=3" << 11;
    QTest::newRow("quad 1") << "Q1_LN2"
                            << "Q0_BIAS=11 Q1_BIAS=3" << 3;
    QTest::newRow("both: quad 1") << "Q0_LN0 Q1_LN0"
                                  << "Q0_BIAS=11 Q1_BIAS=3" << 3;
    QTest::newRow("both, quad 0's only") << "Q0_LN0 Q1_LN0"
                                         << "Q0_BIAS=11" << 11;
    QTest::newRow("both, none") << "Q0_LN0 Q1_LN0"
                                << "" << 7;
    QTest::newRow("quad 0, none") << "Q0_LN0"
                                  << "Q1_BIAS=3" << 7;
    QTest::newRow("no lane") << ""
                             << "Q0_BIAS=11 Q1_BIAS=3" << 7;
}

void LoadingTest::biasOfTheStore() {
    QFETCH(QString, lanes);
    QFETCH(QString, store);
    Bench bench("RZ7X-138");
    ConfigMap config = accepted(bench, {});
    for (const char* lane : {"Q0_LN0", "Q0_LN1", "Q0_LN2", "Q0_LN3", "Q1_LN0", "Q1_LN2"}) {
        config.insert(lane, lanes.split(' ').contains(lane));
    }
    QMap<QString, QVariant> data;
    for (const QString& entry : store.split(' ', Qt::SkipEmptyParts)) {
        data.insert(entry.section('=', 0, 0), entry.section('=', 1).toInt());
    }
    serdes::instance()->openProject(serdes::instance()->device(), bench.folder(), data);
    bench.open(config, [&](Dialog& dialog) { QTEST(dialog.spin("biasSpinBox")->value(), "bias"); });
    QVERIFY(bench.wasShown());
}

void LoadingTest::biasFlag_data() {
    QTest::addColumn<QVariant>("saved");
    QTest::addColumn<bool>("asks");
    QTest::addColumn<bool>("collected");
    QTest::newRow("true") << QVariant(true) << false << true;
    QTest::newRow("false") << QVariant(false) << false << false;
    QTest::newRow("missing") << QVariant() << true << false;
}

void LoadingTest::biasFlag() {
    QFETCH(QVariant, saved);
    QFETCH(bool, asks);
    Bench bench("RZ7X-60B");
    ConfigMap config = accepted(bench, {});
    serdes::instance()->openProject(serdes::instance()->device(), bench.folder(), {});
    config.insert("Q0_LN3", false);
    config.remove("ifChangedAllOfBias");
    if (saved.isValid()) {
        config.insert("ifChangedAllOfBias", saved);
    }
    const ConfigMap again = bench.open(config, [&](Dialog& dialog) { dialog.pressOk(); });
    QCOMPARE(bench.takeMessages().size(), asks ? 1 : 0); // No is the default
    QTEST(again.value("ifChangedAllOfBias").toBool(), "collected");
    QVERIFY(again.value("ifChangedAllOfBias").type() == QVariant::Bool);
}

void LoadingTest::loadingShowsNoWarning() {
    Bench bench("RZ7X-60B");
    ConfigMap config = accepted(bench, {});
    config.insert("TX_RATE", "0.1");
    config.insert("TX_RATE_RATIO", "5x");
    config.insert("FFEMODE", "Manual");
    config.insert("FFE_CM", 19);
    config.insert("FFE_C1", 19);
    bench.open(config, [&](Dialog& dialog) {
        QCOMPARE(bench.takeMessages(), QStringList());
        QCOMPARE(dialog.text("TXLineRate"), QString("0.1"));
        QCOMPARE(dialog.text("comboBoxTxLineRatio"), QString("5x"));
        QCOMPARE(dialog.text("cmSpinBox"), QString("19"));
        QCOMPARE(dialog.text("c1SpinBox"), QString("19"));
        dialog.pressOk(); // and now they are said
        QCOMPARE(bench.takeMessages().size(), 1);
        QVERIFY(dialog->isVisible());
    });
    QVERIFY(bench.wasShown());
}

void LoadingTest::whatOthersFixIsShown() {
    Bench bench("RZ7X-60B");
    const ConfigMap config = accepted(bench, {{"comboBoxMode", "Manual"},
                                              {"comboBoxRefMux0Source", "Q0 REFCLK0"},
                                              {"ReferenceMux0Freq", "100"}});
    QVERIFY(!config.isEmpty());
    bench.occupy("other", holder({}, {}, 0.0, "Q0_REFCLK0", 156.25));
    bench.open(config, [&](Dialog& dialog) {
        QCOMPARE(dialog.text("ReferenceMux0Freq"), QString("156.25"));
        QVERIFY(!dialog.isEnabled("ReferenceMux0Freq"));
    });
    const ConfigMap simple = accepted(bench, {{"CombBoxReferenceClockSource", "Q0 REFCLK1"},
                                              {"ReferenceClockFrequency", "100"},
                                              {"CombBoxPLLSelection", "QPLL1"}});
    QVERIFY(!simple.isEmpty());
    bench.occupy("other", holder({}, {"Q0_QPLL1"}, 10.3125, "Q0_REFCLK0", 156.25));
    bench.open(simple, [&](Dialog& dialog) {
        QCOMPARE(dialog.text("TXLineRate"), QString("10.3125"));
        QCOMPARE(dialog.text("CombBoxReferenceClockSource"), QString("Q0 REFCLK0"));
        QCOMPARE(dialog.text("ReferenceClockFrequency"), QString("156.25"));
        QVERIFY(!dialog.isEnabled("TXLineRate"));
        QVERIFY(!dialog.isEnabled("ReferenceClockFrequency"));
    });
    QVERIFY(bench.wasShown());
}

void LoadingTest::ownResourcesAreFree() {
    Bench bench("RZ7X-60B");
    const ConfigMap config = accepted(bench, {{"CombBoxPLLSelection", "QPLL0"},
                                              {"ReferenceClockFrequency", "156.25"},
                                              {"TXLineRate", "3.125"}});
    QVERIFY(!config.isEmpty());
    const std::unique_ptr<IPSERDESIP::Message> held(bench.model()->resourceMessage(config));
    bench.occupy("link0", *held);
    serdes::instance()->setEditing("link0");
    bench.open(config, [&](Dialog& dialog) {
        QVERIFY(dialog.isEnabled("TXLineRate"));
        QVERIFY(dialog.isEnabled("ReferenceClockFrequency"));
        QVERIFY(dialog.isEnabled("q0_l0"));
        QCOMPARE(dialog.text("ReferenceClockFrequency"), QString("156.25"));
        dialog.pressOk();
        QVERIFY(!dialog->isVisible());
    });
    QCOMPARE(bench.takeMessages(), QStringList());
}

void LoadingTest::frameIsRestored() {
    Bench bench("RZ7X-60B");
    ConfigMap config = accepted(bench, {});
    config.insert("file", "kept_file");
    config.insert("module", "kept_module");
    config.insert("LANG", 1);
    config.insert("Synthesis_tool", "Other");
    const ConfigMap again = bench.open(config, [&](Dialog& dialog) {
        QVERIFY(dialog->isOpening());
        QCOMPARE(dialog->fileName(), QString("kept_file"));
        QCOMPARE(dialog->moduleName(), QString("kept_module"));
        QCOMPARE(dialog->uiLanguageIndex(), 1);
        QCOMPARE(dialog->uiSynthesisTool(), QString("Other"));
        dialog.pressOk();
    });
    QCOMPARE(differences(again, config), QStringList());
}

void LoadingTest::everyWidgetIsSavedOrSaysWhyNot() {
    QSet<QString> covered{
        "biasSpinBox",     // one value a quad, in the store that the instances share
        "ButtonCalculate", // acts, holds nothing
    };
    for (int quad = 0; quad < 2; ++quad) {
        for (int lane = 0; lane < 4; ++lane) {
            covered.insert(QString("q%1_l%2").arg(quad).arg(lane)); // lane keys
        }
    }
    for (const SavedKey& key : savedKeys()) {
        covered.insert(key.widget);
    }
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) {
        QSet<QString> found;
        for (int page = 1; page <= 5; ++page) {
            for (const QWidget* widget : dialog.page(page)->findChildren<QWidget*>()) {
                const QString name = widget->objectName();
                const bool input = qobject_cast<const QComboBox*>(widget) != nullptr ||
                                   qobject_cast<const QLineEdit*>(widget) != nullptr ||
                                   qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                   qobject_cast<const QAbstractSpinBox*>(widget) != nullptr;
                if (input && !name.isEmpty() && !name.startsWith("qt_")) {
                    found.insert(name);
                }
            }
        }
        found.insert("c0Lael"); // the one label that is saved
        QCOMPARE(found - covered, QSet<QString>());
        QCOMPARE(covered - found, QSet<QString>());
    });
    QVERIFY(bench.wasShown());
}

QTEST_MAIN(LoadingTest)
#include "loading_test.moc"
