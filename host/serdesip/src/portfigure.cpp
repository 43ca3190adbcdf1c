#include "serdesip/portfigure.h"

#include <utils/filereplace.h>

#include <QBuffer>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QRegularExpression>
#include <QSvgGenerator>
#include <QtMath>

#include <algorithm>
#include <cstdlib>

namespace IPSERDESIP {

namespace {

constexpr double kMargin = 8.0;       // around everything
constexpr double kStub = 26.0;        // length of a pin's line
constexpr double kRow = 18.0;         // height of a pin
constexpr double kPadding = 8.0;      // between the box's edge and a name
constexpr double kGap = 20.0;         // between the two columns of names
constexpr double kHeader = 30.0;      // the module's name
constexpr double kMinimumBox = 140.0; // width of a symbol without pins
constexpr int kPinFont = 11;          // pixels
constexpr int kTitleFont = 13;
constexpr int kBitsFont = 8;
constexpr double kAdvance = 0.62; // of a fixed-pitch character, in font sizes; rounded up

double textWidth(const QString& text, int pixels) {
    return std::ceil(static_cast<double>(text.size()) * kAdvance * pixels);
}

QFont fixedFont(int pixels, bool bold = false) {
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

bool goesLeft(const Utils::PinFigure& pin) {
    if (pin.alignment().testFlag(Qt::AlignLeft)) {
        return true;
    }
    return !pin.alignment().testFlag(Qt::AlignRight) && pin.direction() == 0;
}

int bitsOf(const QString& name) {
    static const QRegularExpression range(QStringLiteral("\\[(\\d{1,6}):(\\d{1,6})\\]$"));
    const QRegularExpressionMatch match = range.match(name);
    if (!match.hasMatch()) {
        return 0;
    }
    return std::abs(match.captured(1).toInt() - match.captured(2).toInt()) + 1;
}

} // namespace

PortFigure::PortFigure()
    : PortFigure(QString(), {}) {}

PortFigure::PortFigure(const QString& module, const QList<Utils::PinFigure>& pins)
    : m_module(module) {
    place(pins);
}

void PortFigure::place(const QList<Utils::PinFigure>& pins) {
    double leftWidth = 0.0;
    double rightWidth = 0.0;
    int rows = 0;
    int leftRows = 0;
    m_pins.reserve(pins.size());
    for (const Utils::PinFigure& pin : pins) {
        const bool left = goesLeft(pin);
        double& width = left ? leftWidth : rightWidth;
        width = std::max(width, textWidth(pin.name(), kPinFont));
        m_pins.append({pin, left, bitsOf(pin.name()), {}, {}});
        leftRows += left ? 1 : 0;
    }
    rows = std::max(leftRows, m_pins.size() - leftRows);

    const double names = leftWidth + rightWidth + 2 * kPadding + kGap;
    const double title = textWidth(m_module, kTitleFont) + 2 * kPadding;
    const double boxWidth = std::max({names, title, kMinimumBox});
    const double boxHeight = kHeader + std::max(rows, 1) * kRow + kPadding;
    m_box = QRectF(kMargin + kStub, kMargin, boxWidth, boxHeight);
    m_size = QSizeF(m_box.right() + kStub + kMargin, m_box.bottom() + kMargin);

    int leftRow = 0;
    int rightRow = 0;
    for (Pin& pin : m_pins) {
        const double top = m_box.top() + kHeader + (pin.left ? leftRow++ : rightRow++) * kRow;
        const double middle = top + kRow / 2;
        const double width = textWidth(pin.pin.name(), kPinFont);
        const double x = pin.left ? m_box.left() + kPadding : m_box.right() - kPadding - width;
        const double edge = pin.left ? m_box.left() : m_box.right();
        pin.label = QRectF(x, top, width, kRow);
        pin.line = QLineF(edge, middle, pin.left ? edge - kStub : edge + kStub, middle);
    }
}

namespace {

/// The arrow head: into the box for an input, away from it for an output.
QPolygonF arrow(const PortFigure::Pin& pin) {
    const double outward = pin.left ? -1.0 : 1.0;
    const bool output = pin.pin.direction() != 0;
    const double tip = output ? pin.line.x2() : pin.line.x1();
    const double back = tip - (output ? outward : -outward) * 7.0;
    const double y = pin.line.y1();
    return QPolygonF({{tip, y}, {back, y - 3.5}, {back, y + 3.5}});
}

void paintPin(QPainter& painter, const PortFigure::Pin& pin, const PortFigure::Colours& colours) {
    const QColor colour = pin.pin.isBus() ? colours.bus : colours.wire;
    QPen pen(colour, pin.pin.isBus() ? 3.0 : 1.0);
    pen.setCapStyle(Qt::FlatCap);
    // The line ends behind the arrow's tip, so that a thick one does not blunt it.
    QLineF line = pin.line;
    const double back = pin.left ? 6.0 : -6.0;
    (pin.pin.direction() != 0 ? line.setP2({line.x2() + back, line.y2()})
                              : line.setP1({line.x1() - back, line.y1()}));
    painter.setPen(pen);
    painter.drawLine(line);

    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(arrow(pin));

    painter.setPen(colours.text);
    painter.setFont(fixedFont(kPinFont));
    const Qt::Alignment side = pin.left ? Qt::AlignLeft : Qt::AlignRight;
    painter.drawText(pin.label, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextDontClip,
                     pin.pin.name());

    if (pin.bits > 0) {
        const QString bits = QString::number(pin.bits);
        const double width = textWidth(bits, kBitsFont);
        painter.setFont(fixedFont(kBitsFont));
        painter.setPen(colour);
        painter.drawText(QPointF(pin.line.center().x() - width / 2, pin.line.y1() - 3.0), bits);
    }
}

} // namespace

void PortFigure::paint(QPainter& painter, const Colours& colours, const QRectF& clip) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colours.frame, 1.5));
    painter.setBrush(colours.box);
    painter.drawRect(m_box);
    const double line = m_box.top() + kHeader - 6.0;
    painter.setPen(QPen(colours.frame, 0.75));
    painter.drawLine(QLineF(m_box.left(), line, m_box.right(), line));

    painter.setFont(fixedFont(kTitleFont, true));
    painter.setPen(colours.text);
    const QRectF header(m_box.left(), m_box.top(), m_box.width(), kHeader - 6.0);
    painter.drawText(header, Qt::AlignCenter | Qt::TextDontClip, m_module);

    for (const Pin& pin : m_pins) {
        const double middle = pin.line.y1();
        const bool seen =
            clip.isNull() || (middle + kRow > clip.top() && middle - kRow < clip.bottom());
        if (seen) {
            paintPin(painter, pin, colours);
        }
    }
    painter.restore();
}

