#include "platform/outside/processes.h"

#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>
#include <sstream>
#include <vector>

#include "platform/posix/childprocess.h"
#include "support/programfolder.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using Arguments = std::vector<std::string>;
using ProcessesTest = test::ProgramFolder;

// Notes each argument, ended by a NUL, in a file beside the script.
constexpr const char* NoteArguments = R"(for each; do printf '%s\0' "$each"; done > "$0.args")";
// Waits for a file beside the script, or for the script's own end.
constexpr const char* WaitForRelease =
    R"(while [ -e "$0" ] && ! [ -e "$0.release" ]; do sleep 0.01; done)";

Arguments argumentsIn(const HostPath& file) {
    Arguments arguments;
    const std::string text = test::TestWorld::readHost(file);
    for (std::size_t at = 0; at < text.size(); at = text.find('\0', at) + 1)
        arguments.emplace_back(text.c_str() + at);
    return arguments;
}

bool hasChildren() {
    return ::waitpid(-1, nullptr, WNOHANG) != -1;
}

std::ptrdiff_t openFiles() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), {});
}

struct ProgramEnded {};

TEST_F(ProcessesTest, ArgumentsArriveAsTheyStand) {
    writeScript("tool", NoteArguments);
    run("C:\\tool compress \"a  b\" '%PATH%' $HOME [x]'s! \"\" Höhle-ж-日本 *");
    EXPECT_EQ(
        argumentsIn(world.at("tool.args")),
        (Arguments{"compress", "a  b", "'%PATH%'", "$HOME", "[x]'s!", "", "Höhle-ж-日本", "*"}));
}

TEST_F(ProcessesTest, NamesOfFilesArriveAsTheyStand) {
    writeScript("tool", NoteArguments);
    Arguments expected;
    for (const char* name : {"DM-A b.unr", "DM-[]['].unr", "100%.u", "Höhle ж 日本.unr"}) {
        world.write(name, "x");
        expected = {world.at(name).native()};
        run("C:\\tool \"C:\\" + std::string(name) + "\"");
        EXPECT_EQ(argumentsIn(world.at("tool.args")), expected);
    }
}

TEST_F(ProcessesTest, ANulInALineStartsNothing) {
    writeScript("tool", NoteArguments);
    run(std::string("C:\\tool C:\\Maps\\x.u\0y.u", 22));
    run(std::string("C:\\tool\0y x", 12));
    EXPECT_FALSE(world.exists("tool.args"));
}

TEST_F(ProcessesTest, FullPathsBecomeHostPathsWithoutRegardToCase) {
    writeScript("tool", NoteArguments);
    world.makeFolder("Maps");
    world.write("Maps/DM-Big.unr", "x");
    run("C:\\tool c:\\maps\\dm-BIG.UNR C:\\MAPS\\New.uz Z:\\tmp");
    EXPECT_EQ(argumentsIn(world.at("tool.args")),
              (Arguments{world.at("Maps/DM-Big.unr"), world.at("Maps/New.uz"), "/tmp"}));
}

TEST_F(ProcessesTest, OtherArgumentsAreNotTakenForPaths) {
    writeScript("tool", NoteArguments);
    run("C:\\tool ..\\Maps\\x.unr /cC:\\tool Q:\\nowhere C: \\tool 10.0.0.1?port=7777");
    EXPECT_EQ(argumentsIn(world.at("tool.args")),
              (Arguments{"..\\Maps\\x.unr", "/cC:\\tool", "Q:\\nowhere", "C:", "\\tool",
                         "10.0.0.1?port=7777"}));
}

TEST_F(ProcessesTest, ProgramIsFoundWithoutRegardToCase) {
    world.makeFolder("System");
    writeScript("System/UCC.exe", NoteArguments);
    run("C:\\SYSTEM\\ucc.EXE x");
    EXPECT_EQ(argumentsIn(world.at("System/UCC.exe.args")), Arguments{"x"});
}

TEST_F(ProcessesTest, BlankInTheProgramsFolderBreaksTheLine) {
    world.makeFolder("My System");
    writeScript("My System/ucc.exe", NoteArguments);
    run("C:\\My System\\ucc.exe compress \"C:\\x\"");
    run("\"C:\\My System\\ucc.exe\" compress \"C:\\x\"");
    EXPECT_FALSE(world.exists("My System/ucc.exe.args"));
}

