#include "serdesip/serdes.h"

namespace IPSERDESIP {

Instance::Instance(const QString& name)
    : m_name(name) {}
Instance::~Instance() = default;

MUX::MUX(const QString& name)
    : Instance(name) {}
MUX::~MUX() = default;

REF_SOURCE::REF_SOURCE(const QString& name)
    : Instance(name) {}
REF_SOURCE::~REF_SOURCE() = default;

void REF_SOURCE::setUse(bool inUse, double frequency) {
    m_inUse = inUse;
    m_frequency = frequency;
}

} // namespace IPSERDESIP
