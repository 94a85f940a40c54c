#pragma once
// The game's files that several tools read and write, and the file number that they share.

#include <string>
#include <string_view>

namespace tessaro {

/// Under this number `clsINI`, the announcement of the cache's size, the extraction and the cache
/// wipe open their files. So no two of them can overlap: the second one's opening raises 55.
inline constexpr int sharedFileNumber = 1;

/// The game's own settings, in its system folder.
inline std::string gameIniIn(std::string_view systemFolder) {
    return std::string(systemFolder) + "\\unrealtournament.ini";
}

/// The settings of the game's player, in its system folder.
inline std::string userIniIn(std::string_view systemFolder) {
    return std::string(systemFolder) + "\\user.ini";
}

/// The index of the game's cache, in the cache folder.
inline std::string cacheIndexIn(std::string_view cacheFolder) {
    return std::string(cacheFolder) + "\\cache.ini";
}

}  // namespace tessaro
