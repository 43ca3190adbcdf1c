#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace Ipgen {

/// Reads lines from a file descriptor. Holds no more than one line of limited length at a time.
class LineReader {
public:
    /// @param fd       stays the caller's
    /// @param longest  bytes of a line that are kept; what is beyond is read and dropped
    LineReader(int fd, int longest);

    /// False at the end, and after an error.
    bool next();
    /// The line that next() read, without its line feed.
    const QByteArray& line() const { return m_line; }
    /// Its number, from 1.
    qint64 number() const { return m_number; }
    /// Whether it was longer than may be.
    bool tooLong() const { return m_tooLong; }
    /// The system's words for a read that failed; empty: none did.
    const QString& error() const { return m_error; }

private:
    bool fill();
    void keep(const char* from, int size);

    int m_fd;
    int m_longest;
    std::vector<char> m_block = std::vector<char>(65536);
    int m_filled = 0;
    int m_at = 0;
    QByteArray m_line;
    qint64 m_number = 0;
    bool m_tooLong = false;
    QString m_error;
};

} // namespace Ipgen
