#pragma once

#include "tools/samplegame/rng.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace tessaro::sample {

/// The 16-byte identity of a package, as four numbers that the file holds little-endian.
struct Guid {
    std::array<std::uint32_t, 4> parts{};

    static Guid random(Rng& rng);

    /// 32 upper-case hex digits: the name that the game gives the package in its cache.
    std::string text() const;

    friend bool operator==(const Guid&, const Guid&) = default;
};

/// Length of the header that packageBytes() writes.
inline constexpr std::size_t packageHeaderBytes = 64;

/// A package of exactly `size` bytes: a header, then filler. Raises std::invalid_argument where
/// the header does not fit into `size`.
///
/// The header, all numbers little-endian: +0 u32 0x9E2A83C1, +4 u16 version 69, +6 u16 licensee,
/// +8 u32 flags, +12 names, +20 exports, +28 imports (each u32 count, u32 offset), +36 GUID,
/// +52 u32 number of generations (1), +56 the generation (u32 exports, u32 names). The three
/// tables are empty, so that a reader who follows them never takes filler for an entry.
std::string packageBytes(const Guid& guid, std::size_t size, Rng& rng);

}  // namespace tessaro::sample
