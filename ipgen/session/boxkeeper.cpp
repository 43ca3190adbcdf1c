#include "ipgen/session/boxkeeper.h"

#include <serdesip/hands.h>

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QInputDialog>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace Ipgen::Session {

namespace {

using IPSERDESIP::Hands::click;

/// How often a look is taken at what has not closed yet, in ms.
constexpr int sweepInterval = 100;

QAbstractButton* onlyOfRole(const QMessageBox* box, QMessageBox::ButtonRole role) {
    QAbstractButton* found = nullptr;
    const auto buttons = answersOf(box);
    for (QAbstractButton* button : buttons) {
        if (box->buttonRole(button) == role) {
            if (found != nullptr) {
                return nullptr;
            }
            found = button;
        }
    }
    return found;
}

QAbstractButton* buttonOfText(const QMessageBox* box, const QString& text) {
    const auto buttons = answersOf(box);
    for (QAbstractButton* button : buttons) {
        if (shownText(button) == text) {
            return button;
        }
    }
    return nullptr;
}

QStringList textsOf(const QList<QAbstractButton*>& buttons) {
    QStringList texts;
    for (const QAbstractButton* button : buttons) {
        texts.append(shownText(button));
    }
    return texts;
}

} // namespace

QString shownText(const QAbstractButton* button) {
    QString shown;
    const QString text = button->text();
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&') && ++i == text.size()) {
            break;
        }
        shown.append(text.at(i));
    }
    return shown;
}

QList<QAbstractButton*> answersOf(const QMessageBox* box) {
    QList<QAbstractButton*> answers;
    const auto buttons = box->buttons();
    for (QAbstractButton* button : buttons) {
        // The button that unfolds the details does not close the box.
        const bool unfolds = !box->detailedText().isEmpty() &&
                             box->buttonRole(button) == QMessageBox::ActionRole &&
                             box->standardButton(button) == QMessageBox::NoButton;
        if (!unfolds) {
            answers.append(button);
        }
    }
    // Qt lists them by role; the eye goes from left to right.
    std::stable_sort(
        answers.begin(), answers.end(),
        [](const QAbstractButton* a, const QAbstractButton* b) { return a->x() < b->x(); });
    return answers;
}

QAbstractButton* escapeAnswer(const QMessageBox* box) {
    if (box->escapeButton() != nullptr) {
        return box->escapeButton();
    }
    const auto answers = answersOf(box);
    if (answers.size() == 1) {
        return answers.first();
    }
    QAbstractButton* reject = onlyOfRole(box, QMessageBox::RejectRole);
    return reject != nullptr ? reject : onlyOfRole(box, QMessageBox::NoRole);
}

QAbstractButton* defaultAnswer(const QMessageBox* box) {
    if (box->defaultButton() != nullptr) {
        return box->defaultButton();
    }
    const auto answers = answersOf(box);
    for (QAbstractButton* answer : answers) {
        const auto* button = qobject_cast<QPushButton*>(answer);
        if (button != nullptr && button->isDefault()) {
            return answer;
        }
    }
    QAbstractButton* escape = escapeAnswer(box);
    return escape != nullptr || answers.isEmpty() ? escape : answers.first();
}

BoxKeeper::BoxKeeper(QList<Report::Message>* messages, int pause)
    : m_messages(messages)
    , m_pause(pause) {
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &BoxKeeper::sweep);
    timer->start(sweepInterval + pause);
    qApp->installEventFilter(this);
}

void BoxKeeper::expectAnswer(const QString& button, int step, bool tries) {
    m_expected.append({button, step, tries});
}

bool BoxKeeper::isBusy() const {
    const QWidget* modal = QApplication::activeModalWidget();
    if (QApplication::activePopupWidget() != nullptr ||
        (modal != nullptr && modal != m_dialog.data())) {
        return true;
    }
    for (const Guest& guest : m_guests) {
        if (guest.dialog && guest.dialog->isVisible()) {
            return true;
        }
    }
    return false;
}

