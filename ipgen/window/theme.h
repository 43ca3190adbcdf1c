#pragma once

#include "ipgen/window/settings.h"

#include <QPalette>

class QColor;

namespace Window {

/// Applies a theme to the running application. System leaves the platform's own.
void applyTheme(Settings::Theme theme);

/// Whether texts of this palette are light on dark.
bool isDark(const QPalette& palette);

/// Colours for states that read on this palette's base.
QColor goodColor(const QPalette& palette);
QColor warningColor(const QPalette& palette);
QColor badColor(const QPalette& palette);

} // namespace Window
