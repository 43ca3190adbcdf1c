#include "ipgen/core/translation.h"

#include "ipgen/core/installation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace Ipgen {

Translation::Translation()
    : Translation(QLocale::system().uiLanguages()) {}

Translation::Translation(const QStringList& languages) {
    for (const QString& name : languages) {
        const QLocale locale(name);
        // Behind English in the list there may be another language that there is a file of.
        if (locale.language() == QLocale::English || locale.language() == QLocale::C) {
            return;
        }
        if (m_own.load(locale, QStringLiteral("ipgen"), QStringLiteral("_"), translationFolder())) {
            m_language = locale.name().section(QLatin1Char('_'), 0, 0);
            QCoreApplication::installTranslator(&m_own);
            if (m_qt.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
                QCoreApplication::installTranslator(&m_qt);
            }
            return;
        }
    }
}

Translation::~Translation() {
    QCoreApplication::removeTranslator(&m_qt);
    QCoreApplication::removeTranslator(&m_own);
}

} // namespace Ipgen
