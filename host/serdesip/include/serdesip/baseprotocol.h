#pragma once

#include "serdesip/export.h"
#include "serdesip/types.h"

#include <dev/devicearg.h>

#include <QObject>
#include <QStringList>

namespace IPSERDESIP {

class Message;

/// One transceiver protocol IP of the catalogue. The host calls by virtual slot, so the order of
/// the operations below is part of the binary interface.
class HOST_SERDESIP_EXPORT BaseProtocol : public QObject {
    Q_OBJECT

public:
    explicit BaseProtocol(QObject* parent = nullptr);
    ~BaseProtocol() override;

    /// Opens the dialog for a new instance. Empty: cancelled.
    virtual ConfigMap create(const QString& name, const DEV::DeviceArg& device) = 0;
    /// Opens the dialog on a saved configuration. Empty: cancelled or refused.
    virtual ConfigMap open(const ConfigMap& config) = 0;
    /// What a configured instance occupies. The caller owns the message.
    virtual Message* resourceMessage(const ConfigMap& config) = 0;
    /// Writes the IP's files.
    /// @param script      transceiver script lines; appended to, then written
    /// @param reserved    not used
    /// @param options     option lines for the netlist generation; appended to
    /// @param text        handed on to waitForRunSyntheSis()
    /// @param runNetlist  whether to run the netlist generation after the files are written
    virtual bool generate(const ConfigMap& config, QStringList& script, const QString& reserved,
                          QStringList& options, QString& text, bool runNetlist) = 0;
    /// Reads the IP's description; false: the IP is not to be offered.
    virtual bool loadSpec() = 0;
    virtual QString version() = 0;
    virtual QString id() = 0;
    virtual QString name() = 0;
    virtual QStringList category() = 0;
    virtual QString summary() = 0;
    virtual bool isSupported(const DEV::DeviceArg& device) = 0;

    /// The device that the model works for; null until one is known.
    const DEV::DeviceArg& device() const { return m_device; }
    void setDevice(const DEV::DeviceArg& device) { m_device = device; }

private:
    DEV::DeviceArg m_device;
};

} // namespace IPSERDESIP
