#pragma once

#include "serdesip/export.h"
#include "serdesip/types.h"

#include <dev/devicearg.h>

#include <QStringList>

class QObject;

namespace IPSERDESIP {

/// Runs the netlist generation of one generated instance and waits for it.
/// @param device  the target device
/// @param config  the configuration that was generated
/// @param info    the IP's description; "ipcore.dir.data" holds the IP's RTL
/// @param files   RTL file names, the top first, in the IP's data folder
/// @param folder  the instance's folder below "temp" that holds the generated files
/// @param text    set to the path of the netlist, or to the reason of a failure
/// @param parent  the object that the run belongs to
/// @return whether a new netlist stands in its place; a former one is untouched otherwise
HOST_SERDESIP_EXPORT bool waitForRunSyntheSis(const DEV::DeviceArg& device,
                                              const ConfigMap& config,
                                              const QMap<QString, QVariant>& info,
                                              const QStringList& files, const QString& folder,
                                              QString& text, QObject* parent);

} // namespace IPSERDESIP