TEST_F(ProcessesTest, ProgramWithoutAFolderIsLookedForInTheCurrentFolder) {
    world.makeFolder("here");
    writeScript("here/tool", NoteArguments);
    world.host.changeFolder(world.at("here"));
    run("Tool one");
    EXPECT_EQ(argumentsIn(world.at("here/tool.args")), Arguments{"one"});
    run("\\here\\tool two");
    EXPECT_EQ(argumentsIn(world.at("here/tool.args")), Arguments{"two"});
}

TEST_F(ProcessesTest, ChildRunsInTheProgramsCurrentFolder) {
    writeScript("tool", R"(pwd > "$0.out")");
    world.makeFolder("Elsewhere");
    world.paths.changeFolder("C:\\elsewhere");
    run("C:\\tool");
    EXPECT_EQ(world.read("tool.out"), world.at("Elsewhere").native() + "\n");
}

TEST_F(ProcessesTest, ChildEndsBeforeTheCallReturns) {
    writeScript("tool", R"(sleep 0.1; echo done > "$0.out")");
    run("C:\\tool");
    EXPECT_EQ(world.read("tool.out"), "done\n");
}

TEST_F(ProcessesTest, StandardInputIsEmpty) {
    writeScript("tool", R"(readlink /proc/self/fd/0 > "$0.out")");
    const test::Redirection ours(STDIN_FILENO, world.at("input"));
    run("C:\\tool", Visibility::Hidden);
    EXPECT_EQ(world.read("tool.out"), "/dev/null\n");
    run("C:\\tool", Visibility::Visible);
    EXPECT_EQ(world.read("tool.out"), "/dev/null\n");
}

TEST_F(ProcessesTest, OutputIsSeenOfVisibleProgramsOnly) {
    writeScript("tool", "echo out $1; echo err $1 >&2");
    {
        const test::Redirection out(STDOUT_FILENO, world.at("out"));
        const test::Redirection err(STDERR_FILENO, world.at("err"));
        run("C:\\tool hidden", Visibility::Hidden);
        run("C:\\tool visible", Visibility::Visible);
    }
    EXPECT_EQ(world.read("out"), "out visible\n");
    EXPECT_EQ(world.read("err"), "err visible\n");
}

TEST_F(ProcessesTest, NoOpenFileReachesTheChild) {
    writeScript("tool", R"([ -e /proc/self/fd/77 ]; echo $? > "$0.out")");
    const test::Redirection ours(77, world.at("open"));
    run("C:\\tool");
    EXPECT_EQ(world.read("tool.out"), "1\n");
}

TEST_F(ProcessesTest, ChildHasTheSignalsOfAFreshProgram) {
    sigset_t blocked;
    sigset_t before;
    ::sigemptyset(&blocked);
    ::sigaddset(&blocked, SIGUSR1);
    ::sigprocmask(SIG_BLOCK, &blocked, &before);
    const auto handler = ::signal(SIGPIPE, SIG_IGN);
    {
        // Without a shell, which would put its own signals right.
        const test::Redirection out(STDOUT_FILENO, world.at("out"));
        run("Z:\\bin\\grep -E Sig(Blk|Ign) /proc/self/status", Visibility::Visible);
    }
    ::signal(SIGPIPE, handler);
    ::sigprocmask(SIG_SETMASK, &before, nullptr);
    std::istringstream status(world.read("out"));
    std::string name;
    for (std::uint64_t set = 0; status >> name >> std::hex >> set;)
        EXPECT_EQ(set & (1U << (SIGUSR1 - 1) | 1U << (SIGPIPE - 1)), 0U) << name;
    EXPECT_EQ(name, "SigIgn:");
}

TEST_F(ProcessesTest, FiftyChildrenLeaveNoZombieAndNoOpenFile) {
    writeScript("tool", R"(echo x >> "$0.out")");
    const std::ptrdiff_t before = openFiles();
    for (int i = 0; i < 50; ++i) run("C:\\tool");
    EXPECT_EQ(world.read("tool.out").size(), 100U);
    EXPECT_EQ(openFiles(), before);
    EXPECT_FALSE(hasChildren());
}

