#include "tools/samplegame/nativesample.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "platform/files/nativegame.h"
#include "tools/samplegame/names.h"
#include "tools/samplegame/tree.h"

namespace tessaro::sample {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr const char* unpackedMap = "DM-Orangerie-Cl\xC3\xA9mence.unr";

void makePrivate(const fs::path& folder) {
    fs::create_directories(folder);
    fs::permissions(folder, fs::perms::owner_all);
}

std::string read(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string withLineFeeds(std::string text) {
    std::erase(text, '\r');
    return text;
}

// What the game for Linux has written itself ends its lines as that does.
void moveText(const fs::path& from, const fs::path& to, std::string_view mark = {}) {
    const std::string text = std::string(mark) + withLineFeeds(read(from));
    fs::remove(from);
    Tree(to.parent_path()).write(to.filename().string(), text);
}

void moveIntoHome(const NativeSample& sample, const char* folder) {
    fs::remove_all(sample.written / folder);
    fs::rename(sample.game / folder, sample.written / folder);
    makePrivate(sample.written / folder);
}

void moveInis(const fs::path& system, const fs::path& programs) {
    for (const char* name : {"Default.ini", "DefUser.ini"}) {
        if (programs == system) continue;
        fs::copy_file(system / name, programs / name, fs::copy_options::overwrite_existing);
    }
    for (const char* name : {"UnrealTournament.ini", "User.ini"})
        moveText(system / name, programs / name);
    fs::copy_file(programs / "UnrealTournament.ini", programs / "UnrealTournament.ini.tmp",
                  fs::copy_options::overwrite_existing);
}

// Texts that stand in for programs and libraries: of Windows, and two of those for Linux.
void changeLibraries(const fs::path& system, const fs::path& programs) {
    for (const std::string_view name : programNames()) fs::remove(system / pathFromUtf8(name));
    Tree tree(programs);
    for (const char* name : {"Core.so", "Engine.so"})
        tree.write(name, "This is a stand-in: a text, not a library.\n");
}

void moveCache(const NativeSample& sample) {
    moveIntoHome(sample, "Cache");
    fs::create_directories(sample.game / "Cache");
    const auto& lines = sample.layout.cacheLines;
    const auto first = std::ranges::find(lines, true, &CacheFile::present);
    const std::string name = first->guid + ".uxx";
    fs::rename(sample.written / "Cache" / name, sample.game / "Cache" / name);
}

}  // namespace

NativeSample buildNativeSample(const fs::path& folder, const Options& options) {
    NativeSample sample{folder / "game", folder / "home", folder / "home" / ".utpg", {}};
    sample.layout = buildSampleGame(sample.game, options);
    const fs::path system = sample.game / "System";
    const fs::path programs = sample.game / nativeNames().folder;
    const fs::path written = sample.written / "System";
    fs::create_directories(programs);
    makePrivate(sample.written);
    makePrivate(written);
    changeLibraries(system, programs);
    moveInis(system, programs);
    moveCache(sample);
    moveIntoHome(sample, "Save");
    for (const char* name : {"UnrealTournament.log", "ucc.log"})
        moveText(system / name, written / name, byteOrderMark);
    makePrivate(sample.written / "Maps");
    fs::rename(sample.game / "Maps" / pathFromUtf8(unpackedMap),
               sample.written / "Maps" / pathFromUtf8(unpackedMap));
    return sample;
}

}  // namespace tessaro::sample
