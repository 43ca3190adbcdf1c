// Transmit taps, receive equalisation, bias and the port figure under a user's hands.

#include "harness.h"

#include <serdesip/protocolgendlg.h>
#include <serdesip/serdes.h>

#include <QtTest>

using namespace DialogTest;
using IPSERDESIP::serdes;

namespace {

const QString tapWarning = "Warning: C0 must be greater than 20.";

} // namespace

class AnalogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void taps_data();
    void taps();
    void halfTypedTapsDoNotWarn();
    void automaticTaps();
    void automaticEqualisation();
    void biasFollowsTheStore_data();
    void biasFollowsTheStore();
    void biasIsLeftAloneByTheModes();
    void figureFollowsTheOptions();
    void figureOfTheStatedCase();
};

void AnalogTest::taps_data() {
    QTest::addColumn<int>("cm");
    QTest::addColumn<int>("c1");
    QTest::addColumn<QString>("c0");
    QTest::addColumn<bool>("good");
    QTest::newRow("10 9") << 10 << 9 << "21" << true;
    QTest::newRow("10 10") << 10 << 10 << "20" << false;
    QTest::newRow("0 0") << 0 << 0 << "40" << true;
    QTest::newRow("19 0") << 19 << 0 << "21" << true;
    QTest::newRow("19 1") << 19 << 1 << "20" << false;
    QTest::newRow("19 19") << 19 << 19 << "2" << false;
}

void AnalogTest::taps() {
    QFETCH(int, cm);
    QFETCH(int, c1);
    QFETCH(bool, good);
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("ffeModeCombox", "Manual"));
        QVERIFY(dialog.setNumber("cmSpinBox", cm));
        QCOMPARE(bench.takeMessages(), QStringList());
        QVERIFY(dialog.setNumber("c1SpinBox", c1));
        QCOMPARE(bench.takeMessages(), good ? QStringList() : QStringList{tapWarning});
        QTEST(dialog.text("c0Lael"), "c0");
        QCOMPARE(dialog.ask("calculateFFE_C0"), good);
        QCOMPARE(bench.takeMessages(), good ? QStringList() : QStringList{tapWarning});
        QCOMPARE(dialog.text("cmSpinBox"), QString::number(cm)); // nothing is corrected
    });
    QVERIFY(bench.wasShown());
}

void AnalogTest::halfTypedTapsDoNotWarn() {
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("ffeModeCombox", "Manual"));
        QVERIFY(dialog.setNumber("cmSpinBox", 19));
        auto* field = dialog.spin("c1SpinBox");
        field->selectAll();
        QTest::keyClicks(field, "10");
        QFocusEvent leave(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(field, &leave);
        QCoreApplication::processEvents();
        QCOMPARE(field->value(), 10);
        QCOMPARE(bench.takeMessages(), QStringList{tapWarning}); // once
        QCOMPARE(dialog.text("c0Lael"), QString("11"));
    });
    QVERIFY(bench.wasShown());
}

void AnalogTest::automaticTaps() {
    Bench bench("RZ7X-138");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("ffeModeCombox", "Manual"));
        for (const char* name : {"cmSpinBox", "c1SpinBox", "5/label", "5/label_2"}) {
            QVERIFY(dialog.isEnabled(name));
        }
        QVERIFY(dialog.setNumber("cmSpinBox", 5));
        QVERIFY(dialog.setNumber("c1SpinBox", 6));
        QCOMPARE(dialog.text("c0Lael"), QString("29"));
        QVERIFY(dialog.choose("ffeModeCombox", "Auto"));
        QCOMPARE(dialog.text("cmSpinBox"), QString("0"));
        QCOMPARE(dialog.text("c1SpinBox"), QString("0"));
        QCOMPARE(dialog.text("c0Lael"), QString("40"));
        for (const char* name : {"cmSpinBox", "c1SpinBox", "5/label", "5/label_2"}) {
            QVERIFY(!dialog.isEnabled(name));
        }
    });
    QVERIFY(bench.wasShown());
    QCOMPARE(bench.takeMessages(), QStringList());
}

void AnalogTest::automaticEqualisation() {
    Bench bench("RZ7X-15A");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("equalizationModeCombox", "Manual"));
        for (const char* name : {"attSpinBox", "boostSpinBox", "5/label_14", "5/label_15"}) {
            QVERIFY(dialog.isEnabled(name));
        }
        QVERIFY(dialog.setNumber("attSpinBox", 10));
        QVERIFY(dialog.setNumber("boostSpinBox", 15));
        QVERIFY(dialog.choose("equalizationModeCombox", "Auto"));
        QCOMPARE(dialog.text("attSpinBox"), QString("7"));
        QCOMPARE(dialog.text("boostSpinBox"), QString("9"));
        for (const char* name : {"attSpinBox", "boostSpinBox", "5/label_14", "5/label_15"}) {
            QVERIFY(!dialog.isEnabled(name));
        }
        QVERIFY(!dialog.setNumber("attSpinBox", 3));
        QCOMPARE(dialog.spin("attSpinBox")->maximum(), 10);
        QCOMPARE(dialog.spin("boostSpinBox")->maximum(), 15);
        QCOMPARE(dialog.spin("biasSpinBox")->maximum(), 15);
        QCOMPARE(dialog.spin("cmSpinBox")->maximum(), 19);
        QCOMPARE(dialog.spin("c1SpinBox")->maximum(), 19);
    });
    QVERIFY(bench.wasShown());
}

