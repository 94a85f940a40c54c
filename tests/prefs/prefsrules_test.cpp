#include "prefs/prefsrules.h"

#include "platform/runtime/runtimeerror.h"
#include "prefs/prefsrulesfixture.h"

namespace tessaro::test {
namespace {

const Message closeQuestion{"These settings are not valid. Close Tessaro?", "Preferences",
                            Buttons::YesNo, Icon::Question};
const Message saveQuestion{"The Current Settings have not yet been saved, Do you wish to save?",
                           "Save Settings?", Buttons::YesNoCancel, Icon::None};

class PreferencesTest : public PreferencesFixture {};

TEST_F(PreferencesTest, OpeningShowsSettingsAndTweaks) {
    makeGame(test.world, "C:\\UT");
    prefs.open();
    EXPECT_EQ(view.steps, (Steps{"skin"}));
    EXPECT_EQ(view.timesUsed, 7);
    EXPECT_EQ(view.controls.gameFolder, "C:\\UT");
    EXPECT_EQ(view.controls.sounds, 1);
    EXPECT_EQ(view.controls.autoSave, 0);
    EXPECT_EQ(view.controls.showSplash, 0);
    EXPECT_EQ(view.controls.extractDest, "C:\\Taken");
    EXPECT_EQ(view.controls.defUser, "Somebody");
    EXPECT_EQ(view.controls.asciiFont, "Courier");
    EXPECT_FALSE(view.controls.firstSkin || view.controls.secondSkin);
    EXPECT_TRUE(view.controls.thirdSkin);
    EXPECT_EQ(view.gameTweaks, (GameTweaks{"CityIntro.unr", StartMap::Flyby, "30", 0}));
    EXPECT_TRUE(view.folderSelected);
    EXPECT_TRUE(view.saving);
    EXPECT_EQ(prefs.PrefsDirty(), 0);
}

TEST_F(PreferencesTest, OpeningServesEventsBetweenShowingTheFolderAndTestingIt) {
    makeGame(test.world, "C:\\UT");
    test.events.onPump = [&] {
        EXPECT_EQ(view.controls.gameFolder, "C:\\UT");
        EXPECT_EQ(view.timesUsed, 7);
        EXPECT_FALSE(view.saving);
        EXPECT_EQ(prefs.PrefsDirty(), 1);
    };
    prefs.open();
    EXPECT_EQ(test.events.pumps, 1);
}

TEST_F(PreferencesTest, OpeningWithoutOneOfTheFoldersLeavesOkDisabled) {
    for (const char* missing : {"sounds", "maps", "textures", "cache"}) {
        TestProgram other;
        makeGame(other.world, "C:\\UT");
        std::filesystem::remove_all(other.world.at(std::string("C:\\UT\\") + missing));
        other.program.gamePaths = program.gamePaths;
        other.program.settings = program.settings;
        RecordingView otherView;
        PrefsRules(other.program, otherView).open();
        EXPECT_FALSE(otherView.saving) << missing;
        EXPECT_TRUE(otherView.folderSelected) << missing;
    }
}

TEST_F(PreferencesTest, OpeningWithoutTheUsersFileStopsDirtyWithTheOptionsAsDesigned) {
    makeGame(test.world, "C:\\UT");
    std::filesystem::remove(test.world.at(userIni));
    prefs.open();
    EXPECT_TRUE(view.saving);
    EXPECT_EQ(view.gameTweaks.startMap, StartMap::Flyby);
    EXPECT_EQ(view.controls.extractDest, "designed 5");
    EXPECT_EQ(view.controls.autoSave, 1);
    EXPECT_FALSE(view.folderSelected);
    EXPECT_EQ(prefs.PrefsDirty(), 1);
    EXPECT_TRUE(test.dialogs.pickers.empty());
}

TEST_F(PreferencesTest, ApplyingADialogThatStoppedSavesTheOptionsAsDesigned) {
    makeGame(test.world, "C:\\UT");
    std::filesystem::remove(test.world.at(userIni));
    prefs.open();
    prefs.apply();
    EXPECT_EQ(program.settings.ExtractDest, "designed 5");
    EXPECT_EQ(program.settings.AutoSave, "1");
    EXPECT_EQ(program.settings.Skin, "2") << "No skin was selected by design";
}

TEST_F(PreferencesTest, OpeningWithoutTheGamesFileBrowsesAndStops) {
    test.dialogs.pick("");
    test.dialogs.answer(Answer::Cancel);
    prefs.open();
    EXPECT_EQ(test.dialogs.pickers, (Steps{"Select Your Unreal Tournament Folder."}));
    EXPECT_EQ(test.dialogs.messages, (std::vector<Message>{refusal("")}));
    EXPECT_EQ(view.steps, (Steps{"skin"})) << "Without a system folder the dialog stays";
    EXPECT_EQ(view.gameTweaks.mapName, "UTCredits.unr");
    EXPECT_EQ(view.controls.extractDest, "designed 5");
    EXPECT_FALSE(view.saving);
    EXPECT_EQ(prefs.PrefsDirty(), 1);
}

TEST_F(PreferencesTest, TheBrowseAtOpeningCanCloseTheDialog) {
    test.world.makeFolder("C:\\UT\\system");
    test.dialogs.pick("");
    test.dialogs.answer(Answer::Cancel);
    prefs.open();
    EXPECT_EQ(view.steps, (Steps{"skin", "close"}));
}

TEST_F(PreferencesTest, TheBrowseAtOpeningCanFindTheGame) {
    makeGame(test.world, "C:\\Games\\ut");
    test.dialogs.pick("C:\\Games\\ut");
    prefs.open();
    EXPECT_EQ(view.controls.gameFolder, "C:\\Games\\ut");
    EXPECT_TRUE(view.saving);
    EXPECT_EQ(view.gameTweaks.startMap, StartMap::Flyby);
    EXPECT_EQ(program.gamePaths.UTSysPath, "C:\\Games\\ut\\system");
    EXPECT_EQ(prefs.PrefsDirty(), 0);
}

TEST_F(PreferencesTest, OpeningRaisesWhatTheFilesRaise) {
    makeGame(test.world, "C:\\UT");
    test.world.write(userIni, "[Botpack.Ladder]\r\nHasBeatenGame=maybe\r\n");
    EXPECT_EQ(errorOf([&] { prefs.open(); }), errors::TypeMismatch);
}

TEST_F(PreferencesTest, ApplyHidesSavesDressesAndShowsInThisOrder) {
    openOnGame();
    view.gameTweaks.purgeDays = "9";
    view.controls.sounds = 0;
    view.controls.thirdSkin = false;
    view.controls.secondSkin = true;
    prefs.changed();
    view.onStep = [&](const std::string& step) {
        EXPECT_EQ(prefs.PrefsDirty(), 0);
        const bool saved = step != "hide";
        EXPECT_EQ(test.world.read(gameIni).find("PurgeCacheDays=9") != std::string::npos, saved);
        EXPECT_EQ(program.settings.Skin == "1", saved);
        EXPECT_EQ(settingsFile().find("Skin=1") != std::string::npos, saved);
    };
    prefs.apply();
    EXPECT_EQ(view.steps, (Steps{"hide", "skin", "show"}));
}

TEST_F(PreferencesTest, TheSoundOfApplyGoesByTheSettingFromBefore) {
    openOnGame();
    view.controls.sounds = 0;
    prefs.apply();
    EXPECT_EQ(test.sounds.names, (Steps{"ladvance"}));
    view.controls.sounds = 1;
    prefs.apply();
    EXPECT_EQ(test.sounds.names.size(), 1U);
    prefs.apply();
    EXPECT_EQ(test.sounds.names.size(), 2U);
}

TEST_F(PreferencesTest, ApplyWithInvalidPathsWritesWhereTheyPoint) {
    test.world.makeFolder("C:\\UT\\system");
    test.dialogs.pick("");
    test.dialogs.answer(Answer::Cancel);
    prefs.open();
    prefs.apply();
    EXPECT_EQ(test.world.read(gameIni), "[Core.System]\r\nPurgeCacheDays=30\r\n");
}

TEST_F(PreferencesTest, ApplyOnAFolderThatIsNotThereStillSavesTheSettings) {
    test.dialogs.pick("");
    test.dialogs.answer(Answer::Cancel);
    prefs.open();
    view.controls.showSplash = 0;
    prefs.apply();
    EXPECT_NE(settingsFile().find("ShowSplash=0"), std::string::npos);
    EXPECT_EQ(view.steps.back(), "show");
}

TEST_F(PreferencesTest, OkSavesAndClosesWithoutHidingOrDressing) {
    openOnGame();
    view.controls.autoSave = 1;
    prefs.changed();
    view.onStep = [&](const std::string&) {
        EXPECT_NE(settingsFile().find("AutoSave=1"), std::string::npos);
    };
    prefs.ok();
    EXPECT_EQ(view.steps, (Steps{"close"}));
    EXPECT_EQ(prefs.PrefsDirty(), 0);
    EXPECT_EQ(test.sounds.names, (Steps{"ladvance"}));
}

TEST_F(PreferencesTest, OkWithoutAChangeLeavesTheSettingsFileAsItIs) {
    openOnGame();
    const std::string before = settingsFile();
    prefs.ok();
    EXPECT_EQ(settingsFile(), before);
}

TEST_F(PreferencesTest, SettingsThatCannotBeWrittenGoUnnoticed) {
    openOnGame();
    test.world.host.protect("vornx.ini");
    const std::string before = settingsFile();
    view.controls.showSplash = 1;
    prefs.ok();
    EXPECT_EQ(view.steps, (Steps{"close"}));
    EXPECT_EQ(settingsFile(), before);
    EXPECT_EQ(program.settings.ShowSplash, "1");
}

TEST_F(PreferencesTest, CancelClosesACleanDialogWithoutAQuestion) {
    openOnGame();
    prefs.cancel();
    EXPECT_EQ(view.steps, (Steps{"close"}));
}

TEST_F(PreferencesTest, CancelOfADirtyDialogAsksAndYesSaves) {
    openOnGame();
    view.controls.showSplash = 1;
    prefs.changed();
    test.dialogs.answer(Answer::Yes);
    prefs.cancel();
    EXPECT_EQ(test.dialogs.messages, (std::vector<Message>{saveQuestion}));
    EXPECT_EQ(view.steps, (Steps{"close"}));
    EXPECT_EQ(program.settings.ShowSplash, "1");
}

TEST_F(PreferencesTest, CancelOfADirtyDialogAsksAndNoClosesWithoutSaving) {
    openOnGame();
    const std::string before = settingsFile();
    view.controls.showSplash = 1;
    prefs.changed();
    test.dialogs.answer(Answer::No);
    prefs.cancel();
    EXPECT_EQ(view.steps, (Steps{"close"}));
    EXPECT_EQ(program.settings.ShowSplash, "0");
    EXPECT_EQ(settingsFile(), before);
}

TEST_F(PreferencesTest, CancelOfADirtyDialogAsksAndCancelKeepsItOpen) {
    openOnGame();
    prefs.changed();
    test.dialogs.answer(Answer::Cancel);
    prefs.cancel();
    EXPECT_TRUE(view.steps.empty());
    EXPECT_EQ(prefs.PrefsDirty(), 1);
}

TEST_F(PreferencesTest, CancelWithAutoSaveSavesWithoutAQuestion) {
    program.settings.AutoSave = "1";
    openOnGame();
    view.controls.showSplash = 1;
    prefs.changed();
    prefs.cancel();
    EXPECT_TRUE(test.dialogs.messages.empty());
    EXPECT_EQ(view.steps, (Steps{"close"}));
    EXPECT_EQ(program.settings.ShowSplash, "1");
}

TEST_F(PreferencesTest, CancelGoesByTheAutoSaveInMemoryNotByTheBox) {
    openOnGame();
    view.controls.autoSave = 1;
    prefs.changed();
    test.dialogs.answer(Answer::Cancel);
    prefs.cancel();
    EXPECT_EQ(test.dialogs.messages.size(), 1U);
}

TEST_F(PreferencesTest, CancelWithInvalidPathsEndsTheProgramOnYes) {
    test.dialogs.pick("");
    test.dialogs.answer(Answer::Cancel);
    prefs.open();
    view.steps.clear();
    test.dialogs.answer(Answer::Yes);
    prefs.cancel();
    EXPECT_EQ(test.dialogs.messages.back(), closeQuestion);
    EXPECT_EQ(view.steps, (Steps{"end"}));
}

TEST_F(PreferencesTest, CancelWithInvalidPathsStaysOpenOnNo) {
    test.dialogs.pick("");
    test.dialogs.answer(Answer::Cancel);
    prefs.open();
    view.steps.clear();
    test.dialogs.answer(Answer::No);
    prefs.cancel();
    EXPECT_EQ(test.dialogs.messages.back(), closeQuestion);
    EXPECT_TRUE(view.steps.empty());
}

TEST_F(PreferencesTest, AnAutoSaveThatIsNoNumberIsATypeMismatchAtTheCloseOfADirtyDialog) {
    openOnGame();
    program.settings.AutoSave = "often";
    prefs.changed();
    EXPECT_EQ(errorOf([&] { prefs.cancel(); }), errors::TypeMismatch);
}

}  // namespace
}  // namespace tessaro::test
