#pragma once

#include <cstdlib>
#include <string>

#include "tools/samplegame/littleendian.h"

namespace tessaro::test {

/// What a BMP file is made of. As it stands: 24 bits, one row of no pixels.
struct Bitmap {
    int width = 2;
    int height = 2;  ///< negative: the top row comes first
    unsigned bits = 24;
    unsigned compression = 0;  ///< 1 and 2 run-length, 3 with masks
    std::string palette;       ///< blue, green, red, 0; or the masks
    std::string rows;          ///< bottom row first, each padded to 4 bytes
};

/// The bytes of the file.
inline std::string bytesOf(const Bitmap& bitmap) {
    using sample::appendLittleEndian;
    const auto number = [](std::size_t value) { return static_cast<std::uint32_t>(value); };
    const std::size_t start = 54 + bitmap.palette.size();
    std::string bytes = "BM";
    appendLittleEndian(bytes, number(start + bitmap.rows.size()), 4);
    appendLittleEndian(bytes, 0, 4);
    appendLittleEndian(bytes, number(start), 4);
    appendLittleEndian(bytes, 40, 4);
    appendLittleEndian(bytes, static_cast<std::uint32_t>(bitmap.width), 4);
    appendLittleEndian(bytes, static_cast<std::uint32_t>(bitmap.height), 4);
    appendLittleEndian(bytes, 1, 2);
    appendLittleEndian(bytes, bitmap.bits, 2);
    appendLittleEndian(bytes, bitmap.compression, 4);
    appendLittleEndian(bytes, number(bitmap.rows.size()), 4);
    bytes.append(8, '\0');
    const bool indexed = bitmap.bits <= 8;
    appendLittleEndian(bytes, indexed ? number(bitmap.palette.size() / 4) : 0, 4);
    appendLittleEndian(bytes, 0, 4);
    return bytes + bitmap.palette + bitmap.rows;
}

/// A shot as the game takes it. Each pixel tells where it stands: red counts the columns, green the
/// rows, blue says which shot it is.
inline std::string shotBytes(int width, int height, int blue) {
    const std::size_t rowBytes = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
    std::string rows;
    for (int y = height - 1; y >= 0; --y) {
        const std::size_t end = rows.size() + rowBytes;
        for (int x = 0; x < width; ++x)
            rows += {static_cast<char>(blue), static_cast<char>(y), static_cast<char>(x)};
        rows.resize(end, '\0');
    }
    return bytesOf({.width = width, .height = height, .palette = {}, .rows = rows});
}

}  // namespace tessaro::test
