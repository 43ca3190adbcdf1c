#pragma once

#include <serdesip/netlist.h>

#include <QString>

namespace Ipgen {

/// A netlist run of the command line: a progress line on standard error where that is a terminal,
/// and an interrupt (Ctrl-C, a termination signal) cancels it. One at a time.
class NetlistReport {
public:
    /// @param name   the instance, for the line
    /// @param quiet  no progress line
    NetlistReport(const QString& name, bool quiet);
    ~NetlistReport();
    NetlistReport(const NetlistReport&) = delete;
    NetlistReport& operator=(const NetlistReport&) = delete;

    bool isCancelled() const { return m_run.isCancelled(); }

private:
    void show(const QString& line);

    IPSERDESIP::NetlistRun m_run;
    int m_shown = 0; ///< characters on the line
};

} // namespace Ipgen
