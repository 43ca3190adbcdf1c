#pragma once

#include "serdesip/export.h"

#include <utils/pinfigure.h>

#include <QByteArray>
#include <QColor>
#include <QLineF>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;
class QPalette;

namespace IPSERDESIP {

/// The symbol of a module with its ports: a box with the module's name, inputs on the left,
/// outputs on the right, a bus drawn thick with its width beside it. Laid out once, without any
/// widget; lengths are pixels at scale 1. The layout depends on the texts alone, so that the same
/// pins give the same figure whatever fonts a desktop uses.
class HOST_SERDESIP_EXPORT PortFigure {
public:
    struct Pin {
        Utils::PinFigure pin;
        bool left = true; ///< the side of the symbol
        int bits = 0;     ///< bits of the range in the name; 0: the name has none
        QRectF label;     ///< inside the box, beside the line
        QLineF line;      ///< from the box outwards
    };

    struct Colours {
        QColor background;
        QColor box;
        QColor frame;
        QColor text;
        QColor wire;
        QColor bus;
    };

    PortFigure();
    /// A pin goes to the side that its alignment names; one that names neither goes by its
    /// direction. The pins of a side stand in the order of the list.
    PortFigure(const QString& module, const QList<Utils::PinFigure>& pins);

    const QString& module() const { return m_module; }
    const QList<Pin>& pins() const { return m_pins; }
    QRectF box() const { return m_box; }
    QSizeF size() const { return m_size; }

    /// Paints what meets `clip` (everything, when it is null) with the origin at the top left.
    void paint(QPainter& painter, const Colours& colours, const QRectF& clip = QRectF()) const;

    /// Dark on white, for files.
    static Colours printColours();
    /// In keeping with a desktop's colours, dark or light.
    static Colours colours(const QPalette& palette);

    /// The figure as a file's content; needs a QGuiApplication. The texts of the SVG are texts.
    QByteArray svg() const;
    QByteArray png(double scale = 2.0) const;
    /// Writes the same whole or not at all; false: `error` (may be null) says why.
    bool toSvg(const QString& file, QString* error = nullptr) const;
    bool toPng(const QString& file, QString* error = nullptr) const;

private:
    void place(const QList<Utils::PinFigure>& pins);

    QString m_module;
    QList<Pin> m_pins;
    QRectF m_box;
    QSizeF m_size;
};

} // namespace IPSERDESIP
