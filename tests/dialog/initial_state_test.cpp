// What a fresh dialog shows on each device class, widget by widget.

#include "harness.h"

#include <serdesip/protocolgendlg.h>

#include <QPushButton>
#include <QtTest>

using namespace DialogTest;

namespace {

// What a widget is on the 60k, the 15k and the 138k class: "open" or "shut" (enabled or not), in
// front "-" where the page does not show it, "?" for an enabled state that nobody can see; then
// what it shows. One column stands for all three.
struct Row {
    const char* name;
    const char* k60;
    const char* k15 = nullptr;
    const char* k138 = nullptr;
};

// clang-format off
const Row rows[] = {
    {"q0_l0", "open unchecked"},
    {"q0_l1", "open unchecked"},
    {"q0_l2", "open unchecked"},
    {"q0_l3", "open unchecked"},
    {"q1_l0", "shut unchecked", "shut unchecked", "open unchecked"},
    {"q1_l1", "shut unchecked", "shut unchecked", "open unchecked"},
    {"q1_l2", "shut unchecked", "shut unchecked", "open unchecked"},
    {"q1_l3", "shut unchecked", "shut unchecked", "open unchecked"},
    {"comboBoxOperationMode", "open TX and RX", "open TX and RX", "-shut TX and RX"},
    {"TXLineRate", "open 1.25"},
    {"RXLineRate", "open 1.25"},
    {"comboBoxTxLineRatio", "shut NA"},
    {"comboBoxMode", "open Auto"},
    {"CombBoxReferenceClockSource", "open Q0 REFCLK0"},
    {"ReferenceClockFrequency", "open 125"},
    {"CombBoxPLLSelection", "open CPLL"},
    {"CombBoxPLLRefSource", "shut "},
    {"CombBoxRxRefSource", "shut ", "-shut ", "shut "},
    {"comboBoxRefMux0Source", "shut "},
    {"comboBoxRefMux1Source", "shut "},
    {"comboBoxRefMux2Source", "shut ", "-shut ", "-shut "},
    {"comboBoxRefMux3Source", "shut ", "-shut ", "-shut "},
    {"ReferenceMux0Freq", "shut "},
    {"ReferenceMux1Freq", "shut "},
    {"ReferenceMux2Freq", "shut ", "-shut ", "-shut "},
    {"ReferenceMux3Freq", "shut ", "-shut ", "-shut "},
    {"GpioFrequency", "-shut *", "shut 50", "-shut *"},
    {"MclkFrequency", "-shut *", "shut 50", "-shut *"},
    {"LoopbackMode", "open OFF"},
    {"checkBoxDRPPort", "open unchecked"},

    {"comboBoxInternalDataWidth",   "-? 10", "-? 10", "open 10"},
    {"comboBoxTXInternalDataWidth", "open 10", "open 10", "-? 10"},
    {"comboBoxRXInternalDataWidth", "open 10", "open 10", "-? 10"},
    {"comboBoxTXExternalDataRatio", "open 1:1"},
    {"comboBoxRXExternalDataRatio", "open 1:1"},
    {"comboBoxTxEncoding", "open OFF", "open OFF", "-? OFF"},
    {"comboBoxRxDecoding", "open OFF", "open OFF", "-? OFF"},
    {"comboBox64B66BMode", "shut ", "shut ", "-? 10GBASER with FIFO"},
    {"lineEditRxInterMetaFrameLength", "shut ", "shut ", "-? 32"},
    {"checkBoxEncoding", "-? unchecked", "-? unchecked", "open unchecked"},
    {"checkBoxDecoding", "-? unchecked", "-? unchecked", "open unchecked"},
    {"WordAlignment", "open unchecked"},
    {"comboBoxPattern", "shut K28.5"},
    {"lineEditMask", "shut 1111111111"},
    {"checkBoxTxBitPolarityInvert", "open unchecked"},
    {"checkBoxRxBitPolarityInvert", "open unchecked"},

    {"checkBoxTXChannelBoding", "open unchecked"},
    {"comboBoxTXMasterChannelSelection", "shut "},
    {"comboBoxTXReadStartDepth", "shut 16"},
    {"comboBoxRXChannelBoding", "open None"},
    {"comboBoxRXMasterChannelSelection", "shut "},
    {"lineEditPattern0", "shut 7C"},
    {"lineEditPattern1", "shut 7C"},
    {"lineEditPattern2", "shut 7C"},
    {"lineEditPattern3", "shut 7C"},
    {"checkBoxPattern1Character", "shut unchecked"},
    {"checkBoxPattern2Character", "shut unchecked"},
    {"checkBoxPattern3Character", "shut unchecked"},
    {"comboBoxPatternMaxSkew", "shut 8"},
    {"comboBoxRXReadStartDepth", "shut 16"},

    {"comboBoxClockCorrection", "open None"},
    {"comboBoxClockSource", "open User"},
    {"comboBoxMasterChannelSel", "shut "},
    {"lineEditCTCPattern0", "shut 7C"},
    {"lineEditCTCPattern1", "shut 7C"},
    {"checkBoxCTCPattern1isK", "shut unchecked"},
    {"comboBoxCTCReadStartDepth", "shut 16"},

    {"differeSwingComboBox", "open 900mV"},
    {"ffeModeCombox", "open Auto"},
    {"cmSpinBox", "shut 0"},
    {"5/label", "shut (0~19)"},
    {"c0Lael", "open 40"},
    {"c1SpinBox", "shut 0"},
    {"5/label_2", "shut (0~19)"},
    {"sdThresholdComboBox", "open 100mV"},
    {"equalizationModeCombox", "open Auto"},
    {"attSpinBox", "shut 7"},
    {"5/label_14", "shut (0~10)"},
    {"biasSpinBox", "open 7"},
    {"5/label_16", "open (0~15)"},
    {"boostSpinBox", "shut 9"},
    {"5/label_15", "shut (0~15)"},
};

// Items of the combo boxes, the data behind a colon where they carry some.
const Row itemRows[] = {
    {"comboBoxOperationMode", "TX and RX|TX Only|RX Only"},
    {"comboBoxTxLineRatio", "NA"},
    {"comboBoxMode", "Auto|Manual"},
    {"CombBoxReferenceClockSource",
     "Q0 REFCLK0:0|Q0 REFCLK1:1|Q0 REFCLK2:2|Q0 REFCLK3:3|Q0 REFIN0:4|Q0 REFIN1:5",
     "Q0 REFCLK0:0|Q0 REFCLK1:1|Q0 REFIN:2|MCLK:3",
     "Q0 REFCLK0:0|Q0 REFCLK1:1|Q1 REFCLK0:2|Q1 REFCLK1:3"},
    {"CombBoxPLLSelection", "QPLL0|QPLL1|CPLL"},
    {"CombBoxPLLRefSource", ""},
    {"CombBoxRxRefSource", ""},
    {"comboBoxRefMux0Source", ""},
    {"comboBoxRefMux1Source", ""},
    {"comboBoxRefMux2Source", ""},
    {"comboBoxRefMux3Source", ""},
    {"LoopbackMode", "OFF|LB_NES|LB_FES|LB_ENC"},
    {"comboBoxInternalDataWidth", "8|10|16|20"},
    {"comboBoxTXInternalDataWidth", "8|10|16|20"},
    {"comboBoxRXInternalDataWidth", "8|10|16|20"},
    {"comboBoxTXExternalDataRatio", "1:1:1|1:2:2|1:4:4"},
    {"comboBoxRXExternalDataRatio", "1:1:1|1:2:2|1:4:4"},
    {"comboBoxTxEncoding", "OFF|8B10B", "OFF|8B10B", "OFF|8B10B|64B66B|64B67B"},
    {"comboBoxRxDecoding", "OFF|8B10B", "OFF|8B10B", "OFF|8B10B|64B66B|64B67B"},
    {"comboBox64B66BMode", "10GBASER with FIFO|Async with FIFO"},
    {"comboBoxPattern",
     "K28.0|K28.1|K28.2|K28.3|K28.4|K28.5|K28.6|K28.7|K23.7|K27.7|K29.7|K30.7"},
    {"comboBoxTXMasterChannelSelection", ""},
    {"comboBoxRXChannelBoding", "None:0|One Word:1|Two Words:2|Four Words:4"},
    {"comboBoxRXMasterChannelSelection", ""},
    {"comboBoxClockCorrection", "None:0|One Word:1|Two Words:3"},
    {"comboBoxClockSource", "User|TX"},
    {"comboBoxMasterChannelSel", ""},
    {"differeSwingComboBox",
     "180mV|228mV|276mV|324mV|372mV|420mV|468mV|516mV|564mV|612mV|660mV|708mV|756mV|804mV|852mV|900mV"},
    {"ffeModeCombox", "Auto|Manual"},
    {"sdThresholdComboBox", "25mV|50mV|75mV|100mV|125mV|150mV|175mV|200mV"},
    {"equalizationModeCombox", "Auto|Manual"},
};

const char* const depthBoxes[] = {"comboBoxTXReadStartDepth", "comboBoxPatternMaxSkew",
                                  "comboBoxRXReadStartDepth", "comboBoxCTCReadStartDepth"};
// clang-format on

const char* const devices[] = {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"};

QString forClass(const Row& row, int which) {
    const char* column = which == 0 ? row.k60 : which == 1 ? row.k15 : row.k138;
    return QString::fromLatin1(column != nullptr ? column : row.k60);
}

void addClasses() {
    QTest::addColumn<int>("which");
    QTest::newRow("60k") << 0;
    QTest::newRow("15k") << 1;
    QTest::newRow("138k") << 2;
}

} // namespace

class InitialStateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tabs();
    void everyWidget_data() { addClasses(); }
    void everyWidget();
    void everyItem_data() { addClasses(); }
    void everyItem();
    void groups_data() { addClasses(); }
    void groups();
    void everyDeviceIsOfItsClass_data();
    void everyDeviceIsOfItsClass();
    void frame();
    void occupiedLanesStayShut_data();
    void occupiedLanesStayShut();
    void openingShowsNoBox_data() { addClasses(); }
    void openingShowsNoBox();
    void validators();
    void masks();
};

