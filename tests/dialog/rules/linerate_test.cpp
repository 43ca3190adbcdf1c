// Line rates and the oversampling ratio.

#include "dialog/rules/linerate.h"

#include <QtTest>

using namespace IPCUSTOMIZED::rules;
using Follows = RatioBox::Follows;

Q_DECLARE_METATYPE(Follows)

class LineRateTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ratesAreBounded_data();
    void ratesAreBounded();
    void aRatioTextIsItsNumber_data();
    void aRatioTextIsItsNumber();
    void theRatioBoxFollowsRateAndPll_data();
    void theRatioBoxFollowsRateAndPll();
    void theRatioBoxRemembersAnOfferedRatio_data();
    void theRatioBoxRemembersAnOfferedRatio();
    void slowRatesNeedTheirRatio_data();
    void slowRatesNeedTheirRatio();
    void aFixedRateIsDivided_data();
    void aFixedRateIsDivided();
};

void LineRateTest::ratesAreBounded_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("tx");
    QTest::addColumn<QString>("rx");
    const auto row = [](const char* typed, const char* tx, const char* rx) {
        QTest::newRow(*typed != '\0' ? typed : "empty") << typed << tx << rx;
    };
    row("", "1.25", "1.25");
    row("0", "1.25", "1.25");
    row("0.0249", "1.25", "1.25");
    row("0.02499999", "1.25", "1.25");
    row("0.025", "0.025", "1.25");
    row("0.02500001", "0.02500001", "1.25");
    row("0.99", "0.99", "1.25");
    row("0.99999999", "0.99999999", "1.25");
    row("1", "1", "1");
    row("1.0", "1.0", "1.0");
    row("01", "01", "01");
    row("1.25", "1.25", "1.25");
    row("10.3125", "10.3125", "10.3125");
    row("12.49999999", "12.49999999", "12.49999999");
    row("12.5", "12.5", "12.5");
    row("12.50000000", "12.50000000", "12.50000000");
    row("12.50000001", "1.25", "1.25");
    row("12.6", "1.25", "1.25");
    row("99", "1.25", "1.25");
    // What has lost its leading zero gets it back, for Verilog knows no such number.
    row(".625", "0.625", "1.25");
    row(".025", "0.025", "1.25");
    row(".0249", "1.25", "1.25");
    row(".99999999", "0.99999999", "1.25");
    // What is no number counts as 0.
    row(".", "1.25", "1.25");
    row("abc", "1.25", "1.25");
    row("-3", "1.25", "1.25");
    row("1,25", "1.25", "1.25");
}

void LineRateTest::ratesAreBounded() {
    QFETCH(QString, typed);
    QTEST(correctedTxRate(typed), "tx");
    QTEST(correctedRxRate(typed), "rx");
    // What is in range stays as it is when the field is left again.
    QTEST(correctedTxRate(correctedTxRate(typed)), "tx");
    QTEST(correctedRxRate(correctedRxRate(typed)), "rx");
}

void LineRateTest::aRatioTextIsItsNumber_data() {
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<double>("factor");
    QTest::newRow("5x") << "5x" << 5.0;
    QTest::newRow("10x") << "10x" << 10.0;
    QTest::newRow("20x") << "20x" << 20.0;
    QTest::newRow("40x") << "40x" << 40.0;
    QTest::newRow("every x goes") << "x1x0x" << 10.0;
    QTest::newRow("a capital stays") << "5X" << 0.0;
    QTest::newRow("NA") << "NA" << 0.0;
    QTest::newRow("none") << "" << 0.0;
}

void LineRateTest::aRatioTextIsItsNumber() {
    QFETCH(QString, ratio);
    QTEST(ratioFactor(ratio), "factor");
}

void LineRateTest::theRatioBoxFollowsRateAndPll_data() {
    QTest::addColumn<double>("rate");
    QTest::addColumn<double>("realRate");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<Follows>("follows");
    const QStringList none{"NA"};
    const QStringList factors{"5x", "10x", "20x", "40x"};
    const QStringList all{"NA", "5x", "10x", "20x", "40x"};

    QTest::newRow("free, 1") << 1.0 << 0.0 << none << "NA" << false << Follows::Nothing;
    QTest::newRow("free, 1.25") << 1.25 << 0.0 << none << "NA" << false << Follows::Nothing;
    QTest::newRow("free, 12.5") << 12.5 << 0.0 << none << "NA" << false << Follows::Nothing;
    QTest::newRow("free, 0.025") << 0.025 << 0.0 << factors << "5x" << true << Follows::CheckRate;
    QTest::newRow("free, just below 1")
        << 0.99999999 << 0.0 << factors << "5x" << true << Follows::CheckRate;
    QTest::newRow("fixed, 0.5") << 1.25 << 0.5 << all << "5x" << true << Follows::SetRate;
    QTest::newRow("fixed, 0.5, slow") << 0.1 << 0.5 << all << "5x" << true << Follows::SetRate;
    QTest::newRow("fixed, just below 1")
        << 1.25 << 0.99999999 << all << "5x" << true << Follows::SetRate;
    QTest::newRow("fixed, 1") << 1.25 << 1.0 << all << "NA" << false << Follows::SetRate;
    QTest::newRow("fixed, 10, slow") << 0.1 << 10.0 << all << "NA" << false << Follows::SetRate;
    QTest::newRow("fixed, 12.5") << 12.5 << 12.5 << all << "NA" << false << Follows::SetRate;
}

