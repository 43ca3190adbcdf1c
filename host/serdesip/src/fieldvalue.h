#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace IPSERDESIP {

/// A page's fields (line edits, combo boxes, check boxes, spin boxes) read and set alike, as
/// texts: what a user sees in them.
namespace fieldvalue {

/// The fields below a widget that a user can edit, in creation order; those without an object
/// name belong to other widgets and are left out.
QList<QWidget*> fieldsOf(const QWidget& root);

QString read(const QWidget& field);
/// Sets the field as a user would, so that the rules run that listen to it.
void write(QWidget& field, const QString& value);
/// Whether the field can show the value: a combo box only what it lists.
bool canShow(const QWidget& field, const QString& value);

} // namespace fieldvalue

} // namespace IPSERDESIP
