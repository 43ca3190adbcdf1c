#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/cli/table.h"
#include "ipgen/core/installation.h"
#include "ipgen/core/presets.h"

namespace Ipgen {

namespace {

class PresetsCommand : public Command {
public:
    PresetsCommand()
        : Command("presets", "List the presets of the IPs on offer") {}

    void declare(CLI::App& app) override {
        app.add_option("--ip", m_ip, "only those of this IP")->type_name("ID");
        app.add_option("--device", m_device, "only those that suit this device")->type_name("ID");
        declareJson(app, m_json);
    }

    Exit run(Context& context) override {
        DEV::DeviceArg device;
        Status status = context.devices();
        if (status.ok() && !m_device.empty()) {
            status = findDevice(fromArgument(m_device), &device);
        }
        const CatalogueEntry* only = nullptr;
        if (status.ok() && !m_ip.empty()) {
            status = context.catalogue().pick(fromArgument(m_ip), &only);
        }
        if (!status.ok()) {
            return context.tell(status);
        }
        bool damaged = false;
        QVariantList presets;
        QVariantList faults;
        QList<QStringList> rows = {{QStringLiteral("ip"), QStringLiteral("name"),
                                    QStringLiteral("devices"), QStringLiteral("summary")}};
        for (const CatalogueEntry& entry : context.catalogue().entries()) {
            if (only != nullptr && only != &entry) {
                continue;
            }
            const IPSERDESIP::PresetStore store(ipPresetFolder(entry), ownPresetFolder(entry));
            for (const IPSERDESIP::Preset& preset : store.presets()) {
                if (device.isNull() || preset.suits(device)) {
                    presets.append(mapOf(entry, preset));
                    rows.append({entry.id, preset.name, preset.devices.join(QLatin1Char(' ')),
                                 preset.summary});
                }
            }
            for (const IPSERDESIP::PresetStore::Fault& fault : store.faults()) {
                damaged = true;
                faults.append(QVariantMap({{"file", fault.file}, {"reason", fault.reason}}));
                context.tell(fault.file, fault.reason);
            }
        }
        if (m_json) {
            context.printJson(QVariantMap({{"presets", presets}, {"problems", faults}}));
        } else {
            context.print(tableText(rows));
        }
        return damaged ? Exit::BadInput : Exit::Done;
    }

private:
    static QVariantMap mapOf(const CatalogueEntry& entry, const IPSERDESIP::Preset& preset) {
        QVariantList steps;
        for (const IPSERDESIP::PresetStep& step : preset.steps) {
            steps.append(QVariantMap({{"set", step.object}, {"to", step.to}}));
        }
        return {{"ip", entry.id},
                {"name", preset.name},
                {"summary", preset.summary},
                {"devices", preset.devices},
                {"own", preset.own},
                {"file", preset.file},
                {"steps", steps}};
    }

    std::string m_ip;
    std::string m_device;
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makePresetsCommand() {
    return std::make_unique<PresetsCommand>();
}

} // namespace Ipgen
