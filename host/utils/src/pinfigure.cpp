#include "utils/pinfigure.h"

namespace Utils {

PinFigure::PinFigure(const QString& name, int direction, bool bus, Qt::Alignment alignment)
    : m_name(name)
    , m_direction(direction)
    , m_bus(bus)
    , m_alignment(alignment) {}

bool operator==(const PinFigure& a, const PinFigure& b) {
    return a.name() == b.name() && a.direction() == b.direction() && a.isBus() == b.isBus() &&
           a.alignment() == b.alignment();
}

} // namespace Utils
