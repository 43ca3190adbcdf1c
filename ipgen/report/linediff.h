#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace Ipgen {

/// One line of a comparison of two texts.
struct DiffLine {
    enum class Kind { Same, Removed, Added };
    Kind kind = Kind::Same;
    QString text;
    int left = 0;  ///< line number from 1 in the first text; 0: not there
    int right = 0; ///< in the second
};

/// A shortest edit from one text to another, line by line; removed lines stand before the added
/// ones of the same place.
QVector<DiffLine> diffLines(const QStringList& left, const QStringList& right);

/// Whether a comparison found a difference.
bool differs(const QVector<DiffLine>& lines);

/// Only the changes, with so many same lines around them; leaps are marked by a Same line without
/// numbers and text.
QVector<DiffLine> condensed(const QVector<DiffLine>& lines, int context);

} // namespace Ipgen
