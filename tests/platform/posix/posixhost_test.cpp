#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <map>
#include <random>

#include "platform/files/wholefile.h"
#include "platform/outside/systemversion.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/posixcopy.h"
#include "support/forkedchild.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::errorOf;
using test::TemporaryFolder;
using test::TestWorld;
using testing::UnorderedElementsAre;

struct Real {
    explicit Real(const HostPath& above = fs::temp_directory_path()) : folder(above) {}

    TemporaryFolder folder;
    std::unique_ptr<Host> host = makeHost();

    HostPath write(const char* name, std::string_view bytes = "") const {
        TestWorld::writeHost(folder.path() / name, bytes);
        return folder.path() / name;
    }
};

TEST(PosixHost, StatusTellsFilesFromFolders) {
    const Real real;
    const HostPath file = real.write("file", "12345");
    EXPECT_FALSE(real.host->status(file)->folder);
    EXPECT_EQ(real.host->status(file)->size, 5U);
    EXPECT_TRUE(real.host->status(real.folder.path())->folder);
    EXPECT_FALSE(real.host->status(real.folder.path() / "none"));
    EXPECT_FALSE(real.host->status(file / "below"));
}

TEST(PosixHost, APrivateFolderIsItsOwnersOnly) {
    const Real real;
    const HostPath folder = real.folder.path() / "private";
    real.host->makePrivateFolder(folder);
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
    EXPECT_NE(errorOf([&] { real.host->makePrivateFolder(folder); }), 0);
}

TEST(PosixHost, FilesCanBeMadeInAFolderThatIsOurs) {
    const Real real;
    EXPECT_TRUE(real.host->takesFiles(real.folder.path()));
    EXPECT_FALSE(real.host->takesFiles(real.folder.path() / "none"));
    EXPECT_FALSE(real.host->takesFiles(real.write("file")));
}

TEST(PosixHost, FilesCannotBeMadeInAFolderThatAnOrdinaryUserMayOnlyLookInto) {
    const Real real;
    const HostPath folder = real.folder.path() / "theirs";
    fs::create_directory(folder);
    fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                fs::perms::others_exec);
    test::ForkedChild child(
        [&] { return test::becomeOrdinaryUser() && !real.host->takesFiles(folder) ? 0 : 1; });
    EXPECT_EQ(child.exitCode(), 0);
}

TEST(PosixHost, ANameThatBeginsWithADotIsAnOrdinaryOne) {
    const Real real;
    EXPECT_FALSE(real.host->status(real.write(".dotted"))->hidden);
    EXPECT_FALSE(real.host->status(real.write("seen.txt"))->hidden);
}

TEST(PosixHost, WithoutAnyWriteBitAFileIsReadOnly) {
    const Real real;
    const HostPath file = real.write("file");
    EXPECT_TRUE(real.host->writable(file));
    fs::permissions(file, fs::perms(0444));
    EXPECT_TRUE(real.host->status(file)->readOnly);
    EXPECT_FALSE(real.host->writable(file));
    fs::permissions(file, fs::perms(0464));
    EXPECT_FALSE(real.host->status(file)->readOnly);
}

TEST(PosixHost, OneFileHasOneIdentityUnderTwoNames) {
    const Real real;
    const HostPath file = real.write("file");
    fs::create_hard_link(file, real.folder.path() / "twin");
    const auto one = real.host->status(file)->stamp;
    EXPECT_EQ(one, real.host->status(real.folder.path() / "twin")->stamp);
    EXPECT_NE(one.inode, real.host->status(real.write("other"))->stamp.inode);
}

TEST(PosixHost, AFoldersStampMovesWhenANameComes) {
    const Real real;
    const auto before = real.host->status(real.folder.path())->stamp;
    // The clock of the stamps may stand still for a moment, but not for long.
    for (int i = 0; i < 1'000'000 && real.host->status(real.folder.path())->stamp == before; ++i) {
        real.write("file");
        fs::remove(real.folder.path() / "file");
    }
    EXPECT_NE(real.host->status(real.folder.path())->stamp, before);
}

TEST(PosixHost, ListsWithoutDots) {
    const Real real;
    real.write("a");
    real.write(".b");
    EXPECT_THAT(real.host->list(real.folder.path()), UnorderedElementsAre("a", ".b"));
    EXPECT_EQ(errorOf([&] { real.host->list(real.folder.path() / "none"); }), errors::FileNotFound);
}

