#include "synthesisprocess.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

namespace IPSERDESIP {

void SynthesisProcess::setupChildProcess() {
    // Between fork and exec: system calls only.
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

void SynthesisProcess::killGroup() {
    const qint64 pid = processId();
    if (pid > 0 && state() != NotRunning) {
        ::kill(static_cast<pid_t>(-pid), SIGKILL);
    }
}

void SynthesisProcess::stop() {
    m_reason = End::Cancelled;
    killGroup();
}

SynthesisProcess::Outcome
SynthesisProcess::run(const QString& program, const QStringList& arguments, const QString& folder,
                      int timeLimit, const std::function<void(const QByteArray&)>& line) {
    QEventLoop loop;
    QTimer limit;
    limit.setSingleShot(true);
    const auto readLines = [&] {
        while (canReadLine()) {
            line(readLine());
        }
    };
    connect(this, &QProcess::readyReadStandardOutput, &loop, readLines);
    connect(this, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
            [&] { loop.quit(); });
    connect(this, &QProcess::errorOccurred, &loop, [&](QProcess::ProcessError error) {
        if (error == FailedToStart) {
            m_reason = End::Missing;
            loop.quit();
        }
    });
    connect(&limit, &QTimer::timeout, &loop, [&] {
        m_reason = End::TimedOut;
        killGroup();
    });

    setWorkingDirectory(folder);
    // What goes wrong is in the program's log.
    setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer clock;
    clock.start();
    start(program, arguments, ReadOnly);
    if (m_reason == End::Done && state() != NotRunning) {
        limit.start(timeLimit * 1000);
        loop.exec();
    }

    Outcome outcome;
    outcome.milliseconds = static_cast<double>(clock.nsecsElapsed()) / 1.0e6;
    outcome.end = m_reason;
    outcome.detail = errorString();
    if (m_reason == End::Done && exitStatus() == CrashExit) {
        outcome.end = End::Crashed;
        outcome.detail = QStringLiteral("signal");
    } else if (m_reason == End::Done && exitCode() != 0) {
        outcome.end = End::Failed;
        outcome.detail = QString::number(exitCode());
    }
    return outcome;
}

} // namespace IPSERDESIP
