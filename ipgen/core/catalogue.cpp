#include "ipgen/core/catalogue.h"

#include "ipgen/core/errorcollector.h"
#include "ipgen/core/installation.h"

#include <ipcore/ipcore.h>
#include <serdesip/protocolpackage.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

#include <algorithm>
#include <exception>

namespace Ipgen {

namespace {

QStringList pluginFiles(const QDir& folder) {
    QStringList paths;
    const QFileInfoList files = folder.entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        if (QLibrary::isLibrary(file.fileName())) {
            paths.append(file.absoluteFilePath());
        }
    }
    return paths;
}

/// The description that names this IP among those that lie beside the plug-in.
QMap<QString, QVariant> descriptionOf(const QString& folder, const QString& id) {
    const QFileInfoList files =
        QDir(folder).entryInfoList({QStringLiteral("*.ipspec")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        const QMap<QString, QVariant> info = IPCore::processIPInfoSpec(file.absoluteFilePath());
        if (info.value(QStringLiteral("ipcore.id")).toString() == id) {
            return info;
        }
    }
    return {};
}

} // namespace

Catalogue Catalogue::load(const QStringList& moreFolders) {
    Catalogue catalogue;
    catalogue.loadFolder(installedIpFolder());
    for (const QString& folder : moreFolders) {
        if (!QFileInfo(folder).isDir()) {
            catalogue.m_problems.append({folder, QStringLiteral("no such plug-in folder")});
            continue;
        }
        catalogue.loadFolder(folder);
    }
    return catalogue;
}

void Catalogue::loadFolder(const QString& folder) {
    const QDir dir(folder);
    QStringList paths = pluginFiles(dir);
    const QFileInfoList below = dir.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& one : below) {
        paths += pluginFiles(QDir(one.absoluteFilePath()));
    }
    for (const QString& path : qAsConst(paths)) {
        const bool known = std::any_of(m_entries.begin(), m_entries.end(),
                                       [&](const CatalogueEntry& e) { return e.library == path; });
        if (!known) {
            loadPlugin(path);
        }
    }
}

void Catalogue::loadPlugin(const QString& path) {
    QPluginLoader loader(path);
    const QString identifier = loader.metaData().value(QStringLiteral("IID")).toString();
    QString reason;
    if (identifier.isEmpty()) {
        // Without metadata load() refuses before any code of the file runs, and says why.
        reason = loader.load() ? QStringLiteral("its metadata names no interface")
                               : loader.errorString();
    } else if (QObject* instance = loader.instance()) {
        reason = offer(path, instance);
    } else {
        reason = loader.errorString();
    }
    if (!reason.isEmpty()) {
        m_problems.append({path, reason});
    }
}

QString Catalogue::offer(const QString& path, QObject* instance) {
    auto* package = qobject_cast<IPSERDESIP::ProtocolPackage*>(instance);
    if (package == nullptr) {
        return QStringLiteral("a Qt plug-in, but no IP package (class %1)")
            .arg(QLatin1String(instance->metaObject()->className()));
    }
    const QString folder = QFileInfo(path).absolutePath();
    const ErrorCollector errors;
    QList<IPSERDESIP::BaseProtocol*> models;
    try {
        package->setPackageDir(folder);
        models = package->protocols();
    } catch (const std::exception& fault) {
        return QStringLiteral("threw an exception: %1").arg(QLatin1String(fault.what()));
    }
    if (models.isEmpty()) {
        return QStringLiteral("offers no IP") + errors.suffix();
    }
    QStringList reasons;
    for (IPSERDESIP::BaseProtocol* model : qAsConst(models)) {
        CatalogueEntry entry;
        entry.protocol.reset(model);
        entry.id = model->id();
        if (entry.id.isEmpty()) {
            reasons.append(QStringLiteral("offers an IP without an id"));
            continue;
        }
        if (const CatalogueEntry* other = find(entry.id)) {
            reasons.append(QStringLiteral("the IP \"%1\" is on offer already, from %2")
                               .arg(entry.id, other->library));
            continue;
        }
        entry.name = model->name();
        entry.version = model->version();
        entry.category = model->category();
        entry.summary = model->summary();
        entry.library = path;
        entry.folder = folder;
        entry.description = descriptionOf(folder, entry.id);
        const auto texts = [&](const char* key) {
            return entry.description.value(QLatin1String(key)).toStringList();
        };
        entry.supported = texts("ipcore.device.supported");
        entry.unsupported = texts("ipcore.device.unsupported");
        m_entries.push_back(std::move(entry));
    }
    return reasons.join(QStringLiteral("; "));
}

const CatalogueEntry* Catalogue::find(const QString& id) const {
    const auto it = std::find_if(m_entries.begin(), m_entries.end(),
                                 [&](const CatalogueEntry& entry) { return entry.id == id; });
    return it == m_entries.end() ? nullptr : &*it;
}

Status Catalogue::pick(const QString& id, const CatalogueEntry** entry) const {
    *entry = id.isEmpty() && m_entries.size() == 1 ? &m_entries.front() : find(id);
    if (*entry != nullptr) {
        return {};
    }
    QStringList offered;
    for (const CatalogueEntry& one : m_entries) {
        offered.append(one.id);
    }
    const QString list =
        offered.isEmpty() ? QStringLiteral("no IP is on offer")
                          : QStringLiteral("on offer: %1").arg(offered.join(QStringLiteral(", ")));
    if (id.isEmpty()) {
        return {Exit::Refused, QStringLiteral("IP"),
                offered.isEmpty() ? list : QStringLiteral("say which one; %1").arg(list)};
    }
    return {Exit::Refused, QStringLiteral("IP \"%1\"").arg(id),
            QStringLiteral("not found; %1").arg(list)};
}

} // namespace Ipgen
