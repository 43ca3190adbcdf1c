#pragma once

#include "ipgen/core/status.h"

#include <dev/devicearg.h>
#include <serdesip/types.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace Ipgen {

class Catalogue;

/// One configured IP of a project.
struct ProjectInstance {
    QString ip; ///< the IP's id
    IPSERDESIP::ConfigMap config;
};

/// A project: a folder with its "project.json". Changes are made in memory; save() brings them
/// into the file, together with what other programs have changed there since it was read.
class Project {
public:
    /// Makes the folder where it is missing, and a project file in it. An existing project file is
    /// refused and left alone.
    static Status make(const QString& folder, const DEV::DeviceArg& device, Project* project);
    /// A damaged file is a BadInput status with line and column, and stays as it is.
    static Status load(const QString& folder, Project* project);

    /// Absolute paths.
    QString folder() const { return m_folder; }
    QString file() const;
    /// Where the transceiver IPs of the project write.
    QString workingDir() const;

    /// As the file holds it: an id or a model name.
    QString deviceName() const;
    void setDeviceName(const QString& name);

    /// In the order of their names.
    QStringList instanceNames() const;
    bool hasInstance(const QString& name) const;
    ProjectInstance instance(const QString& name) const;
    /// Adds or replaces; keys of the saved instance other than "ip" and "config" stay.
    void setInstance(const QString& name, const ProjectInstance& instance);
    void removeInstance(const QString& name);
    /// Adds a copy under a name that is free. Until the copy is configured, which setInstance()
    /// says, it holds no resources and cannot be generated: it would write over the original.
    void copyInstance(const QString& name, const QString& copy);
    /// What an instance is a copy of while it is not configured; else empty.
    QString copiedFrom(const QString& name) const;
    /// Refused while the instance is a copy that is not configured.
    Status checkConfigured(const QString& name) const;
    /// The instance with every key that the file has of it; empty: there is none.
    QVariantMap savedInstance(const QString& name) const;
    /// Puts it back like that; empty: away.
    void putSavedInstance(const QString& name, const QVariantMap& saved);
    /// Moves an instance to a name that is free.
    void renameInstance(const QString& from, const QString& to);
    /// Refused with the reason when a name cannot be given to an instance.
    static Status checkInstanceName(const QString& name);
    /// Refused, with the names there are, when the project has no such instance.
    Status checkKnown(const QString& name) const;
    /// Takes doubled names out, and makes of no name the names of all instances. As checkKnown():
    /// no name is changed then.
    Status select(QStringList* names) const;

    /// The transceiver data store.
    QVariantMap data() const;
    void setData(const QVariantMap& data);

    /// Whether both hold the same, saved or not.
    bool sameAs(const Project& other) const;
    /// Whether there is anything to save.
    bool changed() const;
    /// Writes what was changed since load() or save(), whole or not at all. Two programs that save
    /// at once take turns. Refused: another program changed the same thing in the meantime;
    /// nothing is written then. BadOutput: the file cannot be written. After success the project
    /// holds the others' changes too.
    Status save();

    /// Makes this the open project of the transceiver model: device, working folder, data store
    /// and what each instance holds. IPs write below the working folder from here on. An
    /// instance whose IP is not on offer holds nothing and is added to *skipped.
    Status openInModel(const Catalogue& catalogue, QList<Status>* skipped = nullptr) const;
    /// Takes the model's data store over when an IP has changed it.
    void takeModelData();

private:
    QVariantMap instances() const;
    void setInstances(const QVariantMap& all);

    QString m_folder;
    QVariantMap m_base; ///< as read or saved last
    QVariantMap m_now;
    bool m_touched = false; ///< since then
};

} // namespace Ipgen
