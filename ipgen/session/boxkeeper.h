#pragma once

#include "ipgen/session/report.h"

#include <QDialog>
#include <QObject>
#include <QPointer>

#include <functional>

class QAbstractButton;

class QMessageBox;

namespace Ipgen::Session {

/// A button's text as it is shown: without the mnemonic's mark.
QString shownText(const QAbstractButton* button);
/// The buttons that close the box, in its order.
QList<QAbstractButton*> answersOf(const QMessageBox* box);
/// The button that Enter takes, else the one that Esc takes, else the first; null: no buttons.
QAbstractButton* defaultAnswer(const QMessageBox* box);
/// The button that Esc and the close button of the box's window take; null: none.
QAbstractButton* escapeAnswer(const QMessageBox* box);

/// Watches for what opens beside a session's dialog and sees it closed: message boxes by their
/// buttons, other modal dialogs by rejecting them, popups by closing them. Works from inside the
/// event loops that these run themselves. What will not close is pressed harder each time.
class BoxKeeper : public QObject {
    Q_OBJECT

public:
    /// Writes each box into `messages`. Boxes stay on the screen for `pause` ms.
    BoxKeeper(QList<Report::Message>* messages, int pause);

    /// The dialog that is none of the keeper's business.
    void setDialog(QDialog* dialog) { m_dialog = dialog; }
    /// The button that the next box with a choice is answered with; asked for in turn.
    void expectAnswer(const QString& button, int step, bool tries);
    /// Whether a box, a popup or a modal dialog stands in the dialog's way.
    bool isBusy() const;

    using Complaint = std::function<void(int step, bool tries, const QString& why)>;
    /// Takes an expected answer that its box does not offer. The box gets its default one.
    void setComplaint(Complaint complaint) { m_complaint = std::move(complaint); }
    /// Called when a box has been noted, before it is answered.
    void setNotice(std::function<void()> notice) { m_notice = std::move(notice); }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    struct Expected {
        QString button;
        int step;
        bool tries;
    };
    /// A dialog that is being closed.
    struct Guest {
        QPointer<QDialog> dialog;
        int attempts = 0;
        bool busy = false; ///< a click on it has not returned yet
    };

    void attend(QDialog* dialog);
    void answer(QMessageBox* box);
    QAbstractButton* chooseAnswer(QMessageBox* box);
    void note(const QString& title, const QString& text, const QStringList& buttons,
              const QString& answer);
    void insist(Guest* guest);
    void sweep();
    Guest* guestOf(const QDialog* dialog);

    QList<Report::Message>* m_messages;
    int m_pause;
    QPointer<QDialog> m_dialog;
    QList<Expected> m_expected;
    QList<Guest> m_guests;
    Complaint m_complaint;
    std::function<void()> m_notice;
};

} // namespace Ipgen::Session
