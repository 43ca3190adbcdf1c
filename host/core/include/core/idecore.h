#pragma once

#include "core/export.h"

#include <dev/devicedb.h>

namespace Core {

/// The environment's process-wide services. GUI thread only.
class HOST_CORE_EXPORT IdeCore {
public:
    /// The device database; empty until one is set.
    static DEV::DeviceDb& deviceDataBase();
    static void setDeviceDataBase(const DEV::DeviceDb& db);
};

} // namespace Core
