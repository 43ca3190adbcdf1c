#include "ipgen/session/recorder.h"

#include "ipgen/session/boxkeeper.h"

#include <serdesip/protocolgendlg.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QSpinBox>
#include <QToolButton>

#include <algorithm>

namespace Ipgen::Session {

namespace {

QVariant valueOf(const QWidget* field) {
    if (const auto* edit = qobject_cast<const QLineEdit*>(field)) {
        return edit->displayText();
    }
    if (const auto* spin = qobject_cast<const QSpinBox*>(field)) {
        return spin->value();
    }
    if (const auto* spin = qobject_cast<const QDoubleSpinBox*>(field)) {
        return spin->value();
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(field)) {
        return combo->currentText();
    }
    if (const auto* check = qobject_cast<const QCheckBox*>(field)) {
        return check->isChecked();
    }
    return {};
}

/// The spin box that a widget is or belongs to; null: none.
QAbstractSpinBox* spinOf(QObject* object) {
    auto* spin = qobject_cast<QAbstractSpinBox*>(object);
    return spin != nullptr || object == nullptr ? spin
                                                : qobject_cast<QAbstractSpinBox*>(object->parent());
}

/// The button's text as a session without a language shows it: scripts name buttons by it.
QString plainText(const QMessageBox* box, QAbstractButton* button) {
    switch (box->standardButton(button)) {
    case QMessageBox::Ok:
        return QStringLiteral("OK");
    case QMessageBox::Yes:
        return QStringLiteral("Yes");
    case QMessageBox::No:
        return QStringLiteral("No");
    case QMessageBox::Cancel:
        return QStringLiteral("Cancel");
    case QMessageBox::Close:
        return QStringLiteral("Close");
    case QMessageBox::Retry:
        return QStringLiteral("Retry");
    case QMessageBox::Ignore:
        return QStringLiteral("Ignore");
    case QMessageBox::Abort:
        return QStringLiteral("Abort");
    case QMessageBox::Apply:
        return QStringLiteral("Apply");
    case QMessageBox::Save:
        return QStringLiteral("Save");
    default:
        return shownText(button);
    }
}

bool isInput(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::MouseButtonPress || type == QEvent::Wheel;
}

bool endsEditing(const QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        return static_cast<const QFocusEvent*>(event)->reason() != Qt::PopupFocusReason;
    }
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent*>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

Recorder::Recorder() {
    qApp->installEventFilter(this);
}

bool Recorder::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Show) {
        auto* dialog = qobject_cast<IPSERDESIP::protocolGenDlg*>(object);
        if (dialog != nullptr && !m_seen) {
            watchDialog(dialog);
        } else if (auto* box = qobject_cast<QMessageBox*>(object)) {
            if (!isTrial()) {
                watchBox(box);
            }
        }
        return false;
    }
    // Before the field itself hears of it: its rules may put another value in.
    if (m_edited && object == m_edited && endsEditing(event)) {
        commitEdited();
    }
    auto* widget = isInput(event->type()) ? qobject_cast<QWidget*>(object) : nullptr;
    if (widget != nullptr && m_view.dialog() != nullptr && m_view.dialog()->isAncestorOf(widget)) {
        QWidget* spin = spinOf(widget);
        if (m_edited && spin != m_edited && widget != m_edited) {
            commitEdited();
        }
        m_handled = spin;
    }
    return false;
}

void Recorder::watchDialog(IPSERDESIP::protocolGenDlg* dialog) {
    m_seen = true;
    m_view = IPSERDESIP::DialogView(dialog);
    QAbstractButton* ok = m_view.okButton();
    QAbstractButton* cancel = m_view.cancelButton();
    const auto widgets = dialog->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        // Names of the other form are of parts inside Qt's own widgets.
        const bool named = !m_view.nameOf(widget).isEmpty() &&
                           !widget->objectName().startsWith(QLatin1String("qt_"));
        if (named && widget != ok && widget != cancel) {
            noteStart(widget);
            watchField(widget);
        }
    }
    // A page after the other, the frame in front.
    std::stable_sort(m_start.begin(), m_start.end(), [](const Step& a, const Step& b) {
        return a.target.section(QLatin1Char('/'), 0, 0) < b.target.section(QLatin1Char('/'), 0, 0);
    });
    if (ok != nullptr) {
        connect(ok, &QAbstractButton::clicked, this, [this] {
            recordStep({Step::Kind::Accept, {}, {}, false});
        });
    }
    if (cancel != nullptr) {
        connect(cancel, &QAbstractButton::clicked, this, [this] {
            recordStep({Step::Kind::Cancel, {}, {}, false});
        });
    }
}

void Recorder::noteStart(const QWidget* field) {
    const auto* edit = qobject_cast<const QLineEdit*>(field);
    const QVariant value = valueOf(field);
    if (value.isValid() && (edit == nullptr || !edit->isReadOnly())) {
        m_start.append({Step::Kind::Set, m_view.nameOf(field), value, false});
    }
}

