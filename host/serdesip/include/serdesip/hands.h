#pragma once

#include "serdesip/export.h"

#include <QString>

class QAbstractButton;
class QComboBox;
class QWidget;

namespace IPSERDESIP::Hands {

// What a user's hands do, as events through the event system. Each may start slots of the dialog,
// and with them message boxes: a widget may be gone when one of these returns.

/// Makes the widget's window the active one, as a click on it does.
HOST_SERDESIP_EXPORT void activate(QWidget* widget);
/// Activates the window and gives the widget the focus.
HOST_SERDESIP_EXPORT void focusOn(QWidget* widget);
/// Presses and releases a key; `text` is what it types.
HOST_SERDESIP_EXPORT void pressKey(QWidget* widget, int key, const QString& text = QString());
/// Types one character.
HOST_SERDESIP_EXPORT void typeCharacter(QWidget* widget, const QString& character);
/// Clicks a button or a check box with the left mouse button.
HOST_SERDESIP_EXPORT void click(QAbstractButton* button);
/// Opens the list, goes to an item, and takes it; false when the list does not open, or stays.
HOST_SERDESIP_EXPORT bool chooseItem(QComboBox* combo, int index);

} // namespace IPSERDESIP::Hands
