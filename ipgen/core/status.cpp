#include "ipgen/core/status.h"

namespace Ipgen {

Status::Status(Exit code, const QString& what, const QString& why)
    : m_code(code)
    , m_what(what)
    , m_why(why) {}

QString Status::text() const {
    return oneLine(m_what) + QStringLiteral(": ") + oneLine(m_why);
}

QString oneLine(const QString& text) {
    QString line;
    line.reserve(text.size());
    for (const QChar c : text) {
        const ushort code = c.unicode();
        if (code == '\n') {
            line += QLatin1String("\\n");
        } else if (code == '\r') {
            line += QLatin1String("\\r");
        } else if (code == '\t') {
            line += QLatin1String("\\t");
        } else if (code < 0x20 || (code >= 0x7F && code < 0xA0)) {
            line += QStringLiteral("\\x%1").arg(code, 2, 16, QLatin1Char('0'));
        } else if (code == 0x2028 || code == 0x2029) {
            line += QStringLiteral("\\u%1").arg(code, 4, 16, QLatin1Char('0'));
        } else {
            line += c;
        }
    }
    return line;
}

} // namespace Ipgen