TEST_F(ProcessesTest, WhatCannotBeStartedIsAsIfItDidNothing) {
    world.makeFolder("folder");
    world.write("unstartable", "#!/bin/sh\necho x > \"$0.out\"\n");
    world.write("noformat", "echo x > \"$0.out\"\n");
    makeStartable("noformat");
    world.write("empty", "");
    makeStartable("empty");
    world.write("nointerpreter", "#!/nowhere/sh\n");
    makeStartable("nointerpreter");
    for (const char* line : {"", " ", "C:\\missing.exe x", "C:\\folder x", "C:\\unstartable",
                             "C:\\noformat", "C:\\empty", "C:\\nointerpreter", "Q:\\tool",
                             "C:\\unstartable\\tool", "C:\\missing\\tool", "\"",
                             "C:", "command.com /cC:\\folder\\ucc.exe compress \"C:\\x\""}) {
        EXPECT_NO_THROW(run(line)) << line;
        EXPECT_FALSE(hasChildren()) << line;
    }
    EXPECT_FALSE(world.exists("unstartable.out"));
    EXPECT_FALSE(world.exists("noformat.out"));
}

TEST_F(ProcessesTest, ChildThatFailsOrIsKilledIsLikeAnyOther) {
    writeScript("failing", R"(echo x > "$0.out"; exit 3)");
    writeScript("killed", R"(echo x > "$0.out"; kill -9 $$)");
    run("C:\\failing");
    run("C:\\killed");
    EXPECT_TRUE(world.exists("failing.out"));
    EXPECT_TRUE(world.exists("killed.out"));
    EXPECT_FALSE(hasChildren());
}

TEST_F(ProcessesTest, WaitEndsWithTheChildAndNotWithWhatItLeavesBehind) {
    writeScript("tool", std::string("(") + WaitForRelease + R"(; echo x > "$0.out") &)");
    run("C:\\tool");
    EXPECT_FALSE(world.exists("tool.out"));
    world.write("tool.release", "");
}

TEST_F(ProcessesTest, WindowsAreKeptAliveWhileAChildRuns) {
    writeScript("tool", std::string(WaitForRelease) + R"(; echo done > "$0.out")");
    int calls = 0;
    whileRunning = [&] {
        if (++calls == 3) world.write("tool.release", "");
    };
    run("C:\\tool");
    EXPECT_GE(calls, 3);
    EXPECT_EQ(world.read("tool.out"), "done\n");
}

TEST_F(ProcessesTest, EndOfTheProgramLeavesTheChildToItself) {
    writeScript("tool", std::string(R"(echo > "$0.started"; )") + WaitForRelease +
                            R"(; echo done > "$0.out")");
    whileRunning = [&] {
        if (world.exists("tool.started")) throw ProgramEnded();
    };
    const std::ptrdiff_t before = openFiles();
    EXPECT_THROW(run("C:\\tool"), ProgramEnded);
    EXPECT_EQ(openFiles(), before);
    world.write("tool.release", "");
    EXPECT_GT(::waitpid(-1, nullptr, 0), 0);
    EXPECT_EQ(world.read("tool.out"), "done\n");
}

TEST_F(ProcessesTest, SystemThatForgetsOurChildrenDoesNotHoldUsUp) {
    writeScript("tool", R"(echo done > "$0.out")");
    const auto handler = ::signal(SIGCHLD, SIG_IGN);
    run("C:\\tool");
    ::signal(SIGCHLD, handler);
    EXPECT_EQ(world.read("tool.out"), "done\n");
}

// All the files that we may have open, so that there is none left for one more.
class NoMoreFiles {
  public:
    NoMoreFiles() {
        ::getrlimit(RLIMIT_NOFILE, &before_);
        const rlimit few = {64, before_.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &few);
        for (int file = 0; file != -1; file = ::open("/dev/null", O_RDONLY | O_CLOEXEC)) {
            if (file != 0) files_.push_back(file);
        }
    }
    NoMoreFiles(const NoMoreFiles&) = delete;
    NoMoreFiles& operator=(const NoMoreFiles&) = delete;
    ~NoMoreFiles() {
        for (const int file : files_) ::close(file);
        ::setrlimit(RLIMIT_NOFILE, &before_);
    }

