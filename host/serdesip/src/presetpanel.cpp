#include "presetpanel.h"

#include "dialogframe.h"
#include "elidedlabel.h"
#include "fieldkeeper.h"
#include "fieldvalue.h"
#include "quietboxes.h"
#include "serdesip/frameservices.h"
#include "serdesip/protocolgendlg.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>
#include <numeric>

namespace IPSERDESIP {

namespace {

/// A value as the change list shows it.
QString shownValue(const QWidget& field, const QString& value) {
    if (qobject_cast<const QAbstractButton*>(&field) != nullptr) {
        return value == QLatin1String("true") ? PresetPanel::tr("on") : PresetPanel::tr("off");
    }
    return value.isEmpty() ? QString(QChar(0x2013)) : value; // a dash
}

/// The lists of the combo boxes open without being shown.
void showLists(const QVector<QWidget*>& fields, bool shown) {
    for (QWidget* field : fields) {
        if (auto* combo = qobject_cast<QComboBox*>(field)) {
            combo->view()->window()->setAttribute(Qt::WA_DontShowOnScreen, !shown);
        }
    }
}

} // namespace

PresetPanel::PresetPanel(protocolGenDlg& dialog, const DialogFrame& frame, FieldKeeper& keeper)
    : m_dialog(dialog)
    , m_frame(frame)
    , m_keeper(keeper)
    , m_save(addAction("savePreset", tr("Save as preset …"),
                       tr("Keep what the pages show under a name"), QKeySequence::Save,
                       &PresetPanel::save))
    , m_manage(addAction("managePresets", tr("Manage presets …"),
                         tr("Rename and delete your presets"), Qt::CTRL + Qt::SHIFT + Qt::Key_M,
                         &PresetPanel::manage)) {
    connect(frame.presetMenu, &QMenu::aboutToShow, this, &PresetPanel::fillMenu);
    connect(frame.presets, &QAction::triggered, frame.presetButton, &QToolButton::showMenu);
}

QAction* PresetPanel::addAction(const char* name, const QString& text, const QString& what,
                                const QKeySequence& key, void (PresetPanel::*slot)()) {
    auto* action = new QAction(text, &m_dialog);
    action->setObjectName(QString::fromLatin1(name));
    action->setToolTip(what);
    action->setShortcut(key);
    action->setEnabled(false);
    connect(action, &QAction::triggered, this, slot);
    m_dialog.addAction(action); // so that its key works with the menu closed
    return action;
}

void PresetPanel::start() {
    const FrameServices& lent = FrameServices::current();
    const bool any = !lent.ipPresets.isEmpty() || !lent.ownPresets.isEmpty();
    m_frame.presetButton->setVisible(any);
    m_frame.presets->setEnabled(any);
    m_view = DialogView(&m_dialog);
    m_store = PresetStore(lent.ipPresets, lent.ownPresets);
    m_save->setEnabled(m_store.canSave());
    m_manage->setEnabled(m_store.canSave());
}

void PresetPanel::fillMenu() {
    QMenu* menu = m_frame.presetMenu;
    menu->clear();
    m_store.load();
    addToMenu(menu, true);
    addToMenu(menu, false);
    if (menu->isEmpty()) {
        menu->addAction(tr("No preset for this device"))->setEnabled(false);
    }
    menu->addSeparator();
    menu->addAction(m_save);
    m_manage->setText(m_store.faults().isEmpty()
                          ? tr("Manage presets …")
                          : tr("Manage presets (%1 damaged) …").arg(m_store.faults().size()));
    menu->addAction(m_manage);
}

void PresetPanel::addToMenu(QMenu* menu, bool own) {
    bool first = true;
    for (const Preset& preset : m_store.presets()) {
        if (preset.own != own || !preset.suits(m_dialog.device())) {
            continue;
        }
        if (first) {
            menu->addSection(own ? tr("Your presets") : tr("Presets of the IP"));
            first = false;
        }
        QString text = preset.name;
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction* action = menu->addAction(text, this, [this, preset] { apply(preset); });
        action->setObjectName(QLatin1String("preset:") + preset.name);
        action->setToolTip(preset.summary);
    }
}

QStringList PresetPanel::outOfSight(const std::function<void()>& edits) {
    const QPointer<QWidget> focus(m_dialog.focusWidget());
    const int page = m_frame.tabs->currentIndex();
    const QuietBoxes quiet;
    m_dialog.setUpdatesEnabled(false);
    showLists(m_keeper.fields(), false);
    edits();
    showLists(m_keeper.fields(), true);
    m_frame.tabs->setCurrentIndex(page);
    m_dialog.setUpdatesEnabled(true);
    if (focus) {
        focus->setFocus(Qt::OtherFocusReason);
    }
    return quiet.words();
}

/// From 0; -1: a field of the frame.
int PresetPanel::pageOf(const QWidget* field) const {
    for (int i = 0; i < m_frame.tabs->count(); ++i) {
        if (m_frame.tabs->widget(i)->isAncestorOf(field)) {
            return i;
        }
    }
    return -1;
}

/// With its group in front where the page has two fields of one caption.
QString PresetPanel::captionOf(const QWidget& field) const {
    const QString caption = fieldvalue::captionOf(field);
    const QVector<QWidget*>& fields = m_keeper.fields();
    const bool shared = std::any_of(fields.begin(), fields.end(), [&](const QWidget* other) {
        return other != &field && pageOf(other) == pageOf(&field) &&
               fieldvalue::captionOf(*other) == caption;
    });
    for (const QWidget* at = field.parentWidget(); shared && at != nullptr;
         at = at->parentWidget()) {
        const auto* group = qobject_cast<const QGroupBox*>(at);
        if (group != nullptr && !group->title().isEmpty()) {
            return QStringLiteral("%1: %2").arg(group->title(), caption);
        }
    }
    return caption;
}

QVector<int> PresetPanel::fieldOrder() const {
    const QVector<QWidget*>& fields = m_keeper.fields();
    QVector<int> order(fields.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return pageOf(fields.at(a)) < pageOf(fields.at(b)); });
    return order;
}

