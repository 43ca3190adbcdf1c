#pragma once

#include "serdesip/export.h"

#include <dev/deviceinfo.h>

#include <QString>
#include <QVector>

#include <optional>

namespace IPSERDESIP {

// Frequencies and rates are whole numbers of mHz and of mbit/s (a thousandth of a bit a second):
// every decimal that a script can hold is one of them, so that all sums below are exact.
using Milli = qint64;
constexpr int mhzDecimals = 9;   ///< 1 MHz = 10^9 mHz; 1 Mbit/s likewise
constexpr int gbpsDecimals = 12; ///< 1 Gbit/s = 10^12 mbit/s

/// Reads "156.25": digits, then at most `decimals` more behind a point. Nothing when the text is
/// no such number or its value times 10^decimals is above 10^15.
HOST_SERDESIP_EXPORT std::optional<Milli> parseMilli(const QString& text, int decimals);
/// The number that parseMilli() reads, without needless zeros.
HOST_SERDESIP_EXPORT QString milliText(Milli value, int decimals);

/// Divider values of a loop: the oscillator runs at reference * n / m, the line at twice the
/// oscillator divided by d.
struct Dividers {
    int m = 0;
    int n = 0;
    int d = 0;
};

/// What is allowed between the rate asked for and the rate made.
constexpr int tolerancePpm = 100;

/// Finds the settings of one loop that serves several lines: m and n are common to all of them, d
/// is each one's own. The oscillator is in its range and every rate within the tolerance; of all
/// such settings the one with the smallest worst error is taken, then with the smallest m, then n,
/// then d. The result stands in the order of the rates; it is empty when there is no setting.
HOST_SERDESIP_EXPORT QVector<Dividers> solveDividers(const DEV::ClockLoop& loop, Milli reference,
                                                     const QVector<Milli>& rates);

/// (made - asked) / asked in ppm, as a decimal text rounded to six decimals.
HOST_SERDESIP_EXPORT QString errorPpmText(const Dividers& dividers, Milli reference, Milli rate);
/// The rate made, rounded to a whole mbit/s; the oscillator's frequency, to a whole mHz.
HOST_SERDESIP_EXPORT Milli rateMade(const Dividers& dividers, Milli reference);
HOST_SERDESIP_EXPORT Milli oscillatorFrequency(const Dividers& dividers, Milli reference);

/// For one who asks what would work: the rates next below and above that a loop makes from the
/// reference, and the references next below and above, of those in `references`, that make the
/// rate exactly (rounded to 10^-8 MHz, as far as fields go). 0: none.
struct Neighbours {
    Milli below = 0;
    Milli above = 0;
};
HOST_SERDESIP_EXPORT Neighbours nearestRates(const DEV::ClockLoop& loop, Milli reference,
                                             Milli rate);
HOST_SERDESIP_EXPORT Neighbours nearestReferences(const DEV::ClockLoop& loop, Milli reference,
                                                  Milli rate, const DEV::Range& references);

} // namespace IPSERDESIP