  private:
    rlimit before_ = {};
    std::vector<int> files_;
};

// An old system denies a handle to wait on, too.
TEST_F(ProcessesTest, EndOfAChildIsNoticedWithoutAHandle) {
    writeScript("tool", std::string(WaitForRelease) + R"(; echo done > "$0.out")");
    std::optional<ChildProcess> child;
    {
        const NoMoreFiles full;
        child.emplace(ChildProcess::start({world.at("tool").native()}, Visibility::Hidden).value());
    }
    EXPECT_FALSE(child->endedWithin(std::chrono::milliseconds(5)));
    world.write("tool.release", "");
    while (!child->endedWithin(std::chrono::milliseconds(20))) {
    }
    EXPECT_EQ(world.read("tool.out"), "done\n");
    EXPECT_FALSE(hasChildren());
}

class WineTest : public test::ProgramFolder {
  protected:
    WineTest() { world.makeFolder("bin"); }
    void writeFakeWine() const {
        writeScript("bin/wine", std::string(NoteArguments) + R"(; echo "$WINEPREFIX" > "$0.out")");
    }
    std::string pathWithBin() const { return world.at("bin").native() + ":" + ::getenv("PATH"); }
};

TEST_F(WineTest, ProgramForWindowsGoesToWineWithItsArgumentsAsTheyStand) {
    writeFakeWine();
    const test::Environment path("PATH", pathWithBin());
    const test::Environment prefix("WINEPREFIX", "/some/prefix");
    world.write("UCC.exe", "MZ and more");
    world.write("Map.unr", "x");
    run("C:\\ucc.exe compress \"C:\\MAP.unr\" \"Z:\\a b\" x");
    EXPECT_EQ(argumentsIn(world.at("bin/wine.args")),
              (Arguments{"C:\\ucc.exe", "compress", "C:\\MAP.unr", "Z:\\a b", "x"}));
    EXPECT_EQ(world.read("bin/wine.out"), "/some/prefix\n");
}

TEST_F(WineTest, OtherProgramsDoNotGoThere) {
    writeFakeWine();
    const test::Environment path("PATH", pathWithBin());
    writeScript("ucc.exe", NoteArguments);
    world.write("short.exe", "M");
    run("C:\\ucc.exe x");
    run("C:\\short.exe x");
    run("C:\\missing.exe x");
    EXPECT_FALSE(world.exists("bin/wine.args"));
    EXPECT_EQ(argumentsIn(world.at("ucc.exe.args")), Arguments{"x"});
}

TEST_F(WineTest, WithoutWineAProgramForWindowsDoesNothing) {
    const test::Environment path("PATH", world.at("bin"));
    world.write("UCC.exe", "MZ and more");
    makeStartable("UCC.exe");
    EXPECT_NO_THROW(run("C:\\ucc.exe compress x"));
    EXPECT_FALSE(hasChildren());
}

TEST_F(WineTest, RealConsoleProgramRunsThroughRealWine) {
    if (std::system("command -v wine >/dev/null") != 0) GTEST_SKIP() << "Wine is not installed";
    const test::Environment prefix("WINEPREFIX", world.prefix());
    // Wine leaves menus in the one and its server's lock in the other.
    const test::Environment home("HOME", world.folder());
    const test::Environment temporary("TMPDIR", world.folder());
    const test::Environment quiet("WINEDLLOVERRIDES", "mscoree,mshtml=");
    const test::Environment silent("WINEDEBUG", "-all");
    if (std::system("wine wineboot -i >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "Wine is installed but cannot make a prefix here";
    run(R"(C:\Windows\System32\CMD.exe /c "echo %CD% [it's]> C:\out.txt")");
    EXPECT_EQ(world.read("out.txt"), "C:\\ [it's]\r\n");
    EXPECT_EQ(std::system("wineserver -w"), 0);
}

}  // namespace
}  // namespace tessaro