TEST(PosixHost, AListingTellsPlainFilesFromAllElse) {
    const Real real;
    const HostPath file = real.write("file");
    real.write(".hidden");
    fs::create_directory(real.folder.path() / "folder");
    fs::create_symlink(file, real.folder.path() / "link");
    ASSERT_EQ(::mkfifo((real.folder.path() / "pipe").c_str(), 0600), 0);
    std::map<std::string, bool> plain;
    for (const ListedName& each : real.host->listNames(real.folder.path()))
        plain[each.name] = each.plainFile;
    EXPECT_EQ(plain, (std::map<std::string, bool>{{"file", true},
                                                  {".hidden", true},
                                                  {"folder", false},
                                                  {"link", false},
                                                  {"pipe", false}}));
}

TEST(PosixHost, ANewFileTakesNoNameThatIsTaken) {
    const Real real;
    const HostPath file = real.write("file", "old");
    fs::create_symlink("gone", real.folder.path() / "link");
    for (const char* name : {"file", "link"})
        EXPECT_EQ(errorOf([&] { real.host->create(real.folder.path() / name, {})->close(); }),
                  errors::FileAlreadyExists);
    EXPECT_EQ(TestWorld::readHost(file), "old");
    EXPECT_THAT(real.host->list(real.folder.path()), UnorderedElementsAre("file", "link"));
}

TEST(PosixHost, ANewFileFollowsTheUsersMask) {
    const Real real;
    const mode_t old = ::umask(027);
    real.host->create(real.folder.path() / "new", {})->close();
    ::umask(old);
    EXPECT_EQ(fs::status(real.folder.path() / "new").permissions(), fs::perms(0640));
}

TEST(PosixHost, RootKeepsTheOwnerOfTheOldFile) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root may give files away";
    const Real real;
    const HostPath file = real.write("file");
    ASSERT_EQ(::chown(file.c_str(), 1234, 5678), 0);
    replaceFile(*real.host, file, "new");
    struct stat info = {};
    ASSERT_EQ(::stat(file.c_str(), &info), 0);
    EXPECT_EQ(info.st_uid, 1234U);
    EXPECT_EQ(info.st_gid, 5678U);
}

TEST(PosixHost, ANewFileThatIsNotClosedLeavesNothing) {
    const Real real;
    real.host->create(real.folder.path() / "new", {})->write("part");
    EXPECT_THAT(real.host->list(real.folder.path()), UnorderedElementsAre());
}

TEST(PosixHost, WhatIsWrittenOverAnOldFileEndsWhereTheNewBytesEnd) {
    const Real real;
    const HostPath file = real.write("file", "old and long");
    const auto writer = real.host->overwrite(file);
    writer->write("ne");
    writer->write("w");
    writer->close();
    EXPECT_EQ(TestWorld::readHost(file), "new");
    EXPECT_EQ(errorOf([&] { real.host->overwrite(real.folder.path() / "none"); }),
              errors::FileNotFound);
}

TEST(PosixHost, TellsUnderHowManyNamesAFileIsKnown) {
    const Real real;
    const HostPath file = real.write("file");
    EXPECT_EQ(real.host->status(file)->names, 1U);
    fs::create_hard_link(file, real.folder.path() / "twin");
    EXPECT_EQ(real.host->status(file)->names, 2U);
}

TEST(PosixHost, AFolderIsLockedForOneAtATime) {
    constexpr std::chrono::milliseconds now{0};
    const Real one;
    const Real other;
    auto lock = one.host->lock(one.folder.path(), now);
    EXPECT_TRUE(lock);
    EXPECT_FALSE(other.host->lock(one.folder.path(), now));
    EXPECT_FALSE(other.host->lock(one.folder.path(), std::chrono::milliseconds(1)));
    EXPECT_TRUE(other.host->lock(other.folder.path(), now));
    lock.reset();
    EXPECT_TRUE(other.host->lock(one.folder.path(), now));
    EXPECT_FALSE(other.host->lock(one.folder.path() / "none", std::chrono::hours(1)));
    EXPECT_THAT(one.host->list(one.folder.path()), UnorderedElementsAre());
}

