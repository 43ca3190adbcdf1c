#pragma once

#include "ipgen/core/status.h"

#include <serdesip/baseprotocol.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

namespace Ipgen {

/// One IP on offer.
struct CatalogueEntry {
    QString id;
    QString name;
    QString version;
    QStringList category;
    QString summary;
    /// The plug-in file and its folder, absolute.
    QString library;
    QString folder;
    /// The IP's description with dotted keys, when its file is found beside the plug-in.
    QMap<QString, QVariant> description;
    /// Device names as the description lists them.
    QStringList supported;
    QStringList unsupported;
    /// Owned by the entry.
    std::unique_ptr<IPSERDESIP::BaseProtocol> protocol;
};

/// A plug-in file that could not serve.
struct PluginProblem {
    QString path;
    QString reason;
};

/// The IPs that the plug-ins found offer. Metadata is read before any plug-in code runs; a file
/// that cannot serve has its own error text, and the others still do.
class Catalogue {
public:
    /// Searches the installed IPs, then these folders: plug-in files in them and one level below.
    /// The models' own failures (a description that cannot be read) are the problems' reasons.
    static Catalogue load(const QStringList& moreFolders = {});

    const std::vector<CatalogueEntry>& entries() const { return m_entries; }
    const QList<PluginProblem>& problems() const { return m_problems; }

    /// Null when no IP has the id.
    const CatalogueEntry* find(const QString& id) const;
    /// find(), or with an empty id the only IP on offer. A Refused status says what is on offer.
    Status pick(const QString& id, const CatalogueEntry** entry) const;

private:
    void loadFolder(const QString& folder);
    void loadPlugin(const QString& path);
    QString offer(const QString& path, QObject* instance);

    std::vector<CatalogueEntry> m_entries;
    QList<PluginProblem> m_problems;
};

} // namespace Ipgen
