#pragma once

#include "dev/export.h"

#include <QString>

namespace DEV {

/// Names one device. A value: cheap to copy, valid without the database.
class HOST_DEV_EXPORT DeviceArg {
public:
    /// The null device.
    DeviceArg() = default;
    /// @param id      the database's identifier, as projects store it
    /// @param device  the model name, as device lists hold it ("RZ7X-60B")
    DeviceArg(const QString& id, const QString& device);

    bool isNull() const { return m_id.isEmpty() && m_device.isEmpty(); }
    const QString& id() const { return m_id; }
    const QString& device() const { return m_device; }

private:
    QString m_id;
    QString m_device;
};

} // namespace DEV
