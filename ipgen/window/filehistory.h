#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace Window {

/// The files of the generation before, kept in the user's cache folder (XDG) for comparing. Losing
/// them loses nothing else.
class FileHistory {
public:
    /// The bytes of files, by absolute path.
    using Snapshot = QMap<QString, QByteArray>;
    static Snapshot take(const QStringList& paths);
    /// Keeps what `before` held of the files that a generation has changed.
    static void keepChanged(const Snapshot& before);
    /// The file as it was before its last change by a generation; false: it is not known.
    static bool former(const QString& path, QByteArray* bytes);
};

} // namespace Window
