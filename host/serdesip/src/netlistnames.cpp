// Which texts of a configuration may become part of the netlist flow.

#include "namerules.h"

#include "serdesip/netlist.h"

namespace IPSERDESIP {

namespace {

constexpr int lengthLimit = 128;

bool isLetter(QChar c) {
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
           (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) || c == QLatin1Char('_');
}

bool isDigit(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

QString lengthFlaw(const QString& name) {
    if (name.isEmpty()) {
        return QStringLiteral("the name is empty");
    }
    if (name.size() > lengthLimit) {
        return QStringLiteral("the name has %1 characters, more than %2")
            .arg(name.size())
            .arg(lengthLimit);
    }
    return {};
}

QString described(QChar c) {
    return c.isPrint() ? QStringLiteral("\"%1\"").arg(c)
                       : QStringLiteral("the character %1").arg(c.unicode());
}

} // namespace

QString moduleNameFlaw(const QString& name) {
    QString flaw = lengthFlaw(name);
    if (!flaw.isEmpty()) {
        return flaw;
    }
    for (const QChar c : name) {
        if (!isLetter(c) && !isDigit(c)) {
            return QStringLiteral("%1 is neither a letter, a digit nor \"_\"").arg(described(c));
        }
    }
    if (isDigit(name.at(0))) {
        return QStringLiteral("the name begins with a digit");
    }
    return isVerilogKeyword(name) ? QStringLiteral("the name is a keyword of Verilog") : QString();
}

QString fileNameFlaw(const QString& name) {
    QString flaw = lengthFlaw(name);
    if (!flaw.isEmpty()) {
        return flaw;
    }
    for (const QChar c : name) {
        if (!isLetter(c) && !isDigit(c) && c != QLatin1Char('-') && c != QLatin1Char('.')) {
            return QStringLiteral("%1 is neither a letter, a digit, \"_\", \"-\" nor \".\"")
                .arg(described(c));
        }
    }
    return isLetter(name.at(0)) || isDigit(name.at(0))
               ? QString()
               : QStringLiteral("the name begins with \"%1\"").arg(name.at(0));
}

} // namespace IPSERDESIP
