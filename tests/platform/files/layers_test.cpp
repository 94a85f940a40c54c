// Where the names of a native game's folders are found, and where new ones go.

#include "platform/files/layers.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/nativegame.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::Call;
using test::errorOf;
using test::NativeGameFolder;
using test::TestWorld;
using ::testing::ElementsAre;

class LayersTest : public ::testing::Test {
  protected:
    std::optional<HostPath> find(std::string_view tail) {
        return world.paths.find(game.path(tail));
    }
    HostPath toWrite(std::string_view tail) { return world.paths.toWrite(game.path(tail)); }
    void put(const HostPath& file) { NativeGameFolder::write(file, file.string()); }
    void putWritten(std::string_view name) { put(game.written() / name); }
    void putOwn(std::string_view name) { put(game.root() / name); }

    TestWorld world;
    NativeGameFolder game{world};
};

TEST_F(LayersTest, SystemIsLookedForInTheHomeThenBesideTheProgramsThenInTheGame) {
    put(game.root() / "System" / "Engine.u");
    EXPECT_EQ(find("System\\engine.U"), game.root() / "System" / "Engine.u");
    put(game.programs() / "Engine.u");
    EXPECT_EQ(find("System\\engine.U"), game.programs() / "Engine.u");
    putWritten("System/engine.u");
    EXPECT_EQ(find("System\\engine.U"), game.written() / "System" / "engine.u");
    EXPECT_EQ(find("SYSTEM\\Engine.u"), game.written() / "System" / "engine.u");
}

TEST_F(LayersTest, TheOthersAreLookedForInTheHomeThenInTheGame) {
    for (const char* folder : {"Cache", "Maps", "Textures", "Sounds", "Music"}) {
        const std::string name = folder + std::string("\\DM-One.unr");
        putOwn(folder + std::string("/DM-One.unr"));
        EXPECT_EQ(find(name), game.root() / folder / "DM-One.unr");
        putWritten(folder + std::string("/dm-one.unr"));
        EXPECT_EQ(find(name), game.written() / folder / "dm-one.unr");
    }
}

TEST_F(LayersTest, OtherFoldersOfTheGameAreOrdinary) {
    putWritten("Help/ReadMe.htm");
    putWritten("Web/root.uhtm");
    putOwn("Web/menu.uhtm");
    EXPECT_FALSE(find("Help\\ReadMe.htm"));
    EXPECT_FALSE(find("Web\\root.uhtm"));
    EXPECT_TRUE(find("Web\\menu.uhtm"));
    EXPECT_EQ(world.paths.layers(game.path("Web")), nullptr);
}

TEST_F(LayersTest, AnOrdinaryGameHasNoLayers) {
    for (const char* folder : {"System", "Cache", "Maps"})
        world.makeFolder("C:\\ut\\" + std::string(folder));
    putWritten("System/User.ini");
    EXPECT_FALSE(world.paths.find("C:\\ut\\System\\User.ini"));
    EXPECT_EQ(world.paths.toWrite("C:\\ut\\System\\user.ini"),
              world.at("C:\\ut\\System\\user.ini"));
    EXPECT_EQ(world.paths.layers("C:\\ut\\System"), nullptr);
}

TEST_F(LayersTest, AnOrdinaryGameCostsNoMoreOnceItIsKnown) {
    world.write("C:\\ut\\System\\User.ini", "");
    ASSERT_TRUE(world.paths.find("C:\\ut\\System\\user.ini"));
    const int before = world.host.count(Call::Status);
    for (int i = 0; i < 100; ++i) world.paths.find("C:\\ut\\System\\user.ini");
    EXPECT_EQ(world.host.count(Call::Status) - before, 100);
}

TEST_F(LayersTest, ANewFileGoesToTheHomeButContentToTheGame) {
    EXPECT_EQ(toWrite("System\\New.u"), game.written() / "System" / "New.u");
    EXPECT_EQ(toWrite("Cache\\new.uxx"), game.written() / "Cache" / "new.uxx");
    for (const char* folder : {"Maps", "Textures", "Sounds", "Music"})
        EXPECT_EQ(toWrite(folder + std::string("\\New.x")), game.root() / folder / "New.x");
}

TEST_F(LayersTest, ContentGoesToTheHomeWhereTheGameCannotBeWritten) {
    world.host.protect("/ut/");
    EXPECT_EQ(toWrite("Maps\\New.unr"), game.written() / "Maps" / "New.unr");
    EXPECT_TRUE(fs::is_directory(game.written() / "Maps"));
}

TEST_F(LayersTest, AFileIsWrittenWhereItWasFound) {
    put(game.programs() / "User.ini");
    putOwn("System/Some.int");
    EXPECT_EQ(toWrite("System\\user.ini"), game.programs() / "User.ini");
    EXPECT_EQ(toWrite("System\\some.int"), game.root() / "System" / "Some.int");
    putWritten("Maps/DM-One.unr");
    EXPECT_EQ(toWrite("Maps\\dm-one.unr"), game.written() / "Maps" / "DM-One.unr");
}

