#pragma once

#include "ipgen/core/catalogue.h"
#include "ipgen/core/project.h"

#include <dev/devicearg.h>
#include <serdesip/message.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace Window {

/// Where an instance stands.
enum class State {
    Unknown,     ///< not looked at yet
    NoIp,        ///< its IP is not on offer
    Copy,        ///< of another one, and not configured yet
    Configured,  ///< nothing is generated
    Generated,   ///< the files are what a generation would write now
    OutOfDate,   ///< a generation would write other files
    CheckFailed, ///< the IP's own checks turned it down
};

/// What the table shows of an instance.
struct InstanceRow {
    QString name;
    QString ip;     ///< id
    QString ipName; ///< the id when the IP is not on offer
    QString file;   ///< the folder's name below the working folder; empty: not known
    QStringList lanes;
    QStringList plls;
    double txRate = 0.0; ///< Gbps
    double rxRate = 0.0;
    State state = State::Unknown;
    QString detail; ///< why, one sentence; may be empty
};

/// A row of the open project, from what the transceiver model holds of it. The state is Unknown,
/// NoIp or Copy.
InstanceRow rowOf(const Ipgen::Project& project, const Ipgen::Catalogue& catalogue,
                  const QString& name, const IPSERDESIP::Message* message);

/// The generated files of an instance, absolute, in the order of their paths.
QStringList generatedFiles(const Ipgen::Project& project, const QString& file);

/// Fills in what the files tell: Configured, Generated or OutOfDate. Rows that have nothing to be
/// compared with are not generated anew.
void lookAtFiles(const Ipgen::Project& project, const Ipgen::Catalogue& catalogue,
                 const DEV::DeviceArg& device, const QVector<InstanceRow*>& rows);

/// A state in a word, for the user.
QString stateText(State state);

} // namespace Window
