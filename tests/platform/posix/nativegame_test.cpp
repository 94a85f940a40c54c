#include "platform/files/nativegame.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "support/nativegame.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::NativeGameFolder;
using test::TestWorld;

class NativeGameTest : public ::testing::Test {
  protected:
    std::optional<NativeGame> look() { return nativeGameIn(world.host, game.root()); }
    void removePrograms() const {
        for (const char* name : {"ucc-bin", "ut-bin"})
            fs::remove(game.programs() / (name + NativeGameFolder::suffix()));
    }

    TestWorld world;
    NativeGameFolder game{world};
};

TEST_F(NativeGameTest, IsKnownByItsProgramsForThisMachine) {
    const auto found = look();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->programs, game.programs());
    EXPECT_EQ(found->ucc, game.programs() / ("ucc-bin" + NativeGameFolder::suffix()));
    EXPECT_EQ(found->game, game.programs() / ("ut-bin" + NativeGameFolder::suffix()));
    EXPECT_EQ(found->home, game.written());
}

TEST_F(NativeGameTest, AFolderWithoutItsProgramsIsNone) {
    removePrograms();
    EXPECT_FALSE(look());
    EXPECT_FALSE(nativeGameIn(world.host, world.folder() / "nowhere"));
}

TEST_F(NativeGameTest, ProgramsWithoutASuffixAreTakenWhereThereAreNoOthers) {
    NativeGameFolder::write(game.programs() / "ut-bin", "for whatever machine");
    EXPECT_EQ(look()->game, game.programs() / ("ut-bin" + NativeGameFolder::suffix()));
    removePrograms();
    EXPECT_EQ(look()->game, game.programs() / "ut-bin");
    EXPECT_EQ(look()->ucc, HostPath());
}

TEST_F(NativeGameTest, AServerHasOnlyTheTool) {
    fs::remove(game.programs() / ("ut-bin" + NativeGameFolder::suffix()));
    EXPECT_EQ(look()->game, HostPath());
    EXPECT_NE(look()->ucc, HostPath());
}

TEST_F(NativeGameTest, ProgramsOfAnotherMachineAreNone) {
    removePrograms();
    for (const char* folder : {"System64", "SystemARM64", "System"})
        NativeGameFolder::write(game.root() / folder / "ut-bin-mips", "x");
    EXPECT_FALSE(look());
}

TEST_F(NativeGameTest, ALaterLayoutHasThemInSystem) {
    fs::rename(game.programs(), world.folder() / "moved");
    fs::create_directories(game.root() / "System");
    for (const auto& each : fs::directory_iterator(world.folder() / "moved"))
        fs::rename(each.path(), game.root() / "System" / each.path().filename());
    EXPECT_EQ(look()->programs, game.root() / "System");
}

TEST_F(NativeGameTest, OutsideOfAWinePrefixAWindowsGameBesideItDoesNotCount) {
    NativeGameFolder::write(game.root() / "System" / "UnrealTournament.exe", "MZ");
    EXPECT_TRUE(look());
}

TEST_F(NativeGameTest, InAWinePrefixTheWindowsGameComesFirst) {
    const HostPath inside = world.driveC() / "UnrealTournament";
    fs::rename(game.root(), inside);
    EXPECT_TRUE(nativeGameIn(world.host, inside));
    NativeGameFolder::write(inside / "System" / "unrealtournament.EXE", "MZ");
    EXPECT_FALSE(nativeGameIn(world.host, inside));
    fs::rename(inside / "System" / "unrealtournament.EXE", inside / "System" / "UCC.exe");
    EXPECT_FALSE(nativeGameIn(world.host, inside));
}

TEST_F(NativeGameTest, APrefixIsKnownThroughALinkAndOnlyByWhatWinePutsThere) {
    const HostPath other = world.folder() / "launcher" / "drive_c" / "ut";
    fs::create_directories(other.parent_path());
    fs::rename(game.root(), other);
    NativeGameFolder::write(other / "System" / "UCC.exe", "MZ");
    fs::create_directory_symlink(other, world.folder() / "link");
    EXPECT_TRUE(nativeGameIn(world.host, world.folder() / "link"));
    fs::create_directories(world.folder() / "launcher" / "dosdevices");
    EXPECT_FALSE(nativeGameIn(world.host, world.folder() / "link"));
}

TEST_F(NativeGameTest, AHomeThatTheGameCannotUseIsNone) {
    NativeGameFolder::write(game.written(), "a file");
    EXPECT_EQ(look()->home, HostPath());
    fs::remove(game.written());
    fs::remove(game.home());
    EXPECT_EQ(look()->home, HostPath());
    NativeGameFolder::write(game.home(), "a file");
    EXPECT_EQ(look()->home, HostPath());
}

TEST_F(NativeGameTest, WithoutAVariableTheAccountsHomeIsTheHome) {
    const passwd* account = ::getpwuid(::getuid());
    if (!account || !fs::is_directory(account->pw_dir)) GTEST_SKIP() << "no account with a home";
    for (const bool empty : {true, false}) {
        empty ? ::setenv("HOME", "", 1) : ::unsetenv("HOME");
        EXPECT_EQ(look()->home, HostPath(account->pw_dir) / ".utpg");
    }
}

}  // namespace
}  // namespace tessaro
