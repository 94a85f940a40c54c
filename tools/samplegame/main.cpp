// tessaro-sample FOLDER SETTINGS: builds the sample game in FOLDER, and writes a settings file that
// points at it and an archive of players beside that. With `--native` it is the game for Linux, in
// FOLDER/game, and FOLDER/home is the home folder of its player: the real one is left alone.

#include <cstdio>
#include <exception>
#include <string>
#include <string_view>

#include "platform/files/host.h"
#include "platform/files/hostpath.h"
#include "platform/outside/arguments.h"
#include "tools/samplegame/nativesample.h"
#include "tools/samplegame/players.h"
#include "tools/samplegame/samplegame.h"
#include "tools/samplegame/settings.h"
#include "tools/ucc/programs.h"

namespace {

using namespace tessaro;

HostPath build(const HostPath& game) {
    sample::buildSampleGame(game);
    ucc::installPrograms(game, executablePath().parent_path());
    return game;
}

HostPath buildNative(const HostPath& folder) {
    const auto sample = sample::buildNativeSample(folder);
    ucc::installNativePrograms(sample.game, executablePath().parent_path());
    std::printf("For this game start the program with HOME=%s\n", sample.home.string().c_str());
    return sample.game;
}

}  // namespace

int main(int argc, char** argv) {
    const auto arguments = programArguments(argc, argv);
    const bool native = arguments.size() == 4 && arguments[1] == "--native";
    if (arguments.size() != 3 && !native) {
        std::fputs("Usage: tessaro-sample [--native] FOLDER SETTINGS\n", stderr);
        return 2;
    }
    try {
        const HostPath folder = std::filesystem::absolute(hostPath(arguments.end()[-2]));
        const HostPath settings = std::filesystem::absolute(hostPath(arguments.back()));
        sample::pointSettingsAt(native ? buildNative(folder) : build(folder), settings);
        tessaro::sample::writePlayers(settings.parent_path());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "The sample game could not be made: %s\n", error.what());
        return 1;
    }
}
