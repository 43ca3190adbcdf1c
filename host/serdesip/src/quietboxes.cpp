#include "quietboxes.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace IPSERDESIP {

QuietBoxes::QuietBoxes() {
    qApp->installEventFilter(this);
}

bool QuietBoxes::eventFilter(QObject* object, QEvent* event) {
    auto* box = qobject_cast<QMessageBox*>(object);
    if (box == nullptr) {
        return false;
    }
    if (event->type() == QEvent::Polish) {
        box->setAttribute(Qt::WA_DontShowOnScreen); // polishing comes before showing
    } else if (event->type() == QEvent::Show) {
        const QString title = box->windowTitle();
        m_words.append(title == box->text() || title.isEmpty()
                           ? box->text()
                           : title + QLatin1String(": ") + box->text());
        QTimer::singleShot(0, box, [box] {
            // Without a default button, as the window's close button does it.
            if (box->defaultButton() != nullptr) {
                box->defaultButton()->click();
            } else {
                box->close();
            }
            if (box->isVisible()) {
                box->done(QMessageBox::Cancel);
            }
        });
    }
    return false;
}

} // namespace IPSERDESIP
