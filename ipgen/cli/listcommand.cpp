#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/cli/table.h"

#include <serdesip/serdes.h>

namespace Ipgen {

namespace {

class ListCommand : public Command {
public:
    ListCommand()
        : Command("list", "List the instances of a project: IP, lanes, PLLs, line rates in Gbps") {}

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
        const auto messages = IPSERDESIP::serdes::instance()->messages();
        QVariantList list;
        QList<QStringList> rows = {{QStringLiteral("name"), QStringLiteral("ip"),
                                    QStringLiteral("lanes"), QStringLiteral("pll"),
                                    QStringLiteral("tx rate"), QStringLiteral("rx rate")}};
        const QStringList names = project.instanceNames();
        for (const QString& name : names) {
            const QString ip = project.instance(name).ip;
            const IPSERDESIP::Message message = messages.value(name);
            rows.append({name, ip, orDash(message.lanes), orDash(message.plls),
                         numberText(message.txRate), numberText(message.rxRate)});
            list.append(QVariantMap({{"name", name},
                                     {"ip", ip},
                                     {"lanes", message.lanes},
                                     {"plls", message.plls},
                                     {"txRate", message.txRate},
                                     {"rxRate", message.rxRate},
                                     {"offered", context.catalogue().find(ip) != nullptr}}));
        }
        if (m_json) {
            context.printJson(QVariantMap({{"device", project.deviceName()}, {"instances", list}}));
        } else {
            context.print(tableText(rows));
        }
        return Exit::Done;
    }

private:
    static QString orDash(const QStringList& texts) {
        return texts.isEmpty() ? QStringLiteral("-") : texts.join(QStringLiteral(", "));
    }

    std::string m_project;
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeListCommand() {
    return std::make_unique<ListCommand>();
}

} // namespace Ipgen
