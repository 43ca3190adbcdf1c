#include "ipgen/window/workbench.h"

#include "ipgen/core/installation.h"
#include "ipgen/window/filehistory.h"
#include "ipgen/window/undo.h"

#include <core/viewmanager.h>
#include <serdesip/serdes.h>

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLockFile>
#include <QMessageBox>
#include <QStandardPaths>

#include <algorithm>
#include <exception>
#include <functional>
#include <utility>

namespace Window {

using Ipgen::Exit;
using Ipgen::Status;

namespace {

/// While it lives, what libraries report to the user is shown over the dialog that is open, once
/// the action that met it is done; what comes when none is open is kept.
class ErrorBoxes {
public:
    ErrorBoxes()
        : m_former(Core::ViewManager::setErrorSink(
              [this](const QString& what, const QString& why) { take(what, why); })) {}
    ~ErrorBoxes() { Core::ViewManager::setErrorSink(std::move(m_former)); }
    ErrorBoxes(const ErrorBoxes&) = delete;
    ErrorBoxes& operator=(const ErrorBoxes&) = delete;

    /// What was not shown.
    QString rest() const { return m_lines.join(QStringLiteral("; ")); }

private:
    void take(const QString& what, const QString& why) {
        m_lines.append(what + QStringLiteral(": ") + why);
        if (QApplication::activeModalWidget() != nullptr && m_lines.size() == 1) {
            QTimer::singleShot(0, &m_context, [this] {
                const QStringList lines = std::exchange(m_lines, {});
                QMessageBox::warning(QApplication::activeModalWidget(), Workbench::tr("Error"),
                                     lines.join(QLatin1Char('\n')));
            });
        }
    }

    QStringList m_lines;
    QObject m_context; ///< for calls to come
    Core::ViewManager::ErrorSink m_former;
};

/// An IP's dialog: its failures become a status, and the library's complaints its reasons. What the
/// user has accepted counts, whatever went wrong before.
Status runDialog(const QString& name, const std::function<IPSERDESIP::ConfigMap()>& dialog,
                 IPSERDESIP::ConfigMap* config) {
    const ErrorBoxes errors;
    try {
        *config = dialog();
    } catch (const std::exception& fault) {
        return {Exit::Fault, name,
                Workbench::tr("the IP threw an exception: %1")
                    .arg(QString::fromLocal8Bit(fault.what()))};
    }
    if (config->isEmpty() && !errors.rest().isEmpty()) {
        return {Exit::Refused, name, errors.rest()};
    }
    return {};
}

} // namespace

Workbench::Workbench(QObject* parent)
    : QObject(parent) {
    constexpr int settleTime = 150; // ms
    m_looker.setInterval(0);
    m_settle.setSingleShot(true);
    m_settle.setInterval(settleTime);
    connect(&m_looker, &QTimer::timeout, this, &Workbench::lookAtSome);
    connect(&m_settle, &QTimer::timeout, this, &Workbench::onFileChanged);
    const auto settle = [this] { m_settle.start(); };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, settle);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, settle);
}

Workbench::~Workbench() = default;

Status Workbench::loadHost(const QStringList& pluginDirs) {
    Status devices = Ipgen::loadDevices();
    m_catalogue = Ipgen::Catalogue::load(pluginDirs);
    m_hostLoaded = true;
    Q_EMIT hostChanged();
    return devices;
}

Status Workbench::newProject(const QString& folder, const QString& device) {
    DEV::DeviceArg found;
    Status known = Ipgen::findDevice(device, &found);
    if (!known.ok()) {
        return known;
    }
    Ipgen::Project project;
    Status made = Ipgen::Project::make(folder, found, &project);
    return made.ok() ? adopt(project) : made;
}

Status Workbench::openProject(const QString& folder) {
    Ipgen::Project project;
    Status loaded = Ipgen::Project::load(folder, &project);
    return loaded.ok() ? adopt(project) : loaded;
}

