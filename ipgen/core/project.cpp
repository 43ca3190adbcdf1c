#include "ipgen/core/project.h"

#include "ipgen/core/catalogue.h"
#include "ipgen/core/installation.h"
#include "ipgen/core/projectfile.h"

#include <ipcore/ipcore.h>
#include <serdesip/message.h>
#include <serdesip/serdes.h>
#include <utils/filereplace.h>
#include <utils/jsontext.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>

namespace Ipgen {

namespace {

const QString formatKey = QStringLiteral("format");
const QString deviceKey = QStringLiteral("device");
const QString instancesKey = QStringLiteral("instances");
const QString dataKey = QStringLiteral("data");
const QString ipKey = QStringLiteral("ip");
const QString configKey = QStringLiteral("config");
const QString copiedFromKey = QStringLiteral("copiedFrom");

QString systemText(int error) {
    return QString::fromLocal8Bit(std::generic_category().message(error).c_str());
}

/// Held while the project file is read, merged and written: an advisory lock on the folder
/// itself, which leaves nothing behind and ends with the process.
class FolderLock {
public:
    explicit FolderLock(const QString& folder)
        : m_fd(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        constexpr qint64 patience = 10000; // ms; a save takes some of them
        constexpr unsigned long pause = 20;
        if (m_fd < 0) {
            m_error = systemText(errno);
            return;
        }
        QElapsedTimer clock;
        clock.start();
        while (::flock(m_fd, LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK && errno != EINTR) {
                return; // a file system without locks: saving is still whole or not at all
            }
            if (clock.elapsed() > patience) {
                m_error = QStringLiteral("another program is saving this project and does not "
                                         "finish; nothing was saved");
                return;
            }
            QThread::msleep(pause);
        }
    }
    ~FolderLock() {
        if (m_fd >= 0) {
            ::close(m_fd);
        }
    }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    const QString& error() const { return m_error; }

private:
    int m_fd;
    QString m_error;
};

QString fileIn(const QString& folder) {
    return folder + QStringLiteral("/project.json");
}

QString absolute(const QString& folder) {
    return QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
}

ProjectInstance instanceOf(const QVariant& saved) {
    const QVariantMap map = saved.toMap();
    return {map.value(ipKey).toString(), map.value(configKey).toMap()};
}

Status writeProject(const QString& path, const QVariantMap& document) {
    const Utils::FileResult written = Utils::replaceFile(path, Utils::writeJson(document));
    return written.ok ? Status() : Status(Exit::BadOutput, path, written.reason);
}

} // namespace

Status Project::make(const QString& folder, const DEV::DeviceArg& device, Project* project) {
    if (folder.isEmpty()) {
        return {Exit::Usage, QStringLiteral("project folder"), QStringLiteral("the name is empty")};
    }
    Project fresh;
    fresh.m_folder = absolute(folder);
    if (!QDir().mkpath(fresh.m_folder)) {
        return {Exit::BadOutput, fresh.m_folder, QStringLiteral("cannot make the folder")};
    }
    const FolderLock lock(fresh.m_folder);
    if (!lock.error().isEmpty()) {
        return {Exit::BadOutput, fresh.m_folder, lock.error()};
    }
    const QFileInfo file(fresh.file());
    if (file.exists() || file.isSymLink()) {
        return {Exit::Refused, fresh.file(), QStringLiteral("is a project already")};
    }
    fresh.m_now = {{formatKey, 1},
                   {deviceKey, device.id()},
                   {instancesKey, QVariantMap()},
                   {dataKey, QVariantMap()}};
    fresh.m_base = fresh.m_now;
    const Status written = writeProject(fresh.file(), fresh.m_now);
    if (written.ok()) {
        *project = fresh;
    }
    return written;
}

Status Project::load(const QString& folder, Project* project) {
    Project loaded;
    loaded.m_folder = absolute(folder);
    const Status read = readProjectFile(loaded.file(), &loaded.m_now);
    if (read.ok()) {
        loaded.m_base = loaded.m_now;
        *project = loaded;
    }
    return read;
}

QString Project::file() const {
    return fileIn(m_folder);
}

QString Project::workingDir() const {
    return m_folder + QStringLiteral("/transceiver");
}

QString Project::deviceName() const {
    return m_now.value(deviceKey).toString();
}

void Project::setDeviceName(const QString& name) {
    m_now.insert(deviceKey, name);
    m_touched = true;
}

QVariantMap Project::instances() const {
    return m_now.value(instancesKey).toMap();
}

void Project::setInstances(const QVariantMap& all) {
    m_now.insert(instancesKey, all);
    m_touched = true;
}

QStringList Project::instanceNames() const {
    return instances().keys();
}

bool Project::hasInstance(const QString& name) const {
    return instances().contains(name);
}

ProjectInstance Project::instance(const QString& name) const {
    return instanceOf(instances().value(name));
}

void Project::setInstance(const QString& name, const ProjectInstance& instance) {
    QVariantMap all = instances();
    QVariantMap saved = all.value(name).toMap();
    saved.insert(ipKey, instance.ip);
    saved.insert(configKey, instance.config);
    saved.remove(copiedFromKey);
    all.insert(name, saved);
    setInstances(all);
}

void Project::removeInstance(const QString& name) {
    QVariantMap all = instances();
    all.remove(name);
    setInstances(all);
}

void Project::copyInstance(const QString& name, const QString& copy) {
    QVariantMap saved = savedInstance(name);
    if (!saved.contains(copiedFromKey)) { // a copy of a copy waits for the same
        saved.insert(copiedFromKey, name);
    }
    putSavedInstance(copy, saved);
}

QString Project::copiedFrom(const QString& name) const {
    return savedInstance(name).value(copiedFromKey).toString();
}

Status Project::checkConfigured(const QString& name) const {
    const QString original = copiedFrom(name);
    return original.isEmpty()
               ? Status()
               : Status(Exit::Refused, name,
                        QStringLiteral("is a copy of %1 that was not configured yet: open it, "
                                       "give it lanes and a file name of its own, and accept it")
                            .arg(original));
}

QVariantMap Project::savedInstance(const QString& name) const {
    return instances().value(name).toMap();
}

void Project::putSavedInstance(const QString& name, const QVariantMap& saved) {
    QVariantMap all = instances();
    if (saved.isEmpty()) {
        all.remove(name);
    } else {
        all.insert(name, saved);
    }
    setInstances(all);
}

void Project::renameInstance(const QString& from, const QString& to) {
    QVariantMap all = instances();
    if (all.contains(from) && !all.contains(to)) {
        all.insert(to, all.take(from));
        setInstances(all);
    }
}

Status Project::checkInstanceName(const QString& name) {
    constexpr int longest = 200;
    const auto refused = [&](const QString& why) {
        return Status(Exit::Refused, QStringLiteral("instance name \"%1\"").arg(name.left(longest)),
                      why);
    };
    if (name.isEmpty()) {
        return refused(QStringLiteral("the name is empty"));
    }
    if (name.size() > longest) {
        return refused(QStringLiteral("the name has more than %1 characters").arg(longest));
    }
    if (name != oneLine(name)) {
        return refused(QStringLiteral("the name has a control character"));
    }
    if (name.trimmed() != name) {
        return refused(QStringLiteral("the name begins or ends with a blank"));
    }
    if (name.startsWith(QLatin1Char('-'))) {
        return refused(QStringLiteral("the name begins like an option, with \"-\""));
    }
    return {};
}

Status Project::checkKnown(const QString& name) const {
    if (hasInstance(name)) {
        return {};
    }
    const QStringList names = instanceNames();
    return {Exit::Refused, name,
            names.isEmpty() ? QStringLiteral("no such instance; the project has none")
                            : QStringLiteral("no such instance; the project has: %1")
                                  .arg(names.join(QStringLiteral(", ")))};
}

Status Project::select(QStringList* names) const {
    for (const QString& name : qAsConst(*names)) {
        const Status known = checkKnown(name);
        if (!known.ok()) {
            return known;
        }
    }
    names->removeDuplicates();
    if (names->isEmpty()) {
        *names = instanceNames();
    }
    return {};
}

QVariantMap Project::data() const {
    return m_now.value(dataKey).toMap();
}

void Project::setData(const QVariantMap& data) {
    m_now.insert(dataKey, data);
    m_touched = true;
}

bool Project::sameAs(const Project& other) const {
    return Utils::writeJson(m_now, Utils::JsonForm::Compact) ==
           Utils::writeJson(other.m_now, Utils::JsonForm::Compact);
}

bool Project::changed() const {
    return m_touched && Utils::writeJson(m_now, Utils::JsonForm::Compact) !=
                            Utils::writeJson(m_base, Utils::JsonForm::Compact);
}

Status Project::save() {
    const FolderLock lock(m_folder);
    if (!lock.error().isEmpty()) {
        return {Exit::BadOutput, m_folder, lock.error()};
    }
    QVariantMap theirs;
    const Status read = readProjectFile(file(), &theirs);
    if (!read.ok()) {
        return read;
    }
    QVariantMap merged;
    const Status status = mergeProjects(m_base, m_now, theirs, &merged);
    if (!status.ok()) {
        return status;
    }
    const Status written = writeProject(file(), merged);
    if (written.ok()) {
        m_now = merged;
        m_base = merged;
        m_touched = false;
    }
    return written;
}

Status Project::openInModel(const Catalogue& catalogue, QList<Status>* skipped) const {
    DEV::DeviceArg device;
    const Status known = findDevice(deviceName(), &device);
    if (!known.ok()) {
        return {Exit::BadInput, file(), known.text()};
    }
    IPSERDESIP::serdes* model = IPSERDESIP::serdes::instance();
    model->openProject(device, workingDir(), data());
    model->clearDataChanged();
    IPCore::setOutputRoot(workingDir());
    const QVariantMap all = instances();
    for (auto it = all.constBegin(); it != all.constEnd(); ++it) {
        const QString& name = it.key();
        const ProjectInstance one = instanceOf(it.value());
        const CatalogueEntry* entry = nullptr;
        const Status offered = catalogue.pick(one.ip, &entry);
        if (!offered.ok()) {
            if (skipped != nullptr) {
                skipped->append({Exit::BadInput, name, offered.text()});
            }
            continue;
        }
        if (!copiedFrom(name).isEmpty()) {
            continue; // holds nothing of its own yet
        }
        entry->protocol->setDevice(device);
        const std::unique_ptr<IPSERDESIP::Message> message(
            entry->protocol->resourceMessage(one.config));
        if (message) {
            model->setMessage(name, *message);
        }
    }
    return {};
}

void Project::takeModelData() {
    IPSERDESIP::serdes* model = IPSERDESIP::serdes::instance();
    if (model->dataChanged()) {
        setData(model->globalData());
        model->clearDataChanged();
    }
}

} // namespace Ipgen
