#include "platform/files/nativegame.h"

#include <sys/utsname.h>

#include <algorithm>
#include <string_view>
#include <vector>

#include "platform/files/hostpath.h"
#include "platform/posix/home.h"
#include "platform/posix/wineprefix.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"

namespace tessaro {

namespace {

constexpr const char* commonFolder = "System";
constexpr const char* writtenFolder = ".utpg";

bool isFile(Host& host, const HostPath& path) {
    const auto status = host.status(path);
    return status && !status->folder;
}

// The one for this machine, else the one that says nothing of machines.
HostPath programIn(Host& host, const HostPath& folder, const std::string& name) {
    for (const std::string& suffix : {nativeNames().suffix, std::string()}) {
        HostPath program = folder / (name + suffix);
        if (isFile(host, program)) return program;
    }
    return {};
}

// Only the programs are asked for: a check of the game's folders, one after the other, asks for
// each when its turn comes.
std::optional<NativeGame> gameStartedFrom(Host& host, const HostPath& programs) {
    NativeGame game{
        programs, programIn(host, programs, "ucc-bin"), programIn(host, programs, "ut-bin"), {}};
    if (game.ucc.empty() && game.game.empty()) return std::nullopt;
    return game;
}

bool hasWindowsGame(Host& host, const HostPath& folder) {
    std::vector<std::string> names;
    attempt([&] { names = host.list(folder / commonFolder); });
    return std::ranges::any_of(names, [](const std::string& name) {
        return sameName(name, "UnrealTournament.exe") || sameName(name, "UCC.exe");
    });
}

// The game makes the last folder itself, if it can.
HostPath writtenHome(Host& host) {
    HostPath folder = homeFolder() / writtenFolder;
    bool usable = false;
    attempt([&] {
        usable = host.status(folder) ? isFolder(host, folder) : isFolder(host, homeFolder());
    });
    return usable ? folder : HostPath();
}

}  // namespace

NativeNames nativeNames() {
    utsname system = {};
    ::uname(&system);
    const std::string_view machine = system.machine;
    if (machine == "x86_64") return {"System64", "-amd64"};
    if (machine == "aarch64") return {"SystemARM64", "-arm64"};
    if (machine.starts_with('i') && machine.ends_with("86")) return {commonFolder, "-x86"};
    return {commonFolder, ""};
}

std::optional<NativeGame> nativeGameIn(Host& host, const HostPath& folder) {
    for (const std::string& programs : {nativeNames().folder, std::string(commonFolder)}) {
        auto game = gameStartedFrom(host, folder / programs);
        if (!game) continue;
        if (liesInWinePrefix(folder) && hasWindowsGame(host, folder)) return std::nullopt;
        game->home = writtenHome(host);
        return game;
    }
    return std::nullopt;
}

}  // namespace tessaro
