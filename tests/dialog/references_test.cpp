// Reference sources, multiplexers, reference and operation mode, and shared PLLs.

#include "harness.h"

#include <QtTest>

using namespace DialogTest;

namespace {

const char* const sources[] = {"comboBoxRefMux0Source", "comboBoxRefMux1Source",
                               "comboBoxRefMux2Source", "comboBoxRefMux3Source"};
const char* const frequencies[] = {"ReferenceMux0Freq", "ReferenceMux1Freq", "ReferenceMux2Freq",
                                   "ReferenceMux3Freq"};
const QString sourceError = "Warning: Refclk Source error, please check";
const QString frequencyConflict = "Warning: Refclk Frequency conflict, please check";

int muxesOf(const QString& device) {
    return device == "RZ7X-60B" ? 4 : 2;
}

QStringList muxItems(const QString& device, int mux) {
    if (device == "RZ7X-60B") {
        return mux < 2 ? QStringList{"NA", "Q0 REFCLK0", "Q0 REFCLK1", "Q0 REFIN0", "Q0 REFIN1"}
                       : QStringList{"NA", "Q0 REFCLK2", "Q0 REFCLK3"};
    }
    return device == "RZ7X-15A"
               ? QStringList{"NA", "Q0 REFCLK0", "Q0 REFCLK1"}
               : QStringList{"NA", "Q0 REFCLK0", "Q0 REFCLK1", "Q1 REFCLK0", "Q1 REFCLK1"};
}

QStringList routingItems(const QString& device) {
    return device == "RZ7X-60B"   ? QStringList{"REFMUX0", "REFMUX1", "REFMUX2", "REFMUX3"}
           : device == "RZ7X-15A" ? QStringList{"REFMUX0", "REFMUX1", "GPIO", "MCLK"}
                                  : QStringList{"REFMUX0", "REFMUX1"};
}

/// "open text" or "shut text".
QString state(const Dialog& dialog, const QString& name) {
    return (dialog.isEnabled(name) ? "open " : "shut ") + dialog.text(name);
}

void addClasses() {
    QTest::addColumn<QString>("device");
    QTest::newRow("60k") << "RZ7X-60B";
    QTest::newRow("15k") << "RZ7X-15A";
    QTest::newRow("138k") << "RZ7X-138";
}

void addListed() {
    QTest::addColumn<QString>("device");
    QTest::newRow("60k") << "RZ7X-60B";
    QTest::newRow("15k") << "RZ7X-15A";
}

IPSERDESIP::Message muxHolder(const QString& mux, const QString& source, double frequency) {
    IPSERDESIP::Message message = holder({}, {}, 0.0, source, frequency);
    message.muxes.insert(mux, source);
    return message;
}

} // namespace

class ReferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void autoFrequencyFollowsTheSource_data() { addClasses(); }
    void autoFrequencyFollowsTheSource();
    void manualOpensTheMuxes_data() { addClasses(); }
    void manualOpensTheMuxes();
    void autoAgainEmptiesTheMuxes_data() { addClasses(); }
    void autoAgainEmptiesTheMuxes();
    void muxFrequencyFollowsItsSource_data() { addClasses(); }
    void muxFrequencyFollowsItsSource();
    void laneToggleKeepsSourcesNotFrequencies();
    void aMuxInUseIsFixed_data() { addClasses(); }
    void aMuxInUseIsFixed();
    void aMuxOnAnUnknownSourceOffersNothing_data() { addClasses(); }
    void aMuxOnAnUnknownSourceOffersNothing();
    void muxesFollowTheQuad();
    void receiveOnly60k();
    void receiveOnly15k();
    void receiveOnly15kStartsFromRefmux1();
    void receiveOnlyOnATakenPll_data() { addListed(); }
    void receiveOnlyOnATakenPll();
    void receiveOnlyWhateverTheMode_data() { addListed(); }
    void receiveOnlyWhateverTheMode();
    void leavingReceiveOnly_data() { addListed(); }
    void leavingReceiveOnly();
    void transmitOnly_data() { addListed(); }
    void transmitOnly();
    void repeatedFrequencies_data();
    void repeatedFrequencies();
    void sharedPllIsTakenOver_data();
    void sharedPllIsTakenOver();
    void aReceiverHidesNoTransmitter();
    void quad0GoesFirst();
    void quad1Alone();
    void channelPllIsFree();
    void noLaneNoSharedPll();
    void leavingASharedPll();
    void unknownSourceOfASharedPll();
    void removedInstanceFreesThePll();
};