PortFigure::Colours PortFigure::printColours() {
    return {Qt::white,        QColor(0xf4f6f8), QColor(0x37474f),
            QColor(0x1c2326), QColor(0x455a64), QColor(0x1565a8)};
}

PortFigure::Colours PortFigure::colours(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    const QColor& text = palette.color(QPalette::Text);
    QColor frame = text;
    frame.setAlphaF(0.7);
    return {palette.color(QPalette::Base),
            palette.color(QPalette::AlternateBase),
            frame,
            text,
            frame,
            dark ? QColor(0x64b5f6) : QColor(0x1565a8)};
}

QByteArray PortFigure::svg() const {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(96);
    generator.setSize(m_size.toSize());
    generator.setViewBox(QRectF(QPointF(0, 0), m_size));
    generator.setTitle(m_module.toHtmlEscaped()); // the generator writes it as it is
    generator.setDescription(QStringLiteral("Port figure"));
    QPainter painter(&generator);
    painter.fillRect(QRectF(QPointF(0, 0), m_size), printColours().background);
    paint(painter, printColours());
    painter.end();
    return bytes;
}

QByteArray PortFigure::png(double scale) const {
    QImage image((m_size * scale).toSize(), QImage::Format_RGB32);
    image.fill(printColours().background);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paint(painter, printColours());
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

namespace {

bool writeFile(const QString& file, const QByteArray& bytes, QString* error) {
    const Utils::FileResult result = Utils::replaceFile(file, bytes);
    if (!result && error != nullptr) {
        *error = result.reason;
    }
    return result.ok;
}

} // namespace

bool PortFigure::toSvg(const QString& file, QString* error) const {
    return writeFile(file, svg(), error);
}

bool PortFigure::toPng(const QString& file, QString* error) const {
    return writeFile(file, png(), error);
}

} // namespace IPSERDESIP
