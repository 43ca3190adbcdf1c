#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/cli/table.h"
#include "ipgen/report/summary.h"

#include <serdesip/serdes.h>

namespace Ipgen {

namespace {

class SummaryCommand : public Command {
public:
    SummaryCommand()
        : Command("summary", "Tell what an instance runs at: rates, PLLs, dividers, clocks") {}

    void declare(CLI::App& app) override {
        declareProject(app, m_project);
        app.add_option("NAME", m_name, "the instance")->required()->type_name("");
        CLI::Option* json = declareJson(app, m_json);
        app.add_flag("--markdown", m_markdown, "as a Markdown document")->excludes(json);
    }

    Exit run(Context& context) override {
        Project project;
        const QString name = fromArgument(m_name);
        const CatalogueEntry* entry = nullptr;
        const Status status = context.openInstance(m_project, name, &project, &entry);
        if (!status.ok()) {
            return context.tell(status);
        }
        const DEV::DeviceArg device = IPSERDESIP::serdes::instance()->device();
        Trial trial(device, project.data());
        const Summary summary =
            summarise(trial, *entry, name, project.instance(name).config, device);
        if (!summary.status.ok()) {
            return context.tell(summary.status);
        }
        if (m_json) {
            context.printJson(summaryMap(summary));
        } else if (m_markdown) {
            context.print(summaryMarkdown(summary));
        } else {
            printPlain(context, summary);
        }
        for (const QString& problem : summary.problems) {
            context.tell(name, problem);
        }
        return summary.problems.isEmpty() ? Exit::Done : Exit::Refused;
    }

private:
    static void printPlain(Context& context, const Summary& summary) {
        const QString comma = QStringLiteral(", ");
        context.print(tableText({{QStringLiteral("instance"), summary.name},
                                 {QStringLiteral("ip"), summary.ip},
                                 {QStringLiteral("device"), summary.device},
                                 {QStringLiteral("lanes"), summary.lanes.join(comma)},
                                 {QStringLiteral("plls"), summary.plls.join(comma)},
                                 {QStringLiteral("references"), summary.references.join(comma)},
                                 {QStringLiteral("tx gbps"), numberText(summary.txRate)},
                                 {QStringLiteral("rx gbps"), numberText(summary.rxRate)}}));
        if (!summary.clocks.isEmpty()) {
            context.printLine(QString());
            context.print(tableText(clockTable(summary)));
        }
    }

    std::string m_project;
    std::string m_name;
    bool m_json = false;
    bool m_markdown = false;
};

} // namespace

std::unique_ptr<Command> makeSummaryCommand() {
    return std::make_unique<SummaryCommand>();
}

} // namespace Ipgen
