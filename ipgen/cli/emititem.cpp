#include "ipgen/cli/emititem.h"

#include "ipgen/core/installation.h"

#include <ipcore/ipcore.h>
#include <serdesip/message.h>
#include <serdesip/serdes.h>
#include <utils/jsontext.h>

#include <QFile>

#include <memory>

namespace Ipgen {

namespace {

Status badKey(const char* key, const char* kind) {
    return {Exit::BadInput, QStringLiteral("key \"%1\"").arg(QLatin1String(key)),
            QStringLiteral("is no %1").arg(QLatin1String(kind))};
}

} // namespace

QVariantMap EmitReport::document() const {
    return {{"name", name},     {"ok", ok},           {"folder", folder},
            {"script", script}, {"options", options}, {"error", error}};
}

Status parseEmitItem(const QByteArray& line, EmitItem* item) {
    QVariant value;
    Utils::JsonError error;
    if (!Utils::parseJson(line, &value, &error)) {
        return {Exit::BadInput, QStringLiteral("column %1").arg(error.column), error.reason};
    }
    if (value.userType() != QMetaType::QVariantMap) {
        return {Exit::BadInput, QStringLiteral("column 1"), QStringLiteral("is no JSON object")};
    }
    const QVariantMap map = value.toMap();
    struct Key {
        const char* key;
        QMetaType::Type type;
        const char* kind;
        bool required;
    };
    static constexpr Key keys[] = {
        {"name", QMetaType::QString, "text", true},
        {"device", QMetaType::QString, "text", true},
        {"config", QMetaType::QVariantMap, "object", true},
        {"ip", QMetaType::QString, "text", false},
        {"data", QMetaType::QVariantMap, "object", false},
        {"script", QMetaType::QStringList, "list of texts", false},
        {"options", QMetaType::QStringList, "list of texts", false},
    };
    item->name = map.value(QStringLiteral("name")).toString();
    for (const Key& key : keys) {
        const auto it = map.find(QLatin1String(key.key));
        if (it == map.end() ? key.required : it->userType() != key.type) {
            return badKey(key.key, key.kind);
        }
    }
    item->device = map.value(QStringLiteral("device")).toString();
    item->config = map.value(QStringLiteral("config")).toMap();
    item->ip = map.value(QStringLiteral("ip")).toString();
    item->data = map.value(QStringLiteral("data")).toMap();
    item->script = map.value(QStringLiteral("script")).toStringList();
    item->options = map.value(QStringLiteral("options")).toStringList();
    return {};
}

Status checkItemName(const QString& name) {
    constexpr int longest = 255; // bytes of a file name
    const Status status = checkFileName(name);
    if (!status.ok()) {
        return {status.code(), QStringLiteral("name \"%1\"").arg(name), status.why()};
    }
    if (QFile::encodeName(name).size() > longest) {
        return {Exit::Refused, QStringLiteral("name \"%1…\"").arg(name.left(32)),
                QStringLiteral("is longer than a file name may be")};
    }
    return {};
}

GenerationResult emitOne(const Catalogue& catalogue, const EmitItem& item, const QString& folder) {
    GenerationResult result;
    result.script = item.script;
    result.options = item.options;
    DEV::DeviceArg device;
    const CatalogueEntry* entry = nullptr;
    result.status = findDevice(item.device, &device);
    if (result.status.ok()) {
        result.status = catalogue.pick(item.ip, &entry);
    }
    if (!result.status.ok()) {
        result.status = {result.status.code(), item.name, result.status.text()};
        return result;
    }
    IPSERDESIP::serdes::instance()->openProject(device, folder, item.data);
    IPCore::setOutputRoot(folder);
    GenerationRequest request;
    request.protocol = entry->protocol.get();
    request.device = device;
    request.config = item.config;
    request.instance = item.name;
    request.script = item.script;
    request.options = item.options;
    return generate(request);
}

EmitReport reportOf(const QString& name, const GenerationResult& result) {
    return {name,          result.ok,      result.folder,
            result.script, result.options, result.ok ? QString() : result.status.text()};
}

} // namespace Ipgen
