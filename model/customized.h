#pragma once

#include "model/config/deviceclass.h"
#include "model/config/lanelines.h"

#include <serdesip/baseprotocol.h>

namespace IPCUSTOMIZED {

using IPSERDESIP::ConfigMap;

/// The protocol model: what the catalogue shows of the IP, and the actions on an instance of it.
class customized : public IPSERDESIP::BaseProtocol {
public:
    /// @param packageDir  the folder of the IP's installed data
    explicit customized(const QString& packageDir);
    ~customized() override;

    ConfigMap create(const QString& name, const DEV::DeviceArg& device) override;
    ConfigMap open(const ConfigMap& config) override;
    IPSERDESIP::Message* resourceMessage(const ConfigMap& config) override;
    bool generate(const ConfigMap& config, QStringList& script, const QString& reserved,
                  QStringList& options, QString& text, bool runNetlist) override;
    bool loadSpec() override;
    QString version() override;
    QString id() override;
    QString name() override;
    QStringList category() override;
    QString summary() override;
    bool isSupported(const DEV::DeviceArg& device) override;

private:
    void writeLaneLines(QStringList& parameters, QStringList& defines, QStringList& script,
                        const QString& lanePrefix, const QString& laneKey,
                        const QString& quadPrefix) const;
    bool writeRefClockFreqLines(const QStringList& names, const QStringList& frequencies,
                                QStringList& script, QStringList& parameters) const;
    /// The model's device; where it has none, the configuration's.
    DEV::DeviceArg deviceFor(const ConfigMap& config) const;

    ConfigMap m_config;
    QMap<QString, QVariant> m_info;
    QString m_packageDir;
    LaneLines m_laneLines; ///< of m_config, while generate() writes
};

} // namespace IPCUSTOMIZED