TEST(PosixHost, TellsWhetherAFileIsBeingWritten) {
    constexpr std::chrono::milliseconds now{0};
    const Real real;
    const HostPath file = real.write("file", "old");
    EXPECT_TRUE(real.host->settles(file, now));
    EXPECT_TRUE(real.host->settles(real.folder.path() / "none", now));
    {
        const Descriptor reader(file, O_RDONLY);
        EXPECT_TRUE(real.host->settles(file, now));
        const Descriptor writer(file, O_RDWR);
        EXPECT_FALSE(real.host->settles(file, now));
        EXPECT_FALSE(real.host->settles(file, std::chrono::milliseconds(1)));
    }
    EXPECT_TRUE(real.host->settles(file, now));
    // Nothing is left in the way of one who does not want to wait.
    EXPECT_EQ(errorOf([&] { Descriptor(file, O_WRONLY | O_NONBLOCK); }), 0);
}

TEST(PosixHost, WhatMustNotBeLostIsKeptWhereEverybodyMayWrite) {
    const Real real;
    EXPECT_EQ(::access(real.host->keepingFolder().c_str(), W_OK | X_OK), 0);
}

TEST(PosixHost, AFullDeviceRaises61) {
    Descriptor full("/dev/full", O_WRONLY);
    EXPECT_EQ(errorOf([&] { full.write("x"); }), errors::DiskFull);
}

TEST(PosixHost, CopyingOntoAFullDeviceRaises61) {
    const Real real;
    Descriptor from(real.write("file", "bytes"), O_RDONLY);
    Descriptor full("/dev/full", O_WRONLY);
    EXPECT_EQ(errorOf([&] { copyContents(from, full); }), errors::DiskFull);
}

TEST(PosixHost, CopiesFilesWhoseSizeTheSystemDoesNotTell) {
    const Real real;
    replaceByCopy(*real.host, "/proc/self/status", real.folder.path() / "status");
    EXPECT_TRUE(TestWorld::readHost(real.folder.path() / "status").starts_with("Name:"));
    EXPECT_TRUE(real.host->read("/proc/self/status").starts_with("Name:"));
}

TEST(PosixHost, ALargeFileThatTheKernelDoesNotCopyIsCopiedWhole) {
    const char* symbols = "/proc/kallsyms";  // several megabytes on any kernel that has it
    if (::access(symbols, R_OK) != 0) GTEST_SKIP() << "the kernel keeps its symbols to itself";
    const Real real;
    const HostPath copy = real.folder.path() / "symbols";
    replaceByCopy(*real.host, symbols, copy);
    EXPECT_GT(fs::file_size(copy), 1'000'000U);
}

TEST(PosixHost, ReadingRefusesWhatHasNoEnd) {
    const Real real;
    const HostPath pipe = real.folder.path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(errorOf([&] { real.host->read(pipe); }), errors::PathFileAccess);
    EXPECT_EQ(errorOf([&] { real.host->read("/dev/zero"); }), errors::PathFileAccess);
    EXPECT_EQ(errorOf([&] { real.host->read(real.folder.path()); }), errors::PathFileAccess);
}

TEST(PosixHost, NoCallTakesANameWithANulForTheOneBeforeIt) {
    const Real real;
    Host& host = *real.host;
    const HostPath file = real.write("file", "old");
    const HostPath nul = file.native() + std::string("\0.u", 3);
    const HostPath folder = real.folder.path().native() + std::string("\0x", 2);
    fs::create_directory(real.folder.path() / "empty");
    const HostPath inside = (real.folder.path() / "fresh").native() + std::string("\0x", 2);
    const std::function<void()> calls[] = {
        [&] { host.list(folder); },
        [&] { host.hold(folder); },
        [&] { host.writable(nul); },
        [&] { host.read(nul); },
        [&] { host.create(inside, {}); },
        [&] { host.create(real.folder.path() / "new", nul); },
        [&] { host.create(real.folder.path() / "new", {})->copy(nul); },
        [&] { host.createCopy(inside, file); },
        [&] { host.createCopy(real.folder.path() / "new", nul); },
        [&] { host.overwrite(nul); },
        [&] { host.touch(inside); },
        [&] { host.rename(nul, real.folder.path() / "new"); },
        [&] { host.rename(file, inside); },
        [&] { host.flushFolder(folder); },
        [&] { host.removeFile(nul); },
        [&] { host.makeFolder(inside); },
        [&] { host.target(nul); },
        [&] { host.changeFolder(folder); },
    };
    for (const auto& call : calls) EXPECT_EQ(errorOf(call), errors::BadFileNumber) << &call - calls;
    EXPECT_FALSE(host.status(nul));
    EXPECT_TRUE(host.settles(nul, std::chrono::milliseconds(0)));
    EXPECT_FALSE(host.lock(folder, std::chrono::milliseconds(0)));
    EXPECT_THAT(host.list(real.folder.path()), UnorderedElementsAre("file", "empty"));
    EXPECT_EQ(TestWorld::readHost(file), "old");
}

