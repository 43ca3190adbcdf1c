#pragma once

#include <QProcess>

#include <functional>

namespace IPSERDESIP {

/// One run of the synthesis program in a process group of its own: ending it ends what it has
/// started too, and it does not outlive this program.
class SynthesisProcess : public QProcess {
public:
    enum class End { Done, Missing, Failed, Crashed, Cancelled, TimedOut };
    struct Outcome {
        End end = End::Done;
        QString detail;          ///< the system's words, or the exit code
        double milliseconds = 0; ///< from start to end
    };

    /// Starts the program and waits for it with the event loop running.
    /// @param line       called with each line of its standard output
    /// @param timeLimit  seconds
    Outcome run(const QString& program, const QStringList& arguments, const QString& folder,
                int timeLimit, const std::function<void(const QByteArray&)>& line);
    /// Ends the run; it is then reported as cancelled.
    void stop();

protected:
    void setupChildProcess() override;

private:
    void killGroup();
    End m_reason = End::Done;
};

} // namespace IPSERDESIP
