#pragma once

#include "ipgen/cli/command.h"
#include "ipgen/core/catalogue.h"
#include "ipgen/core/status.h"
#include "ipgen/session/frameloan.h"
#include "ipgen/session/player.h"

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace Ipgen {

class Context;

/// The options of the commands that open an IP's dialog: how the dialog is used, and what is
/// written about it.
class SessionOptions {
public:
    void declare(CLI::App& app);
    Command::Screen screen() const;

    /// Reads the script, and refuses what the options cannot be used for together.
    Status prepare();
    /// Finds the preset among those of the IP, and puts it in front of the script.
    Status takePreset(const CatalogueEntry& entry, const DEV::DeviceArg& device);
    /// Runs the action, which opens the dialog: by the script, or by the user. Writes the
    /// recording.
    Status run(const Session::Player::Action& action, Session::FrameLoan& frame,
               Session::Report* report) const;
    /// Writes the report where it is asked for.
    Status writeReport(Context& context, const Session::Report& report) const;
    /// Whether standard output is the report's.
    bool reportsToOutput() const { return m_report == "-"; }
    /// Whether --set is used, whose order its users may not have in mind.
    bool hasSettings() const { return !m_settings.empty(); }

private:
    bool isScripted() const {
        return !m_settings.empty() || !m_scriptFile.empty() || !m_preset.empty();
    }
    Status readScript();
    /// Whether what is to be written after the session has a folder to go to.
    Status checkOutputs() const;

    std::string m_preset;
    std::vector<std::string> m_settings;
    std::string m_scriptFile;
    std::string m_report;
    std::string m_record;
    bool m_show = false;
    Session::Script m_script;
};

} // namespace Ipgen
