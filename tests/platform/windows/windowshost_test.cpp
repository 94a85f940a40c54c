#include <windows.h>

#include <gmock/gmock.h>

#include <filesystem>

#include "platform/files/drives.h"
#include "platform/files/paths.h"
#include "platform/files/wholefile.h"
#include "platform/outside/systemversion.h"
#include "platform/windows/handle.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::errorOf;
using test::TestWorld;
using testing::ElementsAre;

constexpr const char* umlauts = "H\xC3\xB6hle \xD0\xB6 \xE6\x97\xA5";

// A file that another program has open, as its last argument lets others use it meanwhile.
Handle openedBy(const HostPath& file, DWORD access, DWORD share) {
    return Handle(file, {.access = access, .share = share});
}

DWORD attributesOf(const HostPath& file) {
    return ::GetFileAttributesW(file.c_str());
}

TEST(WindowsHost, DrivesAreThoseOfTheSystemAndBeginAtTheirRoots) {
    const DriveMap drives = hostDrives();
    ASSERT_TRUE(drives.contains('C'));
    EXPECT_EQ(drives.at('C'), HostPath("C:\\"));
    EXPECT_EQ(drives.contains('Q'), fs::exists("Q:\\"));
}

TEST(WindowsHost, PathsAreTheSystemsOwn) {
    TestWorld world;
    const auto host = makeHost();
    Paths paths(*host, hostDrives());
    const HostPath file = world.at("C:\\Game\\" + std::string(umlauts) + ".ini");
    TestWorld::writeHost(file, "x");
    EXPECT_EQ(paths.toGame(file), file.string());
    EXPECT_EQ(paths.toHost(file.string()), file);
    EXPECT_EQ(paths.currentFolder(), world.driveC().string());
}

TEST(WindowsHost, NamesOutsideAsciiAreListedAsTheyAre) {
    TestWorld world;
    world.write("C:\\s\\" + std::string(umlauts), "x");
    EXPECT_THAT(world.files.list("C:\\s\\*.*", attributes::Normal), ElementsAre(umlauts));
    EXPECT_EQ(world.files.read("C:\\S\\" + std::string(umlauts)), "x");
}

TEST(WindowsHost, AFileBeyondTheOldLimitOfAPathIsWrittenAndRead) {
    TestWorld world;
    std::string folder = "C:";
    for (int depth = 0; depth < 30; ++depth) {
        folder += "\\twelve chars";
        world.files.makeFolder(folder);
    }
    world.files.replace(folder + "\\a.ini", "bytes");
    world.files.copyFile(folder + "\\a.ini", folder + "\\b.ini");
    EXPECT_EQ(world.files.read(folder + "\\b.ini"), "bytes");
    EXPECT_THAT(world.files.list(folder + "\\*", attributes::Normal),
                ElementsAre("a.ini", "b.ini"));
    world.files.deleteFiles(folder + "\\*.ini");
    EXPECT_THAT(world.files.list(folder + "\\*", attributes::Normal), ElementsAre());
}

TEST(WindowsHost, AReplacedFileKeepsItsAttributes) {
    TestWorld world;
    world.write("C:\\s\\a.ini", "old");
    constexpr DWORD wanted = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    ::SetFileAttributesW(world.at("C:\\s\\a.ini").c_str(), wanted);
    world.files.replace("C:\\s\\a.ini", "new");
    EXPECT_EQ(world.read("C:\\s\\a.ini"), "new");
    EXPECT_EQ(attributesOf(world.at("C:\\s\\a.ini")) & wanted, wanted);
}

TEST(WindowsHost, HiddenAndSystemFilesAreListedOnlyOnRequest) {
    TestWorld world;
    for (const char* name : {"hidden", "plain", "system"})
        world.write(std::string("C:\\s\\") + name, "");
    ::SetFileAttributesW(world.at("C:\\s\\hidden").c_str(), FILE_ATTRIBUTE_HIDDEN);
    ::SetFileAttributesW(world.at("C:\\s\\system").c_str(), FILE_ATTRIBUTE_SYSTEM);
    EXPECT_THAT(world.files.list("C:\\s\\*", attributes::Normal), ElementsAre("plain"));
    EXPECT_THAT(world.files.list("C:\\s\\*", attributes::Hidden), ElementsAre("hidden", "plain"));
    EXPECT_THAT(world.files.list("C:\\s\\*", attributes::System), ElementsAre("plain", "system"));
}

