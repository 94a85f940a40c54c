// What may happen to a watched file, or to the way to it, each in a temporary folder of its own.

#include "platform/posix/filewatch.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "support/forkedchild.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::ForkedChild;
using test::TestWorld;

// In the folder: `game/user.ini`, reached through `link` too, and `other.ini` elsewhere.
class FileWatchTest : public testing::Test {
  protected:
    FileWatchTest() {
        TestWorld::writeHost(file, "[s]\nk=1\n");
        TestWorld::writeHost(at("elsewhere/other.ini"), "[s]\nk=2\n");
        fs::create_directory_symlink("game", at("link"));
    }
    void SetUp() override {
        if (!readWatched(file)) GTEST_SKIP() << "nobody tells of changes on this disk";
    }

    HostPath at(const std::string& name) const { return folder.path() / name; }
    std::unique_ptr<FileWatch> readWatched(const HostPath& path) const {
        return host->readWatched(path).watch;
    }
    // Whether a watch over the file ends by this.
    template <class Event>
    bool endsBy(Event&& event) const {
        return endsAt(file, event);
    }
    template <class Event>
    bool endsAt(const HostPath& path, Event&& event) const {
        const auto watch = readWatched(path);
        if (!watch || !watch->quiet()) ADD_FAILURE() << "no watch";
        event();
        const bool ended = watch && !watch->quiet();
        EXPECT_EQ(watch && watch->quiet(), !ended) << "a watch that has ended goes on";
        return ended;
    }

    test::TemporaryFolder folder;
    HostPath file = at("game/user.ini");
    std::unique_ptr<Host> host = makeHost();
};

// Puts a byte into the file through a descriptor, and back the stamps that can be set.
void poke(int opened) {
    struct stat before = {};
    ASSERT_EQ(::fstat(opened, &before), 0);
    ASSERT_EQ(::pwrite(opened, "9", 1, 6), 1);
    const timespec stamps[] = {before.st_atim, before.st_mtim};
    ASSERT_EQ(::futimens(opened, stamps), 0);
}

class OpenedFile {
  public:
    OpenedFile(const HostPath& path, int flags) : opened_(::open(path.c_str(), flags)) {}
    ~OpenedFile() { ::close(opened_); }
    OpenedFile(const OpenedFile&) = delete;
    OpenedFile& operator=(const OpenedFile&) = delete;
    int get() const { return opened_; }

  private:
    int opened_;
};

// The file in memory. The descriptor is closed, as a program may do that has mapped it.
class Mapped {
  public:
    explicit Mapped(const HostPath& path) {
        const OpenedFile file(path, O_RDWR);
        void* memory = ::mmap(nullptr, 8, PROT_READ | PROT_WRITE, MAP_SHARED, file.get(), 0);
        bytes_ = memory == MAP_FAILED ? nullptr : static_cast<char*>(memory);
    }
    ~Mapped() { ::munmap(bytes_, 8); }
    Mapped(const Mapped&) = delete;
    Mapped& operator=(const Mapped&) = delete;
    void store(char byte) { bytes_[6] = byte; }

  private:
    char* bytes_;
};

TEST_F(FileWatchTest, GoesOnWhileNothingHappens) {
    const auto read = host->readWatched(file);
    EXPECT_EQ(read.bytes, "[s]\nk=1\n");
    EXPECT_FALSE(endsBy([] {}));
    EXPECT_FALSE(endsBy([this] { EXPECT_TRUE(fs::exists(file)); }));
    EXPECT_FALSE(endsBy([this] { EXPECT_FALSE(fs::exists(at("game/none"))); }));
    EXPECT_FALSE(endsBy([this] { TestWorld::writeHost(at("elsewhere/third"), ""); }));
    EXPECT_FALSE(endsBy([this] { TestWorld::readHost(at("elsewhere/other.ini")); }));
}

TEST_F(FileWatchTest, EndsWhenTheFileIsWrittenWithTheSameSizeAndStamps) {
    EXPECT_TRUE(endsBy([this] { poke(OpenedFile(file, O_WRONLY).get()); }));
    fs::create_hard_link(file, at("elsewhere/twin"));
    EXPECT_TRUE(endsBy([this] { poke(OpenedFile(at("elsewhere/twin"), O_WRONLY).get()); }));
}

