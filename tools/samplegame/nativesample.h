#pragma once

#include <filesystem>

#include "tools/samplegame/samplegame.h"

namespace tessaro::sample {

/// A sample game as it lies on Linux, and the home folder of its player.
struct NativeSample {
    std::filesystem::path game;     ///< `game` in the sample's folder
    std::filesystem::path home;     ///< `home` in it
    std::filesystem::path written;  ///< `.utpg` in that: what the game wrote
    Layout layout;                  ///< as of the sample for Windows, whose files these are
};

/// Builds the sample game as the game's own installer for Linux and some play leave it. Packages
/// lie in `System`, programs and INIs in the folder of this machine's programs, both of the game;
/// downloads, logs, saved games and new screenshots in the home. In the game's own `Cache` lies the
/// first of the downloads, in the home's `Maps` a map that the player has unpacked. Programs are
/// not installed yet. Raises std::filesystem::filesystem_error.
NativeSample buildNativeSample(const std::filesystem::path& folder, const Options& options = {});

}  // namespace tessaro::sample
