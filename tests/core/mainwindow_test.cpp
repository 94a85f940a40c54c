#include "core/mainwindow.h"

#include <gtest/gtest.h>

#include "core/iniCalls.h"
#include "support/testprogram.h"

namespace tessaro::test {
namespace {

using Names = std::vector<std::string>;

// A main window that keeps a record of what it was asked for.
class RecordingWindow : public MainWindow {
  public:
    explicit RecordingWindow(TestProgram& game) : game_(game) {}

    Names calls;
    int shownState = windowstate::Normal;
    std::function<void()> onSplash = [] {};

    void center() override { calls.push_back("center"); }
    void setState(int state) override {
        calls.push_back("state " + std::to_string(state));
        shownState = state;
        resizeMainWindow(game_.program, state);
    }
    int state() override { return shownState; }
    void showSplash() override {
        calls.push_back("splash");
        onSplash();
    }
    std::string loadFolderToCheck() override { return game_.program.gamePaths.UTPath; }
    void showPrefs() override { calls.push_back("prefs"); }
    void unloadAllForms() override {
        calls.push_back("unload all");
        throw RunTimeError(errors::ObjectNotSet);
    }

  private:
    TestProgram& game_;
};

class StartUp : public ::testing::Test {
  protected:
    void makeGame() {
        for (const char* folder : {"Sounds", "Maps", "Textures", "System", "Cache"})
            game.world.makeFolder(std::string("C:\\UnrealTournament\\") + folder);
    }
    void settings(const std::string& text) { game.world.write("C:\\Tessaro\\vornx.ini", text); }
    std::string savedSettings() { return game.world.read("C:\\Tessaro\\vornx.ini"); }

