#include "ipgen/cli/table.h"

#include "ipgen/core/status.h"

namespace Ipgen {

QString tableText(const QList<QStringList>& rows) {
    QList<int> widths;
    for (const QStringList& row : rows) {
        for (int i = 0; i < row.size(); ++i) {
            if (i == widths.size()) {
                widths.append(0);
            }
            widths[i] = qMax(widths[i], oneLine(row[i]).size());
        }
    }
    QString text;
    for (const QStringList& row : rows) {
        QString line;
        for (int i = 0; i < row.size(); ++i) {
            line += oneLine(row[i]).leftJustified(widths[i] + 2);
        }
        while (line.endsWith(QLatin1Char(' '))) {
            line.chop(1);
        }
        text += line + QLatin1Char('\n');
    }
    return text;
}

QString numberText(double value) {
    constexpr int digits = 15;
    return value == 0.0 ? QStringLiteral("-") : QString::number(value, 'g', digits);
}

} // namespace Ipgen
