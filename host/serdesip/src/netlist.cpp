#include "serdesip/netlist.h"

#include "netlistflow.h"

namespace IPSERDESIP {

namespace {

NetlistRun*& innermost() {
    static NetlistRun* run = nullptr;
    return run;
}

} // namespace

NetlistRun::NetlistRun()
    : m_outer(innermost()) {
    innermost() = this;
}

NetlistRun::~NetlistRun() {
    innermost() = m_outer;
}

NetlistRun* NetlistRun::current() {
    return innermost();
}

void NetlistRun::cancel() {
    m_cancelled = true;
    if (m_stop) {
        m_stop();
    }
}

bool waitForRunSyntheSis(const DEV::DeviceArg& device, const ConfigMap& config,
                         const QMap<QString, QVariant>& info, const QStringList& files,
                         const QString& folder, QString& text, QObject* parent) {
    NetlistRun* const given = NetlistRun::current();
    NetlistRun plain;
    NetlistFlow flow(given != nullptr ? *given : plain);
    return flow.run({device, config, info, files, folder, parent}, &text);
}

} // namespace IPSERDESIP
