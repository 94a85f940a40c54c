// The stand-ins with the ways of the programs for Linux.

#include <gmock/gmock.h>
#include <sys/wait.h>

#include <cstdlib>

#include "support/nativegame.h"
#include "tools/ucc/programs.h"
#include "tools/ucc/uzfile.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::NativeGameFolder;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class NativeUcc : public ::testing::Test {
  protected:
    NativeUcc() {
        ucc::installNativePrograms(game.root(), executablePath().parent_path());
        fs::create_directories(game.root() / "SystemLocalized");
        for (const char* name : {"Default.ini", "DefUser.ini"})
            NativeGameFolder::write(game.programs() / name, name);
        NativeGameFolder::write(map, content);
    }

    // Starts it from a folder that has nothing to do with it, and gives its exit code.
    int run(const std::string& arguments) {
        const std::string line = "cd / && '" + program.native() + "' " + arguments + " >'" +
                                 (world.folder() / "out").native() + "' 2>'" +
                                 (world.folder() / "err").native() + "'";
        const int status = std::system(line.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::string printed() const { return NativeGameFolder::read(world.folder() / "out"); }
    static std::string quoted(const HostPath& file) { return "'" + file.native() + "'"; }

    test::TestWorld world;
    NativeGameFolder game{world};
    const HostPath program = game.programs() / ("ucc-bin" + NativeGameFolder::suffix());
    const HostPath map = game.root() / "Maps" / "DM-Höhle b][.unr";
    const HostPath system = game.written() / "System";
    const std::string content = std::string(5000, 'x') + "end";
};

TEST_F(NativeUcc, MakesThePlayersFolderAndTheInisAtEveryStart) {
    EXPECT_EQ(run("help"), 0);
    EXPECT_EQ(fs::status(game.written()).permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(system).permissions(), fs::perms::owner_all);
    EXPECT_EQ(NativeGameFolder::read(system / "UnrealTournament.ini"), "Default.ini");
    EXPECT_EQ(NativeGameFolder::read(system / "User.ini"), "DefUser.ini");
}

TEST_F(NativeUcc, SaysWhatItUsesAndTakesAnIniOfItsFolderThatIsSpelledRight) {
    NativeGameFolder::write(game.programs() / "User.ini", "mine");
    NativeGameFolder::write(game.programs() / "unrealtournament.ini", "not seen");
    run("help");
    EXPECT_THAT(
        printed(),
        HasSubstr(
            "WARNING: using preference directory: " + system.native() +
            "/\nWARNING: Using system ini file: " + (system / "UnrealTournament.ini").native() +
            "\nWARNING: Using user ini file: " + (game.programs() / "User.ini").native() + "\n"));
    EXPECT_FALSE(fs::exists(system / "User.ini"));
}

TEST_F(NativeUcc, LeavesWhatItCompressedBesideAFileNamedInFull) {
    EXPECT_EQ(run("compress " + quoted(map)), 0);
    EXPECT_EQ(ucc::decompressed(NativeGameFolder::read(map.native() + ".uz")),
              (ucc::Package{"DM-Höhle b][.unr", content}));
    EXPECT_FALSE(fs::exists(game.written() / "Maps"));
}

TEST_F(NativeUcc, LeavesWhatItCompressedInThePlayersFolderForARelativeName) {
    EXPECT_EQ(run("compress '../Maps/DM-Höhle b][.unr'"), 0);
    EXPECT_TRUE(fs::exists(game.written() / "Maps" / "DM-Höhle b][.unr.uz"));
    EXPECT_FALSE(fs::exists(map.native() + ".uz"));
}

TEST_F(NativeUcc, LeavesWhatItUnpackedInThePlayersFolderUnderTheStoredName) {
    const HostPath packed = world.folder() / "renamed.uz";
    NativeGameFolder::write(packed, ucc::compressed({"Höhle.unr", content}));
    EXPECT_EQ(run("decompress " + quoted(packed)), 0);
    EXPECT_EQ(NativeGameFolder::read(system / "Höhle.unr"), content);
    EXPECT_THAT(test::TestWorld::namesIn(game.root() / "System"),
                ::testing::Not(::testing::Contains("Höhle.unr")));
}

TEST_F(NativeUcc, TakesNamesAsTheyAreSpelledOnly) {
    EXPECT_EQ(run("compress " + quoted(game.root() / "maps" / "DM-Höhle b][.unr")), 1);
    EXPECT_EQ(run("compress " + quoted(game.root() / "Maps" / "dm-höhle b][.unr")), 1);
    EXPECT_THAT(test::TestWorld::namesIn(game.root() / "Maps"), ElementsAre("DM-Höhle b][.unr"));
}

TEST_F(NativeUcc, TakesNoSwitchAndOneFileToUnpack) {
    EXPECT_EQ(run("compress -nohomedir " + quoted(map)), 1);
    EXPECT_THAT(printed(), HasSubstr("Unrecognized option"));
    EXPECT_FALSE(fs::exists(map.native() + ".uz"));
    EXPECT_EQ(run("compress " + quoted(map) + " " + quoted(program)), 0);
    EXPECT_TRUE(fs::exists(program.native() + ".uz"));
    EXPECT_EQ(run("decompress " + quoted(map.native() + ".uz") + " x.uz"), 1);
}

TEST_F(NativeUcc, ACommandThatItDoesNotKnowIsNoFailure) {
    EXPECT_EQ(run("-nohomedir compress " + quoted(map)), 0);
    EXPECT_THAT(printed(), HasSubstr("Commandlet -nohomedir not found"));
    fs::remove(game.root() / "SystemLocalized");
    EXPECT_EQ(run("compress " + quoted(map)), 0);
    EXPECT_THAT(printed(), HasSubstr("Commandlet compress not found"));
    EXPECT_FALSE(fs::exists(map.native() + ".uz"));
}

TEST_F(NativeUcc, PrintsOnItsStandardOutputOnlyAndGarblesWhatIsNotAscii) {
    run("compress " + quoted(map));
    EXPECT_THAT(printed(), HasSubstr("Compressing DM-H??hle b][.unr (5003 bytes)\n"));
    run("decompress " + quoted(map));
    EXPECT_THAT(printed(), HasSubstr("not a compressed package\n"));
    EXPECT_THAT(NativeGameFolder::read(world.folder() / "err"), IsEmpty());
}

TEST_F(NativeUcc, WritesTheGamesIniAndLeavesWhatItWasMadeIn) {
    run("compress " + quoted(map));
    EXPECT_EQ(NativeGameFolder::read(system / "UnrealTournament.ini"), "Default.ini");
    EXPECT_EQ(NativeGameFolder::read(system / "UnrealTournament.ini.tmp"), "Default.ini");
}

TEST_F(NativeUcc, WithoutAFolderForThePlayerItUsesItsOwn) {
    NativeGameFolder::write(game.written(), "a file");
    run("compress " + quoted(map));
    EXPECT_THAT(printed(), HasSubstr("WARNING: Not using preference directory\n"));
    EXPECT_TRUE(fs::exists(game.programs() / "User.ini"));
    EXPECT_EQ(run("decompress " + quoted(map.native() + ".uz")), 0);
    EXPECT_EQ(NativeGameFolder::read(game.programs() / "DM-Höhle b][.unr"), content);
}

}  // namespace
}  // namespace tessaro
