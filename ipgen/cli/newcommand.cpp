#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/core/installation.h"

namespace Ipgen {

namespace {

class NewCommand : public Command {
public:
    NewCommand()
        : Command("new", "Make a project") {}

    void declare(CLI::App& app) override {
        declareProject(app, m_project);
        app.add_option("--device", m_device, "the device, by id or model name")
            ->required()
            ->type_name("ID");
    }

    Exit run(Context& context) override {
        const Status loaded = context.devices();
        if (!loaded.ok()) {
            return context.tell(loaded);
        }
        DEV::DeviceArg device;
        const Status known = findDevice(fromArgument(m_device), &device);
        if (!known.ok()) {
            return context.tell(known);
        }
        Project project;
        const Status made = Project::make(fromArgument(m_project), device, &project);
        if (!made.ok()) {
            return context.tell(made);
        }
        context.printLine(oneLine(project.file()));
        return Exit::Done;
    }

private:
    std::string m_project;
    std::string m_device;
};

} // namespace

std::unique_ptr<Command> makeNewCommand() {
    return std::make_unique<NewCommand>();
}

} // namespace Ipgen