TEST_F(FileWatchTest, EndsWhenTheFileIsCutOrGrown) {
    EXPECT_TRUE(endsBy([this] { fs::resize_file(file, 3); }));
    EXPECT_TRUE(endsBy([this] { fs::resize_file(file, 9); }));
    EXPECT_TRUE(endsBy([this] { OpenedFile(file, O_WRONLY | O_TRUNC); }));
}

TEST_F(FileWatchTest, EndsBeforeAMappedFileChanges) {
    EXPECT_TRUE(endsBy([this] { Mapped(file).store('9'); }));
}

TEST_F(FileWatchTest, EndsWhenTheFileIsReplacedMovedOrDeleted) {
    EXPECT_TRUE(endsBy([this] { fs::rename(at("elsewhere/other.ini"), file); }));
    EXPECT_TRUE(endsBy([this] { fs::rename(file, at("elsewhere/moved")); }));
    TestWorld::writeHost(file, "");
    EXPECT_TRUE(endsBy([this] { fs::remove(file); }));
}

TEST_F(FileWatchTest, EndsWhenRightsChange) {
    EXPECT_TRUE(endsBy([this] { fs::permissions(file, fs::perms::owner_read); }));
    EXPECT_TRUE(endsBy([this] { fs::permissions(at("game"), fs::perms::owner_all); }));
}

TEST_F(FileWatchTest, EndsWhenANameThatDiffersInCaseOnlyComesOrGoes) {
    EXPECT_TRUE(endsBy([this] { TestWorld::writeHost(at("game/USER.ini"), ""); }));
    EXPECT_TRUE(endsBy([this] { fs::remove(at("game/USER.ini")); }));
    EXPECT_TRUE(endsBy([this] { fs::rename(at("elsewhere/other.ini"), at("game/User.INI")); }));
    EXPECT_TRUE(endsBy([this] { fs::rename(at("game/User.INI"), at("game/other.ini")); }));
    EXPECT_TRUE(endsBy([this] { fs::create_directory(at("Game")); }));
}

TEST_F(FileWatchTest, EndsWhenANameOfOtherCaseWithAStandInComes) {
    const HostPath odd = at("game/a*.ini");
    TestWorld::writeHost(odd, "");
    EXPECT_FALSE(endsAt(odd, [] {}));
    EXPECT_TRUE(endsAt(odd, [this] { TestWorld::writeHost(at("game/A*.ini"), ""); }));
}

TEST_F(FileWatchTest, OtherNamesOnTheWayMayComeAndGo) {
    EXPECT_FALSE(endsBy([this] { TestWorld::writeHost(at("game/user.ini.bak"), ""); }));
    EXPECT_FALSE(endsBy([this] { fs::rename(at("game/user.ini.bak"), at("game/users.ini")); }));
    EXPECT_FALSE(endsBy([this] { fs::create_directory(at("games")); }));
    EXPECT_FALSE(endsBy([this] {
        for (int i = 0; i < 500; ++i) TestWorld::writeHost(at("game/log" + std::to_string(i)), "");
    }));
    EXPECT_TRUE(endsBy([this] {
        for (int i = 0; i < 500; ++i) fs::remove(at("game/log" + std::to_string(i)));
        fs::remove(file);
    }));
}

TEST_F(FileWatchTest, EndsWhenAFolderAboveMoves) {
    EXPECT_TRUE(endsBy([this] { fs::rename(at("game"), at("games")); }));
    fs::rename(at("games"), at("game"));
    EXPECT_TRUE(endsBy([this] {
        fs::rename(folder.path(), folder.path().string() + "-moved");
        fs::rename(folder.path().string() + "-moved", folder.path());
    }));
}

TEST_F(FileWatchTest, EndsWhenALinkOnTheWayLeadsElsewhere) {
    const HostPath linked = at("link/user.ini");
    EXPECT_FALSE(endsAt(linked, [] {}));
    EXPECT_TRUE(endsAt(linked, [this] {
        fs::create_directory_symlink("elsewhere", at("link2"));
        fs::rename(at("link2"), at("link"));
    }));
}

TEST_F(FileWatchTest, EndsWhenALinkBehindALinkLeadsElsewhere) {
    fs::create_symlink("../elsewhere/second", at("game/first"));
    fs::create_symlink(file, at("elsewhere/second"));
    EXPECT_FALSE(endsAt(at("game/first"), [] {}));
    EXPECT_TRUE(endsAt(at("game/first"), [this] { fs::remove(at("elsewhere/second")); }));
}

