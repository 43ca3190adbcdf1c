#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>

namespace Window {

/// Gives a widget what assistive tools and tests know it by: object name, accessible name and,
/// when given, the tooltip. Returns the widget.
template <class W>
W* named(W* widget, const char* object, const QString& name, const QString& tip = QString()) {
    widget->setObjectName(QLatin1String(object));
    widget->setAccessibleName(name);
    if (!tip.isEmpty()) {
        widget->setToolTip(tip);
    }
    return widget;
}

/// The same label in bold: plain text, which a label lays out much faster than rich text.
inline QLabel* strong(QLabel* label) {
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace Window
