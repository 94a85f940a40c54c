#include "servers/launch.h"

#include "compress/vornxshell.h"
#include "core/routines.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/numbers.h"

namespace tessaro {
namespace {

constexpr double minimisingSeconds = 0.2;

// Unlike `FileExists` this does not see what is hidden.
bool isListed(Program& program, const std::string& file) {
    std::string name;
    attempt([&] { name = program.files.firstMatch(file, attributes::Normal); });
    return !name.empty();
}

}  // namespace

void LaunchOnServer(Program& program, MainWindow& mainWindow, const std::string& IP,
                    const std::string& Port) {
    const std::string game = program.gamePaths.UTSysPath + "\\unrealtournament.exe";
    if (FileExists(program, game) == Yes) {
        mainWindow.setState(windowstate::Minimised);
        Pause(program.events, minimisingSeconds);
        RunVisible(program, game + " " + IP + "?port=" + Port);
        mainWindow.setState(toInt16(program.settings.WindowSize));
    }
    if (!isListed(program, game)) {
        program.dialogs.message(
            {"UnrealTournament executable not found. Please check all paths and try again",
             "Error Starting: UnrealTournament", Buttons::Ok, Icon::Stop});
    }
}

}  // namespace tessaro
