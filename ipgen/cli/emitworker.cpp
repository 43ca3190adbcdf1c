#include "ipgen/cli/emitworker.h"

#include "ipgen/cli/context.h"
#include "ipgen/cli/emititem.h"
#include "ipgen/cli/linereader.h"

#include <utils/filereplace.h>
#include <utils/jsontext.h>

#include <cerrno>
#include <unistd.h>

namespace Ipgen {

namespace {

bool send(int fd, const QByteArray& line) {
    const QByteArray bytes = line + '\n';
    int sent = 0;
    while (sent < bytes.size()) {
        const ssize_t done =
            ::write(fd, bytes.constData() + sent, static_cast<std::size_t>(bytes.size() - sent));
        if (done < 0 && errno != EINTR) {
            return false;
        }
        sent += done > 0 ? static_cast<int>(done) : 0;
    }
    return true;
}

} // namespace

Exit runEmitWorker(Context& context, const QString& out, const QString& ip) {
    const int answers = context.standardOutput();
    context.keepQuietOnPlugins();
    const Status devices = context.devices();
    if (!devices.ok()) {
        return context.tell(devices);
    }
    const Catalogue& catalogue = context.catalogue();
    if (!send(answers, workerReady)) {
        return Exit::Fault;
    }
    // The batch counts when its report stands; before that everything is synced at once.
    const Utils::SyncLater later;
    LineReader reader(STDIN_FILENO, longestBatchLine);
    while (reader.next()) {
        EmitItem item;
        GenerationResult result;
        result.status = parseEmitItem(reader.line(), &item);
        if (result.status.ok()) {
            item.ip = item.ip.isEmpty() ? ip : item.ip;
            result = emitOne(catalogue, item, out + QLatin1Char('/') + item.name);
        }
        const EmitReport report = reportOf(item.name, result);
        const QByteArray line = Utils::writeJson(report.document(), Utils::JsonForm::Compact);
        if (!send(answers, (result.ok ? workerDone : workerRefused) + line)) {
            return Exit::Fault;
        }
    }
    return Exit::Done;
}

} // namespace Ipgen
