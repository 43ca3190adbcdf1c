#pragma once

#include "serdesip/export.h"

#include <dev/devicearg.h>

#include <QByteArray>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace IPSERDESIP {

/// One setting of a preset: a field by its name in session scripts, and its value.
struct PresetStep {
    QString object;
    QVariant to; ///< text, boolean or number
};

/// Settings of a dialog's fields under a name, in the order in which they are made.
struct HOST_SERDESIP_EXPORT Preset {
    QString name;
    QString summary;
    QStringList devices; ///< ids, models or classes of devices; "*" is every device
    QList<PresetStep> steps;
    QString file;     ///< where it was read from
    bool own = false; ///< the user's; else it came with the IP

    bool suits(const DEV::DeviceArg& device) const;
};

/// What is wrong with a name for a preset; empty: nothing.
HOST_SERDESIP_EXPORT QString presetNameFault(const QString& name);

/// Reads a preset. Not empty: the reason, with line and column where the text has the fault, and
/// `preset` is untouched. A file that cannot be read: *unreadable is set.
HOST_SERDESIP_EXPORT QString readPreset(const QString& path, Preset* preset,
                                        bool* unreadable = nullptr);
/// What readPreset() reads, one step a line.
HOST_SERDESIP_EXPORT QByteArray writePreset(const Preset& preset);

/// The presets of one IP: those that came with it, and the user's own.
class HOST_SERDESIP_EXPORT PresetStore {
public:
    /// A preset file that cannot serve.
    struct Fault {
        QString file;
        QString reason;
    };

    PresetStore() = default;
    /// @param ipFolder   holds the IP's; need not exist
    /// @param ownFolder  holds the user's; made when one is saved. Empty: none can be saved
    PresetStore(const QString& ipFolder, const QString& ownFolder);

    /// Reads the folders anew.
    void load();
    /// The user's in front, each part in the order of the names.
    const QList<Preset>& presets() const { return m_presets; }
    const QList<Fault>& faults() const { return m_faults; }
    /// Null when there is none of the name.
    const Preset* find(const QString& name) const;
    bool canSave() const { return !m_ownFolder.isEmpty(); }

    // Each returns why it could not be done, empty: done, and loads anew.
    /// Saves among the user's; one of theirs by this name is replaced.
    QString save(const Preset& preset);
    /// `name` is one of the user's; one of theirs named `to` is replaced.
    QString rename(const QString& name, const QString& to);
    QString remove(const QString& name);

private:
    void loadFolder(const QString& folder, bool own);
    const Preset* findOwn(const QString& name) const;
    QString whyNameIsRefused(const QString& name) const;

    QString m_ipFolder;
    QString m_ownFolder;
    QList<Preset> m_presets;
    QList<Fault> m_faults;
};

} // namespace IPSERDESIP

Q_DECLARE_METATYPE(IPSERDESIP::Preset)
