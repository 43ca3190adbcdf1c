#pragma once

#include <QPlainTextEdit>

namespace Window {

/// What was done in the window, each with the command line that does the same.
class LogPane : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit LogPane(QWidget* parent = nullptr);
    void addCommand(const QStringList& arguments);
    void addText(const QString& text);
};

/// A command line of this program for a shell, quoted where it must be.
QString commandLine(const QStringList& arguments);

} // namespace Window