Status Workbench::adopt(Ipgen::Project project) {
    DEV::DeviceArg device;
    Status known = Ipgen::findDevice(project.deviceName(), &device);
    if (!known.ok()) {
        return {Exit::BadInput, project.file(), known.text()};
    }
    closeProject();
    m_project = std::move(project);
    m_device = device;
    takeLock();
    m_watcher.addPath(m_project->file());
    m_watcher.addPath(m_project->folder());
    Status entered = enterModel();
    rebuildRows();
    Q_EMIT projectChanged();
    return entered;
}

void Workbench::takeLock() {
    // Beside the user's other run-time files: a project folder may be read-only or shared.
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    QDir().mkpath(runtime);
    const QString canonical = QFileInfo(m_project->folder()).canonicalFilePath();
    const QByteArray digest =
        QCryptographicHash::hash(canonical.toUtf8(), QCryptographicHash::Sha1).toHex();
    m_lock = std::make_unique<QLockFile>(runtime + QStringLiteral("/open-") +
                                         QString::fromLatin1(digest) + QStringLiteral(".lock"));
    m_lock->setStaleLockTime(0); // held until its process ends
    m_otherUser.clear();
    if (!m_lock->tryLock(0)) {
        qint64 pid = 0;
        QString host;
        QString program;
        m_otherUser = m_lock->getLockInfo(&pid, &host, &program)
                          ? tr("%1 (process %2)").arg(program).arg(pid)
                          : tr("another program");
        m_lock.reset();
    }
}

void Workbench::closeProject() {
    if (!m_project) {
        return;
    }
    m_looker.stop();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty()) {
        m_watcher.removePaths(watched);
    }
    m_undo.clear();
    m_rows.clear();
    m_project.reset();
    m_device = DEV::DeviceArg();
    m_lock.reset();
    m_otherUser.clear();
    Q_EMIT projectChanged();
}

Status Workbench::reload() {
    if (!m_project) {
        return {};
    }
    Ipgen::Project fresh;
    Status loaded = Ipgen::Project::load(m_project->folder(), &fresh);
    if (!loaded.ok()) {
        return loaded;
    }
    DEV::DeviceArg device;
    Status known = Ipgen::findDevice(fresh.deviceName(), &device);
    if (!known.ok()) {
        return {Exit::BadInput, fresh.file(), known.text()};
    }
    m_project = fresh;
    m_device = device;
    Status entered = enterModel();
    rebuildRows();
    Q_EMIT instancesChanged();
    return entered;
}

void Workbench::onFileChanged() {
    if (!m_project) {
        return;
    }
    // A replaced file is another file to the watcher.
    if (!m_watcher.files().contains(m_project->file()) && QFileInfo::exists(m_project->file())) {
        m_watcher.addPath(m_project->file());
    }
    if (m_project->changed()) {
        return; // the next save brings both together
    }
    Ipgen::Project fresh;
    Status loaded = Ipgen::Project::load(m_project->folder(), &fresh);
    if (!loaded.ok()) {
        Q_EMIT failed(loaded);
        return;
    }
    if (!m_project->sameAs(fresh)) {
        Status done = reload();
        if (!done.ok()) {
            Q_EMIT failed(done);
        }
    }
}

Status Workbench::enterModel() {
    QList<Status> skipped;
    Status entered = m_project->openInModel(m_catalogue, &skipped);
    return entered;
}

Status Workbench::saveProject() {
    Status saved = m_project->save();
    // After a failure the change is kept here, to be saved again.
    Status entered = enterModel();
    rebuildRows();
    Q_EMIT instancesChanged();
    return saved.ok() ? entered : saved;
}

Status Workbench::saveAgain() {
    return m_project ? saveProject() : Status();
}