bool BoxKeeper::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Show && object != m_dialog.data()) {
        auto* dialog = qobject_cast<QDialog*>(object);
        const bool box = qobject_cast<QMessageBox*>(object) != nullptr;
        // A progress dialog closes by itself when the work is done.
        const bool ours = dialog != nullptr && dialog->isWindow() &&
                          qobject_cast<QProgressDialog*>(object) == nullptr &&
                          (box || dialog->isModal());
        if (ours && guestOf(dialog) == nullptr) {
            m_guests.append({dialog, 0, false});
            QTimer::singleShot(m_pause, dialog, [this, dialog] { attend(dialog); });
        }
    }
    return false;
}

BoxKeeper::Guest* BoxKeeper::guestOf(const QDialog* dialog) {
    for (Guest& guest : m_guests) {
        if (guest.dialog.data() == dialog) {
            return &guest;
        }
    }
    return nullptr;
}

void BoxKeeper::attend(QDialog* dialog) {
    Guest* guest = guestOf(dialog);
    if (guest == nullptr || guest->attempts > 0) {
        return;
    }
    guest->attempts = 1;
    if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
        answer(box);
        return;
    }
    const auto* input = qobject_cast<QInputDialog*>(dialog);
    note(dialog->windowTitle(),
         input != nullptr ? input->labelText() : QLatin1String(dialog->metaObject()->className()),
         {}, {});
    dialog->reject();
}

void BoxKeeper::note(const QString& title, const QString& text, const QStringList& buttons,
                     const QString& answer) {
    m_messages->append({title, text, buttons, answer});
    if (m_notice) {
        m_notice();
    }
}

QAbstractButton* BoxKeeper::chooseAnswer(QMessageBox* box) {
    const auto answers = answersOf(box);
    if (answers.size() > 1 && !m_expected.isEmpty()) {
        const Expected expected = m_expected.takeFirst();
        QAbstractButton* button = buttonOfText(box, expected.button);
        if (button != nullptr && button->isEnabled()) {
            return button;
        }
        if (m_complaint) {
            m_complaint(
                expected.step, expected.tries,
                QStringLiteral("the button \"%1\" is %2 in the box \"%3\", which has \"%4\"")
                    .arg(expected.button,
                         button == nullptr ? QStringLiteral("not") : QStringLiteral("disabled"),
                         box->windowTitle(), textsOf(answers).join(QStringLiteral("\", \""))));
        }
    }
    return defaultAnswer(box);
}

void BoxKeeper::answer(QMessageBox* box) {
    QAbstractButton* button = chooseAnswer(box);
    note(box->windowTitle(), box->text(), textsOf(answersOf(box)),
         button == nullptr ? QString() : shownText(button));
    if (button == nullptr) {
        box->reject();
        return;
    }
    guestOf(box)->busy = true;
    const QPointer<QMessageBox> alive(box);
    click(button);
    if (alive) {
        guestOf(box)->busy = false;
    }
}

/// Closes what did not close when it was asked to.
void BoxKeeper::insist(Guest* guest) {
    QDialog* dialog = guest->dialog;
    switch (guest->attempts++) {
    case 0:
        break; // its turn comes with attend()
    case 1:
        dialog->reject();
        break;
    case 2:
        dialog->done(QDialog::Rejected);
        break;
    default:
        // Past what the dialog's class may have overridden: ends its event loop in any case.
        dialog->QDialog::setVisible(false);
        break;
    }
}

void BoxKeeper::sweep() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    QWidget* modal = QApplication::activeModalWidget();
    for (int i = m_guests.size() - 1; i >= 0; --i) {
        if (!m_guests.at(i).dialog) {
            m_guests.removeAt(i);
            continue;
        }
        Guest* guest = &m_guests[i];
        const bool onTop = modal == nullptr || modal == guest->dialog || modal == m_dialog.data();
        if (onTop && guest->dialog->isVisible() && !guest->busy && guest->attempts > 0) {
            insist(guest);
            return;
        }
    }
    // A modal window that is no dialog.
    if (modal != nullptr && modal != m_dialog.data() && qobject_cast<QDialog*>(modal) == nullptr) {
        modal->close();
    }
}

} // namespace Ipgen::Session
