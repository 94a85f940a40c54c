#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tessaro::sample {

/// Appends the lowest `count` bytes of `value`, least significant first.
inline void appendLittleEndian(std::string& bytes, std::uint32_t value, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFFU));
}

}  // namespace tessaro::sample
