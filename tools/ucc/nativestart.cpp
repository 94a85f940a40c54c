#include "tools/ucc/nativestart.h"

#include <cstdlib>
#include <utility>

namespace tessaro::ucc {

namespace {

namespace fs = std::filesystem;

void makePrivate(const fs::path& folder) {
    if (fs::create_directory(folder)) fs::permissions(folder, fs::perms::owner_all);
}

// Nothing where there is no home folder, or a file has a name on the way.
std::optional<fs::path> playersFolder() {
    const char* home = std::getenv("HOME");
    if (!home || !*home) return std::nullopt;
    const fs::path written = fs::path(home) / ".utpg";
    try {
        makePrivate(written);
        makePrivate(written / "System");
    } catch (const fs::filesystem_error&) {
        return std::nullopt;
    }
    return written / "System";
}

bool isNative(const std::string& name) {
    return name.starts_with("ucc-bin") || name.starts_with("ut-bin");
}

}  // namespace

std::optional<NativeStart> NativeStart::of(const fs::path& program) {
    if (!isNative(program.filename().string())) return std::nullopt;
    return NativeStart(program.parent_path());
}

NativeStart::NativeStart(fs::path programs)
    : programs_(std::move(programs)),
      written_(playersFolder().value_or(programs_)),
      gameIni_(find("UnrealTournament.ini", "Default.ini")),
      userIni_(find("User.ini", "DefUser.ini")) {}

// The letter case counts: a file of another one is not seen.
fs::path NativeStart::find(const char* name, const char* madeOf) const {
    for (const fs::path& folder : {written_, programs_})
        if (fs::exists(folder / name)) return folder / name;
    for (const fs::path& folder : {written_, programs_}) {
        if (!fs::exists(folder / madeOf)) continue;
        fs::copy_file(folder / madeOf, written_ / name);
        break;
    }
    return written_ / name;
}

std::vector<std::string> NativeStart::lines() const {
    const std::string folder =
        written_ == programs_ ? "WARNING: Not using preference directory"
                              : "WARNING: using preference directory: " + written_.string() + "/";
    return {folder, "WARNING: Using system ini file: " + gameIni_.string(),
            "WARNING: Using user ini file: " + userIni_.string()};
}

void NativeStart::rewriteIni() const {
    if (!fs::exists(gameIni_)) return;
    const fs::path beside = fs::path(gameIni_) += ".tmp";
    fs::copy_file(gameIni_, beside, fs::copy_options::overwrite_existing);
}

}  // namespace tessaro::ucc
