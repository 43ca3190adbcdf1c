// The dialog's slots by index, and which of them each signal runs.

#include "harness.h"
#include "slotspy.h"

#include <serdesip/protocolgendlg.h>

#include <QMetaMethod>
#include <QPushButton>
#include <QtTest>

using namespace DialogTest;

namespace {

// clang-format off
/// Signature and return type, in index order.
const struct { const char* signature; const char* returns; } slotTable[] = {
    {"accept()",                         "void"},
    {"refreshFigure()",                  "void"},
    {"updatePLLSelection()",             "void"},
    {"updateEnableEncoding()",           "void"},
    {"updateEnableDecoding()",           "void"},
    {"onWordAlignmentUpdate()",          "void"},
    {"updateRXMasterChannelSelection()", "void"},
    {"onRXChannelBondingUpdate()",       "void"},
    {"updateTXMasterChannelSelection()", "void"},
    {"updateCTCReadStartDepth()",        "void"},
    {"onButtonCalculateClicked(bool)",   "bool"},
    {"onButtonCalculateClicked()",       "bool"},
    {"checkRoute()",                     "bool"},
    {"updatedRefClkFreq()",              "void"},
    {"onRXDecodingModeChanged()",        "void"},
    {"onTXEncodingModeChanged()",        "void"},
    {"checkRXInterlakenMetaFrameLength()", "void"},
    {"checkTxLineRate()",                "void"},
    {"checkRxLineRate()",                "void"},
    {"checkRefClkFreq()",                "void"},
    {"onTxRateOrRatioChanged()",         "bool"},
    {"updatedTxRateByRatio()",           "void"},
    {"updateClkSrc()",                   "void"},
    {"updatedMasterChannelSel()",        "void"},
    {"calculateFFE_C0()",                "bool"},
    {"onFFEModeChanged()",               "void"},
    {"onEqualizationModeChanged()",      "void"},
    {"resetFlagforBias()",               "void"},
    {"updateBiasDefaultValue()",         "void"},
    {"onOperationModeChanged()",         "void"},
    {"onRefModeChanged()",               "void"},
    {"checkMuxIfUsed_138k()",            "void"},
    {"checkMuxIfUsed_60k()",             "void"},
    {"checkMuxIfUsed_15k()",             "void"},
    {"updatedRefClkFreqForMux0()",       "void"},
    {"updatedRefClkFreqForMux1()",       "void"},
    {"updatedRefClkFreqForMux2()",       "void"},
    {"updatedRefClkFreqForMux3()",       "void"},
    {"checkRefClkFreqisRepeat()",        "bool"},
};

const char* const laneSlots = "updatePLLSelection updateClkSrc updatedMasterChannelSel "
                              "resetFlagforBias updateBiasDefaultValue onRefModeChanged";
const char* const laneSlotsInRxOnly = "updatePLLSelection updateClkSrc updatedMasterChannelSel "
                                      "resetFlagforBias updateBiasDefaultValue";
// clang-format on

struct Wire {
    QString sender;
    QString signal;
    QString slots_; ///< in order; "widget.slot" where the receiver is not the dialog
};

/// What each signal must run on a class, "listed" or "138k"; the transmit ratio box stands aside.
QList<Wire> wiring(bool listed, const char* ofLanes) {
    QList<Wire> wires;
    for (int quad = 0; quad < 2; ++quad) {
        for (int lane = 0; lane < 4; ++lane) {
            wires.append({QString("q%1_l%2").arg(quad).arg(lane), "toggled(bool)", ofLanes});
        }
    }
    // clang-format off
    wires += QList<Wire>{
        {"CombBoxPLLSelection",         "currentIndexChanged(int)",     "updatePLLSelection"},
        {"CombBoxPLLSelection",         "currentIndexChanged(QString)", ""},
        {"comboBoxOperationMode",       "currentIndexChanged(int)",     listed ? "onOperationModeChanged" : ""},
        {"ReferenceClockFrequency",     "editingFinished()",            "checkRefClkFreq"},
        {"RXLineRate",                  "editingFinished()",            "checkRxLineRate"},
        {"TXLineRate",                  "editingFinished()",            "checkTxLineRate"},
        {"CombBoxReferenceClockSource", "currentIndexChanged(QString)", "updatedRefClkFreq"},
        {"CombBoxReferenceClockSource", "currentIndexChanged(int)",     ""},
        {"checkBoxDRPPort",             "toggled(bool)",                "refreshFigure"},
        {"comboBoxMode",                "currentIndexChanged(QString)", "onRefModeChanged"},
        {"comboBoxMode",                "currentIndexChanged(int)",     ""},
        {"comboBoxRefMux0Source",       "currentIndexChanged(QString)", "updatedRefClkFreqForMux0"},
        {"comboBoxRefMux1Source",       "currentIndexChanged(QString)", "updatedRefClkFreqForMux1"},
        {"comboBoxRefMux2Source",       "currentIndexChanged(QString)", "updatedRefClkFreqForMux2"},
        {"comboBoxRefMux3Source",       "currentIndexChanged(QString)", "updatedRefClkFreqForMux3"},
        {"CombBoxPLLRefSource",         "currentIndexChanged(int)",     ""},
        {"CombBoxRxRefSource",          "currentIndexChanged(int)",     ""},
        {"comboBoxTXInternalDataWidth", "currentIndexChanged(int)",     listed ? "updateEnableEncoding" : ""},
        {"comboBoxTXExternalDataRatio", "currentIndexChanged(int)",     listed ? "updateEnableEncoding" : ""},
        {"comboBoxRXInternalDataWidth", "currentIndexChanged(int)",     listed ? "updateEnableDecoding" : ""},
        {"comboBoxRXExternalDataRatio", "currentIndexChanged(int)",     listed ? "updateEnableDecoding" : ""},
        {"comboBoxInternalDataWidth",   "currentIndexChanged(int)",     listed ? "" : "updateEnableEncoding updateEnableDecoding"},
        {"comboBoxRxDecoding",          "currentIndexChanged(QString)", listed ? "onRXDecodingModeChanged" : ""},
        {"comboBoxRxDecoding",          "currentIndexChanged(int)",     "refreshFigure"},
        {"comboBoxTxEncoding",          "currentIndexChanged(QString)", listed ? "onTXEncodingModeChanged" : ""},
        {"comboBoxTxEncoding",          "currentIndexChanged(int)",     "refreshFigure"},
        {"lineEditRxInterMetaFrameLength", "editingFinished()",         listed ? "checkRXInterlakenMetaFrameLength" : ""},
        {"WordAlignment",               "toggled(bool)",                "onWordAlignmentUpdate refreshFigure"},
        {"comboBoxRXChannelBoding",     "currentIndexChanged(int)",     "updateRXMasterChannelSelection onRXChannelBondingUpdate refreshFigure"},
        {"checkBoxTXChannelBoding",     "toggled(bool)",                "updateTXMasterChannelSelection comboBoxTXReadStartDepth.setEnabled"},
        {"comboBoxClockCorrection",     "currentIndexChanged(int)",     "updateCTCReadStartDepth updatedMasterChannelSel refreshFigure"},
        {"cmSpinBox",                   "valueChanged(int)",            "calculateFFE_C0"},
        {"c1SpinBox",                   "valueChanged(int)",            "calculateFFE_C0"},
        {"ffeModeCombox",               "currentIndexChanged(int)",     "onFFEModeChanged"},
        {"equalizationModeCombox",      "currentIndexChanged(int)",     "onEqualizationModeChanged"},
        {"biasSpinBox",                 "valueChanged(int)",            "resetFlagforBias"},
    };
    // clang-format on
    return wires;
}

/// Emits the signal as the widget does and names the slots that it runs directly.
QString slotsRunBy(const Dialog& dialog, const QString& sender, const QString& signal) {
    QWidget* widget = dialog.find(sender);
    SlotSpy spy(dialog.get());
    const QByteArray name = signal.section('(', 0, 0).toUtf8();
    bool sent = false;
    if (signal.endsWith("(bool)")) {
        sent = QMetaObject::invokeMethod(widget, name.constData(), Qt::DirectConnection,
                                         Q_ARG(bool, dialog.box(sender)->isChecked()));
    } else if (signal.endsWith("(int)")) {
        const auto* combo = qobject_cast<QComboBox*>(widget);
        const int value = combo != nullptr ? combo->currentIndex() : dialog.spin(sender)->value();
        sent = QMetaObject::invokeMethod(widget, name.constData(), Qt::DirectConnection,
                                         Q_ARG(int, value));
    } else if (signal.endsWith("(QString)")) {
        sent = QMetaObject::invokeMethod(widget, name.constData(), Qt::DirectConnection,
                                         Q_ARG(QString, dialog.combo(sender)->currentText()));
    } else {
        sent = QMetaObject::invokeMethod(widget, name.constData(), Qt::DirectConnection);
    }
    return sent ? spy.outermost().join(' ') : QString("no signal %1 of %2").arg(signal, sender);
}

/// "sender signal: slots" for each row, as it is and as it must be.
struct Rows {
    QStringList actual;
    QStringList expected;
};

Rows compareWiring(const Dialog& dialog, bool listed, const char* ofLanes) {
    Rows rows;
    for (const Wire& wire : wiring(listed, ofLanes)) {
        const QString row = wire.sender + ' ' + wire.signal + ": ";
        rows.actual.append(row + slotsRunBy(dialog, wire.sender, wire.signal));
        rows.expected.append(row + wire.slots_);
    }
    return rows;
}

void addDevices() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("listed");
    QTest::newRow("60k") << "RZ7X-60B" << true;
    QTest::newRow("15k") << "RZ7X-15A" << true;
    QTest::newRow("138k") << "RZ7X-138" << false;
}

} // namespace

class SlotsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void indexOrder();
    void noFurtherMethods();
    void freshDialog_data() { addDevices(); }
    void freshDialog();
    void afterManyChanges_data() { addDevices(); }
    void afterManyChanges();
    void rxOnlyLetsGoOfTheLanes_data();
    void rxOnlyLetsGoOfTheLanes();
    void ratioBox();
    void calculateButton();
};

void SlotsTest::indexOrder() {
    QCOMPARE(std::size(slotTable), std::size_t(39));
    Bench bench("RZ7X-60B");
    bench.create([](Dialog& dialog) {
        const QMetaObject* meta = dialog->metaObject();
        QCOMPARE(meta->className(), "IPCUSTOMIZED::customizeddlg");
        QCOMPARE(meta->superClass()->className(), "IPSERDESIP::protocolGenDlg");
        int index = meta->methodOffset();
        for (const auto& slot : slotTable) {
            const QMetaMethod method = meta->method(index++);
            QCOMPARE(method.methodSignature(), QByteArray(slot.signature));
            QCOMPARE(QByteArray(method.typeName()), QByteArray(slot.returns));
            QCOMPARE(method.methodType(), QMetaMethod::Slot);
            const bool cloned = (method.attributes() & QMetaMethod::Cloned) != 0;
            QCOMPARE(cloned, method.methodSignature() == "onButtonCalculateClicked()");
        }
    });
    QVERIFY(bench.wasShown());
}

