#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace Ipgen {

/// Rows as text in columns, two blanks apart, no blank at a line's end. Control characters are
/// written as escapes, so that a row stays a line.
QString tableText(const QList<QStringList>& rows);

/// A number in its shortest form, up to 15 digits; 0 gives "-".
QString numberText(double value);

} // namespace Ipgen
