#include "dev/devicedb.h"

#include "devicereader.h"

#include <utils/filereplace.h>
#include <utils/jsontext.h>

#include <algorithm>

namespace DEV {

DeviceDb::DeviceDb(const QList<DeviceArg>& devices)
    : m_devices(devices) {}

DeviceDb::DeviceDb(const QList<DeviceInfo>& devices) {
    for (const DeviceInfo& device : devices) {
        m_devices.append(DeviceArg(device.id, device.model));
        m_infos.insert(device.id, std::make_shared<const DeviceInfo>(device));
    }
}

DeviceDb DeviceDb::load(const QString& path, QString* error) {
    QByteArray text;
    if (const Utils::FileResult read = Utils::readFile(path, &text); !read) {
        *error = QStringLiteral("%1: %2").arg(read.path, read.reason);
        return {};
    }
    QVariant root;
    Utils::JsonError damage;
    if (!Utils::parseJson(text, &root, &damage)) {
        *error = QStringLiteral("%1: %2").arg(path, damage.text());
        return {};
    }
    QString reason;
    const QList<DeviceInfo> devices = readDevices(root, &reason);
    if (!reason.isEmpty()) {
        *error = QStringLiteral("%1: %2").arg(path, reason);
        return {};
    }
    error->clear();
    return DeviceDb(devices);
}

DeviceArg DeviceDb::findDevice(const QString& name) const {
    const auto named = [&](auto text) {
        const auto it = std::find_if(m_devices.begin(), m_devices.end(),
                                     [&](const DeviceArg& d) { return text(d) == name; });
        return it == m_devices.end() ? DeviceArg() : *it;
    };
    const DeviceArg byId = named([](const DeviceArg& d) { return d.id(); });
    return byId.isNull() ? named([](const DeviceArg& d) { return d.device(); }) : byId;
}

std::shared_ptr<const DeviceInfo> DeviceDb::info(const DeviceArg& device) const {
    return m_infos.value(device.id());
}

} // namespace DEV
