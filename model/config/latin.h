#pragma once

#include <QLatin1String>

#include <cstddef>

namespace IPCUSTOMIZED {

/// A text that is a constant for the compiler, its length included.
constexpr QLatin1String operator""_l1(const char* text, std::size_t size) {
    return QLatin1String(text, static_cast<int>(size));
}

} // namespace IPCUSTOMIZED