void InitialStateTest::tabs() {
    Bench bench("RZ7X-60B");
    bench.create([](Dialog& dialog) {
        QCOMPARE(dialog.pageCount(), 5);
        QCOMPARE(dialog.tabTitle(1), QString("Channel,Line Rate,Refclk Selection"));
        QCOMPARE(dialog.tabTitle(2), QString("Data Width,Encoding,RX Word Alignment"));
        QCOMPARE(dialog.tabTitle(3), QString("Channel Bonding"));
        QCOMPARE(dialog.tabTitle(4), QString("RX Clock Correction"));
        QCOMPARE(dialog.tabTitle(5), QString("AFE"));
        for (int page = 1; page <= 5; ++page) {
            QVERIFY(dialog.page(page)->window() == dialog.get());
        }
    });
    QVERIFY(bench.wasShown());
}

void InitialStateTest::everyWidget() {
    QFETCH(int, which);
    Bench bench(devices[which]);
    bench.create([&](Dialog& dialog) {
        QStringList actual;
        QStringList expected;
        for (const Row& row : rows) {
            const QString state = forClass(row, which);
            QString shown = dialog.isShown(row.name) ? "" : "-";
            shown += state.contains('?') ? "?" : dialog.isEnabled(row.name) ? "open" : "shut";
            shown += ' ' + (state.endsWith('*') ? QString("*") : dialog.text(row.name));
            actual.append(row.name + QString(": ") + shown);
            expected.append(row.name + QString(": ") + state);
        }
        QCOMPARE(actual, expected);
        QVERIFY(dialog.isUsable("ButtonCalculate"));
        QCOMPARE(dialog.as<QPushButton>("ButtonCalculate")->text(), QString("Calculate"));
    });
    QVERIFY(bench.wasShown());
}

