#include "core/iniCalls.h"

#include <gtest/gtest.h>

#include "platform/text/numbers.h"
#include "support/testprogram.h"

namespace tessaro::test {
namespace {

constexpr const char* settingsFile = "C:\\Tessaro\\vornx.ini";

constexpr const char* freshSettings =
    "[UTPaths]\r\n"
    "UTPath=C:\\UnrealTournament\r\n"
    "UTCachePath=C:\\UnrealTournament\\Cache\r\n"
    "UTMapPath=C:\\UnrealTournament\\Maps\r\n"
    "UTSysPath=C:\\UnrealTournament\\System\r\n"
    "[Misc]\r\n"
    "Sounds=1\r\n"
    "AutoSave=1\r\n"
    "ShowSplash=1\r\n"
    "TimesUsed=2\r\n"
    "Skin=0\r\n"
    "[Common]\r\n"
    "VORNX=C:\\UTMaps\r\n"
    "DefUser=Player\r\n"
    "ASCIIFont=MS Sans\r\n"
    "WindowSize=0\r\n";

class Settings : public ::testing::Test {
  protected:
    TestProgram game;
    Program& program = game.program;
};

TEST_F(Settings, FirstRunLeavesACompleteFile) {
    LoadSettings(program);
    EXPECT_EQ(game.world.read(settingsFile), freshSettings);
    EXPECT_EQ(program.settings.TimesUsed, 2);
    EXPECT_EQ(program.gamePaths.UTSysPath, "C:\\UnrealTournament\\System");
    EXPECT_EQ(program.settings.ExtractDest, "C:\\UTMaps");
}

TEST_F(Settings, EachLoadCountsTheRunInTheFile) {
    LoadSettings(program);
    LoadSettings(program);
    EXPECT_EQ(program.settings.TimesUsed, 3);
    EXPECT_NE(game.world.read(settingsFile).find("TimesUsed=3\r\n"), std::string::npos);
}

TEST_F(Settings, MissingKeysAreFilledInAndOthersKept) {
    game.world.write(settingsFile, "; mine\r\n[Misc]\r\nSkin=2\r\n");
    LoadSettings(program);
    EXPECT_EQ(program.settings.Skin, "2");
    const std::string text = game.world.read(settingsFile);
    EXPECT_TRUE(text.starts_with("; mine\r\n[Misc]\r\nSkin=2\r\n"));
    EXPECT_NE(text.find("WindowSize=0"), std::string::npos);
}

TEST_F(Settings, RunCountAtItsLimitOverflowsAndTheFileKeepsIt) {
    game.world.write(settingsFile, "[Misc]\r\nTimesUsed=32767\r\n");
    EXPECT_EQ(errorOf([&] { LoadSettings(program); }), errors::Overflow);
    EXPECT_NE(game.world.read(settingsFile).find("TimesUsed=32767\r\n"), std::string::npos);
}

TEST_F(Settings, RunCountThatIsNoNumberStopsTheLoad) {
    game.world.write(settingsFile, "[Misc]\r\nTimesUsed=often\r\n");
    EXPECT_EQ(errorOf([&] { LoadSettings(program); }), errors::TypeMismatch);
}

TEST_F(Settings, RunCountBeyondItsWidthOverflows) {
    game.world.write(settingsFile, "[Misc]\r\nTimesUsed=40000\r\n");
    EXPECT_EQ(errorOf([&] { LoadSettings(program); }), errors::Overflow);
}

TEST_F(Settings, RunIsCountedBeforeALaterSettingIsRead) {
    game.world.write(settingsFile, "[Misc]\r\nTimesUsed=7\r\n");
    LoadSettings(program);
    // What the file lacks is added in the order of reading, so the count that was written stands
    // before it.
    const std::string text = game.world.read(settingsFile);
    EXPECT_LT(text.find("TimesUsed=8\r\n"), text.find("Skin=0\r\n"));
    game.world.write(settingsFile, "[Misc]\r\nTimesUsed=32767\r\nSkin=1\r\n");
    program.settings.Skin = "untouched";
    errorOf([&] { LoadSettings(program); });
    EXPECT_EQ(program.settings.Skin, "untouched");
}

TEST_F(Settings, RunThatCannotBeWrittenBackIsCountedInMemoryAlone) {
    game.world.write(settingsFile, "[Misc]\r\nTimesUsed=7\r\nSkin=1\r\n");
    game.world.host.refuse(Call::Rename, errors::DiskFull, "vornx");
    LoadSettings(program);
    EXPECT_EQ(program.settings.TimesUsed, 8);
    EXPECT_NE(game.world.read(settingsFile).find("TimesUsed=7\r\n"), std::string::npos);
}

TEST_F(Settings, SaveWritesTheOptionsInTheirOrder) {
    SaveSettings(program);
    EXPECT_EQ(game.world.read(settingsFile),
              "[UTPaths]\r\nUTPath=\r\nUTCachePath=\r\nUTMapPath=\r\nUTSysPath=\r\n"
              "[Misc]\r\nSounds=\r\nAutoSave=\r\nShowSplash=\r\nSkin=\r\n"
              "[Common]\r\nVORNX=\r\nDefUser=\r\nASCIIFont=\r\nWindowSize=\r\n");
}

TEST_F(Settings, SaveWritesEveryOptionButTheRunCount) {
    LoadSettings(program);
    program.settings.TimesUsed = 99;
    program.settings.Sounds = "0";
    program.settings.WindowSize = "2";
    program.gamePaths.UTMapPath = "D:\\Maps";
    SaveSettings(program);
    const std::string text = game.world.read(settingsFile);
    EXPECT_NE(text.find("TimesUsed=2\r\n"), std::string::npos);
    EXPECT_NE(text.find("Sounds=0\r\n"), std::string::npos);
    EXPECT_NE(text.find("WindowSize=2\r\n"), std::string::npos);
    EXPECT_NE(text.find("UTMapPath=D:\\Maps\r\n"), std::string::npos);
}

TEST_F(Settings, SaveIntoAMissingFolderIsPassedOver) {
    program.file.folder = "C:\\Gone";
    EXPECT_EQ(errorOf([&] { SaveSettings(program); }), 0);
}

TEST_F(Settings, ReadOnlySettingsFileIsLeftAsItIs) {
    LoadSettings(program);
    game.world.host.protect("vornx.ini");
    program.settings.Skin = "1";
    SaveSettings(program);
    EXPECT_EQ(game.world.read(settingsFile), freshSettings);
}

TEST_F(Settings, SoundFlagIsOnForOneAndOffForOtherNumbers) {
    for (const char* text : {"1", " 1 ", "1.0"}) {
        program.settings.Sounds = text;
        EXPECT_TRUE(program.soundsOn()) << text;
    }
    for (const char* text : {"0", "2", "-1"}) {
        program.settings.Sounds = text;
        EXPECT_FALSE(program.soundsOn()) << text;
    }
}

TEST_F(Settings, FlagThatIsNoNumberFailsAtItsFirstTest) {
    program.settings.Sounds = "yes";
    EXPECT_EQ(errorOf([&] { program.soundsOn(); }), errors::TypeMismatch);
}

TEST_F(Settings, DialogGetsTheRecord) {
    LoadSettings(program);
    program.settings.Skin = "1";
    program.settings.AutoSave = "0";
    PrefsOptions controls;
    SettingsToPrefs(program, controls);
    EXPECT_EQ(controls.gameFolder, "C:\\UnrealTournament");
    EXPECT_EQ(controls.sounds, 1);
    EXPECT_EQ(controls.autoSave, 0);
    EXPECT_EQ(controls.showSplash, 1);
    EXPECT_EQ(controls.extractDest, "C:\\UTMaps");
    EXPECT_EQ(controls.defUser, "Player");
    EXPECT_EQ(controls.asciiFont, "MS Sans");
    EXPECT_FALSE(controls.firstSkin);
    EXPECT_TRUE(controls.secondSkin);
    EXPECT_FALSE(controls.thirdSkin);
}

TEST_F(Settings, SkinOutsideTheThreeSelectsNoOption) {
    LoadSettings(program);
    program.settings.Skin = "7";
    PrefsOptions controls;
    SettingsToPrefs(program, controls);
    EXPECT_FALSE(controls.firstSkin || controls.secondSkin || controls.thirdSkin);
}

TEST_F(Settings, SkinThatIsNoNumberSelectsNoOptionAndRaisesNothing) {
    LoadSettings(program);
    program.settings.Skin = "black";
    PrefsOptions options;
    EXPECT_EQ(errorOf([&] { SettingsToPrefs(program, options); }), 0);
    EXPECT_FALSE(options.firstSkin || options.secondSkin || options.thirdSkin);
}

TEST_F(Settings, FlagThatIsNoNumberStopsTheFillingOfTheDialog) {
    LoadSettings(program);
    program.settings.AutoSave = "always";
    PrefsOptions options;
    EXPECT_EQ(errorOf([&] { SettingsToPrefs(program, options); }), errors::TypeMismatch);
}

TEST_F(Settings, DialogSetsTheInnerFoldersFromTheGameFolder) {
    LoadSettings(program);
    PrefsToSettings(program, {.gameFolder = "D:\\UT"});
    EXPECT_EQ(program.gamePaths.UTPath, "D:\\UT");
    EXPECT_EQ(program.gamePaths.UTCachePath, "D:\\UT\\cache");
    EXPECT_EQ(program.gamePaths.UTMapPath, "D:\\UT\\maps");
    EXPECT_EQ(program.gamePaths.UTSysPath, "D:\\UT\\system");
}

TEST_F(Settings, DialogWithoutASkinLeavesTheSkin) {
    program.settings.Skin = "2";
    PrefsToSettings(program, {});
    EXPECT_EQ(program.settings.Skin, "2");
    PrefsToSettings(program, {.secondSkin = true});
    EXPECT_EQ(program.settings.Skin, "1");
}

TEST_F(Settings, LaterOptionWinsWhereSeveralAreSet) {
    PrefsToSettings(program, {.firstSkin = true, .thirdSkin = true});
    EXPECT_EQ(program.settings.Skin, "2");
}

TEST_F(Settings, DialogHandsOverFlagsAndHiddenTexts) {
    PrefsToSettings(program, {.sounds = 0,
                              .autoSave = 1,
                              .showSplash = 1,
                              .extractDest = "C:\\Out",
                              .defUser = "Me",
                              .asciiFont = "Serif"});
    EXPECT_TRUE(equalsNumber(program.settings.Sounds, 0));
    EXPECT_TRUE(equalsNumber(program.settings.AutoSave, 1));
    EXPECT_TRUE(equalsNumber(program.settings.ShowSplash, 1));
    EXPECT_EQ(program.settings.ExtractDest, "C:\\Out");
    EXPECT_EQ(program.settings.DefUser, "Me");
    EXPECT_EQ(program.settings.ASCIIFont, "Serif");
}

}  // namespace
}  // namespace tessaro::test
