#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/core/example.h"

#include <serdesip/serdes.h>

#include <QDir>

namespace Ipgen {

namespace {

class ExampleCommand : public Command {
public:
    ExampleCommand()
        : Command("example", "Write an example design of an instance, with a self-checking bench") {
    }

    void declare(CLI::App& app) override {
        declareProject(app, m_project);
        app.add_option("NAME", m_name, "the instance")->required()->type_name("");
        app.add_option("--out", m_folder, "the folder to write to")->required()->type_name("DIR");
        declareJson(app, m_json);
    }

    Exit run(Context& context) override {
        Project project;
        const QString name = fromArgument(m_name);
        const CatalogueEntry* entry = nullptr;
        Status status = context.openInstance(m_project, name, &project, &entry);
        QStringList files;
        const QString folder = QDir(fromArgument(m_folder)).absolutePath();
        if (status.ok()) {
            ExampleRequest request;
            request.entry = entry;
            request.device = IPSERDESIP::serdes::instance()->device();
            request.config = project.instance(name).config;
            request.instance = name;
            request.folder = folder;
            status = writeExample(request, &files);
        }
        if (!status.ok()) {
            return context.tell(status);
        }
        if (m_json) {
            context.printJson(QVariantMap({{"name", name}, {"folder", folder}, {"files", files}}));
            return Exit::Done;
        }
        for (const QString& file : qAsConst(files)) {
            context.printLine(oneLine(folder + QLatin1Char('/') + file));
        }
        return Exit::Done;
    }

private:
    std::string m_project;
    std::string m_name;
    std::string m_folder;
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeExampleCommand() {
    return std::make_unique<ExampleCommand>();
}

} // namespace Ipgen
