#include "dialog/messages.h"

#include <QMessageBox>
#include <QTimer>

namespace IPCUSTOMIZED {

void Messages::about(QWidget* parent, const QString& title, const QString& text) {
    const auto box = qMakePair(title, text);
    if (m_shown.contains(box)) {
        return;
    }
    m_shown.insert(box);
    QMessageBox::about(parent, title, text);
    // The action's other rules run before the event loop has its turn again.
    QTimer::singleShot(0, this, [this] { m_shown.clear(); });
}

} // namespace IPCUSTOMIZED
