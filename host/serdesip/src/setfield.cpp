#include "setfield.h"

#include "serdesip/hands.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QSpinBox>

#include <cmath>

namespace IPSERDESIP {

namespace {

using namespace Hands;

/// The context of this file's texts.
struct FieldTexts {
    Q_DECLARE_TR_FUNCTIONS(FieldTexts)
};

QString quoted(const QString& text) {
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString vanished() {
    return FieldTexts::tr("it went away while it was used");
}

/// The focus goes on, as with the Tab key: fields tell their rules that editing has ended.
void leave(QWidget* field, QWidget* rest) {
    const QPointer<QWidget> alive(field);
    if (rest != nullptr) {
        rest->setFocus(Qt::TabFocusReason);
    }
    if (alive && alive->hasFocus()) {
        alive->clearFocus();
    }
}

/// A text's characters, those of two code units in one piece.
QStringList charactersOf(const QString& text) {
    QStringList all;
    for (int i = 0; i < text.size(); ++i) {
        const bool pair = text.at(i).isHighSurrogate() && i + 1 < text.size();
        all.append(text.mid(i, pair ? 2 : 1));
        i += pair ? 1 : 0;
    }
    return all;
}

/// Whether typing the character changed anything: text, cursor or selection. `typist` is what has
/// the focus, a spin box for its inner line edit.
bool typed(QLineEdit* edit, QWidget* typist, const QString& character) {
    const QPointer<QLineEdit> alive(edit);
    bool rejected = false;
    const auto watch =
        QObject::connect(edit, &QLineEdit::inputRejected, edit, [&rejected] { rejected = true; });
    const QString text = edit->displayText();
    const int cursor = edit->cursorPosition();
    const bool selected = edit->hasSelectedText();
    typeCharacter(typist, character);
    if (!alive) {
        return false;
    }
    QObject::disconnect(watch);
    return !rejected && (edit->displayText() != text || edit->cursorPosition() != cursor ||
                         edit->hasSelectedText() != selected);
}

/// In a masked field a blank or a separator that stands there already is stepped over.
bool steppedOver(QLineEdit* edit, const QString& character) {
    const int at = edit->cursorPosition();
    if (edit->inputMask().isEmpty() || edit->displayText().mid(at, 1) != character) {
        return false;
    }
    pressKey(edit, Qt::Key_Right);
    return true;
}

/// Why the text cannot be typed into the field that has the focus; empty: it stands there.
QString typeText(QLineEdit* edit, const QString& text) {
    const QPointer<QLineEdit> alive(edit);
    edit->selectAll();
    if (text.isEmpty() && !edit->displayText().isEmpty()) {
        const QString before = edit->displayText();
        pressKey(edit, Qt::Key_Delete);
        const bool emptied = alive && (edit->text().isEmpty() || edit->displayText() != before);
        return emptied ? QString() : FieldTexts::tr("it refuses to be emptied");
    }
    const QStringList characters = charactersOf(text);
    for (int i = 0; i < characters.size(); ++i) {
        const bool taken = typed(edit, edit, characters.at(i));
        if (!alive) {
            return vanished();
        }
        if (!taken && !steppedOver(edit, characters.at(i))) {
            return FieldTexts::tr("it refuses the character \"%1\" of \"%2\" (at %3)")
                .arg(characters.at(i), text, QString::number(i + 1));
        }
    }
    return {};
}

/// Undoes what was typed. Undoing keeps the places of a masked field's blanks, which its text
/// leaves out.
void takeBack(QLineEdit* edit, const QString& former, const QString& shown) {
    const QPointer<QLineEdit> alive(edit);
    while (alive && edit->displayText() != shown && edit->isUndoAvailable()) {
        edit->undo();
    }
    if (alive && edit->displayText() != shown) {
        edit->setText(former);
    }
}

QString setLineEdit(QLineEdit* edit, const QVariant& to, QWidget* rest) {
    if (to.type() != QVariant::String) {
        return FieldTexts::tr("it is a line edit and needs a text");
    }
    if (edit->isReadOnly()) {
        return FieldTexts::tr("it can only be read");
    }
    const QPointer<QLineEdit> alive(edit);
    focusOn(edit);
    if (!alive || !edit->isEnabled()) {
        return FieldTexts::tr("it cannot take the focus");
    }
    const QString former = edit->text();
    const QString shown = edit->displayText();
    const QString why = typeText(edit, to.toString());
    if (!alive) {
        return why;
    }
    if (!why.isEmpty()) {
        takeBack(edit, former, shown);
    }
    leave(edit, rest);
    return why;
}

QString setComboBox(QComboBox* combo, const QVariant& to) {
    if (to.type() != QVariant::String) {
        return FieldTexts::tr("it is a combo box and needs the text of an item");
    }
    const int index = combo->findText(to.toString(), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        QStringList items;
        for (int i = 0; i < combo->count(); ++i) {
            items.append(quoted(combo->itemText(i)));
        }
        return items.isEmpty()
                   ? FieldTexts::tr("it has no item \"%1\", it is empty").arg(to.toString())
                   : FieldTexts::tr("it has no item \"%1\"; it has %2")
                         .arg(to.toString(), items.join(QStringLiteral(", ")));
    }
    const QModelIndex item =
        combo->model()->index(index, combo->modelColumn(), combo->rootModelIndex());
    if (!item.flags().testFlag(Qt::ItemIsEnabled)) {
        return FieldTexts::tr("its item \"%1\" is disabled").arg(to.toString());
    }
    return chooseItem(combo, index) ? QString() : FieldTexts::tr("its list does not open");
}

/// True and false, also as the texts that a command line gives.
bool toTruth(const QVariant& value, bool* truth) {
    if (value.type() == QVariant::Bool) {
        *truth = value.toBool();
        return true;
    }
    *truth = value == QVariant(QStringLiteral("true"));
    return *truth || value == QVariant(QStringLiteral("false"));
}

QString setCheckBox(QCheckBox* box, const QVariant& to) {
    bool wanted = false;
    if (!toTruth(to, &wanted)) {
        return FieldTexts::tr("it is a check box and needs true or false");
    }
    const QPointer<QCheckBox> alive(box);
    if (box->isChecked() != wanted) {
        click(box);
        if (alive && box->isChecked() != wanted) {
            return wanted ? FieldTexts::tr("the click did not leave it checked")
                          : FieldTexts::tr("the click did not leave it unchecked");
        }
    }
    return {};
}

/// Checkable group boxes are clicked like check boxes, by the keyboard: their title is no button.
QString setGroupBox(QGroupBox* box, const QVariant& to) {
    bool wanted = false;
    if (!box->isCheckable() || !toTruth(to, &wanted)) {
        return box->isCheckable()
                   ? FieldTexts::tr("it is a checkable group and needs true or false")
                   : FieldTexts::tr("it is a group that cannot be checked");
    }
    if (box->isChecked() != wanted) {
        focusOn(box);
        pressKey(box, Qt::Key_Space);
    }
    return {};
}

/// A number, also as the text that a command line gives.
bool toNumber(const QVariant& value, double* number) {
    bool ok = value.type() != QVariant::Bool;
    *number = ok ? value.toDouble(&ok) : 0.0;
    return ok && std::isfinite(*number);
}

template <typename Spin>
QString setSpin(Spin* spin, const QVariant& to, bool whole, QWidget* rest) {
    double number = 0.0;
    if (!toNumber(to, &number) || (whole && number != std::floor(number))) {
        return whole ? FieldTexts::tr("it is a spin box and needs a whole number")
                     : FieldTexts::tr("it is a spin box and needs a number");
    }
    if (number < double(spin->minimum()) || number > double(spin->maximum())) {
        return FieldTexts::tr("%1 is out of its range, %2 to %3")
            .arg(QString::number(number, 'g', 15), QString::number(spin->minimum()),
                 QString::number(spin->maximum()));
    }
    if (spin->isReadOnly()) {
        return FieldTexts::tr("it can only be read");
    }
    const QPointer<Spin> alive(spin);
    const QPointer<QLineEdit> edit(spin->template findChild<QLineEdit*>());
    const auto former = spin->value();
    focusOn(spin);
    spin->selectAll();
    const QString text = whole
                             ? QString::number(qint64(number))
                             : spin->locale().toString(number, 'g', QLocale::FloatingPointShortest);
    bool taken = true;
    for (int i = 0; i < text.size() && taken && alive; ++i) {
        taken = edit && typed(edit, spin, text.mid(i, 1));
    }
    if (!alive) {
        return vanished();
    }
    if (!taken) {
        spin->setValue(former);
    }
    leave(spin, rest);
    return taken ? QString() : FieldTexts::tr("it refuses \"%1\"").arg(text);
}

} // namespace

QString setField(QWidget* field, const QVariant& to, QWidget* rest) {
    if (auto* edit = qobject_cast<QLineEdit*>(field)) {
        return setLineEdit(edit, to, rest);
    }
    if (auto* combo = qobject_cast<QComboBox*>(field)) {
        return setComboBox(combo, to);
    }
    if (auto* box = qobject_cast<QCheckBox*>(field)) {
        return setCheckBox(box, to);
    }
    if (auto* box = qobject_cast<QGroupBox*>(field)) {
        return setGroupBox(box, to);
    }
    if (auto* spin = qobject_cast<QSpinBox*>(field)) {
        return setSpin(spin, to, true, rest);
    }
    if (auto* spin = qobject_cast<QDoubleSpinBox*>(field)) {
        return setSpin(spin, to, false, rest);
    }
    return FieldTexts::tr("a %1 is no field that can be set")
        .arg(QLatin1String(field->metaObject()->className()));
}

} // namespace IPSERDESIP
