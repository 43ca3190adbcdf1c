#include "utils/filereplace.h"

#include <QFile>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace Utils {

namespace {

// A temporary file is locked (flock) by its writer for as long as it is one. The lock ends with
// the process however that ends, so a file of this name that can be locked belongs to nobody.
constexpr char temporaryPrefix[] = ".ipgen-tmp-";

int syncLaterCount = 0;

QString systemText(int error) {
    return QString::fromLocal8Bit(std::generic_category().message(error).c_str());
}

QString failure(const char* step, int error) {
    return QStringLiteral("%1: %2").arg(QLatin1String(step), systemText(error));
}

QByteArray folderOf(const QByteArray& path) {
    const int slash = path.lastIndexOf('/');
    if (slash < 0) {
        return ".";
    }
    return slash == 0 ? QByteArray("/") : path.left(slash);
}

/// Follows symbolic links, also one that points to nothing yet. Empty: a loop.
QByteArray resolveLinks(QByteArray path) {
    constexpr int mostLinks = 40; // as the kernel's own limit
    for (int i = 0; i < mostLinks; ++i) {
        char buffer[PATH_MAX];
        const ssize_t length = ::readlink(path.constData(), buffer, sizeof buffer);
        if (length < 0) {
            return path;
        }
        const QByteArray to(buffer, static_cast<int>(length));
        path = to.startsWith('/') ? to : folderOf(path) + '/' + to;
    }
    return {};
}

/// The open descriptor that a path of the form "/dev/fd/N" stands for; -1: none. What it leads to
/// is written to and never replaced, be it a file: the shell that opened it counts on that.
int descriptorOf(const QByteArray& path) {
    if (path == "/dev/stdout") {
        return STDOUT_FILENO;
    }
    for (const char* folder : {"/dev/fd/", "/proc/self/fd/"}) {
        bool number = false;
        const int fd = path.startsWith(folder)
                           ? path.mid(static_cast<int>(std::strlen(folder))).toInt(&number)
                           : -1;
        if (number) {
            return fd;
        }
    }
    return -1;
}

bool writeAll(int fd, const char* data, std::size_t size) {
    while (size > 0) {
        const ssize_t done = ::write(fd, data, size);
        if (done < 0 && errno == EINTR) {
            continue;
        }
        if (done <= 0) {
            if (done == 0) {
                errno = ENOSPC;
            }
            return false;
        }
        data += done;
        size -= static_cast<std::size_t>(done);
    }
    return true;
}

/// Reads until the end or until more than `limit` bytes have come.
bool readAll(int fd, QByteArray* bytes, qint64 limit) {
    bytes->clear();
    char buffer[65536];
    while (bytes->size() <= limit) {
        const ssize_t done = ::read(fd, buffer, sizeof buffer);
        if (done < 0 && errno == EINTR) {
            continue;
        }
        if (done < 0) {
            return false;
        }
        if (done == 0) {
            return true;
        }
        bytes->append(buffer, static_cast<int>(done));
    }
    return true;
}

bool holds(const QByteArray& path, const QByteArray& bytes) {
    const int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        return false;
    }
    struct stat info {};
    QByteArray present;
    const bool same = ::fstat(fd, &info) == 0 && S_ISREG(info.st_mode) &&
                      info.st_size == bytes.size() && readAll(fd, &present, bytes.size()) &&
                      present == bytes;
    ::close(fd);
    return same;
}

/// Removes one leftover, unless somebody holds its lock.
bool removeUnlocked(const QByteArray& path) {
    const int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (fd < 0) {
        return false;
    }
    const bool removed = ::flock(fd, LOCK_EX | LOCK_NB) == 0 && ::unlink(path.constData()) == 0;
    ::close(fd);
    return removed;
}

int sweep(const QByteArray& folder) {
    const std::unique_ptr<DIR, int (*)(DIR*)> dir(::opendir(folder.constData()), &::closedir);
    if (!dir) {
        return 0;
    }
    int removed = 0;
    while (const dirent* entry = ::readdir(dir.get())) {
        if (std::strncmp(entry->d_name, temporaryPrefix, sizeof temporaryPrefix - 1) == 0) {
            removed += removeUnlocked(folder + '/' + entry->d_name) ? 1 : 0;
        }
    }
    return removed;
}

bool syncFolder(const QByteArray& folder) {
    const int fd = ::open(folder.constData(), O_RDONLY | O_CLOEXEC | O_DIRECTORY);
    if (fd < 0) {
        return false;
    }
    // Some file systems cannot sync a folder and say EINVAL; the name is as safe as it gets there.
    const bool synced = ::fsync(fd) == 0 || errno == EINVAL;
    const int error = errno;
    ::close(fd);
    errno = error;
    return synced;
}

} // namespace

FileReplacement::FileReplacement(const QString& path) {
    m_result.path = path;
    begin();
}

FileReplacement::~FileReplacement() {
    discard();
}

