#include "platform/files/files.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "platform/files/standins.h"
#include "support/disk.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::Call;
using test::errorOf;
using test::TestWorld;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr int all = attributes::ReadOnly | attributes::Hidden | attributes::System |
                    attributes::Archive;  // without folders

void makeReadOnly(const HostPath& file) {
    fs::permissions(file, fs::perms::owner_read | fs::perms::group_read);
}

TEST(Files, ListsNamesInOrderWithoutRegardToCase) {
    if (!test::hasCases()) GTEST_SKIP() << test::noCases;
    TestWorld world;
    for (const char* name : {"b.ini", "A.ini", "c.INI", "B.ini", "x.txt"})
        world.write(std::string("C:\\s\\") + name, "");
    EXPECT_THAT(world.files.list("C:\\s\\*.ini", attributes::Normal),
                ElementsAre("A.ini", "B.ini", "b.ini", "c.INI"));
    EXPECT_EQ(world.files.firstMatch("C:\\S\\*.ini", attributes::Normal), "A.ini");
}

TEST(Files, ANormalListingHidesFoldersAndHiddenFiles) {
    TestWorld world;
    world.write("C:\\s\\.hidden", "");
    world.host.hide(".hidden");
    world.write("C:\\s\\seen", "");
    world.makeFolder("C:\\s\\folder");
    EXPECT_THAT(world.files.list("C:\\s\\*.*", attributes::Normal), ElementsAre("seen"));
    EXPECT_THAT(world.files.list("C:\\s\\*.*", all), ElementsAre(".hidden", "seen"));
    EXPECT_EQ(world.files.firstMatch("C:\\s\\.hidden", attributes::Normal), "");
    EXPECT_EQ(world.files.firstMatch("C:\\s\\.hidden", all), ".hidden");
    EXPECT_EQ(world.files.firstMatch("C:\\s\\folder", all), "");
}

TEST(Files, WhatAListingTellsOfItsNamesMakesNoDifference) {
    if (!test::hasLinks()) GTEST_SKIP() << test::noLinks;
    TestWorld world;
    for (const char* name : {"plain", ".dotted", "folder\\file"})
        world.write(std::string("C:\\s\\") + name, "");
    fs::create_symlink("plain", world.at("C:\\s\\link"));
    fs::create_symlink("folder", world.at("C:\\s\\linked folder"));
    fs::create_symlink("nowhere", world.at("C:\\s\\lost"));
    const auto real = makeHost();  // tells more than the failing twin does
    Files files(*real, world.paths);
    EXPECT_THAT(files.list("C:\\s\\*.*", attributes::Normal),
                ElementsAre(".dotted", "link", "plain"));
    EXPECT_THAT(files.list("C:\\s\\*.*", all), ElementsAre(".dotted", "link", "plain"));
    for (const int wanted : {attributes::Normal, int(attributes::Directory), all})
        EXPECT_EQ(files.list("C:\\s\\*.*", wanted), world.files.list("C:\\s\\*.*", wanted));
}

TEST(Files, AReadOnlyFileIsListed) {
    TestWorld world;
    world.write("C:\\a.txt", "");
    makeReadOnly(world.at("C:\\a.txt"));
    EXPECT_EQ(world.files.firstMatch("C:\\a.txt", attributes::Normal), "a.txt");
}

TEST(Files, AFolderIsListedUnderItsNameIfFoldersAreAskedFor) {
    TestWorld world;
    world.makeFolder("C:\\Game\\Maps");
    EXPECT_EQ(world.files.firstMatch("C:\\game\\maps", attributes::Directory), "Maps");
    EXPECT_EQ(world.files.firstMatch("C:\\game\\maps", attributes::Normal), "");
    EXPECT_THAT(world.files.list("C:\\game\\m*", attributes::Directory), ElementsAre("Maps"));
}

TEST(Files, ATrailingBackslashListsTheContent) {
    TestWorld world;
    world.write("C:\\Game\\a", "");
    world.makeFolder("C:\\Game\\Maps");
    EXPECT_THAT(world.files.list("C:\\Game\\", attributes::Directory),
                ElementsAre(".", "..", "a", "Maps"));
    EXPECT_THAT(world.files.list("C:\\Game\\", attributes::Normal), ElementsAre("a"));
}

TEST(Files, ARootHasNoDots) {
    TestWorld world;
    world.write("C:\\a", "");
    EXPECT_THAT(world.files.list("C:\\", attributes::Directory), ElementsAre("a"));
    EXPECT_THAT(world.files.list("C:\\Game\\..", attributes::Directory), ElementsAre("a"));
}

