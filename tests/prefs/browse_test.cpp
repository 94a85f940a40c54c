#include <filesystem>

#include "platform/runtime/runtimeerror.h"
#include "prefs/prefsrulesfixture.h"

namespace tessaro::test {
namespace {

class BrowseTest : public PreferencesFixture {
  protected:
    // Opens on a folder that is no game, with the browse at opening given up.
    void openWithoutGame() {
        test.dialogs.pick("");
        test.dialogs.answer(Answer::Cancel);
        prefs.open();
        view.steps.clear();
        test.dialogs.messages.clear();
        test.dialogs.pickers.clear();
    }
};

TEST_F(BrowseTest, AGoodFolderIsShownReadAndTakenOverInMemory) {
    openOnGame();
    const std::string before = settingsFile();
    test.world.write("C:\\Other\\ut\\system\\unrealtournament.ini",
                     "[URL]\r\nLocalMap=entry.unr\r\n[Core.System]\r\nPurgeCacheDays=4\r\n");
    for (const char* folder : {"sounds", "maps", "textures", "cache"})
        test.world.makeFolder(std::string("C:\\Other\\ut\\") + folder);
    view.folderSelected = false;
    test.dialogs.pick("C:\\Other\\ut");
    prefs.browse();
    EXPECT_EQ(view.controls.gameFolder, "C:\\Other\\ut");
    EXPECT_EQ(view.gameTweaks, (GameTweaks{"entry.unr", StartMap::BlackLogo, "4", 0}));
    EXPECT_TRUE(view.folderSelected);
    EXPECT_EQ(program.gamePaths.UTPath, "C:\\Other\\ut");
    EXPECT_EQ(program.gamePaths.UTCachePath, "C:\\Other\\ut\\cache");
    EXPECT_EQ(program.gamePaths.UTMapPath, "C:\\Other\\ut\\maps");
    EXPECT_EQ(program.gamePaths.UTSysPath, "C:\\Other\\ut\\system");
    EXPECT_EQ(prefs.PrefsDirty(), 0) << "The choice alone is nothing to be saved";
    EXPECT_EQ(settingsFile(), before);
    EXPECT_TRUE(view.steps.empty());
}

TEST_F(BrowseTest, ThePickerOpensInTheFolderShownAndTellsWhatIsWanted) {
    openOnGame();
    test.world.makeFolder("C:\\Wrong");
    test.dialogs.pick("C:\\Wrong");
    test.dialogs.answer(Answer::Ok);
    test.dialogs.pick("");
    test.dialogs.answer(Answer::Cancel);
    prefs.browse();
    const FolderPicker picker{"Select Your Unreal Tournament Folder.", "C:\\UT",
                              "It holds Sounds, Maps, Textures, System and Cache."};
    EXPECT_EQ(test.dialogs.folderPickers, (std::vector<FolderPicker>{picker, picker}));
}

TEST_F(BrowseTest, AGoodFolderMakesOkPossible) {
    openWithoutGame();
    EXPECT_FALSE(view.saving);
    makeGame(test.world, "C:\\Other");
    test.dialogs.pick("C:\\Other");
    prefs.browse();
    EXPECT_TRUE(view.saving);
}

TEST_F(BrowseTest, TheOptionsShownGoIntoMemoryWithTheFolder) {
    openOnGame();
    makeGame(test.world, "C:\\Other");
    view.controls.showSplash = 1;
    prefs.changed();
    test.dialogs.pick("C:\\Other");
    prefs.browse();
    EXPECT_EQ(program.settings.ShowSplash, "1");
    EXPECT_EQ(prefs.PrefsDirty(), 0);
}

TEST_F(BrowseTest, FoldersInOtherLetterCaseWithBlanksAndForeignLettersAreAccepted) {
    openWithoutGame();
    const std::string folder = "C:\\Mes jeux\\Tournoi irréel Ω";
    for (const char* name : {"Sounds", "MAPS", "Textures", "System", "Cache"})
        test.world.makeFolder(folder + "\\" + name);
    test.world.write(folder + "\\System\\UnrealTournament.ini", "[URL]\r\nLocalMap=a.unr\r\n");
    test.dialogs.pick("C:\\mes jeux\\tournoi irréel Ω");
    prefs.browse();
    EXPECT_TRUE(view.saving);
    EXPECT_EQ(view.gameTweaks.mapName, "a.unr");
    EXPECT_EQ(program.gamePaths.UTPath, view.controls.gameFolder);
}

TEST_F(BrowseTest, AFolderWithoutOneOfTheFiveIsRefusedByName) {
    openOnGame();
    makeGame(test.world, "C:\\Half");
    std::filesystem::remove_all(test.world.at("C:\\Half\\cache"));
    test.dialogs.pick("C:\\Half");
    test.dialogs.answer(Answer::Cancel);
    prefs.browse();
    EXPECT_EQ(test.dialogs.messages, (std::vector<Message>{refusal("C:\\Half")}));
    EXPECT_EQ(view.controls.gameFolder, "C:\\UT");
    EXPECT_EQ(program.gamePaths.UTPath, "C:\\UT");
}

TEST_F(BrowseTest, WrongFolderThenCancelledBrowserThenRightFolder) {
    openWithoutGame();
    makeGame(test.world, "C:\\Right");
    test.world.makeFolder("C:\\Wrong");
    test.dialogs.pick("C:\\Wrong");
    test.dialogs.answer(Answer::Ok);
    test.dialogs.pick("");
    test.dialogs.answer(Answer::Ok);
    test.dialogs.pick("C:\\Right");
    prefs.browse();
    EXPECT_EQ(test.dialogs.pickers, Steps(3, "Select Your Unreal Tournament Folder."));
    EXPECT_EQ(test.dialogs.messages, (std::vector<Message>{refusal("C:\\Wrong"), refusal("")}));
    EXPECT_EQ(view.controls.gameFolder, "C:\\Right");
    EXPECT_TRUE(view.saving);
}

TEST_F(BrowseTest, ACancelledBrowserIsRefusedEvenIfTheDriveLooksLikeAGame) {
    for (const char* folder : {"sounds", "maps", "textures", "system", "cache"})
        test.world.makeFolder(std::string("C:\\") + folder);
    openWithoutGame();
    EXPECT_EQ(view.controls.gameFolder, "C:\\UT");
}

TEST_F(BrowseTest, GivingUpWithAGoodFolderShownClosesTheDialog) {
    openOnGame();
    prefs.changed();
    test.dialogs.pick("");
    test.dialogs.answer(Answer::Cancel);
    prefs.browse();
    EXPECT_EQ(view.steps, (Steps{"close"}));
    EXPECT_EQ(test.dialogs.messages.size(), 1U) << "It closes without the question to save";
}

TEST_F(BrowseTest, GivingUpWithoutAGoodFolderStaysInTheDialog) {
    openWithoutGame();
    test.dialogs.pick("C:\\");
    test.dialogs.answer(Answer::Cancel);
    prefs.browse();
    EXPECT_TRUE(view.steps.empty());
}

TEST_F(BrowseTest, AGameWithoutItsFileIsShownButNotTakenOver) {
    openOnGame();
    makeGame(test.world, "C:\\Other");
    std::filesystem::remove(test.world.at("C:\\Other\\system\\unrealtournament.ini"));
    view.folderSelected = false;
    test.dialogs.pick("C:\\Other");
    prefs.browse();
    EXPECT_EQ(view.controls.gameFolder, "C:\\Other");
    EXPECT_EQ(prefs.PrefsDirty(), 1) << "From the change of the folder shown";
    EXPECT_FALSE(view.folderSelected);
    EXPECT_EQ(program.gamePaths.UTPath, "C:\\UT");
    EXPECT_EQ(test.dialogs.pickers.size(), 1U);
}

TEST_F(BrowseTest, TheSameGameWithoutItsFileLeavesTheMarkAsItWas) {
    openOnGame();
    std::filesystem::remove(test.world.at(gameIni));
    test.dialogs.pick("C:\\UT");
    prefs.browse();
    EXPECT_EQ(prefs.PrefsDirty(), 0);
}

TEST_F(BrowseTest, ALadderThatIsNoBooleanReachesTheCaller) {
    openOnGame();
    makeGame(test.world, "C:\\Other");
    test.world.write("C:\\Other\\system\\user.ini", "[Botpack.Ladder]\r\nHasBeatenGame=maybe\r\n");
    test.dialogs.pick("C:\\Other");
    EXPECT_EQ(errorOf([&] { prefs.browse(); }), errors::TypeMismatch);
}

}  // namespace
}  // namespace tessaro::test
