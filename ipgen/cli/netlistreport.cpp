#include "ipgen/cli/netlistreport.h"

#include "ipgen/core/status.h"

#include <QSocketNotifier>

#include <csignal>
#include <cstdio>
#include <memory>
#include <sys/socket.h>
#include <unistd.h>

namespace Ipgen {

namespace {

/// Signals arrive as bytes on a socket, where the event loop sees them.
class Interrupts {
public:
    explicit Interrupts(IPSERDESIP::NetlistRun& run) {
        if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, s_sockets) != 0) {
            return;
        }
        m_notifier = std::make_unique<QSocketNotifier>(s_sockets[1], QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                         [this, &run] {
                             m_notifier->setEnabled(false);
                             run.cancel();
                         });
        struct sigaction action = {};
        action.sa_handler = &Interrupts::note;
        action.sa_flags = SA_RESTART;
        ::sigaction(SIGINT, &action, &m_formerInt);
        ::sigaction(SIGTERM, &action, &m_formerTerm);
    }
    ~Interrupts() {
        if (m_notifier) {
            ::sigaction(SIGINT, &m_formerInt, nullptr);
            ::sigaction(SIGTERM, &m_formerTerm, nullptr);
            m_notifier.reset();
            ::close(s_sockets[0]);
            ::close(s_sockets[1]);
        }
    }
    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

private:
    static void note(int /*signal*/) {
        const char byte = 1;
        const auto written = ::write(s_sockets[0], &byte, 1);
        static_cast<void>(written);
    }

    static int s_sockets[2];
    std::unique_ptr<QSocketNotifier> m_notifier;
    struct sigaction m_formerInt = {};
    struct sigaction m_formerTerm = {};
};

int Interrupts::s_sockets[2];

std::unique_ptr<Interrupts>& interrupts() {
    static std::unique_ptr<Interrupts> current;
    return current;
}

} // namespace

NetlistReport::NetlistReport(const QString& name, bool quiet) {
    if (!quiet && ::isatty(STDERR_FILENO) != 0) {
        m_run.progress = [this, name](const IPSERDESIP::NetlistRun::Progress& step) {
            show(QStringLiteral("%1: netlist %2/%3: %4")
                     .arg(oneLine(name))
                     .arg(step.step)
                     .arg(step.steps)
                     .arg(step.what));
        };
    }
    interrupts() = std::make_unique<Interrupts>(m_run);
}

NetlistReport::~NetlistReport() {
    interrupts().reset();
    if (m_shown > 0) {
        show(QString());
    }
}

void NetlistReport::show(const QString& line) {
    std::fprintf(stderr, "\r%s%s%s", qPrintable(line),
                 qPrintable(QString(qMax(0, m_shown - line.size()), QLatin1Char(' '))),
                 line.isEmpty() ? "\r" : "");
    std::fflush(stderr);
    m_shown = line.size();
}

} // namespace Ipgen
