// The file statements on the stacks of a native game.

#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>

#include "platform/files/files.h"
#include "support/nativegame.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::Call;
using test::errorOf;
using test::NativeGameFolder;
using test::TestWorld;
using ::testing::ElementsAre;

class LayeredFilesTest : public ::testing::Test {
  protected:
    Files& files() { return world.files; }
    std::vector<std::string> list(std::string_view tail, int wanted = attributes::Normal) {
        return files().list(game.path(tail), wanted);
    }
    void put(const HostPath& file, std::string_view bytes) { NativeGameFolder::write(file, bytes); }

    TestWorld world;
    NativeGameFolder game{world};
    const std::string userIni = game.path("System\\user.ini");
    const HostPath upper = game.written() / "System" / "User.ini";
    const HostPath middle = game.programs() / "User.ini";
};

TEST_F(LayeredFilesTest, AListingIsTheUnionAndTheUpperNameWins) {
    put(game.written() / "Maps" / "b.unr", "");
    put(game.written() / "Maps" / "DM-One.unr", "");
    put(game.root() / "Maps" / "a.unr", "");
    put(game.root() / "Maps" / "dm-one.UNR", "");
    put(game.root() / "Maps" / "c.unr", "");
    EXPECT_THAT(list("Maps\\*.*"), ElementsAre("a.unr", "b.unr", "c.unr", "DM-One.unr"));
    EXPECT_THAT(list("Maps\\dm*"), ElementsAre("DM-One.unr"));
    EXPECT_THAT(files().filesIn(game.path("Maps")),
                ::testing::UnorderedElementsAre("a.unr", "b.unr", "c.unr", "DM-One.unr"));
}

TEST_F(LayeredFilesTest, AFolderAboveHidesAFileBelow) {
    fs::create_directories(game.written() / "Maps" / "x.unr");
    put(game.root() / "Maps" / "x.unr", "");
    put(game.root() / "Maps" / "y.unr", "");
    EXPECT_THAT(list("Maps\\*.*"), ElementsAre("y.unr"));
    EXPECT_THAT(files().foldersIn(game.path("Maps")), ElementsAre("x.unr"));
}

TEST_F(LayeredFilesTest, TheFoldersAreThoseOfAll) {
    fs::create_directories(game.written() / "System" / "Screenshots");
    fs::create_directories(game.root() / "System" / "editorres");
    put(game.root() / "System" / "Core.u", "");
    EXPECT_THAT(files().foldersIn(game.path("system")), ElementsAre("editorres", "Screenshots"));
    EXPECT_THAT(list("system\\*.*", attributes::Directory),
                ::testing::IsSupersetOf({"Core.u", "editorres", "Screenshots"}));
}

TEST_F(LayeredFilesTest, AFolderThatCannotBeListedIsNoneThatCan) {
    fs::create_directories(game.written() / "Maps");
    EXPECT_TRUE(files().canList(game.path("Maps")));
    world.host.refuse(Call::List, errors::PermissionDenied, ".utpg/Maps");
    EXPECT_FALSE(files().canList(game.path("Maps")));
}

TEST_F(LayeredFilesTest, AProgramIsAFileThatIsThere) {
    EXPECT_THAT(list("System\\ucc.exe"), ElementsAre("ucc.exe"));
    EXPECT_EQ(files().read(game.path("System\\unrealtournament.exe")), "ut-bin");
    fs::remove(game.programs() / ("ucc-bin" + game.suffix()));
    EXPECT_EQ(list("System\\ucc.exe").size(), 0U);
}

TEST_F(LayeredFilesTest, AnIniIsChangedWhereItLies) {
    put(middle, "[a]\nb=1\n");
    put(game.root() / "System" / "User.ini", "another's");
    EXPECT_TRUE(world.profile.writePrivateProfileString("a", "b", "2", userIni));
    EXPECT_EQ(NativeGameFolder::read(middle), "[a]\nb=2\n");
    EXPECT_EQ(NativeGameFolder::read(game.root() / "System" / "User.ini"), "another's");
    EXPECT_FALSE(fs::exists(game.written()));
}

