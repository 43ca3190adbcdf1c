#include "serdesip/clocksolver.h"

#include <algorithm>
#include <cstdlib>

namespace IPSERDESIP {

namespace {

// Products of a rate, three dividers and the tolerance's million need more than 64 bits.
__extension__ using Wide = __int128;

constexpr Milli megahertz = 1000000000;
constexpr int million = 1000000;
constexpr Milli largest = 1000000000000000;

Wide ceilDivide(Wide a, Wide b) {
    return (a + b - 1) / b;
}

Wide roundDivide(Wide a, Wide b) {
    return (a + b / 2) / b;
}

Wide absolute(Wide value) {
    return value < 0 ? -value : value;
}

/// The error of a setting as a fraction of the rate.
struct Error {
    Wide numerator = 0; // not negative
    Wide denominator = 1;

    bool within() const { return numerator * million <= denominator * tolerancePpm; }
    bool operator<(const Error& other) const {
        return numerator * other.denominator < other.numerator * denominator;
    }
};

Error errorOf(Wide twiceOscillatorTimesM, int m, int d, Milli rate) {
    const Wide asked = Wide(rate) * m * d;
    return {absolute(twiceOscillatorTimesM - asked), asked};
}

/// The feedback values from `from` to `to`, as positions in the loop's ascending set.
struct Span {
    const int* first;
    const int* last;
};

Span span(const QVector<int>& values, Wide from, Wide to) {
    const auto bound = [](Wide value) {
        return int(std::min<Wide>(std::max<Wide>(value, 0), 1 << 30));
    };
    const int* first = std::lower_bound(values.constBegin(), values.constEnd(), bound(from));
    return {first, std::upper_bound(first, values.constEnd(), bound(to))};
}

class Search {
public:
    Search(const DEV::ClockLoop& loop, Milli reference, const QVector<Milli>& rates)
        : m_loop(loop)
        , m_reference(reference)
        , m_rates(rates)
        , m_trial(rates.size()) {}

    QVector<Dividers> run() {
        for (const int m : m_loop.m) {
            const Wide slowest = Wide(m_loop.vcoMHz.min) * megahertz * m;
            const Wide fastest = Wide(m_loop.vcoMHz.max) * megahertz * m;
            const Span turning =
                span(m_loop.n, ceilDivide(slowest, m_reference), fastest / m_reference);
            if (turning.first != turning.last) {
                searchFeedback(m, turning);
            }
        }
        return m_best;
    }

private:
    // For the first rate and each d only the few n within the tolerance need a look.
    void searchFeedback(int m, const Span& turning) {
        for (const int d : m_loop.d) {
            const Wide asked = Wide(m_rates.first()) * m * d;
            const Wide unit = Wide(2) * m_reference * million;
            const Wide from = ceilDivide(asked * (million - tolerancePpm), unit);
            const Wide to = asked * (million + tolerancePpm) / unit;
            if (to < *turning.first || from > *(turning.last - 1)) {
                continue;
            }
            const int low = int(std::max<Wide>(from, *turning.first));
            for (const int* n = std::lower_bound(turning.first, turning.last, low);
                 n != turning.last && *n <= to; ++n) {
                consider(m, *n);
            }
        }
    }

    void consider(int m, int n) {
        const Wide made = Wide(2) * m_reference * n;
        Error worst;
        for (int i = 0; i < m_rates.size(); ++i) {
            bool found = false;
            Error smallest;
            for (const int d : m_loop.d) {
                const Error error = errorOf(made, m, d, m_rates.at(i));
                if (error.within() && (!found || error < smallest)) {
                    found = true;
                    smallest = error;
                    m_trial[i] = {m, n, d};
                }
            }
            if (!found) {
                return;
            }
            worst = worst < smallest ? smallest : worst;
        }
        if (m_best.isEmpty() || worst < m_bestError) {
            m_best = m_trial;
            m_bestError = worst;
        } else if (!(m_bestError < worst) && before(m_trial, m_best)) {
            m_best = m_trial;
        }
    }

    static bool before(const QVector<Dividers>& a, const QVector<Dividers>& b) {
        const Dividers& x = a.first();
        const Dividers& y = b.first();
        return x.m != y.m ? x.m < y.m : x.n != y.n ? x.n < y.n : x.d < y.d;
    }

