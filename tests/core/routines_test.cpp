#include "core/routines.h"

#include <gtest/gtest.h>

#include <set>

#include "support/testprogram.h"

namespace tessaro::test {
namespace {

// Remembers the names whose status it was asked for.
class AskedHost : public FailingHost {
  public:
    using FailingHost::FailingHost;
    std::set<std::string> asked;

    std::optional<HostStatus> status(const HostPath& path) override {
        asked.insert(path.filename().string());
        return FailingHost::status(path);
    }
};

class Routines : public ::testing::Test {
  protected:
    void makeGame(std::initializer_list<const char*> folders) {
        for (const char* folder : folders) game.world.makeFolder(std::string("C:\\UT\\") + folder);
    }
    // The names that the check asks a host for.
    std::set<std::string> namesAskedByTheCheck() {
        AskedHost host(game.world.host);
        Program asking(host, game.world.drives,
                       {game.dialogs, game.sounds, game.processes, game.events}, program.file);
        ValidatePaths(asking, "C:\\UT");
        return host.asked;
    }

    TestProgram game;
    Program& program = game.program;
};

TEST_F(Routines, FormIsCentredAcrossAndALittleAboveTheMiddle) {
    const Box placed = centeredOn({0, 0, 15360, 11520}, {0, 0, 6000, 4000});
    EXPECT_DOUBLE_EQ(placed.left, 4680);
    EXPECT_DOUBLE_EQ(placed.top, 11520 * 0.85 / 2 - 2000);
    EXPECT_DOUBLE_EQ(placed.width, 6000);
}

TEST_F(Routines, PauseServesEventsUntilTheTimeIsOver) {
    game.events.step = 0.25;
    const double start = game.events.now;
    Pause(game.events, 1.0);
    EXPECT_DOUBLE_EQ(game.events.now, start + 1.0);
    EXPECT_EQ(game.events.pumps, 4);
}

TEST_F(Routines, PauseOfNoTimeServesNoEvents) {
    Pause(game.events, 0);
    EXPECT_EQ(game.events.pumps, 0);
}

TEST_F(Routines, PauseAcrossMidnightWaitsUntilTheClockHasPassedItsStartAgain) {
    game.events.now = 86399.75;
    game.events.step = 600;
    Pause(game.events, 0.5);
    EXPECT_EQ(game.events.pumps, 1 + 143);
    EXPECT_DOUBLE_EQ(game.events.now, 599.75 + 143 * 600);
}

TEST_F(Routines, PausesUntilSomethingHasComeHoweverLongThatTakes) {
    game.events.step = 0.25;
    pauseUntil(game.events, 0.5, [&] { return game.events.pumps >= 999; });
    EXPECT_EQ(game.events.pumps, 1000);
}

TEST_F(Routines, TheFirstPauseIsAlwaysTakenAndAnOrdinaryOne) {
    game.events.step = 0.25;
    pauseUntil(game.events, 0.5, [] { return true; });
    EXPECT_EQ(game.events.pumps, 2);
    EXPECT_EQ(game.events.endlessPumps, 0);
    pauseUntil(game.events, 0.5, [&] { return game.events.pumps == 8; });
    EXPECT_EQ(game.events.endlessPumps, 4);
}

TEST_F(Routines, WaitsWithoutAPauseAndWithoutInputHoweverLongThatTakes) {
    int turns = 0;
    game.events.onBlocked = [&] { ++turns; };
    waitUntil(game.events, [&] { return turns == 1000; });
    EXPECT_EQ(turns, 1000);
    EXPECT_EQ(game.events.pumps, 0);
}

TEST_F(Routines, WhatHasComeAlreadyIsNotWaitedFor) {
    int turns = 0;
    game.events.onBlocked = [&] { ++turns; };
    waitUntil(game.events, [] { return true; });
    EXPECT_EQ(turns, 0);
}

TEST_F(Routines, FolderExistsAlsoWhereAFileHasThatName) {
    game.world.write("C:\\UT\\System\\user.ini", "x");
    EXPECT_EQ(DirExists(program, "C:\\UT\\System"), Yes);
    EXPECT_EQ(DirExists(program, "c:\\ut\\SYSTEM"), Yes);
    EXPECT_EQ(DirExists(program, "C:\\UT\\System\\user.ini"), Yes);
    EXPECT_EQ(DirExists(program, "C:\\UT\\Maps"), No);
}

TEST_F(Routines, EmptyPathStandsForTheCurrentFolder) {
    game.world.makeFolder("C:\\UT");
    program.paths.changeFolder("C:\\UT");
    EXPECT_EQ(DirExists(program, ""), Yes);
    game.world.host.refuse(Call::List, errors::PermissionDenied);
    EXPECT_EQ(DirExists(program, ""), No);
}

TEST_F(Routines, AnEmptyRootAsCurrentFolderIsThereToo) {
    std::filesystem::remove_all(game.world.at("C:\\Tessaro"));
    program.paths.changeFolder("C:\\");
    EXPECT_EQ(game.world.names("C:\\"), std::vector<std::string>{});
    EXPECT_EQ(DirExists(program, ""), Yes);
}

TEST_F(Routines, AGameInAFolderThatBeginsWithADotIsAGameLikeAnyOther) {
    for (const char* folder : {"Sounds", "Maps", "Textures", "System", "Cache"})
        game.world.makeFolder(std::string("C:\\.ut99\\") + folder);
    EXPECT_EQ(DirExists(program, "C:\\.ut99"), Yes);
    EXPECT_EQ(ValidatePaths(program, "C:\\.ut99"), Yes);
}

TEST_F(Routines, FileExistsForHiddenFilesButNotForFolders) {
    game.world.write("C:\\UT\\.hidden", "");
    game.world.write("C:\\UT\\Read Me.txt", "x");
    game.world.makeFolder("C:\\UT\\Maps");
    EXPECT_EQ(FileExists(program, "C:\\UT\\.hidden"), Yes);
    EXPECT_EQ(FileExists(program, "c:\\ut\\read me.TXT"), Yes);
    EXPECT_EQ(FileExists(program, "C:\\UT\\Maps"), No);
    EXPECT_EQ(FileExists(program, "C:\\UT\\none"), No);
}

TEST_F(Routines, ExistenceTestsNeverRaise) {
    EXPECT_EQ(DirExists(program, "Q:\\nowhere"), No);
    EXPECT_EQ(FileExists(program, "Q:\\nowhere"), No);
    game.world.host.refuse(Call::Status, errors::PermissionDenied);
    EXPECT_EQ(DirExists(program, "C:\\"), No);
    EXPECT_EQ(FileExists(program, "C:\\x"), No);
}

TEST_F(Routines, FiveFoldersMakeAValidGame) {
    makeGame({"Sounds", "Maps", "Textures", "System", "Cache"});
    EXPECT_EQ(ValidatePaths(program, "C:\\UT"), Yes);
}

TEST_F(Routines, CheckStopsAtTheFirstMissingFolder) {
    makeGame({"Sounds", "Maps", "System", "Cache"});
    // By the spelling that they have on the disk.
    const std::set<std::string> asked = namesAskedByTheCheck();
    EXPECT_TRUE(asked.contains("Sounds") && asked.contains("Maps"));
    EXPECT_FALSE(asked.contains("System"));
    EXPECT_FALSE(asked.contains("Cache"));
    makeGame({"Textures"});
    EXPECT_TRUE(namesAskedByTheCheck().contains("System"));
}

TEST_F(Routines, SoundIsStartedFromItsBytesWhateverTheCase) {
    PlaySoundResource(program, "GodLike");
    EXPECT_EQ(game.sounds.names, std::vector<std::string>{"godlike"});
    EXPECT_EQ(program.SoundBuffer, game.sounds.resource("godlike"));
    EXPECT_EQ(program.SoundResult, 1);
}

}  // namespace
}  // namespace tessaro::test