void InitialStateTest::everyItem() {
    QFETCH(int, which);
    Bench bench(devices[which]);
    bench.create([&](Dialog& dialog) {
        for (const Row& row : itemRows) {
            const QStringList data = dialog.itemData(row.name);
            QStringList items = dialog.items(row.name);
            for (int i = 0; i < items.size(); ++i) {
                items[i] += data.at(i).isEmpty() ? QString() : ':' + data.at(i);
            }
            QCOMPARE(row.name + (' ' + items.join('|')), row.name + (' ' + forClass(row, which)));
        }
        for (const char* name : depthBoxes) {
            QStringList numbers;
            for (int i = 0; i <= 31; ++i) {
                numbers.append(QString::number(i));
            }
            QCOMPARE(dialog.items(name), numbers);
        }
    });
}

void InitialStateTest::groups() {
    QFETCH(int, which);
    const bool listed = which != 2;
    Bench bench(devices[which]);
    bench.create([&](Dialog& dialog) {
        QCOMPARE(dialog.isShown("groupBoxOperationMode"), listed);
        QCOMPARE(dialog.isEnabled("groupBoxOperationMode"), listed);
        QCOMPARE(dialog.isShown("groupBox_txrxmode"), listed);
        QCOMPARE(dialog.isShown("groupBox_8b_10b"), !listed);
        // A row that is taken out takes its captions and units along.
        QCOMPARE(dialog.isShown("labelInternalDataWidth"), !listed);
        QCOMPARE(dialog.isShown("labeltxInternalDataWidth"), listed);
        QCOMPARE(dialog.isShown("labelrxInternalDataWidth"), listed);
        QCOMPARE(dialog.isShown("labelGpioFreq"), which == 1);
        QCOMPARE(dialog.isShown("labelMclkFreq"), which == 1);
        QCOMPARE(dialog.isShown("labelRxRefSrc"), which != 1);
        for (const char* name : {"labemux2", "labelfreq2", "labemux3", "labelfreq3"}) {
            QCOMPARE(dialog.isShown(name), which == 0);
        }
        for (const char* name : {"labemux0", "labelfreq0", "labemux1", "labelfreq1"}) {
            QVERIFY(dialog.isShown(name));
        }
    });
}

