#pragma once

#include "serdesip/export.h"

#include <QString>

namespace IPSERDESIP {

// A reference clock has two names: the option text of the dialogs ("Q0 REFCLK1", "MCLK") and the
// host name of the resource model ("Q0_REFCLK1", "MCLK"): the blank is an underscore.

/// Option text to host name; an unknown text gives an empty one.
HOST_SERDESIP_EXPORT QString refsrcOptTransforSerdesName(const QString& option);
/// Host name to option text; an unknown name gives an empty one.
HOST_SERDESIP_EXPORT QString refsrcSerdesNameTransforOpt(const QString& name);
/// Option text to the name that resource messages carry (the host name).
HOST_SERDESIP_EXPORT QString FromRefOptionToRef(const QString& option);

} // namespace IPSERDESIP
