#pragma once

#include <QString>
#include <QStringList>

namespace Window {

/// Shows the window and runs it to its end; a QApplication must exist. Returns its exit status.
/// @param project     a project folder to open; empty: none
/// @param pluginDirs  further folders to search for IPs
int runGui(const QString& project, const QStringList& pluginDirs);

} // namespace Window
