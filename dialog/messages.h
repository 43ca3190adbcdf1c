#pragma once

#include <QObject>
#include <QPair>
#include <QSet>
#include <QString>

class QWidget;

namespace IPCUSTOMIZED {

/// The dialog's information boxes. One action of the user may run a rule several times, by
/// several signals; it shows a given box once.
class Messages : public QObject {
public:
    /// Shows a box with OK unless this action has shown it already.
    void about(QWidget* parent, const QString& title, const QString& text);

private:
    QSet<QPair<QString, QString>> m_shown;
};

} // namespace IPCUSTOMIZED
