#include "core/idecore.h"

namespace Core {

DEV::DeviceDb& IdeCore::deviceDataBase()
{
    static DEV::DeviceDb db;
    return db;
}

void IdeCore::setDeviceDataBase(const DEV::DeviceDb& db)
{
    deviceDataBase() = db;
}

} // namespace Core
