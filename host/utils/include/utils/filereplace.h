#pragma once

#include "utils/export.h"

#include <QByteArray>
#include <QString>

namespace Utils {

/// How the writing of one file ended.
struct FileResult {
    bool ok = true;
    bool written = false; ///< false with ok: the file held these bytes already and was not touched
    QString path;         ///< the file or folder that a failure is about
    QString reason;       ///< what failed, with the system's words; empty when ok

    explicit operator bool() const { return ok; }
};

/// A file under construction that takes the place of `path` in one step, or never. It grows in a
/// temporary file of the same folder; until commit() returns success the old file stands whole,
/// and whatever ends the process leaves the old file or the new one.
///
/// A symbolic link is followed: what it points to is replaced, the link stays. The permissions of
/// an existing file are kept. A path that names a device, a pipe or an open descriptor
/// ("/dev/fd/1") is written to directly.
/// Temporary files are named ".ipgen-tmp-*"; those of a run that was killed are removed by the
/// next replacement in the same folder.
class HOST_UTILS_EXPORT FileReplacement {
public:
    explicit FileReplacement(const QString& path);
    /// Drops what was not committed.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Appends; false once anything has failed.
    bool write(const QByteArray& bytes);
    /// Puts the new file in place, on the disk, name and content.
    FileResult commit();
    /// The state so far; not ok after a failed start or write.
    const FileResult& result() const { return m_result; }

private:
    void begin();
    bool openTemporary(const QByteArray& folder);
    bool fail(const char* step, int error);
    void discard();

    FileResult m_result;
    QByteArray m_target;    ///< what is replaced, links resolved
    QByteArray m_folder;    ///< its folder
    QByteArray m_temporary; ///< empty: none exists (now)
    int m_fd = -1;
    bool m_direct = false; ///< a device or a pipe
};

/// Replaces the file by these bytes, whole or not at all, as FileReplacement does. A file that
/// holds exactly these bytes is left alone, its time of change included.
HOST_UTILS_EXPORT FileResult replaceFile(const QString& path, const QByteArray& bytes);

/// While it lives, the files that this process replaces are put in place without waiting for the
/// disk. What ends the process, or takes space away, still leaves each file old or new; only a
/// fall of the whole machine may not, until syncFiles() has been called. For many files that
/// count only together.
class HOST_UTILS_EXPORT SyncLater {
public:
    SyncLater();
    ~SyncLater();
    SyncLater(const SyncLater&) = delete;
    SyncLater& operator=(const SyncLater&) = delete;
};

/// Waits until all that was written to the file system of this folder is on the disk.
HOST_UTILS_EXPORT FileResult syncFiles(const QString& folder);

/// Removes temporary files that killed runs left in the folder; those still being written stay.
/// Returns how many were removed.
HOST_UTILS_EXPORT int sweepLeftovers(const QString& folder);

/// Reads a whole regular file. Not ok: `path` and `reason` say why.
HOST_UTILS_EXPORT FileResult readFile(const QString& path, QByteArray* bytes);

} // namespace Utils
