// tessaro-sample FOLDER SETTINGS: builds the sample game in FOLDER, and writes a settings file that
// points at it and an archive of players beside that.

#include <cstdio>
#include <exception>
#include <string>

#include "platform/files/host.h"
#include "platform/files/hostpath.h"
#include "platform/outside/arguments.h"
#include "tools/samplegame/players.h"
#include "tools/samplegame/samplegame.h"
#include "tools/samplegame/settings.h"
#include "tools/ucc/programs.h"

int main(int argc, char** argv) {
    const auto arguments = tessaro::programArguments(argc, argv);
    if (arguments.size() != 3) {
        std::fputs("Usage: tessaro-sample FOLDER SETTINGS\n", stderr);
        return 2;
    }
    try {
        const tessaro::HostPath game = std::filesystem::absolute(tessaro::hostPath(arguments[1]));
        tessaro::sample::buildSampleGame(game);
        tessaro::ucc::installPrograms(game, tessaro::executablePath().parent_path());
        const tessaro::HostPath settings =
            std::filesystem::absolute(tessaro::hostPath(arguments[2]));
        tessaro::sample::pointSettingsAt(game, settings);
        tessaro::sample::writePlayers(settings.parent_path());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "The sample game could not be made: %s\n", error.what());
        return 1;
    }
}
