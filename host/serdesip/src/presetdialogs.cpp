#include "presetdialogs.h"

#include <core/idecore.h>

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace IPSERDESIP {

namespace {

QLabel* note(const QString& text) {
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// A text that may be long, to be read and copied.
void addNotes(QBoxLayout* column, const char* name, const QString& caption,
              const QStringList& lines) {
    if (lines.isEmpty()) {
        return;
    }
    auto* text = new QPlainTextEdit(lines.join(QLatin1Char('\n')));
    text->setObjectName(QString::fromLatin1(name));
    text->setAccessibleName(caption);
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    const int rows = qBound(2, lines.size() + 1, 5);
    text->setMaximumHeight(rows * text->fontMetrics().lineSpacing() + 12);
    auto* label = note(caption);
    label->setBuddy(text);
    column->addWidget(label);
    column->addWidget(text);
}

QTreeWidget* changeTree(const QList<FieldChange>& changes) {
    auto* tree = new QTreeWidget;
    tree->setObjectName(QStringLiteral("changes"));
    tree->setAccessibleName(PresetPreview::tr("What changes"));
    tree->setColumnCount(3);
    tree->setHeaderLabels(
        {PresetPreview::tr("Field"), PresetPreview::tr("Now"), PresetPreview::tr("Then")});
    tree->setAlternatingRowColors(true);
    tree->setRootIsDecorated(false);
    tree->setItemsExpandable(false);
    tree->setUniformRowHeights(true);
    QTreeWidgetItem* page = nullptr;
    for (const FieldChange& change : changes) {
        if (page == nullptr || page->text(0) != change.page) {
            page = new QTreeWidgetItem(tree, {change.page});
            QFont bold = tree->font();
            bold.setBold(true);
            page->setFont(0, bold);
            page->setFirstColumnSpanned(true);
        }
        auto* item = new QTreeWidgetItem(page, {change.caption, change.before, change.after});
        for (int column = 0; column < 3; ++column) {
            item->setToolTip(column, item->text(column));
        }
    }
    tree->expandAll();
    tree->header()->setStretchLastSection(true);
    for (int column : {0, 1}) {
        tree->resizeColumnToContents(column);
        tree->setColumnWidth(column, qBound(120, tree->columnWidth(column) + 16, 300));
    }
    return tree;
}

} // namespace

PresetPreview::PresetPreview(const Preset& preset, const PresetOutcome& outcome, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("presetPreview"));
    setWindowTitle(tr("Apply the preset \"%1\"").arg(preset.name));
    auto* column = new QVBoxLayout(this);
    if (!preset.summary.isEmpty()) {
        column->addWidget(note(preset.summary));
    }
    const int count = outcome.changes.size();
    column->addWidget(note(count == 0
                               ? tr("No field changes: the dialog shows the preset's values.")
                               : tr("Changes: %1. One Undo takes all of them back.").arg(count)));
    auto* tree = changeTree(outcome.changes);
    tree->setVisible(count > 0);
    column->addWidget(tree, 1);
    addNotes(column, "refusals", tr("Not taken over:"), outcome.refused);
    addNotes(column, "messages", tr("The rules say:"), outcome.messages);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Apply | QDialogButtonBox::Cancel);
    QPushButton* apply = buttons->button(QDialogButtonBox::Apply);
    apply->setObjectName(QStringLiteral("applyPreset"));
    apply->setToolTip(tr("Set these fields"));
    apply->setEnabled(count > 0);
    apply->setDefault(true);
    connect(apply, &QPushButton::clicked, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    if (count > 0) {
        resize(640, qBound(300, 220 + count * 22, 560));
        apply->setFocus();
    }
}

SavePresetDialog::SavePresetDialog(const DEV::DeviceArg& device, int fields,
                                   const QStringList& lost, const PresetStore& store,
                                   QWidget* parent)
    : QDialog(parent)
    , m_store(store)
    , m_name(new QLineEdit)
    , m_summary(new QLineEdit)
    , m_devices(new QComboBox) {
    setObjectName(QStringLiteral("savePreset"));
    setWindowTitle(tr("Save as preset"));
    m_name->setObjectName(QStringLiteral("presetName"));
    m_name->setAccessibleName(tr("Name"));
    m_name->setPlaceholderText(tr("Such as: Backplane, 4 lanes"));
    m_summary->setObjectName(QStringLiteral("presetSummary"));
    m_summary->setAccessibleName(tr("Description"));
    m_devices->setObjectName(QStringLiteral("presetDevices"));
    m_devices->setAccessibleName(tr("Offered for"));
    m_devices->setToolTip(tr("The preset is offered for these devices only"));
    const auto info = Core::IdeCore::deviceDataBase().info(device);
    if (info != nullptr) {
        m_devices->addItem(tr("Devices of the class %1").arg(info->className), info->className);
    }
    m_devices->addItem(tr("%1 only").arg(device.id()), device.id());
    m_devices->addItem(tr("All devices"), QStringLiteral("*"));

    auto* form = new QFormLayout;
    form->addRow(tr("Name:"), m_name);
    form->addRow(tr("Description:"), m_summary);
    form->addRow(tr("Offered for:"), m_devices);
    auto* column = new QVBoxLayout(this);
    column->addWidget(
        note(tr("Saves what the pages' open fields show now: %1 of them.").arg(fields)));
    column->addLayout(form);
    addNotes(column, "lost", tr("In a new dialog these would not come out as they are now:"), lost);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    QPushButton* save = buttons->button(QDialogButtonBox::Save);
    save->setEnabled(false);
    connect(m_name, &QLineEdit::textChanged, save,
            [save](const QString& text) { save->setEnabled(!text.trimmed().isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addStretch(1);
    column->addWidget(buttons);
    resize(460, sizeHint().height());
}

QString SavePresetDialog::name() const {
    return m_name->text().trimmed();
}
QString SavePresetDialog::summary() const {
    return m_summary->text().trimmed();
}
QStringList SavePresetDialog::devices() const {
    return {m_devices->currentData().toString()};
}

void SavePresetDialog::accept() {
    const QString fault = presetNameFault(name());
    if (!fault.isEmpty()) {
        QMessageBox::warning(this, windowTitle(), fault);
        return;
    }
    if (mayReplace(this, m_store, name())) {
        QDialog::accept();
    }
}

bool mayReplace(QWidget* parent, const PresetStore& store, const QString& name) {
    const Preset* same = store.find(name);
    if (same == nullptr || !same->own) {
        return true; // one that came with the IP is refused by the store
    }
    return QMessageBox::question(
               parent, ManagePresetsDialog::tr("Replace"),
               ManagePresetsDialog::tr("There is a preset \"%1\" already. Replace it?")
                   .arg(same->name),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

ManagePresetsDialog::ManagePresetsDialog(PresetStore& store, QWidget* parent)
    : QDialog(parent)
    , m_store(store)
    , m_list(new QListWidget)
    , m_faults(note({})) {
    setObjectName(QStringLiteral("managePresets"));
    setWindowTitle(tr("Manage presets"));
    m_list->setObjectName(QStringLiteral("ownPresets"));
    m_list->setAccessibleName(tr("Your presets"));
    m_list->setAlternatingRowColors(true);
    m_faults->setObjectName(QStringLiteral("faults"));
    m_faults->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    m_rename = buttons->addButton(tr("Rename …"), QDialogButtonBox::ActionRole);
    m_rename->setObjectName(QStringLiteral("renamePreset"));
    m_rename->setToolTip(tr("Give the chosen preset another name (F2)"));
    m_rename->setShortcut(Qt::Key_F2);
    m_remove = buttons->addButton(tr("Delete"), QDialogButtonBox::ActionRole);
    m_remove->setObjectName(QStringLiteral("removePreset"));
    m_remove->setToolTip(tr("Delete the chosen preset (Del)"));
    m_remove->setShortcut(Qt::Key_Delete);
    connect(m_rename, &QPushButton::clicked, this, &ManagePresetsDialog::renameChosen);
    connect(m_remove, &QPushButton::clicked, this, &ManagePresetsDialog::removeChosen);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &ManagePresetsDialog::renameChosen);

    auto* column = new QVBoxLayout(this);
    auto* label = note(tr("Your presets:"));
    label->setBuddy(m_list);
    column->addWidget(label);
    column->addWidget(m_list, 1);
    column->addWidget(m_faults);
    column->addWidget(buttons);
    resize(480, 340);
    fill();
}

void ManagePresetsDialog::fill(const QString& chosen) {
    m_list->clear();
    for (const Preset& preset : m_store.presets()) {
        if (preset.own) {
            auto* item = new QListWidgetItem(preset.name, m_list);
            item->setToolTip(preset.summary);
            if (m_list->currentRow() < 0 || preset.name == chosen) {
                m_list->setCurrentItem(item);
            }
        }
    }
    QStringList faults;
    for (const PresetStore::Fault& fault : m_store.faults()) {
        faults.append(tr("Damaged: %1: %2").arg(fault.file, fault.reason));
    }
    m_faults->setText(faults.join(QLatin1Char('\n')));
    m_faults->setVisible(!faults.isEmpty());
    m_rename->setEnabled(m_list->count() > 0);
    m_remove->setEnabled(m_list->count() > 0);
}

QString ManagePresetsDialog::chosen() const {
    return m_list->currentItem() == nullptr ? QString() : m_list->currentItem()->text();
}

void ManagePresetsDialog::renameChosen() {
    const QString former = chosen();
    bool taken = false;
    const QString name =
        QInputDialog::getText(this, tr("Rename"), tr("Name:"), QLineEdit::Normal, former, &taken)
            .trimmed();
    if (!taken || former.isEmpty() || name == former) {
        return;
    }
    const bool onlyCase = name.compare(former, Qt::CaseInsensitive) == 0;
    if (!onlyCase && !mayReplace(this, m_store, name)) {
        return;
    }
    const QString failed = m_store.rename(former, name);
    fill(failed.isEmpty() ? name : former);
    if (!failed.isEmpty()) {
        QMessageBox::warning(this, windowTitle(), failed);
    }
}

void ManagePresetsDialog::removeChosen() {
    const QString name = chosen();
    const bool sure = !name.isEmpty() &&
                      QMessageBox::question(
                          this, tr("Delete"), tr("Delete the preset \"%1\"?").arg(name),
                          QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
    if (!sure) {
        return;
    }
    const QString failed = m_store.remove(name);
    fill();
    if (!failed.isEmpty()) {
        QMessageBox::warning(this, windowTitle(), failed);
    }
}

} // namespace IPSERDESIP
