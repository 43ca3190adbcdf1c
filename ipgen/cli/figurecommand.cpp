#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/cli/sessionverdict.h"

#include <serdesip/portfigure.h>
#include <utils/filereplace.h>

namespace Ipgen {

namespace {

class FigureCommand : public Command {
public:
    FigureCommand()
        : Command("figure", "Give the port symbol of an instance") {}

    void declare(CLI::App& app) override {
        declareProject(app, m_project);
        app.add_option("NAME", m_name, "the instance")->required()->type_name("");
        CLI::Option_group* forms = app.add_option_group("form", "one of");
        forms->add_flag("--json", m_json, "the pins in order, as one JSON list");
        forms->add_option("--svg", m_svg, "a drawing")->type_name("FILE");
        forms->add_option("--png", m_png, "a picture")->type_name("FILE");
        forms->require_option(1);
    }

    Screen screen() const override { return Screen::Offscreen; }

    Exit run(Context& context) override {
        Project project;
        const QString name = fromArgument(m_name);
        const CatalogueEntry* entry = nullptr;
        const Status status = context.openInstance(m_project, name, &project, &entry);
        if (!status.ok()) {
            return context.tell(status);
        }
        const Session::Script script = {{Session::Step::Kind::State, label(), {}, false},
                                        {Session::Step::Kind::Cancel, {}, {}, false}};
        const Session::Report report =
            Session::Player(script, {})
                .run(openingOf(entry->protocol.get(), name, project.instance(name).config));
        if (!report.figures.contains(label())) {
            return context.tell({Exit::Refused, name, whyNotAccepted(report)});
        }
        if (m_json) {
            context.printJson(report.figures.value(label()));
            return Exit::Done;
        }
        const IPSERDESIP::PortFigure figure(report.module, report.pins.value(label()));
        const bool picture = !m_png.empty();
        const Utils::FileResult written = Utils::replaceFile(fromArgument(picture ? m_png : m_svg),
                                                             picture ? figure.png() : figure.svg());
        return written ? Exit::Done : context.tell({Exit::BadOutput, written.path, written.reason});
    }

private:
    static QString label() { return QStringLiteral("figure"); }

    std::string m_project;
    std::string m_name;
    std::string m_svg;
    std::string m_png;
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeFigureCommand() {
    return std::make_unique<FigureCommand>();
}

} // namespace Ipgen
