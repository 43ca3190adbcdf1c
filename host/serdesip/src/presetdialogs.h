#pragma once

#include "serdesip/preset.h"

#include <QDialog>
#include <QList>
#include <QStringList>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace IPSERDESIP {

/// One field that would change.
struct FieldChange {
    QString page;
    QString caption;
    QString before;
    QString after;
};

/// What applying a preset would do.
struct PresetOutcome {
    QList<FieldChange> changes;
    QStringList refused;  ///< "caption: value, why" of each field that does not follow
    QStringList messages; ///< what the rules say meanwhile
};

/// Shows what a preset would change, before anything does.
class PresetPreview : public QDialog {
    Q_OBJECT

public:
    PresetPreview(const Preset& preset, const PresetOutcome& outcome, QWidget* parent);
};

/// Asks for the name of a preset to be saved, what it is for, and which devices it suits.
class SavePresetDialog : public QDialog {
    Q_OBJECT

public:
    /// @param fields  how many fields are saved
    /// @param lost    captions of those that would not follow in a new dialog
    SavePresetDialog(const DEV::DeviceArg& device, int fields, const QStringList& lost,
                     const PresetStore& store, QWidget* parent);

    QString name() const;
    QString summary() const;
    QStringList devices() const;

    void accept() override;

private:
    const PresetStore& m_store;
    QLineEdit* m_name;
    QLineEdit* m_summary;
    QComboBox* m_devices;
};

/// Renames and deletes the user's presets, and tells which files are damaged.
class ManagePresetsDialog : public QDialog {
    Q_OBJECT

public:
    ManagePresetsDialog(PresetStore& store, QWidget* parent);

private:
    void fill(const QString& chosen = QString());
    void renameChosen();
    void removeChosen();
    QString chosen() const;

    PresetStore& m_store;
    QListWidget* m_list;
    QLabel* m_faults;
    QPushButton* m_rename;
    QPushButton* m_remove;
};

/// Whether one of the user's presets may be replaced; asks.
bool mayReplace(QWidget* parent, const PresetStore& store, const QString& name);

} // namespace IPSERDESIP
