#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "tools/samplegame/bitmap.h"
#include "tools/samplegame/cacheindex.h"
#include "tools/samplegame/inifiles.h"
#include "tools/samplegame/package.h"
#include "tools/samplegame/rng.h"

namespace tessaro::sample {

struct Options {
    std::uint32_t seed = 1;
    /// What the ages of the cached files, 0 to 400 days, are counted back from.
    std::filesystem::file_time_type now = std::filesystem::file_time_type::clock::now();
};

/// What was built, so that tests need not read it back to know it. File names are without folder.
struct Layout {
    std::vector<CacheFile> cacheLines;          ///< lines of cache.ini, in order
    std::vector<std::string> unlistedPackages;  ///< .uxx files that no line speaks of
    std::string unfinishedDownload;             ///< the .tmp file in the cache folder
    std::vector<std::string> screenshots;       ///< pictures in System, in order
    std::uintmax_t totalBytes = 0;              ///< of all files together
};

/// Builds a believable installation of the game in `folder`, about 25 MB; every folder and file
/// name is as the game has it, every content is made up. The same seed gives the same bytes.
///
/// Two of the cached packages, DM-Cybrosis][.unr and relics.u, are in their proper folders
/// already; the names of the others are new to the installation.
///
/// Files that exist are replaced, others in `folder` stay. Raises
/// std::filesystem::filesystem_error where a file or a folder cannot be made.
Layout buildSampleGame(const std::filesystem::path& folder, const Options& options = {});

}  // namespace tessaro::sample
