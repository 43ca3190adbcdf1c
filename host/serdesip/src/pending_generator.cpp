// Stand-in until scripts are solved: delete this file with the implementation.
#include "serdesip/generator.h"

namespace IPSERDESIP {

generator::generator() = default;

bool generator::generate(const QStringList&, const QString&, QStringList& messages)
{
    m_errors = QStringList{QStringLiteral("script generation is not available yet")};
    messages = m_errors;
    return false;
}

} // namespace IPSERDESIP
