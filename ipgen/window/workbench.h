#pragma once

#include "ipgen/core/catalogue.h"
#include "ipgen/core/generation.h"
#include "ipgen/core/project.h"
#include "ipgen/core/status.h"
#include "ipgen/window/instancestate.h"
#include "ipgen/window/openmark.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <QUndoStack>
#include <QVector>

#include <functional>
#include <memory>
#include <optional>

namespace Window {

/// What the window works on, without any widget of its own: the catalogue, the open project, its
/// instances and their states. Each operation saves the project at once; what another program
/// changes there shows up by itself.
class Workbench : public QObject {
    Q_OBJECT

public:
    explicit Workbench(QObject* parent = nullptr);
    ~Workbench() override;

    /// Reads the device database and the plug-ins.
    Ipgen::Status loadHost(const QStringList& pluginDirs);
    bool hostLoaded() const { return m_hostLoaded; }
    const Ipgen::Catalogue& catalogue() const { return m_catalogue; }

    Ipgen::Status newProject(const QString& folder, const QString& device);
    Ipgen::Status openProject(const QString& folder);
    void closeProject();
    /// Reads the project file again; what could not be saved is dropped.
    Ipgen::Status reload();
    /// Saves what an earlier failure kept from being saved.
    Ipgen::Status saveAgain();
    bool hasProject() const { return m_project.has_value(); }
    /// Only with a project.
    const Ipgen::Project& project() const { return *m_project; }
    /// Null without a project.
    const DEV::DeviceArg& device() const { return m_device; }
    /// Not empty: who else has the project open.
    QString otherUser() const { return m_mark ? m_mark->other() : QString(); }

    const QVector<InstanceRow>& rows() const { return m_rows; }
    /// Null when there is none of the name.
    const InstanceRow* row(const QString& name) const;
    /// The first of "link0", "link1" … that is free, with the given stem.
    QString freeName(const QString& stem) const;

    // Each with the IP's dialog; cancelled leaves everything as it was and is no failure.
    Ipgen::Status createInstance(const QString& name, const QString& ip, bool* accepted);
    Ipgen::Status openInstance(const QString& name, bool* accepted);

    Ipgen::Status duplicateInstance(const QString& name, const QString& copy);
    Ipgen::Status renameInstance(const QString& from, const QString& to);
    Ipgen::Status removeInstances(const QStringList& names);
    /// Refused: a copy that is not configured, or another instance writes to the same folder.
    Ipgen::Status mayGenerate(const QString& name) const;
    /// Writes the files of one instance, if it may.
    Ipgen::GenerationResult generateInstance(const QString& name, bool netlist);
    /// What the IP's own checks said.
    void setChecked(const QString& name, const Ipgen::Status& verdict);
    /// Looks at the files again; the states come with stateChanged().
    void refreshStates();
    /// Until this is called, states stay Unknown and other programs' changes unseen: the window
    /// shows itself first.
    void beginLooking();

    QUndoStack* undoStack() { return &m_undo; }

    // For the undo commands; a failure comes as failed().

    /// A saved instance as it shall be; empty: away.
    struct Placement {
        QString name;
        QVariantMap saved;
    };
    /// Of the shared data, what differs between `from` and `to` becomes as in `to`.
    void put(const QVector<Placement>& placements, const QVariantMap& from, const QVariantMap& to);
    void rename(const QString& from, const QString& to);

Q_SIGNALS:
    void hostChanged();
    void projectChanged();
    /// Other instances, names or configurations.
    void instancesChanged();
    void stateChanged(const QString& name);
    void filesGenerated(const QString& name);
    /// A failure that no caller waits for.
    void failed(const Ipgen::Status& status);

private:
    Ipgen::Status adopt(Ipgen::Project project);
    Ipgen::Status enterModel();
    Ipgen::Status saveProject();
    Ipgen::Status runDialog(const QString& name,
                            const std::function<IPSERDESIP::ConfigMap()>& dialog,
                            IPSERDESIP::ConfigMap* config);
    Ipgen::Status accept(const QString& name, const QString& ip,
                         const IPSERDESIP::ConfigMap& config, const QString& what);
    void rebuildRows();
    void lookAtSome();
    void look();
    void watch();
    void onFileChanged();

    bool m_hostLoaded = false;
    Ipgen::Catalogue m_catalogue;
    std::optional<Ipgen::Project> m_project;
    DEV::DeviceArg m_device;
    QVector<InstanceRow> m_rows;
    QUndoStack m_undo;
    QTimer m_looker;
    bool m_looking = false;
    bool m_inDialog = false; ///< an IP's dialog is open: what it works on stays as it is
    QTimer m_settle;         ///< another program may write in several steps
    std::unique_ptr<QFileSystemWatcher> m_watcher; ///< null until beginLooking()
    std::unique_ptr<OpenMark> m_mark;
};

} // namespace Window
