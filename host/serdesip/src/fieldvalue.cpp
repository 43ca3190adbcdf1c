#include "fieldvalue.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QWidget>

#include <algorithm>

namespace IPSERDESIP::fieldvalue {

namespace {
const char* const kChecked = "true";
const char* const kUnchecked = "false";
} // namespace

QList<QWidget*> fieldsOf(const QWidget& root) {
    QList<QWidget*> fields;
    const QList<QWidget*> all = root.findChildren<QWidget*>();
    for (QWidget* widget : all) {
        const auto* edit = qobject_cast<QLineEdit*>(widget);
        const bool field = (edit != nullptr && !edit->isReadOnly()) ||
                           qobject_cast<QComboBox*>(widget) != nullptr ||
                           qobject_cast<QCheckBox*>(widget) != nullptr ||
                           qobject_cast<QSpinBox*>(widget) != nullptr;
        const QString name = widget->objectName();
        if (field && !name.isEmpty() && !name.startsWith(QLatin1String("qt_"))) {
            fields.append(widget);
        }
    }
    return fields;
}

QString read(const QWidget& field) {
    if (const auto* edit = qobject_cast<const QLineEdit*>(&field)) {
        return edit->displayText(); // text() drops what an input mask counts as blank
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&field)) {
        return combo->currentText();
    }
    if (const auto* box = qobject_cast<const QCheckBox*>(&field)) {
        return QLatin1String(box->isChecked() ? kChecked : kUnchecked);
    }
    if (const auto* spin = qobject_cast<const QSpinBox*>(&field)) {
        return QString::number(spin->value());
    }
    return {};
}

void write(QWidget& field, const QString& value) {
    if (auto* edit = qobject_cast<QLineEdit*>(&field)) {
        edit->setText(value);
        if (edit->isEnabled()) {
            Q_EMIT edit->editingFinished();
        }
    } else if (auto* combo = qobject_cast<QComboBox*>(&field)) {
        combo->setCurrentIndex(combo->findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive));
    } else if (auto* box = qobject_cast<QCheckBox*>(&field)) {
        box->setChecked(value == QLatin1String(kChecked));
    } else if (auto* spin = qobject_cast<QSpinBox*>(&field)) {
        spin->setValue(value.toInt());
    }
}

void tellEdited(QWidget& field) {
    if (auto* edit = qobject_cast<QLineEdit*>(&field)) {
        Q_EMIT edit->textEdited(edit->text());
    } else if (auto* combo = qobject_cast<QComboBox*>(&field)) {
        Q_EMIT combo->activated(combo->currentIndex());
    } else if (auto* box = qobject_cast<QCheckBox*>(&field)) {
        Q_EMIT box->clicked(box->isChecked());
    }
}

QVariant typedValue(const QWidget& field) {
    if (const auto* box = qobject_cast<const QCheckBox*>(&field)) {
        return box->isChecked();
    }
    if (const auto* spin = qobject_cast<const QSpinBox*>(&field)) {
        return spin->value();
    }
    return read(field);
}

QString captionOf(const QWidget& field) {
    QString caption;
    if (const auto* box = qobject_cast<const QCheckBox*>(&field)) {
        caption = box->text();
    }
    if (caption.isEmpty()) {
        const QList<QLabel*> labels = field.window()->findChildren<QLabel*>();
        const auto own = std::find_if(labels.begin(), labels.end(), [&](const QLabel* label) {
            return label->buddy() == &field;
        });
        caption = own != labels.end() ? (*own)->text() : field.accessibleName();
    }
    caption.remove(QLatin1Char('&'));
    caption = caption.trimmed();
    while (caption.endsWith(QLatin1Char(':'))) {
        caption.chop(1);
    }
    return caption.isEmpty() ? field.objectName() : caption;
}

bool canShow(const QWidget& field, const QString& value) {
    const auto* combo = qobject_cast<const QComboBox*>(&field);
    return combo == nullptr ||
           combo->findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0;
}

} // namespace IPSERDESIP::fieldvalue
