#include "ipgen/window/filehistory.h"

#include <utils/filereplace.h>

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

namespace Window {

namespace {

QString keptPath(const QString& path) {
    const QByteArray digest =
        QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
           QStringLiteral("/before/") + QString::fromLatin1(digest);
}

} // namespace

FileHistory::Snapshot FileHistory::take(const QStringList& paths) {
    Snapshot snapshot;
    for (const QString& path : paths) {
        QByteArray bytes;
        if (Utils::readFile(path, &bytes).ok) {
            snapshot.insert(path, bytes);
        }
    }
    return snapshot;
}

void FileHistory::keepChanged(const Snapshot& before) {
    const Snapshot now = take(before.keys());
    for (auto it = before.constBegin(); it != before.constEnd(); ++it) {
        if (now.value(it.key()) != it.value()) {
            const QString path = keptPath(it.key());
            QDir().mkpath(path.section(QLatin1Char('/'), 0, -2));
            Utils::replaceFile(path, it.value());
        }
    }
}

bool FileHistory::former(const QString& path, QByteArray* bytes) {
    return Utils::readFile(keptPath(path), bytes).ok;
}

} // namespace Window
