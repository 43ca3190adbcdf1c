#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <csignal>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

/// A folder on a disk of a few pages, or one that cannot be written to; only root may make one.
class SmallDisk {
public:
    /// @param folder  an existing empty folder that becomes the disk
    SmallDisk(const QString& folder, int kilobytes)
        : m_folder(QFile::encodeName(folder)) {
        const QByteArray options = "size=" + QByteArray::number(kilobytes) + "k";
        m_mounted = ::mount("tmpfs", m_folder.constData(), "tmpfs", 0, options.constData()) == 0;
    }
    ~SmallDisk() {
        if (m_mounted) {
            ::umount2(m_folder.constData(), MNT_DETACH);
        }
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool isMounted() const { return m_mounted; }
    bool makeReadOnly() {
        return ::mount("tmpfs", m_folder.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) ==
               0;
    }
    /// Fills the disk to its last byte.
    void fill() {
        QFile file(QFile::decodeName(m_folder) + QStringLiteral("/filler"));
        if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
            const QByteArray block(4096, 'x');
            while (file.write(block) == block.size()) {
            }
            while (file.write("x", 1) == 1) {
            }
        }
    }

private:
    QByteArray m_folder;
    bool m_mounted = false;
};

/// While it lives no file of this process grows beyond a limit: writing fails as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        m_formerHandler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_former);
        rlimit now = m_former;
        now.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &now);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_formerHandler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_former{};
    void (*m_formerHandler)(int) = SIG_DFL;
};
