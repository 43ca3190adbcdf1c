#include "serdesfixture.h"

using namespace IPSERDESIP;

namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

const auto lane1 = QStringLiteral("Q0 Lane1");

} // namespace

class RoutingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void knowsTheGraph_data();
    void knowsTheGraph();
    void othersForbidPaths_data();
    void othersForbidPaths();
    void theEditedInstanceForbidsNothing();
    void tellsWhatWouldWork();
    void routeHoldsLanesUntilReset();
    void routeRefusals_data();
    void routeRefusals();
    void manualRoutes_data();
    void manualRoutes();
};

void RoutingTest::knowsTheGraph_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("mux");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("reached");
    int number = 0;
    const auto row = [&](const char* device, const char* mux, const char* source,
                         const char* target, bool reached) {
        QTest::addRow("%d %s %s %s %s", ++number, device, mux, source, target)
            << text(device) << text(mux) << text(source) << text(target) << reached;
    };
    // clang-format off
    row("RZ7X-60B", "",        "Q0 REFCLK0", "quad0_TX",   true);
    row("RZ7X-60B", "",        "Q0_REFCLK0", "quad0_RX",   true);
    row("RZ7X-60B", "",        "Q0 REFIN1",  "quad0_LANE", true);
    row("RZ7X-60B", "",        "Q0 REFCLK3", "quad0_TX",   true);
    row("RZ7X-60B", "",        "Q0 REFIN",   "quad0_TX",   false);
    row("RZ7X-60B", "",        "MCLK",       "quad0_TX",   false);
    row("RZ7X-60B", "",        "NA",         "quad0_TX",   false);
    row("RZ7X-60B", "",        "Q0 REFCLK0", "quad1_TX",   false);
    row("RZ7X-60B", "",        "Q0 REFCLK0", "quad0",      false);
    row("RZ7X-60B", "Q0_MUX0", "Q0 REFCLK0", "quad0_TX",   true);
    row("RZ7X-60B", "Q0_MUX1", "Q0 REFIN0",  "quad0_RX",   true);
    row("RZ7X-60B", "Q0_MUX0", "Q0 REFCLK2", "quad0_TX",   false);
    row("RZ7X-60B", "Q0_MUX2", "Q0 REFCLK2", "quad0_LANE", true);
    row("RZ7X-60B", "Q0_MUX3", "Q0 REFCLK0", "quad0_LANE", false);
    row("RZ7X-60B", "Q1_MUX0", "Q0 REFCLK0", "quad0_LANE", false);
    row("RZ7X-15A", "",        "GPIO",       "quad0_TX",   true);
    row("RZ7X-15A", "",        "Q0 REFIN",   "quad0_RX",   true);
    row("RZ7X-15A", "",        "MCLK",       "quad0_LANE", true);
    row("RZ7X-15A", "",        "Q0 REFCLK2", "quad0_TX",   false);
    row("RZ7X-15A", "Q0_MUX0", "Q0 REFIN",   "quad0_TX",   false);
    row("RZ7X-15A", "Q0_MUX1", "Q0 REFCLK0", "quad0_TX",   true);
    row("RZ7X-15A", "Q0_MUX2", "Q0 REFCLK0", "quad0_TX",   false);
    row("RZ7X-138", "",        "Q1 REFCLK1", "quad0_TX",   true);
    row("RZ7X-138", "",        "Q0 REFCLK0", "quad1_RX",   true);
    row("RZ7X-138", "Q1_MUX0", "Q0 REFCLK0", "quad1_TX",   true);
    row("RZ7X-138", "Q1_MUX0", "Q0 REFCLK0", "quad0_TX",   false);
    row("RZ7X-138", "",        "Q0 REFCLK2", "quad0_TX",   false);
    // clang-format on
}

void RoutingTest::knowsTheGraph() {
    QFETCH(QString, device);
    QFETCH(QString, mux);
    QFETCH(QString, source);
    QFETCH(QString, target);
    const serdes* model = openDevice(device.toLatin1().constData());
    QTEST(mux.isEmpty() ? model->checkAccess(source, target)
                        : model->checkAccess(mux, source, target),
          "reached");
    QFETCH(bool, reached);
    QCOMPARE(model->details().isEmpty(), reached);
}

// The other instance has set Q0_MUX1 to Q0 REFCLK1.
void RoutingTest::othersForbidPaths_data() {
    QTest::addColumn<QString>("mux");
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("reached");
    QTest::newRow("the same setting") << text("Q0_MUX1") << text("Q0 REFCLK1") << true;
    QTest::newRow("another setting") << text("Q0_MUX1") << text("Q0 REFCLK0") << false;
    QTest::newRow("a free multiplexer") << text("Q0_MUX0") << text("Q0 REFCLK0") << true;
    QTest::newRow("any multiplexer") << QString() << text("Q0 REFCLK0") << true;
}

