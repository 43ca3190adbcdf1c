#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QStringList>

namespace Window {

/// What the window remembers between runs, in the user's configuration folder (XDG:
/// ~/.config/ipgen/ipgen.ini).
class Settings {
public:
    Settings();

    enum class Theme { System, Light, Dark };

    /// Folders of projects, the last one first.
    QStringList recentProjects() const;
    void addRecent(const QString& folder);
    void removeRecent(const QString& folder);

    Theme theme() const;
    void setTheme(Theme theme);

    QByteArray geometry() const;
    QByteArray windowState() const;
    QByteArray splitter(const QString& name) const;
    void setLayout(const QByteArray& geometry, const QByteArray& state);
    void setSplitter(const QString& name, const QByteArray& state);

    /// Where projects were made or opened last; else the user's documents.
    QString lastPlace() const;
    void setLastPlace(const QString& folder);

private:
    QSettings m_store;
};

} // namespace Window
