#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"

#include <core/idecore.h>

namespace Ipgen {

namespace {

/// Ids of the devices that the IP's model supports.
QStringList supportedDevices(const CatalogueEntry& entry) {
    QStringList ids;
    const QList<DEV::DeviceArg> devices = Core::IdeCore::deviceDataBase().devices();
    for (const DEV::DeviceArg& device : devices) {
        if (entry.protocol->isSupported(device)) {
            ids.append(device.id());
        }
    }
    return ids;
}

class CatalogCommand : public Command {
public:
    CatalogCommand()
        : Command("catalog", "List the IPs on offer") {}

    void declare(CLI::App& app) override { declareJson(app, m_json); }

    Exit run(Context& context) override {
        const Status devices = context.devices();
        if (!devices.ok()) {
            return context.tell(devices);
        }
        const Catalogue& catalogue = context.catalogue();
        if (m_json) {
            context.printJson(document(catalogue));
            return Exit::Done;
        }
        for (const CatalogueEntry& entry : catalogue.entries()) {
            printEntry(context, entry);
        }
        return Exit::Done;
    }

private:
    static void printEntry(Context& context, const CatalogueEntry& entry) {
        const auto line = [&](const char* caption, const QString& text) {
            context.printLine(
                QStringLiteral("  %1: %2").arg(QLatin1String(caption), oneLine(text)));
        };
        context.printLine(oneLine(entry.id));
        line("name", entry.name);
        line("version", entry.version);
        line("category", entry.category.join(QStringLiteral(" / ")));
        line("summary", entry.summary);
        line("devices", supportedDevices(entry).join(QStringLiteral(", ")));
    }

    static QVariant document(const Catalogue& catalogue) {
        QVariantList ips;
        for (const CatalogueEntry& entry : catalogue.entries()) {
            ips.append(QVariantMap({{"id", entry.id},
                                    {"name", entry.name},
                                    {"version", entry.version},
                                    {"category", entry.category},
                                    {"summary", entry.summary},
                                    {"devices", supportedDevices(entry)},
                                    {"library", entry.library}}));
        }
        QVariantList problems;
        for (const PluginProblem& problem : catalogue.problems()) {
            problems.append(QVariantMap({{"path", problem.path}, {"reason", problem.reason}}));
        }
        return QVariantMap({{"ips", ips}, {"problems", problems}});
    }

    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeCatalogCommand() {
    return std::make_unique<CatalogCommand>();
}

} // namespace Ipgen
