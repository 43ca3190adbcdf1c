#include "ipgen/window/openmark.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Window {

namespace {

/// The context of this file's texts.
struct MarkTexts {
    Q_DECLARE_TR_FUNCTIONS(MarkTexts)
};

/// Beside the user's other run-time files: a project folder may be read-only or shared.
QString markPath(const QString& project) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    QDir().mkpath(folder);
    const QString canonical = QFileInfo(project).canonicalFilePath();
    const QByteArray digest =
        QCryptographicHash::hash(canonical.toUtf8(), QCryptographicHash::Sha1).toHex();
    return folder + QStringLiteral("/open-") + QString::fromLatin1(digest) +
           QStringLiteral(".lock");
}

/// Whether the open file is still the one of this name: its owner takes it away when it ends.
bool isAt(int fd, const QByteArray& path) {
    struct stat open = {};
    struct stat named = {};
    return ::fstat(fd, &open) == 0 && ::stat(path.constData(), &named) == 0 &&
           open.st_ino == named.st_ino && open.st_dev == named.st_dev;
}

} // namespace

OpenMark::OpenMark(const QString& project)
    : m_path(markPath(project)) {
    constexpr int attempts = 10; // each lost to another that ended just then
    constexpr mode_t mine = S_IRUSR | S_IWUSR;
    const QByteArray path = QFile::encodeName(m_path);
    for (int i = 0; i < attempts; ++i) {
        m_fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, mine);
        if (m_fd < 0) {
            return; // no place for marks: nobody is told, and nothing else depends on it
        }
        if (::flock(m_fd, LOCK_EX | LOCK_NB) != 0) {
            QFile file;
            QByteArray who;
            if (file.open(m_fd, QIODevice::ReadOnly)) {
                who = file.readAll();
            }
            m_other = who.isEmpty() ? MarkTexts::tr("another program")
                                    : MarkTexts::tr("%1 (process %2)")
                                          .arg(QString::fromUtf8(who.split('\n').value(1)),
                                               QString::fromUtf8(who.split('\n').value(0)));
            ::close(m_fd);
            m_fd = -1;
            return;
        }
        if (isAt(m_fd, path)) {
            break;
        }
        ::close(m_fd);
        m_fd = -1;
    }
    const QByteArray who = QByteArray::number(QCoreApplication::applicationPid()) + '\n' +
                           QCoreApplication::applicationName().toUtf8() + '\n';
    // Written over and then cut: a file system may sync what is emptied first.
    if (m_fd >= 0 && (::write(m_fd, who.constData(), std::size_t(who.size())) != who.size() ||
                      ::ftruncate(m_fd, who.size()) != 0)) {
        return; // the lock is what counts; its text is for people
    }
}

OpenMark::~OpenMark() {
    if (m_fd >= 0) {
        QFile::remove(m_path);
        ::close(m_fd);
    }
}

} // namespace Window
