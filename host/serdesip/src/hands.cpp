#include "serdesip/hands.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionButton>

namespace IPSERDESIP::Hands {

namespace {

/// Where a click meets the button: a check box answers only on its indicator and its text.
QPoint clickPoint(const QAbstractButton& button) {
    if (button.inherits("QCheckBox") || button.inherits("QRadioButton")) {
        QStyleOptionButton option;
        option.initFrom(&button);
        const auto element = button.inherits("QCheckBox") ? QStyle::SE_CheckBoxIndicator
                                                          : QStyle::SE_RadioButtonIndicator;
        const QRect indicator = button.style()->subElementRect(element, &option, &button);
        if (button.rect().contains(indicator.center())) {
            return indicator.center();
        }
    }
    return button.rect().center();
}

void sendMouse(QWidget* widget, QEvent::Type type, const QPoint& at, Qt::MouseButtons held) {
    QMouseEvent event(type, at, widget->window()->mapFromGlobal(widget->mapToGlobal(at)),
                      widget->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier,
                      Qt::MouseEventSynthesizedByApplication);
    QApplication::sendEvent(widget, &event);
}

/// The key that has a character on it, as far as its number is the character's.
int keyOf(const QString& character) {
    const ushort code = character.at(0).toUpper().unicode();
    return character.size() == 1 && code >= 0x20 && code <= 0xff ? code : int(Qt::Key_unknown);
}

} // namespace

void activate(QWidget* widget) {
    QWidget* window = widget->window();
    if (QApplication::activeWindow() != window) {
        window->raise();
        window->activateWindow();
        // Not every window system brings the activation about, and none at once.
        QApplication::setActiveWindow(window);
    }
}

void focusOn(QWidget* widget) {
    const QPointer<QWidget> alive(widget);
    activate(widget);
    if (alive) {
        widget->setFocus(Qt::MouseFocusReason);
    }
}

void pressKey(QWidget* widget, int key, const QString& text) {
    const QPointer<QWidget> alive(widget);
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &press);
    if (alive) {
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
        QApplication::sendEvent(widget, &release);
    }
}

void typeCharacter(QWidget* widget, const QString& character) {
    pressKey(widget, keyOf(character), character);
}

void click(QAbstractButton* button) {
    const QPointer<QAbstractButton> alive(button);
    activate(button);
    if (!alive) {
        return;
    }
    const QPoint at = clickPoint(*button);
    sendMouse(button, QEvent::MouseButtonPress, at, Qt::LeftButton);
    if (alive) {
        sendMouse(button, QEvent::MouseButtonRelease, at, Qt::NoButton);
    }
}

bool chooseItem(QComboBox* combo, int index) {
    const QPointer<QComboBox> alive(combo);
    focusOn(combo);
    if (!alive) {
        return false;
    }
    combo->showPopup();
    const QPointer<QAbstractItemView> view(alive ? combo->view() : nullptr);
    if (!view || !view->isVisible()) {
        return false;
    }
    view->setCurrentIndex(
        combo->model()->index(index, combo->modelColumn(), combo->rootModelIndex()));
    pressKey(view, Qt::Key_Return);
    if (view && view->isVisible()) {
        combo->hidePopup();
        return false;
    }
    return true;
}

} // namespace IPSERDESIP::Hands
