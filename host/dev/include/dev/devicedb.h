#pragma once

#include "dev/devicearg.h"
#include "dev/export.h"

#include <QList>

namespace DEV {

/// The devices that the environment knows.
class HOST_DEV_EXPORT DeviceDb {
public:
    DeviceDb() = default;
    explicit DeviceDb(const QList<DeviceArg>& devices);

    QList<DeviceArg> devices() const { return m_devices; }
    /// @param name  an id; else a model name. Unknown gives the null device.
    DeviceArg findDevice(const QString& name) const;

private:
    QList<DeviceArg> m_devices;
};

} // namespace DEV
