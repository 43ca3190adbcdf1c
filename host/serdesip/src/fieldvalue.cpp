#include "fieldvalue.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
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
    if (const auto* spin = qobject_cast<const QDoubleSpinBox*>(&field)) {
        return QVariant(spin->value()).toString();
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&field)) {
        return box->isCheckable() ? QLatin1String(box->isChecked() ? kChecked : kUnchecked)
                                  : QString();
    }
    return {};
}

bool shows(const QWidget& field, const QVariant& value) {
    const QString shown = read(field);
    const QString wanted = value.toString(); // of a boolean as read() says
    if (shown == wanted) {
        return true;
    }
    const auto* edit = qobject_cast<const QLineEdit*>(&field);
    if (edit != nullptr && !edit->inputMask().isEmpty()) {
        QLineEdit same; // what the mask makes of the value
        same.setInputMask(edit->inputMask());
        same.setText(wanted);
        return same.displayText() == shown && shown.startsWith(wanted, Qt::CaseInsensitive);
    }
    if (edit == nullptr && qobject_cast<const QAbstractSpinBox*>(&field) == nullptr) {
        return false;
    }
    bool isNumber = false;
    bool showsNumber = false;
    const double number = wanted.toDouble(&isNumber);
    return shown.toDouble(&showsNumber) == number && isNumber && showsNumber;
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
    } else if (auto* number = qobject_cast<QDoubleSpinBox*>(&field)) {
        number->setValue(value.toDouble());
    } else if (auto* group = qobject_cast<QGroupBox*>(&field)) {
        group->setChecked(value == QLatin1String(kChecked));
    }
}

void tellEdited(QWidget& field) {
    if (auto* edit = qobject_cast<QLineEdit*>(&field)) {
        Q_EMIT edit->textEdited(edit->text());
    } else if (auto* combo = qobject_cast<QComboBox*>(&field)) {
        Q_EMIT combo->activated(combo->currentIndex());
    } else if (auto* box = qobject_cast<QCheckBox*>(&field)) {
        Q_EMIT box->clicked(box->isChecked());
    } else if (auto* group = qobject_cast<QGroupBox*>(&field)) {
        Q_EMIT group->clicked(group->isChecked());
    } else if (auto* inner = field.findChild<QLineEdit*>()) { // a spin box's
        Q_EMIT inner->textEdited(inner->text());
    }
}

QVariant typedValue(const QWidget& field) {
    if (const auto* box = qobject_cast<const QCheckBox*>(&field)) {
        return box->isChecked();
    }
    if (const auto* spin = qobject_cast<const QSpinBox*>(&field)) {
        return spin->value();
    }
    if (const auto* spin = qobject_cast<const QDoubleSpinBox*>(&field)) {
        return spin->value();
    }
    const auto* group = qobject_cast<const QGroupBox*>(&field);
    if (group != nullptr && group->isCheckable()) {
        return group->isChecked();
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
