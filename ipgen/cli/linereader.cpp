#include "ipgen/cli/linereader.h"

#include <cerrno>
#include <cstring>
#include <system_error>
#include <unistd.h>

namespace Ipgen {

LineReader::LineReader(int fd, int longest)
    : m_fd(fd)
    , m_longest(longest) {}

bool LineReader::fill() {
    m_at = 0;
    ssize_t done = -1;
    do {
        done = ::read(m_fd, m_block.data(), m_block.size());
    } while (done < 0 && errno == EINTR);
    if (done < 0) {
        m_error = QString::fromLocal8Bit(std::generic_category().message(errno).c_str());
    }
    m_filled = done > 0 ? static_cast<int>(done) : 0;
    return done > 0;
}

void LineReader::keep(const char* from, int size) {
    const int room = m_longest - m_line.size();
    m_tooLong = m_tooLong || size > room;
    m_line.append(from, qMin(size, room));
}

bool LineReader::next() {
    m_line.resize(0);
    m_tooLong = false;
    bool any = false;
    for (;;) {
        if (m_at == m_filled && !fill()) {
            m_number += any && m_error.isEmpty() ? 1 : 0;
            return any && m_error.isEmpty();
        }
        any = true;
        const char* from = m_block.data() + m_at;
        const int size = m_filled - m_at;
        const void* feed = std::memchr(from, '\n', static_cast<std::size_t>(size));
        if (feed == nullptr) {
            keep(from, size);
            m_at = m_filled;
            continue;
        }
        const int length = static_cast<int>(static_cast<const char*>(feed) - from);
        keep(from, length);
        m_at += length + 1;
        ++m_number;
        return true;
    }
}

} // namespace Ipgen
