#include <serdesip/clocksolver.h>

#include <dev/devicedb.h>

#include <QtTest>

#include <random>

using namespace IPSERDESIP;

namespace {

__extension__ using Wide = __int128;

DEV::DeviceInfo shippedDevice(const char* id) {
    QString error;
    const auto db =
        DEV::DeviceDb::load(QStringLiteral(SOURCE_DIR "/host/data/devices.json"), &error);
    if (!error.isEmpty()) {
        qFatal("%s", qPrintable(error));
    }
    return *db.info(db.findDevice(QString::fromLatin1(id)));
}

QVector<DEV::ClockLoop> loopsOf(const DEV::DeviceInfo& device) {
    QVector<DEV::ClockLoop> loops = device.plls;
    loops.append(device.cdr);
    return loops;
}

bool turns(const DEV::ClockLoop& loop, Milli reference, int m, int n) {
    const Wide oscillator = Wide(reference) * n; // times m
    return oscillator >= Wide(loop.vcoMHz.min) * 1000000000 * m &&
           oscillator <= Wide(loop.vcoMHz.max) * 1000000000 * m;
}

/// The smallest error of any setting, a fraction of the rate; a negative one: there is no setting.
struct Fraction {
    Wide numerator = -1;
    Wide denominator = 1;
};

Fraction bruteForce(const DEV::ClockLoop& loop, Milli reference, Milli rate) {
    Fraction best;
    for (const int m : loop.m) {
        for (const int n : loop.n) {
            for (const int d : loop.d) {
                // made / asked - 1, where made = 2 * reference * n / (m * d)
                const Wide asked = Wide(rate) * m * d;
                Wide off = Wide(2) * reference * n - asked;
                off = off < 0 ? -off : off;
                if (off * 10000 > asked || !turns(loop, reference, m, n)) {
                    continue;
                }
                if (best.numerator < 0 || off * best.denominator < best.numerator * asked) {
                    best = {off, asked};
                }
            }
        }
    }
    return best;
}

} // namespace

class ClockSolverTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsDecimals_data();
    void readsDecimals();
    void solvesTheUsualRates_data();
    void solvesTheUsualRates();
    void agreesWithBruteForce();
    void holdsTheToleranceExactly();
    void sharesOneOscillator();
    void refusesNonsense();
    void findsNeighbours();
};

void ClockSolverTest::readsDecimals_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<qlonglong>("value"); // -1: none
    QTest::addColumn<QString>("back");
    const auto row = [](const char* text, int decimals, qlonglong value, const char* back) {
        QTest::newRow(text) << QString::fromLatin1(text) << decimals << value
                            << QString::fromLatin1(back);
    };
    row("125", 9, 125000000000LL, "125");
    row("156.25", 9, 156250000000LL, "156.25");
    row("0.05", 2, 5, "0.05");
    row("148.35164835", 9, 148351648350LL, "148.35164835");
    row("2.96703297", 12, 2967032970000LL, "2.96703297");
    row("00.10", 9, 100000000, "0.1");
    row("0", 9, 0, "0");
    row("", 9, -1, "");
    row(".5", 9, -1, "");
    row("5.", 9, -1, "");
    row("1e3", 9, -1, "");
    row("-1", 9, -1, "");
    row(" 1", 9, -1, "");
    row("1.2.3", 9, -1, "");
    row("0.0000000001", 9, -1, "");
    row("1000000000000000000000000", 9, -1, "");
}

void ClockSolverTest::readsDecimals() {
    QFETCH(QString, text);
    QFETCH(int, decimals);
    const std::optional<Milli> value = parseMilli(text, decimals);
    QTEST(qlonglong(value.value_or(-1)), "value");
    if (value) {
        QTEST(milliText(*value, decimals), "back");
        QCOMPARE(milliText(-*value, decimals),
                 *value == 0 ? text : QLatin1Char('-') + milliText(*value, decimals));
    }
}

void ClockSolverTest::solvesTheUsualRates_data() {
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QString>("reference");
    for (const auto& [rates, reference] :
         std::initializer_list<std::pair<QStringList, const char*>>{
             {{"1.25", "2.5", "5", "10", "8"}, "100"},
             {{"1.25", "2.5", "5", "10"}, "125"},
             {{"3.125", "6.25", "10.3125", "12.5"}, "156.25"},
             {{"2.97"}, "148.5"},
             {{"2.96703297"}, "148.35164835"},
             {{"6.144", "9.8304"}, "122.88"}}) {
        for (const QString& rate : rates) {
            QTest::addRow("%s from %s", qPrintable(rate), reference)
                << rate << QString::fromLatin1(reference);
        }
    }
}

