#include "elidedlabel.h"

#include <QPainter>

namespace IPSERDESIP {

ElidedLabel::ElidedLabel(QWidget* parent)
    : QFrame(parent) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::setText(const QString& text) {
    m_text = text.simplified();
    setToolTip(m_text);
    setAccessibleDescription(m_text);
    update();
}

QSize ElidedLabel::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 20, fontMetrics().height() + 4};
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QString shown = fontMetrics().elidedText(m_text, Qt::ElideRight, width());
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft, shown);
}

} // namespace IPSERDESIP
