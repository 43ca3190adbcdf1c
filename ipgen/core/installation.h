#pragma once

#include "ipgen/core/status.h"

#include <dev/devicedb.h>

#include <QString>

namespace Ipgen {

// Where the program's own things lie, found from the program's place: the build tree and the
// installed tree have the same shape. A QCoreApplication must exist.

/// The folder that holds a folder for each installed IP.
QString installedIpFolder();
/// The reference host's data files.
QString hostDataFolder();
/// What the window and the frame of the dialogs say in other languages.
QString translationFolder();

/// Reads the device database and makes it the environment's (Core::IdeCore::deviceDataBase()).
Status loadDevices();

/// A device of the loaded database by id or model name; unknown: a Refused status that lists
/// what is known.
Status findDevice(const QString& name, DEV::DeviceArg* device);

} // namespace Ipgen
