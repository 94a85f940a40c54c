#pragma once

#include <string>
#include <string_view>

namespace tessaro::ucc {

/// A package and the name that it is to have when it is unpacked.
struct Package {
    std::string name;
    std::string bytes;
    bool operator==(const Package&) const = default;
};

/// The content of a compressed package: +0 u32 1234, little-endian; the name as the game writes a
/// text (its length with the NUL as a compact index, its bytes, the NUL); then the compressed
/// bytes. Only the start is as the game's own files have it: what follows is a zlib stream.
std::string compressed(const Package& package);

/// The way back. Raises std::runtime_error for what is no such file, or a damaged one.
Package decompressed(std::string_view file);

}  // namespace tessaro::ucc