void FileReplacement::begin() {
    const QByteArray path = QFile::encodeName(m_result.path);
    if (path.isEmpty() || path.contains('\0')) {
        fail("cannot write", path.isEmpty() ? ENOENT : EINVAL);
        return;
    }
    const int open = descriptorOf(path);
    if (open >= 0) {
        m_direct = true;
        m_fd = ::fcntl(open, F_DUPFD_CLOEXEC, 0);
        if (m_fd < 0) {
            fail("cannot open", errno);
        }
        return;
    }
    struct stat info {};
    const bool exists = ::stat(path.constData(), &info) == 0;
    if (exists && S_ISDIR(info.st_mode)) {
        fail("cannot write", EISDIR);
        return;
    }
    if (exists && !S_ISREG(info.st_mode)) {
        m_direct = true;
        m_fd = ::open(path.constData(), O_WRONLY | O_CLOEXEC);
        if (m_fd < 0) {
            fail("cannot open", errno);
        }
        return;
    }
    m_target = resolveLinks(path);
    if (m_target.isEmpty()) {
        fail("cannot write", ELOOP);
        return;
    }
    m_folder = folderOf(m_target);
    sweep(m_folder);
    if (!openTemporary(m_folder) || !exists) {
        return;
    }
    // The owner can only be kept by root; others keep their own, as any editor does.
    if (info.st_uid != ::geteuid() || info.st_gid != ::getegid()) {
        std::ignore = ::fchown(m_fd, info.st_uid, info.st_gid);
    }
    if (::fchmod(m_fd, info.st_mode & 07777U) != 0) {
        fail("cannot keep the permissions", errno);
    }
}

bool FileReplacement::openTemporary(const QByteArray& folder) {
    static unsigned counter = 0;
    constexpr int attempts = 1000;
    for (int i = 0; i < attempts; ++i) {
        const QByteArray name = folder + '/' + temporaryPrefix + QByteArray::number(::getpid()) +
                                '-' + QByteArray::number(++counter);
        m_fd = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (m_fd < 0 && errno == EEXIST) {
            continue;
        }
        if (m_fd < 0) {
            return fail("cannot make a file in its folder", errno);
        }
        m_temporary = name;
        // A sweeper may lock or take the name between the two calls; then another is tried.
        // A file system without locks is no reason to fail: nobody sweeps there either.
        struct stat info {};
        const bool taken = ::flock(m_fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        if (taken || (::fstat(m_fd, &info) == 0 && info.st_nlink == 0)) {
            discard();
            continue;
        }
        return true;
    }
    return fail("cannot make a file in its folder", EEXIST);
}

bool FileReplacement::write(const QByteArray& bytes) {
    if (!m_result.ok) {
        return false;
    }
    return writeAll(m_fd, bytes.constData(), static_cast<std::size_t>(bytes.size())) ||
           fail("cannot write", errno);
}

FileResult FileReplacement::commit() {
    if (!m_result.ok || m_fd < 0) {
        return m_result;
    }
    const bool sync = !m_direct && syncLaterCount == 0;
    if (sync && ::fsync(m_fd) != 0) {
        fail("cannot write", errno);
        return m_result;
    }
    // The lock goes with the descriptor, so the rename comes first: a sweeper must not take the
    // file in between.
    if (!m_direct && ::rename(m_temporary.constData(), m_target.constData()) != 0) {
        fail("cannot put the new file in place", errno);
        return m_result;
    }
    m_temporary.clear();
    m_result.written = true;
    if (::close(std::exchange(m_fd, -1)) != 0 && m_direct) {
        fail("cannot write", errno);
    } else if (sync && !syncFolder(m_folder)) {
        fail("cannot sync its folder", errno);
    }
    return m_result;
}

bool FileReplacement::fail(const char* step, int error) {
    m_result.ok = false;
    m_result.reason = failure(step, error);
    discard();
    return false;
}

void FileReplacement::discard() {
    if (!m_temporary.isEmpty()) {
        ::unlink(m_temporary.constData());
        m_temporary.clear();
    }
    if (m_fd >= 0) {
        ::close(std::exchange(m_fd, -1));
    }
}

FileResult replaceFile(const QString& path, const QByteArray& bytes) {
    const QByteArray name = QFile::encodeName(path);
    if (!name.contains('\0') && descriptorOf(name) < 0 && holds(name, bytes)) {
        const QByteArray target = resolveLinks(name);
        sweep(folderOf(target));
        FileResult result;
        result.path = path;
        return result;
    }
    FileReplacement file(path);
    file.write(bytes);
    return file.commit();
}

SyncLater::SyncLater() {
    ++syncLaterCount;
}

SyncLater::~SyncLater() {
    --syncLaterCount;
}

FileResult syncFiles(const QString& folder) {
    FileResult result;
    result.path = folder;
    const int fd =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC | O_DIRECTORY);
    if (fd < 0 || ::syncfs(fd) != 0) {
        result.ok = false;
        result.reason = failure("cannot sync the folder", errno);
    }
    if (fd >= 0) {
        ::close(fd);
    }
    return result;
}

int sweepLeftovers(const QString& folder) {
    return sweep(QFile::encodeName(folder));
}

FileResult readFile(const QString& path, QByteArray* bytes) {
    FileResult result;
    result.path = path;
    const QByteArray name = QFile::encodeName(path);
    const int fd = name.contains('\0') ? -1 : ::open(name.constData(), O_RDONLY | O_CLOEXEC);
    struct stat info {};
    int error = name.contains('\0') ? EINVAL : errno;
    bool ok = fd >= 0;
    if (ok) {
        ok = ::fstat(fd, &info) == 0 && !S_ISDIR(info.st_mode);
        error = S_ISDIR(info.st_mode) ? EISDIR : errno;
    }
    if (ok) {
        constexpr qint64 most = 1LL << 30; // what a QByteArray can surely hold
        ok = readAll(fd, bytes, most) && bytes->size() <= most;
        error = bytes->size() > most ? EFBIG : errno;
    }
    if (fd >= 0) {
        ::close(fd);
    }
    if (!ok) {
        bytes->clear();
        result.ok = false;
        result.reason = failure("cannot read", error);
    }
    return result;
}

} // namespace Utils
