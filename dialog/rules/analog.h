#pragma once

#include <QString>
#include <QStringList>

namespace IPCUSTOMIZED::rules {

/// The three transmit taps always sum to 40.
constexpr int mainTap(int cm, int c1) {
    return 40 - cm - c1;
}
constexpr bool isMainTapValid(int c0) {
    return c0 > 20;
}

inline constexpr int defaultBias = 7;

/// Receive equalisation in "Auto".
inline constexpr int automaticAtt = 7;
inline constexpr int automaticBoost = 9;

/// Whose stored bias the selected lanes take over.
enum class BiasFrom { Default, Quad0, Quad1 };
BiasFrom biasFrom(const QStringList& selectedLanes);

/// The lanes that a bias change reaches beside the selected ones: the other lanes of the quads
/// that are used.
QStringList lanesSharingBias(const QStringList& selectedLanes);

/// "%1mV" from `first` to `last` in steps.
QStringList millivolts(int first, int last, int step);
/// "0" ... "31".
QStringList depths();

} // namespace IPCUSTOMIZED::rules
