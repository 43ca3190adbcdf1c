#pragma once

#include "harness.h"

#include <vector>

namespace DialogTest {

/// How a saved key comes from its widget.
enum class From { Text, Checked, Number, Enabled };

struct SavedKey {
    const char* key;
    const char* widget;
    From from;
};

/// The keys that come from widgets, in the order in which they are listed for the saved format.
const std::vector<SavedKey>& savedKeys();
/// The keys that do not.
QStringList otherKeys();

/// What the dialog shows as the saved form of each key, and the rest of a configuration beside it.
/// @param realRate  the rate that another instance fixes on the PLL, or 0
ConfigMap shownConfig(const Dialog& dialog, double realRate = 0.0);

/// "KEY: a instead of b" for each key whose value or kind differs.
QStringList differences(const ConfigMap& actual, const ConfigMap& expected);

} // namespace DialogTest
