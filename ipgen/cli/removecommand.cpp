#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"

namespace Ipgen {

namespace {

class RemoveCommand : public Command {
public:
    RemoveCommand()
        : Command("remove", "Remove an instance from its project; files it generated stay") {}

    void declare(CLI::App& app) override {
        declareProject(app, m_project);
        app.add_option("NAME", m_name, "the instance")->required()->type_name("");
    }

    Exit run(Context& context) override {
        // What an instance holds is read from the project, so its entry is all there is to free.
        Project project;
        Status status = Project::load(fromArgument(m_project), &project);
        const QString name = fromArgument(m_name);
        if (status.ok()) {
            status = project.checkKnown(name);
        }
        if (status.ok()) {
            project.removeInstance(name);
            status = project.save();
        }
        return status.ok() ? Exit::Done : context.tell(status);
    }

private:
    std::string m_project;
    std::string m_name;
};

} // namespace

std::unique_ptr<Command> makeRemoveCommand() {
    return std::make_unique<RemoveCommand>();
}

} // namespace Ipgen
