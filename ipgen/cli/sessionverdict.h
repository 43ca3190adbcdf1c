#pragma once

#include "ipgen/session/player.h"

#include <serdesip/baseprotocol.h>

#include <QString>

namespace Ipgen {

/// Why a session did not end with an accepted configuration, for the user; empty when it was
/// accepted, or cancelled as it was meant to be.
QString whyNotAccepted(const Session::Report& report);

/// Opens the dialog of a saved instance. What the instance holds itself counts as free meanwhile.
Session::Player::Action openingOf(IPSERDESIP::BaseProtocol* protocol, const QString& name,
                                  const IPSERDESIP::ConfigMap& config);

} // namespace Ipgen
