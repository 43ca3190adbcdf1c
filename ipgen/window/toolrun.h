#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QStringList>

class QProgressDialog;
class QWidget;

namespace Window {

/// Runs this program's own command line in a process of its own, behind a dialog that can cancel
/// it: the window stays alive, and the work is that of the command line to the letter.
class ToolRun : public QObject {
    Q_OBJECT

public:
    struct Outcome {
        bool cancelled = false;
        int exitCode = 0;
        QString output;
        QString errors;
    };

    explicit ToolRun(QWidget* window);
    /// Returns when the program has ended; events are handled meanwhile.
    Outcome run(const QString& title, const QStringList& arguments);

private:
    void stop();

    QWidget* m_window;
    QProcess m_process;
    bool m_cancelled = false;
};

} // namespace Window
