#pragma once

#include "ipgen/core/catalogue.h"
#include "ipgen/core/generation.h"

#include <serdesip/types.h>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace Ipgen {

/// One loose configuration to generate from: a line of a batch.
struct EmitItem {
    QString name;
    QString ip; ///< may be empty where only one IP is on offer
    QString device;
    IPSERDESIP::ConfigMap config;
    QVariantMap data; ///< the transceiver data store
    QStringList script;
    QStringList options;
};

/// How it went: a line of the report.
struct EmitReport {
    QString name;
    bool ok = false;
    QString folder;
    QStringList script;
    QStringList options;
    QString error;

    QVariantMap document() const;
};

/// Reads a line. Damage is a BadInput status; `what` is the place in the line, or the key.
Status parseEmitItem(const QByteArray& line, EmitItem* item);

/// Refused unless the name can be a folder of its own in the output folder.
Status checkItemName(const QString& name);

/// Generates with the folder as transceiver working directory and a data store of its own.
GenerationResult emitOne(const Catalogue& catalogue, const EmitItem& item, const QString& folder);

EmitReport reportOf(const QString& name, const GenerationResult& result);

} // namespace Ipgen
