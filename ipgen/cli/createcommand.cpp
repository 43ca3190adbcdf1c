#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/cli/sessionoptions.h"
#include "ipgen/cli/sessionverdict.h"

#include <serdesip/serdes.h>

namespace Ipgen {

namespace {

/// Both commands: an instance's dialog is opened, and what is accepted is saved under its name.
class DialogCommand : public Command {
public:
    DialogCommand(const char* name, const char* summary, bool creates)
        : Command(name, summary)
        , m_creates(creates) {}

    void declare(CLI::App& app) override {
        declareProject(app, m_project);
        app.add_option("NAME", m_name, "the instance")->required()->type_name("");
        if (m_creates) {
            app.add_option("--ip", m_ip, "the IP's id; needed when several are on offer")
                ->type_name("ID");
        }
        m_options.declare(app);
    }

    Screen screen() const override { return m_options.screen(); }
    const char* withoutDisplay() const override {
        return "; use --script FILE, --set OBJECT=VALUE or --preset NAME to work without one";
    }

    Exit run(Context& context) override {
        Status status = m_options.prepare();
        if (!status.ok()) {
            return context.tell(status);
        }
        Project project;
        status = context.openProjectInModel(m_project, &project);
        if (!status.ok()) {
            return context.tell(status);
        }
        const CatalogueEntry* entry = nullptr;
        status = pick(context.catalogue(), project, &entry);
        if (!status.ok()) {
            return context.tell(status);
        }
        status = m_options.takePreset(*entry, IPSERDESIP::serdes::instance()->device());
        if (!status.ok()) {
            return context.tell(status);
        }
        Session::Report report;
        Session::FrameLoan frame(*entry, project, name());
        const Status recorded = m_options.run(action(project, *entry), frame, &report);
        Exit exit = finish(context, project, *entry, report);
        for (const Status& written : {recorded, m_options.writeReport(context, report)}) {
            if (!written.ok()) {
                context.tell(written);
                exit = exit == Exit::Done ? written.code() : exit;
            }
        }
        return exit;
    }

private:
    QString name() const { return fromArgument(m_name); }

    /// The IP that the instance is or will be of.
    Status pick(const Catalogue& catalogue, const Project& project,
                const CatalogueEntry** entry) const {
        if (m_creates && project.hasInstance(name())) {
            return {Exit::Refused, name(),
                    QStringLiteral("the project has an instance of this name already; ipgen open "
                                   "edits it")};
        }
        Status status = m_creates ? Project::checkInstanceName(name()) : project.checkKnown(name());
        if (!status.ok()) {
            return status;
        }
        status =
            catalogue.pick(m_creates ? fromArgument(m_ip) : project.instance(name()).ip, entry);
        if (!status.ok()) {
            return {Exit::Refused, name(), status.text()};
        }
        const DEV::DeviceArg device = IPSERDESIP::serdes::instance()->device();
        if (m_creates && !(*entry)->protocol->isSupported(device)) {
            return {Exit::Refused, (*entry)->id,
                    QStringLiteral("does not support the project's device ") +
                        project.deviceName()};
        }
        return {};
    }

    Session::Player::Action action(const Project& project, const CatalogueEntry& entry) const {
        IPSERDESIP::BaseProtocol* protocol = entry.protocol.get();
        if (m_creates) {
            return [this, protocol] {
                return protocol->create(name(), IPSERDESIP::serdes::instance()->device());
            };
        }
        return openingOf(protocol, name(), project.instance(name()).config);
    }

    Exit finish(Context& context, Project& project, const CatalogueEntry& entry,
                const Session::Report& report) {
        if (!report.accepted()) {
            const QString why = whyNotAccepted(report);
            if (!why.isEmpty()) {
                context.tell(name(), why);
            }
            // Libraries report what could not be written; the IP's own refusals come as boxes.
            const Exit exit = report.complaints.isEmpty() ? Exit::Refused : Exit::BadOutput;
            return why.isEmpty() ? Exit::Done : exit;
        }
        project.setInstance(name(), {entry.id, report.config});
        project.takeModelData();
        const Status saved = project.changed() ? project.save() : Status();
        if (!saved.ok()) {
            return context.tell(saved);
        }
        if (m_options.hasSettings()) {
            for (const QString& sentence : report.overridden) {
                context.tell(name(), sentence);
            }
        }
        if (!m_options.reportsToOutput()) {
            context.printLine(
                QStringLiteral("%1: saved in %2").arg(oneLine(name()), oneLine(project.file())));
        }
        return Exit::Done;
    }

    bool m_creates;
    std::string m_project;
    std::string m_name;
    std::string m_ip;
    SessionOptions m_options;
};

} // namespace

std::unique_ptr<Command> makeCreateCommand() {
    return std::make_unique<DialogCommand>(
        "create", "Open an IP's dialog for a new instance, and save what is accepted", true);
}

std::unique_ptr<Command> makeOpenCommand() {
    return std::make_unique<DialogCommand>(
        "open", "Open a saved instance's dialog, and save what is accepted", false);
}

} // namespace Ipgen
