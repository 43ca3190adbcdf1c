#pragma once

#include <QString>
#include <QStringList>

namespace IPCUSTOMIZED::rules {

/// The codings that an internal width (bits) and an external ratio ("1:4") allow.
QStringList codings(int width, const QString& ratio);
/// 64B66B and 64B67B need the width "16" and the ratio "1:4".
bool isBlockCoding(const QString& coding);
/// Whether a common internal width has room for 8B/10B symbols.
bool fits8B10B(int width);

/// 5 ... 16383; else "32".
QString correctedMetaFrameLength(const QString& typed);

/// What a receive bonding choice opens, by its item data (0, 1, 2, 4 words).
struct BondingFields {
    bool first = false;  ///< pattern 0, max skew, read start depth
    bool second = false; ///< pattern 1
    bool rest = false;   ///< patterns 2 and 3
};
BondingFields bondingFields(int words);

/// What a clock correction choice opens, by its item data (0 none, 1 one word, 3 two words).
struct CorrectionFields {
    bool first = false;  ///< pattern 0, read start depth
    bool second = false; ///< pattern 1
};
CorrectionFields correctionFields(int data);

/// The correction clocks that a number of selected lanes allows.
QStringList correctionClocks(int lanes);

} // namespace IPCUSTOMIZED::rules
