#include "prefs/gametweaks.h"

#include "platform/runtime/runtimeerror.h"
#include "prefs/gamefixture.h"

namespace tessaro::test {
namespace {

class GameTweaksTest : public GameFixture {
  protected:
    void writeFiles(const std::string& game, const std::string& user) {
        test.world.write(gameIni, game);
        test.world.write(userIni, user);
    }
    // What a load shows of a file whose start-up map is `map`.
    GameTweaks readMap(const std::string& map) {
        writeFiles("[URL]\r\nLocalMap=" + map + "\r\n", "");
        GameTweaks read;
        LoadGameTweaks(program, INI, read);
        return read;
    }
    void save() { SaveGameTweaks(program, INI, tweaks); }
    std::string game() { return test.world.read(gameIni); }
    std::string user() { return test.world.read(userIni); }

    clsINI INI = program.makeINI();
    GameTweaks tweaks{"UTCredits.unr", StartMap::None, "30", 0};
};

TEST_F(GameTweaksTest, TheFlybyMapInAnyCaseSelectsTheFlyby) {
    EXPECT_EQ(readMap("CITYINTRO.UNR").startMap, StartMap::Flyby);
    EXPECT_EQ(readMap("CityIntro.unr").startMap, StartMap::Flyby);
}

TEST_F(GameTweaksTest, TheEntryMapInAnyCaseSelectsTheBlackLogo) {
    EXPECT_EQ(readMap("Entry.unr").startMap, StartMap::BlackLogo);
    EXPECT_EQ(readMap("entry.unr").startMap, StartMap::BlackLogo);
}

TEST_F(GameTweaksTest, AnyOtherMapIsACustomOne) {
    EXPECT_EQ(readMap("UTCredits.unr").startMap, StartMap::Custom);
    EXPECT_EQ(readMap("CityIntro").startMap, StartMap::Custom);
}

TEST_F(GameTweaksTest, TheMapNameIsShownWhicheverOptionIsSelected) {
    EXPECT_EQ(readMap("UTCredits.unr").mapName, "UTCredits.unr");
    EXPECT_EQ(readMap("Entry.unr").mapName, "Entry.unr");
    EXPECT_EQ(readMap("CITYINTRO.UNR").mapName, "CITYINTRO.UNR");
}

TEST_F(GameTweaksTest, ReadingLeavesTheDefaultsInFilesWithoutTheKeys) {
    writeFiles("[Engine.Engine]\r\nA=1\r\n", "");
    EXPECT_EQ(LoadGameTweaks(program, INI, tweaks), TweaksRead::Complete);
    EXPECT_EQ(tweaks, (GameTweaks{"CityIntro.unr", StartMap::Flyby, "30", 0}));
    EXPECT_EQ(game(),
              "[Engine.Engine]\r\nA=1\r\n[URL]\r\nLocalMap=CityIntro.unr\r\n"
              "[Core.System]\r\nPurgeCacheDays=30\r\n");
    EXPECT_EQ(user(), "[Botpack.Ladder]\r\nHasBeatenGame=False\r\n");
}

TEST_F(GameTweaksTest, ReadingFilesThatHaveTheKeysChangesNoByte) {
    const std::string gameText = "[URL]\nLocalMap = DM-\xE4.unr\n[Core.System]\nPurgeCacheDays=0\n";
    const std::string userText = "[Botpack.Ladder]\r\nHasBeatenGame=True";
    writeFiles(gameText, userText);
    LoadGameTweaks(program, INI, tweaks);
    EXPECT_EQ(tweaks, (GameTweaks{"DM-ä.unr", StartMap::Custom, "0", 1}));
    EXPECT_EQ(game(), gameText);
    EXPECT_EQ(user(), userText);
}

TEST_F(GameTweaksTest, AFalseValueDoesNotClearTheBox) {
    writeFiles("", "[Botpack.Ladder]\r\nHasBeatenGame=False\r\n");
    tweaks.bossSkins = 1;
    LoadGameTweaks(program, INI, tweaks);
    EXPECT_EQ(tweaks.bossSkins, 1);
}

TEST_F(GameTweaksTest, BooleansAreReadAsTheRunTimeLibraryReadsThem) {
    for (const char* text : {"TRUE", "true", "1", "-1"}) {
        writeFiles("", std::string("[Botpack.Ladder]\r\nHasBeatenGame=") + text + "\r\n");
        tweaks.bossSkins = 0;
        LoadGameTweaks(program, INI, tweaks);
        EXPECT_EQ(tweaks.bossSkins, 1) << text;
    }
}

TEST_F(GameTweaksTest, ATextThatIsNoBooleanIsATypeMismatch) {
    writeFiles("", "[Botpack.Ladder]\r\nHasBeatenGame=maybe\r\n");
    EXPECT_EQ(errorOf([&] { LoadGameTweaks(program, INI, tweaks); }), errors::TypeMismatch);
}

TEST_F(GameTweaksTest, WithoutTheGamesFileNothingIsReadOrMade) {
    test.world.write(userIni, "[Botpack.Ladder]\r\nHasBeatenGame=True\r\n");
    const GameTweaks before = tweaks;
    EXPECT_EQ(LoadGameTweaks(program, INI, tweaks), TweaksRead::NoGameIni);
    EXPECT_EQ(tweaks, before);
    EXPECT_EQ(test.world.names("C:\\UT\\system"), (std::vector<std::string>{"user.ini"}));
}

TEST_F(GameTweaksTest, AFolderInPlaceOfTheGamesFileIsNoFile) {
    test.world.makeFolder(gameIni);
    EXPECT_EQ(LoadGameTweaks(program, INI, tweaks), TweaksRead::NoGameIni);
}

TEST_F(GameTweaksTest, WithoutTheUsersFileTheLoadStopsAfterTheGamesFile) {
    test.world.write(gameIni,
                     "[URL]\r\nLocalMap=entry.unr\r\n[Core.System]\r\nPurgeCacheDays=9\r\n");
    EXPECT_EQ(LoadGameTweaks(program, INI, tweaks), TweaksRead::NoUserIni);
    EXPECT_EQ(tweaks, (GameTweaks{"entry.unr", StartMap::BlackLogo, "9", 0}));
    EXPECT_FALSE(test.world.exists(userIni));
}

TEST_F(GameTweaksTest, FilesAreFoundInAnyLetterCase) {
    test.world.write("C:\\UT\\System\\UnrealTournament.ini", "[URL]\r\nLocalMap=Entry.unr\r\n");
    test.world.write("C:\\UT\\System\\User.ini", "[Botpack.Ladder]\r\nHasBeatenGame=True\r\n");
    EXPECT_EQ(LoadGameTweaks(program, INI, tweaks), TweaksRead::Complete);
    EXPECT_EQ(tweaks, (GameTweaks{"Entry.unr", StartMap::BlackLogo, "30", 1}));
}

TEST_F(GameTweaksTest, AChosenFolderIsReadInItsOwnSystemFolder) {
    test.world.write("C:\\Games\\my ut\\system\\unrealtournament.ini",
                     "[URL]\r\nLocalMap=DM-Own.unr\r\n[Core.System]\r\nPurgeCacheDays=5\r\n");
    test.world.write("C:\\Games\\my ut\\system\\user.ini",
                     "[Botpack.Ladder]\r\nHasBeatenGame=True\r\n");
    EXPECT_EQ(LoadGameTweaksFromFolder(program, INI, "C:\\Games\\my ut", tweaks),
              TweaksRead::Complete);
    EXPECT_EQ(tweaks, (GameTweaks{"DM-Own.unr", StartMap::Custom, "5", 1}));
}

TEST_F(GameTweaksTest, AChosenFolderWithoutTheGamesFileIsNotRead) {
    test.world.makeFolder("C:\\Other\\system");
    const GameTweaks before = tweaks;
    EXPECT_EQ(LoadGameTweaksFromFolder(program, INI, "C:\\Other", tweaks), TweaksRead::NoGameIni);
    EXPECT_EQ(tweaks, before);
    EXPECT_TRUE(test.world.names("C:\\Other\\system").empty());
}

TEST_F(GameTweaksTest, AChosenFolderWithoutTheUsersFileGivesTheGamesFileTheLadder) {
    test.world.write("C:\\Other\\system\\unrealtournament.ini",
                     "[URL]\r\nLocalMap=a.unr\r\n[Core.System]\r\nPurgeCacheDays=1\r\n");
    EXPECT_EQ(LoadGameTweaksFromFolder(program, INI, "C:\\Other", tweaks), TweaksRead::Complete);
    EXPECT_EQ(test.world.read("C:\\Other\\system\\unrealtournament.ini"),
              "[URL]\r\nLocalMap=a.unr\r\n[Core.System]\r\nPurgeCacheDays=1\r\n"
              "[Botpack.Ladder]\r\nHasBeatenGame=False\r\n");
    EXPECT_FALSE(test.world.exists("C:\\Other\\system\\user.ini"));
}

TEST_F(GameTweaksTest, AChosenFolderWithoutTheUsersFileBelievesTheLadderInTheGamesFile) {
    test.world.write("C:\\Other\\system\\unrealtournament.ini",
                     "[Botpack.Ladder]\r\nHasBeatenGame=True\r\n");
    LoadGameTweaksFromFolder(program, INI, "C:\\Other", tweaks);
    EXPECT_EQ(tweaks.bossSkins, 1);
}

TEST_F(GameTweaksTest, SavingWritesTheMapOfTheSelectedOption) {
    writeFiles("[URL]\r\nLocalMap=x.unr\r\n[Core.System]\r\nPurgeCacheDays=1\r\n", "");
    const auto mapAfter = [&](StartMap option) {
        tweaks.startMap = option;
        save();
        return INI.getKeyValue("LocalMap", {}, "URL", gameIni);
    };
    EXPECT_EQ(mapAfter(StartMap::None), "x.unr");
    EXPECT_EQ(mapAfter(StartMap::Custom), "UTCredits.unr");
    EXPECT_EQ(mapAfter(StartMap::BlackLogo), "entry.unr");
    EXPECT_EQ(mapAfter(StartMap::Flyby), "Cityintro.unr");
}

TEST_F(GameTweaksTest, TheFlybyIsWrittenWithASmallLetterAndReadBackAsTheFlyby) {
    writeFiles("[URL]\r\nLocalMap=CityIntro.unr\r\n[Core.System]\r\nPurgeCacheDays=30\r\n",
               "[Botpack.Ladder]\r\nHasBeatenGame=False\r\n");
    LoadGameTweaks(program, INI, tweaks);
    save();
    EXPECT_EQ(game(), "[URL]\r\nLocalMap=Cityintro.unr\r\n[Core.System]\r\nPurgeCacheDays=30\r\n");
    LoadGameTweaks(program, INI, tweaks);
    EXPECT_EQ(tweaks.startMap, StartMap::Flyby);
}

TEST_F(GameTweaksTest, DaysAreWrittenAsTheyStand) {
    writeFiles("[Core.System]\r\nPurgeCacheDays=30\r\n", "");
    for (const char* days : {"", "007", "abc", "-1"}) {
        tweaks.purgeDays = days;
        save();
        EXPECT_EQ(game(), std::string("[Core.System]\r\nPurgeCacheDays=") + days + "\r\n");
    }
}

TEST_F(GameTweaksTest, TheBoxWritesTrueOrFalseAndNothingWhenGreyed) {
    writeFiles("", "[Botpack.Ladder]\r\nHasBeatenGame=kept\r\n");
    const auto ladderAfter = [&](int box) {
        tweaks.bossSkins = box;
        save();
        return user();
    };
    EXPECT_EQ(ladderAfter(2), "[Botpack.Ladder]\r\nHasBeatenGame=kept\r\n");
    EXPECT_EQ(ladderAfter(1), "[Botpack.Ladder]\r\nHasBeatenGame=True\r\n");
    EXPECT_EQ(ladderAfter(0), "[Botpack.Ladder]\r\nHasBeatenGame=False\r\n");
}

TEST_F(GameTweaksTest, SavingWritesTheDaysAheadOfTheMap) {
    writeFiles("", "");
    tweaks.startMap = StartMap::BlackLogo;
    save();
    EXPECT_EQ(game(), "[Core.System]\r\nPurgeCacheDays=30\r\n[URL]\r\nLocalMap=entry.unr\r\n");
}

TEST_F(GameTweaksTest, SavingWritesTheGamesFileAheadOfTheUsersFileAndEndsWithTheSound) {
    writeFiles("", "");
    tweaks.bossSkins = 1;
    test.sounds.onStart = [&] {
        EXPECT_EQ(game(), "[Core.System]\r\nPurgeCacheDays=30\r\n");
        EXPECT_EQ(user(), "[Botpack.Ladder]\r\nHasBeatenGame=True\r\n");
    };
    save();
    EXPECT_EQ(test.sounds.names, std::vector<std::string>{"ladvance"});
}

TEST_F(GameTweaksTest, SavingCreatesFilesThatAreNotThere) {
    test.world.makeFolder("C:\\UT\\system");
    tweaks.bossSkins = 1;
    save();
    EXPECT_EQ(game(), "[Core.System]\r\nPurgeCacheDays=30\r\n");
    EXPECT_EQ(user(), "[Botpack.Ladder]\r\nHasBeatenGame=True\r\n");
}

TEST_F(GameTweaksTest, SavingIntoAFolderThatIsNotThereIsPassedOver) {
    EXPECT_EQ(errorOf([&] { save(); }), 0);
    EXPECT_FALSE(test.world.exists("C:\\UT"));
    EXPECT_EQ(test.sounds.names, (std::vector<std::string>{"ladvance"}));
}

TEST_F(GameTweaksTest, AGamesFileThatCannotBeWrittenDoesNotKeepTheUsersFileFromBeingWritten) {
    writeFiles("[Core.System]\r\nPurgeCacheDays=1\r\n", "");
    test.world.host.protect("unrealtournament.ini");
    tweaks.bossSkins = 1;
    save();
    EXPECT_EQ(game(), "[Core.System]\r\nPurgeCacheDays=1\r\n");
    EXPECT_EQ(user(), "[Botpack.Ladder]\r\nHasBeatenGame=True\r\n");
}

TEST_F(GameTweaksTest, AFullDiskLeavesTheFilesAsTheyWere) {
    writeFiles("[Core.System]\r\nPurgeCacheDays=1\r\n", "[A]\r\nb=1\r\n");
    test.world.host.setDiskSpace(10);
    save();
    EXPECT_EQ(game(), "[Core.System]\r\nPurgeCacheDays=1\r\n");
    EXPECT_EQ(user(), "[A]\r\nb=1\r\n");
    EXPECT_EQ(test.world.names("C:\\UT\\system").size(), 2U);
}

TEST_F(GameTweaksTest, SavingEndsWithItsSoundOnlyIfSoundsAreOn) {
    writeFiles("", "");
    save();
    EXPECT_EQ(test.sounds.names, (std::vector<std::string>{"ladvance"}));
    program.settings.Sounds = "0";
    save();
    EXPECT_EQ(test.sounds.names.size(), 1U);
}

TEST_F(GameTweaksTest, ASoundSettingThatIsNoNumberIsPassedOverWhenSaving) {
    writeFiles("", "");
    program.settings.Sounds = "loud";
    EXPECT_EQ(errorOf([&] { save(); }), 0);
    EXPECT_TRUE(test.sounds.names.empty());
}

}  // namespace
}  // namespace tessaro::test
