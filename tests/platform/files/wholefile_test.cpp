#include "platform/files/wholefile.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "support/disk.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::Call;
using test::errorOf;
using test::TestWorld;
using testing::ElementsAre;

const std::string newer(1000, 'n');

// The folder C:\s holds file.ini with "old", and nothing else comes to stay there.
struct Folder : TestWorld {
    Folder() { write("C:\\s\\file.ini", "old"); }
    HostPath file() const { return at("C:\\s\\file.ini"); }
    int replaceError() {
        return errorOf([&] { replaceFile(host, file(), newer); });
    }
    void expectOld() const {
        EXPECT_EQ(read("C:\\s\\file.ini"), "old");
        EXPECT_THAT(names("C:\\s"), ElementsAre("file.ini"));
    }
};

TEST(WholeFile, ReplacesAFileAndLeavesNothingBeside) {
    Folder world;
    replaceFile(world.host, world.file(), newer);
    EXPECT_EQ(world.read("C:\\s\\file.ini"), newer);
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("file.ini"));
}

TEST(WholeFile, CreatesAFileThatWasNotThere) {
    Folder world;
    replaceFile(world.host, world.at("C:\\s\\a.ini"), "");
    EXPECT_EQ(world.read("C:\\s\\a.ini"), "");
}

TEST(WholeFile, KeepsThePermissionsOfTheOldFile) {
    Folder world;
    if (!test::hasPermissions(world.file())) GTEST_SKIP() << test::noPermissions;
    for (const fs::perms perms : {fs::perms(0600), fs::perms(0664), fs::perms(0755)}) {
        fs::permissions(world.file(), perms);
        replaceFile(world.host, world.file(), newer);
        EXPECT_EQ(fs::status(world.file()).permissions(), perms);
    }
}

TEST(WholeFile, GoesThroughLinks) {
    if (!test::hasLinks()) GTEST_SKIP() << test::noLinks;
    Folder world;
    fs::create_symlink("s/file.ini", world.at("C:\\one"));
    fs::create_symlink(world.at("C:\\one"), world.at("C:\\two"));
    replaceFile(world.host, world.at("C:\\two"), newer);
    EXPECT_TRUE(fs::is_symlink(world.at("C:\\two")));
    EXPECT_TRUE(fs::is_symlink(world.at("C:\\one")));
    EXPECT_EQ(world.read("C:\\s\\file.ini"), newer);
}

TEST(WholeFile, MakesTheFileThatALinkAnnounces) {
    if (!test::hasLinks()) GTEST_SKIP() << test::noLinks;
    Folder world;
    fs::create_symlink("s/later.ini", world.at("C:\\link"));
    replaceFile(world.host, world.at("C:\\link"), newer);
    EXPECT_TRUE(fs::is_symlink(world.at("C:\\link")));
    EXPECT_EQ(world.read("C:\\s\\later.ini"), newer);
}

TEST(WholeFile, RefusesALinkThatRunsInACircle) {
    if (!test::hasLinks()) GTEST_SKIP() << test::noLinks;
    Folder world;
    fs::create_symlink("circle", world.at("C:\\circle"));
    EXPECT_EQ(errorOf([&] { replaceFile(world.host, world.at("C:\\circle"), "x"); }),
              errors::PathFileAccess);
}

TEST(WholeFile, RefusesAReadOnlyFileForRootToo) {
    Folder world;
    fs::permissions(world.file(), fs::perms(0444));
    EXPECT_EQ(world.replaceError(), errors::PathFileAccess);
    EXPECT_EQ(errorOf([&] { requireReplaceable(world.host, world.file()); }),
              errors::PathFileAccess);
    world.expectOld();
}

TEST(WholeFile, RefusesAFileThatTheSystemProtects) {
    Folder world;
    world.host.protect("file.ini");
    EXPECT_EQ(world.replaceError(), errors::PathFileAccess);
    world.expectOld();
}

TEST(WholeFile, RefusesAFolder) {
    Folder world;
    EXPECT_EQ(errorOf([&] { replaceFile(world.host, world.at("C:\\s"), "x"); }),
              errors::PathFileAccess);
}

