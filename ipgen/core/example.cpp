#include "ipgen/core/example.h"

#include "ipgen/core/generation.h"
#include "ipgen/core/installation.h"

#include <ipcore/ipcore.h>
#include <serdesip/message.h>
#include <serdesip/netlist.h>
#include <serdesip/serdes.h>
#include <utils/filereplace.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QTemporaryDir>

#include <memory>

namespace Ipgen {

namespace {

using Files = QMap<QString, QByteArray>; ///< place in the example to content

Status addFile(Files& files, const QString& place, const QString& path) {
    QByteArray bytes;
    const Utils::FileResult read = Utils::readFile(path, &bytes);
    if (!read) {
        return {Exit::BadInput, read.path, read.reason};
    }
    files.insert(place, bytes);
    return {};
}

Status addRtl(Files& files, const QString& place, const QString& folder) {
    const QFileInfoList entries =
        QDir(folder).entryInfoList({QStringLiteral("*.v"), QStringLiteral("*.vh")}, QDir::Files);
    for (const QFileInfo& entry : entries) {
        Status added = addFile(files, place + entry.fileName(), entry.filePath());
        if (!added.ok()) {
            return added;
        }
    }
    return {};
}

/// One pass over the text: what is put in is not looked at again.
QByteArray filledIn(const QByteArray& text, const QMap<QByteArray, QByteArray>& values) {
    QByteArray result;
    int at = 0;
    while (at < text.size()) {
        const int begin = text.indexOf('@', at);
        const int end = begin < 0 ? -1 : text.indexOf('@', begin + 1);
        if (end < 0) {
            break;
        }
        const auto value = values.constFind(text.mid(begin + 1, end - begin - 1));
        result += text.mid(at, begin - at);
        result += value == values.constEnd() ? QByteArray("@") : *value;
        at = value == values.constEnd() ? begin + 1 : end + 1;
    }
    return result + text.mid(at);
}

Status addTemplate(Files& files, const QString& folder,
                   const QMap<QByteArray, QByteArray>& values) {
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QString place = QDir(folder).relativeFilePath(path);
        Status added = addFile(files, place, path);
        if (!added.ok()) {
            return added;
        }
        files[place] = filledIn(files[place], values);
    }
    return {};
}

/// Generates in a folder of its own.
Status addGenerated(Files& files, const ExampleRequest& request) {
    const QTemporaryDir work;
    if (!work.isValid()) {
        return {Exit::BadOutput, work.path(), work.errorString()};
    }
    auto* const model = IPSERDESIP::serdes::instance();
    const QString formerRoot = IPCore::outputRoot();
    model->openProject(request.device, work.path(), model->globalData());
    IPCore::setOutputRoot(work.path());
    GenerationRequest generation;
    generation.protocol = request.entry->protocol.get();
    generation.device = request.device;
    generation.config = request.config;
    generation.instance = request.instance;
    const GenerationResult result = generate(generation);
    IPCore::setOutputRoot(formerRoot);
    if (!result.ok) {
        return result.status;
    }
    for (const QString& path : result.files) {
        Status added =
            addFile(files, QStringLiteral("generated/") + QFileInfo(path).fileName(), path);
        if (!added.ok()) {
            return added;
        }
    }
    return {};
}

Status write(const Files& files, const QString& folder) {
    for (auto it = files.begin(); it != files.end(); ++it) {
        const QString path = QDir(folder).filePath(it.key());
        if (!QDir().mkpath(QFileInfo(path).path())) {
            return {Exit::BadOutput, QFileInfo(path).path(),
                    QStringLiteral("the folder cannot be made")};
        }
        const Utils::FileResult written = Utils::replaceFile(path, it.value());
        if (!written) {
            return {Exit::BadOutput, written.path, written.reason};
        }
    }
    return {};
}

} // namespace

Status writeExample(const ExampleRequest& request, QStringList* files) {
    const QString data = request.entry->folder + QStringLiteral("/data");
    const QString templates = data + QStringLiteral("/example");
    if (!QFileInfo(templates).isDir()) {
        return {Exit::Refused, request.instance,
                QStringLiteral("the IP %1 has no example design").arg(request.entry->id)};
    }
    request.entry->protocol->setDevice(request.device);
    const std::unique_ptr<IPSERDESIP::Message> message(
        request.entry->protocol->resourceMessage(request.config));
    const QString module = message ? message->module : QString();
    const QString flaw = IPSERDESIP::moduleNameFlaw(module);
    if (!flaw.isEmpty()) {
        return {Exit::Refused, request.instance,
                QStringLiteral("module name \"%1\": %2").arg(module.left(60), flaw)};
    }
    Files content;
    Status status = addGenerated(content, request);
    if (status.ok()) {
        status = addRtl(content, QStringLiteral("rtl/"), data);
    }
    if (status.ok()) {
        status = addRtl(content, QStringLiteral("primitives/"),
                        hostDataFolder() + QStringLiteral("/primitives"));
    }
    if (status.ok()) {
        status = addTemplate(content, templates,
                             {{"INSTANCE", request.instance.toUtf8()},
                              {"MODULE", module.toUtf8()},
                              {"IP", request.entry->name.toUtf8()},
                              {"DEVICE", request.device.id().toUtf8()}});
    }
    if (status.ok()) {
        status = write(content, request.folder);
    }
    *files = content.keys();
    return status;
}

} // namespace Ipgen
