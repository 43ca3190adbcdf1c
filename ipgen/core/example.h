#pragma once

#include "ipgen/core/catalogue.h"
#include "ipgen/core/status.h"

#include <dev/devicearg.h>
#include <serdesip/types.h>

#include <QString>
#include <QStringList>

namespace Ipgen {

/// An example design of one instance. What it consists of is the IP's: the template is the folder
/// "data/example" of the IP.
struct ExampleRequest {
    const CatalogueEntry* entry = nullptr;
    DEV::DeviceArg device;
    IPSERDESIP::ConfigMap config;
    QString instance; ///< its name
    QString folder;   ///< where the example goes; made when missing
};

/// Writes the example: the template's files at their places, with "@INSTANCE@", "@MODULE@", "@IP@"
/// and "@DEVICE@" replaced; the files generated from the configuration in "generated"; the RTL
/// files of the IP's data folder in "rtl"; the host's primitives in "primitives". The same request
/// gives the same bytes. The generation runs in a folder of its own, outside the project; the
/// transceiver model has no project open afterwards.
/// @param files  set to the files that stand, relative to the folder, sorted
Status writeExample(const ExampleRequest& request, QStringList* files);

} // namespace Ipgen
