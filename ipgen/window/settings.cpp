#include "ipgen/window/settings.h"

#include <QStandardPaths>

namespace Window {

namespace {

const QString recentKey = QStringLiteral("recentProjects");
const QString themeKey = QStringLiteral("theme");
const QString geometryKey = QStringLiteral("window/geometry");
const QString stateKey = QStringLiteral("window/state");
const QString splitterGroup = QStringLiteral("splitter/");
const QString placeKey = QStringLiteral("lastPlace");

} // namespace

Settings::Settings()
    : m_store(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("ipgen"),
              QStringLiteral("ipgen")) {}

QStringList Settings::recentProjects() const {
    return m_store.value(recentKey).toStringList();
}

void Settings::addRecent(const QString& folder) {
    constexpr int most = 9; // a digit key each
    QStringList all = recentProjects();
    all.removeAll(folder);
    all.prepend(folder);
    m_store.setValue(recentKey, QStringList(all.mid(0, most)));
}

void Settings::removeRecent(const QString& folder) {
    QStringList all = recentProjects();
    all.removeAll(folder);
    m_store.setValue(recentKey, all);
}

Settings::Theme Settings::theme() const {
    const QString name = m_store.value(themeKey).toString();
    return name == QLatin1String("light")  ? Theme::Light
           : name == QLatin1String("dark") ? Theme::Dark
                                           : Theme::System;
}

void Settings::setTheme(Theme theme) {
    m_store.setValue(themeKey, theme == Theme::Light  ? QStringLiteral("light")
                               : theme == Theme::Dark ? QStringLiteral("dark")
                                                      : QStringLiteral("system"));
}

QByteArray Settings::geometry() const {
    return m_store.value(geometryKey).toByteArray();
}

QByteArray Settings::windowState() const {
    return m_store.value(stateKey).toByteArray();
}

QByteArray Settings::splitter(const QString& name) const {
    return m_store.value(splitterGroup + name).toByteArray();
}

void Settings::setLayout(const QByteArray& geometry, const QByteArray& state) {
    m_store.setValue(geometryKey, geometry);
    m_store.setValue(stateKey, state);
}

void Settings::setSplitter(const QString& name, const QByteArray& state) {
    m_store.setValue(splitterGroup + name, state);
}

QString Settings::lastPlace() const {
    const QString last = m_store.value(placeKey).toString();
    return last.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                          : last;
}

void Settings::setLastPlace(const QString& folder) {
    m_store.setValue(placeKey, folder);
}

} // namespace Window