void ClockSolverTest::solvesTheUsualRates() {
    QFETCH(QString, rate);
    QFETCH(QString, reference);
    const Milli asked = parseMilli(rate, gbpsDecimals).value_or(0);
    const Milli clock = parseMilli(reference, mhzDecimals).value_or(0);
    for (const char* id : {"RZ7X-60B", "RZ7X-15A", "RZ7X-138"}) {
        for (const DEV::ClockLoop& loop : loopsOf(shippedDevice(id))) {
            const QVector<Dividers> found = solveDividers(loop, clock, {asked});
            QVERIFY2(found.size() == 1, qPrintable(loop.kind));
            const Dividers& dividers = found.first();
            QVERIFY(turns(loop, clock, dividers.m, dividers.n));
            // All of them are exact, but for the one that its fields cannot hold: two parts in
            // 10^9.
            const QString error = errorPpmText(dividers, clock, asked);
            QCOMPARE(error, rate == QLatin1String("2.96703297") ? QStringLiteral("-0.001011")
                                                                : QStringLiteral("0"));
        }
    }
}

// Half of the pairs lie near a setting, so that both answers come up often.
void ClockSolverTest::agreesWithBruteForce() {
    constexpr int pairs = 10000;
    const unsigned seed = qEnvironmentVariableIsSet("TEST_SEED")
                              ? unsigned(qEnvironmentVariableIntValue("TEST_SEED"))
                              : std::random_device()();
    qInfo("seed %u (set TEST_SEED to repeat)", seed);
    std::mt19937 random(seed);
    const auto pick = [&](Milli from, Milli to) {
        return std::uniform_int_distribution<Milli>(from, to)(random);
    };
    const QVector<DEV::ClockLoop> loops = loopsOf(shippedDevice("RZ7X-60B"));
    int solved = 0;
    for (int i = 0; i < pairs; ++i) {
        const DEV::ClockLoop& loop = loops.at(int(pick(0, loops.size() - 1)));
        const Milli reference = pick(50 * 100, 500 * 100) * 10000000; // steps of 0.01 MHz
        Milli rate = pick(1000 * 10, 12500 * 10) * 100000000;         // steps of 0.1 Mbit/s
        if (i % 2 == 0) {
            const auto any = [&](const QVector<int>& set) {
                return set.at(int(pick(0, set.size() - 1)));
            };
            const Dividers near{any(loop.m), any(loop.n), any(loop.d)};
            const Milli made = rateMade(near, reference);
            rate = made + made / 1000000 * pick(-150, 150);
        }
        const Fraction best = bruteForce(loop, reference, rate);
        const QVector<Dividers> found = solveDividers(loop, reference, {rate});
        const QString pair =
            QStringLiteral("%1: %2 MHz, %3 Gbit/s")
                .arg(loop.kind, milliText(reference, mhzDecimals), milliText(rate, gbpsDecimals));
        QVERIFY2(found.isEmpty() == (best.numerator < 0), qPrintable(pair));
        if (found.isEmpty()) {
            continue;
        }
        ++solved;
        const Dividers& dividers = found.first();
        QVERIFY2(loop.m.contains(dividers.m) && loop.n.contains(dividers.n) &&
                     loop.d.contains(dividers.d) && turns(loop, reference, dividers.m, dividers.n),
                 qPrintable(pair));
        const Wide asked = Wide(rate) * dividers.m * dividers.d;
        const Wide off = Wide(2) * reference * dividers.n - asked;
        QVERIFY2((off < 0 ? -off : off) * best.denominator == best.numerator * asked,
                 qPrintable(pair + QStringLiteral(": not the smallest error")));
    }
    QVERIFY2(solved > pairs / 10 && solved < pairs * 9 / 10, qPrintable(QString::number(solved)));
}

