#pragma once

#include "ipgen/session/report.h"
#include "ipgen/session/script.h"

#include <serdesip/types.h>

#include <functional>

namespace Ipgen::Session {

/// Finds the steps that lead a new instance's dialog to given values. Each try plays a script on a
/// fresh dialog and sets again what a later step's rule has changed; a field that is locked is
/// reached through the choice that opens it.
/// @param wanted  the fields in the dialog's order, as "set" steps
/// @param saved   the configuration that OK gives; decides on the answers to what OK asks
/// @param script  the steps, without accept
/// @return why there are none; empty: found
QString approach(const Script& wanted, const IPSERDESIP::ConfigMap& saved,
                 const std::function<Report(const Script&)>& play, Script* script);

} // namespace Ipgen::Session