TEST(PosixHost, TellsItsOwnFileAndSystem) {
    EXPECT_TRUE(fs::equivalent(executablePath(), "/proc/self/exe"));
    const auto version = systemVersion();
    ASSERT_TRUE(version);
    EXPECT_GT(version->platform, 2);
    EXPECT_GT(version->major, 0);
    EXPECT_FALSE(version->name.empty());
}

const std::string oneText(50'000, '1');
const std::string otherText(120'000, '2');
constexpr char turnBegins = 'b';
constexpr char turnEnds = 'e';

// Rewrites a file without end, with the one text and the other in turn, and reports when each turn
// begins and ends.
[[noreturn]] void rewriteForever(const HostPath& file, int progress) {
    const auto host = makeHost();
    for (;;) {
        for (const std::string& text : {oneText, otherText}) {
            if (::write(progress, &turnBegins, 1) != 1) ::_exit(1);
            replaceFile(*host, file, text);
            if (::write(progress, &turnEnds, 1) != 1) ::_exit(1);
        }
    }
}

// Kills the rewriting process some way behind its `turns`th turn: as far as `calls` idle calls of
// ours take it. Tells whether that was in the middle of a turn.
bool killAfter(const HostPath& file, int turns, int calls) {
    int ends[2] = {};
    EXPECT_EQ(::pipe(ends), 0);
    const pid_t child = ::fork();
    if (child == 0) rewriteForever(file, ends[1]);
    ::close(ends[1]);
    char byte = 0;
    for (int report = 0; report < 2 * turns; ++report) EXPECT_EQ(::read(ends[0], &byte, 1), 1);
    for (int call = 0; call < calls; ++call) ::getppid();
    EXPECT_EQ(::kill(child, SIGKILL), 0);
    EXPECT_EQ(::waitpid(child, nullptr, 0), child);
    while (::read(ends[0], &byte, 1) == 1) continue;
    ::close(ends[0]);
    return byte == turnBegins;
}

TEST(PosixHost, AKilledWriterLeavesTheOneTextOrTheOtherAndNothingBeside) {
    const Real real(test::inMemory());
    const HostPath file = real.write("user.ini", oneText);
    std::minstd_rand chance(20);
    std::uniform_int_distribution<int> turns(1, 3);
    std::uniform_int_distribution<int> calls(0, 2'000);
    int inTheMiddle = 0;
    int leftBeside = 0;
    // How many hit the middle is the machine's affair: it goes on until enough have.
    for (int kill = 0; inTheMiddle <= 20 || kill < 200; ++kill) {
        ASSERT_LT(kill, 5'000) << inTheMiddle << " in the middle";
        if (killAfter(file, turns(chance), calls(chance))) ++inTheMiddle;
        const std::string text = TestWorld::readHost(file);
        ASSERT_TRUE(text == oneText || text == otherText) << "kill " << kill;
        // A whole file may wait for its rename, and goes with the next write.
        if (TestWorld::namesIn(real.folder.path()).size() > 1) ++leftBeside;
        replaceFile(*real.host, file, oneText);
        ASSERT_TRUE(TestWorld::readHost(file) == oneText);
        ASSERT_THAT(TestWorld::namesIn(real.folder.path()), testing::ElementsAre("user.ini"));
    }
    EXPECT_LT(leftBeside, inTheMiddle);
}

}  // namespace
}  // namespace tessaro
