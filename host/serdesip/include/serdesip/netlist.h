#pragma once

#include "serdesip/export.h"
#include "serdesip/types.h"

#include <dev/devicearg.h>

#include <QStringList>

#include <functional>

class QObject;

namespace IPSERDESIP {

/// Settings of the netlist runs that start while it lives, and how the last one ended. Made by
/// whoever starts a generation; scopes nest, the innermost counts. GUI thread only.
class HOST_SERDESIP_EXPORT NetlistRun {
public:
    enum class Failure {
        None,
        Refused,   ///< a name, an option or a file that the flow does not take; nothing ran
        Tool,      ///< the synthesis program is missing, failed, was killed or took too long
        Cancelled, ///< cancel() was called
        Output,    ///< the netlist could not be put in place
    };
    struct Progress {
        int step = 0; ///< from 1
        int steps = 0;
        QString what; ///< "synthesise"
    };

    NetlistRun();
    ~NetlistRun();
    NetlistRun(const NetlistRun&) = delete;
    NetlistRun& operator=(const NetlistRun&) = delete;

    /// The option list of the generation, "-<module><Key> <value>" a line; the flow reads it when
    /// it starts, after the IP has appended its lines. Each becomes an attribute of the netlist's
    /// module. Null: none. Not owned.
    const QStringList* options = nullptr;
    /// Called at the start of each step. The event loop runs between calls, so that windows stay
    /// alive; cancel() may be called from there.
    std::function<void(const Progress&)> progress;
    int timeLimit = 600; ///< seconds that the synthesis program may take
    QString program;     ///< the synthesis program; empty: "yosys" from the search path
    QString primitives;  ///< folder of the devices' primitives; empty: the host's own

    /// Ends the run under way; without one, the next to start.
    void cancel();
    bool isCancelled() const { return m_cancelled; }

    Failure failure() const { return m_failure; }
    /// Time that the synthesis program itself took in the last run, in milliseconds.
    double toolTime() const { return m_toolTime; }

    /// The innermost one alive; null: none.
    static NetlistRun* current();

private:
    friend class NetlistFlow;
    NetlistRun* m_outer = nullptr;
    bool m_cancelled = false;
    Failure m_failure = Failure::None;
    double m_toolTime = 0.0;
    std::function<void()> m_stop;
};

/// Runs the netlist generation of one generated instance and waits for it, with the settings of
/// the current NetlistRun. In the instance's folder it leaves "<module>_netlist.v" and
/// "<module>_netlist.json", both whole or the former ones, and the program's "yosys.log".
/// @param device  the target device
/// @param config  the configuration that was generated
/// @param info    the IP's description; "ipcore.dir.data" holds the IP's RTL
/// @param files   RTL file names, the top first, in the IP's data folder
/// @param folder  the instance's folder below "temp" that holds the generated files
/// @param text    set to the path of the netlist, or to the reason of a failure
/// @param parent  the protocol model that the run belongs to; it names the file and the module
/// @return whether a new netlist stands in its place; a former one is untouched otherwise
HOST_SERDESIP_EXPORT bool waitForRunSyntheSis(const DEV::DeviceArg& device, const ConfigMap& config,
                                              const QMap<QString, QVariant>& info,
                                              const QStringList& files, const QString& folder,
                                              QString& text, QObject* parent);

/// Why a text cannot name a module of the netlist; empty: it can. A module name is a plain
/// identifier of at most 128 characters and no keyword of Verilog or SystemVerilog.
HOST_SERDESIP_EXPORT QString moduleNameFlaw(const QString& name);
/// Why a text cannot name a file of the flow; empty: it can. A file name is one component of
/// letters, digits, "_", "-" and ".", begins with a letter, digit or "_", and has at most 128
/// characters.
HOST_SERDESIP_EXPORT QString fileNameFlaw(const QString& name);

} // namespace IPSERDESIP
