#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <sys/types.h>
#include <vector>

namespace Ipgen {

/// Processes of this program that answer a line with a line. One that dies is replaced.
class WorkerPool {
public:
    /// An answer, or the death of the worker that should have given it.
    struct Answer {
        qint64 job = 0;
        bool died = false;
        QByteArray line; ///< without its line feed
        QString reason;  ///< how the worker died
    };

    /// @param arguments  of the program, for its work as a worker
    /// @param ready      the first line that a worker writes
    WorkerPool(int workers, const QStringList& arguments, const QByteArray& ready);
    /// Ends the workers and waits for them.
    ~WorkerPool();
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    bool hasIdle() const;
    /// Gives a line to an idle worker; job is handed back with its answer. False: no worker can
    /// be started; error() says why.
    bool submit(qint64 job, const QByteArray& line);
    /// Waits until at least one worker has answered or died.
    std::vector<Answer> wait();
    const QString& error() const { return m_error; }

private:
    struct Worker {
        pid_t pid = -1;
        int in = -1;
        int out = -1;
        QByteArray buffer;
        qint64 job = -1; ///< -1: idle
    };

    bool start(Worker& worker);
    /// Ends it and says how it ended.
    static QString stop(Worker& worker);
    static bool readSome(Worker& worker);
    static bool takeLine(Worker& worker, QByteArray* line);

    std::vector<QByteArray> m_arguments;
    QByteArray m_ready;
    std::vector<Worker> m_workers;
    QString m_error;
};

} // namespace Ipgen
