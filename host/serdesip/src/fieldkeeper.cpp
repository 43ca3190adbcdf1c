#include "fieldkeeper.h"

#include "fieldmark.h"
#include "fieldvalue.h"

#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QTimer>

namespace IPSERDESIP {

FieldKeeper::FieldKeeper(QObject* parent)
    : QObject(parent) {}
FieldKeeper::~FieldKeeper() = default;

void FieldKeeper::watch(const QList<QWidget*>& fields) {
    m_fields = fields.toVector();
    for (QWidget* field : fields) {
        connectField(field);
        field->installEventFilter(this);
    }
    m_defaults = values();
    startHistory();
}

void FieldKeeper::startHistory() {
    m_steps.clear();
    m_done = 0;
    m_current = values();
    updateMarks();
    Q_EMIT historyChanged();
}

void FieldKeeper::connectField(QWidget* field) {
    // Two kinds of signals: those that only a user's hands cause name the edited field; those
    // that rules cause as well say that something has changed.
    const auto byUser = [this, field] { edited(field); };
    if (auto* edit = qobject_cast<QLineEdit*>(field)) {
        connect(edit, &QLineEdit::editingFinished, this, byUser);
        connect(edit, &QLineEdit::textChanged, this, &FieldKeeper::schedule);
    } else if (auto* combo = qobject_cast<QComboBox*>(field)) {
        connect(combo, QOverload<int>::of(&QComboBox::activated), this, byUser);
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &FieldKeeper::schedule);
    } else if (auto* box = qobject_cast<QCheckBox*>(field)) {
        connect(box, &QCheckBox::clicked, this, byUser);
        connect(box, &QCheckBox::toggled, this, &FieldKeeper::schedule);
    } else if (auto* spin = qobject_cast<QSpinBox*>(field)) {
        connect(spin, &QSpinBox::editingFinished, this, byUser);
        connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this, &FieldKeeper::schedule);
    }
}

void FieldKeeper::edited(QWidget* field) {
    if (!m_applying && m_edited < 0) {
        m_edited = m_fields.indexOf(field);
    }
    schedule();
}

void FieldKeeper::schedule() {
    if (!m_scheduled) {
        // After the rules have run, which may take several signals.
        m_scheduled = true;
        QTimer::singleShot(0, this, &FieldKeeper::settle);
    }
}

void FieldKeeper::settle() {
    m_scheduled = false;
    record();
    updateMarks();
}

void FieldKeeper::record() {
    const QStringList now = values();
    const int field = m_edited;
    if (field < 0 || m_held) {
        return; // text being typed, or a rule at work: part of the step that the edit will make
    }
    m_edited = -1;
    append(field, now, 1);
}

void FieldKeeper::append(int field, const QStringList& now, int edits) {
    if (now == m_current) {
        return;
    }
    m_steps.resize(m_done);
    m_steps.append({field, m_current, now, edits});
    m_done = m_steps.size();
    m_current = now;
    Q_EMIT historyChanged();
}

void FieldKeeper::perform(const std::function<void()>& edits) {
    record();
    m_held = true;
    m_performed = 0;
    m_between = values();
    edits();
    m_held = false;
    m_edited = -1;
    append(-1, values(), m_performed);
    updateMarks();
}

void FieldKeeper::noteEdit() {
    const QStringList now = values();
    if (m_edited >= 0 && now != m_between) {
        ++m_performed;
        m_between = now;
    }
    m_edited = -1;
}

bool FieldKeeper::rehearse(const std::function<void()>& edits, QStringList* outcome) {
    record();
    const QStringList before = values();
    m_held = true;
    edits();
    *outcome = values();
    show(before);
    m_held = false;
    m_edited = -1;
    updateMarks();
    return values() == before;
}

int FieldKeeper::undo() {
    record();
    if (!canUndo()) {
        return 0;
    }
    const Step& step = m_steps.at(--m_done);
    const int edits = step.edits;
    show(step.before, step.edited);
    stepTaken();
    return edits;
}

int FieldKeeper::redo() {
    record();
    if (!canRedo()) {
        return 0;
    }
    const Step& step = m_steps.at(m_done++);
    const int edits = step.edits;
    show(step.after, step.edited);
    stepTaken();
    return edits;
}

