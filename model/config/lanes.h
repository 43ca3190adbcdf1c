#pragma once

#include <QLatin1String>
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
    {QLatin1String("Q0_LN0"), QLatin1String("Q0 Lane0"), QLatin1String("q0_ln0"), 0},
    {QLatin1String("Q0_LN1"), QLatin1String("Q0 Lane1"), QLatin1String("q0_ln1"), 0},
    {QLatin1String("Q0_LN2"), QLatin1String("Q0 Lane2"), QLatin1String("q0_ln2"), 0},
    {QLatin1String("Q0_LN3"), QLatin1String("Q0 Lane3"), QLatin1String("q0_ln3"), 0},
    {QLatin1String("Q1_LN0"), QLatin1String("Q1 Lane0"), QLatin1String("q1_ln0"), 1},
    {QLatin1String("Q1_LN1"), QLatin1String("Q1 Lane1"), QLatin1String("q1_ln1"), 1},
    {QLatin1String("Q1_LN2"), QLatin1String("Q1 Lane2"), QLatin1String("q1_ln2"), 1},
    {QLatin1String("Q1_LN3"), QLatin1String("Q1 Lane3"), QLatin1String("q1_ln3"), 1},
}};
inline constexpr std::array<QLatin1String, 2> quadPrefixes{QLatin1String("q0"), QLatin1String("q1")};
/// What the captions of a quad's lanes begin with.
inline constexpr std::array<QLatin1String, 2> quadCaptions{QLatin1String("Q0"), QLatin1String("Q1")};
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
