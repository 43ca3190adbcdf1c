#pragma once

#include <QStringList>
#include <QTranslator>

namespace Ipgen {

/// The language of the user for the window and the frame of the dialogs, as long as this lives.
/// Command lines, scripted and recorded sessions have none: what they print, save and play is the
/// same everywhere. An application object must exist.
class Translation {
public:
    /// For the languages of the environment (LANGUAGE, LC_ALL, LC_MESSAGES, LANG).
    Translation();
    /// For the first of these languages ("de-DE", "tr") that there is; the texts of the sources
    /// are English.
    explicit Translation(const QStringList& languages);
    ~Translation();
    Translation(const Translation&) = delete;
    Translation& operator=(const Translation&) = delete;
    Translation(Translation&&) = delete;
    Translation& operator=(Translation&&) = delete;

    /// "de"; empty: English.
    QString language() const { return m_language; }

private:
    QTranslator m_own;
    QTranslator m_qt; ///< the buttons and menus that Qt brings along
    QString m_language;
};

} // namespace Ipgen
