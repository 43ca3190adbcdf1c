#pragma once

#include "utils/export.h"

#include <QString>

#include <Qt>

namespace Utils {

/// One pin of a module's port figure. The figure copies the pins that it is given.
class HOST_UTILS_EXPORT PinFigure {
public:
    PinFigure() = default;
    /// @param name       port name, with its bit range when it is a bus ("d_i[63:0]")
    /// @param direction  1: drawn as an output, 0: drawn as an input
    /// @param bus        true for a port with a bit range: drawn thick
    /// @param alignment  the side of the symbol: Qt::AlignLeft or Qt::AlignRight
    PinFigure(const QString& name, int direction, bool bus, Qt::Alignment alignment);

    const QString& name() const { return m_name; }
    int direction() const { return m_direction; }
    bool isBus() const { return m_bus; }
    Qt::Alignment alignment() const { return m_alignment; }

private:
    QString m_name;
    int m_direction = 0;
    bool m_bus = false;
    Qt::Alignment m_alignment = Qt::AlignLeft;
};

HOST_UTILS_EXPORT bool operator==(const PinFigure& a, const PinFigure& b);
inline bool operator!=(const PinFigure& a, const PinFigure& b) { return !(a == b); }

} // namespace Utils