TEST(Files, AnEmptyPathListsTheCurrentFolder) {
    TestWorld world;
    world.write("C:\\Game\\a", "");
    world.paths.changeFolder("C:\\Game");
    EXPECT_THAT(world.files.list("", attributes::Directory), ElementsAre(".", "..", "a"));
    EXPECT_THAT(world.files.list("C:", attributes::Normal), ElementsAre("a"));
    EXPECT_THAT(world.files.list("*", attributes::Normal), ElementsAre("a"));
    EXPECT_EQ(world.files.firstMatch(".\\A", attributes::Normal), "a");
}

TEST(Files, AMissingFolderListsNothing) {
    TestWorld world;
    EXPECT_THAT(world.files.list("C:\\nowhere\\*.*", all), IsEmpty());
    EXPECT_THAT(world.files.list("C:\\nowhere\\", attributes::Directory), IsEmpty());
    EXPECT_THAT(world.files.list("C:\\nowhere\\x", all), IsEmpty());
}

// Gives the file `b` the number that the file `a` has, on the same disk or on another one.
class SameNumber : public test::FailingHost {
  public:
    SameNumber(Host& real, bool otherDisk) : FailingHost(real), otherDisk_(otherDisk) {}

    std::optional<HostStatus> status(const HostPath& path) override {
        auto found = test::FailingHost::status(path);
        if (found && path.filename() == "b") {
            found->stamp = test::FailingHost::status(path.parent_path() / "a")->stamp;
            if (otherDisk_) ++found->stamp.device;
        }
        return found;
    }

  private:
    bool otherDisk_;
};

TEST(Files, ACopyOntoAFileOfTheSameNumberIsRefusedOnTheSameDiskOnly) {
    TestWorld world;
    world.write("C:\\a", "new");
    world.write("C:\\b", "old");
    SameNumber oneDisk(world.host, false);
    EXPECT_EQ(errorOf([&] { Files(oneDisk, world.paths).copyFile("C:\\a", "C:\\b"); }),
              errors::PermissionDenied);
    EXPECT_EQ(world.read("C:\\b"), "old");
    SameNumber twoDisks(world.host, true);
    Files(twoDisks, world.paths).copyFile("C:\\a", "C:\\b");
    EXPECT_EQ(world.read("C:\\b"), "new");
}

TEST(Files, TheFilesOfAFolderAreToldInOneListing) {
    if (!test::hasOddNames()) GTEST_SKIP() << test::noOddNames;
    TestWorld world;
    for (const char* name : {"b.bak", ".hidden", "a?b"})
        world.write(std::string("C:\\s\\") + name, "");
    world.makeFolder("C:\\s\\folder");
    makeReadOnly(world.at("C:\\s\\b.bak"));
    EXPECT_THAT(world.files.filesIn("c:\\S"),
                UnorderedElementsAre("b.bak", ".hidden", gameName("a?b")));
    const int before = world.host.count(Call::List);
    world.files.filesIn("C:\\s");
    // The folder above was changed a moment ago and is read again for its name.
    EXPECT_LE(world.host.count(Call::List), before + 2);
    EXPECT_THAT(world.files.filesIn("C:\\none"), IsEmpty());
    EXPECT_THAT(world.files.filesIn("C:\\s\\b.bak"), IsEmpty());
}

TEST(Files, AMissingDriveRaises68) {
    TestWorld world;
    EXPECT_EQ(errorOf([&] { world.files.list("Q:\\*.*", all); }), errors::DeviceUnavailable);
    EXPECT_EQ(errorOf([&] { world.files.firstMatch("Q:\\x", all); }), errors::DeviceUnavailable);
}

TEST(Files, ALinkThatLeadsNowhereIsNotListed) {
    if (!test::hasLinks()) GTEST_SKIP() << test::noLinks;
    TestWorld world;
    fs::create_symlink("gone", world.at("C:\\link"));
    EXPECT_EQ(world.files.firstMatch("C:\\link", all), "");
    EXPECT_THAT(world.files.list("C:\\*.*", all), IsEmpty());
}

TEST(Files, ANameThatCannotBeAskedForIsPassedOver) {
    TestWorld world;
    for (const char* name : {"a", "m", "z"}) world.write(std::string("C:\\s\\") + name, "");
    world.makeFolder("C:\\s\\folder");
    world.host.refuse(Call::Status, errors::PermissionDenied, "/m");
    EXPECT_THAT(world.files.list("C:\\s\\*.*", all), ElementsAre("a", "z"));
    EXPECT_THAT(world.files.list("C:\\s\\*", attributes::Directory),
                ElementsAre(".", "..", "a", "folder", "z"));
    EXPECT_EQ(world.files.firstMatch("C:\\s\\m", all), "");
    world.files.deleteFiles("C:\\s\\*.*");
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("folder", "m"));
}

