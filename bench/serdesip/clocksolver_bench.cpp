// One divider solve against a plain loop over the same candidates.
#include "ratio.h"

#include <serdesip/clocksolver.h>

#include <dev/devicedb.h>

#include <cmath>
#include <random>
#include <vector>

using namespace IPSERDESIP;

namespace {

constexpr int rounds = 9;
constexpr int pairs = 2000;

struct Pair {
    Milli reference;
    Milli rate;
};

/// Rates near a setting, solvable or not, as in the field.
std::vector<Pair> somePairs(const DEV::ClockLoop& loop) {
    std::mt19937 random(1);
    const auto pick = [&](Milli from, Milli to) {
        return std::uniform_int_distribution<Milli>(from, to)(random);
    };
    std::vector<Pair> list;
    while (list.size() < pairs) {
        const Milli reference = pick(5000, 50000) * 10000000;
        const auto any = [&](const QVector<int>& set) {
            return set.at(int(pick(0, set.size() - 1)));
        };
        const Milli rate = rateMade({any(loop.m), any(loop.n), any(loop.d)}, reference);
        if (rate >= 1000000000000 && rate <= 12500000000000) {
            list.push_back({reference, rate + rate / 1000000 * pick(-150, 150)});
        }
    }
    return list;
}

/// What one would write first: every m, n and d in floating point, the best one kept.
bool plainLoop(const DEV::ClockLoop& loop, const Pair& pair, Dividers* found) {
    const int *ms = loop.m.constData(), *ns = loop.n.constData(), *ds = loop.d.constData();
    const int mCount = loop.m.size(), nCount = loop.n.size(), dCount = loop.d.size();
    const double reference = double(pair.reference), rate = double(pair.rate);
    const double low = double(loop.vcoMHz.min) * 1e9, high = double(loop.vcoMHz.max) * 1e9;
    double best = tolerancePpm / 1e6;
    bool any = false;
    for (int i = 0; i < mCount; ++i) {
        for (int j = 0; j < nCount; ++j) {
            const double oscillator = reference * ns[j] / ms[i];
            if (oscillator < low || oscillator > high) {
                continue;
            }
            for (int k = 0; k < dCount; ++k) {
                const double error = std::fabs(2 * oscillator / ds[k] - rate) / rate;
                if (error < best) {
                    best = error;
                    any = true;
                    *found = {ms[i], ns[j], ds[k]};
                }
            }
        }
    }
    return any;
}

} // namespace

int main() {
    QString error;
    const auto db =
        DEV::DeviceDb::load(QStringLiteral(SOURCE_DIR "/host/data/devices.json"), &error);
    if (!error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    const auto device = db.info(db.findDevice(QStringLiteral("RZ7X-60B")));
    const DEV::ClockLoop loop = *device->loop(QStringLiteral("QPLL0"));
    const std::vector<Pair> list = somePairs(loop);
    Bench::Ratio ratio;
    int solved = 0;
    int solvedPlainly = 0;
    for (int i = 0; i < rounds; ++i) {
        const double measured = Bench::seconds([&] {
            for (const Pair& pair : list) {
                solved += solveDividers(loop, pair.reference, {pair.rate}).size();
            }
        });
        const double plain = Bench::seconds([&] {
            Dividers found;
            for (const Pair& pair : list) {
                solvedPlainly += plainLoop(loop, pair, &found) ? found.n > 0 : 0;
            }
        });
        ratio.round(measured, plain);
    }
    std::printf("solved: %d of %d (the loop: %d)\n", solved / rounds, pairs,
                solvedPlainly / rounds);
    return ratio.print("one divider solve against a plain loop over its candidates", 1.0);
}
