#pragma once

#include <QString>

namespace Window {

/// A note that this process has a project open, for the others of the same user. It is a lock of
/// the system's: it ends with its process, whatever ends that.
class OpenMark {
public:
    /// @param project  the project's folder
    explicit OpenMark(const QString& project);
    ~OpenMark();
    OpenMark(const OpenMark&) = delete;
    OpenMark& operator=(const OpenMark&) = delete;

    /// Who had it open before; empty: nobody, and the mark is ours.
    const QString& other() const { return m_other; }

private:
    QString m_path;
    QString m_other;
    int m_fd = -1;
};

} // namespace Window
