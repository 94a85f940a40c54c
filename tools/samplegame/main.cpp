// tessaro-sample FOLDER SETTINGS: builds the sample game in FOLDER, and writes a settings file that
// points at it and an archive of players beside that. With `--native` it is the game for Linux, in
// FOLDER/game, and FOLDER/home is the home folder of its player: the real one is left alone.

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/files/drives.h"
#include "platform/files/files.h"
#include "platform/files/filetable.h"
#include "platform/files/paths.h"
#include "platform/profile/profilecalls.h"
#include "tools/samplegame/nativesample.h"
#include "tools/samplegame/players.h"
#include "tools/samplegame/samplegame.h"
#include "tools/ucc/programs.h"

namespace {

using namespace tessaro;

void pointSettingsAt(const HostPath& game, const HostPath& settings) {
    const auto host = makeHost();
    Paths paths(*host, hostDrives());
    Files files(*host, paths);
    ProfileCalls profile(files);
    const std::string root = paths.toGame(game);
    const std::string file = paths.toGame(settings);
    const auto set = [&](const char* section, const char* key, const std::string& text) {
        if (!profile.writePrivateProfileString(section, key, text, file))
            throw std::runtime_error("cannot write " + settings.string());
    };
    set("UTPaths", "UTPath", root);
    set("UTPaths", "UTCachePath", root + "\\Cache");
    set("UTPaths", "UTMapPath", root + "\\Maps");
    set("UTPaths", "UTSysPath", root + "\\System");
    set("Common", "VORNX", root + "\\UTMaps");
}

HostPath build(const HostPath& game) {
    tessaro::sample::buildSampleGame(game);
    tessaro::ucc::installPrograms(game, tessaro::executablePath().parent_path());
    return game;
}

HostPath buildNative(const HostPath& folder) {
    const auto sample = tessaro::sample::buildNativeSample(folder);
    tessaro::ucc::installNativePrograms(sample.game, tessaro::executablePath().parent_path());
    std::printf("For this game start the program with HOME=%s\n", sample.home.c_str());
    return sample.game;
}

}  // namespace

int main(int argc, char** argv) {
    const bool native = argc == 4 && std::string_view(argv[1]) == "--native";
    if (argc != 3 && !native) {
        std::fputs("Usage: tessaro-sample [--native] FOLDER SETTINGS\n", stderr);
        return 2;
    }
    try {
        const HostPath folder = std::filesystem::absolute(argv[argc - 2]);
        const HostPath settings = std::filesystem::absolute(argv[argc - 1]);
        pointSettingsAt(native ? buildNative(folder) : build(folder), settings);
        tessaro::sample::writePlayers(settings.parent_path());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "The sample game could not be made: %s\n", error.what());
        return 1;
    }
}
