#include "ipgen/window/mapsheet.h"

#include "ipgen/window/mapview.h"
#include "ipgen/window/theme.h"

#include <utils/filereplace.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <functional>

namespace Window {

namespace {

/// The context of this file's texts.
struct SheetTexts {
    Q_DECLARE_TR_FUNCTIONS(SheetTexts)
};

QPalette paper() {
    QPalette palette(Qt::lightGray, Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf6, 0xf6, 0xf6));
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    return palette;
}

/// Lays the sheet out below a left upper corner, in the units of the window's screen.
class Layout {
public:
    explicit Layout(const MapSheet& sheet)
        : m_sheet(sheet)
        , m_font(m_view.font())
        , m_line(QFontMetricsF(m_font).height() * 1.5) {
        m_view.setMap(sheet.cells, sheet.marks);
        for (auto it = sheet.marks.constBegin(); it != sheet.marks.constEnd(); ++it) {
            QStringList held;
            for (const MapCell& cell : sheet.cells) {
                if (cell.owners.contains(it.key())) {
                    held.append(cell.resource);
                }
            }
            if (!held.isEmpty()) {
                m_legend.append({it.key(), held.join(QStringLiteral(", "))});
            }
        }
        for (const MapCell& cell : sheet.cells) {
            if (!cell.conflict.isEmpty()) {
                m_conflicts.append(
                    SheetTexts::tr("⚠ %1 (%2): %3")
                        .arg(cell.resource, cell.owners.join(QStringLiteral(", ")), cell.conflict));
            }
        }
    }

    int dpi() const { return m_view.logicalDpiX(); }
    qreal width() const { return m_view.sizeHint().width(); }
    /// Of a picture: with a margin, which paper has of its own.
    QRectF area() const {
        return QRectF(0, 0, width(), height()).adjusted(-m_line, -m_line / 2, m_line, 0);
    }
    qreal height() const {
        return mapBottom() + m_line * (m_legend.size() + m_conflicts.size() + 1);
    }

    /// Title and map; the legend may go on to other pages.
    qreal mapBottom() const { return headHeight() + m_view.sizeHint().height(); }

    /// @param bottom   where a page ends; 0: nowhere
    /// @param newPage  begins the next one
    void draw(QPainter& painter, qreal bottom, const std::function<void()>& newPage) const {
        const QPalette palette = paper();
        QFont bold = m_font;
        bold.setBold(true);
        painter.setPen(palette.color(QPalette::Text));
        painter.setFont(bold);
        painter.drawText(QRectF(0, 0, width(), m_line), Qt::AlignVCenter, m_sheet.title);
        painter.setFont(m_font);
        painter.drawText(QRectF(0, m_line, width(), m_line), Qt::AlignVCenter, m_sheet.about);
        painter.save();
        painter.translate(0, headHeight());
        m_view.draw(painter, palette);
        painter.restore();
        qreal y = mapBottom() + m_line / 2;
        const auto next = [&] {
            if (bottom > 0 && y + m_line > bottom) {
                newPage();
                y = 0;
            }
            const QRectF row(0, y, width(), m_line);
            y += m_line;
            return row;
        };
        for (const QString& conflict : m_conflicts) {
            painter.setPen(badColor(palette));
            painter.setFont(m_font);
            painter.drawText(next(), Qt::AlignVCenter, fitted(conflict, width()));
        }
        for (const auto& [owner, held] : m_legend) {
            const QRectF row = next();
            const qreal side = m_line * 0.9;
            QRectF badge(0, 0, side * 1.4, side);
            badge.moveCenter({row.left() + badge.width() / 2, row.center().y()});
            painter.setFont(m_font);
            MapView::drawBadge(painter, palette, badge, m_sheet.marks.value(owner));
            painter.setPen(palette.color(QPalette::Text));
            painter.drawText(
                row.adjusted(side * 1.7, 0, 0, 0), Qt::AlignVCenter,
                fitted(QStringLiteral("%1: %2").arg(owner, held), row.width() - side * 1.7));
        }
    }

private:
    qreal headHeight() const { return m_line * 2.2; }
    QString fitted(const QString& text, qreal room) const {
        return QFontMetricsF(m_font).elidedText(text, Qt::ElideRight, room);
    }

    const MapSheet& m_sheet;
    MapView m_view;
    QFont m_font;
    qreal m_line;
    QVector<QPair<QString, QString>> m_legend;
    QStringList m_conflicts;
};

QByteArray asPdf(const MapSheet& sheet, const Layout& layout) {
    constexpr qreal margin = 12; // mm
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(sheet.title);
    writer.setResolution(layout.dpi());
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    QPainter painter(&writer);
    // As large as the paper lets it be, and no coarser than is good to read.
    constexpr qreal largest = 1.3;
    const qreal scale =
        std::min({largest, writer.width() / layout.width(), writer.height() / layout.mapBottom()});
    painter.scale(scale, scale);
    layout.draw(painter, writer.height() / scale, [&] { writer.newPage(); });
    painter.end();
    return bytes;
}

QByteArray asSvg(const MapSheet& sheet, const Layout& layout) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setTitle(sheet.title);
    generator.setResolution(layout.dpi());
    const QRectF area = layout.area();
    generator.setSize(area.size().toSize());
    generator.setViewBox(area);
    QPainter painter(&generator);
    painter.fillRect(area, Qt::white);
    layout.draw(painter, 0, {});
    painter.end();
    return bytes;
}

QByteArray asPng(const Layout& layout) {
    constexpr int scale = 2; // sharp on paper too
    const QRectF area = layout.area();
    QImage image(area.size().toSize() * scale, QImage::Format_RGB32);
    if (image.isNull()) {
        return {}; // too large
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(-area.topLeft());
    layout.draw(painter, 0, {});
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? bytes : QByteArray();
}

} // namespace

Ipgen::Status writeMapSheet(const MapSheet& sheet, const QString& path) {
    const Layout layout(sheet);
    const QString suffix = QFileInfo(path).suffix().toLower();
    QByteArray bytes;
    if (suffix == QLatin1String("pdf")) {
        bytes = asPdf(sheet, layout);
    } else if (suffix == QLatin1String("svg")) {
        bytes = asSvg(sheet, layout);
    } else if (suffix == QLatin1String("png")) {
        bytes = asPng(layout);
    } else {
        return {Ipgen::Exit::Usage, path,
                SheetTexts::tr("the file's name ends in .pdf, .svg or "
                               ".png")};
    }
    if (bytes.isEmpty()) {
        return {Ipgen::Exit::BadOutput, path, SheetTexts::tr("the picture cannot be made")};
    }
    const Utils::FileResult written = Utils::replaceFile(path, bytes);
    return written.ok ? Ipgen::Status()
                      : Ipgen::Status(Ipgen::Exit::BadOutput, path, written.reason);
}

} // namespace Window