TEST_F(LayeredFilesTest, OfBothTheUpperIsChanged) {
    put(upper, "[a]\nb=1\n");
    put(middle, "[a]\nb=1\n");
    EXPECT_TRUE(world.profile.writePrivateProfileString("a", "b", "2", userIni));
    EXPECT_EQ(NativeGameFolder::read(upper), "[a]\nb=2\n");
    EXPECT_EQ(NativeGameFolder::read(middle), "[a]\nb=1\n");
}

TEST_F(LayeredFilesTest, ALinkToTheLowerFileIsWrittenThrough) {
    put(middle, "[a]\nb=1\n");
    fs::create_directories(upper.parent_path());
    fs::create_symlink(middle, upper);
    EXPECT_TRUE(world.profile.writePrivateProfileString("a", "b", "2", userIni));
    EXPECT_TRUE(fs::is_symlink(upper));
    EXPECT_FALSE(fs::is_symlink(middle));
    EXPECT_EQ(NativeGameFolder::read(middle), "[a]\nb=2\n");
}

TEST_F(LayeredFilesTest, AnIniThatCannotBeWrittenIsRefusedAndNoneIsMadeElsewhere) {
    put(middle, "[a]\nb=1\n");
    world.host.protect("/ut/");
    EXPECT_FALSE(world.profile.writePrivateProfileString("a", "b", "2", userIni));
    EXPECT_EQ(errorOf([&] { files().replace(userIni, "x"); }), errors::PathFileAccess);
    EXPECT_EQ(NativeGameFolder::read(middle), "[a]\nb=1\n");
    EXPECT_FALSE(fs::exists(upper));
}

TEST_F(LayeredFilesTest, AnUpperFolderThatCannotBeWrittenIsRefusedAndKeepsWhatItHad) {
    put(upper, "[a]\nb=1\n");
    world.host.protect(".utpg");
    EXPECT_FALSE(world.profile.writePrivateProfileString("a", "b", "2", userIni));
    EXPECT_EQ(errorOf([&] { files().touch(userIni); }), errors::PathFileAccess);
    world.host.relent();
    world.host.refuse(Call::Create, errors::PermissionDenied, ".utpg");
    EXPECT_EQ(errorOf([&] { files().replace(game.path("System\\new.ini"), "x"); }),
              errors::PermissionDenied);
    EXPECT_EQ(NativeGameFolder::read(upper), "[a]\nb=1\n");
    EXPECT_THAT(TestWorld::namesIn(game.written() / "System"), ElementsAre("User.ini"));
}

TEST_F(LayeredFilesTest, AnIniThatIsNotThereIsMadeOfTheGamesTemplate) {
    put(game.root() / "System" / "DefUser.ini", "of another machine");
    put(game.programs() / "DefUser.ini", "[DefaultPlayer]\nName=Player\nClass=Botpack.TMale2\n");
    files().touch(userIni);
    EXPECT_EQ(NativeGameFolder::read(upper),
              NativeGameFolder::read(game.programs() / "DefUser.ini"));
    put(game.programs() / "Default.ini", "[URL]\nPort=7777\n");
    EXPECT_TRUE(world.profile.writePrivateProfileString("URL", "Port", "7000",
                                                        game.path("System\\unrealtournament.ini")));
    EXPECT_EQ(NativeGameFolder::read(game.written() / "System" / "UnrealTournament.ini"),
              "[URL]\nPort=7000\n");
    EXPECT_EQ(NativeGameFolder::read(game.programs() / "Default.ini"), "[URL]\nPort=7777\n");
}

TEST_F(LayeredFilesTest, AnIniThatTheGameDoesNotLookAtStaysAndIsNotTheTemplate) {
    put(game.root() / "System" / "User.ini", "[DefaultPlayer]\nName=of Windows\n");
    put(game.programs() / "DefUser.ini", "[DefaultPlayer]\nName=Player\n");
    EXPECT_EQ(files().read(userIni), "[DefaultPlayer]\nName=of Windows\n");
    EXPECT_TRUE(world.profile.writePrivateProfileString("DefaultPlayer", "team", "1", userIni));
    EXPECT_EQ(NativeGameFolder::read(upper), "[DefaultPlayer]\nName=Player\nteam=1\n");
    EXPECT_EQ(files().read(userIni), "[DefaultPlayer]\nName=Player\nteam=1\n");
    EXPECT_EQ(NativeGameFolder::read(game.root() / "System" / "User.ini"),
              "[DefaultPlayer]\nName=of Windows\n");
}

