#include "ipgen/cli/arguments.h"
#include "ipgen/cli/commands.h"
#include "ipgen/cli/context.h"
#include "ipgen/cli/emitbatch.h"
#include "ipgen/cli/emititem.h"
#include "ipgen/cli/emitworker.h"

#include <utils/filereplace.h>
#include <utils/jsontext.h>

#include <QDir>
#include <QFileInfo>

namespace Ipgen {

namespace {

class EmitCommand : public Command {
public:
    EmitCommand()
        : Command("emit", "Generate from loose configurations: one, or a batch of them") {}

    void declare(CLI::App& app) override {
        constexpr int mostJobs = 256;
        const auto file = [&](const char* name, std::string& value, const char* help) {
            return app.add_option(name, value, help)->type_name("FILE");
        };
        CLI::Option* batch = file("--batch", m_batch,
                                  "items as JSON lines: name, device, config, and optionally ip, "
                                  "data, script, options; - is standard input");
        CLI::Option* config = file("--config", m_config, "one configuration, a JSON object");
        CLI::Option* device =
            app.add_option("--device", m_device, "the configuration's device, by id or model name")
                ->type_name("ID");
        app.add_option("--out", m_out,
                       "a batch: the folder for the items' folders; "
                       "one configuration: its working folder")
            ->required()
            ->type_name("DIR");
        CLI::Option* report = file("--report", m_report,
                                   "what came of each item, JSON lines in input order; "
                                   "- is standard output");
        CLI::Option* jobs = app.add_option("--jobs", m_jobs, "worker processes for a batch")
                                ->check(CLI::Range(1, mostJobs))
                                ->type_name("N");
        app.add_option("--ip", m_ip,
                       "the IP of items that name none; needed where several are on "
                       "offer")
            ->type_name("ID");
        app.add_flag("--worker", m_worker)->group("");
        config->needs(device)->excludes(batch)->excludes(jobs);
        device->needs(config);
        batch->needs(report);
        jobs->needs(batch);
        declareJson(app, m_json)->needs(config);
    }

    Exit run(Context& context) override {
        const QString out = QDir::cleanPath(QFileInfo(fromArgument(m_out)).absoluteFilePath());
        const QString ip = fromArgument(m_ip);
        if (m_worker) {
            return runEmitWorker(context, out, ip);
        }
        if (m_batch.empty() && m_config.empty()) {
            return context.tell({Exit::Usage, QStringLiteral("usage"),
                                 QStringLiteral("--batch or --config is needed; see "
                                                "ipgen emit --help")});
        }
        Status status = context.devices();
        const CatalogueEntry* entry = nullptr;
        if (status.ok() && !ip.isEmpty()) {
            status = context.catalogue().pick(ip, &entry);
        }
        if (!status.ok()) {
            return context.tell(status);
        }
        return m_config.empty() ? runBatch(context, out, ip) : runOne(context, out, ip);
    }

private:
    static QString inputPath(const std::string& name) {
        return name == "-" ? QStringLiteral("/dev/stdin") : fromArgument(name);
    }

    static QString outputPath(const Context& context, const std::string& name) {
        return name == "-" ? context.standardOutputPath() : fromArgument(name);
    }

    Exit runBatch(Context& context, const QString& out, const QString& ip) {
        context.catalogue(); // tells of plug-ins that cannot serve; the workers do not
        EmitBatch batch;
        batch.input = inputPath(m_batch);
        batch.report = outputPath(context, m_report);
        batch.out = out;
        batch.ip = ip;
        batch.jobs = m_jobs;
        return runEmitBatch(context, batch);
    }

    Exit runOne(Context& context, const QString& out, const QString& ip) {
        const QString path = inputPath(m_config);
        QByteArray bytes;
        const Utils::FileResult read = Utils::readFile(path, &bytes);
        if (!read.ok) {
            return context.tell({Exit::BadInput, path, read.reason});
        }
        QVariant value;
        Utils::JsonError error;
        if (!Utils::parseJson(bytes, &value, &error)) {
            return context.tell({Exit::BadInput, path, error.text()});
        }
        if (value.userType() != QMetaType::QVariantMap) {
            return context.tell(
                {Exit::BadInput, path, QStringLiteral("a configuration is a JSON object")});
        }
        EmitItem item;
        item.name = QFileInfo(path).completeBaseName();
        item.ip = ip;
        item.device = fromArgument(m_device);
        item.config = value.toMap();
        const GenerationResult result = emitOne(context.catalogue(), item, out);
        if (!result.ok) {
            context.tell(result.status);
        }
        const Exit reported = tellOne(context, item.name, result);
        return result.ok ? reported : result.status.code();
    }

    Exit tellOne(Context& context, const QString& name, const GenerationResult& result) {
        const QVariantMap document = reportOf(name, result).document();
        if (!m_report.empty()) {
            const QString path = outputPath(context, m_report);
            const Utils::FileResult written = Utils::replaceFile(
                path, Utils::writeJson(document, Utils::JsonForm::Compact) + '\n');
            if (!written.ok) {
                return context.tell({Exit::BadOutput, path, written.reason});
            }
        }
        if (m_json) {
            context.printJson(document);
        } else if (m_report != "-") {
            for (const QString& file : result.files) {
                context.printLine(oneLine(file));
            }
        }
        return Exit::Done;
    }

    std::string m_batch;
    std::string m_config;
    std::string m_device;
    std::string m_out;
    std::string m_report;
    std::string m_ip;
    int m_jobs = 1;
    bool m_worker = false;
    bool m_json = false;
};

} // namespace

std::unique_ptr<Command> makeEmitCommand() {
    return std::make_unique<EmitCommand>();
}

} // namespace Ipgen