void LineRateTest::theRatioBoxFollowsRateAndPll() {
    QFETCH(double, rate);
    QFETCH(double, realRate);
    for (const char* remembered : {"", "NA", "unknown"}) {
        const RatioBox box = ratioBox(rate, realRate, remembered);
        QTEST(box.items, "items");
        QTEST(box.selected, "selected");
        QTEST(box.enabled, "enabled");
        QTEST(box.follows, "follows");
    }
}

void LineRateTest::theRatioBoxRemembersAnOfferedRatio_data() {
    QTest::addColumn<QString>("remembered");
    QTest::addColumn<QString>("free");
    QTest::newRow("5x") << "5x"
                        << "5x";
    QTest::newRow("10x") << "10x"
                         << "10x";
    QTest::newRow("20x") << "20x"
                         << "20x";
    QTest::newRow("40x") << "40x"
                         << "40x";
    QTest::newRow("NA") << "NA"
                        << "5x";
    QTest::newRow("other case") << "20X"
                                << "5x";
    QTest::newRow("part of one") << "0x"
                                 << "5x";
    QTest::newRow("none") << ""
                          << "5x";
}

void LineRateTest::theRatioBoxRemembersAnOfferedRatio() {
    QFETCH(QString, remembered);
    QTEST(ratioBox(0.5, 0.0, remembered).selected, "free");
    // Only a free PLL's box remembers; a fast rate leaves nothing to choose.
    QCOMPARE(ratioBox(1.0, 0.0, remembered).selected, QString("NA"));
    QCOMPARE(ratioBox(0.5, 0.5, remembered).selected, QString("5x"));
    QCOMPARE(ratioBox(0.5, 10.0, remembered).selected, QString("NA"));
}

void LineRateTest::slowRatesNeedTheirRatio_data() {
    QTest::addColumn<double>("rate");
    QTest::addColumn<double>("realRate");
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<bool>("reaches");
    QTest::newRow("0.1 at 5x") << 0.1 << 0.0 << "5x" << false;
    QTest::newRow("0.1 at 10x") << 0.1 << 0.0 << "10x" << true;
    QTest::newRow("0.2 at 5x") << 0.2 << 0.0 << "5x" << true;
    QTest::newRow("0.19999999 at 5x") << 0.19999999 << 0.0 << "5x" << false;
    QTest::newRow("0.05 at 20x") << 0.05 << 0.0 << "20x" << true;
    QTest::newRow("0.049 at 20x") << 0.049 << 0.0 << "20x" << false;
    QTest::newRow("0.025 at 40x") << 0.025 << 0.0 << "40x" << true;
    QTest::newRow("0.025 at 20x") << 0.025 << 0.0 << "20x" << false;
    QTest::newRow("NA is no factor") << 0.99 << 0.0 << "NA" << false;
    QTest::newRow("no ratio") << 0.99 << 0.0 << "" << false;
    QTest::newRow("1 needs none") << 1.0 << 0.0 << "NA" << true;
    QTest::newRow("12.5 needs none") << 12.5 << 0.0 << "" << true;
    QTest::newRow("fixed PLL, 0.1 at 5x") << 0.1 << 0.5 << "5x" << true;
    QTest::newRow("fixed PLL, 0.1 at NA") << 0.1 << 10.0 << "NA" << true;
}

void LineRateTest::slowRatesNeedTheirRatio() {
    QFETCH(double, rate);
    QFETCH(double, realRate);
    QFETCH(QString, ratio);
    QTEST(reachesOneGigabit(rate, realRate, ratio), "reaches");
}

void LineRateTest::aFixedRateIsDivided_data() {
    QTest::addColumn<double>("realRate");
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<QString>("rate");
    QTest::newRow("10, NA") << 10.0 << "NA"
                            << "10";
    QTest::newRow("10, 5x") << 10.0 << "5x"
                            << "2";
    QTest::newRow("10, 10x") << 10.0 << "10x"
                             << "1";
    QTest::newRow("10, 20x") << 10.0 << "20x"
                             << "0.5";
    QTest::newRow("10, 40x") << 10.0 << "40x"
                             << "0.25";
    QTest::newRow("0.5, 5x") << 0.5 << "5x"
                             << "0.1";
    QTest::newRow("10.3125, NA") << 10.3125 << "NA"
                                 << "10.3125";
    // Six digits; what lies half-way goes up: 10.3125 / 40 = 0.2578125.
    QTest::newRow("half-way goes up") << 10.3125 << "40x" << "0.257813";
    QTest::newRow("six digits: 2.97 / 1.001") << 2.97 / 1.001 << "NA"
                                              << "2.96703";
    QTest::newRow("free") << 0.0 << "5x"
                          << "";
    QTest::newRow("free, NA") << 0.0 << "NA"
                              << "";
    QTest::newRow("no ratio changes nothing") << 10.0 << ""
                                              << "";
}

void LineRateTest::aFixedRateIsDivided() {
    QFETCH(double, realRate);
    QFETCH(QString, ratio);
    QTEST(rateAtRatio(realRate, ratio), "rate");
}

QTEST_APPLESS_MAIN(LineRateTest)
#include "linerate_test.moc"
