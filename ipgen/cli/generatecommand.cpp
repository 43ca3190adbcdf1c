#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/cli/netlistreport.h"
#include "ipgen/core/generation.h"

#include <serdesip/serdes.h>

namespace Ipgen {

namespace {

class GenerateCommand : public Command {
public:
    GenerateCommand()
        : Command("generate", "Write the files of the named instances, or of all") {}

    void declare(CLI::App& app) override {
        declareProject(app, m_project);
        app.add_option("NAME", m_names, "instances; none: all of the project")->type_name("");
        app.add_flag("--netlist", m_netlist, "run the netlist generation too");
        app.add_flag("--quiet", m_quiet, "no progress line of the netlist generation");
        declareJson(app, m_json);
    }

    Exit run(Context& context) override {
        Project project;
        Status status = context.openProjectInModel(m_project, &project, false);
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
            const GenerationResult result = generateOne(context, project, name);
            if (!result.ok) {
                context.tell(result.status);
                exit = exit == Exit::Done ? result.status.code() : exit;
            }
            report(context, name, result, list);
            if (m_cancelled) {
                break;
            }
        }
        if (m_json) {
            context.printJson(QVariantMap({{"instances", list}}));
        }
        const Exit saved = saveData(context, project);
        return exit == Exit::Done ? saved : exit;
    }

private:
    GenerationResult generateOne(Context& context, const Project& project, const QString& name) {
        const ProjectInstance instance = project.instance(name);
        const CatalogueEntry* entry = nullptr;
        const Status offered = context.catalogue().pick(instance.ip, &entry);
        const Status configured = project.checkConfigured(name);
        if (!offered.ok() || !configured.ok()) {
            GenerationResult result;
            result.status = offered.ok() ? configured : Status(Exit::Refused, name, offered.text());
            return result;
        }
        const QString other = sharesFolderWith(name);
        if (!other.isEmpty()) {
            context.tell(name,
                         QStringLiteral("writes to the same folder as %1, and over its files; "
                                        "give one of them another file name")
                             .arg(oneLine(other)));
        }
        GenerationRequest request;
        request.protocol = entry->protocol.get();
        request.device = IPSERDESIP::serdes::instance()->device();
        request.config = instance.config;
        request.instance = name;
        request.netlist = m_netlist;
        if (!m_netlist) {
            return generate(request);
        }
        const NetlistReport report(name, m_quiet);
        GenerationResult result = generate(request);
        m_cancelled = report.isCancelled();
        return result;
    }

    void report(Context& context, const QString& name, const GenerationResult& result,
                QVariantList& list) const {
        if (m_json) {
            list.append(QVariantMap({{"name", name},
                                     {"ok", result.ok},
                                     {"folder", result.folder},
                                     {"files", result.files},
                                     {"script", result.script},
                                     {"options", result.options},
                                     {"netlist", m_netlist && result.ok ? result.text : QString()},
                                     {"error", result.ok ? QString() : result.status.text()}}));
            return;
        }
        for (const QString& file : result.files) {
            context.printLine(QStringLiteral("%1: %2").arg(oneLine(name), oneLine(file)));
        }
        if (m_netlist && result.ok && !result.text.isEmpty()) {
            context.printLine(QStringLiteral("%1: %2").arg(oneLine(name), oneLine(result.text)));
        }
    }

    /// The data store is the project's; an IP may have written to it.
    static Exit saveData(Context& context, Project& project) {
        project.takeModelData();
        if (!project.changed()) {
            return Exit::Done;
        }
        const Status saved = project.save();
        return saved.ok() ? Exit::Done : context.tell(saved);
    }

    std::string m_project;
    std::vector<std::string> m_names;
    bool m_netlist = false;
    bool m_quiet = false;
    bool m_cancelled = false;
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeGenerateCommand() {
    return std::make_unique<GenerateCommand>();
}

} // namespace Ipgen
