#include "ipgen/cli/commands.h"

namespace Ipgen {

std::vector<std::unique_ptr<Command>> makeCommands() {
    std::vector<std::unique_ptr<Command>> commands;
    for (const auto make : {
             makeCatalogCommand,
             makeDevicesCommand,
             makePresetsCommand,
             makeNewCommand,
             makeListCommand,
             makeCreateCommand,
             makeOpenCommand,
             makeCheckCommand,
             makeGenerateCommand,
             makeExampleCommand,
             makeResourcesCommand,
             makeFigureCommand,
             makeRemoveCommand,
             makeEmitCommand,
             makeGuiCommand,
             makeDiffCommand,
             makeSummaryCommand,
         }) {
        commands.push_back(make());
    }
    return commands;
}

} // namespace Ipgen