void SlotsTest::noFurtherMethods() {
    Bench bench("RZ7X-60B");
    bench.create([](Dialog& dialog) {
        const QMetaObject* meta = dialog->metaObject();
        QCOMPARE(meta->methodCount() - meta->methodOffset(), 39);
        QCOMPARE(meta->propertyCount(), meta->propertyOffset());
    });
}

void SlotsTest::freshDialog() {
    QFETCH(QString, device);
    QFETCH(bool, listed);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        const Rows rows = compareWiring(dialog, listed, laneSlots);
        QCOMPARE(rows.actual, rows.expected);
    });
    QVERIFY(bench.wasShown());
}

void SlotsTest::afterManyChanges() {
    QFETCH(QString, device);
    QFETCH(bool, listed);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        for (int round = 0; round < 3; ++round) {
            for (const char* mode : {"Manual", "Auto", "Manual", "Auto"}) {
                QVERIFY(dialog.choose("comboBoxMode", mode));
                dialog.check("q0_l0", true);
                dialog.check("q0_l1", round % 2 == 0);
                dialog.check("q0_l0", false);
                if (listed) {
                    for (const char* operation :
                         {"RX Only", "TX and RX", "RX Only", "TX Only", "TX and RX"}) {
                        QVERIFY(dialog.choose("comboBoxOperationMode", operation));
                        dialog.check("q0_l2", round % 2 == 1);
                    }
                }
            }
            for (const char* rate : {"0.5", "2", "0.5"}) {
                QVERIFY(dialog.type("TXLineRate", rate));
            }
            QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
            QVERIFY(dialog.choose("CombBoxPLLSelection", "CPLL"));
        }
        const Rows rows = compareWiring(dialog, listed, laneSlots);
        QCOMPARE(rows.actual, rows.expected);
        QCOMPARE(slotsRunBy(dialog, "comboBoxTxLineRatio", "currentIndexChanged(int)"),
                 QString("onTxRateOrRatioChanged"));
    });
    QVERIFY(bench.wasShown());
    QCOMPARE(bench.takeMessages(), QStringList());
}

