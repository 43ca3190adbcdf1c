#pragma once

#include "model/config/latin.h"
#include <QString>
#include <QStringList>

#include <array>

namespace IPCUSTOMIZED {

/// The names of one lane.
struct Lane {
    QLatin1String key;     ///< configuration key, and `%1` of define lines
    QLatin1String caption; ///< what the user sees, and the value of lane options
    QLatin1String prefix;  ///< `%1` of parameter and script lines
    int quad;              ///< 0 or 1
};

/// The eight lanes in their fixed order, quad 0 first. A lane's place is its index in options.
/// One table in the whole library (hence inline): laneIndex() counts from its beginning.
// clang-format off
inline constexpr std::array<Lane, 8> lanes{{
    {"Q0_LN0"_l1, "Q0 Lane0"_l1, "q0_ln0"_l1, 0},
    {"Q0_LN1"_l1, "Q0 Lane1"_l1, "q0_ln1"_l1, 0},
    {"Q0_LN2"_l1, "Q0 Lane2"_l1, "q0_ln2"_l1, 0},
    {"Q0_LN3"_l1, "Q0 Lane3"_l1, "q0_ln3"_l1, 0},
    {"Q1_LN0"_l1, "Q1 Lane0"_l1, "q1_ln0"_l1, 1},
    {"Q1_LN1"_l1, "Q1 Lane1"_l1, "q1_ln1"_l1, 1},
    {"Q1_LN2"_l1, "Q1 Lane2"_l1, "q1_ln2"_l1, 1},
    {"Q1_LN3"_l1, "Q1 Lane3"_l1, "q1_ln3"_l1, 1},
}};
inline constexpr std::array<QLatin1String, 2> quadPrefixes{"q0"_l1, "q1"_l1};
/// What the captions of a quad's lanes begin with.
inline constexpr std::array<QLatin1String, 2> quadCaptions{"Q0"_l1, "Q1"_l1};
// clang-format on

/// The lane with this caption; null when no lane has it.
inline const Lane* laneByCaption(const QString& caption) {
    for (const Lane& lane : lanes) {
        if (caption == lane.caption) {
            return &lane;
        }
    }
    return nullptr;
}

/// The lane's place in the table, 0 ... 7.
inline int laneIndex(const Lane& lane) {
    return static_cast<int>(&lane - lanes.data());
}

/// Whether some caption of the list begins with the quad's name.
inline bool usesQuad(const QStringList& captions, int quad) {
    for (const QString& caption : captions) {
        if (caption.startsWith(quadCaptions[static_cast<std::size_t>(quad)])) {
            return true;
        }
    }
    return false;
}

} // namespace IPCUSTOMIZED
