#include "ipgen/cli/nameset.h"

#include <QCryptographicHash>

#include <cstring>
#include <unistd.h>

namespace Ipgen {

namespace {

constexpr int keySize = 16;
constexpr qint64 firstSlots = 4096;

/// A free slot is all zero; a file that was made longer reads as zeros.
const char freeSlot[keySize] = {};

} // namespace

NameSet::File NameSet::makeFile() {
    return {std::tmpfile(), &std::fclose};
}

NameSet::NameSet()
    : m_file(makeFile())
    , m_slots(firstSlots)
    , m_failed(!m_file) {}

bool NameSet::insertInto(std::FILE* file, qint64 slots, const QByteArray& key) {
    const int fd = ::fileno(file);
    quint64 start = 0;
    std::memcpy(&start, key.constData(), sizeof start);
    for (qint64 i = 0; i < slots; ++i) {
        const qint64 slot =
            static_cast<qint64>((start + static_cast<quint64>(i)) % static_cast<quint64>(slots));
        char present[keySize] = {};
        const ssize_t read = ::pread(fd, present, keySize, slot * keySize);
        if (read == keySize && std::memcmp(present, key.constData(), keySize) == 0) {
            return false;
        }
        if (read < keySize || std::memcmp(present, freeSlot, keySize) == 0) {
            m_failed =
                m_failed || ::pwrite(fd, key.constData(), keySize, slot * keySize) != keySize;
            return true;
        }
    }
    m_failed = true;
    return true;
}

bool NameSet::insert(const QString& name) {
    if (m_failed) {
        return true;
    }
    if (m_count * 2 >= m_slots) {
        grow();
    }
    QByteArray key =
        QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256).left(keySize);
    if (std::memcmp(key.constData(), freeSlot, keySize) == 0) {
        key[0] = 1;
    }
    const bool fresh = insertInto(m_file.get(), m_slots, key);
    m_count += fresh ? 1 : 0;
    return fresh;
}

void NameSet::grow() {
    File larger = makeFile();
    if (!larger) {
        m_failed = true;
        return;
    }
    const int fd = ::fileno(m_file.get());
    for (qint64 slot = 0; slot < m_slots; ++slot) {
        QByteArray key(keySize, '\0');
        if (::pread(fd, key.data(), keySize, slot * keySize) == keySize &&
            std::memcmp(key.constData(), freeSlot, keySize) != 0) {
            insertInto(larger.get(), m_slots * 2, key);
        }
    }
    m_file = std::move(larger);
    m_slots *= 2;
}

} // namespace Ipgen
