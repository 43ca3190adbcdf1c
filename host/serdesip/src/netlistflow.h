#pragma once

#include "serdesip/netlist.h"

#include <QByteArray>
#include <QList>
#include <QPair>

namespace IPSERDESIP {

class SynthesisProcess;

/// One netlist run from the checks of its inputs to the netlist in place. The synthesis program
/// works in a folder of its own inside the instance's, on links, so that its script holds fixed
/// texts, checked names and no path.
class NetlistFlow {
public:
    struct Request {
        const DEV::DeviceArg& device;
        const ConfigMap& config;
        const QMap<QString, QVariant>& info;
        const QStringList& files;
        const QString& folder;
        QObject* parent;
    };

    explicit NetlistFlow(NetlistRun& run)
        : m_run(run) {}
    bool run(const Request& request, QString* text);

private:
    /// A failure's kind and reason; None: go on.
    struct Stop {
        NetlistRun::Failure kind = NetlistRun::Failure::None;
        QString reason;
        bool none() const { return kind == NetlistRun::Failure::None; }
    };

    Stop check(const Request& request);
    Stop checkOptions();
    Stop collect(const Request& request);
    Stop collectFolder(const QString& folder);
    Stop synthesise();
    Stop putInPlace();
    QByteArray script(const QStringList& files) const;
    void report(const QByteArray& line);
    void keepLog() const;

    NetlistRun& m_run;
    QString m_module;
    QString m_instanceFolder;
    QString m_workFolder;
    QString m_program;
    QStringList m_files;
    QList<QPair<QString, QString>> m_options; ///< key, value
};

} // namespace IPSERDESIP
