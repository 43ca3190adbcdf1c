#include "ipgen/window/workbench.h"

#include "ipgen/core/installation.h"
#include "ipgen/session/frameloan.h"
#include "ipgen/window/filehistory.h"
#include "ipgen/window/undo.h"

#include <core/viewmanager.h>
#include <serdesip/serdes.h>

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QScopeGuard>

#include <algorithm>
#include <exception>
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
        if (QApplication::activeModalWidget() != nullptr && !m_posted) {
            m_posted = true;
            QTimer::singleShot(0, &m_context, [this] {
                m_posted = false;
                const QStringList lines = std::exchange(m_lines, {});
                QMessageBox::warning(QApplication::activeModalWidget(), Workbench::tr("Error"),
                                     lines.join(QLatin1Char('\n')));
            });
        }
    }

    QStringList m_lines;
    bool m_posted = false; ///< a box is on its way
    QObject m_context;     ///< for calls to come
    Core::ViewManager::ErrorSink m_former;
};

} // namespace

Workbench::Workbench(QObject* parent)
    : QObject(parent) {
    constexpr int settleTime = 150; // ms
    m_looker.setInterval(0);
    m_settle.setSingleShot(true);
    m_settle.setInterval(settleTime);
    connect(&m_looker, &QTimer::timeout, this, &Workbench::lookAtSome);
    connect(&m_settle, &QTimer::timeout, this, &Workbench::onFileChanged);
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
    m_mark = std::make_unique<OpenMark>(m_project->folder());
    watch();
    Status entered = enterModel();
    rebuildRows();
    Q_EMIT projectChanged();
    return entered;
}

void Workbench::closeProject() {
    if (!m_project) {
        return;
    }
    m_looker.stop();
    m_watcher.reset();
    m_undo.clear();
    m_rows.clear();
    m_project.reset();
    m_device = DEV::DeviceArg();
    m_mark.reset();
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
    if (!m_project || !m_watcher) {
        return;
    }
    // A replaced file is another file to the watcher.
    if (!m_watcher->files().contains(m_project->file()) && QFileInfo::exists(m_project->file())) {
        m_watcher->addPath(m_project->file());
    }
    if (m_inDialog) {
        return; // its end comes back to this
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
    auto message = messages.constBegin(); // both are in the order of names
    for (const QString& name : names) {
        while (message != messages.constEnd() && message.key() < name) {
            ++message;
        }
        const bool has = message != messages.constEnd() && message.key() == name;
        m_rows.append(rowOf(*m_project, m_catalogue, name, has ? &message.value() : nullptr));
    }
    look();
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

void Workbench::watch() {
    if (!m_looking || !m_project) {
        return;
    }
    m_watcher = std::make_unique<QFileSystemWatcher>();
    const auto settle = [this] { m_settle.start(); };
    connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, this, settle);
    connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, this, settle);
    m_watcher->addPath(m_project->file());
    m_watcher->addPath(m_project->folder());
    m_settle.start(); // it may have changed since it was read
}

void Workbench::beginLooking() {
    m_looking = true;
    watch();
    look();
}

void Workbench::look() {
    if (m_looking) {
        m_looker.start();
    }
}

void Workbench::refreshStates() {
    for (InstanceRow& one : m_rows) {
        if (one.state != State::NoIp && one.state != State::Copy &&
            one.state != State::CheckFailed) {
            one.state = State::Unknown;
        }
    }
    look();
}

