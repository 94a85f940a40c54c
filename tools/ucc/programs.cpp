#include "tools/ucc/programs.h"

#include <string>

#include "platform/files/nativegame.h"

namespace tessaro::ucc {

namespace {

namespace fs = std::filesystem;

// A copy, since a link would make it take the folder of the original for the game's.
void install(const fs::path& program, const fs::path& file) {
    fs::create_directories(file.parent_path());
    fs::copy_file(program, file, fs::copy_options::overwrite_existing);
}

}  // namespace

void installPrograms(const fs::path& game, const fs::path& programs) {
    install(programs / "tessaro-ucc", game / "System" / "UCC.exe");
    install(programs / "tessaro-ut", game / "System" / "UnrealTournament.exe");
}

void installNativePrograms(const fs::path& game, const fs::path& programs) {
    const auto [folder, suffix] = nativeNames();
    install(programs / "tessaro-ucc", game / folder / ("ucc-bin" + suffix));
    install(programs / "tessaro-ut", game / folder / ("ut-bin" + suffix));
}

}  // namespace tessaro::ucc
