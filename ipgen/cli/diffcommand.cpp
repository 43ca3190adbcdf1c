#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/report/comparison.h"

namespace Ipgen {

namespace {

class DiffCommand : public Command {
public:
    DiffCommand()
        : Command("diff", "Compare two configurations: fields, derived values, generated lines") {}

    void declare(CLI::App& app) override {
        const char* form = "PROJECT:NAME, or a file with a configuration as JSON";
        app.add_option("A", m_left, form)->required()->type_name("");
        app.add_option("B", m_right, form)->required()->type_name("");
        declareJson(app, m_json);
        app.footer("Exit status 0: the same; 1: they differ.");
    }

    Exit run(Context& context) override {
        Side left;
        Side right;
        Comparison comparison;
        Status status = context.devices();
        if (status.ok()) {
            status = readSide(fromArgument(m_left), &left);
        }
        if (status.ok()) {
            status = readSide(fromArgument(m_right), &right);
        }
        if (status.ok()) {
            status = compareSides(context.catalogue(), left, right, &comparison);
        }
        if (!status.ok()) {
            return context.tell(status);
        }
        if (m_json) {
            context.printJson(comparisonMap(comparison, left, right));
        } else {
            context.print(comparisonText(comparison, left, right));
        }
        return comparison.same() ? Exit::Done : Exit::Refused;
    }

private:
    std::string m_left;
    std::string m_right;
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeDiffCommand() {
    return std::make_unique<DiffCommand>();
}

} // namespace Ipgen
