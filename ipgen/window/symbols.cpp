#include "ipgen/window/symbols.h"

#include "ipgen/window/theme.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>

namespace Window {

namespace {

constexpr qreal side = 16.0; // the symbols' own units

QColor symbolColor(Symbol symbol, QIcon::Mode mode) {
    const QPalette palette = QApplication::palette();
    if (mode == QIcon::Disabled) {
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    }
    if (mode == QIcon::Selected) {
        return palette.color(QPalette::HighlightedText);
    }
    switch (symbol) {
    case Symbol::Good:
        return goodColor(palette);
    case Symbol::OutOfDate:
    case Symbol::Pending:
    case Symbol::Warning:
        return warningColor(palette);
    case Symbol::Error:
        return badColor(palette);
    default:
        return palette.color(QPalette::ButtonText);
    }
}

QPainterPath lines(std::initializer_list<QPointF> points) {
    QPainterPath path;
    bool first = true;
    for (const QPointF& point : points) {
        first ? path.moveTo(point) : path.lineTo(point);
        first = false;
    }
    return path;
}

void plus(QPainterPath& path, QPointF middle) {
    path.addPath(lines({middle - QPointF(3, 0), middle + QPointF(3, 0)}));
    path.addPath(lines({middle - QPointF(0, 3), middle + QPointF(0, 3)}));
}

QPainterPath triangle(qreal left, qreal right) {
    QPainterPath path = lines({{left, 2.5}, {right, 8}, {left, 13.5}});
    path.closeSubpath();
    return path;
}

/// What is drawn with the pen.
QPainterPath outline(Symbol symbol) {
    QPainterPath path;
    switch (symbol) {
    case Symbol::New:
        path = lines({{8, 14}, {3, 14}, {3, 2}, {9, 2}, {12, 5}, {12, 7.5}});
        path.addPath(lines({{9, 2}, {9, 5}, {12, 5}}));
        plus(path, {12, 12});
        break;
    case Symbol::Open:
        path = lines({{2, 13}, {2, 3.5}, {6, 3.5}, {7.5, 5}, {13, 5}, {13, 7}});
        path.addPath(lines({{2, 13}, {4.5, 7}, {15, 7}, {12.5, 13}, {2, 13}}));
        break;
    case Symbol::Create: // a chip
        path.addRect(2.5, 3.5, 8, 9);
        for (const qreal y : {5.5, 8.0, 10.5}) {
            path.addPath(lines({{0.5, y}, {2.5, y}}));
        }
        plus(path, {12.5, 8});
        break;
    case Symbol::Configure: // sliders
        for (const qreal y : {4.0, 8.0, 12.0}) {
            path.addPath(lines({{1.5, y}, {14.5, y}}));
        }
        break;
    case Symbol::Check:
    case Symbol::Good:
        path = lines({{2.5, 8.5}, {6.5, 12.5}, {13.5, 3.5}});
        break;
    case Symbol::Remove:
        path = lines({{2.5, 4.5}, {13.5, 4.5}});
        path.addPath(lines({{6, 4.5}, {6, 2.5}, {10, 2.5}, {10, 4.5}}));
        path.addPath(lines({{4, 4.5}, {4.7, 14}, {11.3, 14}, {12, 4.5}}));
        path.addPath(lines({{6.8, 7}, {6.8, 11.5}}));
        path.addPath(lines({{9.2, 7}, {9.2, 11.5}}));
        break;
    case Symbol::Print:
        path = lines({{4, 11.5}, {2, 11.5}, {2, 6}, {14, 6}, {14, 11.5}, {12, 11.5}});
        path.addPath(lines({{4, 6}, {4, 2}, {12, 2}, {12, 6}}));
        path.addRect(4, 9.5, 8, 4.5);
        break;
    case Symbol::OutOfDate:
        path.arcMoveTo(3, 3, 10, 10, 40);
        path.arcTo(3, 3, 10, 10, 40, 290);
        path.addPath(lines({{12.8, 1.5}, {12.6, 5.2}, {9, 4.8}}));
        break;
    case Symbol::Pending:
        path.addEllipse(QRectF(2.5, 2.5, 11, 11));
        path.addPath(lines({{8, 5}, {8, 8.5}, {10.5, 10}}));
        break;
    case Symbol::Warning:
        path = lines({{8, 2}, {14.5, 13.5}, {1.5, 13.5}});
        path.closeSubpath();
        path.addPath(lines({{8, 6.5}, {8, 9.5}}));
        path.addPath(lines({{8, 11.6}, {8, 11.7}}));
        break;
    case Symbol::Error:
        path.addEllipse(QRectF(2, 2, 12, 12));
        path.addPath(lines({{5.8, 5.8}, {10.2, 10.2}}));
        path.addPath(lines({{10.2, 5.8}, {5.8, 10.2}}));
        break;
    case Symbol::Information:
        path.addEllipse(QRectF(2, 2, 12, 12));
        path.addPath(lines({{8, 7.5}, {8, 11.2}}));
        path.addPath(lines({{8, 4.9}, {8, 5.0}}));
        break;
    case Symbol::Close:
        path = lines({{4, 4}, {12, 12}});
        path.addPath(lines({{12, 4}, {4, 12}}));
        break;
    case Symbol::More:
        path = lines({{3, 4}, {7, 8}, {3, 12}});
        path.addPath(lines({{8, 4}, {12, 8}, {8, 12}}));
        break;
    case Symbol::Generate:
    case Symbol::GenerateAll:
        break;
    }
    return path;
}

/// What is drawn with the brush.
QPainterPath filling(Symbol symbol) {
    QPainterPath path;
    if (symbol == Symbol::Generate) {
        path = triangle(4, 13.5);
    } else if (symbol == Symbol::GenerateAll) {
        path = triangle(1.5, 8);
        path.addPath(triangle(8, 14.5));
    } else if (symbol == Symbol::Configure) {
        constexpr qreal radius = 2;
        path.addEllipse(QPointF(5, 4), radius, radius);
        path.addEllipse(QPointF(10.5, 8), radius, radius);
        path.addEllipse(QPointF(6.5, 12), radius, radius);
    }
    return path;
}

class SymbolEngine : public QIconEngine {
public:
    explicit SymbolEngine(Symbol symbol)
        : m_symbol(symbol) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        constexpr qreal thickness = 1.5;
        const qreal scale = std::min(rect.width(), rect.height()) / side;
        const QColor color = symbolColor(m_symbol, mode);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.center().x() + 0.5 - side * scale / 2,
                           rect.center().y() + 0.5 - side * scale / 2);
        painter->scale(scale, scale);
        painter->setPen(QPen(color, thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
        painter->drawPath(outline(m_symbol));
        painter->fillPath(filling(m_symbol), color);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SymbolEngine(*this); }

private:
    Symbol m_symbol;
};

} // namespace

QIcon symbolIcon(Symbol symbol) {
    return QIcon(new SymbolEngine(symbol));
}

} // namespace Window
