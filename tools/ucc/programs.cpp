#include "tools/ucc/programs.h"

#include <string>

#include "platform/files/host.h"
#include "platform/files/nativegame.h"

namespace tessaro::ucc {
namespace {

namespace fs = std::filesystem;

// A copy, since a link would make it take the folder of the original for the game's.
void install(const fs::path& program, const fs::path& file) {
    fs::create_directories(file.parent_path());
    fs::remove(file);  // MinGW's library does not copy over a file, whatever it is told
    fs::copy_file(program, file);
}

// With the ending of this system's programs.
fs::path built(const fs::path& programs, const std::string& name) {
    return programs / (name + executablePath().extension().string());
}

}  // namespace

void installPrograms(const fs::path& game, const fs::path& programs) {
    install(built(programs, "tessaro-ucc"), game / "System" / "UCC.exe");
    install(built(programs, "tessaro-ut"), game / "System" / "UnrealTournament.exe");
}

void installNativePrograms(const fs::path& game, const fs::path& programs) {
    const auto [folder, suffix] = nativeNames();
    install(built(programs, "tessaro-ucc"), game / folder / ("ucc-bin" + suffix));
    install(built(programs, "tessaro-ut"), game / folder / ("ut-bin" + suffix));
}

}  // namespace tessaro::ucc
