#pragma once

#include "ipgen/cli/command.h"

#include <memory>
#include <vector>

namespace Ipgen {

/// The program's commands, in the order of the help.
std::vector<std::unique_ptr<Command>> makeCommands();

// One a file. A new command: its file, its maker here, its row in commands.cpp.
std::unique_ptr<Command> makeCatalogCommand();
std::unique_ptr<Command> makeDevicesCommand();
std::unique_ptr<Command> makePresetsCommand();
std::unique_ptr<Command> makeNewCommand();
std::unique_ptr<Command> makeListCommand();
std::unique_ptr<Command> makeGenerateCommand();
std::unique_ptr<Command> makeExampleCommand();
std::unique_ptr<Command> makeResourcesCommand();
std::unique_ptr<Command> makeCreateCommand();
std::unique_ptr<Command> makeOpenCommand();
std::unique_ptr<Command> makeCheckCommand();
std::unique_ptr<Command> makeFigureCommand();
std::unique_ptr<Command> makeRemoveCommand();
std::unique_ptr<Command> makeEmitCommand();
std::unique_ptr<Command> makeGuiCommand();
std::unique_ptr<Command> makeDiffCommand();
std::unique_ptr<Command> makeSummaryCommand();

} // namespace Ipgen