TEST(WindowsHost, ACopyIsAsReadOnlyAsItsSource) {
    TestWorld world;
    world.write("C:\\s\\a", "x");
    ::SetFileAttributesW(world.at("C:\\s\\a").c_str(), FILE_ATTRIBUTE_READONLY);
    world.files.copyFile("C:\\s\\a", "C:\\s\\b");
    EXPECT_TRUE(attributesOf(world.at("C:\\s\\b")) & FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(errorOf([&] { world.files.replace("C:\\s\\b", "y"); }), errors::PathFileAccess);
    EXPECT_EQ(world.read("C:\\s\\b"), "x");
    for (const char* name : {"C:\\s\\a", "C:\\s\\b"})
        ::SetFileAttributesW(world.at(name).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(WindowsHost, AFileThatTheGameReadsCanBeReadAndReplaced) {
    TestWorld world;
    world.write("C:\\s\\a.ini", "old");
    const Handle game = openedBy(world.at("C:\\s\\a.ini"), GENERIC_READ, sharedWithAll);
    EXPECT_EQ(world.files.read("C:\\s\\a.ini"), "old");
    world.files.replace("C:\\s\\a.ini", "new");
    EXPECT_EQ(world.read("C:\\s\\a.ini"), "new");
}

TEST(WindowsHost, AFileThatNobodyElseMayUseStaysAsItIs) {
    TestWorld world;
    world.write("C:\\s\\a.ini", "old");
    {
        const Handle game = openedBy(world.at("C:\\s\\a.ini"), GENERIC_READ, 0);
        EXPECT_EQ(errorOf([&] { world.files.read("C:\\s\\a.ini"); }), errors::PermissionDenied);
        EXPECT_EQ(errorOf([&] { world.files.replace("C:\\s\\a.ini", "new"); }),
                  errors::PermissionDenied);
    }
    EXPECT_EQ(world.read("C:\\s\\a.ini"), "old");
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("a.ini"));
}

TEST(WindowsHost, AWriterThatEndsTooEarlyLeavesNothingBehind) {
    TestWorld world;
    world.makeFolder("C:\\s");
    const auto host = makeHost();
    {
        const auto writer = host->create(world.at("C:\\s\\new"), world.at("C:\\s\\none"));
        writer->write("half");
    }
    EXPECT_THAT(world.names("C:\\s"), ElementsAre());
}

TEST(WindowsHost, AFileThatIsBeingWrittenDoesNotSettle) {
    TestWorld world;
    world.write("C:\\s\\a", "x");
    const auto host = makeHost();
    {
        const Handle writer = openedBy(world.at("C:\\s\\a"), GENERIC_WRITE, sharedWithAll);
        EXPECT_FALSE(host->settles(world.at("C:\\s\\a"), std::chrono::milliseconds(1)));
    }
    const Handle reader = openedBy(world.at("C:\\s\\a"), GENERIC_READ, sharedWithAll);
    EXPECT_TRUE(host->settles(world.at("C:\\s\\a"), std::chrono::milliseconds(0)));
}

TEST(WindowsHost, ANameWithAColonLeadsToNoOtherDriveAndToNoStream) {
    TestWorld world;
    world.write("C:\\s\\a", "x");
    for (const char* name : {"C:\\s\\Z:b", "C:\\s\\a:b"}) {
        EXPECT_EQ(world.paths.toHost(name).parent_path(), world.at("C:\\s"));
        EXPECT_EQ(errorOf([&] { world.files.copyFile("C:\\s\\a", name); }), errors::BadFileNumber);
    }
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("a"));
}

TEST(WindowsHost, ADeviceIsNoFile) {
    TestWorld world;
    EXPECT_EQ(errorOf([&] { world.host.read("NUL"); }), errors::PathFileAccess);
    EXPECT_EQ(world.host.status("NUL"), std::nullopt);
}

TEST(WindowsHost, AnEmptyDriveLetterIsNoFolder) {
    const auto host = makeHost();
    EXPECT_EQ(host->status("Q:\\nothing"), std::nullopt);
    EXPECT_FALSE(host->writable("Q:\\nothing"));
}

TEST(WindowsHost, TheVersionIsTheRealOneOfTheSystem) {
    const auto version = systemVersion();
    ASSERT_TRUE(version);
    EXPECT_EQ(version->platform, 2);
    EXPECT_GE(version->major, 6);
    EXPECT_GT(version->build, 0);
    EXPECT_TRUE(version->servicePack.ends_with('\0'));
    EXPECT_EQ(version->name, "");
}

}  // namespace
}  // namespace tessaro
