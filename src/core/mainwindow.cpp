#include "core/mainwindow.h"
#include "core/gamefiles.h"

#include "core/iniCalls.h"
#include "core/routines.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/numbers.h"

namespace tessaro {
namespace {

constexpr double twipsAroundPicture = 1010;  // caption, menu and status bar
constexpr double farewellSeconds = 1.7;
constexpr double splashClickSeconds = 0.5;

void playIfOn(Program& program, const char* name) {
    if (program.soundsOn()) PlaySoundResource(program, name);
}

void greet(Program& program, MainWindow& window) {
    if (equalsNumber(program.settings.ShowSplash, 1)) window.showSplash();
    playIfOn(program, "godlike");
}

}  // namespace

MainWindowSize backgroundSize(const MainWindowSize& form) {
    return {form.width, form.height - twipsAroundPicture};
}

void loadMainWindow(Program& program, MainWindow& window) {
    window.center();
    LoadSettings(program);
    window.setState(toInt16(program.settings.WindowSize));
    if (ValidatePaths(program, window.loadFolderToCheck()) == Yes) {
        greet(program, window);
    } else {
        // No splash and no greeting in a run that began with bad paths.
        window.showPrefs();
    }
    program.LastWindowState = window.state();
}

void resizeMainWindow(Program& program, int state) {
    if (state == windowstate::Minimised) {
        playIfOn(program, "wclose");
        return;
    }
    program.LastWindowState = state;
    program.settings.WindowSize = std::to_string(state);
    if (state == windowstate::Maximised) playIfOn(program, "wopen");
}

void unloadMainWindow(Program& program, MainWindow& window) {
    if (program.soundsOn()) {
        PlaySoundResource(program, "nasty");
        Pause(program.events, farewellSeconds);
    }
    attempt([&] {
        if (equalsNumber(program.settings.AutoSave, 1)) SaveSettings(program);
    });
    attempt([&] { window.unloadAllForms(); });
}

std::string playerName(clsINI& INI, const GamePaths& paths) {
    INI.inifile(userIniIn(paths.UTSysPath));
    return INI.getKeyValue("Name", "Player", "DefaultPlayer");
}

void acknowledgeSplash(Program& program) {
    playIfOn(program, "roger");
    Pause(program.events, splashClickSeconds);
}

}  // namespace tessaro
