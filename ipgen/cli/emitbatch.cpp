#include "ipgen/cli/emitbatch.h"

#include "ipgen/cli/context.h"
#include "ipgen/cli/emititem.h"
#include "ipgen/cli/emitworker.h"
#include "ipgen/cli/linereader.h"
#include "ipgen/cli/nameset.h"
#include "ipgen/cli/workerpool.h"

#include <utils/filereplace.h>
#include <utils/jsontext.h>

#include <QDir>
#include <QFile>

#include <cerrno>
#include <deque>
#include <fcntl.h>
#include <memory>
#include <system_error>
#include <unistd.h>

namespace Ipgen {

namespace {

/// An item on its way: its report line waits here until those before it are written.
struct Slot {
    QString name;
    bool done = false;
    bool ok = false;
    QByteArray report;
    QString what; ///< for the message of a failure
    QString why;
};

class BatchRun {
public:
    BatchRun(Context& context, const EmitBatch& batch, int input)
        : m_context(context)
        , m_batch(batch)
        , m_reader(input, longestBatchLine)
        , m_report(batch.report)
        , m_pool(batch.jobs, workerArguments(context, batch), workerReady) {}

    Exit run() {
        if (!m_report.result().ok) {
            return reportFailure(m_report.result());
        }
        bool more = true;
        while (more || !m_slots.empty()) {
            while (more && m_pool.hasIdle() && m_slots.size() < window()) {
                more = m_reader.next();
                if (more && !takeLine()) {
                    return m_context.tell(
                        {Exit::Fault, QStringLiteral("emit worker"), m_pool.error()});
                }
            }
            flushSlots();
            if (!m_slots.empty()) {
                receive();
                flushSlots();
            }
        }
        if (!m_reader.error().isEmpty()) {
            return m_context.tell({Exit::BadInput, m_batch.input,
                                   QStringLiteral("cannot read: ") + m_reader.error()});
        }
        // What the report says must be on the disk before the report is.
        const Utils::FileResult synced = Utils::syncFiles(m_batch.out);
        const Utils::FileResult written = synced.ok ? m_report.commit() : synced;
        if (!written.ok) {
            return reportFailure(written);
        }
        return m_failed ? Exit::Refused : Exit::Done;
    }

private:
    static QStringList workerArguments(const Context& context, const EmitBatch& batch) {
        QStringList arguments = {QStringLiteral("emit"), QStringLiteral("--worker"),
                                 QStringLiteral("--out"), batch.out};
        if (!batch.ip.isEmpty()) {
            arguments += {QStringLiteral("--ip"), batch.ip};
        }
        for (const QString& folder : context.pluginFolders()) {
            arguments += {QStringLiteral("--plugin-dir"), folder};
        }
        return arguments;
    }

    Exit reportFailure(const Utils::FileResult& result) {
        return m_context.tell({Exit::BadOutput, result.path, result.reason});
    }

    /// How many items may be on their way: enough to keep the workers busy while one item takes
    /// long, and a bound on memory.
    std::size_t window() const { return static_cast<std::size_t>(m_batch.jobs) * 16; }

    /// False: no worker can be started.
    bool takeLine() {
        const QByteArray& line = m_reader.line();
        if (!m_reader.tooLong() && line.trimmed().isEmpty()) {
            return true;
        }
        const QString place = QStringLiteral("line %1").arg(m_reader.number());
        EmitItem item;
        Status status =
            m_reader.tooLong()
                ? Status(Exit::BadInput, QStringLiteral("the line"),
                         QStringLiteral("is longer than %1 bytes").arg(longestBatchLine))
                : parseEmitItem(line, &item);
        m_slots.emplace_back();
        Slot& slot = m_slots.back();
        slot.name = item.name;
        if (status.ok()) {
            status = checkItemName(item.name);
            if (status.ok() && !m_names.insert(item.name)) {
                status = {Exit::Refused, QStringLiteral("name \"%1\"").arg(item.name),
                          QStringLiteral("an earlier line has it")};
            }
        }
        if (!status.ok()) {
            fail(slot, m_batch.input,
                 QStringLiteral("%1, %2: %3").arg(place, status.what(), status.why()), item);
            return true;
        }
        return m_pool.submit(m_firstJob + static_cast<qint64>(m_slots.size()) - 1, line);
    }

    static void fail(Slot& slot, const QString& what, const QString& why, const EmitItem& item) {
        EmitReport report;
        report.name = slot.name;
        report.script = item.script;
        report.options = item.options;
        report.error = oneLine(why);
        slot.report = Utils::writeJson(report.document(), Utils::JsonForm::Compact);
        slot.what = what;
        slot.why = why;
        slot.done = true;
    }

    void receive() {
        for (const WorkerPool::Answer& answer : m_pool.wait()) {
            Slot& slot = m_slots[static_cast<std::size_t>(answer.job - m_firstJob)];
            if (answer.died || answer.line.size() < 2) {
                fail(slot, slot.name, answer.reason, EmitItem());
                continue;
            }
            slot.ok = answer.line.at(0) == workerDone;
            slot.report = answer.line.mid(1);
            slot.done = true;
        }
    }

    /// Writes what is done, as far as everything before it is.
    void flushSlots() {
        while (!m_slots.empty() && m_slots.front().done) {
            const Slot& slot = m_slots.front();
            m_report.write(slot.report + '\n');
            if (!slot.ok) {
                m_failed = true;
                tell(slot);
            }
            m_slots.pop_front();
            ++m_firstJob;
        }
    }

    void tell(const Slot& slot) {
        if (!slot.why.isEmpty()) {
            m_context.tell(slot.what, slot.why);
            return;
        }
        QVariant report;
        Utils::JsonError error;
        if (Utils::parseJson(slot.report, &report, &error)) {
            // The text is "WHAT: WHY" on one line already.
            const QString text = report.toMap().value(QStringLiteral("error")).toString();
            const int colon = text.indexOf(QLatin1String(": "));
            m_context.tell(text.left(colon), text.mid(colon + 2));
        }
    }

    Context& m_context;
    const EmitBatch& m_batch;
    LineReader m_reader;
    Utils::FileReplacement m_report;
    WorkerPool m_pool;
    NameSet m_names;
    std::deque<Slot> m_slots;
    qint64 m_firstJob = 0; ///< of the front slot
    bool m_failed = false;
};

} // namespace

Exit runEmitBatch(Context& context, const EmitBatch& batch) {
    const int input = ::open(QFile::encodeName(batch.input).constData(), O_RDONLY | O_CLOEXEC);
    if (input < 0) {
        const std::string why = std::generic_category().message(errno);
        return context.tell(
            {Exit::BadInput, batch.input,
             QStringLiteral("cannot read: ") + QString::fromLocal8Bit(why.c_str())});
    }
    if (!QDir().mkpath(batch.out)) {
        ::close(input);
        return context.tell({Exit::BadOutput, batch.out, QStringLiteral("cannot make the folder")});
    }
    const Exit exit = BatchRun(context, batch, input).run();
    ::close(input);
    return exit;
}

} // namespace Ipgen
