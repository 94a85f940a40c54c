#pragma once

#include <filesystem>

namespace tessaro::ucc {

/// Puts the stand-ins for the game's two programs into its System folder, as UCC.exe and
/// UnrealTournament.exe, over what is there. `programs` is the folder with tessaro-ucc and
/// tessaro-ut. Raises std::filesystem::filesystem_error.
void installPrograms(const std::filesystem::path& game, const std::filesystem::path& programs);

/// The same as programs for Linux, in their folder and under their names for this machine.
void installNativePrograms(const std::filesystem::path& game,
                           const std::filesystem::path& programs);

}  // namespace tessaro::ucc
