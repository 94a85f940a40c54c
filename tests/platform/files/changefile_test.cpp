// A file that other programs write too while it is read, changed and replaced.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <functional>

#include "platform/files/wholefile.h"
#include "support/forkedchild.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::Call;
using test::errorOf;
using test::FailingHost;
using test::ForkedChild;
using test::TestWorld;
using testing::ElementsAre;

// Another program that writes a file in place, a piece at a time.
class Writer {
  public:
    Writer(const HostPath& file, int flags) : fd_(::open(file.c_str(), O_WRONLY | flags)) {}
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    ~Writer() { close(); }
    bool write(std::string_view bytes) const {
        return ::write(fd_, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    }
    void close() {
        if (fd_ != -1) ::close(std::exchange(fd_, -1));
    }

  private:
    int fd_;
};

// Where ours would wait for the other program, the other program goes on.
class WaitingHost : public FailingHost {
  public:
    using FailingHost::FailingHost;
    bool settles(const HostPath& file, std::chrono::milliseconds patience) override {
        const bool settled = FailingHost::settles(file, std::chrono::milliseconds(0));
        if (settled || patience.count() == 0) return settled;
        ++waits;
        if (meanwhile) meanwhile();
        return FailingHost::settles(file, std::chrono::milliseconds(0));
    }
    int waits = 0;
    std::function<void()> meanwhile;
};

struct Changing : TestWorld {
    Changing() : waiting(host) { write("C:\\s\\file.ini", "old"); }
    HostPath file() const { return at("C:\\s\\file.ini"); }
    // Adds "+ours"; `first` happens between the first reading and the writing.
    void change(const std::function<void()>& first = {}) {
        changeFile(waiting, file(), [&](std::string_view bytes) {
            if (++readings == 1 && first) first();
            return std::optional(std::string(bytes) + "+ours");
        });
    }
    std::string now() const { return read("C:\\s\\file.ini"); }
    WaitingHost waiting;
    int readings = 0;
};

TEST(ChangeFile, ChangesWhatTheFileHolds) {
    Changing world;
    world.change();
    EXPECT_EQ(world.now(), "old+ours");
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("file.ini"));
    EXPECT_EQ(world.waiting.waits, 0);
}

TEST(ChangeFile, AMissingFileIsAnEmptyOne) {
    Changing world;
    fs::remove(world.file());
    world.change();
    EXPECT_EQ(world.now(), "+ours");
}

TEST(ChangeFile, NothingToChangeTouchesNothing) {
    Changing world;
    for (const char* name : {"file.ini", "none.ini"})
        changeFile(world.host, world.at("C:\\s") / name,
                   [](std::string_view) { return std::optional<std::string>(); });
    EXPECT_EQ(world.host.count(Call::Create), 0);
    EXPECT_EQ(world.now(), "old");
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("file.ini"));
}

TEST(ChangeFile, RaisesWhatReadingAndReplacingRaise) {
    Changing world;
    const auto errorFor = [&](const HostPath& file) {
        return errorOf([&] {
            changeFile(world.host, file, [](std::string_view) { return std::optional("x"); });
        });
    };
    EXPECT_EQ(errorFor(world.at("C:\\no\\file.ini")), errors::PathNotFound);
    EXPECT_EQ(errorOf([&] {
                  changeFile(world.host, world.at("C:\\no\\file.ini"),
                             [](std::string_view) { return std::optional<std::string>(); });
              }),
              errors::PathNotFound);
    EXPECT_EQ(errorFor(world.at("C:\\s")), errors::PathFileAccess);
    fs::permissions(world.file(), fs::perms(0444));
    EXPECT_EQ(errorFor(world.file()), errors::PathFileAccess);
    EXPECT_EQ(world.now(), "old");
}

TEST(ChangeFile, WhatAnotherProgramWroteMeanwhileIsKept) {
    Changing world;
    world.change([&] { world.write("C:\\s\\file.ini", "theirs"); });
    EXPECT_EQ(world.now(), "theirs+ours");
    EXPECT_EQ(world.readings, 2);
}

TEST(ChangeFile, AFileThatAnotherProgramReplacedRemovedOrMadeMeanwhileIsTakenAsItIs) {
    Changing world;
    world.write("C:\\s\\beside", "theirs");
    world.change([&] { fs::rename(world.at("C:\\s\\beside"), world.file()); });
    EXPECT_EQ(world.now(), "theirs+ours");
    world.readings = 0;
    world.change([&] { fs::remove(world.file()); });
    EXPECT_EQ(world.now(), "+ours");
    fs::remove(world.file());
    world.readings = 0;
    world.change([&] { world.write("C:\\s\\file.ini", ""); });
    EXPECT_EQ(world.now(), "+ours");
    EXPECT_EQ(world.readings, 2);
}

