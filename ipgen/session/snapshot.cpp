#include "ipgen/session/snapshot.h"

#include <serdesip/dialogview.h>
#include <serdesip/protocolgendlg.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>

namespace Ipgen::Session {

namespace {

QString key(const char* name) {
    return QLatin1String(name);
}

/// An item's data as far as JSON has a kind for it.
QVariant plainData(const QVariant& data) {
    switch (data.type()) {
    case QVariant::Bool:
    case QVariant::Int:
    case QVariant::LongLong:
    case QVariant::ULongLong:
    case QVariant::Double:
    case QVariant::String:
        return data;
    case QVariant::UInt:
        return data.toLongLong();
    default:
        return {};
    }
}

QVariantList itemsOf(const QComboBox& combo) {
    QVariantList items;
    for (int i = 0; i < combo.count(); ++i) {
        items.append(QVariant(QVariantList{combo.itemText(i), plainData(combo.itemData(i))}));
    }
    return items;
}

void describe(const QLineEdit& edit, QVariantMap* entry) {
    entry->insert(key("text"), edit.displayText());
}

void describe(const QComboBox& combo, QVariantMap* entry) {
    entry->insert(key("text"), combo.currentText());
    entry->insert(key("current"), combo.currentIndex());
    entry->insert(key("items"), itemsOf(combo));
}

void describe(const QCheckBox& box, QVariantMap* entry) {
    entry->insert(key("text"), box.text());
    entry->insert(key("checked"), box.isChecked());
}

void describe(const QSpinBox& spin, QVariantMap* entry) {
    entry->insert(key("text"), spin.text());
    entry->insert(key("value"), spin.value());
}

void describe(const QDoubleSpinBox& spin, QVariantMap* entry) {
    entry->insert(key("text"), spin.text());
    entry->insert(key("value"), spin.value());
}

void describe(const QPushButton& button, QVariantMap* entry) {
    entry->insert(key("text"), button.text());
}

void describe(const QLabel& label, QVariantMap* entry) {
    entry->insert(key("text"), label.text());
}

void describe(const QGroupBox& box, QVariantMap* entry) {
    entry->insert(key("text"), box.title());
    if (box.isCheckable()) {
        entry->insert(key("checked"), box.isChecked());
    }
}

using Describer = void (*)(const QWidget&, QVariantMap*);

template <typename Widget>
void describeAs(const QWidget& widget, QVariantMap* entry) {
    describe(static_cast<const Widget&>(widget), entry);
}

struct Kind {
    const QMetaObject* meta;
    Describer describer;
};

const Kind* kindOf(const QWidget* widget) {
    static const Kind kinds[] = {
        {&QLineEdit::staticMetaObject, describeAs<QLineEdit>},
        {&QComboBox::staticMetaObject, describeAs<QComboBox>},
        {&QCheckBox::staticMetaObject, describeAs<QCheckBox>},
        {&QSpinBox::staticMetaObject, describeAs<QSpinBox>},
        {&QDoubleSpinBox::staticMetaObject, describeAs<QDoubleSpinBox>},
        {&QPushButton::staticMetaObject, describeAs<QPushButton>},
        {&QLabel::staticMetaObject, describeAs<QLabel>},
        {&QGroupBox::staticMetaObject, describeAs<QGroupBox>},
    };
    for (const QMetaObject* meta = widget->metaObject(); meta != nullptr;
         meta = meta->superClass()) {
        for (const Kind& kind : kinds) {
            if (kind.meta == meta) {
                return &kind;
            }
        }
    }
    return nullptr;
}

} // namespace

const char* plainClass(const QWidget* widget) {
    const Kind* kind = kindOf(widget);
    return kind == nullptr ? nullptr : kind->meta->className();
}

QVariantMap snapshotOfPage(const QWidget* page) {
    QVariantMap all;
    const auto widgets = page->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const QString name = widget->objectName();
        const Kind* kind = kindOf(widget);
        // Names of this form are of parts inside Qt's own widgets.
        if (kind == nullptr || name.isEmpty() || name.startsWith(QLatin1String("qt_"))) {
            continue;
        }
        const bool visible = widget->isVisibleTo(page);
        const auto former = all.constFind(name);
        if (former != all.constEnd() &&
            (!visible || former->toMap().value(key("visible")).toBool())) {
            continue;
        }
        QVariantMap entry{{key("class"), key(kind->meta->className())},
                          {key("enabled"), widget->isEnabled()},
                          {key("visible"), visible}};
        kind->describer(*widget, &entry);
        all.insert(name, entry);
    }
    return all;
}

QVariantMap snapshotOf(const IPSERDESIP::DialogView& view) {
    QVariantMap all;
    const QTabWidget* tabs = view.tabs();
    for (int i = 0; tabs != nullptr && i < tabs->count(); ++i) {
        const QString prefix = QStringLiteral("tab%1/").arg(i + 1);
        const QVariantMap page = snapshotOfPage(tabs->widget(i));
        for (auto it = page.begin(); it != page.end(); ++it) {
            all.insert(prefix + it.key(), it.value());
        }
    }
    return all;
}

QVariantList figureOf(const IPSERDESIP::protocolGenDlg& dialog) {
    QVariantList pins;
    const auto figure = dialog.figurePins();
    for (const Utils::PinFigure& pin : figure) {
        const bool sided = (pin.alignment() & (Qt::AlignLeft | Qt::AlignRight)) != 0;
        const bool right = sided ? pin.alignment().testFlag(Qt::AlignRight) : pin.direction() == 1;
        pins.append(QVariantMap{{key("name"), pin.name()},
                                {key("direction"), pin.direction()},
                                {key("bus"), pin.isBus()},
                                {key("side"), right ? key("right") : key("left")}});
    }
    return pins;
}

} // namespace Ipgen::Session