TEST_F(FileWatchTest, EndsWhenTheFileBehindALinkIsWritten) {
    fs::create_symlink("../game/./user.ini", at("elsewhere/first"));
    EXPECT_TRUE(endsAt(at("elsewhere/first"), [this] { poke(OpenedFile(file, O_WRONLY).get()); }));
}

// In a child that has mounts of its own.
TEST_F(FileWatchTest, EndsWhenADiskIsMountedOnTheWay) {
    constexpr int refused = 77;
    ForkedChild child([this] {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return refused;
        if (::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return refused;
        const auto watch = readWatched(file);
        if (!watch || !watch->quiet()) return 1;
        if (::mount("none", at("game").c_str(), "tmpfs", 0, nullptr) != 0) return refused;
        return watch->quiet() ? 2 : 0;
    });
    const int result = child.exitCode();
    if (result == refused) GTEST_SKIP() << "the system lets us mount nothing";
    EXPECT_EQ(result, 0);
}

TEST_F(FileWatchTest, EndsWhenTheNextBegins) {
    const auto first = readWatched(file);
    const auto second = readWatched(at("elsewhere/other.ini"));
    EXPECT_FALSE(first->quiet());
    EXPECT_TRUE(second->quiet());
    const auto third = readWatched(file);
    EXPECT_FALSE(second->quiet());
    EXPECT_TRUE(third->quiet());
}

TEST_F(FileWatchTest, EndsByWhatAnotherProcessDoes) {
    EXPECT_TRUE(endsBy([this] {
        ForkedChild([this] {
            const auto own = readWatched(at("elsewhere/other.ini"));
            poke(OpenedFile(file, O_WRONLY).get());
            return own && readWatched(file) ? 0 : 1;
        });
    }));
}

TEST_F(FileWatchTest, ThereIsNoneWhileSomebodyHasTheFileOpenForWriting) {
    {
        const OpenedFile writer(file, O_WRONLY);
        EXPECT_EQ(readWatched(file), nullptr);
    }
    EXPECT_NE(readWatched(file), nullptr);
    const OpenedFile reader(file, O_RDONLY);
    EXPECT_NE(readWatched(file), nullptr);
}

TEST_F(FileWatchTest, ThereIsNoneWhileSomebodyHasTheFileMapped) {
    {
        const Mapped mapped(file);
        EXPECT_EQ(readWatched(file), nullptr);
    }
    EXPECT_NE(readWatched(file), nullptr);
}

TEST_F(FileWatchTest, ThereIsNoneWhereTheSystemDoesNotTellOfAllChanges) {
    EXPECT_EQ(readWatched("/proc/self/status"), nullptr);
    EXPECT_NE(host->readWatched("/proc/self/status").bytes, "");
}

TEST_F(FileWatchTest, AMissingFileRaisesWhatReadingRaises) {
    EXPECT_EQ(test::errorOf([this] { host->readWatched(at("none")); }), errors::FileNotFound);
    EXPECT_EQ(test::errorOf([this] { host->readWatched(at("game")); }), errors::PathFileAccess);
}

// The child lends the file to itself, and gives it back when the system says that somebody waits.
TEST_F(FileWatchTest, ABorrowedFileIsWaitedFor) {
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    ForkedChild holder([&] {
        sigset_t waiting;
        ::sigemptyset(&waiting);
        ::sigaddset(&waiting, SIGIO);
        ::sigprocmask(SIG_BLOCK, &waiting, nullptr);
        const OpenedFile borrowed(file, O_RDONLY);
        if (::fcntl(borrowed.get(), F_SETLEASE, F_RDLCK) != 0) return 1;
        if (::write(ready[1], "r", 1) != 1) return 2;
        int signal = 0;
        if (::sigwait(&waiting, &signal) != 0) return 3;
        return ::fcntl(borrowed.get(), F_SETLEASE, F_UNLCK);
    });
    char answer = 0;
    ASSERT_EQ(::read(ready[0], &answer, 1), 1);
    host->touch(file);
    EXPECT_EQ(holder.exitCode(), 0);
    ::close(ready[0]);
    ::close(ready[1]);
}

}  // namespace
}  // namespace tessaro
