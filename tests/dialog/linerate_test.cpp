// Line rates and the oversampling ratio under a user's hands.

#include "harness.h"

#include <QtTest>

using namespace DialogTest;

namespace {

const QString ratioWarning =
    "Warning: If TX line rate less than 1Gbps, TX line rate*Ratio must be equal or greater than "
    "1Gbps.";

} // namespace

class LineRateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavingAField_data();
    void leavingAField();
    void unfinishedTextGivesTheDefault_data();
    void unfinishedTextGivesTheDefault();
    void aSlowRateWarnsOnce();
    void theWarningLooksPlain();
    void theRatioStaysOnARateChange();
    void aFastRateLeavesNothingToChoose();
    void aRatioTextThatIsNoneChangesNothing();
    void aFixedRealRate();
    void aFixedSlowRealRate();
    void aFixedPllNeverWarns();
    void theFixedRateOutlivesTheDialog();
    void laneToggleWarnsOnce();
};

void LineRateTest::leavingAField_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char* field, const char* typed, const char* shown) {
        QTest::addRow("%s %s", field, typed) << field << typed << shown;
    };
    row("RXLineRate", "0.99", "1.25");
    row("RXLineRate", "1", "1");
    row("RXLineRate", "12.5", "12.5");
    row("RXLineRate", "12.6", "1.25");
    row("RXLineRate", "", "1.25");
    row("RXLineRate", ".5", "1.25");
    row("TXLineRate", "0.0249", "1.25");
    row("TXLineRate", "0.025", "0.025");
    row("TXLineRate", "0.99", "0.99");
    row("TXLineRate", "12.5", "12.5");
    row("TXLineRate", "12.6", "1.25");
    row("TXLineRate", "", "1.25");
    row("TXLineRate", ".625", "0.625");
    row("ReferenceClockFrequency", "49.9", "125");
    row("ReferenceClockFrequency", "50", "50");
    row("ReferenceClockFrequency", "500", "500");
    row("ReferenceClockFrequency", "500.1", "125");
}

void LineRateTest::leavingAField() {
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    for (const char* device : {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"}) {
        Bench bench(device);
        bench.create([&](Dialog& dialog) {
            QVERIFY(dialog.type(field, typed));
            QCOMPARE(dialog.text(field), shown);
        });
        QVERIFY(bench.wasShown());
    }
}

void LineRateTest::unfinishedTextGivesTheDefault_data() {
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("shown");
    QTest::newRow("RX") << "RXLineRate"
                        << "1.25";
    QTest::newRow("TX") << "TXLineRate"
                        << "1.25";
    QTest::newRow("reference") << "ReferenceClockFrequency"
                               << "125";
    QTest::newRow("GPIO") << "GpioFrequency"
                          << "50";
    QTest::newRow("MCLK") << "MclkFrequency"
                          << "50";
    QTest::newRow("multiplexer") << "ReferenceMux0Freq"
                                 << "125";
}

void LineRateTest::unfinishedTextGivesTheDefault() {
    QFETCH(QString, field);
    QFETCH(QString, shown);
    for (const char* typed : {"12.", ""}) {
        Bench bench("RZ7X-15A");
        bench.create([&](Dialog& dialog) {
            if (!dialog.isEnabled(field)) {
                QVERIFY(dialog.choose("comboBoxMode", "Manual"));
                QVERIFY(dialog.choose("comboBoxRefMux0Source", "Q0 REFCLK0"));
            }
            QVERIFY(dialog.type(field, "66"));
            QVERIFY(dialog.type(field, typed) || QString(typed) == "12.");
            QCOMPARE(dialog.text(field), shown);
        });
        QVERIFY(bench.wasShown());
    }
}

void LineRateTest::aSlowRateWarnsOnce() {
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.type("TXLineRate", "0.1"));
        QCOMPARE(dialog.items("comboBoxTxLineRatio"), (QStringList{"5x", "10x", "20x", "40x"}));
        QCOMPARE(dialog.text("comboBoxTxLineRatio"), QString("5x"));
        QVERIFY(dialog.isEnabled("comboBoxTxLineRatio"));
        QCOMPARE(bench.takeMessages(), QStringList{ratioWarning}); // 0.5 < 1
        QCOMPARE(dialog.text("TXLineRate"), QString("0.1"));
        QVERIFY(!dialog.ask("onTxRateOrRatioChanged"));
        QCOMPARE(bench.takeMessages(), QStringList{ratioWarning});
        QVERIFY(dialog.choose("comboBoxTxLineRatio", "10x"));
        QCOMPARE(bench.takeMessages(), QStringList()); // 1.0 is enough
        QVERIFY(dialog.ask("onTxRateOrRatioChanged"));
        QVERIFY(dialog.choose("comboBoxTxLineRatio", "5x"));
        QCOMPARE(bench.takeMessages(), QStringList{ratioWarning});
    });
    QVERIFY(bench.wasShown());
}

void LineRateTest::theWarningLooksPlain() {
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) { QVERIFY(dialog.type("TXLineRate", "0.1")); });
    const QList<Box> boxes = bench.takeBoxes();
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().buttons, QStringList{"OK"});
    QVERIFY(boxes.first().icon == QMessageBox::NoIcon); // "about", not "warning"
    QVERIFY(boxes.first().isModal);
    QVERIFY(boxes.first().belongsToDialog);
}

