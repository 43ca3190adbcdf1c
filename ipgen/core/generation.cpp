#include "ipgen/core/generation.h"

#include "ipgen/core/errorcollector.h"

#include <ipcore/ipcore.h>
#include <serdesip/message.h>
#include <serdesip/netlist.h>
#include <serdesip/serdes.h>

#include <QFileInfo>
#include <QScopeGuard>

#include <exception>
#include <memory>
#include <optional>

namespace Ipgen {

namespace {

Exit netlistExit(const IPSERDESIP::NetlistRun& run) {
    using Failure = IPSERDESIP::NetlistRun::Failure;
    switch (run.failure()) {
    case Failure::Tool:
        return Exit::Tool;
    case Failure::Output:
        return Exit::BadOutput;
    case Failure::None:
    case Failure::Refused:
    case Failure::Cancelled:
        break;
    }
    return Exit::Refused;
}

Status failureOf(const GenerationRequest& request, const ErrorCollector& errors,
                 const IPSERDESIP::NetlistRun& run, const QString& text) {
    if (!errors.entries().isEmpty()) {
        // What could not be written is the one kind of failure that libraries report by path.
        return {Exit::BadOutput, request.instance, errors.suffix().mid(2)};
    }
    if (request.config.isEmpty()) {
        return {Exit::Refused, request.instance, QStringLiteral("the configuration is empty")};
    }
    if (request.netlist && !text.isEmpty()) {
        return {netlistExit(run), request.instance, text};
    }
    return {Exit::Refused, request.instance,
            QStringLiteral("the IP refused to generate this configuration")};
}

} // namespace

Status checkFileName(const QString& file) {
    const auto refused = [&](const QString& why) {
        return Status(Exit::Refused, QStringLiteral("file name \"%1\"").arg(file), why);
    };
    if (file.isEmpty()) {
        return refused(QStringLiteral("the name is empty"));
    }
    if (file.contains(QLatin1Char('/')) || file.contains(QLatin1Char('\\'))) {
        return refused(QStringLiteral("the name has a path separator"));
    }
    if (file == QLatin1String(".") || file == QLatin1String("..")) {
        return refused(QStringLiteral("the name leaves its folder"));
    }
    if (file != oneLine(file)) {
        return refused(QStringLiteral("the name has a control character"));
    }
    return {};
}

QString sharesFolderWith(const QString& instance) {
    const auto messages = IPSERDESIP::serdes::instance()->messages();
    const QString file = messages.value(instance).file;
    for (auto it = messages.begin(); it != messages.end(); ++it) {
        if (!file.isEmpty() && it.key() != instance && it->file == file) {
            return it.key();
        }
    }
    return {};
}

GenerationResult generate(const GenerationRequest& request) {
    GenerationResult result;
    result.script = request.script;
    result.options = request.options;
    const ErrorCollector errors;
    // The caller's run is alive, or the one made here is.
    IPSERDESIP::NetlistRun* const outer = IPSERDESIP::NetlistRun::current();
    std::optional<IPSERDESIP::NetlistRun> own;
    if (outer == nullptr) {
        own.emplace();
    }
    IPSERDESIP::NetlistRun& netlist = outer != nullptr ? *outer : *own;
    netlist.options = &result.options;
    const auto forget = qScopeGuard([&netlist] { netlist.options = nullptr; });
    IPCore::startOutputLog();
    try {
        request.protocol->setDevice(request.device);
        const std::unique_ptr<IPSERDESIP::Message> message(
            request.protocol->resourceMessage(request.config));
        const Status named = checkFileName(message ? message->file : QString());
        if (!named.ok()) {
            result.status = {Exit::Refused, request.instance,
                             request.config.isEmpty() ? QStringLiteral("the configuration is empty")
                                                      : named.text()};
            return result;
        }
        result.ok = request.protocol->generate(request.config, result.script, QString(),
                                               result.options, result.text, request.netlist);
    } catch (const std::exception& fault) {
        result.status = {Exit::Fault, request.instance,
                         QStringLiteral("the generation threw an exception: %1")
                             .arg(QString::fromLocal8Bit(fault.what()))};
    }
    const IPCore::OutputLog log = IPCore::outputLog();
    result.files = log.files;
    result.folder =
        log.files.isEmpty() ? log.folders.value(0) : QFileInfo(log.files.first()).path();
    if (!result.ok && result.status.ok()) {
        result.status = failureOf(request, errors, netlist, result.text);
    }
    return result;
}

} // namespace Ipgen