// A loop of one setting: 100 MHz gives 2 * 100 * 20 / 1 = 4000 Mbit/s.
void ClockSolverTest::holdsTheToleranceExactly() {
    DEV::ClockLoop loop;
    loop.vcoMHz = {2000, 2000};
    loop.m = {1};
    loop.n = {20};
    loop.d = {1};
    const Milli reference = 100000000000;
    const Milli made = 4000000000000;
    QCOMPARE(rateMade({1, 20, 1}, reference), made);
    // made = asked * (1 +- 10^-4): asked = 4 * 10^12 / 1.0001 and / 0.9999, inwards and outwards.
    const Milli low = 3999600039997;  // > 4 * 10^12 / 1.0001 = 3999600039996.0004
    const Milli high = 4000400040004; // < 4 * 10^12 / 0.9999 = 4000400040004.0004
    QCOMPARE(solveDividers(loop, reference, {made}).size(), 1);
    QCOMPARE(solveDividers(loop, reference, {low}).size(), 1);
    QCOMPARE(solveDividers(loop, reference, {low - 1}).size(), 0);
    QCOMPARE(solveDividers(loop, reference, {high}).size(), 1);
    QCOMPARE(solveDividers(loop, reference, {high + 1}).size(), 0);
    // The oscillator's bounds belong to its range, and nothing beyond them.
    QCOMPARE(solveDividers(loop, reference - 1, {made}).size(), 0);
    QCOMPARE(solveDividers(loop, reference + 1, {made}).size(), 0);
    QCOMPARE(errorPpmText({1, 20, 1}, reference, low), QStringLiteral("100"));
    QCOMPARE(errorPpmText({1, 20, 1}, reference, 4000200000000), QStringLiteral("-49.9975"));
}

void ClockSolverTest::sharesOneOscillator() {
    const DEV::DeviceInfo device = shippedDevice("RZ7X-60B");
    const DEV::ClockLoop& loop = *device.loop(QStringLiteral("QPLL0"));
    const Milli reference = 125000000000;
    const Milli gigabit = 1000000000000;
    const QVector<Dividers> found =
        solveDividers(loop, reference, {10 * gigabit, 5 * gigabit, 5 * gigabit / 4});
    QCOMPARE(found.size(), 3);
    for (const Dividers& dividers : found) {
        QCOMPARE(dividers.m, found.first().m);
        QCOMPARE(dividers.n, found.first().n);
    }
    QCOMPARE(rateMade(found.at(0), reference), 10 * gigabit);
    QCOMPARE(rateMade(found.at(1), reference), 5 * gigabit);
    QCOMPARE(rateMade(found.at(2), reference), 5 * gigabit / 4);
    // 8 and 10 each have a setting, but no oscillator frequency in common.
    QVERIFY(!solveDividers(loop, reference, {8 * gigabit}).isEmpty());
    QVERIFY(solveDividers(loop, reference, {8 * gigabit, 10 * gigabit}).isEmpty());
}

void ClockSolverTest::refusesNonsense() {
    const DEV::DeviceInfo device = shippedDevice("RZ7X-60B");
    QVERIFY(solveDividers(device.cdr, 0, {1000000000000}).isEmpty());
    QVERIFY(solveDividers(device.cdr, 125000000000, {0}).isEmpty());
    QVERIFY(solveDividers(device.cdr, 125000000000, {}).isEmpty());
    QVERIFY(solveDividers(device.cdr, 1, {1000000000000}).isEmpty());
    QVERIFY(solveDividers(device.cdr, 1000000000000000, {1000000000000}).isEmpty());
}

void ClockSolverTest::findsNeighbours() {
    DEV::ClockLoop loop;
    loop.vcoMHz = {2000, 2200};
    loop.m = {1};
    loop.n = {20, 21, 22};
    loop.d = {1};
    const Milli reference = 100000000000;
    const Neighbours rates = nearestRates(loop, reference, 4100000000000);
    QCOMPARE(rates.below, 4000000000000);
    QCOMPARE(rates.above, 4200000000000);
    const Neighbours none = nearestRates(loop, reference, 4500000000000);
    QCOMPARE(none.below, 4400000000000);
    QCOMPARE(none.above, 0);
    // 4.1 Gbit/s: 4100 / 2 / 20 = 102.5, / 21 = 97.61904762, / 22 = 93.18181818 MHz
    const Neighbours clocks = nearestReferences(loop, reference, 4100000000000, {50, 500});
    QCOMPARE(clocks.below, 97619047620);
    QCOMPARE(clocks.above, 102500000000);
}

QTEST_GUILESS_MAIN(ClockSolverTest)
#include "clocksolver_test.moc"