void Workbench::lookAtSome() {
    if (m_inDialog) {
        m_looker.stop(); // a trial borrows the transceiver model, which the dialog is using
        return;
    }
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

/// An IP's dialog: its failures become a status, and the library's complaints its reasons. What the
/// user has accepted counts, whatever went wrong before.
Status Workbench::runDialog(const QString& name,
                            const std::function<IPSERDESIP::ConfigMap()>& dialog,
                            IPSERDESIP::ConfigMap* config) {
    const ErrorBoxes errors;
    // What another program changes meanwhile is looked at afterwards: taken over at once, it would
    // be taken for known, and the accepted dialog would overwrite it.
    m_inDialog = true;
    const auto after = qScopeGuard([this] {
        m_inDialog = false;
        m_settle.start();
        look();
    });
    try {
        *config = dialog();
    } catch (const std::exception& fault) {
        return {Exit::Fault, name,
                tr("the IP threw an exception: %1").arg(QString::fromLocal8Bit(fault.what()))};
    }
    if (!errors.rest().isEmpty()) {
        if (config->isEmpty()) {
            return {Exit::Refused, name, errors.rest()};
        }
        QMessageBox::warning(Core::ViewManager::dialogParent(), tr("Error"), errors.rest());
    }
    return {};
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
    const Ipgen::Session::FrameLoan frame(*entry, *m_project, name);
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
    const Ipgen::Session::FrameLoan frame(*entry, *m_project, name);
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
    const QVariantMap before = m_project->savedInstance(name);
    const QVariantMap dataBefore = m_project->data();
    m_project->takeModelData();
    m_project->setInstance(name, {ip, config});
    const QVariantMap after = m_project->savedInstance(name);
    const QVariantMap dataAfter = m_project->data();
    Status saved = saveProject();
    if (saved.ok()) {
        m_undo.push(new InstanceChange(this, {{name, before, after}}, dataBefore, dataAfter, what));
    }
    return saved;
}

void Workbench::put(const QVector<Placement>& placements, const QVariantMap& from,
                    const QVariantMap& to) {
    for (const Placement& one : placements) {
        m_project->putSavedInstance(one.name, one.saved);
    }
    QVariantMap data = m_project->data();
    const QStringList keys = from.keys() + to.keys();
    for (const QString& key : keys) {
        if (!to.contains(key)) {
            data.remove(key);
        } else if (from.value(key) != to.value(key)) {
            data.insert(key, to.value(key));
        }
    }
    m_project->setData(data);
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
    m_project->copyInstance(name, copy);
    const QVariantMap after = m_project->savedInstance(copy);
    Status saved = saveProject();
    if (saved.ok()) {
        m_undo.push(
            new InstanceChange(this, {{copy, {}, after}}, {}, {}, tr("duplicate %1").arg(name)));
    }
    return saved;
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
            changes.append({name, m_project->savedInstance(name), {}});
            m_project->removeInstance(name);
        }
    }
    Status saved = saveProject();
    if (saved.ok() && !changes.isEmpty()) {
        m_undo.push(new InstanceChange(this, changes, {}, {},
                                       names.size() == 1
                                           ? tr("remove %1").arg(names.first())
                                           : tr("remove instances (%1)").arg(names.size())));
    }
    return saved;
}

Status Workbench::mayGenerate(const QString& name) const {
    Status configured = m_project->checkConfigured(name);
    if (!configured.ok()) {
        return configured;
    }
    const QString other = Ipgen::sharesFolderWith(name);
    return other.isEmpty()
               ? Status()
               : Status(Exit::Refused, name,
                        tr("%1 writes to the same folder, \"%2\"; nothing was written. Give one "
                           "of them another file name.")
                            .arg(other, row(name) != nullptr ? row(name)->file : QString()));
}

Ipgen::GenerationResult Workbench::generateInstance(const QString& name, bool netlist) {
    Ipgen::GenerationResult result;
    const Ipgen::ProjectInstance instance = m_project->instance(name);
    const Ipgen::CatalogueEntry* entry = nullptr;
    result.status = m_project->checkKnown(name);
    if (result.status.ok()) {
        result.status = m_catalogue.pick(instance.ip, &entry);
    }
    if (result.status.ok()) {
        result.status = mayGenerate(name);
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
        if (one.name == name && one.state != State::Copy && one.state != State::CheckFailed) {
            one.state = State::Unknown;
        }
    }
    look();
    Q_EMIT filesGenerated(name);
    return result;
}

void Workbench::setChecked(const QString& name, const Status& verdict) {
    for (InstanceRow& one : m_rows) {
        if (one.name == name && one.state != State::NoIp && one.state != State::Copy) {
            one.state = verdict.ok() ? State::Unknown : State::CheckFailed;
            one.detail = verdict.ok() ? QString() : verdict.text();
            Q_EMIT stateChanged(name);
        }
    }
    look();
}

} // namespace Window
