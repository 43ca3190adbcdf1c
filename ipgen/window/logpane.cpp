#include "ipgen/window/logpane.h"

#include "ipgen/window/named.h"

#include <QFontDatabase>
#include <QRegularExpression>

namespace Window {

QString commandLine(const QStringList& arguments) {
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_./:=@%+,-]+$"));
    QStringList words{QStringLiteral("ipgen")};
    for (const QString& argument : arguments) {
        if (plain.match(argument).hasMatch()) {
            words.append(argument);
            continue;
        }
        QString inside = argument;
        inside.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
        words.append(QLatin1Char('\'') + inside + QLatin1Char('\''));
    }
    return words.join(QLatin1Char(' '));
}

void Log::addCommand(const QStringList& arguments) {
    add(QStringLiteral("$ ") + commandLine(arguments));
}

void Log::addText(const QString& text) {
    if (!text.trimmed().isEmpty()) {
        add(text.trimmed());
    }
}

void Log::add(const QString& entry) {
    constexpr int most = 1000;
    m_entries.append(entry);
    if (m_entries.size() > most) {
        m_entries.removeFirst();
    }
    Q_EMIT added(entry);
}

LogPane::LogPane(Log* log, QWidget* parent)
    : QPlainTextEdit(parent) {
    constexpr int most = 5000; // lines
    named(this, "log", tr("Log"), tr("What was done, with the command lines that do the same"));
    setReadOnly(true);
    setTabChangesFocus(true);
    setMaximumBlockCount(most);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setPlaceholderText(tr("What you do in the window stands here as command lines."));
    for (const QString& entry : log->entries()) {
        appendPlainText(entry);
    }
    connect(log, &Log::added, this, &QPlainTextEdit::appendPlainText);
}

} // namespace Window