void LineRateTest::theRatioStaysOnARateChange() {
    Bench bench("RZ7X-138");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.type("TXLineRate", "0.5"));
        QVERIFY(dialog.choose("comboBoxTxLineRatio", "20x"));
        QVERIFY(dialog.type("TXLineRate", "0.8"));
        QCOMPARE(dialog.text("comboBoxTxLineRatio"), QString("20x"));
        QVERIFY(dialog.check("q0_l0", true)); // the lane rules rebuild the box as well
        QCOMPARE(dialog.text("comboBoxTxLineRatio"), QString("20x"));
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QVERIFY(dialog.choose("comboBoxMode", "Auto"));
        QCOMPARE(dialog.text("comboBoxTxLineRatio"), QString("20x"));
    });
    QCOMPARE(bench.takeMessages(), QStringList());
}

void LineRateTest::aFastRateLeavesNothingToChoose() {
    Bench bench("RZ7X-138");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.type("TXLineRate", "0.5"));
        QVERIFY(dialog.choose("comboBoxTxLineRatio", "20x"));
        QVERIFY(dialog.type("TXLineRate", "2"));
        QCOMPARE(dialog.items("comboBoxTxLineRatio"), QStringList{"NA"});
        QVERIFY(!dialog.isEnabled("comboBoxTxLineRatio"));
        // "20x" is forgotten with it.
        QVERIFY(dialog.type("TXLineRate", "0.5"));
        QCOMPARE(dialog.text("comboBoxTxLineRatio"), QString("5x"));
    });
    QCOMPARE(bench.takeMessages(), QStringList());
}

void LineRateTest::aRatioTextThatIsNoneChangesNothing() {
    Bench bench("RZ7X-60B");
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL0"}, 10.0, "Q0_REFCLK0", 125));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
        QCOMPARE(dialog.text("TXLineRate"), QString("10"));
        dialog.combo("comboBoxTxLineRatio")->setCurrentIndex(-1);
        QCOMPARE(dialog.text("TXLineRate"), QString("10"));
    });
    QVERIFY(bench.wasShown());
}

void LineRateTest::aFixedRealRate() {
    Bench bench("RZ7X-60B");
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL0"}, 10.0, "Q0_REFCLK0", 125));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
        QCOMPARE(dialog.items("comboBoxTxLineRatio"),
                 (QStringList{"NA", "5x", "10x", "20x", "40x"}));
        QCOMPARE(dialog.text("comboBoxTxLineRatio"), QString("NA"));
        QVERIFY(!dialog.isEnabled("comboBoxTxLineRatio"));
        QVERIFY(!dialog.isEnabled("TXLineRate"));
        // The box is shut, but what follows a choice in it is the rate.
        dialog.combo("comboBoxTxLineRatio")->setCurrentIndex(4);
        QCOMPARE(dialog.text("TXLineRate"), QString("0.25"));
        dialog.combo("comboBoxTxLineRatio")->setCurrentIndex(0);
        QCOMPARE(dialog.text("TXLineRate"), QString("10"));
    });
    QCOMPARE(bench.takeMessages(), QStringList());
}

void LineRateTest::aFixedSlowRealRate() {
    Bench bench("RZ7X-60B");
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL1"}, 0.5, "Q0_REFCLK0", 125));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL1"));
        QVERIFY(dialog.isEnabled("comboBoxTxLineRatio"));
        QCOMPARE(dialog.text("comboBoxTxLineRatio"), QString("5x"));
        QCOMPARE(dialog.text("TXLineRate"), QString("0.1"));
        QVERIFY(dialog.choose("comboBoxTxLineRatio", "10x"));
        QCOMPARE(dialog.text("TXLineRate"), QString("0.05"));
        QVERIFY(dialog.choose("comboBoxTxLineRatio", "NA"));
        QCOMPARE(dialog.text("TXLineRate"), QString("0.5"));
    });
    QCOMPARE(bench.takeMessages(), QStringList());
}

void LineRateTest::aFixedPllNeverWarns() {
    Bench bench("RZ7X-60B");
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL1"}, 0.2, "Q0_REFCLK0", 125));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL1"));
        QCOMPARE(dialog.text("TXLineRate"), QString("0.04"));
        QVERIFY(dialog.ask("onTxRateOrRatioChanged"));
    });
    QCOMPARE(bench.takeMessages(), QStringList());
}

void LineRateTest::theFixedRateOutlivesTheDialog() {
    Bench bench("RZ7X-60B");
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL0"}, 10.0, "Q0_REFCLK0", 125));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
    });
    // A new dialog selects no shared PLL: it starts free.
    bench.create([&](Dialog& dialog) {
        QCOMPARE(dialog.text("TXLineRate"), QString("1.25"));
        QVERIFY(dialog.isEnabled("TXLineRate"));
        QCOMPARE(dialog.items("comboBoxTxLineRatio"), QStringList{"NA"});
    });
    QVERIFY(bench.wasShown());
}

void LineRateTest::laneToggleWarnsOnce() {
    for (const char* device : {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"}) {
        Bench bench(device);
        bench.create([&](Dialog& dialog) {
            QVERIFY(dialog.type("TXLineRate", "0.1"));
            bench.takeBoxes();
            // Several rules of one toggle look at the rate; the user is told once.
            QVERIFY(dialog.check("q0_l0", true));
            QCOMPARE(bench.takeMessages(), QStringList{ratioWarning});
            QVERIFY(dialog.choose("comboBoxMode", "Manual"));
            bench.takeBoxes();
            QVERIFY(dialog.choose("comboBoxMode", "Auto"));
            QCOMPARE(bench.takeMessages(), QStringList{ratioWarning});
            dialog.pressOk();
            QCOMPARE(bench.takeMessages(), QStringList{ratioWarning});
        });
        QVERIFY(bench.wasShown());
    }
}

QTEST_MAIN(LineRateTest)
#include "linerate_test.moc"
