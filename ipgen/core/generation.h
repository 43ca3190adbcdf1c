#pragma once

#include "ipgen/core/catalogue.h"
#include "ipgen/core/status.h"

#include <dev/devicearg.h>
#include <serdesip/types.h>

#include <QString>
#include <QStringList>

namespace Ipgen {

/// One run of an IP's generation. The transceiver model must have its project open: the files go
/// below its working folder.
struct GenerationRequest {
    IPSERDESIP::BaseProtocol* protocol = nullptr;
    DEV::DeviceArg device;
    IPSERDESIP::ConfigMap config;
    QString instance;    ///< its name, for messages
    QStringList script;  ///< lines that stand in front of the IP's own
    QStringList options; ///< likewise
    bool netlist = false;
};

struct GenerationResult {
    bool ok = false;
    /// Why not; names the instance. Refused, or BadOutput when a file could not be written.
    Status status;
    /// Where the files are, absolute; empty when none was written.
    QString folder;
    /// The files that stand as generated, in the order of writing, absolute.
    QStringList files;
    /// As the generation left them, also after a failure.
    QStringList script;
    QStringList options;
    /// What the netlist generation said: the netlist's path or the reason of its failure.
    QString text;
};

/// Refused when the file name of a configuration would leave the working folder: empty, more than
/// one path component, ".", "..", absolute, or with control characters.
Status checkFileName(const QString& file);

/// The first other instance in the transceiver model that is configured with this one's file name,
/// and so writes to the same folder; empty: none.
QString sharesFolderWith(const QString& instance);

/// Checks the configured file name, then runs the IP's generation. Never throws. For progress and
/// cancelling of a netlist generation, have an IPSERDESIP::NetlistRun alive during the call.
GenerationResult generate(const GenerationRequest& request);

} // namespace Ipgen
