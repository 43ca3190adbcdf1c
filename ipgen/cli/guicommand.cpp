#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/window/gui.h"

namespace Ipgen {

namespace {

class GuiCommand : public Command {
public:
    GuiCommand()
        : Command("gui", "Show the window; also what the program does with no command") {}

    void declare(CLI::App& app) override {
        app.add_option("PROJECT", m_project, "a project folder to open")->type_name("");
    }

    Screen screen() const override { return Screen::Display; }

    Exit run(Context& context) override {
        const int status = Window::runGui(fromArgument(m_project), context.pluginFolders());
        return status == 0 ? Exit::Done : Exit::Fault;
    }

private:
    std::string m_project;
};

} // namespace

std::unique_ptr<Command> makeGuiCommand() {
    return std::make_unique<GuiCommand>();
}

} // namespace Ipgen
