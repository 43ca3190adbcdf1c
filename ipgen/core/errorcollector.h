#pragma once

#include <core/viewmanager.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

namespace Ipgen {

/// While it lives, the failures that libraries report to the user come here.
class ErrorCollector {
public:
    struct Entry {
        QString what;
        QString why;
    };

    ErrorCollector()
        : m_former(Core::ViewManager::setErrorSink([this](const QString& what, const QString& why) {
            m_entries.append({what, why});
        })) {}
    ~ErrorCollector() { Core::ViewManager::setErrorSink(std::move(m_former)); }
    ErrorCollector(const ErrorCollector&) = delete;
    ErrorCollector& operator=(const ErrorCollector&) = delete;

    const QList<Entry>& entries() const { return m_entries; }
    /// ": WHAT: WHY; WHAT: WHY", or nothing.
    QString suffix() const {
        QString text;
        for (const Entry& entry : m_entries) {
            text += (text.isEmpty() ? QStringLiteral(": ") : QStringLiteral("; ")) + entry.what +
                    QStringLiteral(": ") + entry.why;
        }
        return text;
    }

private:
    QList<Entry> m_entries;
    Core::ViewManager::ErrorSink m_former;
};

} // namespace Ipgen
