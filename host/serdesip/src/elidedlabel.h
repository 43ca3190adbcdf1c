#pragma once

#include <QFrame>

namespace IPSERDESIP {

/// One line of text that never asks for more width than there is: what does not fit is elided and
/// stands in the tool tip.
class ElidedLabel : public QFrame {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString& text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
};

} // namespace IPSERDESIP
