#include "ipgen/cli/sessionoptions.h"

#include "ipgen/cli/arguments.h"
#include "ipgen/cli/context.h"
#include "ipgen/core/presets.h"
#include "ipgen/core/translation.h"
#include "ipgen/session/recorder.h"

#include <utils/filereplace.h>
#include <utils/jsontext.h>

#include <QFile>
#include <QFileInfo>

#include <optional>

namespace Ipgen {

namespace {

/// ms between the steps of a session that is shown.
constexpr int showPause = 600;

Status writeFile(const std::string& path, const QByteArray& bytes) {
    const Utils::FileResult result = Utils::replaceFile(fromArgument(path), bytes);
    return result ? Status() : Status(Exit::BadOutput, result.path, result.reason);
}

} // namespace

void SessionOptions::declare(CLI::App& app) {
    app.add_option("--preset", m_preset,
                   "apply a preset, by its name or its file, in front of --set and --script; "
                   "headless")
        ->type_name("NAME_OR_FILE");
    CLI::Option* set =
        app.add_option("--set", m_settings,
                       "give a field a value, such as tab1/Rate=2.5, then accept; headless; may be "
                       "given more than once")
            ->type_name("OBJECT=VALUE")
            ->allow_extra_args(false);
    CLI::Option* script = app.add_option("--script", m_scriptFile,
                                         "play a session script, headless; - is standard input")
                              ->type_name("FILE");
    set->excludes(script);
    app.add_option("--report", m_report, "write what happened, as JSON; - is standard output")
        ->type_name("FILE");
    app.add_flag("--show", m_show, "play the script on the screen");
    app.add_option("--record", m_record, "write what is done in the dialog as a session script")
        ->type_name("FILE");
}

Command::Screen SessionOptions::screen() const {
    return isScripted() && !m_show ? Command::Screen::Offscreen : Command::Screen::Display;
}

Status SessionOptions::prepare() {
    if (!isScripted() && (m_show || !m_report.empty())) {
        return {Exit::Usage, m_show ? QStringLiteral("--show") : QStringLiteral("--report"),
                QStringLiteral("needs --script, --set or --preset")};
    }
    const Status outputs = checkOutputs();
    return outputs.ok() && isScripted() ? readScript() : outputs;
}

Status SessionOptions::checkOutputs() const {
    for (const std::string& file : {m_record, m_report}) {
        const QString path = fromArgument(file);
        const QString folder = QFileInfo(path).absolutePath();
        if (!file.empty() && file != "-" && !QFileInfo(folder).isDir()) {
            return {Exit::BadOutput, path, QStringLiteral("there is no folder %1").arg(folder)};
        }
    }
    return {};
}

Status SessionOptions::readScript() {
    if (m_scriptFile.empty()) {
        const QString error = Session::scriptOfSettings(fromArguments(m_settings), &m_script);
        return error.isEmpty() ? Status() : Status(Exit::Usage, QStringLiteral("--set"), error);
    }
    QByteArray text;
    QString name = fromArgument(m_scriptFile);
    if (m_scriptFile == "-") {
        name = QStringLiteral("standard input");
        QFile input;
        if (!input.open(stdin, QIODevice::ReadOnly)) {
            return {Exit::BadInput, name, QStringLiteral("cannot read: ") + input.errorString()};
        }
        text = input.readAll();
    } else {
        const Utils::FileResult read = Utils::readFile(name, &text);
        if (!read) {
            return {Exit::BadInput, read.path, read.reason};
        }
    }
    const QString error = Session::parseScript(text, &m_script);
    return error.isEmpty() ? Status() : Status(Exit::BadInput, name, error);
}

Status SessionOptions::takePreset(const CatalogueEntry& entry, const DEV::DeviceArg& device) {
    if (m_preset.empty()) {
        return {};
    }
    IPSERDESIP::Preset preset;
    const Status found = findPreset(entry, device, fromArgument(m_preset), &preset);
    if (found.ok()) {
        m_script.prepend(
            {Session::Step::Kind::Preset, preset.name, QVariant::fromValue(preset), false});
    }
    return found;
}

Status SessionOptions::run(const Session::Player::Action& action, Session::FrameLoan& frame,
                           Session::Report* report) const {
    // A script names buttons and items by their texts, so it is played and recorded in one
    // language.
    std::optional<Translation> translation;
    if (!isScripted() && m_record.empty()) {
        translation.emplace();
    }
    Session::Recorder& recorder = frame.recorder();
    if (isScripted()) {
        Session::Options options;
        options.pause = m_show ? showPause : 0;
        *report = Session::Player(m_script, options).run(action);
    } else {
        report->config = action();
        const bool seen = recorder.hasSeenDialog();
        report->result = !report->config.isEmpty() ? Session::Report::Result::Accepted
                         : seen                    ? Session::Report::Result::Cancelled
                                                   : Session::Report::Result::Refused;
    }
    return m_record.empty() || !recorder.hasSeenDialog()
               ? Status()
               : writeFile(m_record, Session::writeScript(recorder.script()));
}

Status SessionOptions::writeReport(Context& context, const Session::Report& report) const {
    if (reportsToOutput()) {
        context.printJson(report.toMap());
        return {};
    }
    return m_report.empty() ? Status() : writeFile(m_report, Utils::writeJson(report.toMap()));
}

} // namespace Ipgen
