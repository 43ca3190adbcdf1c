#pragma once

#include "dev/devicearg.h"
#include "dev/deviceinfo.h"
#include "dev/export.h"

#include <QHash>
#include <QList>

#include <memory>

namespace DEV {

/// The devices that the environment knows.
class HOST_DEV_EXPORT DeviceDb {
public:
    DeviceDb() = default;
    /// Devices of which nothing but the names is known.
    explicit DeviceDb(const QList<DeviceArg>& devices);
    explicit DeviceDb(const QList<DeviceInfo>& devices);

    /// Reads a database file. On failure the result is empty and *error says in one line which
    /// file, where, which device and which field is wrong, and why.
    static DeviceDb load(const QString& path, QString* error);

    QList<DeviceArg> devices() const { return m_devices; }
    /// @param name  an id; else a model name. Unknown gives the null device.
    DeviceArg findDevice(const QString& name) const;
    /// What is known of a device; null when nothing is.
    std::shared_ptr<const DeviceInfo> info(const DeviceArg& device) const;

private:
    QList<DeviceArg> m_devices;
    QHash<QString, std::shared_ptr<const DeviceInfo>> m_infos; // by id
};

} // namespace DEV