void ReferencesTest::autoFrequencyFollowsTheSource() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.occupy("other", holder({}, {}, 0.0, "Q0_REFCLK1", 156.25));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.type("ReferenceClockFrequency", "100"));
        QVERIFY(dialog.choose("CombBoxReferenceClockSource", "Q0 REFCLK1"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("shut 156.25"));
        QVERIFY(dialog.isEnabled("CombBoxReferenceClockSource"));
        QVERIFY(dialog.choose("CombBoxReferenceClockSource", "Q0 REFCLK0"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("open 125"));
        bench.occupy("other", holder({}, {}, 0.0, "Q0_REFCLK1", 322.265625));
        QVERIFY(dialog.choose("CombBoxReferenceClockSource", "Q0 REFCLK1"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("shut 322.266"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::manualOpensTheMuxes() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QVERIFY(!dialog.isEnabled("CombBoxReferenceClockSource"));
        QVERIFY(!dialog.isEnabled("ReferenceClockFrequency"));
        for (int mux = 0; mux < muxesOf(device); ++mux) {
            QCOMPARE(state(dialog, sources[mux]), QString("open NA"));
            QCOMPARE(dialog.items(sources[mux]), muxItems(device, mux));
            QCOMPARE(state(dialog, frequencies[mux]), QString("shut "));
        }
        QCOMPARE(dialog.items("CombBoxPLLRefSource"), routingItems(device));
        QCOMPARE(state(dialog, "CombBoxPLLRefSource"), QString("open REFMUX0"));
        QCOMPARE(dialog.items("CombBoxRxRefSource"), routingItems(device));
        QCOMPARE(state(dialog, "CombBoxRxRefSource"), QString("open REFMUX0"));
        QCOMPARE(dialog.isUsable("GpioFrequency"), device == "RZ7X-15A");
        QCOMPARE(dialog.isUsable("MclkFrequency"), device == "RZ7X-15A");
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::autoAgainEmptiesTheMuxes() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QVERIFY(dialog.choose(sources[0], "Q0 REFCLK1"));
        QVERIFY(dialog.choose("CombBoxPLLRefSource", "REFMUX1"));
        QVERIFY(dialog.choose("comboBoxMode", "Auto"));
        for (int mux = 0; mux < 4; ++mux) {
            QCOMPARE(state(dialog, sources[mux]), QString("shut "));
            QCOMPARE(dialog.items(sources[mux]), QStringList());
            QCOMPARE(state(dialog, frequencies[mux]), QString("shut "));
        }
        QVERIFY(!dialog.isEnabled("CombBoxPLLRefSource"));
        QVERIFY(!dialog.isEnabled("CombBoxRxRefSource"));
        QCOMPARE(state(dialog, "CombBoxReferenceClockSource"), QString("open Q0 REFCLK0"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("open 125"));
        QVERIFY(!dialog.isEnabled("GpioFrequency"));
        QVERIFY(!dialog.isEnabled("MclkFrequency"));
        // The sources are gone; the routing keeps its earlier choice.
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QCOMPARE(dialog.text(sources[0]), QString("NA"));
        QCOMPARE(dialog.text("CombBoxPLLRefSource"), QString("REFMUX1"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::muxFrequencyFollowsItsSource() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.occupy("other", holder({}, {}, 0.0, "Q0_REFCLK1", 156.25));
    bench.occupy("third", holder({}, {}, 0.0, "Q0_REFCLK3", 100.0));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        for (int mux = 0; mux < muxesOf(device); ++mux) {
            const QString free = mux < 2 ? "Q0 REFCLK0" : "Q0 REFCLK2";
            const QString fixed = mux < 2 ? "Q0 REFCLK1" : "Q0 REFCLK3";
            QVERIFY(dialog.choose(sources[mux], free));
            QCOMPARE(state(dialog, frequencies[mux]), QString("open 125"));
            QVERIFY(dialog.type(frequencies[mux], "200"));
            QVERIFY(dialog.choose(sources[mux], fixed));
            QCOMPARE(state(dialog, frequencies[mux]),
                     QString(mux < 2 ? "shut 156.25" : "shut 100"));
            QVERIFY(dialog.choose(sources[mux], "NA"));
            QCOMPARE(state(dialog, frequencies[mux]), QString("shut "));
        }
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::laneToggleKeepsSourcesNotFrequencies() {
    for (const char* device : {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"}) {
        Bench bench(device);
        bench.create([&](Dialog& dialog) {
            QVERIFY(dialog.choose("comboBoxMode", "Manual"));
            QVERIFY(dialog.choose(sources[1], "Q0 REFCLK0"));
            QVERIFY(dialog.type(frequencies[1], "200"));
            QVERIFY(dialog.choose("CombBoxPLLRefSource", "REFMUX1"));
            QVERIFY(dialog.check("q0_l0", true));
            QCOMPARE(state(dialog, sources[1]), QString("open Q0 REFCLK0"));
            QCOMPARE(state(dialog, frequencies[1]), QString("open 125"));
            QCOMPARE(dialog.text("CombBoxPLLRefSource"), QString("REFMUX1"));
            QVERIFY(dialog.type(frequencies[1], "200"));
            QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
            QCOMPARE(state(dialog, frequencies[1]), QString("open 125"));
        });
        QVERIFY(bench.wasShown());
    }
}

void ReferencesTest::aMuxInUseIsFixed() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.occupy("other", muxHolder("Q0_MUX1", "Q0_REFCLK1", 156.25));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QCOMPARE(dialog.items(sources[1]), QStringList{"Q0 REFCLK1"});
        QCOMPARE(state(dialog, sources[1]), QString("shut Q0 REFCLK1"));
        QCOMPARE(state(dialog, frequencies[1]), QString("shut 156.25"));
        QCOMPARE(state(dialog, sources[0]), QString("open NA"));
        QVERIFY(dialog.check("q0_l3", true));
        QCOMPARE(state(dialog, sources[1]), QString("shut Q0 REFCLK1"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::aMuxOnAnUnknownSourceOffersNothing() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.occupy("other", muxHolder("Q0_MUX1", "Q7_REFCLK9", 156.25));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QCOMPARE(dialog.items(sources[1]), QStringList());
        QCOMPARE(state(dialog, sources[1]), QString("shut "));
        QCOMPARE(state(dialog, frequencies[1]), QString("shut "));
        QCOMPARE(state(dialog, sources[0]), QString("open NA"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::muxesFollowTheQuad() {
    Bench bench("RZ7X-138");
    bench.occupy("zero", muxHolder("Q0_MUX0", "Q0_REFCLK0", 100));
    IPSERDESIP::Message one = muxHolder("Q1_MUX1", "Q1_REFCLK1", 200);
    one.file = one.module = "one";
    bench.occupy("one", one);
    bench.create([&](Dialog& dialog) {
        const auto shown = [&] {
            return state(dialog, sources[0]) + " | " + state(dialog, sources[1]);
        };
        // A source that was shown stays the choice where it is offered.
        const QString ofQuad1 = "open Q0 REFCLK0 | shut Q1 REFCLK1";
        const QString ofQuad0 = "shut Q0 REFCLK0 | open Q1 REFCLK1";
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QCOMPARE(shown(), QString("shut Q0 REFCLK0 | open NA")); // no lane: quad 0's
        QVERIFY(dialog.check("q1_l2", true));
        QCOMPARE(shown(), ofQuad1);
        QVERIFY(dialog.check("q1_l0", true));
        QCOMPARE(shown(), ofQuad1);
        QVERIFY(dialog.check("q0_l3", true));
        QCOMPARE(shown(), ofQuad0);
        QVERIFY(dialog.check("q0_l3", false));
        QCOMPARE(shown(), ofQuad1);
        QVERIFY(dialog.check("q1_l0", false));
        QVERIFY(dialog.check("q1_l2", false));
        QCOMPARE(shown(), ofQuad0);
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::receiveOnly60k() {
    Bench bench("RZ7X-60B");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("LoopbackMode", "LB_FES"));
        QVERIFY(dialog.isShown("ReferenceClockFrequency"));
        QVERIFY(dialog.choose("comboBoxOperationMode", "RX Only"));
        QCOMPARE(state(dialog, "LoopbackMode"), QString("shut OFF"));
        QCOMPARE(state(dialog, "CombBoxPLLSelection"), QString("shut QPLL1"));
        QCOMPARE(dialog.items("CombBoxPLLRefSource"), QStringList{"REFMUX1"});
        QCOMPARE(state(dialog, "CombBoxPLLRefSource"), QString("shut REFMUX1"));
        QCOMPARE(dialog.items("CombBoxRxRefSource"), routingItems("RZ7X-60B"));
        QCOMPARE(state(dialog, "CombBoxRxRefSource"), QString("open REFMUX1"));
        for (int mux = 0; mux < 4; ++mux) {
            QCOMPARE(state(dialog, sources[mux]), QString("open NA"));
            QCOMPARE(dialog.items(sources[mux]), muxItems("RZ7X-60B", mux));
        }
        QVERIFY(!dialog.isEnabled("CombBoxReferenceClockSource"));
        QVERIFY(!dialog.isShown("ReferenceClockFrequency"));
        QVERIFY(!dialog.isShown("1/label_6"));
        QVERIFY(!dialog.isEnabled("ReferenceClockFrequency"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::receiveOnly15k() {
    Bench bench("RZ7X-15A");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxOperationMode", "RX Only"));
        QCOMPARE(state(dialog, "LoopbackMode"), QString("shut OFF"));
        QCOMPARE(state(dialog, "CombBoxPLLSelection"), QString("shut QPLL1"));
        QCOMPARE(dialog.items("CombBoxPLLRefSource"),
                 (QStringList{"REFMUX1", "REFMUX0", "GPIO", "MCLK"}));
        QCOMPARE(state(dialog, "CombBoxPLLRefSource"), QString("open REFMUX1"));
        QCOMPARE(state(dialog, "GpioFrequency"), QString("open 50"));
        QCOMPARE(state(dialog, "MclkFrequency"), QString("open 50"));
        QVERIFY(dialog.isShown("ReferenceClockFrequency"));
        QVERIFY(!dialog.isEnabled("ReferenceClockFrequency"));
        QVERIFY(!dialog.isEnabled("CombBoxReferenceClockSource"));
        QCOMPARE(state(dialog, sources[0]), QString("open NA"));
        QCOMPARE(state(dialog, sources[1]), QString("open NA"));
        QVERIFY(dialog.choose("CombBoxPLLRefSource", "GPIO"));
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QCOMPARE(state(dialog, "CombBoxPLLRefSource"), QString("open GPIO"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::receiveOnly15kStartsFromRefmux1() {
    Bench bench("RZ7X-15A");
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QVERIFY(dialog.choose("CombBoxPLLRefSource", "GPIO"));
        QVERIFY(dialog.choose("comboBoxOperationMode", "RX Only"));
        QCOMPARE(state(dialog, "CombBoxPLLRefSource"), QString("open REFMUX1"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::receiveOnlyOnATakenPll() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL1"}, 5.0, "Q0_REFCLK1", 125));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.choose("comboBoxOperationMode", "RX Only"));
        QCOMPARE(state(dialog, "CombBoxPLLSelection"), QString("shut QPLL1"));
        QCOMPARE(state(dialog, "TXLineRate"), QString("shut 5"));
        QCOMPARE(state(dialog, "comboBoxTxLineRatio"), QString("shut NA"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::receiveOnlyWhateverTheMode() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxOperationMode", "RX Only"));
        QVERIFY(dialog.choose(sources[1], "Q0 REFCLK1"));
        QVERIFY(dialog.choose("CombBoxPLLRefSource", "REFMUX1") || device == "RZ7X-60B");
        const auto holds = [&] {
            return !dialog.isEnabled("CombBoxReferenceClockSource") &&
                   !dialog.isEnabled("ReferenceClockFrequency") &&
                   dialog.text(sources[1]) == "Q0 REFCLK1" && dialog.isEnabled(sources[1]) &&
                   dialog.text("CombBoxPLLSelection") == "QPLL1" &&
                   dialog.text("CombBoxPLLRefSource") == "REFMUX1";
        };
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QVERIFY(holds());
        QVERIFY(dialog.choose("comboBoxMode", "Auto"));
        QVERIFY(holds());
        QVERIFY(dialog.check("q0_l1", true));
        QVERIFY(holds());
        dialog.run("updatedRefClkFreq");
        QVERIFY(holds());
        dialog.run("updatePLLSelection");
        QVERIFY(holds());
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::leavingReceiveOnly() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
        QVERIFY(dialog.choose("comboBoxOperationMode", "RX Only"));
        QVERIFY(dialog.choose(sources[1], "Q0 REFCLK1"));
        QVERIFY(dialog.choose("comboBoxOperationMode", "TX and RX"));
        QCOMPARE(state(dialog, "CombBoxPLLSelection"),
                 QString("open QPLL1")); // not the earlier one
        QCOMPARE(state(dialog, "LoopbackMode"), QString("open OFF"));
        QVERIFY(dialog.isShown("ReferenceClockFrequency"));
        QVERIFY(dialog.isShown("1/label_6"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("open 125"));
        QCOMPARE(state(dialog, "CombBoxReferenceClockSource"), QString("open Q0 REFCLK0"));
        QCOMPARE(state(dialog, sources[1]), QString("shut "));
        QVERIFY(!dialog.isEnabled("CombBoxPLLRefSource"));
        QVERIFY(!dialog.isEnabled("CombBoxRxRefSource"));
        QVERIFY(!dialog.isEnabled("GpioFrequency"));
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QCOMPARE(dialog.items("CombBoxPLLRefSource"), routingItems(device));
        QCOMPARE(state(dialog, "CombBoxPLLRefSource"), QString("open REFMUX1"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::transmitOnly() {
    QFETCH(QString, device);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        QVERIFY(dialog.choose("LoopbackMode", "LB_NES"));
        QVERIFY(dialog.choose("comboBoxOperationMode", "TX Only"));
        QCOMPARE(state(dialog, "LoopbackMode"), QString("shut OFF"));
        QVERIFY(!dialog.isEnabled("CombBoxRxRefSource"));
        if (device == "RZ7X-60B") {
            QCOMPARE(dialog.items("CombBoxRxRefSource"), QStringList());
        }
        QVERIFY(dialog.isEnabled("CombBoxPLLRefSource"));
        QVERIFY(dialog.isEnabled("CombBoxPLLSelection"));
        QVERIFY(dialog.isEnabled(sources[0]));
        QVERIFY(dialog.choose("comboBoxOperationMode", "TX and RX"));
        QCOMPARE(state(dialog, "CombBoxRxRefSource"), QString("open REFMUX0"));
        QCOMPARE(state(dialog, "LoopbackMode"), QString("open OFF"));
        // In Auto as well.
        QVERIFY(dialog.choose("comboBoxMode", "Auto"));
        QVERIFY(dialog.choose("comboBoxOperationMode", "TX Only"));
        QCOMPARE(state(dialog, "CombBoxRxRefSource"), QString("shut "));
        QCOMPARE(state(dialog, "CombBoxReferenceClockSource"), QString("open Q0 REFCLK0"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::repeatedFrequencies_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("settings"); // "source@frequency" for each multiplexer
    QTest::addColumn<QString>("pll");
    QTest::addColumn<QString>("rx");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* device, const char* settings, const char* pll, const char* rx,
                        const QString& message) {
        QTest::addRow("%s %s %s %s", device, settings, pll, rx)
            << device << settings << pll << rx << message;
    };
    const char* k60 = "RZ7X-60B";
    const char* k15 = "RZ7X-15A";
    const char* k138 = "RZ7X-138";
    row(k60, "NA|NA|NA|NA", "REFMUX0", "REFMUX0", sourceError);
    row(k60, "Q0 REFCLK0@100|Q0 REFCLK0@125|NA|NA", "REFMUX0", "REFMUX0", frequencyConflict);
    row(k60, "Q0 REFCLK0@100|Q0 REFCLK0@100|NA|NA", "REFMUX0", "REFMUX1", "");
    row(k60, "Q0 REFCLK0@100|NA|NA|NA", "REFMUX0", "REFMUX2", sourceError);
    row(k60, "NA|NA|Q0 REFCLK2@100|Q0 REFCLK2@125", "REFMUX2", "REFMUX3", frequencyConflict);
    row(k15, "NA|NA", "GPIO", "", "");
    row(k15, "NA|NA", "MCLK", "", "");
    row(k15, "NA|NA", "REFMUX0", "", sourceError);
    row(k15, "Q0 REFCLK0@100|Q0 REFCLK0@125", "REFMUX0", "", frequencyConflict);
    row(k15, "Q0 REFCLK0@100|NA", "REFMUX0", "", "");
    row(k138, "NA|NA", "REFMUX0", "REFMUX0", sourceError);
    row(k138, "Q1 REFCLK0@100|NA", "REFMUX0", "REFMUX1", sourceError);
    row(k138, "Q1 REFCLK0@100|Q1 REFCLK0@125", "REFMUX0", "REFMUX1", frequencyConflict);
    row(k138, "Q1 REFCLK0@100|Q0 REFCLK0@125", "REFMUX0", "REFMUX1", "");
}

void ReferencesTest::repeatedFrequencies() {
    QFETCH(QString, device);
    QFETCH(QString, settings);
    QFETCH(QString, pll);
    QFETCH(QString, rx);
    QFETCH(QString, message);
    const QStringList expected = message.isEmpty() ? QStringList() : QStringList(message);
    Bench bench(device);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxMode", "Manual"));
        const QStringList muxes = settings.split('|');
        for (int mux = 0; mux < muxes.size(); ++mux) {
            const QStringList parts = muxes.at(mux).split('@');
            QVERIFY(dialog.choose(sources[mux], parts.at(0)));
            QVERIFY(parts.size() == 1 || dialog.type(frequencies[mux], parts.at(1)));
        }
        QVERIFY(dialog.choose("CombBoxPLLRefSource", pll));
        QVERIFY(rx.isEmpty() || dialog.choose("CombBoxRxRefSource", rx));
        QCOMPARE(bench.takeMessages(), QStringList());
        QCOMPARE(dialog.ask("checkRefClkFreqisRepeat"), expected.isEmpty());
        QCOMPARE(bench.takeMessages(), expected);
        // The widgets keep their values.
        QCOMPARE(dialog.text(sources[0]), muxes.at(0).section('@', 0, 0));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::sharedPllIsTakenOver_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("mode");
    for (const char* device : {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"}) {
        for (const char* mode : {"Auto", "Manual"}) {
            QTest::addRow("%s %s", device, mode) << device << mode;
        }
    }
}

void ReferencesTest::sharedPllIsTakenOver() {
    QFETCH(QString, device);
    QFETCH(QString, mode);
    Bench bench(device);
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL1"}, 10.3125, "Q0_REFCLK1", 156.25));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("comboBoxMode", mode));
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.isEnabled("TXLineRate"));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL1"));
        QCOMPARE(state(dialog, "TXLineRate"), QString("shut 10.3125"));
        QCOMPARE(state(dialog, "comboBoxTxLineRatio"), QString("shut NA"));
        QCOMPARE(state(dialog, "CombBoxReferenceClockSource"), QString("shut Q0 REFCLK1"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("shut 156.25"));
        QVERIFY(dialog.check("q0_l1", true));
        QCOMPARE(state(dialog, "TXLineRate"), QString("shut 10.3125"));
        // The other PLL is free.
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
        QVERIFY(dialog.isEnabled("TXLineRate"));
    });
    QCOMPARE(bench.takeMessages(), QStringList());
}

void ReferencesTest::aReceiverHidesNoTransmitter() {
    Bench bench("RZ7X-60B");
    IPSERDESIP::Message receiver = holder({"Q0 Lane3"}, {"Q0_QPLL1"}, 1.25, "Q0_REFCLK0", 100);
    receiver.laneResources = QStringList{"Q0_LN3_LANE", "Q0_LN3_RX"};
    bench.occupy("first", receiver);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL1"));
        QVERIFY(dialog.isEnabled("TXLineRate"));
    });
    bench.occupy("second", holder({"Q0 Lane2"}, {"Q0_QPLL1"}, 5.0, "Q0_REFCLK1", 125));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL1"));
        QCOMPARE(state(dialog, "TXLineRate"), QString("shut 5"));
        QCOMPARE(state(dialog, "CombBoxReferenceClockSource"), QString("shut Q0 REFCLK1"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("shut 125"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::quad0GoesFirst() {
    Bench bench("RZ7X-138");
    bench.occupy("one", holder({"Q1 Lane3"}, {"Q1_QPLL0"}, 5.0, "Q1_REFCLK0", 100));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
        QVERIFY(dialog.check("q1_l0", true));
        QCOMPARE(state(dialog, "TXLineRate"), QString("shut 5"));
        QCOMPARE(state(dialog, "CombBoxReferenceClockSource"), QString("shut Q1 REFCLK0"));
        // With a lane in quad 0, quad 1's PLL is never asked about.
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.isEnabled("TXLineRate"));
        QCOMPARE(dialog.items("comboBoxTxLineRatio"), QStringList{"NA"});
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::quad1Alone() {
    Bench bench("RZ7X-138");
    bench.occupy("zero", holder({"Q0 Lane3"}, {"Q0_QPLL0"}, 5.0, "Q0_REFCLK0", 100));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
        QVERIFY(dialog.check("q1_l0", true));
        QCOMPARE(state(dialog, "TXLineRate"), QString("open 1.25"));
        QVERIFY(dialog.check("q0_l0", true));
        QCOMPARE(state(dialog, "TXLineRate"), QString("shut 5"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("shut 100"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::channelPllIsFree() {
    Bench bench("RZ7X-60B");
    IPSERDESIP::Message other =
        holder({"Q0 Lane3"}, {"Q0_QPLL0", "Q0_QPLL1", "Q0_LN3_CPLL"}, 5.0, "Q0_REFCLK1", 100);
    bench.occupy("other", other);
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QCOMPARE(state(dialog, "TXLineRate"), QString("open 1.25"));
        QCOMPARE(state(dialog, "CombBoxReferenceClockSource"), QString("open Q0 REFCLK0"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("open 125"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::noLaneNoSharedPll() {
    Bench bench("RZ7X-60B");
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL0"}, 5.0, "Q0_REFCLK1", 100));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
        QCOMPARE(state(dialog, "TXLineRate"), QString("open 1.25"));
        QVERIFY(dialog.check("q0_l0", true));
        QCOMPARE(state(dialog, "TXLineRate"), QString("shut 5"));
        QVERIFY(dialog.check("q0_l0", false));
        QVERIFY(dialog.isEnabled("TXLineRate"));
        QVERIFY(dialog.isEnabled("CombBoxReferenceClockSource"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::leavingASharedPll() {
    Bench bench("RZ7X-60B");
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL0"}, 5.0, "Q0_REFCLK1", 100));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "CPLL"));
        QCOMPARE(state(dialog, "TXLineRate"), QString("open 5"));
        // The source is still the other's, and so is its frequency.
        QCOMPARE(state(dialog, "CombBoxReferenceClockSource"), QString("open Q0 REFCLK1"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("shut 100"));
        QVERIFY(dialog.choose("CombBoxReferenceClockSource", "Q0 REFCLK0"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("open 125"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::unknownSourceOfASharedPll() {
    Bench bench("RZ7X-60B");
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL0"}, 5.0, "Q7_REFCLK9", 100));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l0", true));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
        QCOMPARE(dialog.combo("CombBoxReferenceClockSource")->currentIndex(), -1);
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("shut 100"));
    });
    QVERIFY(bench.wasShown());
}

void ReferencesTest::removedInstanceFreesThePll() {
    Bench bench("RZ7X-60B");
    bench.occupy("other", holder({"Q0 Lane3"}, {"Q0_QPLL0"}, 5.0, "Q0_REFCLK1", 100));
    bench.occupy("other", holder({}));
    bench.create([&](Dialog& dialog) {
        QVERIFY(dialog.check("q0_l3", true));
        QVERIFY(dialog.choose("CombBoxPLLSelection", "QPLL0"));
        QCOMPARE(state(dialog, "TXLineRate"), QString("open 1.25"));
        QVERIFY(dialog.choose("CombBoxReferenceClockSource", "Q0 REFCLK1"));
        QCOMPARE(state(dialog, "ReferenceClockFrequency"), QString("open 125"));
    });
    QVERIFY(bench.wasShown());
}

QTEST_MAIN(ReferencesTest)
#include "references_test.moc"
