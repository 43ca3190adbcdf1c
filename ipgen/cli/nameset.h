#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <memory>

namespace Ipgen {

/// The names seen so far, however many: a hash table in an unnamed temporary file, so that memory
/// does not grow with it. Names are told apart by 128 bits of their hash.
class NameSet {
public:
    NameSet();

    /// False: the name was there already.
    bool insert(const QString& name);
    /// Whether the file could not be made or grown; duplicates go unseen then.
    bool failed() const { return m_failed; }

private:
    using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

    static File makeFile();
    bool insertInto(std::FILE* file, qint64 slots, const QByteArray& key);
    void grow();

    File m_file;
    qint64 m_slots;
    qint64 m_count = 0;
    bool m_failed = false;
};

} // namespace Ipgen