TEST(Files, ALinkIntoALockedFolderDoesNotHideItsNeighbours) {
    if (!test::hasLinks()) GTEST_SKIP() << test::noLinks;
    TestWorld world;
    world.write("C:\\locked\\x", "");
    world.write("C:\\s\\a", "");
    world.write("C:\\s\\z", "");
    fs::create_symlink("../locked/x", world.at("C:\\s\\link"));
    fs::permissions(world.at("C:\\locked"), fs::perms::none);
    std::error_code refused;
    const bool seen = fs::exists(world.at("C:\\locked\\x"), refused);
    if (seen) GTEST_SKIP() << "root may look anywhere";
    EXPECT_THAT(world.files.list("C:\\s\\*.*", all), ElementsAre("a", "z"));
    fs::permissions(world.at("C:\\locked"), fs::perms::owner_all);
}

TEST(Files, NamesThatNoFileCanBearAreNotThere) {
    TestWorld world;
    world.write("C:\\s\\a", "");
    EXPECT_EQ(world.files.firstMatch("C:\\s\\" + std::string(5000, 'x'), all), "");
    EXPECT_EQ(world.files.firstMatch(std::string("C:\\s\\a\0b", 8), all), "");
    EXPECT_EQ(errorOf([&] { world.files.fileLength(std::string("C:\\s\\a\0b", 8)); }),
              errors::FileNotFound);
}

TEST(Files, AMissingFileAmongManyCostsOneLook) {
    TestWorld world;
    world.write("C:\\Game\\Cache\\x.uxx", "");
    world.files.firstMatch("C:\\Game\\Cache\\first", attributes::Normal);
    const int before = world.host.count(Call::Status);
    for (int i = 0; i < 100; ++i) {
        const std::string name = "C:\\Game\\Cache\\" + std::to_string(i);
        EXPECT_EQ(world.files.firstMatch(name, attributes::Normal), "");
    }
    EXPECT_EQ(world.host.count(Call::Status) - before, 100);
}

TEST(Files, AListingThatIsRefusedRaises) {
    TestWorld world;
    world.makeFolder("C:\\locked");
    world.host.refuse(Call::List, errors::PermissionDenied, "locked");
    EXPECT_EQ(errorOf([&] { world.files.list("C:\\locked\\*", all); }), errors::PermissionDenied);
}

TEST(Files, FileLengthCountsBytesAndAFolderHasNone) {
    TestWorld world;
    world.write("C:\\a", std::string(1234, 'x'));
    world.makeFolder("C:\\f");
    EXPECT_EQ(world.files.fileLength("C:\\A"), 1234U);
    EXPECT_EQ(errorOf([&] { world.files.fileLength("C:\\b"); }), errors::FileNotFound);
    EXPECT_EQ(world.files.fileLength("C:\\f"), 0U);
}

TEST(Files, CopyMakesAFileAndReplacesOne) {
    TestWorld world;
    world.write("C:\\from", "new");
    world.write("C:\\to\\old", "something older and longer");
    world.files.copyFile("C:\\from", "C:\\to\\fresh");
    world.files.copyFile("C:\\from", "C:\\to\\old");
    EXPECT_EQ(world.read("C:\\to\\fresh"), "new");
    EXPECT_EQ(world.read("C:\\to\\old"), "new");
    EXPECT_THAT(world.names("C:\\to"), ElementsAre("fresh", "old"));
}

TEST(Files, CopyReplacesAFileWhoseCaseDiffers) {
    TestWorld world;
    world.write("C:\\from", "new");
    world.write("C:\\to\\DM-Example.unr", "old");
    world.files.copyFile("C:\\from", "C:\\TO\\dm-example.UNR");
    EXPECT_THAT(world.names("C:\\to"), ElementsAre("DM-Example.unr"));
    EXPECT_EQ(world.read("C:\\to\\DM-Example.unr"), "new");
}

TEST(Files, CopyGoesThroughALink) {
    if (!test::hasLinks()) GTEST_SKIP() << test::noLinks;
    TestWorld world;
    world.write("C:\\from", "new");
    world.write("C:\\real\\file", "old");
    fs::create_symlink("real/file", world.at("C:\\link"));
    world.files.copyFile("C:\\from", "C:\\link");
    EXPECT_TRUE(fs::is_symlink(world.at("C:\\link")));
    EXPECT_EQ(world.read("C:\\real\\file"), "new");
}

