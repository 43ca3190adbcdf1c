#include "ipgen/window/mapview.h"

#include "ipgen/window/named.h"
#include "ipgen/window/theme.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>

namespace Window {

namespace {

using Kind = MapCell::Kind;

/// A colour set that stays apart for the colour-blind.
const QRgb ownerColors[ownerColorCount] = {0xffe69f00, 0xff56b4e9, 0xff009e73, 0xfff0e442,
                                           0xff0072b2, 0xffd55e00, 0xffcc79a7, 0xff999999};
const Qt::BrushStyle ownerPatterns[ownerPatternCount] = {
    Qt::BDiagPattern, Qt::FDiagPattern,  Qt::HorPattern,      Qt::VerPattern,
    Qt::CrossPattern, Qt::Dense6Pattern, Qt::DiagCrossPattern};

/// Free resources stand back, and can still be read.
QColor faint(const QPalette& palette) {
    return isDark(palette) ? QColor(0xa8, 0xac, 0xb2) : QColor(0x60, 0x64, 0x6a);
}

} // namespace

MapView::MapView(QWidget* parent)
    : QWidget(parent) {
    named(this, "map", tr("Quad map"));
    setAccessibleDescription(tr("A drawing; the table of resources says the same"));
    setMouseTracking(true);
}

QColor MapView::ownerColor(int index, bool dark) {
    const QColor color(ownerColors[index % ownerColorCount]);
    return dark ? color.darker(135) : color;
}

Qt::BrushStyle MapView::ownerPattern(int index) {
    return ownerPatterns[index % ownerPatternCount];
}

void MapView::setMap(const QVector<MapCell>& cells, const QMap<QString, OwnerMark>& marks) {
    m_cells = cells;
    m_marks = marks;
    arrange();
    updateGeometry();
    update();
}

void MapView::setHighlighted(const QString& owner) {
    if (owner != m_highlighted) {
        m_highlighted = owner;
        update();
    }
}

void MapView::arrange() {
    const QFontMetricsF metrics(font());
    const qreal unit = metrics.height();
    const qreal cellWidth = metrics.averageCharWidth() * 23;
    const qreal cellHeight = unit * 1.9;
    const qreal gap = unit * 0.6;
    const qreal between = unit * 2.0; // columns: room for the links
    const qreal title = unit * 1.6;
    const auto columnX = [&](int column) { return gap + column * (cellWidth + between); };
    m_places.fill(QRectF(), m_cells.size());
    m_frames.clear();

    // Pins of no quad stand above the others.
    qreal top = gap;
    QVector<int> quads;
    for (const MapCell& cell : qAsConst(m_cells)) {
        if (!quads.contains(cell.quad)) {
            quads.append(cell.quad);
        }
    }
    std::sort(quads.begin(), quads.end());
    qreal right = 0;
    for (const int quad : qAsConst(quads)) {
        qreal y[4] = {top + title, top + title, top + title, top + title};
        for (int i = 0; i < m_cells.size(); ++i) {
            const MapCell& cell = m_cells.at(i);
            if (cell.quad != quad) {
                continue;
            }
            if (cell.kind == Kind::LanePll) { // beside its lane, which comes before it
                m_places[i] = QRectF(columnX(3) + cellWidth + gap, y[3] - cellHeight - gap,
                                     cellWidth * 0.6, cellHeight);
            } else {
                const int column = cell.kind == Kind::Pin           ? 0
                                   : cell.kind == Kind::Multiplexer ? 1
                                   : cell.kind == Kind::SharedPll   ? 2
                                                                    : 3;
                m_places[i] = QRectF(columnX(column), y[column], cellWidth, cellHeight);
                y[column] += cellHeight + gap;
            }
            right = std::max(right, m_places.at(i).right());
        }
        const qreal bottom = *std::max_element(std::begin(y), std::end(y));
        m_frames.append({QRectF(gap / 2, top, 0, bottom - top),
                         quad < 0 ? tr("Device") : tr("Quad %1").arg(quad)});
        top = bottom + gap;
    }
    m_size = QSizeF(right + gap, top);
    for (auto& frame : m_frames) {
        frame.first.setRight(right + gap / 2);
    }
}

QSize MapView::sizeHint() const {
    return m_size.toSize().expandedTo(QSize(1, 1));
}

QRectF MapView::placeOf(const QString& resource) const {
    for (int i = 0; i < m_cells.size(); ++i) {
        if (m_cells.at(i).resource == resource) {
            return m_places.at(i);
        }
    }
    return {};
}

int MapView::cellAt(const QPointF& point) const {
    for (int i = 0; i < m_places.size(); ++i) {
        if (m_places.at(i).contains(point)) {
            return i;
        }
    }
    return -1;
}

void MapView::drawLinks(QPainter& painter, const QPalette& palette) const {
    QHash<QString, QRectF> places;
    for (int i = 0; i < m_cells.size(); ++i) {
        places.insert(m_cells.at(i).resource, m_places.at(i));
    }
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < m_cells.size(); ++i) {
        const MapCell& cell = m_cells.at(i);
        if (cell.setting.isEmpty() || !places.contains(cell.setting)) {
            continue;
        }
        const QRectF from = places.value(cell.setting);
        const QPointF a(from.right(), from.center().y());
        const QPointF b(m_places.at(i).left(), m_places.at(i).center().y());
        const qreal bend = (b.x() - a.x()) / 2;
        QPainterPath path(a);
        path.cubicTo(a + QPointF(bend, 0), b - QPointF(bend, 0), b);
        painter.setPen(QPen(palette.color(QPalette::WindowText), 1.5));
        painter.drawPath(path);
    }
}

