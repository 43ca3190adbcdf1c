#include "figureview.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace IPSERDESIP {

namespace {
constexpr double kStep = 1.25;
constexpr double kSmallest = 0.2;
constexpr double kLargest = 4.0;
constexpr double kLargestFit = 1.2;  // a small figure is not blown up
constexpr double kSmallestFit = 0.6; // names stay readable; what is wider scrolls
} // namespace

FigureView::FigureView(QWidget* parent)
    : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setCursor(Qt::OpenHandCursor);
    setAccessibleName(tr("Port figure"));
    setToolTip(tr("Ctrl and the wheel, + and - zoom; 0 fits the figure; drag to scroll."));
}

void FigureView::setFigure(const QString& module, const QList<Utils::PinFigure>& pins) {
    if (module == m_module && pins == m_pins) {
        return;
    }
    m_module = module;
    m_pins = pins;
    if (!m_stale) {
        // One action of the user may set the pins several times: lay out once, afterwards.
        m_stale = true;
        QTimer::singleShot(0, this, &FigureView::refit);
    }
    viewport()->update();
}

const PortFigure& FigureView::figure() const {
    if (m_stale) {
        m_figure = PortFigure(m_module, m_pins);
        m_stale = false;
    }
    return m_figure;
}

void FigureView::zoomIn() {
    zoomTo(m_scale * kStep, viewport()->rect().center());
}
void FigureView::zoomOut() {
    zoomTo(m_scale / kStep, viewport()->rect().center());
}

void FigureView::fit() {
    m_fitting = true;
    refit();
}

void FigureView::refit() {
    if (m_fitting) {
        // The width is the one that the view has beside a vertical scroll bar, shown or not, so
        // that the bar's coming does not change the scale that made it come.
        const double bar = verticalScrollBar()->sizeHint().width();
        const double width = contentsRect().width() - bar;
        m_scale = std::clamp(width / figure().size().width(), kSmallestFit, kLargestFit);
    }
    updateScrollBars();
    viewport()->update();
}

void FigureView::zoomTo(double scale, const QPointF& about) {
    const QPointF fixed = (about - origin()) / m_scale;
    m_fitting = false;
    m_scale = std::clamp(scale, kSmallest, kLargest);
    updateScrollBars();
    horizontalScrollBar()->setValue(static_cast<int>(std::lround(fixed.x() * m_scale - about.x())));
    verticalScrollBar()->setValue(static_cast<int>(std::lround(fixed.y() * m_scale - about.y())));
    viewport()->update();
}

void FigureView::updateScrollBars() {
    const QSizeF shown = figure().size() * m_scale;
    const QSize room = maximumViewportSize();
    const auto set = [](QScrollBar* bar, double length, int page) {
        bar->setPageStep(page);
        bar->setSingleStep(18);
        bar->setRange(0, std::max(0, static_cast<int>(std::ceil(length)) - page));
    };
    // A bar takes room from the other direction.
    const int barWidth = verticalScrollBar()->sizeHint().width();
    const int barHeight = horizontalScrollBar()->sizeHint().height();
    const bool wide = shown.width() > room.width();
    const bool tall = shown.height() > room.height() - (wide ? barHeight : 0);
    set(horizontalScrollBar(), shown.width(), room.width() - (tall ? barWidth : 0));
    set(verticalScrollBar(), shown.height(), room.height() - (wide ? barHeight : 0));
}

QPointF FigureView::origin() const {
    // A figure smaller than the view stands in its middle, at the top.
    const double spare = viewport()->width() - figure().size().width() * m_scale;
    return {spare > 0 ? spare / 2 : -horizontalScrollBar()->value(),
            -static_cast<double>(verticalScrollBar()->value())};
}

void FigureView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const PortFigure::Colours colours = PortFigure::colours(palette());
    painter.fillRect(event->rect(), colours.background);
    painter.translate(origin());
    painter.scale(m_scale, m_scale);
    const QRectF clip = painter.transform().inverted().mapRect(QRectF(event->rect()));
    figure().paint(painter, colours, clip);
}

void FigureView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    refit();
}

void FigureView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier) && event->angleDelta().y() != 0) {
        const double steps = event->angleDelta().y() / 120.0;
        zoomTo(m_scale * std::pow(kStep, steps), event->position());
        event->accept();
        return;
    }
    QAbstractScrollArea::wheelEvent(event);
}

void FigureView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomIn();
        break;
    case Qt::Key_Minus:
        zoomOut();
        break;
    case Qt::Key_0:
        fit();
        break;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void FigureView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_dragFrom = event->pos();
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
}

void FigureView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) {
        const QPoint moved = event->pos() - m_dragFrom;
        m_dragFrom = event->pos();
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
    }
}

void FigureView::mouseReleaseEvent(QMouseEvent*) {
    viewport()->setCursor(Qt::OpenHandCursor);
}

QSize FigureView::sizeHint() const {
    return {360, 400};
}

} // namespace IPSERDESIP
