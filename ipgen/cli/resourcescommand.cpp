#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/cli/table.h"

#include <serdesip/refnames.h>
#include <serdesip/serdes.h>

namespace Ipgen {

namespace {

using IPSERDESIP::Message;

/// One resource of the device, and what its holders make of it.
struct Resource {
    QString name;
    QStringList owners;
    QStringList settings; ///< readable; one for all owners, unless they disagree
    QVariantMap json;
};

class ResourcesCommand : public Command {
public:
    ResourcesCommand()
        : Command("resources", "Show who holds which lane, PLL, multiplexer and reference clock, "
                               "and what is free") {}

    void declare(CLI::App& app) override {
        declareProject(app, m_project);
        declareJson(app, m_json);
    }

    Exit run(Context& context) override {
        Project project;
        const Status opened = context.openProjectInModel(m_project, &project);
        if (!opened.ok()) {
            return context.tell(opened);
        }
        m_messages = IPSERDESIP::serdes::instance()->messages();
        const auto info = IPSERDESIP::serdes::instance()->deviceInfo();
        const DEV::DeviceInfo device = info ? *info : DEV::DeviceInfo();
        const QList<Resource> lanes = collect(device.laneCaptions(), &addLane);
        const QList<Resource> plls = collect(device.pllNames(), &addPll);
        const QList<Resource> muxes = collect(device.multiplexerNames(), &addMultiplexer);
        const QList<Resource> clocks = collect(device.pins, &addClock);
        if (m_json) {
            context.printJson(QVariantMap({{"device", project.deviceName()},
                                           {"lanes", documents(lanes)},
                                           {"plls", documents(plls)},
                                           {"multiplexers", documents(muxes)},
                                           {"referenceClocks", documents(clocks)},
                                           {"data", project.data()}}));
            return Exit::Done;
        }
        QList<QStringList> rows = {
            {QStringLiteral("resource"), QStringLiteral("held by"), QStringLiteral("setting")}};
        for (const Resource& resource : lanes + plls + muxes + clocks) {
            rows.append({resource.name,
                         resource.owners.isEmpty() ? QStringLiteral("free")
                                                   : resource.owners.join(QStringLiteral(", ")),
                         resource.settings.join(QStringLiteral(", "))});
        }
        context.print(tableText(rows));
        return Exit::Done;
    }

private:
    using Add = void (*)(Resource&, const Message&);

    QList<Resource> collect(const QStringList& names, Add add) const {
        QList<Resource> list;
        for (const QString& name : names) {
            Resource resource;
            resource.name = name;
            resource.owners = IPSERDESIP::serdes::instance()->owners(name);
            for (const QString& owner : qAsConst(resource.owners)) {
                add(resource, m_messages.value(owner));
            }
            resource.settings.removeDuplicates();
            resource.json.insert(QStringLiteral("name"), name);
            resource.json.insert(QStringLiteral("owners"), resource.owners);
            resource.json.insert(QStringLiteral("free"), resource.owners.isEmpty());
            list.append(resource);
        }
        return list;
    }

    static QVariantList documents(const QList<Resource>& resources) {
        QVariantList list;
        for (const Resource& resource : resources) {
            list.append(resource.json);
        }
        return list;
    }

    // Where owners disagree, the document keeps the first; the table shows all.
    static void setFirst(Resource& resource, const char* key, const QVariant& value) {
        const QString name = QString::fromLatin1(key);
        if (!resource.json.contains(name)) {
            resource.json.insert(name, value);
        }
    }

    static QString optionText(const QString& pin) {
        const QString option = IPSERDESIP::refsrcSerdesNameTransforOpt(pin);
        return option.isEmpty() ? pin : option;
    }

    static void addLane(Resource& resource, const Message& message) {
        resource.settings.append(message.protocol);
        setFirst(resource, "protocol", message.protocol);
    }

    static void addPll(Resource& resource, const Message& message) {
        if (message.receivesOnly()) {
            return; // it settles nothing
        }
        const QString source = optionText(message.refClocks.value(0));
        const double frequency = message.refFrequencies.value(0);
        resource.settings.append(QStringLiteral("%1 Gbps from %2 at %3 MHz")
                                     .arg(numberText(message.realTxRate),
                                          source.isEmpty() ? QStringLiteral("-") : source,
                                          numberText(frequency)));
        setFirst(resource, "rate", message.realTxRate);
        setFirst(resource, "source", source);
        setFirst(resource, "frequency", frequency);
    }

    static void addMultiplexer(Resource& resource, const Message& message) {
        const QString source = optionText(message.muxes.value(resource.name));
        resource.settings.append(source);
        setFirst(resource, "source", source);
    }

    static void addClock(Resource& resource, const Message& message) {
        const int at = message.refClocks.indexOf(resource.name);
        const double frequency = message.refFrequencies.value(at);
        resource.settings.append(QStringLiteral("%1 MHz").arg(numberText(frequency)));
        setFirst(resource, "frequency", frequency);
    }

    std::string m_project;
    bool m_json = false;
    QMap<QString, Message> m_messages;
};

} // namespace

std::unique_ptr<Command> makeResourcesCommand() {
    return std::make_unique<ResourcesCommand>();
}

} // namespace Ipgen