TEST_F(LayeredFilesTest, ATemplateThatIsReadInPlaceOfAnIniCannotBeDeleted) {
    put(game.programs() / "DefUser.ini", "template");
    EXPECT_EQ(files().firstMatch(userIni, attributes::Normal), "user.ini");
    EXPECT_EQ(errorOf([&] { files().deleteFiles(userIni); }), errors::PathFileAccess);
    files().deleteWhatGoes(userIni);
    EXPECT_EQ(NativeGameFolder::read(game.programs() / "DefUser.ini"), "template");
}

TEST_F(LayeredFilesTest, AProgramCannotBeDeletedByTheNameOfTheOneForWindows) {
    EXPECT_EQ(errorOf([&] { files().deleteFiles(game.path("System\\ucc.exe")); }),
              errors::PathFileAccess);
    EXPECT_TRUE(fs::exists(game.programs() / ("ucc-bin" + game.suffix())));
}

TEST_F(LayeredFilesTest, ATemplateThatNobodyMayWriteStillMakesAFileThatOneMay) {
    put(game.programs() / "DefUser.ini", "[DefaultPlayer]\n");
    fs::permissions(game.programs() / "DefUser.ini", fs::perms::owner_read);
    files().touch(userIni);
    EXPECT_TRUE(world.host.writable(upper));
}

TEST_F(LayeredFilesTest, WithoutATemplateAnIniBeginsEmptyAndOthersAlwaysDo) {
    put(game.programs() / "Default.ini", "x");
    files().touch(userIni);
    EXPECT_EQ(NativeGameFolder::read(upper), "");
    files().touch(game.path("System\\other.ini"));
    EXPECT_EQ(NativeGameFolder::read(game.written() / "System" / "other.ini"), "");
    files().touch(game.path("Maps\\user.ini"));
    EXPECT_EQ(NativeGameFolder::read(game.root() / "Maps" / "user.ini"), "");
}

TEST_F(LayeredFilesTest, AWholeFileNeedsNoTemplate) {
    put(game.programs() / "DefUser.ini", "template");
    files().replace(userIni, "mine");
    EXPECT_EQ(NativeGameFolder::read(upper), "mine");
}

TEST_F(LayeredFilesTest, ADeletedIniShowsNoneBelowAndComesBackToItsPlace) {
    put(upper, "upper");
    put(middle, "middle");
    files().deleteFiles(userIni);
    EXPECT_EQ(files().firstMatch(userIni, attributes::Normal), "");
    EXPECT_EQ(NativeGameFolder::read(middle), "middle");
    files().replace(userIni, "new");
    EXPECT_EQ(NativeGameFolder::read(upper), "new");
    EXPECT_EQ(NativeGameFolder::read(middle), "middle");
}

TEST_F(LayeredFilesTest, AnIniThatCameBackAndThenWentByOtherHandsShowsTheOneBelow) {
    put(upper, "upper");
    put(middle, "middle");
    files().deleteFiles(userIni);
    files().replace(userIni, "new");
    EXPECT_EQ(files().read(userIni), "new");
    fs::remove(upper);
    EXPECT_EQ(files().read(userIni), "middle");
}

TEST_F(LayeredFilesTest, AnIniOfTheProgramsFolderComesBackThere) {
    put(middle, "middle");
    put(world.folder() / "copy.bak", "swapped in");
    files().deleteFiles(userIni);
    files().copyFile(world.paths.toGame(world.folder() / "copy.bak"), userIni);
    EXPECT_EQ(NativeGameFolder::read(middle), "swapped in");
    EXPECT_FALSE(fs::exists(upper));
}

TEST_F(LayeredFilesTest, AnotherFileThatWasDeletedShowsTheOneBelow) {
    put(game.written() / "Maps" / "x.unr", "upper");
    put(game.root() / "Maps" / "x.unr", "lower");
    files().deleteFiles(game.path("Maps\\x.unr"));
    EXPECT_EQ(files().read(game.path("Maps\\x.unr")), "lower");
}