PresetOutcome PresetPanel::outcomeOf(const QStringList& before, const QStringList& after,
                                     const QList<PresetRefusal>& refused,
                                     const QStringList& messages) const {
    PresetOutcome outcome;
    const QVector<int> order = fieldOrder();
    for (int i : order) {
        const QWidget& field = *m_keeper.fields().at(i);
        if (before.at(i) != after.at(i)) {
            const int page = pageOf(&field);
            outcome.changes.append({page < 0 ? tr("File options") : m_frame.tabs->tabText(page),
                                    captionOf(field), shownValue(field, before.at(i)),
                                    shownValue(field, after.at(i))});
        }
    }
    for (const PresetRefusal& one : refused) {
        const QWidget* field = m_view.find(one.object).widget;
        outcome.refused.append(
            QStringLiteral("%1 (%2): %3")
                .arg(field == nullptr ? one.object : captionOf(*field),
                     field == nullptr ? one.to.toString() : shownValue(*field, one.to.toString()),
                     one.why));
    }
    outcome.messages = messages;
    return outcome;
}

void PresetPanel::apply(const Preset& preset) {
    m_frame.tabBar->setFocus(Qt::OtherFocusReason); // ends the edit that is going on
    QList<PresetRefusal> refused;
    QStringList after;
    bool restored = true;
    m_rehearsing = true;
    const QStringList messages = outOfSight([&] {
        restored = m_keeper.rehearse([&] { refused = playPreset(m_view, preset.steps); }, &after);
    });
    m_rehearsing = false;
    if (!restored) {
        QMessageBox::warning(&m_dialog, tr("Presets"),
                             tr("Finding out what the preset would change has changed fields "
                                "itself. Look through the pages."));
    }
    const QStringList before = m_keeper.values();
    PresetPreview preview(preset, outcomeOf(before, after, refused, messages), &m_dialog);
    if (preview.exec() != QDialog::Accepted) {
        return;
    }
    outOfSight([&] {
        m_keeper.perform(
            [&] { refused = playPreset(m_view, preset.steps, [this] { m_keeper.noteEdit(); }); });
    });
    if (m_keeper.values() != after) {
        const PresetOutcome real = outcomeOf(before, m_keeper.values(), refused, {});
        QMessageBox::warning(
            &m_dialog, tr("Presets"),
            tr("The preset has come out in another way than shown: %1 fields have changed. Undo "
               "takes them back.")
                .arg(real.changes.size()));
    }
    const int changed = outcomeOf(before, m_keeper.values(), {}, {}).changes.size();
    say(refused.isEmpty()
            ? tr("Preset \"%1\" applied, changes: %2").arg(preset.name).arg(changed)
            : tr("Preset \"%1\" applied, changes: %2, not taken over: %3")
                  .arg(preset.name, QString::number(changed),
                       outcomeOf(before, before, refused, {}).refused.join(QLatin1String("; "))));
}

/// The pages' fields that a user can edit now, with what they show.
QList<PresetStep> PresetPanel::editableFields() const {
    QList<PresetStep> steps;
    const QVector<int> order = fieldOrder();
    for (int i : order) {
        const QWidget* field = m_keeper.fields().at(i);
        const QString name = m_view.nameOf(field);
        const DialogView::Place place = m_view.find(name);
        const auto* combo = qobject_cast<const QComboBox*>(field);
        const bool empty = combo != nullptr && combo->currentIndex() < 0;
        if (place.page != nullptr && place.widget == field && !empty &&
            m_view.whyOutOfReach(place).isEmpty()) {
            steps.append({name, fieldvalue::typedValue(*field)});
        }
    }
    return steps;
}

void PresetPanel::save() {
    m_store.load(); // others save presets meanwhile
    m_frame.tabBar->setFocus(Qt::OtherFocusReason);
    Preset preset;
    preset.own = true;
    preset.steps = editableFields();
    // Whether a new dialog would follow: some fields depend on what cannot be edited.
    QStringList lost;
    m_rehearsing = true;
    outOfSight([&] {
        QStringList after;
        QList<PresetRefusal> refused;
        m_keeper.rehearse(
            [&] {
                m_keeper.show(m_keeper.defaults());
                refused = playPreset(m_view, preset.steps);
            },
            &after);
        lost = outcomeOf(after, after, refused, {}).refused;
    });
    m_rehearsing = false;
    SavePresetDialog dialog(m_dialog.device(), preset.steps.size(), lost, m_store, &m_dialog);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    preset.name = dialog.name();
    preset.summary = dialog.summary();
    preset.devices = dialog.devices();
    const QString failed = m_store.save(preset);
    if (failed.isEmpty()) {
        say(tr("Preset \"%1\" saved").arg(preset.name));
    } else {
        QMessageBox::warning(&m_dialog, tr("Presets"), failed);
    }
}

void PresetPanel::manage() {
    m_store.load();
    ManagePresetsDialog(m_store, &m_dialog).exec();
}

void PresetPanel::say(const QString& text) {
    m_frame.strip->setText(text);
}

} // namespace IPSERDESIP