void InitialStateTest::everyDeviceIsOfItsClass_data() {
    QTest::addColumn<int>("which");
    for (const char* name : {"RZ7X-60B", "RZ7X-60ES"}) {
        QTest::newRow(name) << 0;
    }
    for (const char* name :
         {"RZ7X-15A", "RZ7XR-15A", "RZ7XR-15B", "RZ7X-15B", "RZ7NX-15A", "RZ7NXR-15A"}) {
        QTest::newRow(name) << 1;
    }
    for (const char* name : {"RZ7X-138", "RZ7X-138B", "rz7x-60b", "RZ7X-60", "anything"}) {
        QTest::newRow(name) << 2;
    }
}

void InitialStateTest::everyDeviceIsOfItsClass() {
    QFETCH(int, which);
    Bench bench(QTest::currentDataTag());
    bench.create([&](Dialog& dialog) {
        const char* const last[] = {"Q0 REFIN1", "MCLK", "Q1 REFCLK1"};
        QCOMPARE(dialog.items("CombBoxReferenceClockSource").last(), QString(last[which]));
        QCOMPARE(dialog.isShown("comboBoxRefMux3Source"), which == 0);
        QCOMPARE(dialog.isShown("GpioFrequency"), which == 1);
        QCOMPARE(dialog.isShown("comboBoxInternalDataWidth"), which == 2);
    });
    QVERIFY(bench.wasShown());
}

void InitialStateTest::frame() {
    Bench bench("RZ7X-138");
    bench.create(
        [](Dialog& dialog) {
            QCOMPARE(dialog->windowTitle(), QString("Customized PHY"));
            QCOMPARE(dialog->fileName(), QString("link7"));
            QCOMPARE(dialog->moduleName(), QString("link7"));
            QCOMPARE(dialog->device().device(), QString("RZ7X-138"));
            QVERIFY(!dialog->isOpening());
            QVERIFY(dialog->isModal());
        },
        "link7");
    QVERIFY(bench.wasShown());
}

void InitialStateTest::occupiedLanesStayShut_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QStringList>("held");
    const QStringList quad0{"Q0 Lane0", "Q0 Lane1", "Q0 Lane2", "Q0 Lane3"};
    const QStringList quad1{"Q1 Lane0", "Q1 Lane1", "Q1 Lane2", "Q1 Lane3"};
    QTest::newRow("60k, one") << "RZ7X-60B" << QStringList{"Q0 Lane2"};
    QTest::newRow("60k, all") << "RZ7X-60B" << quad0;
    QTest::newRow("15k, two") << "RZ7X-15A" << QStringList{"Q0 Lane0", "Q0 Lane3"};
    QTest::newRow("138k, quad 0") << "RZ7X-138" << quad0;
    QTest::newRow("138k, one of each") << "RZ7X-138" << QStringList{"Q0 Lane1", "Q1 Lane3"};
    QTest::newRow("138k, all") << "RZ7X-138" << QStringList(quad0 + quad1);
}

