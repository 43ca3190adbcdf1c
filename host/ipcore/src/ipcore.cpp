#include "ipcore/ipcore.h"

#include <core/viewmanager.h>
#include <utils/filereplace.h>
#include <utils/jsontext.h>

namespace IPCore {

namespace {

void flatten(const QVariantMap& object, const QString& prefix, QMap<QString, QVariant>& flat) {
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString key = prefix + it.key();
        if (it.value().userType() == QMetaType::QVariantMap) {
            flatten(it.value().toMap(), key + QLatin1Char('.'), flat);
        } else {
            flat.insert(key, it.value());
        }
    }
}

} // namespace

QMap<QString, QVariant> processIPInfoSpec(const QString& path) {
    QByteArray bytes;
    const Utils::FileResult read = Utils::readFile(path, &bytes);
    if (!read) {
        Core::ViewManager::reportError(path, read.reason);
        return {};
    }
    QVariant value;
    Utils::JsonError error;
    if (!Utils::parseJson(bytes, &value, &error)) {
        Core::ViewManager::reportError(path, error.text());
        return {};
    }
    if (value.userType() != QMetaType::QVariantMap) {
        Core::ViewManager::reportError(path, QStringLiteral("an IP description is a JSON object"));
        return {};
    }
    QMap<QString, QVariant> flat;
    flatten(value.toMap(), QString(), flat);
    if (flat.isEmpty()) {
        Core::ViewManager::reportError(path, QStringLiteral("the IP description is empty"));
    }
    return flat;
}

bool checkCommonInfo(const QMap<QString, QVariant>& info) {
    QStringList missing;
    for (const char* key : {"ipcore.id", "ipcore.name", "ipcore.version"}) {
        const QVariant value = info.value(QLatin1String(key));
        if (value.userType() != QMetaType::QString || value.toString().trimmed().isEmpty()) {
            missing.append(QLatin1String(key));
        }
    }
    if (missing.isEmpty()) {
        return true;
    }
    // An empty map is what an unreadable or empty file gives; that has been reported already.
    if (!info.isEmpty()) {
        const QString id = info.value(QStringLiteral("ipcore.id")).toString();
        Core::ViewManager::reportError(id.isEmpty() ? QStringLiteral("IP description") : id,
                                       QStringLiteral("the IP description has no text for %1")
                                           .arg(missing.join(QStringLiteral(", "))));
    }
    return false;
}

bool isSupported(const DEV::DeviceArg& device, const QStringList& unsupported,
                 const QStringList& supported) {
    const auto named = [&](const QStringList& list) {
        return list.contains(device.id()) || list.contains(device.device());
    };
    if (device.isNull() || named(unsupported)) {
        return false;
    }
    return supported.contains(QStringLiteral("*")) || named(supported);
}

} // namespace IPCore
