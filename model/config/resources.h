#pragma once

#include "model/config/deviceclass.h"

#include <serdesip/message.h>
#include <serdesip/types.h>

namespace IPCUSTOMIZED {

/// What a configured instance occupies. The fields that name things are filled as follows:
/// - lanes: those whose key is true; a PLL for each quad (or, for CPLL, for each lane) they lie in;
/// - in Manual mode, and for "RX Only" on the listed devices, the multiplexers that feed the PLL
///   and the receiver, one in each quad in use, and their sources; otherwise the one reference;
/// - the PLL's reference stands first among the reference clocks;
/// - the real transmit rate is the one taken over from a shared PLL, else the rate times the
///   oversampling ratio.
/// @param protocol  the protocol model's name
IPSERDESIP::Message resourceMessage(const IPSERDESIP::ConfigMap& config, DeviceClass device,
                                    const QString& protocol);

} // namespace IPCUSTOMIZED
