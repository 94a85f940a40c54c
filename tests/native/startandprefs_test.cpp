// The start and the preferences on the sample game as it lies on Linux.

#include "core/mainwindow.h"
#include "core/routines.h"
#include "native/nativesampletest.h"
#include "prefs/prefsrules.h"
#include "prefs/recordingview.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using NativeStartUp = NativeSampleTest;

TEST_F(NativeStartUp, TheGamesFoldersAreThereAndItsPlayerIsGreetedByName) {
    EXPECT_EQ(ValidatePaths(program, program.gamePaths.UTPath), Yes);
    EXPECT_EQ(playerName(program.ini, program.gamePaths), "Player");
    write(programs() / "User.ini", "[DefaultPlayer]\nName=Ferryman\n");
    EXPECT_EQ(playerName(program.ini, program.gamePaths), "Ferryman");
    write(written() / "System" / "User.ini", "[DefaultPlayer]\nName=Walker\n");
    EXPECT_EQ(playerName(program.ini, program.gamePaths), "Walker");
}

TEST_F(NativeStartUp, AGameThatWasNeverStartedGetsAWholeIniAndNotOneOfOneKey) {
    fs::remove_all(written());
    fs::remove(programs() / "User.ini");
    EXPECT_EQ(ValidatePaths(program, program.gamePaths.UTPath), Yes);
    EXPECT_FALSE(fs::exists(written()));
    EXPECT_EQ(playerName(program.ini, program.gamePaths), "Player");
    EXPECT_TRUE(read(written() / "System" / "User.ini") == read(programs() / "DefUser.ini"));
    EXPECT_EQ(fs::status(written() / "System").permissions(), fs::perms::owner_all);
}

class NativePreferences : public NativeSampleTest {
  protected:
    NativePreferences() {
        write(world.world.at("C:\\Tessaro\\vornx.ini"), "");
        view.saving = true;
    }
    std::string gameIni() { return read(programs() / "UnrealTournament.ini"); }
    static void replace(std::string& text, std::string_view old, std::string_view changed) {
        text.replace(text.find(old), old.size(), changed);
    }
    // What is in the sample's INI.
    std::string before = read(programs() / "UnrealTournament.ini");

    RecordingView view;
    PrefsRules prefs{program, view};
};

TEST_F(NativePreferences, AChosenFolderShowsAndChangesTheFilesThatTheGameReads) {
    const GamePaths chosen = program.gamePaths;
    program.gamePaths = {};
    world.dialogs.pick(chosen.UTPath);
    prefs.browse();
    EXPECT_EQ(program.gamePaths.UTSysPath, chosen.UTSysPath);
    EXPECT_EQ(view.gameTweaks.mapName, "CityIntro.unr");
    view.gameTweaks.purgeDays = "999";
    view.gameTweaks.bossSkins = 1;
    prefs.ok();
    std::string expected = before;
    replace(expected, "PurgeCacheDays=30", "PurgeCacheDays=999");
    replace(expected, "LocalMap=CityIntro.unr", "LocalMap=Cityintro.unr");
    EXPECT_TRUE(gameIni() == expected);
    EXPECT_THAT(read(programs() / "User.ini"), HasSubstr("[Botpack.Ladder]\nHasBeatenGame=True\n"));
    EXPECT_TRUE(read(programs() / "UnrealTournament.ini.tmp") == before);
    EXPECT_FALSE(fs::exists(written() / "System" / "User.ini"));
}

TEST_F(NativePreferences, OfAGameThatWasNeverStartedShowWhatItWillStartWithAndMakeThat) {
    fs::remove_all(written());
    for (const char* name : {"UnrealTournament.ini", "User.ini"}) fs::remove(programs() / name);
    prefs.open();
    EXPECT_THAT(world.dialogs.pickers, IsEmpty());
    EXPECT_EQ(view.gameTweaks.purgeDays, "30");
    view.gameTweaks.purgeDays = "7";
    prefs.ok();
    const std::string made = read(written() / "System" / "UnrealTournament.ini");
    EXPECT_THAT(made, HasSubstr("PurgeCacheDays=7\r\n"));
    EXPECT_THAT(made, HasSubstr("[Engine.GameInfo]"));
    EXPECT_THAT(read(programs() / "Default.ini"), HasSubstr("PurgeCacheDays=30"));
}

TEST_F(NativePreferences, TheWipeEmptiesTheCacheThatTheGameWrites) {
    const auto kept = TestWorld::namesIn(game() / "Cache");
    for (int questions = 0; questions < 2; ++questions) world.dialogs.answer(Answer::Yes);
    prefs.clearCache();
    EXPECT_THAT(TestWorld::namesIn(written() / "Cache"), ElementsAre("cache.ini"));
    EXPECT_EQ(read(written() / "Cache" / "cache.ini"), "[Cache]\r\n");
    EXPECT_THAT(kept, SizeIs(1));
    EXPECT_EQ(TestWorld::namesIn(game() / "Cache"), kept);
}

TEST_F(NativePreferences, TheWipeLeavesAnIndexThatIsTheGamesOwn) {
    fs::rename(written() / "Cache" / "cache.ini", world.world.folder() / "index");
    fs::create_symlink(world.world.folder() / "index", game() / "Cache" / "cache.ini");
    const std::string index = read(game() / "Cache" / "cache.ini");
    world.dialogs.answer(Answer::Yes);
    world.dialogs.answer(Answer::No);
    prefs.clearCache();
    EXPECT_TRUE(fs::is_symlink(game() / "Cache" / "cache.ini"));
    EXPECT_EQ(read(game() / "Cache" / "cache.ini"), index);
    EXPECT_EQ(read(written() / "Cache" / "cache.ini"), "[Cache]\r\n");
}

}  // namespace
}  // namespace tessaro::test