TEST(Files, CopyOfBigFilesIsComplete) {
    TestWorld world;
    std::string bytes;
    for (int i = 0; bytes.size() < 3'000'000; ++i) bytes += std::to_string(i);
    world.write("C:\\from", bytes);
    world.files.copyFile("C:\\from", "C:\\to");
    EXPECT_TRUE(world.read("C:\\to") == bytes);
}

TEST(Files, CopyRaisesWhatFits) {
    if (!test::hasLinks()) GTEST_SKIP() << test::noLinks;
    TestWorld world;
    world.write("C:\\from", "x");
    world.write("C:\\protected", "old");
    makeReadOnly(world.at("C:\\protected"));
    world.makeFolder("C:\\folder");
    fs::create_symlink("from", world.at("C:\\self"));
    const auto copy = [&](const char* from, const char* to) {
        return errorOf([&] { world.files.copyFile(from, to); });
    };
    EXPECT_EQ(copy("C:\\nothing", "C:\\to"), errors::FileNotFound);
    EXPECT_EQ(copy("C:\\nothing", "C:\\nowhere\\to"), errors::FileNotFound);
    EXPECT_EQ(copy("C:\\from", "C:\\nowhere\\to"), errors::PathNotFound);
    EXPECT_EQ(copy("C:\\from", "C:\\folder"), errors::PathFileAccess);
    EXPECT_EQ(copy("C:\\folder", "C:\\to"), errors::PathFileAccess);
    EXPECT_EQ(copy("C:\\from", "C:\\protected"), errors::PathFileAccess);
    EXPECT_EQ(copy("C:\\from", "C:\\FROM"), errors::PermissionDenied);
    EXPECT_EQ(copy("C:\\from", "C:\\self"), errors::PermissionDenied);
    EXPECT_EQ(world.read("C:\\protected"), "old");
}

TEST(Files, ACopyThatFailsPartWayLeavesNoFragment) {
    TestWorld world;
    world.write("C:\\from", "0123456789");
    world.write("C:\\to\\old", "old");
    world.host.setDiskSpace(4);
    EXPECT_EQ(errorOf([&] { world.files.copyFile("C:\\from", "C:\\to\\old"); }), errors::DiskFull);
    EXPECT_EQ(errorOf([&] { world.files.copyFile("C:\\from", "C:\\to\\new"); }), errors::DiskFull);
    EXPECT_THAT(world.names("C:\\to"), ElementsAre("old"));
    EXPECT_EQ(world.read("C:\\to\\old"), "old");
}

TEST(Files, DeletesWhatMatchesButNoFolders) {
    TestWorld world;
    for (const char* name : {"cache1.tmp", "CACHE2.TMP", "cache.ini"})
        world.write(std::string("C:\\s\\") + name, "");
    world.makeFolder("C:\\s\\cache3.tmp");
    world.files.deleteFiles("C:\\s\\cache*.tmp");
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("cache.ini", "cache3.tmp"));
}

TEST(Files, ANameWithAColonIsAFileLikeOthers) {
    if (!test::hasOddNames()) GTEST_SKIP() << test::noOddNames;
    TestWorld world;
    world.write("C:\\s\\x:y.unr", "text");
    const auto names = world.files.list("C:\\s\\*.unr", attributes::Normal);
    ASSERT_THAT(names, ElementsAre("x\uF03Ay.unr"));
    const std::string file = "C:\\s\\" + names.front();
    EXPECT_EQ(world.files.fileLength(file), 4U);
    world.files.copyFile(file, file + ".uz");
    EXPECT_EQ(world.files.firstMatch(file + ".uz", attributes::Normal), "x\uF03Ay.unr.uz");
    world.files.deleteFiles(file);
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("x:y.unr.uz"));
}

TEST(Files, DeletesOneFileByItsName) {
    TestWorld world;
    world.write("C:\\s\\User.ini", "");
    world.files.deleteFiles("c:\\S\\user.INI");
    EXPECT_THAT(world.names("C:\\s"), IsEmpty());
    EXPECT_EQ(world.files.firstMatch("C:\\s\\User.ini", all), "");
}

TEST(Files, DeletingWhatIsNotThereRaises53) {
    TestWorld world;
    world.makeFolder("C:\\folder");
    EXPECT_EQ(errorOf([&] { world.files.deleteFiles("C:\\none"); }), errors::FileNotFound);
    EXPECT_EQ(errorOf([&] { world.files.deleteFiles("C:\\*.none"); }), errors::FileNotFound);
    EXPECT_EQ(errorOf([&] { world.files.deleteFiles("C:\\folder"); }), errors::FileNotFound);
}

