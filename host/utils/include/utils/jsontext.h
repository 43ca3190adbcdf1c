#pragma once

#include "utils/export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace Utils {

/// Where and why a JSON text is damaged.
struct HOST_UTILS_EXPORT JsonError {
    int line = 0;   ///< from 1; 0: no error
    int column = 0; ///< from 1, in characters
    QString reason;

    bool isNull() const { return line == 0; }
    /// "line 3, column 7: the key "x" is given twice"
    QString text() const;
};

/// Levels of lists and objects inside one another that a text may have.
constexpr int jsonDepthLimit = 100;

/// Reads one JSON text (UTF-8, with or without a byte order mark).
///
/// Kinds: a text is a QString; true and false are bool; a number written without point and
/// exponent is an int, where that is too narrow a qlonglong, then a qulonglong; any other number
/// is a double; null is an invalid QVariant; a list of texts, the empty list included, is a
/// QStringList, any other list a QVariantList; an object is a QVariantMap.
///
/// Damage is: wrong syntax, bytes that are not UTF-8, a key given twice in one object, an integer
/// wider than 64 bits, more levels than jsonDepthLimit. Then the result is false and *error set.
HOST_UTILS_EXPORT bool parseJson(const QByteArray& text, QVariant* value, JsonError* error);

/// Where a part stands, as the place of an error: for a flaw that the reader of a parsed text
/// finds.
/// @param text  one that parseJson() takes
/// @param path  the keys from the outermost object in, a list's entries by their number from 0;
///              without such a part the error is null
HOST_UTILS_EXPORT JsonError errorAtKey(const QByteArray& text, const QStringList& path,
                                       const QString& reason);

enum class JsonForm {
    Indented, ///< two blanks a level, an entry a line, ended by a line feed
    Compact,  ///< one line without blanks or line feed
};

/// Writes what parseJson() reads, so that reading gives the same kinds again: a double always has
/// a point or an exponent, in the fewest digits that give the same number. Objects are in key
/// order: equal values give equal bytes. Kinds other than parseJson()'s are written as their
/// text; a number that is none (NaN, infinity) as null.
HOST_UTILS_EXPORT QByteArray writeJson(const QVariant& value, JsonForm form = JsonForm::Indented);

} // namespace Utils