Script Recorder::names() const {
    Script names;
    for (const Step& step : m_start) {
        const auto* edit = qobject_cast<const QLineEdit*>(m_view.find(step.target).widget);
        if (edit != nullptr && m_view.find(step.target).page == nullptr) {
            names.append(step);
        }
    }
    return names;
}

Script Recorder::script() {
    commitEdited();
    return m_script + m_answers;
}

bool Recorder::isTrial() const {
    return m_view.dialog() != nullptr && m_view.dialog()->isRehearsing();
}

/// Each class tells by another signal what its user has done, and by none what its rules have.
void Recorder::watchField(QWidget* field) {
    if (auto* edit = qobject_cast<QLineEdit*>(field)) {
        connect(edit, &QLineEdit::textEdited, this, [this, edit] { wasEdited(edit); });
    } else if (auto* combo = qobject_cast<QComboBox*>(field)) {
        connect(combo, QOverload<int>::of(&QComboBox::activated), this,
                [this, combo](int index) { recordSet(combo, combo->itemText(index)); });
    } else if (auto* check = qobject_cast<QCheckBox*>(field)) {
        connect(check, &QCheckBox::clicked, this,
                [this, check](bool checked) { recordSet(check, checked); });
    } else if (auto* group = qobject_cast<QGroupBox*>(field)) {
        connect(group, &QGroupBox::clicked, this,
                [this, group](bool checked) { recordSet(group, checked); });
    } else if (auto* spin = qobject_cast<QSpinBox*>(field)) {
        connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this,
                [this, spin] { spinChanged(spin); });
        watchSpinText(spin);
    } else if (auto* real = qobject_cast<QDoubleSpinBox*>(field)) {
        connect(real, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this, real] { spinChanged(real); });
        watchSpinText(real);
    } else if (auto* button = qobject_cast<QAbstractButton*>(field)) {
        watchButton(button);
    }
}

/// The text is edited by typing, and by the frame's reset to the default.
void Recorder::watchSpinText(QWidget* spin) {
    if (const auto* text = spin->findChild<QLineEdit*>()) {
        connect(text, &QLineEdit::textEdited, this, [this, spin] { wasEdited(spin); });
    }
}

/// Of the frame's buttons only those count that change fields: they have an action, which a key
/// may trigger as well.
void Recorder::watchButton(QAbstractButton* button) {
    const auto pressed = [this, button] {
        recordStep({Step::Kind::Press, m_view.nameOf(button), {}, false});
    };
    const QString name = m_view.nameOf(button);
    const auto* tool = qobject_cast<QToolButton*>(button);
    if (m_view.find(name).page != nullptr) {
        connect(button, &QAbstractButton::clicked, this, pressed);
    } else if (tool != nullptr &&
               (name == QLatin1String("frame/undo") || name == QLatin1String("frame/redo"))) {
        // A step of the frame may stand for several edits, each a step of the script.
        const QAction* action = tool->defaultAction();
        connect(action, &QAction::triggered, this, [pressed, action] {
            for (int i = 0; i < action->property("edits").toInt(); ++i) {
                pressed();
            }
        });
    }
}

void Recorder::wasEdited(QWidget* field) {
    if (!isTrial()) {
        m_edited = field;
    }
}

void Recorder::spinChanged(QWidget* spin) {
    if (m_handled == spin) {
        wasEdited(spin);
    }
}

void Recorder::watchBox(QMessageBox* box) {
    connect(box, &QDialog::finished, this, [this, box] {
        QAbstractButton* button = box->clickedButton();
        if (button == nullptr) {
            button = escapeAnswer(box);
        }
        // A box without a choice needs no step.
        if (button != nullptr && answersOf(box).size() > 1) {
            recordAnswer(plainText(box, button));
        }
    });
}

/// An answer waits in its script for the next box that asks, so it may stand earlier than needed,
/// never later: it goes in front of the step whose box it answers. That may be a field that was
/// left just now; else it is the step that is still going on.
void Recorder::recordAnswer(const QString& button) {
    const Step answer{Step::Kind::Answer, button, {}, false};
    const bool afterField = !m_script.isEmpty() && m_leftField;
    if (afterField) {
        m_script.insert(m_script.size() - 1, answer);
    } else {
        m_answers.append(answer);
    }
}

void Recorder::recordSet(const QWidget* field, const QVariant& to) {
    recordStep({Step::Kind::Set, m_view.nameOf(field), to, false});
}

void Recorder::recordStep(const Step& step) {
    if (isTrial()) {
        return;
    }
    commitEdited();
    m_script.append(m_answers);
    m_answers.clear();
    m_script.append(step);
    m_leftField = false;
}

void Recorder::commitEdited() {
    if (!m_edited) {
        return;
    }
    const QWidget* field = m_edited;
    m_edited.clear();
    recordSet(field, valueOf(field));
    m_leftField = true;
}

} // namespace Ipgen::Session
