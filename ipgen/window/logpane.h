#pragma once

#include <QPlainTextEdit>

namespace Window {

/// What was done in the window, each with the command line that does the same.
class Log : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    void addCommand(const QStringList& arguments);
    void addText(const QString& text);
    /// The last ones of many.
    const QStringList& entries() const { return m_entries; }

Q_SIGNALS:
    void added(const QString& entry);

private:
    void add(const QString& entry);

    QStringList m_entries;
};

/// The log to read and to copy from.
class LogPane : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit LogPane(Log* log, QWidget* parent = nullptr);
};

/// A command line of this program for a shell, quoted where it must be.
QString commandLine(const QStringList& arguments);

} // namespace Window
