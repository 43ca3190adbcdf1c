#include "ipgen/cli/workerpool.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

extern char** environ; // NOLINT(readability-redundant-declaration): not in every libc's header

namespace Ipgen {

namespace {

void closeFd(int& fd) {
    if (fd >= 0) {
        ::close(std::exchange(fd, -1));
    }
}

QString describeEnd(int status) {
    if (WIFSIGNALED(status)) {
        return QStringLiteral("the worker process was ended by signal %1 (%2)")
            .arg(QString::number(WTERMSIG(status)),
                 QString::fromLocal8Bit(::strsignal(WTERMSIG(status))));
    }
    return QStringLiteral("the worker process crashed, exit status %1").arg(WEXITSTATUS(status));
}

} // namespace

WorkerPool::WorkerPool(int workers, const QStringList& arguments, const QByteArray& ready)
    : m_ready(ready)
    , m_workers(static_cast<std::size_t>(workers)) {
    m_arguments.push_back(QFile::encodeName(QCoreApplication::applicationFilePath()));
    for (const QString& argument : arguments) {
        m_arguments.push_back(QFile::encodeName(argument));
    }
}

WorkerPool::~WorkerPool() {
    for (Worker& worker : m_workers) {
        closeFd(worker.in); // all at once, so that they end side by side
    }
    for (Worker& worker : m_workers) {
        stop(worker);
    }
}

bool WorkerPool::start(Worker& worker) {
    int in[2] = {-1, -1};
    int out[2] = {-1, -1};
    if (::pipe2(in, O_CLOEXEC) != 0 || ::pipe2(out, O_CLOEXEC) != 0) {
        m_error = QString::fromLocal8Bit(std::generic_category().message(errno).c_str());
        closeFd(in[0]);
        closeFd(in[1]);
        return false;
    }
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, in[0], STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    std::vector<char*> arguments;
    for (QByteArray& argument : m_arguments) {
        arguments.push_back(argument.data());
    }
    arguments.push_back(nullptr);
    const int failed =
        ::posix_spawn(&worker.pid, arguments[0], &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(in[0]);
    ::close(out[1]);
    worker.in = in[1];
    worker.out = out[0];
    worker.buffer.clear();
    if (failed != 0) {
        worker.pid = -1;
        m_error = QString::fromLocal8Bit(std::generic_category().message(failed).c_str());
        stop(worker);
        return false;
    }
    QByteArray line;
    while (!takeLine(worker, &line)) {
        if (!readSome(worker)) {
            m_error = stop(worker);
            return false;
        }
    }
    if (line != m_ready) {
        stop(worker);
        m_error = QStringLiteral("the worker process does not say that it is ready");
        return false;
    }
    return true;
}

QString WorkerPool::stop(Worker& worker) {
    closeFd(worker.in);
    closeFd(worker.out);
    worker.job = -1;
    if (worker.pid <= 0) {
        return {};
    }
    int status = 0;
    while (::waitpid(worker.pid, &status, 0) < 0 && errno == EINTR) {
    }
    worker.pid = -1;
    return describeEnd(status);
}

bool WorkerPool::readSome(Worker& worker) {
    char buffer[65536];
    ssize_t done = -1;
    do {
        done = ::read(worker.out, buffer, sizeof buffer);
    } while (done < 0 && errno == EINTR);
    if (done > 0) {
        worker.buffer.append(buffer, static_cast<int>(done));
    }
    return done > 0;
}

bool WorkerPool::takeLine(Worker& worker, QByteArray* line) {
    const int feed = worker.buffer.indexOf('\n');
    if (feed < 0) {
        return false;
    }
    *line = worker.buffer.left(feed);
    worker.buffer.remove(0, feed + 1);
    return true;
}

bool WorkerPool::hasIdle() const {
    return std::any_of(m_workers.begin(), m_workers.end(),
                       [](const Worker& worker) { return worker.job < 0; });
}

bool WorkerPool::submit(qint64 job, const QByteArray& line) {
    const auto idle = std::find_if(m_workers.begin(), m_workers.end(),
                                   [](const Worker& worker) { return worker.job < 0; });
    if (idle == m_workers.end() || (idle->pid < 0 && !start(*idle))) {
        return false;
    }
    const QByteArray bytes = line + '\n';
    int sent = 0;
    while (sent < bytes.size()) {
        const ssize_t done = ::write(idle->in, bytes.constData() + sent,
                                     static_cast<std::size_t>(bytes.size() - sent));
        if (done < 0 && errno != EINTR) {
            break; // it died; wait() finds that out
        }
        sent += done > 0 ? static_cast<int>(done) : 0;
    }
    idle->job = job;
    return true;
}

std::vector<WorkerPool::Answer> WorkerPool::wait() {
    std::vector<pollfd> polled;
    std::vector<Worker*> busy;
    for (Worker& worker : m_workers) {
        if (worker.job >= 0) {
            polled.push_back({worker.out, POLLIN, 0});
            busy.push_back(&worker);
        }
    }
    std::vector<Answer> answers;
    while (answers.empty() && !busy.empty()) {
        if (::poll(polled.data(), polled.size(), -1) < 0) {
            continue;
        }
        for (std::size_t i = 0; i < busy.size(); ++i) {
            if (polled[i].revents == 0) {
                continue;
            }
            Worker& worker = *busy[i];
            Answer answer;
            answer.job = worker.job;
            if (!readSome(worker)) {
                answer.died = true;
                answer.reason = stop(worker);
            } else if (!takeLine(worker, &answer.line)) {
                continue;
            }
            worker.job = -1;
            answers.push_back(answer);
        }
    }
    return answers;
}

} // namespace Ipgen