TEST(WholeFile, RefusesADevice) {
    if (!fs::is_character_file("/dev/null")) GTEST_SKIP() << test::noDevices;
    Folder world;
    EXPECT_EQ(errorOf([&] { replaceFile(world.host, "/dev/null", "x"); }), errors::PathFileAccess);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(WholeFile, RefusesAMissingFolder) {
    Folder world;
    const HostPath nowhere = world.at("C:\\no\\file.ini");
    EXPECT_EQ(errorOf([&] { replaceFile(world.host, nowhere, "x"); }), errors::PathNotFound);
    EXPECT_EQ(errorOf([&] { requireReplaceable(world.host, nowhere); }), errors::PathNotFound);
    EXPECT_EQ(errorOf([&] { requireReplaceable(world.host, world.file() / "x"); }),
              errors::PathNotFound);
}

TEST(WholeFile, AFullDiskLeavesTheOldFileWhereverItStrikes) {
    Folder world;
    for (const std::size_t space : {0U, 1U, 500U, 999U}) {
        world.host.setDiskSpace(space);
        EXPECT_EQ(world.replaceError(), errors::DiskFull);
        world.expectOld();
    }
    world.host.setDiskSpace(newer.size());
    EXPECT_EQ(world.replaceError(), 0);
    EXPECT_EQ(world.read("C:\\s\\file.ini"), newer);
}

TEST(WholeFile, AFailureOnTheWayLeavesTheOldFile) {
    Folder world;
    for (const Call call : {Call::Create, Call::Close, Call::Rename, Call::Status}) {
        world.host.refuse(call, errors::DeviceIo);
        EXPECT_EQ(world.replaceError(), errors::DeviceIo);
        world.host.relent();
        world.expectOld();
    }
}

TEST(WholeFile, AFailureOnTheWayToANewFileLeavesNothing) {
    Folder world;
    const auto expectNothing = [&](Call call) {
        world.host.refuse(call, errors::PermissionDenied);
        EXPECT_EQ(errorOf([&] { replaceFile(world.host, world.at("C:\\s\\new"), "x"); }),
                  errors::PermissionDenied);
        world.host.relent();
        world.expectOld();
    };
    for (const Call call : {Call::Create, Call::Close}) expectNothing(call);
    world.host.nameEarly();
    for (const Call call : {Call::Create, Call::Close, Call::Rename}) expectNothing(call);
}

TEST(WholeFile, ANewFileGetsItsOwnNameAtOnceWhereTheSystemCanDoThat) {
    Folder world;
    if (!test::hasNamelessFiles()) GTEST_SKIP() << test::noNamelessFiles;
    replaceFile(world.host, world.at("C:\\s\\new"), newer);
    EXPECT_EQ(world.host.count(Call::Rename), 0);
    EXPECT_EQ(world.read("C:\\s\\new"), newer);
    world.host.nameEarly();
    replaceFile(world.host, world.at("C:\\s\\newest"), newer);
    EXPECT_EQ(world.host.count(Call::Rename), 1);
    EXPECT_EQ(world.read("C:\\s\\newest"), newer);
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("file.ini", "new", "newest"));
}

// Another program makes the file while ours is being written.
class OvertakenHost : public test::FailingHost {
  public:
    using FailingHost::FailingHost;
    std::unique_ptr<HostWriter> create(const HostPath& file, const HostPath& like) override {
        std::ofstream(like) << "theirs";
        return FailingHost::create(file, like);
    }
};

TEST(WholeFile, AFileThatCameMeanwhileIsReplaced) {
    Folder world;
    OvertakenHost host(world.host);
    replaceFile(host, world.at("C:\\s\\new"), newer);
    EXPECT_EQ(world.read("C:\\s\\new"), newer);
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("file.ini", "new"));
}

TEST(WholeFile, AFolderThatCannotBeFlushedIsNoFailure) {
    Folder world;
    world.host.refuse(Call::Flush, errors::DeviceIo);
    EXPECT_EQ(world.replaceError(), 0);
    EXPECT_EQ(world.host.count(Call::Flush), 1);
}

TEST(WholeFile, AFolderThatVanishesRaises76) {
    Folder world;
    world.host.vanish(world.at("C:\\s"));
    EXPECT_EQ(world.replaceError(), errors::PathNotFound);
}

// Says of the first names that they are taken, as by another program of ours. There are no locks.
class TakenNames : public test::FailingHost {
  public:
    using FailingHost::FailingHost;
    std::unique_ptr<FolderLock> lock(const HostPath&, std::chrono::milliseconds) override {
        return nullptr;
    }
    std::unique_ptr<HostWriter> create(const HostPath& file, const HostPath& like) override {
        tried.push_back(file);
        if (tried.size() <= taken) throw RunTimeError(errors::FileAlreadyExists);
        return FailingHost::create(file, like);
    }
    void removeFile(const HostPath& file) override {
        removed.push_back(file);
        FailingHost::removeFile(file);
    }
    std::size_t taken = 2;
    std::vector<HostPath> tried;
    std::vector<HostPath> removed;
};

