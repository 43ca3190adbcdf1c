#include "dev/devicearg.h"

namespace DEV {

DeviceArg::DeviceArg(const QString& id, const QString& device)
    : m_id(id)
    , m_device(device) {}

} // namespace DEV
