#include "ipgen/core/presets.h"

#include <QStandardPaths>
#include <QUrl>

namespace Ipgen {

namespace {

Status notSuited(const IPSERDESIP::Preset& preset, const DEV::DeviceArg& device) {
    return {Exit::Refused, QStringLiteral("preset \"%1\"").arg(preset.name),
            QStringLiteral("is for %1, not for %2")
                .arg(preset.devices.join(QStringLiteral(", ")), device.id())};
}

Status readFile(const QString& path, IPSERDESIP::Preset* preset) {
    const QString reason = IPSERDESIP::readPreset(path, preset);
    return reason.isEmpty() ? Status() : Status(Exit::BadInput, path, reason);
}

} // namespace

QString ipPresetFolder(const CatalogueEntry& entry) {
    return entry.folder + QStringLiteral("/data/presets");
}

QString ownPresetFolder(const CatalogueEntry& entry) {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/ipgen/presets/") +
           QString::fromLatin1(QUrl::toPercentEncoding(entry.id, {}, "."));
}

Status findPreset(const CatalogueEntry& entry, const DEV::DeviceArg& device, const QString& name,
                  IPSERDESIP::Preset* preset) {
    if (name.endsWith(QLatin1String(".json"))) {
        const Status read = readFile(name, preset);
        return !read.ok() || preset->suits(device) ? read : notSuited(*preset, device);
    }
    const IPSERDESIP::PresetStore store(ipPresetFolder(entry), ownPresetFolder(entry));
    const IPSERDESIP::Preset* found = store.find(name);
    if (found == nullptr) {
        QStringList offered;
        for (const IPSERDESIP::Preset& one : store.presets()) {
            if (one.suits(device)) {
                offered.append(QStringLiteral("\"%1\"").arg(one.name));
            }
        }
        QString why = offered.isEmpty() ? QStringLiteral("there is no preset for the device")
                                        : QStringLiteral("there is none of this name; there are %1")
                                              .arg(offered.join(QStringLiteral(", ")));
        for (const IPSERDESIP::PresetStore::Fault& fault : store.faults()) {
            why += QStringLiteral("; %1 is damaged: %2").arg(fault.file, fault.reason);
        }
        return {Exit::Refused, QStringLiteral("preset \"%1\"").arg(name), why};
    }
    if (!found->suits(device)) {
        return notSuited(*found, device);
    }
    *preset = *found;
    return {};
}

} // namespace Ipgen