TEST(WholeFile, WithoutALockATakenNameIsLeftAloneAndAnotherTried) {
    Folder world;
    TakenNames host(world.host);
    replaceFile(host, world.file(), newer);
    ASSERT_EQ(host.tried.size(), 3U);
    EXPECT_NE(host.tried[0], host.tried[1]);
    EXPECT_NE(host.tried[1], host.tried[2]);
    EXPECT_TRUE(host.removed.empty());
    EXPECT_EQ(world.read("C:\\s\\file.ini"), newer);
}

TEST(WholeFile, GivesUpIfEveryNameIsTaken) {
    Folder world;
    TakenNames host(world.host);
    host.taken = 1'000'000;
    EXPECT_EQ(errorOf([&] { replaceFile(host, world.file(), newer); }), errors::FileAlreadyExists);
    world.expectOld();
}

TEST(WholeFile, NoListingShowsTheFileBesideAndTheNextWriteTakesItAway) {
    Folder world;
    world.host.refuse(Call::RemoveFile, errors::PermissionDenied);
    world.host.refuse(Call::Rename, errors::DeviceIo);
    EXPECT_EQ(world.replaceError(), errors::DeviceIo);
    EXPECT_EQ(world.names("C:\\s").size(), 2U);
    EXPECT_THAT(world.files.list("C:\\s\\*.*", attributes::Normal), ElementsAre("file.ini"));
    world.host.relent();
    EXPECT_EQ(world.replaceError(), 0);
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("file.ini"));
    EXPECT_EQ(world.read("C:\\s\\file.ini"), newer);
}

TEST(WholeFile, WhatCannotBeTakenAwayBesideIsInNobodysWay) {
    Folder world;
    world.write("C:\\s\\.tessaro.tmp", "theirs");
    world.host.refuse(Call::RemoveFile, errors::PermissionDenied);
    EXPECT_EQ(world.replaceError(), 0);
    EXPECT_EQ(world.read("C:\\s\\file.ini"), newer);
    EXPECT_THAT(world.names("C:\\s"), ElementsAre(".tessaro.tmp", "file.ini"));
}

TEST(WholeFile, BytesAreOnTheDiskBeforeTheyGetTheirNameAndTheNameBeforeAllIsDone) {
    Folder world;
    world.write("C:\\from", newer);
    const auto stepsOf = [&](const std::function<void()>& work) {
        const std::size_t before = world.host.calls().size();
        work();
        std::vector<Call> steps(world.host.calls().begin() + static_cast<std::ptrdiff_t>(before),
                                world.host.calls().end());
        std::erase_if(steps, [](Call call) { return call == Call::Status || call == Call::Lock; });
        return steps;
    };
    EXPECT_THAT(stepsOf([&] { replaceFile(world.host, world.file(), newer); }),
                ElementsAre(Call::Create, Call::Close, Call::Rename, Call::Flush));
    EXPECT_THAT(stepsOf([&] { replaceByCopy(world.host, world.at("C:\\from"), world.file()); }),
                ElementsAre(Call::Create, Call::Copy, Call::Close, Call::Rename, Call::Flush));
    if (!test::hasNamelessFiles()) return;
    EXPECT_THAT(
        stepsOf([&] { replaceByCopy(world.host, world.at("C:\\from"), world.at("C:\\s\\new")); }),
        ElementsAre(Call::Create, Call::Copy, Call::Close, Call::Flush));
}

TEST(WholeFile, ACopyReplacesWithTheOldPermissions) {
    Folder world;
    if (!test::hasPermissions(world.file())) GTEST_SKIP() << test::noPermissions;
    world.write("C:\\from", newer);
    fs::permissions(world.at("C:\\from"), fs::perms(0755));
    fs::permissions(world.file(), fs::perms(0640));
    replaceByCopy(world.host, world.at("C:\\from"), world.file());
    replaceByCopy(world.host, world.at("C:\\from"), world.at("C:\\s\\new"));
    EXPECT_EQ(fs::status(world.file()).permissions(), fs::perms(0640));
    EXPECT_EQ(fs::status(world.at("C:\\s\\new")).permissions(), fs::perms(0755));
    EXPECT_EQ(world.read("C:\\s\\file.ini"), newer);
}

TEST(WholeFile, ACopyThatFailsLeavesTheOldFile) {
    Folder world;
    world.write("C:\\from", newer);
    const auto copyError = [&] {
        return errorOf([&] { replaceByCopy(world.host, world.at("C:\\from"), world.file()); });
    };
    world.host.setDiskSpace(999);
    EXPECT_EQ(copyError(), errors::DiskFull);
    world.expectOld();
    world.host.relent();
    for (const Call call : {Call::Copy, Call::Close, Call::Rename}) {
        world.host.refuse(call, errors::DeviceIo);
        EXPECT_EQ(copyError(), errors::DeviceIo);
        world.host.relent();
        world.expectOld();
    }
}

}  // namespace
}  // namespace tessaro
