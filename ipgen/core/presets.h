#pragma once

#include "ipgen/core/catalogue.h"
#include "ipgen/core/status.h"

#include <dev/devicearg.h>
#include <serdesip/preset.h>

namespace Ipgen {

// Where an IP's presets lie: those that came with it in "data/presets" beside its plug-in, the
// user's in the XDG data folder.

QString ipPresetFolder(const CatalogueEntry& entry);
QString ownPresetFolder(const CatalogueEntry& entry);

/// A preset by its name, or the one in a file: what ends with ".json". Refused:
/// there is none that suits the device; BadInput: the file cannot be used.
Status findPreset(const CatalogueEntry& entry, const DEV::DeviceArg& device, const QString& name,
                  IPSERDESIP::Preset* preset);

} // namespace Ipgen
