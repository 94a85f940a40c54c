#include "tools/ucc/programs.h"

#include <string>

#include "platform/files/host.h"

namespace tessaro::ucc {

void installPrograms(const std::filesystem::path& game, const std::filesystem::path& programs) {
    namespace fs = std::filesystem;
    // Copies, since links would make them take the folder of the originals for the game's.
    const fs::path system = game / "System";
    const std::string ending = executablePath().extension().string();  // of this system's programs
    fs::copy_file(programs / ("tessaro-ucc" + ending), system / "UCC.exe",
                  fs::copy_options::overwrite_existing);
    fs::copy_file(programs / ("tessaro-ut" + ending), system / "UnrealTournament.exe",
                  fs::copy_options::overwrite_existing);
}

}  // namespace tessaro::ucc