void InitialStateTest::occupiedLanesStayShut() {
    QFETCH(QString, device);
    QFETCH(QStringList, held);
    Bench bench(device);
    bench.occupy("other", holder(held));
    bench.create([&](Dialog& dialog) {
        const int quads = device == "RZ7X-138" ? 2 : 1;
        for (int quad = 0; quad < 2; ++quad) {
            for (int lane = 0; lane < 4; ++lane) {
                const QString caption = QString("Q%1 Lane%2").arg(quad).arg(lane);
                const QString name = QString("q%1_l%2").arg(quad).arg(lane);
                QCOMPARE(dialog.box(name)->text(), caption);
                QCOMPARE(dialog.isEnabled(name), quad < quads && !held.contains(caption));
                QCOMPARE(dialog.check(name, true), dialog.isEnabled(name));
            }
        }
    });
    QVERIFY(bench.wasShown());
}

void InitialStateTest::openingShowsNoBox() {
    QFETCH(int, which);
    Bench bench(devices[which]);
    bench.create([](Dialog&) {});
    QVERIFY(bench.wasShown());
    QCOMPARE(bench.takeMessages(), QStringList());
}

void InitialStateTest::validators() {
    Bench bench("RZ7X-15A");
    bench.create([](Dialog& dialog) {
        const auto accepts = [&](const char* name, const char* text) {
            QString typed = text;
            int cursor = 0;
            const QValidator* validator = dialog.edit(name)->validator();
            return validator != nullptr &&
                   validator->validate(typed, cursor) == QValidator::Acceptable;
        };
        for (const char* name : {"TXLineRate", "RXLineRate"}) {
            for (const char* good : {"", "1", "12", "12.5", ".5", "0.12345678", "99.99999999"}) {
                QVERIFY2(accepts(name, good), good);
            }
            for (const char* bad : {"123", "1.", "1.123456789", "-1", "1,5", "1e3", " 1"}) {
                QVERIFY2(!accepts(name, bad), bad);
            }
        }
        for (const char* name : {"ReferenceClockFrequency", "ReferenceMux0Freq",
                                 "ReferenceMux1Freq", "GpioFrequency", "MclkFrequency"}) {
            for (const char* good : {"1", "125", "999.99999999", "050"}) {
                QVERIFY2(accepts(name, good), good);
            }
            for (const char* bad : {"", "1234", "125.", ".5", "1.123456789", "-1", "1e2"}) {
                QVERIFY2(!accepts(name, bad), bad);
            }
        }
        for (const char* good : {"1", "5", "99999", "10000"}) {
            QVERIFY2(accepts("lineEditRxInterMetaFrameLength", good), good);
        }
        for (const char* bad : {"", "0", "012", "123456", "1.5"}) {
            QVERIFY2(!accepts("lineEditRxInterMetaFrameLength", bad), bad);
        }
    });
    Bench four("RZ7X-60B");
    four.create([](Dialog& dialog) {
        for (const char* name : {"ReferenceMux2Freq", "ReferenceMux3Freq"}) {
            QVERIFY(dialog.edit(name)->validator() != nullptr);
        }
    });
}

void InitialStateTest::masks() {
    Bench bench("RZ7X-138B");
    bench.create([](Dialog& dialog) {
        QCOMPARE(dialog.edit("lineEditMask")->inputMask(), QString("BBBBBBBBBB;0"));
        for (const char* name :
             {"lineEditPattern0", "lineEditPattern1", "lineEditPattern2", "lineEditPattern3",
              "lineEditCTCPattern0", "lineEditCTCPattern1"}) {
            QCOMPARE(dialog.edit(name)->inputMask(), QString(">HH;0"));
        }
    });
}

QTEST_MAIN(InitialStateTest)
#include "initial_state_test.moc"