TEST_F(LayersTest, WhatLiesInTheGamesOwnCacheIsNeverWritten) {
    putOwn("Cache/cache.ini");
    EXPECT_EQ(find("Cache\\cache.ini"), game.root() / "Cache" / "cache.ini");
    EXPECT_EQ(toWrite("Cache\\cache.ini"), game.written() / "Cache" / "cache.ini");
}

TEST_F(LayersTest, LookingMakesNothing) {
    find("System\\user.ini");
    find("Maps\\x.unr");
    world.paths.toHost(game.path("System\\new.ini"));
    EXPECT_FALSE(fs::exists(game.written()));
}

TEST_F(LayersTest, WritingMakesTheHomeForItsOwnerOnly) {
    toWrite("System\\new.ini");
    for (const char* folder : {"", "System"})
        EXPECT_EQ(fs::status(game.written() / folder).permissions(), fs::perms::owner_all)
            << folder;
    EXPECT_FALSE(fs::exists(game.written() / "Cache"));
}

TEST_F(LayersTest, ACacheIsMadeWhereThereIsNoneYet) {
    fs::remove(game.root() / "Cache");
    EXPECT_EQ(find("Cache"), game.written() / "Cache");
    EXPECT_EQ(fs::status(game.written() / "Cache").permissions(), fs::perms::owner_all);
}

TEST_F(LayersTest, TheProgramsStandForThoseOfWindows) {
    putOwn("System/UCC.exe");
    EXPECT_EQ(find("System\\ucc.exe"), game.programs() / ("ucc-bin" + game.suffix()));
    EXPECT_EQ(find("system\\UnrealTournament.EXE"), game.programs() / ("ut-bin" + game.suffix()));
}

TEST_F(LayersTest, AServerWithoutTheGameHasNoGame) {
    fs::remove(game.programs() / ("ut-bin" + game.suffix()));
    EXPECT_FALSE(find("System\\unrealtournament.exe"));
}

TEST_F(LayersTest, EachIniIsFoundForItself) {
    put(game.programs() / "UnrealTournament.ini");
    putWritten("System/User.ini");
    EXPECT_EQ(find("System\\unrealtournament.ini"), game.programs() / "UnrealTournament.ini");
    EXPECT_EQ(find("System\\user.ini"), game.written() / "System" / "User.ini");
}

TEST_F(LayersTest, AnIniInTheGamesSpellingComesBeforeOneThatTheGameDoesNotSee) {
    putWritten("System/user.ini");
    EXPECT_EQ(find("System\\user.ini"), game.written() / "System" / "user.ini");
    put(game.programs() / "User.ini");
    EXPECT_EQ(find("System\\user.ini"), game.programs() / "User.ini");
}

TEST_F(LayersTest, AnIniInSystemIsReadWhileThereIsNoOtherAndNeverWritten) {
    putOwn("System/User.ini");
    EXPECT_EQ(find("System\\user.ini"), game.root() / "System" / "User.ini");
    EXPECT_EQ(toWrite("System\\user.ini"), game.written() / "System" / "User.ini");
    put(game.programs() / "user.ini");
    EXPECT_EQ(find("System\\user.ini"), game.root() / "System" / "User.ini");
    put(game.programs() / "User.ini");
    EXPECT_EQ(find("System\\user.ini"), game.programs() / "User.ini");
}

TEST_F(LayersTest, WithoutAnyIniTheGamesTemplateIsRead) {
    put(game.programs() / "Default.ini");
    EXPECT_EQ(find("System\\unrealtournament.ini"), game.programs() / "Default.ini");
    EXPECT_EQ(toWrite("System\\unrealtournament.ini"),
              game.written() / "System" / "UnrealTournament.ini");
    putWritten("System/Default.ini");
    EXPECT_EQ(find("System\\unrealtournament.ini"), game.written() / "System" / "Default.ini");
    EXPECT_FALSE(find("System\\user.ini"));
}

TEST_F(LayersTest, ANewIniIsSpelledAsTheGameSpellsIt) {
    EXPECT_EQ(toWrite("system\\user.ini"), game.written() / "System" / "User.ini");
    EXPECT_EQ(toWrite("system\\UNREALTOURNAMENT.ini"),
              game.written() / "System" / "UnrealTournament.ini");
    EXPECT_EQ(toWrite("system\\other.ini"), game.written() / "System" / "other.ini");
}