void Workbench::rebuildRows() {
    m_rows.clear();
    const QMap<QString, IPSERDESIP::Message> messages = IPSERDESIP::serdes::instance()->messages();
    const QStringList names = m_project->instanceNames();
    m_rows.reserve(names.size());
    for (const QString& name : names) {
        const auto message = messages.constFind(name);
        m_rows.append(rowOf(*m_project, m_catalogue, name,
                            message == messages.constEnd() ? nullptr : &message.value()));
    }
    m_looker.start();
}

const InstanceRow* Workbench::row(const QString& name) const {
    const auto it = std::lower_bound(
        m_rows.begin(), m_rows.end(), name,
        [](const InstanceRow& one, const QString& wanted) { return one.name < wanted; });
    return it != m_rows.end() && it->name == name ? &*it : nullptr;
}

QString Workbench::freeName(const QString& stem) const {
    for (int i = 0;; ++i) {
        QString name = stem + QString::number(i);
        if (!m_project || !m_project->hasInstance(name)) {
            return name;
        }
    }
}

void Workbench::refreshStates() {
    for (InstanceRow& one : m_rows) {
        if (one.state != State::NoIp && one.state != State::CheckFailed) {
            one.state = State::Unknown;
        }
    }
    m_looker.start();
}

void Workbench::lookAtSome() {
    constexpr int some = 8; // a round stays short enough for the window to answer
    QVector<InstanceRow*> rows;
    for (InstanceRow& one : m_rows) {
        if (one.state == State::Unknown && rows.size() < some) {
            rows.append(&one);
        }
    }
    if (rows.isEmpty()) {
        m_looker.stop();
        return;
    }
    lookAtFiles(*m_project, m_catalogue, m_device, rows);
    for (const InstanceRow* one : qAsConst(rows)) {
        Q_EMIT stateChanged(one->name);
    }
}

Status Workbench::createInstance(const QString& name, const QString& ip, bool* accepted) {
    *accepted = false;
    Status named = Ipgen::Project::checkInstanceName(name);
    if (!named.ok()) {
        return named;
    }
    if (m_project->hasInstance(name)) {
        return {Exit::Refused, name, tr("there is an instance of this name already")};
    }
    const Ipgen::CatalogueEntry* entry = nullptr;
    Status offered = m_catalogue.pick(ip, &entry);
    if (!offered.ok()) {
        return offered;
    }
    IPSERDESIP::ConfigMap config;
    entry->protocol->setDevice(m_device);
    Status ran = runDialog(
        name, [&] { return entry->protocol->create(name, m_device); }, &config);
    if (!ran.ok() || config.isEmpty()) {
        return ran;
    }
    *accepted = true;
    return accept(name, entry->id, config, tr("create %1").arg(name));
}

Status Workbench::openInstance(const QString& name, bool* accepted) {
    *accepted = false;
    Status known = m_project->checkKnown(name);
    if (!known.ok()) {
        return known;
    }
    const Ipgen::ProjectInstance instance = m_project->instance(name);
    const Ipgen::CatalogueEntry* entry = nullptr;
    Status offered = m_catalogue.pick(instance.ip, &entry);
    if (!offered.ok()) {
        return offered;
    }
    IPSERDESIP::ConfigMap config;
    entry->protocol->setDevice(m_device);
    IPSERDESIP::serdes::instance()->setEditing(name);
    Status ran = runDialog(
        name, [&] { return entry->protocol->open(instance.config); }, &config);
    IPSERDESIP::serdes::instance()->setEditing(QString());
    if (!ran.ok() || config.isEmpty()) {
        return ran;
    }
    *accepted = true;
    return accept(name, instance.ip, config, tr("configure %1").arg(name));
}

Status Workbench::accept(const QString& name, const QString& ip,
                         const IPSERDESIP::ConfigMap& config, const QString& what) {
    std::optional<Ipgen::ProjectInstance> before;
    if (m_project->hasInstance(name)) {
        before = m_project->instance(name);
    }
    const Ipgen::ProjectInstance after{ip, config};
    m_project->takeModelData();
    m_project->setInstance(name, after);
    Status saved = saveProject();
    if (saved.ok()) {
        m_undo.push(new InstanceChange(this, {{name, before, after}}, what));
    }
    return saved;
}

