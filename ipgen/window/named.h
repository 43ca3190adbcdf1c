#pragma once

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

} // namespace Window