void MapView::drawBadge(QPainter& painter, const QPalette& palette, const QRectF& place,
                        const OwnerMark& mark) {
    const bool dark = isDark(palette);
    painter.fillRect(place, ownerColor(mark.color, dark));
    painter.setBrush(QBrush(dark ? QColor(255, 255, 255, 110) : QColor(0, 0, 0, 110),
                            ownerPattern(mark.pattern)));
    painter.setPen(Qt::NoPen);
    painter.drawRect(place);
    // The letter stands on a plain ground, so that the pattern does not run through it.
    const qreal high = place.height() * 0.62;
    const qreal wide =
        std::max(high, QFontMetricsF(painter.font()).horizontalAdvance(mark.letter) + high * 0.3);
    QRectF ground(0, 0, wide, high);
    ground.moveCenter(place.center());
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRoundedRect(ground, high / 2, high / 2);
    painter.setPen(palette.color(QPalette::Text));
    painter.drawText(place, Qt::AlignCenter, mark.letter);
}

void MapView::drawCell(QPainter& painter, const QPalette& palette, int index) const {
    const MapCell& cell = m_cells.at(index);
    const QRectF place = m_places.at(index);
    const QColor& ink = palette.color(QPalette::Text);
    // Several owners get narrower badges, so that the label keeps its room.
    constexpr int most = 3;
    const int shown = std::min(cell.owners.size(), most);
    const qreal badge = place.height() * (shown > 1 ? 0.72 : 1.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRect(place);
    // Owners share the badge strip at the left end, a slice each.
    qreal x = place.left();
    for (int i = 0; i < shown; ++i) {
        OwnerMark mark = m_marks.value(cell.owners.at(i));
        if (i == most - 1 && cell.owners.size() > most) {
            mark.letter = QStringLiteral("…");
        }
        drawBadge(painter, palette, QRectF(x, place.top(), badge, place.height()), mark);
        x += badge;
    }
    const QRectF text(x + place.height() * 0.2, place.top(),
                      place.right() - x - place.height() * 0.25, place.height());
    QFont plain = painter.font();
    QFont bold = plain;
    bold.setBold(!cell.isFree());
    painter.setFont(bold);
    painter.setPen(cell.isFree() ? faint(palette) : ink);
    const QString label =
        cell.conflict.isEmpty() ? cell.label : QStringLiteral("⚠ %1").arg(cell.label);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(bold).elidedText(label, Qt::ElideRight, text.width()));
    painter.setFont(plain);
    QPen edge(faint(palette), 1, cell.isFree() ? Qt::DashLine : Qt::SolidLine);
    if (!cell.conflict.isEmpty()) {
        edge = QPen(badColor(palette), 3);
    } else if (!m_highlighted.isEmpty() && cell.owners.contains(m_highlighted)) {
        edge = QPen(palette.color(QPalette::Highlight), 3);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(edge);
    painter.drawRect(place);
}

void MapView::draw(QPainter& painter, const QPalette& palette) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font());
    for (const auto& [frame, title] : m_frames) {
        painter.setPen(QPen(isDark(palette) ? faint(palette) : palette.color(QPalette::Mid), 1));
        painter.setBrush(palette.color(QPalette::AlternateBase));
        painter.drawRoundedRect(frame, 4, 4);
        painter.setPen(palette.color(QPalette::WindowText));
        painter.drawText(frame.adjusted(8, 3, 0, 0), Qt::AlignLeft | Qt::AlignTop, title);
    }
    drawLinks(painter, palette);
    for (int i = 0; i < m_cells.size(); ++i) {
        drawCell(painter, palette, i);
    }
}

void MapView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    draw(painter, palette());
}

void MapView::mousePressEvent(QMouseEvent* event) {
    const int at = cellAt(event->localPos());
    if (event->button() == Qt::LeftButton && at >= 0 && !m_cells.at(at).isFree()) {
        Q_EMIT ownerClicked(m_cells.at(at).owners.first());
    }
}

void MapView::mouseMoveEvent(QMouseEvent* event) {
    const int at = cellAt(event->localPos());
    setCursor(at >= 0 && !m_cells.at(at).isFree() ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

bool MapView::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        const int at = cellAt(help->pos());
        if (at < 0) {
            QToolTip::hideText();
        } else {
            const MapCell& cell = m_cells.at(at);
            QString text = QStringLiteral("%1 (%2)\n%3")
                               .arg(cell.resource, kindText(cell.kind), ownerText(cell));
            if (!cell.conflict.isEmpty()) {
                text += tr("\nConflict: %1").arg(cell.conflict);
            }
            QToolTip::showText(help->globalPos(), text, this, m_places.at(at).toRect());
        }
        return true;
    }
    return QWidget::event(event);
}

void MapView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        arrange();
        updateGeometry();
    }
    QWidget::changeEvent(event);
}

} // namespace Window