void RoutingTest::othersForbidPaths() {
    QFETCH(QString, mux);
    QFETCH(QString, source);
    serdes* model = openDevice("RZ7X-60B");
    model->setMessage(text("link0"), linkMessage());
    QTEST(model->checkAccess(mux, source, text("quad0_TX")), "reached");

    // With every multiplexer that takes it set to something else, no path is left.
    Message second = linkMessage();
    second.muxes = {{text("Q0_MUX0"), text("Q0_REFIN0")}};
    model->setMessage(text("link1"), second);
    QVERIFY(!model->checkAccess(text("Q0 REFCLK0"), text("quad0_TX")));
    QVERIFY(model->checkAccess(text("Q0 REFIN0"), text("quad0_TX")));
    QVERIFY(model->checkAccess(text("Q0 REFCLK2"), text("quad0_TX")));
}

void RoutingTest::theEditedInstanceForbidsNothing() {
    serdes* model = openDevice("RZ7X-60B");
    model->setMessage(text("link0"), linkMessage());
    model->setEditing(text("link0"));
    QVERIFY(model->checkAccess(text("Q0_MUX1"), text("Q0 REFCLK0"), text("quad0_TX")));
    QVERIFY(model->details().isEmpty());
}

void RoutingTest::tellsWhatWouldWork() {
    serdes* model = openDevice("RZ7X-60B");
    model->setMessage(text("link0"), linkMessage());
    QVERIFY(!model->checkAccess(text("Q0_MUX1"), text("Q0 REFCLK0"), text("quad0_TX")));
    QCOMPARE(model->details(),
             QStringList{text("Q0 REFCLK0 cannot reach quad 0 through Q0_MUX1: Q0_MUX1 is set to "
                              "Q0 REFCLK1 by link0; it can pass Q0_MUX0.")});
    model->clearDetails();
    QVERIFY(!model->checkAccess(text("Q0_MUX2"), text("Q0 REFIN0"), text("quad0_TX")));
    QCOMPARE(model->details(),
             QStringList{text("Q0 REFIN0 cannot reach quad 0 through Q0_MUX2: it takes Q0 REFCLK2, "
                              "Q0 REFCLK3; it can pass Q0_MUX0.")});
    model->clearDetails();
    QVERIFY(!model->checkAccess(text("MCLK"), text("quad0_TX")));
    QCOMPARE(model->details(), QStringList{text("RZ7X-60B has no reference clock MCLK.")});
}

void RoutingTest::routeHoldsLanesUntilReset() {
    serdes* model = openDevice("RZ7X-60B");
    QVERIFY(model->route(lane1).isNull());
    QVERIFY(model->checkRoute({lane1}, text("CPLL"), text("Q0 REFCLK0"), 125.0));
    QVERIFY(!model->notOccupiedLanes().contains(lane1));
    const LaneRoute route = model->route(lane1);
    QVERIFY(route.granted);
    QCOMPARE(route.pll, text("CPLL"));
    QCOMPARE(route.pllReference, text("Q0_REFCLK0"));
    QCOMPARE(route.pllFrequency, 125.0);
    QCOMPARE(route.rxReference, text("Q0_REFCLK0"));
    QVERIFY2(model->checkRoute({lane1}, text("CPLL"), text("Q0 REFCLK0"), 125.0),
             "asking again for one's own lane");
    model->resetLane(lane1, 0);
    QVERIFY(model->notOccupiedLanes().contains(lane1));
    QVERIFY(model->route(lane1).isNull());
}

void RoutingTest::routeRefusals_data() {
    QTest::addColumn<QString>("lane");
    QTest::addColumn<QString>("pll");
    QTest::addColumn<QString>("source");
    QTest::addColumn<double>("frequency");
    QTest::addColumn<QString>("detail");
    const auto row = [](const char* name, const char* lane, const char* pll, const char* source,
                        double frequency, const char* detail) {
        QTest::newRow(name) << text(lane) << text(pll) << text(source) << frequency << text(detail);
    };
    // clang-format off
    row("shares all",     "Q0 Lane1", "QPLL1", "Q0 REFCLK1", 156.25, "");
    row("own PLL",        "Q0 Lane1", "CPLL",  "Q0 REFCLK0", 125.0,  "");
    row("taken lane",     "Q0 Lane2", "CPLL",  "Q0 REFCLK0", 125.0,
        "Q0 Lane2 is held by link0. Free: Q0 Lane1, Q0 Lane3.");
    row("no such lane",   "Q1 Lane0", "CPLL",  "Q0 REFCLK0", 125.0,
        "Q1 Lane0 does not exist on RZ7X-60B. Free: Q0 Lane1, Q0 Lane3.");
    row("no such PLL",    "Q0 Lane1", "QPLL7", "Q0 REFCLK0", 125.0, "RZ7X-60B has no PLL QPLL7.");
    row("no such source", "Q0 Lane1", "CPLL",  "MCLK",       125.0,
        "RZ7X-60B has no reference clock \"MCLK\".");
    row("PLL elsewhere",  "Q0 Lane1", "QPLL1", "Q0 REFCLK0", 125.0,
        "Q0_QPLL1 is held by link0, with Q0 REFCLK1 at 156.25 MHz as its reference; it cannot also "
        "take Q0 REFCLK0 at 125 MHz. Free: Q0_QPLL0, the lanes' own CPLL.");
    row("pin elsewhere",  "Q0 Lane1", "CPLL",  "Q0 REFCLK1", 125.0,
        "Q0 REFCLK1 carries 156.25 MHz for link0; it cannot be 125 MHz. Free: Q0 REFCLK0, "
        "Q0 REFCLK2, Q0 REFCLK3, Q0 REFIN0, Q0 REFIN1.");
    // clang-format on
}

