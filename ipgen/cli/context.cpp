#include "ipgen/cli/context.h"

#include "ipgen/cli/arguments.h"
#include "ipgen/core/installation.h"

#include <core/viewmanager.h>
#include <utils/jsontext.h>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace Ipgen {

Context::Context()
    : m_standardOutput(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1)) {
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    Core::ViewManager::setErrorSink(
        [this](const QString& what, const QString& why) { tell(what, why); });
}

Context::~Context() {
    Core::ViewManager::setErrorSink({});
    if (m_standardOutput >= 0) {
        ::close(m_standardOutput);
    }
}

QString Context::standardOutputPath() const {
    return QStringLiteral("/dev/fd/%1").arg(m_standardOutput);
}

const Catalogue& Context::catalogue() {
    if (!m_catalogue) {
        m_catalogue = Catalogue::load(m_pluginFolders);
        for (const PluginProblem& problem : m_catalogue->problems()) {
            if (!m_quietOnPlugins) {
                tell(problem.path, problem.reason);
            }
        }
    }
    return *m_catalogue;
}

Status Context::devices() {
    if (!m_devices) {
        m_devices = loadDevices();
    }
    return *m_devices;
}

Status Context::openProject(const std::string& folder, Project* project) {
    const Status loaded = devices();
    return loaded.ok() ? Project::load(fromArgument(folder), project) : loaded;
}

Status Context::openProjectInModel(const std::string& folder, Project* project, bool tellSkipped) {
    Status loaded = openProject(folder, project);
    if (!loaded.ok()) {
        return loaded;
    }
    QList<Status> skipped;
    Status opened = project->openInModel(catalogue(), tellSkipped ? &skipped : nullptr);
    for (const Status& one : qAsConst(skipped)) {
        tell(one);
    }
    return opened;
}

Status Context::openInstance(const std::string& folder, const QString& name, Project* project,
                             const CatalogueEntry** entry) {
    Status opened = openProjectInModel(folder, project);
    if (opened.ok()) {
        opened = project->checkKnown(name);
    }
    if (opened.ok()) {
        opened = catalogue().pick(project->instance(name).ip, entry);
    }
    return opened;
}

void Context::printJson(const QVariant& document) {
    m_output += Utils::writeJson(document);
}

Exit Context::flush() {
    const char* data = m_output.constData();
    auto left = static_cast<std::size_t>(m_output.size());
    while (left > 0) {
        const ssize_t done = ::write(m_standardOutput, data, left);
        if (done < 0 && errno == EINTR) {
            continue;
        }
        if (done <= 0) {
            const std::string why = std::generic_category().message(errno);
            m_output.clear();
            return tell({Exit::BadOutput, QStringLiteral("standard output"),
                         QStringLiteral("cannot write: ") + QString::fromLocal8Bit(why.c_str())});
        }
        data += done;
        left -= static_cast<std::size_t>(done);
    }
    m_output.clear();
    return Exit::Done;
}

void Context::tell(const QString& what, const QString& why) {
    const QByteArray line = (QStringLiteral("ipgen: ") + oneLine(what) + QStringLiteral(": ") +
                             oneLine(why) + QLatin1Char('\n'))
                                .toUtf8();
    // One write: lines of several processes do not mix.
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    std::fflush(stderr);
}

Exit Context::tell(const Status& status) {
    tell(status.what(), status.why());
    return status.code();
}

} // namespace Ipgen
