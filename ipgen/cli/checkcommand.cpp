#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/cli/sessionverdict.h"

namespace Ipgen {

namespace {

class CheckCommand : public Command {
public:
    CheckCommand()
        : Command("check",
                  "Open the named instances, or all, and press OK's checks without saving") {}

    void declare(CLI::App& app) override {
        declareProject(app, m_project);
        app.add_option("NAME", m_names, "instances; none: all of the project")->type_name("");
        declareJson(app, m_json);
    }

    Screen screen() const override { return Screen::Offscreen; }

    Exit run(Context& context) override {
        Project project;
        Status status = context.openProjectInModel(m_project, &project);
        if (!status.ok()) {
            return context.tell(status);
        }
        QStringList names = fromArguments(m_names);
        status = project.select(&names);
        if (!status.ok()) {
            return context.tell(status);
        }
        Exit exit = Exit::Done;
        QVariantList list;
        for (const QString& name : qAsConst(names)) {
            Session::Report report;
            const QString why = check(context.catalogue(), project, name, &report);
            exit = why.isEmpty() ? exit : Exit::Refused;
            if (!m_json) {
                context.printLine(oneLine(name) + QStringLiteral(": ") +
                                  (why.isEmpty() ? QStringLiteral("ok")
                                                 : QStringLiteral("failed: ") + oneLine(why)));
            }
            list.append(QVariantMap({{"name", name},
                                     {"ok", why.isEmpty()},
                                     {"error", why},
                                     {"messages", report.toMap().value(QStringLiteral("messages"))},
                                     {"details", report.details}}));
            // What the checks entered into the model, its data store included, goes again.
            status = project.openInModel(context.catalogue());
            if (!status.ok()) {
                return context.tell(status);
            }
        }
        if (m_json) {
            context.printJson(QVariantMap({{"instances", list}}));
        }
        return exit;
    }

private:
    /// Why the instance does not pass; empty: it passes.
    static QString check(const Catalogue& catalogue, const Project& project, const QString& name,
                         Session::Report* report) {
        const Status configured = project.checkConfigured(name);
        if (!configured.ok()) {
            return configured.why();
        }
        const ProjectInstance instance = project.instance(name);
        const CatalogueEntry* entry = nullptr;
        const Status offered = catalogue.pick(instance.ip, &entry);
        if (!offered.ok()) {
            return offered.text();
        }
        const Session::Script script = {{Session::Step::Kind::Accept, {}, {}, false}};
        *report = Session::Player(script, {})
                      .run(openingOf(entry->protocol.get(), name, instance.config));
        return whyNotAccepted(*report);
    }

    std::string m_project;
    std::vector<std::string> m_names;
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeCheckCommand() {
    return std::make_unique<CheckCommand>();
}

} // namespace Ipgen
