#include "netlistflow.h"

#include "serdesip/baseprotocol.h"
#include "serdesip/message.h"
#include "serdesip/serdes.h"
#include "synthesisprocess.h"

#include <utils/filereplace.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <dlfcn.h>
#include <memory>
#include <unistd.h>

namespace IPSERDESIP {

namespace {

using Failure = NetlistRun::Failure;

const QString primitivesFile = QStringLiteral("xcvr_primitives.v");
const QString logFile = QStringLiteral("yosys.log");
const QString jsonSuffix = QStringLiteral("_netlist.json");
const QString verilogSuffix = QStringLiteral("_netlist.v");
constexpr char progressMark[] = "netlist-step ";

struct Step {
    const char* what;
    const char* commands; ///< %m: the module, %f: the RTL files, %o: the option commands
};

// The steps of the synthesis program's script.
// clang-format off
constexpr Step steps[] = {
    {"read the RTL",      "read_verilog -lib xcvr_primitives.v\nread_verilog %f\n"},
    {"elaborate",         "hierarchy -check -top %m\n%o"},
    {"synthesise",        "synth -flatten -top %m\n"},
    {"check",             "check -assert\n"},
    {"write the netlist", "write_json netlist.json\nwrite_verilog netlist.v\n"},
};
// clang-format on
constexpr int stepCount = static_cast<int>(std::size(steps));

/// The host's data lies at the same place relative to this library in a build and when installed.
QString hostPrimitives() {
    Dl_info where{};
    if (::dladdr(reinterpret_cast<const void*>(&hostPrimitives), &where) == 0) {
        return {};
    }
    const QDir lib = QFileInfo(QFile::decodeName(where.dli_fname)).absoluteDir();
    return QDir::cleanPath(lib.filePath(QStringLiteral("../share/ipgen/host/primitives")));
}

QString shortened(const QString& text) {
    constexpr int limit = 60;
    return text.size() <= limit ? text : text.left(limit) + QStringLiteral("...");
}

/// The last line of the log that tells of an error.
QString errorInLog(const QString& path) {
    QByteArray log;
    if (!Utils::readFile(path, &log)) {
        return {};
    }
    QByteArray error;
    for (const QByteArray& line : log.split('\n')) {
        if (line.contains("ERROR:")) {
            error = line;
        }
    }
    return QString::fromUtf8(error).trimmed();
}

/// Removes the working folders of programs that were killed.
void sweepWorkFolders(const QString& folder) {
    const QStringList entries =
        QDir(folder).entryList({QStringLiteral(".netlist-*")}, QDir::Dirs | QDir::Hidden);
    for (const QString& entry : entries) {
        const pid_t owner = entry.section(QLatin1Char('-'), 1, 1).toInt();
        if (owner > 0 && ::kill(owner, 0) != 0 && errno == ESRCH) {
            QDir(folder + QLatin1Char('/') + entry).removeRecursively();
        }
    }
}

bool endsWhole(const QByteArray& bytes, const char* end) {
    return bytes.endsWith(end);
}

} // namespace

bool NetlistFlow::run(const Request& request, QString* text) {
    static bool running = false;
    m_run.m_failure = Failure::None;
    m_run.m_toolTime = 0.0;
    Stop stop;
    if (running) {
        stop = {Failure::Refused, QStringLiteral("another netlist generation is under way")};
    } else {
        running = true;
        const auto over = qScopeGuard([] { running = false; });
        stop = check(request);
        if (stop.none()) {
            sweepWorkFolders(m_instanceFolder);
            QTemporaryDir work(m_instanceFolder +
                               QStringLiteral("/.netlist-%1-XXXXXX").arg(::getpid()));
            m_workFolder = work.path();
            if (!work.isValid()) {
                stop = {Failure::Output, QStringLiteral("%1: no working folder can be made: %2")
                                             .arg(m_instanceFolder, work.errorString())};
            }
            stop = stop.none() ? collect(request) : stop;
            stop = stop.none() ? synthesise() : stop;
            stop = stop.none() ? putInPlace() : stop;
        }
    }
    m_run.m_failure = stop.kind;
    *text =
        stop.none() ? m_instanceFolder + QLatin1Char('/') + m_module + verilogSuffix : stop.reason;
    return stop.none();
}

NetlistFlow::Stop NetlistFlow::check(const Request& request) {
    auto* const protocol = qobject_cast<BaseProtocol*>(request.parent);
    const std::unique_ptr<Message> message(
        protocol != nullptr ? protocol->resourceMessage(request.config) : nullptr);
    if (message == nullptr) {
        return {Failure::Refused, QStringLiteral("the IP does not name its file and module")};
    }
    const auto refuse = [](const QString& kind, const QString& name, const QString& flaw) {
        return Stop{Failure::Refused,
                    QStringLiteral("%1 \"%2\": %3").arg(kind, shortened(name), flaw)};
    };
    m_module = message->module;
    const QString moduleFlaw = moduleNameFlaw(m_module);
    if (!moduleFlaw.isEmpty()) {
        return refuse(QStringLiteral("module name"), m_module, moduleFlaw);
    }
    const QString fileFlaw = fileNameFlaw(message->file);
    if (!fileFlaw.isEmpty()) {
        return refuse(QStringLiteral("file name"), message->file, fileFlaw);
    }
    for (const QString& file : request.files + QStringList(request.folder)) {
        const QString flaw = fileNameFlaw(file);
        if (!flaw.isEmpty()) {
            return refuse(QStringLiteral("file name"), file, flaw);
        }
    }
    m_instanceFolder = serdes::instance()->workingDir() + QLatin1Char('/') + message->file +
                       QStringLiteral("/temp/") + request.folder;
    if (m_run.m_cancelled) {
        return {Failure::Cancelled, QStringLiteral("the netlist generation was cancelled")};
    }
    Stop options = checkOptions();
    if (!options.none()) {
        return options;
    }
    m_program = QStandardPaths::findExecutable(m_run.program.isEmpty() ? QStringLiteral("yosys")
                                                                       : m_run.program);
    if (m_program.isEmpty()) {
        return {Failure::Tool,
                QStringLiteral("the synthesis program \"%1\" is not installed or cannot be run")
                    .arg(m_run.program.isEmpty() ? QStringLiteral("yosys") : m_run.program)};
    }
    return {};
}

// "-<module><Key> <value>": the key an identifier, the value a word.
NetlistFlow::Stop NetlistFlow::checkOptions() {
    const QString prefix = QLatin1Char('-') + m_module;
    for (const QString& line : m_run.options != nullptr ? *m_run.options : QStringList()) {
        const int blank = line.indexOf(QLatin1Char(' '));
        const QString key = line.mid(prefix.size(), blank - prefix.size());
        const QString value = line.mid(blank + 1);
        // The rule of file names holds every value that options have; none may be left out.
        if (!line.startsWith(prefix) || blank < 0 || !moduleNameFlaw(key).isEmpty() ||
            !fileNameFlaw(value).isEmpty()) {
            return {Failure::Refused,
                    QStringLiteral("option \"%1\": an option is \"%2\", a key, a blank and a value")
                        .arg(shortened(line), prefix)};
        }
        m_options.append({key, value});
    }
    return {};
}

// Brings together what the run reads: the primitives, the IP's RTL, the generated files.
NetlistFlow::Stop NetlistFlow::collect(const Request& request) {
    const QString primitives = m_run.primitives.isEmpty() ? hostPrimitives() : m_run.primitives;
    const QString rtl = request.info.value(QStringLiteral("ipcore.dir.data")).toString();
    for (const QString& folder : {primitives, rtl, m_instanceFolder}) {
        Stop stop = collectFolder(folder);
        if (!stop.none()) {
            return stop;
        }
    }
    for (const QString& file : request.files + QStringList(primitivesFile)) {
        if (!QFileInfo::exists(m_workFolder + QLatin1Char('/') + file)) {
            return {Failure::Refused, QStringLiteral("the RTL file %1/%2 is missing")
                                          .arg(file == primitivesFile ? primitives : rtl, file)};
        }
    }
    m_files = request.files;
    return {};
}

NetlistFlow::Stop NetlistFlow::collectFolder(const QString& folder) {
    const QFileInfoList entries =
        QDir(folder).entryInfoList({QStringLiteral("*.v"), QStringLiteral("*.vh")}, QDir::Files);
    for (const QFileInfo& entry : entries) {
        if (entry.fileName().endsWith(verilogSuffix)) {
            continue; // a former run's
        }
        const QString copy = m_workFolder + QLatin1Char('/') + entry.fileName();
        QFile::remove(copy);
        // A link is enough, and a copy where the file system has none.
        QFile source(entry.filePath());
        if (!QFile::link(entry.absoluteFilePath(), copy) && !source.copy(copy)) {
            return {Failure::Output, QStringLiteral("%1: cannot be copied: %2")
                                         .arg(entry.filePath(), source.errorString())};
        }
    }
    return {};
}

QByteArray NetlistFlow::script(const QStringList& files) const {
    QByteArray attributes;
    for (const auto& option : m_options) {
        attributes += "setattr -mod -set " + option.first.toLatin1() + " \"" +
                      option.second.toLatin1() + "\" " + m_module.toLatin1() + '\n';
    }
    QByteArray text;
    for (int i = 0; i < stepCount; ++i) {
        text += "log -stdout " + QByteArray(progressMark) + QByteArray::number(i + 1) + '\n';
        QByteArray commands(steps[i].commands);
        commands.replace("%f", files.join(QLatin1Char(' ')).toLatin1());
        commands.replace("%m", m_module.toLatin1());
        commands.replace("%o", attributes);
        text += commands;
    }
    return text;
}

void NetlistFlow::report(const QByteArray& line) {
    if (!line.startsWith(progressMark) || !m_run.progress) {
        return;
    }
    const int step = line.mid(static_cast<int>(sizeof(progressMark)) - 1).trimmed().toInt();
    if (step >= 1 && step <= stepCount) {
        m_run.progress({step, stepCount, QString::fromLatin1(steps[step - 1].what)});
    }
}

NetlistFlow::Stop NetlistFlow::synthesise() {
    const Utils::FileResult written =
        Utils::replaceFile(m_workFolder + QStringLiteral("/netlist.ys"), script(m_files));
    if (!written) {
        return {Failure::Output, written.path + QStringLiteral(": ") + written.reason};
    }
    SynthesisProcess process;
    m_run.m_stop = [&process] { process.stop(); };
    const auto unhook = qScopeGuard([this] { m_run.m_stop = nullptr; });
    const SynthesisProcess::Outcome outcome = process.run(
        m_program,
        {QStringLiteral("-q"), QStringLiteral("-l"), logFile, QStringLiteral("-s"),
         QStringLiteral("netlist.ys")},
        m_workFolder, m_run.timeLimit, [this](const QByteArray& line) { report(line); });
    m_run.m_toolTime = outcome.milliseconds;
    keepLog();

    const QString log = m_instanceFolder + QLatin1Char('/') + logFile;
    const QString name = QFileInfo(m_program).fileName();
    switch (outcome.end) {
    case SynthesisProcess::End::Done:
        return {};
    case SynthesisProcess::End::Missing:
        return {Failure::Tool,
                QStringLiteral("%1 cannot be started: %2").arg(m_program, outcome.detail)};
    case SynthesisProcess::End::Failed: {
        const QString error = errorInLog(log);
        return {
            Failure::Tool,
            QStringLiteral("%1 failed: %2; its log is %3")
                .arg(name,
                     error.isEmpty() ? QStringLiteral("exit status %1").arg(outcome.detail) : error,
                     log)};
    }
    case SynthesisProcess::End::Crashed:
        return {Failure::Tool,
                QStringLiteral("%1 was killed or crashed; its log is %2").arg(name, log)};
    case SynthesisProcess::End::Cancelled:
        return {Failure::Cancelled, QStringLiteral("the netlist generation was cancelled")};
    case SynthesisProcess::End::TimedOut:
        return {Failure::Tool,
                QStringLiteral("%1 took longer than %2 s and was ended; its log is %3")
                    .arg(name)
                    .arg(m_run.timeLimit)
                    .arg(log)};
    }
    return {};
}

// The log is for reading only: a run does not fail over it.
void NetlistFlow::keepLog() const {
    const QByteArray from = QFile::encodeName(m_workFolder + QLatin1Char('/') + logFile);
    const QByteArray to = QFile::encodeName(m_instanceFolder + QLatin1Char('/') + logFile);
    if (QFileInfo(m_workFolder + QLatin1Char('/') + logFile).isFile()) {
        static_cast<void>(std::rename(from.constData(), to.constData()));
    }
}

// The program does not notice a full disk: only files that end as they should are taken. The pair
// is either both new or both old, as far as two files can be.
NetlistFlow::Stop NetlistFlow::putInPlace() {
    struct File {
        QString name;
        QString suffix;
        const char* end;
        QByteArray bytes;
        QByteArray former;
        bool existed = false;
    };
    File files[] = {{QStringLiteral("netlist.json"), jsonSuffix, "\n}\n", {}, {}, false},
                    {QStringLiteral("netlist.v"), verilogSuffix, "\nendmodule\n", {}, {}, false}};
    const QString base = m_instanceFolder + QLatin1Char('/') + m_module;
    for (File& file : files) {
        const Utils::FileResult read =
            Utils::readFile(m_workFolder + QLatin1Char('/') + file.name, &file.bytes);
        if (!read || !endsWhole(file.bytes, file.end)) {
            return {Failure::Output,
                    QStringLiteral("%1: the netlist is incomplete; is the disk full?")
                        .arg(base + file.suffix)};
        }
        file.existed = QFileInfo::exists(base + file.suffix);
        if (file.existed) {
            Utils::readFile(base + file.suffix, &file.former);
        }
    }
    for (int i = 0; i < 2; ++i) {
        const Utils::FileResult placed = Utils::replaceFile(base + files[i].suffix, files[i].bytes);
        if (!placed) {
            if (i == 1 && files[0].existed) {
                Utils::replaceFile(base + files[0].suffix, files[0].former);
            } else if (i == 1) {
                QFile::remove(base + files[0].suffix);
            }
            return {Failure::Output, placed.path + QStringLiteral(": ") + placed.reason};
        }
    }
    return {};
}

} // namespace IPSERDESIP