TEST(ChangeFile, AFileThatIsBeingWrittenInPlaceIsWaitedFor) {
    Changing world;
    Writer theirs(world.file(), O_TRUNC);
    ASSERT_TRUE(theirs.write("first half,"));
    world.waiting.meanwhile = [&] {
        theirs.write("second half");
        theirs.close();
    };
    world.change();
    EXPECT_EQ(world.now(), "first half,second half+ours");
    EXPECT_EQ(world.waiting.waits, 1);
}

TEST(ChangeFile, AWriterThatComesBetweenReadingAndRenamingIsWaitedFor) {
    Changing world;
    std::optional<Writer> theirs;
    world.waiting.meanwhile = [&] {
        theirs->write("theirs");
        theirs->close();
    };
    world.change([&] { theirs.emplace(world.file(), 0); });
    EXPECT_EQ(world.now(), "theirs+ours");
    EXPECT_EQ(world.readings, 2);
}

TEST(ChangeFile, AWriterThatDoesNotComeToAnEndMakesTheCallFail) {
    Changing world;
    const Writer theirs(world.file(), 0);
    EXPECT_EQ(errorOf([&] { world.change(); }), errors::PermissionDenied);
    EXPECT_EQ(world.readings, 0);
    EXPECT_EQ(world.now(), "old");
}

TEST(ChangeFile, AFileThatNeverStaysAsItWasReadMakesTheCallFail) {
    Changing world;
    int readings = 0;
    const auto change = [&](std::string_view bytes) {
        world.write("C:\\s\\file.ini", "theirs" + std::to_string(++readings));
        return std::optional(std::string(bytes));
    };
    EXPECT_EQ(errorOf([&] { changeFile(world.host, world.file(), change); }),
              errors::PermissionDenied);
    EXPECT_EQ(world.now(), "theirs" + std::to_string(readings));
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("file.ini"));
}

TEST(ChangeFile, WithoutALockTheLastLookRemains) {
    Changing world;
    const auto lock = makeHost()->lock(world.at("C:\\s"), std::chrono::milliseconds(0));
    ASSERT_TRUE(lock);
    class Impatient : public FailingHost {
      public:
        using FailingHost::FailingHost;
        std::unique_ptr<FolderLock> lock(const HostPath& folder,
                                         std::chrono::milliseconds) override {
            return FailingHost::lock(folder, std::chrono::milliseconds(0));
        }
    } host(world.host);
    int readings = 0;
    changeFile(host, world.file(), [&](std::string_view bytes) {
        if (++readings == 1) world.write("C:\\s\\file.ini", "theirs");
        return std::optional(std::string(bytes) + "+ours");
    });
    EXPECT_EQ(world.now(), "theirs+ours");
}

constexpr std::string_view textEnd = "end=1\n";

// Takes longer than one of our changes.
void dawdle() {
    for (int call = 0; call < 3'000; ++call) ::getppid();
}

// Rewrites the file in place again and again, in two halves.
int rewriteInPlace(const HostPath& file) {
    for (int round = 0; round < 100; ++round, dawdle()) {
        Writer writer(file, O_TRUNC);
        if (!writer.write("[s]\nround=" + std::to_string(round) + "\n")) return 1;
        dawdle();
        if (!writer.write(textEnd)) return 1;
    }
    return 0;
}

TEST(ChangeFile, NoHalfOfAFileThatIsWrittenInPlaceIsEverMadeFinal) {
    const test::TemporaryFolder folder(test::inMemory());
    const HostPath file = folder.path() / "user.ini";
    TestWorld::writeHost(file, textEnd);
    const auto host = makeHost();
    ForkedChild theirs([&] { return rewriteInPlace(file); });
    int cut = 0;
    const auto changeOnce = [&] {
        std::string read;
        const bool made = attempt([&] {
            changeFile(*host, file, [&](std::string_view bytes) {
                read = bytes;
                return std::optional(read + "ours=1\n");
            });
        });
        if (made && read.find(textEnd) == std::string::npos) ++cut;
        return made;
    };
    while (::waitpid(theirs.pid(), nullptr, WNOHANG) == 0) changeOnce();
    EXPECT_TRUE(changeOnce());
    EXPECT_EQ(cut, 0);
}

}  // namespace
}  // namespace tessaro
