#pragma once

#include "ipgen/window/mapdata.h"

#include <QWidget>

namespace Window {

/// The drawing of a device's transceiver resources: a column each for pins, multiplexers, quad
/// PLLs and lanes, quad below quad. Owners are told by letter, colour and pattern.
class MapView : public QWidget {
    Q_OBJECT

public:
    explicit MapView(QWidget* parent = nullptr);

    void setMap(const QVector<MapCell>& cells, const QMap<QString, OwnerMark>& marks);
    /// Puts a frame around what this instance holds.
    void setHighlighted(const QString& owner);
    const QVector<MapCell>& cells() const { return m_cells; }
    /// Where a resource is drawn; null when it is not.
    Q_INVOKABLE QRectF placeOf(const QString& resource) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    /// Draws the map with this palette; the window, pictures and paper get the same.
    void draw(QPainter& painter, const QPalette& palette) const;

    /// The mark of an owner: colour, pattern, letter.
    static void drawBadge(QPainter& painter, const QPalette& palette, const QRectF& place,
                          const OwnerMark& mark);
    static QColor ownerColor(int index, bool dark);
    static Qt::BrushStyle ownerPattern(int index);

Q_SIGNALS:
    void ownerClicked(const QString& owner);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void arrange();
    int cellAt(const QPointF& point) const;
    void drawCell(QPainter& painter, const QPalette& palette, int index) const;
    void drawLinks(QPainter& painter, const QPalette& palette) const;

    QVector<MapCell> m_cells;
    QMap<QString, OwnerMark> m_marks;
    QVector<QRectF> m_places;
    QVector<QPair<QRectF, QString>> m_frames; ///< quads with their titles
    QSizeF m_size;
    QString m_highlighted;
};

} // namespace Window
