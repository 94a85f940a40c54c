// The stand-ins, started as the program starts the game's own.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/host.h"
#include "support/programfolder.h"
#include "tools/ucc/programs.h"
#include "tools/ucc/uzfile.h"

namespace tessaro {
namespace {

class UccTest : public test::ProgramFolder {
  protected:
    UccTest() {
        for (const char* folder : {"System", "Maps", "Packed"}) world.makeFolder(folder);
        world.write("System/UCC.exe", "a text, as the sample has it");
        ucc::installPrograms(world.driveC(), executablePath().parent_path());
        world.write("Maps/DM-A b][.unr", content);
    }

    void compress(const std::string& file) { run("C:\\System\\ucc.exe compress \"" + file + "\""); }
    void decompress(const std::string& file) {
        run("C:\\System\\ucc.exe decompress \"" + file + "\"");
    }
    std::string printed(const std::string& arguments) {
        const test::Redirection out(STDOUT_FILENO, world.at("out"));
        run("C:\\System\\ucc.exe " + arguments, Visibility::Visible);
        return world.read("out");
    }
    const std::string content = std::string(5000, 'x') + "end";
    const std::string map = "C:\\maps\\DM-A b][.unr";
};

TEST_F(UccTest, CompressLeavesTheResultBesideTheSource) {
    compress(map);
    EXPECT_EQ(ucc::decompressed(world.read("Maps/DM-A b][.unr.uz")),
              (ucc::Package{"DM-A b][.unr", content}));
    EXPECT_EQ(world.read("Maps/DM-A b][.unr"), content);
}

TEST_F(UccTest, CompressWritesOverAnOlderResult) {
    world.write("Maps/DM-A b][.unr.uz", std::string(100'000, 'o'));
    compress(map);
    EXPECT_EQ(ucc::decompressed(world.read("Maps/DM-A b][.unr.uz")).bytes, content);
}

TEST_F(UccTest, DecompressLeavesTheStoredNameInItsOwnFolder) {
    world.write("Packed/renamed.uz", ucc::compressed({"Höhle.unr", content}));
    decompress("C:\\Packed\\renamed.uz");
    EXPECT_EQ(world.read("System/Höhle.unr"), content);
    EXPECT_EQ(world.names("Packed").size(), 1U);
}

TEST_F(UccTest, StoredNameDoesNotLeadOutOfTheFolder) {
    world.write("Packed/bad.uz", ucc::compressed({"../Maps/bad.u", content}));
    decompress("C:\\Packed\\bad.uz");
    EXPECT_TRUE(world.exists("System/bad.u"));
    EXPECT_FALSE(world.exists("Maps/bad.u"));
}

TEST_F(UccTest, DamagedFileLeavesNothing) {
    world.write("Packed/x.u.uz", ucc::compressed({"x.u", content}).substr(0, 20));
    decompress("C:\\Packed\\x.u.uz");
    EXPECT_FALSE(world.exists("System/x.u"));
}

TEST_F(UccTest, RelativePathsBeginInTheSystemFolder) {
    world.host.changeFolder(world.at("Packed"));
    compress("../Maps/DM-A b][.unr");
    EXPECT_TRUE(world.exists("Maps/DM-A b][.unr.uz"));
}

TEST_F(UccTest, MissingSourceAndFoldersLeaveNothing) {
    compress("C:\\Maps\\missing.unr");
    compress("C:\\Packed");
    EXPECT_EQ(world.names("Maps").size(), 1U);
    EXPECT_FALSE(world.exists("Packed.uz"));
}

// Frees one who waits at the pipe's other end, and tells whether there was one.
bool somebodyWaitsAt(const HostPath& pipe) {
    for (const int mode : {O_WRONLY, O_RDONLY}) {
        const int end = ::open(pipe.c_str(), mode | O_NONBLOCK);
        char byte = 0;
        // A reader can always be; whether there is a writer shows as the lack of an end.
        const bool waited = end != -1 && (mode == O_WRONLY || ::read(end, &byte, 1) != 0);
        if (end != -1) ::close(end);
        if (waited) return true;
    }
    return false;
}

TEST_F(UccTest, APipeInPlaceOfAFileIsNotWaitedFor) {
    world.write("Packed/q.uz", ucc::compressed({"q.u", content}));
    const HostPath pipes[] = {world.at("Packed/p.uz"), world.at("Maps/p.u"),
                              world.at("System/q.u")};
    for (const HostPath& pipe : pipes) ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    bool waited = false;
    whileRunning = [&] {
        for (const HostPath& pipe : pipes) waited = somebodyWaitsAt(pipe) || waited;
    };
    decompress("C:\\Packed\\p.uz");
    compress("C:\\Maps\\p.u");
    decompress("C:\\Packed\\q.uz");
    EXPECT_FALSE(waited);
    for (const HostPath& pipe : pipes) EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST_F(UccTest, ConsoleTellsWhatIsDone) {
    const std::string compressing = printed("compress \"C:\\Maps\\DM-A b][.unr\"");
    for (const char* line :
         {"Executing Class IpDrv.CompressCommandlet\n", "Compressing DM-A b][.unr (5003 bytes)\n",
          "Compressed DM-A b][.unr -> DM-A b][.unr.uz ("})
        EXPECT_NE(compressing.find(line), std::string::npos) << compressing;
    const std::string decompressing = printed("decompress \"C:\\Maps\\DM-A b][.unr.uz\"");
    EXPECT_NE(decompressing.find("Decompressed DM-A b][.unr.uz -> DM-A b][.unr\n"),
              std::string::npos);
}

TEST_F(UccTest, SilentOneLeavesNoFile) {
    const test::Environment manner("TESSARO_UCC", "silent");
    compress(map);
    EXPECT_EQ(world.names("Maps").size(), 1U);
}

TEST_F(UccTest, CrashLeavesNoFile) {
    const test::Environment manner("TESSARO_UCC", "crash");
    const std::string console = printed("compress \"C:\\Maps\\DM-A b][.unr\"");
    EXPECT_NE(console.find("Executing"), std::string::npos);

    EXPECT_EQ(world.names("Maps").size(), 1U);
}

TEST_F(UccTest, OtherNameIsNotTheExpectedOne) {
    const test::Environment manner("TESSARO_UCC", "othername");
    compress(map);
    EXPECT_TRUE(world.exists("Maps/other-DM-A b][.unr.uz"));
    EXPECT_EQ(world.names("Maps").size(), 2U);
    decompress("C:\\Maps\\other-DM-A b][.unr.uz");
    EXPECT_EQ(world.read("System/other-DM-A b][.unr"), content);
}

TEST_F(UccTest, SlowOneWaitsToBeReleased) {
    const test::Environment manner("TESSARO_UCC", "slow");
    const test::Environment release("TESSARO_UCC_RELEASE", world.at("release"));
    int calls = 0;
    whileRunning = [&] {
        if (++calls < 3) {
            EXPECT_EQ(world.names("Maps").size(), 1U);
        }
        if (calls == 3) world.write("release", "");
    };
    compress(map);
    EXPECT_GE(calls, 3);
    EXPECT_EQ(world.names("Maps").size(), 2U);
}

TEST_F(UccTest, Utf16ConsoleHasANulAfterEachLetter) {
    const test::Environment manner("TESSARO_UCC", "utf16");
    const std::string console = printed("compress \"C:\\Maps\\DM-A b][.unr\"");
    EXPECT_NE(console.find(std::string("E\0x\0e\0c\0", 8)), std::string::npos);
    EXPECT_EQ(console.size() % 2, 0U);
    EXPECT_EQ(world.names("Maps").size(), 2U);
}

TEST_F(UccTest, OneThatReadsItsInputFindsItEmpty) {
    const test::Environment manner("TESSARO_UCC", "stdin");
    compress(map);
    EXPECT_EQ(world.names("Maps").size(), 2U);
}

TEST_F(UccTest, UnknownMannerIsRefused) {
    const test::Environment manner("TESSARO_UCC", "nonsense");
    compress(map);
    EXPECT_EQ(world.names("Maps").size(), 1U);
}

TEST_F(UccTest, GameNotesWhatItWasStartedWith) {
    run("C:\\System\\unrealtournament.exe 10.0.0.1?port=7777 \"a b\"", Visibility::Visible);
    EXPECT_EQ(world.read("System/UnrealTournament.cmdline"),
              world.at("System/UnrealTournament.exe").native() + "\n10.0.0.1?port=7777\na b\n");
}

}  // namespace
}  // namespace tessaro
