// Where IPs may write, and how: folders and text files below the output root.

#include "ipcore/ipcore.h"

#include <core/viewmanager.h>
#include <utils/filereplace.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>
#include <system_error>

namespace IPCore {

namespace {

QString& root() {
    static QString folder;
    return folder;
}

OutputLog& logged() {
    static OutputLog log;
    return log;
}

/// The path without links, as far as it exists; the rest as it stands.
QString realPath(const QString& path) {
    QString rest;
    QString existing = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (!QFileInfo::exists(existing) && existing != QLatin1String("/")) {
        const int slash = existing.lastIndexOf(QLatin1Char('/'));
        rest.prepend(existing.mid(slash));
        existing.truncate(qMax(slash, 1));
    }
    const QString real = QFileInfo(existing).canonicalFilePath();
    return real == QLatin1String("/") && !rest.isEmpty() ? rest : real + rest;
}

bool isInside(const QString& path) {
    if (root().isEmpty()) {
        return true;
    }
    const QString bound = realPath(root());
    const QString real = realPath(path);
    return real == bound || real.startsWith(bound + QLatin1Char('/')) ||
           bound == QLatin1String("/");
}

bool refuse(const QString& path, const QString& reason) {
    Core::ViewManager::reportError(path, reason);
    return false;
}

QString outside() {
    return QStringLiteral("lies outside the output folder %1").arg(root());
}

/// What is wrong with the spelling of a folder's path; empty: nothing.
QString flawOf(const QString& folder) {
    if (folder.isEmpty()) {
        return QStringLiteral("the path is empty");
    }
    const QStringList parts =
        folder.mid(folder.startsWith(QLatin1Char('/')) ? 1 : 0).split(QLatin1Char('/'));
    for (const QString& part : parts) {
        if (part.isEmpty()) {
            return QStringLiteral("the path has an empty component");
        }
        if (part == QLatin1String(".") || part == QLatin1String("..")) {
            return QStringLiteral("the path has a \"%1\" component").arg(part);
        }
        if (part.contains(QChar(u'\0'))) {
            return QStringLiteral("the path has a zero character");
        }
    }
    return {};
}

} // namespace

void setOutputRoot(const QString& folder) {
    root() = folder;
}

QString outputRoot() {
    return root();
}

void startOutputLog() {
    logged() = OutputLog();
}

OutputLog outputLog() {
    return logged();
}

QString outputFlaw(const QString& path) {
    const QString flaw = flawOf(path);
    return flaw.isEmpty() && !isInside(path) ? outside() : flaw;
}

bool makeDirs(const QString& folder, const QString& ipName) {
    const QString prefix = ipName.isEmpty() ? QString() : ipName + QStringLiteral(": ");
    const QString flaw = outputFlaw(folder);
    if (!flaw.isEmpty()) {
        return refuse(folder, prefix + flaw);
    }
    for (int end = folder.indexOf(QLatin1Char('/'), 1);;
         end = folder.indexOf(QLatin1Char('/'), end + 1)) {
        const QString part = end < 0 ? folder : folder.left(end);
        const int made = ::mkdir(QFile::encodeName(part).constData(), 0777);
        const int error = made == 0 ? 0 : errno;
        if (made != 0 && !QFileInfo(part).isDir()) {
            const std::string why = std::generic_category().message(error);
            return refuse(part, prefix + QStringLiteral("cannot make the folder: %1")
                                             .arg(QString::fromLocal8Bit(why.c_str())));
        }
        if (end < 0) {
            logged().folders.append(folder);
            return true;
        }
    }
}

bool generateFile(const QString& path, const QStringList& lines, QWidget* /*parent*/,
                  const QString& header) {
    const QFileInfo info(path);
    if (!isInside(path)) {
        return refuse(path, outside());
    }
    // Where such a link leads cannot be told apart from a way out of the output folder.
    if (!root().isEmpty() && info.isSymLink() && !info.exists()) {
        return refuse(path, QStringLiteral("is a link to nothing"));
    }
    QByteArray bytes = header.toUtf8();
    for (const QString& line : lines) {
        bytes += line.toUtf8();
        bytes += '\n';
    }
    const Utils::FileResult result = Utils::replaceFile(path, bytes);
    if (!result.ok) {
        return refuse(path, result.reason);
    }
    logged().files.append(path);
    return true;
}

} // namespace IPCore
