#pragma once

#include "ipgen/core/catalogue.h"
#include "ipgen/core/project.h"
#include "ipgen/session/recorder.h"
#include "ipgen/session/report.h"

#include <QString>

#include <functional>

namespace Ipgen::Session {

/// While it lives, the frame of the dialog that comes up next offers the IP's presets, and to copy
/// what has been set as a session script.
///
/// The script is what was recorded from the dialog: only so it also has what no field shows, such
/// as the answers to questions, and what a disabled field has kept. Of a saved instance that is
/// opened again nothing was recorded: the steps to where it starts are found by trying, each time
/// in a dialog for a new instance, until that shows the same.
class FrameLoan {
public:
    FrameLoan(const CatalogueEntry& entry, const Project& project, const QString& name);
    ~FrameLoan();
    FrameLoan(const FrameLoan&) = delete;
    FrameLoan& operator=(const FrameLoan&) = delete;

    Recorder& recorder() { return m_recorder; }
    /// The program that tries steps out, where this process is not it.
    void setProgram(const QString& path) { m_program = path; }

private:
    /// Not empty: what could not be reached.
    QString writeScript(QByteArray* script);

    Recorder m_recorder;
    QString m_program;
    std::function<Report(const Script&)> m_play; ///< on a new instance
    IPSERDESIP::ConfigMap m_saved;               ///< empty: a new instance
};

} // namespace Ipgen::Session
