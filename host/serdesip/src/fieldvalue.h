#pragma once

#include <QList>
#include <QString>
#include <QVariant>

class QWidget;

namespace IPSERDESIP {

/// A page's fields (all that setField() can set) read and set alike, as texts: what a user sees in
/// them.
namespace fieldvalue {

/// The fields below a widget that a user can edit, in creation order; those without an object
/// name belong to other widgets and are left out.
QList<QWidget*> fieldsOf(const QWidget& root);

QString read(const QWidget& field);
/// Whether the field shows the value, maybe spelt in the field's own way: an input mask's letter
/// case and filling, a number's digits.
bool shows(const QWidget& field, const QVariant& value);
/// Sets the field as a user would, so that the rules run that listen to it.
void write(QWidget& field, const QString& value);
/// Sends what the field sends besides when it is a user who has set it.
void tellEdited(QWidget& field);
/// What a script or a preset says for the value that the field shows: text, boolean or number.
QVariant typedValue(const QWidget& field);
/// The field's name for the user: its label's text, else its own, without mnemonic and colon.
QString captionOf(const QWidget& field);
/// Whether the field can show the value: a combo box only what it lists.
bool canShow(const QWidget& field, const QString& value);

} // namespace fieldvalue

} // namespace IPSERDESIP
