#pragma once

#include <QComboBox>
#include <QString>

namespace IPCUSTOMIZED {

/// The place of the item of exactly this text, the case included; -1: there is none.
inline int itemIndex(const QComboBox* combo, const QString& text) {
    return combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

/// Selects the item of exactly this text, if there is one.
inline void selectItem(QComboBox* combo, const QString& text) {
    const int index = itemIndex(combo, text);
    if (index >= 0) {
        combo->setCurrentIndex(index);
    }
}

} // namespace IPCUSTOMIZED