    TestProgram game;
    Program& program = game.program;
    RecordingWindow window{game};
};

TEST_F(StartUp, ShowsTheSplashAndThenGreets) {
    makeGame();
    window.onSplash = [&] { EXPECT_EQ(game.sounds.names, Names{}); };
    loadMainWindow(program, window);
    EXPECT_EQ(window.calls, (Names{"center", "state 0", "splash"}));
    EXPECT_EQ(game.sounds.names, Names{"godlike"});
}

TEST_F(StartUp, WithoutSplashStillGreets) {
    makeGame();
    settings("[Misc]\r\nShowSplash=0\r\n");
    loadMainWindow(program, window);
    EXPECT_EQ(window.calls, (Names{"center", "state 0"}));
    EXPECT_EQ(game.sounds.names, Names{"godlike"});
}

TEST_F(StartUp, WithoutSoundsNothingIsPlayed) {
    makeGame();
    settings("[Misc]\r\nSounds=0\r\n[Common]\r\nWindowSize=2\r\n");
    loadMainWindow(program, window);
    resizeMainWindow(program, windowstate::Minimised);
    EXPECT_EQ(game.sounds.names, Names{});
}

TEST_F(StartUp, BadPathsLeadToThePreferencesWithoutSplashAndGreeting) {
    loadMainWindow(program, window);
    EXPECT_EQ(window.calls, (Names{"center", "state 0", "prefs"}));
    EXPECT_EQ(game.sounds.names, Names{});
}

TEST_F(StartUp, StoredMaximisedWindowPlaysItsSoundBeforeTheGreeting) {
    makeGame();
    settings("[Common]\r\nWindowSize=2\r\n");
    loadMainWindow(program, window);
    EXPECT_EQ(window.shownState, windowstate::Maximised);
    EXPECT_EQ(game.sounds.names, (Names{"wopen", "godlike"}));
    EXPECT_EQ(program.LastWindowState, windowstate::Maximised);
}

TEST_F(StartUp, SettingsThatAreNoNumbersStopTheProgram) {
    makeGame();
    settings("[Common]\r\nWindowSize=big\r\n");
    EXPECT_EQ(errorOf([&] { loadMainWindow(program, window); }), errors::TypeMismatch);
    settings("[Misc]\r\nShowSplash=maybe\r\n");
    EXPECT_EQ(errorOf([&] { loadMainWindow(program, window); }), errors::TypeMismatch);
    settings("[Misc]\r\nShowSplash=0\r\nSounds=loud\r\n");
    EXPECT_EQ(errorOf([&] { loadMainWindow(program, window); }), errors::TypeMismatch);
}

TEST_F(StartUp, RunIsCountedAlsoWhereTheStartFails) {
    settings("[Misc]\r\nTimesUsed=5\r\n[Common]\r\nWindowSize=big\r\n");
    errorOf([&] { loadMainWindow(program, window); });
    EXPECT_NE(savedSettings().find("TimesUsed=6\r\n"), std::string::npos);
}

class MainWindowSizes : public StartUp {
  protected:
    MainWindowSizes() {
        LoadSettings(program);
        game.sounds.names.clear();
    }
};

TEST_F(MainWindowSizes, MinimisingPlaysAndLeavesTheStoredState) {
    resizeMainWindow(program, windowstate::Maximised);
    resizeMainWindow(program, windowstate::Minimised);
    EXPECT_EQ(game.sounds.names, (Names{"wopen", "wclose"}));
    EXPECT_EQ(program.settings.WindowSize, "2");
    EXPECT_EQ(program.LastWindowState, windowstate::Maximised);
}

TEST_F(MainWindowSizes, RestoringIsSilent) {
    resizeMainWindow(program, windowstate::Maximised);
    resizeMainWindow(program, windowstate::Normal);
    EXPECT_EQ(game.sounds.names, Names{"wopen"});
    EXPECT_EQ(program.settings.WindowSize, "0");
}

TEST_F(MainWindowSizes, EveryResizeWhileMaximisedPlaysAgain) {
    resizeMainWindow(program, windowstate::Maximised);
    resizeMainWindow(program, windowstate::Maximised);
    EXPECT_EQ(game.sounds.names, (Names{"wopen", "wopen"}));
}

TEST_F(MainWindowSizes, PictureLeavesRoomForCaptionMenuAndStatusBar) {
    const MainWindowSize picture = backgroundSize({8000, 6000});
    EXPECT_DOUBLE_EQ(picture.width, 8000);
    EXPECT_DOUBLE_EQ(picture.height, 4990);
}

class Exit : public MainWindowSizes {};

TEST_F(Exit, SaysFarewellSavesAndUnloadsTheForms) {
    program.settings.Skin = "2";
    const double start = game.events.now;
    unloadMainWindow(program, window);
    EXPECT_EQ(game.sounds.names, Names{"nasty"});
    EXPECT_GE(game.events.now - start, 1.7);
    EXPECT_NE(savedSettings().find("Skin=2\r\n"), std::string::npos);
    EXPECT_EQ(window.calls, Names{"unload all"});  // whose failure is passed over
}

TEST_F(Exit, WithSoundsOffDoesNotWait) {
    program.settings.Sounds = "0";
    unloadMainWindow(program, window);
    EXPECT_EQ(game.sounds.names, Names{});
    EXPECT_EQ(game.events.pumps, 0);
}

TEST_F(Exit, WithoutAutoSaveLosesWhatChanged) {
    const std::string before = savedSettings();
    program.settings.AutoSave = "0";
    program.settings.Skin = "2";
    resizeMainWindow(program, windowstate::Maximised);
    unloadMainWindow(program, window);
    EXPECT_EQ(savedSettings(), before);
}

TEST_F(Exit, UnloadsTheFormsAlsoWhereSavingFails) {
    program.settings.AutoSave = "always";
    unloadMainWindow(program, window);
    EXPECT_EQ(window.calls, Names{"unload all"});
}

class SplashScreen : public MainWindowSizes {
  protected:
    SplashScreen() { program.gamePaths.UTSysPath = "C:\\UT\\System"; }
    std::string name() {
        clsINI INI = program.makeINI();
        return playerName(INI, program.gamePaths);
    }
};

TEST_F(SplashScreen, ShowsTheNameInTheGamesProfile) {
    game.world.write("C:\\UT\\System\\User.ini", "[DefaultPlayer]\r\nName=Zo\xEB\r\n");
    EXPECT_EQ(name(), "Zoë");
}

TEST_F(SplashScreen, LeavesTheDefaultNameInAProfileWithoutOne) {
    game.world.write("C:\\UT\\System\\User.ini", "[DefaultPlayer]\r\nteam=255\r\n");
    EXPECT_EQ(name(), "Player");
    EXPECT_EQ(game.world.read("C:\\UT\\System\\User.ini"),
              "[DefaultPlayer]\r\nteam=255\r\nName=Player\r\n");
}

TEST_F(SplashScreen, ShowsTheDefaultNameForAProfileThatCannotBeRead) {
    game.world.write("C:\\UT\\System\\User.ini", "[DefaultPlayer]\r\nName=Me\r\n");
    game.world.host.refuse(Call::Read, errors::PermissionDenied, "User.ini");
    EXPECT_EQ(name(), "Player");
    EXPECT_EQ(game.world.read("C:\\UT\\System\\User.ini"), "[DefaultPlayer]\r\nName=Me\r\n");
}

TEST_F(SplashScreen, AnswersAClickAndWaitsHalfASecond) {
    const double start = game.events.now;
    acknowledgeSplash(program);
    EXPECT_EQ(game.sounds.names, Names{"roger"});
    EXPECT_GE(game.events.now - start, 0.5);
}

TEST_F(SplashScreen, WaitsAlsoWithoutSound) {
    program.settings.Sounds = "0";
    acknowledgeSplash(program);
    EXPECT_EQ(game.sounds.names, Names{});
    EXPECT_GT(game.events.pumps, 0);
}

}  // namespace
}  // namespace tessaro::test