void FieldKeeper::show(const QStringList& wanted, int first) {
    m_applying = true;
    const auto put = [&](int i) {
        QWidget& field = *m_fields.at(i);
        const bool due = fieldvalue::read(field) != wanted.at(i);
        if (due) {
            fieldvalue::write(field, wanted.at(i));
        }
        return due;
    };
    // The edited field first: the rules then bring back most of what followed from it, through
    // states that the user has seen. A rule may still overwrite a field that was put back before.
    constexpr int kPasses = 4;
    bool changed = first >= 0 && put(first);
    for (int pass = 0; pass < kPasses && (changed || pass == 0); ++pass) {
        changed = false;
        for (int i = 0; i < m_fields.size(); ++i) {
            changed = put(i) || changed;
        }
    }
    m_applying = false;
}

void FieldKeeper::stepTaken() {
    m_edited = -1;
    m_current = values();
    updateMarks();
    Q_EMIT historyChanged();
}

QStringList FieldKeeper::values() const {
    QStringList list;
    list.reserve(m_fields.size());
    for (const QWidget* field : m_fields) {
        list.append(fieldvalue::read(*field));
    }
    return list;
}

QString FieldKeeper::defaultOf(QWidget* field) const {
    const int place = m_fields.indexOf(field);
    return place < 0 ? QString() : m_defaults.at(place);
}

bool FieldKeeper::differs(QWidget* field) const {
    const QString usual = defaultOf(field);
    return field->isEnabled() && fieldvalue::read(*field) != usual &&
           fieldvalue::canShow(*field, usual);
}

void FieldKeeper::resetField(QWidget* field) {
    if (differs(field)) {
        fieldvalue::write(*field, defaultOf(field));
        fieldvalue::tellEdited(*field); // a user's doing, for those who write it down
        edited(field);
    }
}

void FieldKeeper::updateMarks() {
    for (QWidget* field : qAsConst(m_fields)) {
        FieldMark* mark = m_marks.value(field);
        const bool wanted = differs(field) && !field->isHidden();
        if (wanted && mark == nullptr) {
            mark = new FieldMark(field);
            m_marks.insert(field, mark);
            connect(mark, &FieldMark::pressed, this,
                    [this, field] { showMenu(field, QCursor::pos()); });
        }
        if (mark != nullptr) {
            if (wanted) {
                mark->follow();
                mark->setToolTip(tr("Not the default, which is \"%1\"").arg(defaultOf(field)));
            }
            mark->setVisible(wanted);
        }
    }
}

bool FieldKeeper::showMenu(QWidget* field, const QPoint& at) {
    auto* edit = qobject_cast<QLineEdit*>(field);
    if (edit == nullptr) {
        edit = field->findChild<QLineEdit*>(); // a spin box's
    }
    QMenu* menu = edit != nullptr ? edit->createStandardContextMenu() : new QMenu(field);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!menu->isEmpty()) {
        menu->addSeparator();
    }
    QAction* reset =
        menu->addAction(tr("Reset to default"), this, [this, field] { resetField(field); });
    reset->setObjectName(QStringLiteral("resetField"));
    reset->setEnabled(differs(field));
    menu->popup(at);
    return true;
}

bool FieldKeeper::eventFilter(QObject* watched, QEvent* event) {
    auto* field = qobject_cast<QWidget*>(watched);
    if (field == nullptr) {
        return false;
    }
    switch (event->type()) {
    case QEvent::ContextMenu:
        return showMenu(field, static_cast<QContextMenuEvent*>(event)->globalPos());
    case QEvent::ShortcutOverride: {
        // A line edit claims the undo keys even when it has nothing to undo itself.
        const auto* edit = qobject_cast<QLineEdit*>(field);
        const auto* key = static_cast<QKeyEvent*>(event);
        if (edit != nullptr && ((key->matches(QKeySequence::Undo) && !edit->isUndoAvailable()) ||
                                (key->matches(QKeySequence::Redo) && !edit->isRedoAvailable()))) {
            event->ignore();
            return true;
        }
        break;
    }
    case QEvent::Move:
    case QEvent::Resize:
        if (FieldMark* mark = m_marks.value(field)) {
            mark->follow();
        }
        break;
    case QEvent::EnabledChange:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        schedule();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace IPSERDESIP
