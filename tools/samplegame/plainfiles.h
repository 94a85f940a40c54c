#pragma once

#include <span>
#include <string_view>

namespace tessaro::sample {

/// A small text file of the installation; `path` is relative to the game's folder, with slashes.
struct PlainFile {
    std::string_view path;
    std::string_view text;  // lines end in a plain line feed and are written with CRLF
};

/// Read-me files, web pages, logs and the like.
std::span<const PlainFile> plainFiles();

}  // namespace tessaro::sample
