#include "ipgen/core/installation.h"

#include <core/idecore.h>

#include <QCoreApplication>
#include <QDir>
#include <QStringList>

namespace Ipgen {

namespace {

QString belowPrefix(const char* folder) {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../") +
                           QLatin1String(folder));
}

} // namespace

QString installedIpFolder() {
    return belowPrefix(IP_DIR);
}

QString hostDataFolder() {
    return belowPrefix(HOST_DATA_DIR);
}

QString translationFolder() {
    return belowPrefix(TRANSLATION_DIR);
}

Status loadDevices() {
    const QString path = hostDataFolder() + QStringLiteral("/devices.json");
    QString error;
    const DEV::DeviceDb db = DEV::DeviceDb::load(path, &error);
    if (!error.isEmpty()) {
        return {Exit::BadInput, QStringLiteral("device database"), error};
    }
    Core::IdeCore::setDeviceDataBase(db);
    return {};
}

Status findDevice(const QString& name, DEV::DeviceArg* device) {
    const DEV::DeviceDb& db = Core::IdeCore::deviceDataBase();
    *device = name.isEmpty() ? DEV::DeviceArg() : db.findDevice(name);
    if (!device->isNull()) {
        return {};
    }
    QStringList known;
    const QList<DEV::DeviceArg> devices = db.devices();
    for (const DEV::DeviceArg& one : devices) {
        known.append(one.id());
    }
    return {Exit::Refused, QStringLiteral("device \"%1\"").arg(name),
            QStringLiteral("not in the device database; known: %1")
                .arg(known.join(QStringLiteral(", ")))};
}

} // namespace Ipgen