void AnalogTest::biasFollowsTheStore_data() {
    QTest::addColumn<QString>("store");
    QTest::addColumn<QStringList>("lanes");
    QTest::addColumn<int>("bias");
    QTest::newRow("quad 0") << "Q0_BIAS=11 Q1_BIAS=3" << QStringList{"q0_l0"} << 11;
    QTest::newRow("quad 1") << "Q0_BIAS=11 Q1_BIAS=3" << QStringList{"q1_l0"} << 3;
    QTest::newRow("both") << "Q0_BIAS=11 Q1_BIAS=3" << QStringList{"q0_l0", "q1_l0"} << 7;
    QTest::newRow("nothing stored") << "" << QStringList{"q0_l0"} << 5;
    QTest::newRow("the other's") << "Q1_BIAS=3" << QStringList{"q0_l0"} << 5;
    QTest::newRow("both, then one")
        << "Q0_BIAS=11" << QStringList{"q0_l0", "q1_l0", "-q1_l0"} << 11;
    QTest::newRow("one, then none") << "Q0_BIAS=11" << QStringList{"q0_l0", "-q0_l0"} << 7;
}

void AnalogTest::biasFollowsTheStore() {
    QFETCH(QString, store);
    QFETCH(QStringList, lanes);
    Bench bench("RZ7X-138");
    for (const QString& entry : store.split(' ', Qt::SkipEmptyParts)) {
        serdes::instance()->setData(entry.section('=', 0, 0), entry.section('=', 1).toInt());
    }
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.setNumber("biasSpinBox", 5)); // stays where nothing else is said
        for (QString lane : lanes) {
            const bool on = !lane.startsWith('-');
            QVERIFY(dialog.check(lane.remove('-'), on));
        }
        QTEST(dialog.spin("biasSpinBox")->value(), "bias");
    });
    QVERIFY(bench.wasShown());
}

void AnalogTest::biasIsLeftAloneByTheModes() {
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.setNumber("biasSpinBox", 5));
        for (const char* mode : {"Manual", "Auto"}) {
            QVERIFY(dialog.choose("equalizationModeCombox", mode));
            QVERIFY(dialog.choose("ffeModeCombox", mode));
            QCOMPARE(dialog.text("biasSpinBox"), QString("5"));
            QVERIFY(dialog.isEnabled("biasSpinBox"));
        }
    });
    QVERIFY(bench.wasShown());
}

void AnalogTest::figureFollowsTheOptions() {
    Bench bench("RZ7X-138");
    bench.create([&](Dialog& dialog) {
        QCOMPARE(dialog.pins(), QStringList());
        QVERIFY(dialog.check("q0_l0", true));
        QCOMPARE(dialog.pins().size(), 13 + 9 + 5 + 5 + 5);
        QVERIFY(dialog.check("checkBoxDRPPort", true));
        QCOMPARE(dialog.pins().last(), QString("drp_resp_o"));
        QVERIFY(dialog.check("q1_l3", true));
        QCOMPARE(dialog.pins().size(), 2 * 37 + 10); // one port of that kind
        QCOMPARE(dialog.pins().at(37), QString("q1_ln3_ready_o"));
        QVERIFY(dialog.choose("comboBoxClockCorrection", "One Word"));
        QCOMPARE(dialog.pins().filter("cc_clk_i"),
                 (QStringList{"q0_ln0_cc_clk_i", "q1_ln3_cc_clk_i"}));
        QVERIFY(dialog.choose("comboBoxRXChannelBoding", "Four Words"));
        QCOMPARE(dialog.pins().filter("cb_start_i").size(), 2);
        QVERIFY(dialog.check("WordAlignment", true));
        QCOMPARE(dialog.pins().mid(37, 4),
                 (QStringList{"q0_ln0_cc_clk_i", "q0_ln0_cb_start_i", "q0_ln0_word_align_link_o",
                              "q0_ln0_k_lock_o"}));
        QVERIFY(dialog.choose("comboBoxClockCorrection", "None"));
        QVERIFY(dialog.choose("comboBoxRXChannelBoding", "None"));
        QVERIFY(dialog.check("WordAlignment", false));
        QVERIFY(dialog.check("checkBoxDRPPort", false));
        QVERIFY(dialog.check("q0_l0", false));
        QVERIFY(dialog.check("q1_l3", false));
        QCOMPARE(dialog.pins(), QStringList());
    });
    QVERIFY(bench.wasShown());
}

void AnalogTest::figureOfTheStatedCase() {
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.choose("comboBoxRXInternalDataWidth", "16"));
        QVERIFY(dialog.choose("comboBoxRXExternalDataRatio", "1:4"));
        QVERIFY(dialog.choose("comboBoxRxDecoding", "64B66B"));
        QVERIFY(dialog.choose("comboBoxTxEncoding", "8B10B"));
        const QStringList pins = dialog.pins();
        QCOMPARE(pins.size(), 27);
        QCOMPARE(pins.at(13), QString("q0_ln0_rx_her_hi_o"));
        QCOMPARE(pins.at(22), QString("q0_ln0_tx_fifo_full_o"));
        QVERIFY(dialog.choose("comboBoxRxDecoding", "OFF"));
        QCOMPARE(dialog.pins().size(), 13 + 5 + 5);
    });
    QVERIFY(bench.wasShown());
}

QTEST_MAIN(AnalogTest)
#include "analog_test.moc"
