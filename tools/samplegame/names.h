#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tessaro::sample {

/// Files of one kind in one folder of the game, with the range of their sizes here, which is a
/// tenth or less of that of the real ones. Names are in the letter case of the installed game.
struct StockFiles {
    std::string_view folder;
    std::string_view extension;
    std::span<const std::string_view> names;
    std::uint32_t leastKb;
    std::uint32_t mostKb;
};

/// A file in the cache folder, or the memory of one.
struct CachedName {
    std::string_view trueName;  // UTF-8
    bool present;
};

/// The packages of the game: maps, music, sounds, textures and the script packages in System.
std::span<const StockFiles> stockPackages();

/// Names of the programs and libraries in System.
std::span<const std::string_view> programNames();

/// Names, without extension, of the files of texts in System that have one per language.
std::span<const std::string_view> localizedNames();

/// What players download in the course of time; all names are invented but two, which are also
/// installed, in Maps and in System.
std::span<const CachedName> cachedNames();

}  // namespace tessaro::sample
