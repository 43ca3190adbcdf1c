#pragma once

#include "serdesip/portfigure.h"

#include <QAbstractScrollArea>

namespace IPSERDESIP {

/// Shows a port figure: scrolls, drags, and zooms with Ctrl and the wheel, "+" and "-". It fits
/// the figure to its width until the user zooms; "0" fits it again.
class FigureView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit FigureView(QWidget* parent = nullptr);

    /// Shows these pins; nothing is laid out before it is needed.
    void setFigure(const QString& module, const QList<Utils::PinFigure>& pins);
    const QList<Utils::PinFigure>& pins() const { return m_pins; }
    const PortFigure& figure() const;
    double scale() const { return m_scale; }

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    void fit();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    QSize sizeHint() const override;

private:
    void zoomTo(double scale, const QPointF& about);
    void refit();
    void updateScrollBars();
    QPointF origin() const;

    QString m_module;
    QList<Utils::PinFigure> m_pins;
    mutable PortFigure m_figure;
    mutable bool m_stale = false;
    bool m_fitting = true;
    double m_scale = 1.0;
    QPoint m_dragFrom;
};

} // namespace IPSERDESIP