TEST_F(LayersTest, WhatUccMadeOfAFileLiesBesideIt) {
    putWritten("Maps/DM-One.unr.uz");
    EXPECT_EQ(find("Maps\\DM-One.unr.uz"), game.written() / "Maps" / "DM-One.unr.uz");
    putOwn("Maps/DM-One.unr");
    EXPECT_EQ(find("Maps\\DM-One.unr.uz"), game.written() / "Maps" / "DM-One.unr.uz");
    putOwn("Maps/DM-One.unr.uz");
    EXPECT_EQ(find("Maps\\DM-One.unr.uz"), game.root() / "Maps" / "DM-One.unr.uz");
}

TEST_F(LayersTest, AHomeThatIsAFileIsPassedOver) {
    put(game.written());
    putOwn("Cache/cache.ini");
    EXPECT_EQ(toWrite("System\\user.ini"), game.programs() / "User.ini");
    EXPECT_EQ(toWrite("Cache\\cache.ini"), game.root() / "Cache" / "cache.ini");
    EXPECT_EQ(toWrite("Maps\\New.unr"), game.root() / "Maps" / "New.unr");
    EXPECT_EQ(find("System"), game.root() / "System");
    EXPECT_EQ(NativeGameFolder::read(game.written()), game.written().string());
}

TEST_F(LayersTest, AHomeThatCannotBeMadeIsRefusedAtTheWrite) {
    world.host.refuse(Call::MakeFolder, errors::PermissionDenied);
    const HostPath file = toWrite("System\\new.ini");
    EXPECT_EQ(file, game.written() / "System" / "new.ini");
    EXPECT_EQ(errorOf([&] { world.files.replace(game.path("System\\new.ini"), "x"); }),
              errors::PathNotFound);
    EXPECT_FALSE(fs::exists(game.written()));
}

TEST_F(LayersTest, TwoGamesShareAHomeAndKeepTheirOwnFiles) {
    const HostPath second = world.folder() / "other";
    fs::copy(game.root(), second, fs::copy_options::recursive);
    const std::string other = world.paths.toGame(second) + "\\System\\";
    put(game.programs() / "User.ini");
    put(second / nativeNames().folder / "User.ini");
    putWritten("System/UnrealTournament.ini");
    EXPECT_EQ(find("System\\user.ini"), game.programs() / "User.ini");
    EXPECT_EQ(world.paths.find(other + "user.ini"), second / nativeNames().folder / "User.ini");
    EXPECT_EQ(find("System\\unrealtournament.ini"),
              world.paths.find(other + "unrealtournament.ini"));
    EXPECT_EQ(world.paths.find(other + "ucc.exe"),
              second / nativeNames().folder / ("ucc-bin" + game.suffix()));
}

TEST_F(LayersTest, AFolderReadsAsTheGamesWhereverItsFilesAre) {
    EXPECT_EQ(world.paths.spelled(game.path("system")), game.path("System"));
    EXPECT_EQ(find("System"), game.root() / "System");
    putWritten("System/Screenshots/x.png");
    EXPECT_EQ(find("System"), game.written() / "System");
    EXPECT_EQ(world.paths.spelled(game.path("system\\SCREENSHOTS\\new")),
              game.path("System\\Screenshots\\new"));
}

TEST_F(LayersTest, OneWhoEntersSystemComesToTheInisOfTheGame) {
    putWritten("System/UnrealTournament.log");
    EXPECT_EQ(find("System"), game.written() / "System");
    put(game.programs() / "UnrealTournament.ini");
    EXPECT_EQ(find("System"), game.programs());
    EXPECT_EQ(world.paths.spelled(game.path("SYSTEM")), game.path("System"));
    putWritten("System/UnrealTournament.ini");
    EXPECT_EQ(find("System"), game.written() / "System");
}

TEST_F(LayersTest, TheFoldersOfAStackAreTheUpperFirst) {
    EXPECT_THAT(world.paths.folders(game.path("maps")),
                ElementsAre(game.written() / "Maps", game.root() / "Maps"));
    EXPECT_THAT(world.paths.folders(game.path()), ElementsAre(game.root()));
    EXPECT_THAT(world.paths.folders(game.path("nowhere")), ElementsAre());
}

TEST_F(LayersTest, AFileThatComesLaterInAnUpperFolderIsFoundAtOnce) {
    put(game.programs() / "User.ini");
    find("System\\user.ini");
    putWritten("System/User.ini");
    EXPECT_EQ(find("System\\user.ini"), game.written() / "System" / "User.ini");
    fs::remove_all(game.written());
    EXPECT_EQ(find("System\\user.ini"), game.programs() / "User.ini");
}

TEST_F(LayersTest, AGameThatHoldsItsFolderOnADriveOfItsOwnIsOneToo) {
    DriveMap drives = world.drives;
    drives['U'] = game.root();
    Paths paths(world.host, drives);
    putWritten("System/User.ini");
    EXPECT_EQ(paths.find("U:\\system\\user.ini"), game.written() / "System" / "User.ini");
    EXPECT_EQ(paths.toWrite("U:\\system\\new.ini"), game.written() / "System" / "new.ini");
}

}  // namespace
}  // namespace tessaro