    const DEV::ClockLoop& m_loop;
    Milli m_reference;
    const QVector<Milli>& m_rates;
    QVector<Dividers> m_trial;
    QVector<Dividers> m_best;
    Error m_bestError;
};

void take(Neighbours& neighbours, Milli asked, Milli found) {
    if (found <= asked && found > neighbours.below) {
        neighbours.below = found;
    }
    if (found >= asked && (neighbours.above == 0 || found < neighbours.above)) {
        neighbours.above = found;
    }
}

} // namespace

std::optional<Milli> parseMilli(const QString& text, int decimals) {
    const int point = text.indexOf(QLatin1Char('.'));
    const int whole = point < 0 ? text.size() : point;
    const int behind = point < 0 ? 0 : text.size() - point - 1;
    if (whole == 0 || behind > decimals || (point >= 0 && behind == 0)) {
        return std::nullopt;
    }
    Milli value = 0;
    for (int i = 0; i < whole + 1 + decimals; ++i) {
        if (i == whole) {
            continue; // the point
        }
        const QChar digit = i < text.size() ? text.at(i) : QLatin1Char('0');
        if (digit < QLatin1Char('0') || digit > QLatin1Char('9')) {
            return std::nullopt;
        }
        value = value * 10 + (digit.unicode() - '0');
        if (value > largest) {
            return std::nullopt;
        }
    }
    return value;
}

QString milliText(Milli value, int decimals) {
    QString digits =
        QString::number(std::llabs(value)).rightJustified(decimals + 1, QLatin1Char('0'));
    digits.insert(digits.size() - decimals, QLatin1Char('.'));
    while (digits.endsWith(QLatin1Char('0'))) {
        digits.chop(1);
    }
    if (digits.endsWith(QLatin1Char('.'))) {
        digits.chop(1);
    }
    return value < 0 ? QLatin1Char('-') + digits : digits;
}

QVector<Dividers> solveDividers(const DEV::ClockLoop& loop, Milli reference,
                                const QVector<Milli>& rates) {
    const bool asked = reference > 0 && !rates.isEmpty() &&
                       std::all_of(rates.begin(), rates.end(), [](Milli r) { return r > 0; });
    return asked ? Search(loop, reference, rates).run() : QVector<Dividers>();
}

QString errorPpmText(const Dividers& dividers, Milli reference, Milli rate) {
    const Wide asked = Wide(rate) * dividers.m * dividers.d;
    const Wide off = Wide(2) * reference * dividers.n - asked;
    constexpr int decimals = 6;
    const Wide rounded = roundDivide(absolute(off) * million * million, asked);
    return milliText(off < 0 ? -Milli(rounded) : Milli(rounded), decimals);
}

Milli rateMade(const Dividers& dividers, Milli reference) {
    return Milli(roundDivide(Wide(2) * reference * dividers.n, Wide(dividers.m) * dividers.d));
}

Milli oscillatorFrequency(const Dividers& dividers, Milli reference) {
    return Milli(roundDivide(Wide(reference) * dividers.n, dividers.m));
}

Neighbours nearestRates(const DEV::ClockLoop& loop, Milli reference, Milli rate) {
    Neighbours neighbours;
    for (const int m : loop.m) {
        const Span turning =
            span(loop.n, ceilDivide(Wide(loop.vcoMHz.min) * megahertz * m, reference),
                 Wide(loop.vcoMHz.max) * megahertz * m / reference);
        for (const int* n = turning.first; n != turning.last; ++n) {
            for (const int d : loop.d) {
                take(neighbours, rate, rateMade({m, *n, d}, reference));
            }
        }
    }
    return neighbours;
}

Neighbours nearestReferences(const DEV::ClockLoop& loop, Milli reference, Milli rate,
                             const DEV::Range& references) {
    constexpr Milli step = 10; // 10^-8 MHz
    Neighbours neighbours;
    for (const int d : loop.d) {
        const Wide doubled = Wide(rate) * d; // twice the oscillator
        if (doubled < Wide(2) * loop.vcoMHz.min * megahertz ||
            doubled > Wide(2) * loop.vcoMHz.max * megahertz) {
            continue;
        }
        for (const int m : loop.m) {
            for (const int n : loop.n) {
                const Milli exact = Milli(roundDivide(doubled * m, Wide(2) * n * step)) * step;
                if (exact >= references.min * megahertz && exact <= references.max * megahertz) {
                    take(neighbours, reference, exact);
                }
            }
        }
    }
    return neighbours;
}

} // namespace IPSERDESIP
