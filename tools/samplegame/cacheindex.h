#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessaro::sample {

/// One line of cache.ini and the cached file that it speaks of.
struct CacheFile {
    std::string guid;        ///< 32 hex digits; the file on disk is `<guid>.uxx`
    std::string trueName;    ///< UTF-8, with extension
    bool present = false;    ///< false where the game has purged the file but kept the line
    std::uintmax_t bytes{};  ///< size of the file, 0 where there is none
};

/// Text of cache.ini as the game writes it on a western Windows: CRLF, code page 1252.
///
///     [Cache]
///     25378BF44584EF794EAC6E86872140C4=CTF-Example.unr
///
/// Raises std::runtime_error for a name that cannot be written so.
std::string cacheIndex(const std::vector<CacheFile>& lines);

/// `utf8` in code page 1252, as far as the sample needs it: ASCII, U+00A0 to U+00FF and the euro
/// sign. Raises std::runtime_error for anything else.
std::string toCodePage(std::string_view utf8);

}  // namespace tessaro::sample
