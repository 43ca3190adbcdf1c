// Stand-in until the netlist flow exists: delete this file with its implementation.
#include "serdesip/netlist.h"

namespace IPSERDESIP {

bool waitForRunSyntheSis(const DEV::DeviceArg&, const ConfigMap&, const QMap<QString, QVariant>&,
                         const QStringList&, const QString&, QString& text, QObject*)
{
    text = QStringLiteral("netlist generation is not available yet");
    return false;
}

} // namespace IPSERDESIP
