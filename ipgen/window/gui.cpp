#include "ipgen/window/gui.h"

#include "ipgen/window/mainwindow.h"
#include "ipgen/window/settings.h"
#include "ipgen/window/theme.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

namespace Window {

int runGui(const QString& project, const QStringList& pluginDirs) {
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setDesktopFileName(QStringLiteral("ipgen"));
    QGuiApplication::setApplicationDisplayName(
        QCoreApplication::translate("Window", "IP generator"));
    QTranslator own;
    if (own.load(QLocale(), QStringLiteral("ipgen"), QStringLiteral("_"),
                 QCoreApplication::applicationDirPath() +
                     QStringLiteral("/../share/ipgen/translations"))) {
        QCoreApplication::installTranslator(&own);
    }
    applyTheme(Settings().theme());
    MainWindow window;
    window.show();
    // The window is there before the plug-ins are read.
    QTimer::singleShot(0, &window, [&] { window.start(pluginDirs, project); });
    return QApplication::exec();
}

} // namespace Window
