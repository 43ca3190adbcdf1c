#include "ipgen/window/toolrun.h"

#include "ipgen/window/named.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

namespace Window {

ToolRun::ToolRun(QWidget* window)
    : m_window(window) {}

ToolRun::Outcome ToolRun::run(const QString& title, const QStringList& arguments) {
    constexpr int beat = 1000; // ms
    Outcome outcome;
    QProgressDialog progress(title, tr("Cancel"), 0, 0, m_window);
    progress.setObjectName(QStringLiteral("progress"));
    progress.setWindowModality(Qt::WindowModal);
    progress.setWindowTitle(tr("Working"));
    progress.setMinimumDuration(300);
    progress.setAutoClose(false);
    auto* cancel = named(new QPushButton(tr("Cancel"), &progress), "progressCancel", tr("Cancel"));
    progress.setCancelButton(cancel);
    QEventLoop loop;
    connect(&m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
            &QEventLoop::quit);
    connect(&m_process, &QProcess::errorOccurred, &loop, [&](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            loop.quit();
        }
    });
    connect(&progress, &QProgressDialog::canceled, this, &ToolRun::stop);
    QElapsedTimer since;
    since.start();
    QTimer clock;
    connect(&clock, &QTimer::timeout, this,
            [&] { progress.setLabelText(tr("%1\n%2 s").arg(title).arg(since.elapsed() / beat)); });
    clock.start(beat);
    progress.show();
    m_process.start(QCoreApplication::applicationFilePath(), arguments, QIODevice::ReadOnly);
    loop.exec();
    outcome.cancelled = m_cancelled;
    outcome.output = QString::fromUtf8(m_process.readAllStandardOutput());
    outcome.errors = QString::fromUtf8(m_process.readAllStandardError());
    if (m_process.error() == QProcess::FailedToStart) {
        outcome.errors = m_process.errorString();
        outcome.exitCode = -1;
    } else {
        outcome.exitCode =
            m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }
    return outcome;
}

void ToolRun::stop() {
    constexpr int patience = 3000; // ms
    m_cancelled = true;
    m_process.terminate();
    QTimer::singleShot(patience, &m_process, &QProcess::kill);
}

} // namespace Window