TEST(Files, DeletingNeverEmptiesAFolderThatWasOnlyNamed) {
    TestWorld world;
    world.write("C:\\a", "");
    for (const char* pattern : {"", "C:\\", "C:", ".", "C:\\x\\.."})
        EXPECT_EQ(errorOf([&] { world.files.deleteFiles(pattern); }), errors::FileNotFound);
    EXPECT_TRUE(world.exists("C:\\a"));
}

TEST(Files, DeletingStopsAtAFileThatCannotBeDeleted) {
    TestWorld world;
    for (const char* name : {"a", "b", "c"}) world.write(std::string("C:\\s\\") + name, "");
    makeReadOnly(world.at("C:\\s\\b"));
    EXPECT_EQ(errorOf([&] { world.files.deleteFiles("C:\\s\\*.*"); }), errors::PathFileAccess);
    EXPECT_THAT(world.names("C:\\s"), ElementsAre("b", "c"));
    world.host.refuse(Call::RemoveFile, errors::PermissionDenied, "c");
    EXPECT_EQ(errorOf([&] { world.files.deleteFiles("C:\\s\\c"); }), errors::PermissionDenied);
}

TEST(Files, MakesAFolder) {
    TestWorld world;
    world.files.makeFolder("maps");
    EXPECT_TRUE(fs::is_directory(world.at("C:\\maps")));
    EXPECT_EQ(world.files.firstMatch("C:\\MAPS", attributes::Directory), "maps");
}

TEST(Files, AFolderNeedsAFreeNameAndAFolderAboveIt) {
    TestWorld world;
    world.makeFolder("C:\\Maps");
    world.write("C:\\file", "");
    const auto make = [&](const char* folder) {
        return errorOf([&] { world.files.makeFolder(folder); });
    };
    EXPECT_EQ(make("C:\\maps"), errors::PathFileAccess);
    EXPECT_EQ(make("C:\\file"), errors::PathFileAccess);
    EXPECT_EQ(make("C:\\"), errors::PathFileAccess);
    EXPECT_EQ(make("C:\\no\\maps"), errors::PathNotFound);
    EXPECT_EQ(make("C:\\file\\maps"), errors::PathNotFound);
}

TEST(Files, ReadsBytesAsTheyAre) {
    TestWorld world;
    const std::string bytes("\0\xFF\r\n\x1A end", 9);
    world.write("C:\\a", bytes);
    EXPECT_EQ(world.files.read("C:\\A"), bytes);
}

TEST(Files, ReadingRaisesWhatFits) {
    TestWorld world;
    world.makeFolder("C:\\folder");
    EXPECT_EQ(errorOf([&] { world.files.read("C:\\none"); }), errors::FileNotFound);
    EXPECT_EQ(errorOf([&] { world.files.read("C:\\no\\none"); }), errors::PathNotFound);
    EXPECT_EQ(errorOf([&] { world.files.read("C:\\folder"); }), errors::PathFileAccess);
    EXPECT_EQ(errorOf([&] { world.files.read(""); }), errors::PathFileAccess);
}

TEST(Files, ReplaceCreatesAndReplaces) {
    TestWorld world;
    world.files.replace("C:\\a.ini", "one");
    world.files.replace("C:\\A.INI", "two");
    EXPECT_THAT(world.names("C:\\"), ElementsAre("a.ini"));
    EXPECT_EQ(world.read("C:\\a.ini"), "two");
}

TEST(Files, TouchCreatesAnEmptyFileAndLeavesAFullOneAlone) {
    TestWorld world;
    world.write("C:\\full", "text");
    world.files.touch("C:\\Full");
    world.files.touch("C:\\empty");
    EXPECT_EQ(world.read("C:\\full"), "text");
    EXPECT_EQ(world.read("C:\\empty"), "");
}

TEST(Files, TouchRaisesWhatFits) {
    TestWorld world;
    world.write("C:\\protected", "");
    makeReadOnly(world.at("C:\\protected"));
    EXPECT_EQ(errorOf([&] { world.files.touch("C:\\protected"); }), errors::PathFileAccess);
    EXPECT_EQ(errorOf([&] { world.files.touch("C:\\"); }), errors::PathFileAccess);
    EXPECT_EQ(errorOf([&] { world.files.touch("C:\\no\\x"); }), errors::PathNotFound);
}

}  // namespace
}  // namespace tessaro
