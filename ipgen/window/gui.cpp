#include "ipgen/window/gui.h"

#include "ipgen/core/translation.h"
#include "ipgen/window/mainwindow.h"
#include "ipgen/window/settings.h"
#include "ipgen/window/theme.h"

#include <QApplication>

namespace Window {

int runGui(const QString& project, const QStringList& pluginDirs) {
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setDesktopFileName(QStringLiteral("ipgen"));
    const Ipgen::Translation translation;
    QGuiApplication::setApplicationDisplayName(
        QCoreApplication::translate("Window", "IP generator"));
    applyTheme(Settings().theme());
    MainWindow window;
    window.open(pluginDirs, project);
    return QApplication::exec();
}

} // namespace Window
