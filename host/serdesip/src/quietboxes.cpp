#include "quietboxes.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPointer>
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
    // Polishing comes before the first showing; a later one has no polishing.
    if (event->type() == QEvent::Polish || event->type() == QEvent::Show) {
        box->setAttribute(Qt::WA_DontShowOnScreen);
    }
    if (event->type() == QEvent::Show) {
        const QString title = box->windowTitle();
        m_words.append(title == box->text() || title.isEmpty()
                           ? box->text()
                           : title + QLatin1String(": ") + box->text());
        QTimer::singleShot(0, box, [box] {
            const QPointer<QMessageBox> alive(box);
            // Without a default button, as the window's close button does it.
            if (box->defaultButton() != nullptr) {
                box->defaultButton()->click();
            } else {
                box->close();
            }
            if (alive && box->isVisible()) {
                box->done(QMessageBox::Cancel);
            }
            if (alive) {
                box->setAttribute(Qt::WA_DontShowOnScreen, false); // it may be shown again
            }
        });
    }
    return false;
}

} // namespace IPSERDESIP
