#include "dev/devicedb.h"

#include <algorithm>

namespace DEV {

DeviceDb::DeviceDb(const QList<DeviceArg>& devices)
    : m_devices(devices)
{
}

DeviceArg DeviceDb::findDevice(const QString& name) const
{
    const auto named = [&](auto text) {
        const auto it = std::find_if(m_devices.begin(), m_devices.end(),
                                     [&](const DeviceArg& d) { return text(d) == name; });
        return it == m_devices.end() ? DeviceArg() : *it;
    };
    const DeviceArg byId = named([](const DeviceArg& d) { return d.id(); });
    return byId.isNull() ? named([](const DeviceArg& d) { return d.device(); }) : byId;
}

} // namespace DEV