TEST_F(LayeredFilesTest, AWipeOfTheCacheEmptiesOnlyTheUpperFolder) {
    put(game.written() / "Cache" / "a.uxx", "");
    put(game.written() / "Cache" / "both.uxx", "");
    put(game.root() / "Cache" / "both.uxx", "lower");
    put(game.root() / "Cache" / "b.uxx", "lower");
    files().deleteWhatGoes(game.path("Cache\\*.*"));
    EXPECT_THAT(TestWorld::namesIn(game.written() / "Cache"), ElementsAre());
    EXPECT_THAT(TestWorld::namesIn(game.root() / "Cache"), ElementsAre("b.uxx", "both.uxx"));
    EXPECT_EQ(errorOf([&] { files().deleteFiles(game.path("Cache\\b.uxx")); }),
              errors::PathFileAccess);
}

TEST_F(LayeredFilesTest, AFolderIsMadeWhereNewFilesGo) {
    files().makeFolder(game.path("System\\New"));
    EXPECT_TRUE(fs::is_directory(game.written() / "System" / "New"));
    files().makeFolder(game.path("Maps\\New"));
    EXPECT_TRUE(fs::is_directory(game.root() / "Maps" / "New"));
    files().replace(game.path("System\\New\\x"), "x");
    EXPECT_EQ(NativeGameFolder::read(game.written() / "System" / "New" / "x"), "x");
}

TEST_F(LayeredFilesTest, ANumberedFileIsWrittenByTheSameRules) {
    put(game.root() / "Cache" / "cache.ini", "lower");
    world.table.openOutput(1, game.path("Cache\\cache.ini"));
    world.table.printLine(1, "[Cache]");
    world.table.close(1);
    EXPECT_EQ(NativeGameFolder::read(game.written() / "Cache" / "cache.ini"), "[Cache]\r\n");
    EXPECT_EQ(NativeGameFolder::read(game.root() / "Cache" / "cache.ini"), "lower");
}

TEST_F(LayeredFilesTest, WhatWasReadBelowIsNotBelievedOnceThereIsAFileAbove) {
    put(middle, "[a]\nb=middle\n");
    const auto value = [&] {
        return world.profile.getPrivateProfileString("a", "b", "", 255, userIni);
    };
    for (int i = 0; i < 3; ++i) EXPECT_EQ(value(), "middle");
    put(upper, "[a]\nb=upper\n");
    EXPECT_EQ(value(), "upper");
}

TEST_F(LayeredFilesTest, WhatWasReadInTheWrongSpellingIsNotBelievedEither) {
    put(game.written() / "System" / "user.ini", "[a]\nb=unseen by the game\n");
    const auto value = [&] {
        return world.profile.getPrivateProfileString("a", "b", "", 255, userIni);
    };
    for (int i = 0; i < 3; ++i) EXPECT_EQ(value(), "unseen by the game");
    put(middle, "[a]\nb=seen\n");
    EXPECT_EQ(value(), "seen");
}

TEST_F(LayeredFilesTest, TheUpperIniIsRememberedAsInAnOrdinaryGame) {
    put(upper, "[a]\nb=1\n");
    world.write("C:\\ut\\System\\User.ini", "[a]\nb=1\n");
    const auto readings = [&](const std::string& file) {
        const int before = world.host.count(Call::Read);
        for (int i = 0; i < 10; ++i)
            EXPECT_EQ(world.profile.getPrivateProfileString("a", "b", "", 255, file), "1");
        return world.host.count(Call::Read) - before;
    };
    EXPECT_EQ(readings(userIni), readings("C:\\ut\\System\\user.ini"));
}

TEST_F(LayeredFilesTest, TheGamesLeftOverIsNeverTouched) {
    put(upper, "[a]\nb=1\n");
    put(game.written() / "System" / "User.ini.tmp", "left over");
    world.profile.writePrivateProfileString("a", "b", "2", userIni);
    files().deleteFiles(userIni);
    files().replace(userIni, "new");
    EXPECT_EQ(NativeGameFolder::read(game.written() / "System" / "User.ini.tmp"), "left over");
    EXPECT_THAT(TestWorld::namesIn(game.written() / "System"),
                ElementsAre("User.ini", "User.ini.tmp"));
}

}  // namespace
}  // namespace tessaro
