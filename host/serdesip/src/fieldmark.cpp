#include "fieldmark.h"

#include <QMouseEvent>
#include <QPainter>

namespace IPSERDESIP {

namespace {
constexpr int kWidth = 4;
}

FieldMark::FieldMark(QWidget* field)
    : QWidget(field->parentWidget())
    , m_field(field) {
    setCursor(Qt::PointingHandCursor);
    follow();
}

void FieldMark::follow() {
    const QRect place = m_field->geometry();
    setGeometry(place.left() - kWidth - 1, place.top() + 2, kWidth, place.height() - 4);
    raise();
}

void FieldMark::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), palette().color(QPalette::Highlight));
}

void FieldMark::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        Q_EMIT pressed();
    }
}

} // namespace IPSERDESIP
