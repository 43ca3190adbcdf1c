#include "elfsection.h"

#include "goldencases.h"

#include <cstring>
#include <elf.h>

namespace {

template <typename T>
bool readAt(const QByteArray& bytes, quint64 offset, T& value) {
    if (offset + sizeof(T) > quint64(bytes.size())) {
        return false;
    }
    std::memcpy(&value, bytes.constData() + offset, sizeof(T));
    return true;
}

} // namespace

QByteArray elfSection(const QString& path, const QByteArray& name) {
    const QByteArray file = fileBytes(path);
    Elf64_Ehdr header{};
    if (!readAt(file, 0, header) || std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0) {
        return {};
    }
    const auto section = [&](unsigned index, Elf64_Shdr& result) {
        return readAt(file, header.e_shoff + quint64(index) * header.e_shentsize, result);
    };
    Elf64_Shdr names{};
    if (!section(header.e_shstrndx, names)) {
        return {};
    }
    for (unsigned i = 0; i < header.e_shnum; ++i) {
        Elf64_Shdr candidate{};
        if (!section(i, candidate)) {
            return {};
        }
        const QByteArray found(file.constData() + names.sh_offset + candidate.sh_name);
        if (found == name) {
            return file.mid(int(candidate.sh_offset), int(candidate.sh_size));
        }
    }
    return {};
}
