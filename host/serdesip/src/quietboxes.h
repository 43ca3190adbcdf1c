#pragma once

#include <QObject>
#include <QStringList>

namespace IPSERDESIP {

/// While it lives, message boxes are not shown: each takes its default button, and its words are
/// kept.
class QuietBoxes : public QObject {
public:
    QuietBoxes();

    /// "title: text" of each, in order.
    const QStringList& words() const { return m_words; }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QStringList m_words;
};

} // namespace IPSERDESIP
