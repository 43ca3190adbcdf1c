#pragma once

#include "ipgen/core/status.h"

#include <QFrame>

class QLabel;
class QToolButton;

namespace Window {

/// A line across the window that says what went wrong, or what is to be known, until it is closed
/// or the next thing is said. It never takes the focus.
class NoticeBar : public QFrame {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    enum class Kind { Information, Warning, Error };
    void show(Kind kind, const QString& text);
    void show(const Ipgen::Status& status) { show(Kind::Error, status.text()); }
    void clear();
    QString text() const;

private:
    QLabel* m_icon;
    QLabel* m_text;
    QToolButton* m_close;
};

} // namespace Window
