#pragma once

#include "dev/deviceinfo.h"

#include <QList>
#include <QVariant>

namespace DEV {

/// Turns the parsed database file into devices. A wrong file gives a reason and an empty list.
QList<DeviceInfo> readDevices(const QVariant& root, QString* reason);

} // namespace DEV
