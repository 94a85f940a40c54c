// tessaro-sample FOLDER SETTINGS: builds the sample game in FOLDER, and writes a settings file that
// points at it and an archive of players beside that.

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

#include "platform/files/drives.h"
#include "platform/files/files.h"
#include "platform/files/filetable.h"
#include "platform/files/hostpath.h"
#include "platform/files/paths.h"
#include "platform/outside/arguments.h"
#include "platform/profile/profilecalls.h"
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

}  // namespace

int main(int argc, char** argv) {
    const auto arguments = programArguments(argc, argv);
    if (arguments.size() != 3) {
        std::fputs("Usage: tessaro-sample FOLDER SETTINGS\n", stderr);
        return 2;
    }
    try {
        const HostPath game = std::filesystem::absolute(hostPath(arguments[1]));
        tessaro::sample::buildSampleGame(game);
        tessaro::ucc::installPrograms(game, tessaro::executablePath().parent_path());
        const HostPath settings = std::filesystem::absolute(hostPath(arguments[2]));
        pointSettingsAt(game, settings);
        tessaro::sample::writePlayers(settings.parent_path());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "The sample game could not be made: %s\n", error.what());
        return 1;
    }
}
