#pragma once

#include <filesystem>

namespace tessaro::sample {

/// Lays an archive of two players beside the program, next to the one that the sample game has: the
/// list `playerlist.lst`, and in `users` a whole `user.ini` for each. An archive that is there
/// already is left alone. Raises std::filesystem::filesystem_error.
void writePlayers(const std::filesystem::path& programFolder);

}  // namespace tessaro::sample
