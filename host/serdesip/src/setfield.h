#pragma once

#include <QString>
#include <QVariant>

class QWidget;

namespace IPSERDESIP {

/// Gives a field a value as a user does and takes the focus away from it again, to `rest` (may be
/// null: nowhere). The field is in reach and in sight.
/// @return why the field refused; empty: done. A field that refuses shows what it showed before.
QString setField(QWidget* field, const QVariant& to, QWidget* rest);

} // namespace IPSERDESIP