void Workbench::put(const QVector<Placement>& placements) {
    for (const Placement& one : placements) {
        if (one.instance) {
            m_project->setInstance(one.name, *one.instance);
        } else {
            m_project->removeInstance(one.name);
        }
    }
    Status saved = saveProject();
    if (!saved.ok()) {
        Q_EMIT failed(saved);
    }
}

void Workbench::rename(const QString& from, const QString& to) {
    m_project->renameInstance(from, to);
    Status saved = saveProject();
    if (!saved.ok()) {
        Q_EMIT failed(saved);
    }
}

Status Workbench::duplicateInstance(const QString& name, const QString& copy) {
    Status named = Ipgen::Project::checkInstanceName(copy);
    if (!named.ok()) {
        return named;
    }
    if (m_project->hasInstance(copy)) {
        return {Exit::Refused, copy, tr("there is an instance of this name already")};
    }
    const Ipgen::ProjectInstance instance = m_project->instance(name);
    return accept(copy, instance.ip, instance.config, tr("duplicate %1").arg(name));
}

Status Workbench::renameInstance(const QString& from, const QString& to) {
    Status named = Ipgen::Project::checkInstanceName(to);
    if (!named.ok() || from == to) {
        return named;
    }
    if (m_project->hasInstance(to)) {
        return {Exit::Refused, to, tr("there is an instance of this name already")};
    }
    m_project->renameInstance(from, to);
    Status saved = saveProject();
    if (saved.ok()) {
        m_undo.push(new Renaming(this, from, to));
    }
    return saved;
}

Status Workbench::removeInstances(const QStringList& names) {
    QVector<InstanceChange::Change> changes;
    for (const QString& name : names) {
        if (m_project->hasInstance(name)) {
            changes.append({name, m_project->instance(name), std::nullopt});
            m_project->removeInstance(name);
        }
    }
    Status saved = saveProject();
    if (saved.ok() && !changes.isEmpty()) {
        m_undo.push(new InstanceChange(this, changes,
                                       names.size() == 1
                                           ? tr("remove %1").arg(names.first())
                                           : tr("remove instances (%1)").arg(names.size())));
    }
    return saved;
}

Ipgen::GenerationResult Workbench::generateInstance(const QString& name, bool netlist) {
    Ipgen::GenerationResult result;
    const Ipgen::ProjectInstance instance = m_project->instance(name);
    const Ipgen::CatalogueEntry* entry = nullptr;
    result.status = m_project->checkKnown(name);
    if (result.status.ok()) {
        result.status = m_catalogue.pick(instance.ip, &entry);
    }
    if (!result.status.ok()) {
        return result;
    }
    Ipgen::GenerationRequest request;
    request.protocol = entry->protocol.get();
    request.device = m_device;
    request.config = instance.config;
    request.instance = name;
    request.netlist = netlist;
    const InstanceRow* known = row(name);
    const FileHistory::Snapshot before = FileHistory::take(
        known != nullptr ? generatedFiles(*m_project, known->file) : QStringList());
    result = Ipgen::generate(request);
    FileHistory::keepChanged(before);
    for (InstanceRow& one : m_rows) {
        if (one.name == name && one.state != State::CheckFailed) {
            one.state = State::Unknown;
        }
    }
    m_looker.start();
    Q_EMIT filesGenerated(name);
    return result;
}

void Workbench::setChecked(const QString& name, const Status& verdict) {
    for (InstanceRow& one : m_rows) {
        if (one.name == name && one.state != State::NoIp) {
            one.state = verdict.ok() ? State::Unknown : State::CheckFailed;
            one.detail = verdict.ok() ? QString() : verdict.text();
            Q_EMIT stateChanged(name);
        }
    }
    m_looker.start();
}

} // namespace Window
