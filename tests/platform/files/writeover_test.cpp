// Files that a rename cannot replace, since what they are would be lost or the system forbids it.

#include <gmock/gmock.h>

#include <filesystem>

#include "platform/files/wholefile.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::Call;
using test::errorOf;
using test::FailingHost;
using test::TestWorld;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const std::string written(1000, 'n');

// Keeps its copies in a folder of the test, and shows what lies there while a file is written over.
class WatchedHost : public FailingHost {
  public:
    WatchedHost(Host& real, HostPath keeping) : FailingHost(real), keeping_(std::move(keeping)) {}
    HostPath keepingFolder() override { return keeping_; }
    std::unique_ptr<HostWriter> overwrite(const HostPath& file) override {
        for (const HostPath& folder : {keeping_, file.parent_path()}) {
            for (const std::string& name : TestWorld::namesIn(folder)) {
                if (folder / name != file) kept.push_back(TestWorld::readHost(folder / name));
            }
        }
        if (failures > 0 && failures-- > 0) throw RunTimeError(errors::DeviceIo);
        return FailingHost::overwrite(file);
    }
    int failures = 0;
    std::vector<std::string> kept;

  private:
    HostPath keeping_;
};

// C:\s\file.ini holds "old" and is C:\other\name too.
struct TwoNames : TestWorld {
    TwoNames() : watched((makeFolder("C:\\kept"), host), at("C:\\kept")) {
        write("C:\\s\\file.ini", "old");
        makeFolder("C:\\other");
        fs::create_hard_link(file(), at("C:\\other\\name"));
    }
    HostPath file() const { return at("C:\\s\\file.ini"); }
    int replaceError() {
        return errorOf([&] { replaceFile(watched, file(), written); });
    }
    void expectEverywhere(const std::string& bytes) const {
        EXPECT_EQ(read("C:\\s\\file.ini"), bytes);
        EXPECT_EQ(read("C:\\other\\name"), bytes);
        EXPECT_TRUE(fs::equivalent(file(), at("C:\\other\\name")));
        EXPECT_THAT(names("C:\\s"), ElementsAre("file.ini"));
        EXPECT_THAT(names("C:\\kept"), IsEmpty());
    }
    WatchedHost watched;
};

TEST(WriteOver, AFileWithTwoNamesKeepsBoth) {
    TwoNames world;
    EXPECT_EQ(world.replaceError(), 0);
    world.expectEverywhere(written);
    EXPECT_THAT(world.watched.kept, ElementsAre("old"));
    replaceFile(world.watched, world.file(), "short");
    world.expectEverywhere("short");
    changeFile(world.watched, world.file(),
               [](std::string_view bytes) { return std::optional(std::string(bytes) + "er"); });
    world.expectEverywhere("shorter");
    world.write("C:\\from", written);
    replaceByCopy(world.watched, world.at("C:\\from"), world.file());
    world.expectEverywhere(written);
}

TEST(WriteOver, AFailureOnTheWayPutsTheOldBytesBack) {
    TwoNames world;
    for (const std::size_t space : {3U, 500U, 999U}) {
        world.watched.setDiskSpace(space);
        EXPECT_EQ(world.replaceError(), errors::DiskFull);
        world.watched.relent();
        world.expectEverywhere("old");
    }
    world.watched.failures = 1;
    EXPECT_EQ(world.replaceError(), errors::DeviceIo);
    world.expectEverywhere("old");
    world.watched.refuse(Call::Close, errors::DeviceIo, "file.ini");
    EXPECT_EQ(world.replaceError(), errors::DeviceIo);
}

TEST(WriteOver, WithoutACopyOfTheOldFileNothingIsWritten) {
    TwoNames world;
    world.watched.setDiskSpace(2);
    EXPECT_EQ(world.replaceError(), errors::DiskFull);
    EXPECT_EQ(world.watched.count(Call::Overwrite), 0);
    world.expectEverywhere("old");
}

TEST(WriteOver, OldBytesThatCannotBePutBackStayInTheCopyAndTheErrorTellsWhere) {
    TwoNames world;
    world.watched.failures = 2;
    std::string told;
    try {
        replaceFile(world.watched, world.file(), written);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), errors::DeviceIo);
        told = error.detail();
    }
    const auto names = world.names("C:\\s");
    ASSERT_THAT(names, SizeIs(2));
    EXPECT_TRUE(names[1].starts_with("file.ini."));
    EXPECT_EQ(world.read("C:\\s\\" + names[1]), "old");
    EXPECT_NE(told.find(names[1]), std::string::npos);
}

TEST(WriteOver, WhereNothingCanBeMadeBesideTheCopyLiesElsewhere) {
    for (const int number : {errors::PermissionDenied, errors::PathFileAccess}) {
        TwoNames world;
        fs::remove(world.at("C:\\other\\name"));
        world.watched.refuse(Call::Create, number, "/s/");
        EXPECT_EQ(world.replaceError(), 0);
        EXPECT_EQ(world.read("C:\\s\\file.ini"), written);
        EXPECT_THAT(world.watched.kept, ElementsAre("old"));
        EXPECT_THAT(world.names("C:\\kept"), IsEmpty());
    }
}

TEST(WriteOver, WhereTheRenameIsForbiddenTheFileIsWrittenOver) {
    TwoNames world;
    fs::remove(world.at("C:\\other\\name"));
    world.watched.refuse(Call::Rename, errors::PermissionDenied);
    EXPECT_EQ(world.replaceError(), 0);
    EXPECT_EQ(world.read("C:\\s\\file.ini"), written);
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("file.ini"));
    EXPECT_THAT(world.watched.kept, ElementsAre("old"));
}

TEST(WriteOver, AFileThatChangedMeanwhileIsNotWrittenOver) {
    TwoNames world;
    int calls = 0;
    changeFile(world.watched, world.file(), [&](std::string_view bytes) {
        if (++calls == 1) world.write("C:\\other\\name", "theirs");
        return std::optional(std::string(bytes) + " and ours");
    });
    world.expectEverywhere("theirs and ours");
    EXPECT_EQ(calls, 2);
}

TEST(WriteOver, ReadOnlyIsStillRefused) {
    TwoNames world;
    fs::permissions(world.file(), fs::perms(0444));
    EXPECT_EQ(world.replaceError(), errors::PathFileAccess);
    world.expectEverywhere("old");
}

}  // namespace
}  // namespace tessaro
