#pragma once

#include "ipgen/core/catalogue.h"
#include "ipgen/core/project.h"
#include "ipgen/core/status.h"

#include <dev/devicearg.h>
#include <serdesip/message.h>

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariantMap>

namespace Ipgen {

/// What a generation would write, and what it leaves.
struct TrialResult {
    Status status;
    /// The files' bytes by their path below the working folder.
    QMap<QString, QByteArray> files;
    QStringList script;
    QStringList options;
};

/// Generations that leave no trace. While it lives the transceiver model has a temporary working
/// folder and holds no instance; afterwards the model is as it was. Not to be nested.
class Trial {
public:
    Trial(const DEV::DeviceArg& device, const QVariantMap& data);
    ~Trial();
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

    /// Generates, without netlist. The name is for messages.
    TrialResult run(const CatalogueEntry& entry, const QString& name,
                    const IPSERDESIP::ConfigMap& config);
    /// A folder for whatever else is tried out; gone with the trial.
    QString folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
    DEV::DeviceArg m_device;
    // The model as it was.
    DEV::DeviceArg m_formerDevice;
    QString m_formerDir;
    QVariantMap m_formerData;
    bool m_formerChanged;
    QString m_formerEditing;
    QMap<QString, IPSERDESIP::Message> m_formerMessages;
};

} // namespace Ipgen
