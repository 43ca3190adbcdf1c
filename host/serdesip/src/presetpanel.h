#pragma once

#include "presetdialogs.h"
#include "serdesip/dialogview.h"
#include "serdesip/preset.h"
#include "serdesip/presetplay.h"

#include <QObject>

#include <functional>

class QAction;
class QKeySequence;
class QMenu;

namespace IPSERDESIP {

struct DialogFrame;
class FieldKeeper;
class protocolGenDlg;

/// The frame's presets: the menu that offers them, and what is done with the dialog's fields.
class PresetPanel : public QObject {
    Q_OBJECT

public:
    PresetPanel(protocolGenDlg& dialog, const DialogFrame& frame, FieldKeeper& keeper);

    /// Takes the presets that the program has lent.
    void start();
    /// While true, what happens to the fields is a trial that is put back.
    bool isRehearsing() const { return m_rehearsing; }

private:
    QAction* addAction(const char* name, const QString& text, const QString& what,
                       const QKeySequence& key, void (PresetPanel::*slot)());
    void fillMenu();
    void addToMenu(QMenu* menu, bool own);
    void apply(const Preset& preset);
    void save();
    void manage();
    /// Runs what sets fields, out of sight. The words of the boxes that came up.
    QStringList outOfSight(const std::function<void()>& edits);
    PresetOutcome outcomeOf(const QStringList& before, const QStringList& after,
                            const QList<PresetRefusal>& refused, const QStringList& messages) const;
    int pageOf(const QWidget* field) const;
    QString captionOf(const QWidget& field) const;
    /// Places of the fields, page by page.
    QVector<int> fieldOrder() const;
    QList<PresetStep> editableFields() const;
    void say(const QString& text);

    protocolGenDlg& m_dialog;
    const DialogFrame& m_frame;
    FieldKeeper& m_keeper;
    DialogView m_view;
    QAction* m_save;
    QAction* m_manage;
    PresetStore m_store;
    bool m_rehearsing = false;
};

} // namespace IPSERDESIP
