#include "ipcore/ipcore.h"

namespace IPCore {

bool isSupported(const DEV::DeviceArg& device, const QStringList& unsupported,
                 const QStringList& supported)
{
    const auto named = [&](const QStringList& list) {
        return list.contains(device.id()) || list.contains(device.device());
    };
    if (device.isNull() || named(unsupported)) {
        return false;
    }
    return supported.contains(QStringLiteral("*")) || named(supported);
}

} // namespace IPCore