void RoutingTest::routeRefusals() {
    QFETCH(QString, lane);
    QFETCH(QString, pll);
    QFETCH(QString, source);
    QFETCH(double, frequency);
    QFETCH(QString, detail);
    serdes* model = openDevice("RZ7X-60B");
    model->setMessage(text("link0"), linkMessage());
    QCOMPARE(model->checkRoute({lane}, pll, source, frequency), detail.isEmpty());
    QCOMPARE(model->details(), detail.isEmpty() ? QStringList() : QStringList{detail});
    QCOMPARE(model->route(lane).granted, detail.isEmpty());
}

void RoutingTest::manualRoutes_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("lane");
    QTest::addColumn<QString>("pllSource");
    QTest::addColumn<QString>("rxSource");
    QTest::addColumn<bool>("found");
    QTest::addColumn<QString>("pllReference");
    QTest::addColumn<double>("pllFrequency");
    QTest::addColumn<QString>("rxReference");
    QTest::addColumn<double>("rxFrequency");
    const auto row = [](const char* name, const char* device, const char* lane, const char* pll,
                        const char* rx, bool found, const char* pllPin, double pllMHz,
                        const char* rxPin, double rxMHz) {
        QTest::newRow(name) << text(device) << text(lane) << text(pll) << text(rx) << found
                            << text(pllPin) << pllMHz << text(rxPin) << rxMHz;
    };
    // clang-format off
    row("both",         "RZ7X-138", "Q0 Lane0", "REFMUX0", "REFMUX1", true,  "Q0_REFCLK0", 100.0, "Q1_REFCLK1", 156.25);
    row("quad 1",       "RZ7X-138", "Q1 Lane3", "REFMUX1", "REFMUX0", true,  "Q1_REFCLK1", 156.25, "Q0_REFCLK0", 100.0);
    row("transmit",     "RZ7X-138", "Q0 Lane0", "REFMUX1", "",        true,  "Q1_REFCLK1", 156.25, "Q1_REFCLK1", 156.25);
    row("input pin",    "RZ7X-15A", "Q0 Lane0", "GPIO",    "REFMUX0", true,  "Q0_REFIN", 0.0, "Q0_REFIN", 0.0);
    row("clock pin",    "RZ7X-15A", "Q0 Lane0", "MCLK",    "",        true,  "MCLK", 0.0, "MCLK", 0.0);
    row("unset",        "RZ7X-138", "Q0 Lane0", "REFMUX2", "REFMUX1", false, "", 0.0, "Q1_REFCLK1", 156.25);
    row("wrong source", "RZ7X-15A", "Q0 Lane0", "REFMUX1", "",        false, "Q1_REFCLK1", 156.25, "Q1_REFCLK1", 156.25);
    // clang-format on
}

void RoutingTest::manualRoutes() {
    QFETCH(QString, device);
    QFETCH(QString, lane);
    QFETCH(QString, pllSource);
    QFETCH(QString, rxSource);
    serdes* model = openDevice(device.toLatin1().constData());
    QTEST(model->checkRoute({lane}, text("QPLL0"),
                            {text("Q0 REFCLK0"), text("Q1 REFCLK1"), text("NA")},
                            {100.0, 156.25, 0.0}, pllSource, rxSource),
          "found");
    const LaneRoute route = model->route(lane);
    QTEST(route.pllReference, "pllReference");
    QTEST(route.pllFrequency, "pllFrequency");
    QTEST(route.rxReference, "rxReference");
    QTEST(route.rxFrequency, "rxFrequency");
}

QTEST_GUILESS_MAIN(RoutingTest)
#include "routing_test.moc"