void SlotsTest::rxOnlyLetsGoOfTheLanes_data() {
    QTest::addColumn<QString>("device");
    QTest::newRow("60k") << "RZ7X-60ES";
    QTest::newRow("15k") << "RZ7NXR-15A";
}

void SlotsTest::rxOnlyLetsGoOfTheLanes() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxOperationMode", "RX Only"));
        Rows rows = compareWiring(dialog, true, laneSlotsInRxOnly);
        QCOMPARE(rows.actual, rows.expected);
        QVERIFY(dialog.choose("comboBoxOperationMode", "TX Only"));
        rows = compareWiring(dialog, true, laneSlots);
        QCOMPARE(rows.actual, rows.expected);
    });
    QVERIFY(bench.wasShown());
}

void SlotsTest::ratioBox() {
    Bench bench("RZ7X-60B");
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL0"}, 0.5, "Q0_REFCLK0", 125));
    bench.create([&](Dialog& dialog) {
        const auto runs = [&] {
            return slotsRunBy(dialog, "comboBoxTxLineRatio", "currentIndexChanged(int)");
        };
        QCOMPARE(runs(), QString());
        QVERIFY(dialog.type("TXLineRate", "0.5"));
        QCOMPARE(runs(), QString("onTxRateOrRatioChanged"));
        QVERIFY(dialog.check("q0_l0", true));
        QCOMPARE(runs(), QString("onTxRateOrRatioChanged"));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
        QCOMPARE(runs(), QString("updatedTxRateByRatio"));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "CPLL"));
        QVERIFY(dialog.type("TXLineRate", "2"));
        QCOMPARE(runs(), QString());
    });
    // 0.1 was left by the fixed 0.5 at 5x; free again, 5 x 0.1 does not reach 1.
    QCOMPARE(bench.takeMessages(),
             QStringList{"Warning: If TX line rate less than 1Gbps, TX line rate*Ratio must be "
                         "equal or greater than 1Gbps."});
}

void SlotsTest::calculateButton() {
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) {
        SlotSpy spy(dialog.get());
        QVERIFY(dialog.click("ButtonCalculate"));
        QCOMPARE(spy.outermost().mid(0, 1), QStringList{"onButtonCalculateClicked"});
    });
}

QTEST_MAIN(SlotsTest)
#include "slots_test.moc"
