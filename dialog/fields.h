#pragma once

#include <QLatin1String>
#include <QVariant>

#include <vector>

class QWidget;

namespace IPCUSTOMIZED {

struct FormSet;

/// How a key is tied to its widget.
enum class FieldKind {
    Value,       ///< the widget's value, saved and restored
    EnabledState ///< whether the widget is enabled: saved; on restoring it follows its rule
};

/// One row of the table that collecting and loading walk, in saved order.
struct Field {
    QLatin1String key;
    int page; ///< 1 ... 5
    const char* object;
    FieldKind kind = FieldKind::Value;
};

/// A new option is a row here, a widget in its form, and its line in model/config/lines.
const std::vector<Field>& fieldTable();

/// A field and its widget.
struct BoundField {
    Field field;
    QWidget* widget;
};

/// The table over a dialog's pages. A widget that is missing is a defect of the forms; its row is
/// left out and reported with qCritical().
std::vector<BoundField> bindFields(const FormSet& forms);

/// What is saved: a combo box's text, a masked field's displayed text, a line edit's text, a check
/// box's state, a spin box's number, a label's text.
QVariant fieldValue(const BoundField& field);
/// Shows a saved value. A combo box takes the item of exactly that text, else none.
void setFieldValue(const BoundField& field, const QVariant& value);

} // namespace IPCUSTOMIZED
