#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/cli/table.h"

#include <core/idecore.h>
#include <dev/deviceinfo.h>

namespace Ipgen {

namespace {

class DevicesCommand : public Command {
public:
    DevicesCommand()
        : Command("devices", "List the devices known") {}

    void declare(CLI::App& app) override { declareJson(app, m_json); }

    Exit run(Context& context) override {
        const Status loaded = context.devices();
        if (!loaded.ok()) {
            return context.tell(loaded);
        }
        const DEV::DeviceDb& db = Core::IdeCore::deviceDataBase();
        QVariantList list;
        QList<QStringList> rows = {{QStringLiteral("id"), QStringLiteral("model"),
                                    QStringLiteral("class"), QStringLiteral("quads"),
                                    QStringLiteral("lanes"), QStringLiteral("clock inputs")}};
        const QList<DEV::DeviceArg> devices = db.devices();
        for (const DEV::DeviceArg& device : devices) {
            const auto known = db.info(device);
            const DEV::DeviceInfo info = known ? *known : DEV::DeviceInfo();
            const int lanes = info.quads * info.lanesPerQuad;
            rows.append({device.id(), device.device(), info.className, QString::number(info.quads),
                         QString::number(lanes), info.pins.join(QLatin1Char(' '))});
            list.append(QVariantMap({{"id", device.id()},
                                     {"model", device.device()},
                                     {"class", info.className},
                                     {"quads", info.quads},
                                     {"lanes", lanes},
                                     {"clockInputs", info.pins}}));
        }
        if (m_json) {
            context.printJson(QVariantMap({{"devices", list}}));
        } else {
            context.print(tableText(rows));
        }
        return Exit::Done;
    }

private:
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeDevicesCommand() {
    return std::make_unique<DevicesCommand>();
}

} // namespace Ipgen
