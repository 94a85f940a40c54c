#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <random>

#include "platform/files/wholefile.h"
#include "platform/outside/systemversion.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/posixcopy.h"
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

TEST(PosixHost, ANameThatBeginsWithADotIsHidden) {
    const Real real;
    EXPECT_TRUE(real.host->status(real.write(".hidden"))->hidden);
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

TEST(PosixHost, ListsFilesApartFromFoldersAndFollowsLinksForThat) {
    const Real real;
    const HostPath folder = real.folder.path();
    const HostPath file = real.write("file");
    real.write(".hidden");
    real.write("below/inside");
    fs::create_symlink(file, folder / "link");
    fs::create_directory_symlink(folder / "below", folder / "folderlink");
    fs::create_symlink(folder / "none", folder / "broken");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_THAT(real.host->listFiles(folder),
                UnorderedElementsAre("file", ".hidden", "link", "pipe"));
    test::FailingHost untold(*real.host);  // has to ask for each
    EXPECT_THAT(untold.listFiles(folder), UnorderedElementsAre("file", ".hidden", "link", "pipe"));
    EXPECT_EQ(errorOf([&] { real.host->listFiles(folder / "none"); }), errors::FileNotFound);
}

TEST(PosixHost, CreateRefusesANameThatIsTaken) {
    const Real real;
    const HostPath file = real.write("file", "old");
    EXPECT_EQ(errorOf([&] { real.host->create(file, {}); }), errors::FileAlreadyExists);
    fs::create_symlink("gone", real.folder.path() / "link");
    EXPECT_EQ(errorOf([&] { real.host->create(real.folder.path() / "link", {}); }),
              errors::FileAlreadyExists);
    EXPECT_EQ(TestWorld::readHost(file), "old");
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

TEST(PosixHost, AWriterThatIsDroppedLeavesWhatItWrote) {
    const Real real;
    real.host->create(real.folder.path() / "new", {})->write("part");
    EXPECT_EQ(TestWorld::readHost(real.folder.path() / "new"), "part");
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
    real.host->copy("/proc/self/status", real.folder.path() / "status", {});
    EXPECT_TRUE(TestWorld::readHost(real.folder.path() / "status").starts_with("Name:"));
    EXPECT_TRUE(real.host->read("/proc/self/status").starts_with("Name:"));
}

TEST(PosixHost, ReadingRefusesWhatHasNoEnd) {
    const Real real;
    const HostPath pipe = real.folder.path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(errorOf([&] { real.host->read(pipe); }), errors::PathFileAccess);
    EXPECT_EQ(errorOf([&] { real.host->read("/dev/zero"); }), errors::PathFileAccess);
    EXPECT_EQ(errorOf([&] { real.host->read(real.folder.path()); }), errors::PathFileAccess);
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

// Rewrites a file without end, with the one text and the other in turn, and reports each turn by a
// byte.
[[noreturn]] void rewriteForever(const HostPath& file, int progress) {
    const auto host = makeHost();
    for (;;) {
        for (const std::string& text : {oneText, otherText}) {
            replaceFile(*host, file, text);
            if (::write(progress, "", 1) != 1) ::_exit(1);
        }
    }
}

// Kills the rewriting process some way behind its `turns`th turn: as far as `calls` idle calls of
// ours take it.
void killAfter(const HostPath& file, int turns, int calls) {
    int ends[2] = {};
    ASSERT_EQ(::pipe(ends), 0);
    const pid_t child = ::fork();
    ASSERT_NE(child, -1);
    if (child == 0) rewriteForever(file, ends[1]);
    ::close(ends[1]);
    char byte = 0;
    for (int turn = 0; turn < turns; ++turn) ASSERT_EQ(::read(ends[0], &byte, 1), 1);
    for (int call = 0; call < calls; ++call) ::getppid();
    ASSERT_EQ(::kill(child, SIGKILL), 0);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    ::close(ends[0]);
}

// Where flushing costs nothing, if there is such a place: hundreds of files are written.
HostPath inMemory() {
    const HostPath shared = "/dev/shm";
    return ::access(shared.c_str(), W_OK | X_OK) == 0 ? shared : fs::temp_directory_path();
}

TEST(PosixHost, AKilledWriterLeavesTheOneTextOrTheOther) {
    const Real real(inMemory());
    const HostPath file = real.write("user.ini", oneText);
    std::minstd_rand chance(20);
    std::uniform_int_distribution<int> turns(1, 3);
    std::uniform_int_distribution<int> calls(0, 2'000);
    for (int kill = 0; kill < 200; ++kill) {
        killAfter(file, turns(chance), calls(chance));
        if (HasFatalFailure()) return;
        const std::string text = TestWorld::readHost(file);
        ASSERT_TRUE(text == oneText || text == otherText) << "kill " << kill;
        replaceFile(*real.host, file, oneText);
        ASSERT_TRUE(TestWorld::readHost(file) == oneText);
    }
    // Proof that some kills struck in the middle of a write.
    EXPECT_GT(TestWorld::namesIn(real.folder.path()).size(), 1U);
}

}  // namespace
}  // namespace tessaro
