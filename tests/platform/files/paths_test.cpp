#include "platform/files/paths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "support/disk.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::errorOf;
using test::TestWorld;

// A folder that is there, in the root: the first on the way to where we are.
std::string folderOnZ() {
    return "Z:\\" + fs::current_path().relative_path().begin()->string();
}

TEST(Paths, AFullPathStaysAsItIs) {
    TestWorld world;
    EXPECT_EQ(world.paths.absolute("C:\\UnrealTournament\\System\\user.ini"),
              "C:\\UnrealTournament\\System\\user.ini");
    EXPECT_EQ(world.paths.absolute("c:\\x"), "C:\\x");
}

TEST(Paths, SlashesAndDoubledBackslashesAreHarmless) {
    TestWorld world;
    EXPECT_EQ(world.paths.absolute("C:\\\\cache.ini"), "C:\\cache.ini");
    EXPECT_EQ(world.paths.absolute("C:\\\\\\cache.ini"), "C:\\cache.ini");
    EXPECT_EQ(world.paths.absolute("C:/a//b\\/c/"), "C:\\a\\b\\c");
}

TEST(Paths, OnlyARootKeepsItsBackslash) {
    TestWorld world;
    EXPECT_EQ(world.paths.absolute("C:\\a\\"), "C:\\a");
    EXPECT_EQ(world.paths.absolute("C:\\"), "C:\\");
    EXPECT_EQ(world.paths.absolute("C:\\a\\.."), "C:\\");
}

TEST(Paths, DotsAreResolvedAndStopAtTheRoot) {
    TestWorld world;
    EXPECT_EQ(world.paths.absolute("C:\\a\\.\\b\\..\\c"), "C:\\a\\c");
    EXPECT_EQ(world.paths.absolute("C:\\..\\..\\a"), "C:\\a");
    EXPECT_EQ(world.paths.absolute("C:\\a\\...\\b"), "C:\\a\\...\\b");
}

TEST(Paths, RelativeNamesStartInTheFolderOfTheirDrive) {
    TestWorld world;
    world.makeFolder("C:\\game\\System");
    world.paths.changeFolder("C:\\game\\System");
    world.paths.changeFolder(folderOnZ());
    EXPECT_EQ(world.paths.absolute("user.ini"), "C:\\game\\System\\user.ini");
    EXPECT_EQ(world.paths.absolute(".\\user.ini"), "C:\\game\\System\\user.ini");
    EXPECT_EQ(world.paths.absolute("..\\Maps"), "C:\\game\\Maps");
    EXPECT_EQ(world.paths.absolute("\\Maps"), "C:\\Maps");
    EXPECT_EQ(world.paths.absolute("Z:x"), folderOnZ() + "\\x");
    EXPECT_EQ(world.paths.absolute("z:"), folderOnZ());
    EXPECT_EQ(world.paths.absolute(""), "C:\\game\\System");
}

TEST(Paths, NamesMatchWithoutRegardToCase) {
    TestWorld world;
    world.write("C:\\UnrealTournament\\Cache\\Cache.ini", "");
    EXPECT_EQ(world.paths.toHost("c:\\unrealtournament\\CACHE\\cache.INI"),
              world.at("C:\\UnrealTournament\\Cache\\Cache.ini"));
}

TEST(Paths, LettersOutsideAsciiFoldToo) {
    TestWorld world;
    world.write(
        "C:\\\xC3\x9C"
        "bung.ini",
        "");
    EXPECT_EQ(world.paths.toHost("C:\\\xC3\xBC"
                                 "BUNG.ini"),
              world.at("C:\\\xC3\x9C"
                       "bung.ini"));
}

TEST(Paths, TheExactNameComesFirst) {
    if (!test::hasCases()) GTEST_SKIP() << test::noCases;
    TestWorld world;
    world.write("C:\\Maps\\a", "");
    world.write("C:\\maps\\b", "");
    EXPECT_EQ(world.paths.toHost("C:\\maps"), world.at("C:\\maps"));
    EXPECT_EQ(world.paths.toHost("C:\\Maps"), world.at("C:\\Maps"));
    EXPECT_EQ(world.paths.toHost("C:\\MAPS"), world.at("C:\\Maps"));
}

TEST(Paths, ATailThatIsNotThereIsKept) {
    TestWorld world;
    world.makeFolder("C:\\Game");
    EXPECT_EQ(world.paths.toHost("C:\\game\\New\\File.txt"), world.at("C:\\Game\\New\\File.txt"));
    EXPECT_EQ(world.paths.toHost("C:\\game\\New"), world.at("C:\\Game\\New"));
    EXPECT_FALSE(world.paths.find("C:\\game\\New\\File.txt").has_value());
}

TEST(Paths, AMissingDriveRaises68) {
    TestWorld world;
    EXPECT_EQ(errorOf([&] { world.paths.toHost("Q:\\x"); }), errors::DeviceUnavailable);
    EXPECT_EQ(errorOf([&] { world.paths.find("Q:\\x\\y"); }), errors::DeviceUnavailable);
    EXPECT_EQ(errorOf([&] { world.paths.changeFolder("Q:\\"); }), errors::DeviceUnavailable);
    EXPECT_EQ(errorOf([&] { world.paths.changeDrive("Q:"); }), errors::DeviceUnavailable);
}

TEST(Paths, AFolderThatMovedAwayIsFoundAtItsNewName) {
    if (!test::hasCases()) GTEST_SKIP() << test::noCases;
    TestWorld world;
    world.write("C:\\Game\\Cache\\a.uxx", "");
    EXPECT_TRUE(world.paths.find("C:\\Game\\Cache\\a.uxx"));
    fs::rename(world.at("C:\\Game"), world.at("C:\\GAME"));
    EXPECT_EQ(world.paths.find("C:\\Game\\Cache\\a.uxx"), world.at("C:\\GAME\\Cache\\a.uxx"));
    fs::remove_all(world.at("C:\\GAME"));
    EXPECT_FALSE(world.paths.find("C:\\Game\\Cache\\a.uxx"));
}

TEST(Paths, AFolderUnderTheWindowsFolderReadsAsItsDrive) {
    TestWorld world;
    EXPECT_EQ(world.paths.toGame(world.driveC() / "UnrealTournament" / "System"),
              "C:\\UnrealTournament\\System");
    EXPECT_EQ(world.paths.toGame(world.driveC()), "C:\\");
    EXPECT_EQ(world.paths.toGame(world.driveC() / ""), "C:\\");
}

TEST(Paths, AFolderElsewhereReadsAsDriveZ) {
    TestWorld world;
    EXPECT_EQ(world.paths.toGame("/"), "Z:\\");
    EXPECT_EQ(world.paths.toGame("/usr/nowhere/ut"), "Z:\\usr\\nowhere\\ut");
}

TEST(Paths, ANeighbourOfARootIsNotInIt) {
    TestWorld world;
    const std::string text = world.paths.toGame(world.prefix() / "drive_c2" / "x");
    EXPECT_EQ(text.substr(0, 3), "Z:\\");
    EXPECT_TRUE(text.ends_with("\\drive_c2\\x"));
}

TEST(Paths, TheLongestRootWins) {
    TestWorld world;
    DriveMap drives = world.drives;
    drives['D'] = world.driveC() / "games";
    world.makeFolder("C:\\games\\ut");
    const Paths paths(world.host, drives);
    EXPECT_EQ(paths.toGame(world.driveC() / "games" / "ut"), "D:\\ut");
    EXPECT_EQ(paths.toGame(world.driveC() / "other"), "C:\\other");
}

TEST(Paths, AWayThroughALinkStillFindsTheDrive) {
    if (!test::hasLinks()) GTEST_SKIP() << test::noLinks;
    TestWorld world;
    world.makeFolder("C:\\Game");
    fs::create_directory_symlink(world.prefix(), world.folder() / "link");
    EXPECT_EQ(world.paths.toGame(world.folder() / "link" / "drive_c" / "Game"), "C:\\Game");
}

TEST(Paths, ALinkInsideADriveKeepsItsName) {
    if (!test::hasLinks()) GTEST_SKIP() << test::noLinks;
    TestWorld world;
    fs::create_directory(world.folder() / "elsewhere");
    fs::create_directory_symlink(world.folder() / "elsewhere", world.at("C:\\Game"));
    EXPECT_EQ(world.paths.toGame(world.at("C:\\Game")), "C:\\Game");
    EXPECT_EQ(world.paths.toHost("C:\\Game"), world.at("C:\\Game"));
}

TEST(Paths, ABackslashInAHostNameSurvivesTheWayThereAndBack) {
    if (!test::hasOddNames()) GTEST_SKIP() << test::noOddNames;
    TestWorld world;
    const HostPath odd = world.driveC() / "a\\b" / "c\\d.ini";
    TestWorld::writeHost(odd, "x");
    const std::string game = world.paths.toGame(odd);
    EXPECT_EQ(game,
              "C:\\a\xEF\x81\x9C"
              "b\\c\xEF\x81\x9C"
              "d.ini");
    EXPECT_EQ(world.paths.toHost(game), odd);
    EXPECT_EQ(world.files.read(game), "x");
}

TEST(Paths, PatternLettersAndQuotesInAHostNameSurviveTheWayThereAndBack) {
    if (!test::hasOddNames()) GTEST_SKIP() << test::noOddNames;
    TestWorld world;
    const HostPath odd = world.driveC() / "a*" / "b?\"c.ini";
    TestWorld::writeHost(odd, "x");
    TestWorld::writeHost(world.driveC() / "a*" / "bb\"c.ini", "y");
    const std::string game = world.paths.toGame(odd);
    EXPECT_EQ(game, "C:\\a\uF02A\\b\uF03F\uF022c.ini");
    EXPECT_EQ(world.paths.toHost(game), odd);
    EXPECT_EQ(world.files.list(game, attributes::Normal).size(), 1U);
    world.files.deleteFiles(game);
    EXPECT_EQ(std::distance(fs::directory_iterator(odd.parent_path()), {}), 1);
}

TEST(Paths, EveryHostNameSurvivesTheWayThereAndBack) {
    if (!test::hasOddNames()) GTEST_SKIP() << test::noOddNames;
    TestWorld world;
    const std::vector<std::string> names{"x:y.unr",    "C:",
                                         ":",          "a\\b",
                                         "a\uF05Cb",   "a\uF03Ab",
                                         "\uF07E",     "\uF07E\uF03A",
                                         "\uF07E:",    "\uF07E\uF07E\uF05C\\",
                                         "\uF03A*?\"", "\uF041",
                                         "\uFF3A",     "\uFF1A\uFF3C",
                                         "a\xEF\x80",  "\xEF",
                                         "~:"};
    std::set<std::string> seen;
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        const HostPath odd = world.driveC() / name / (name + ".ini");
        TestWorld::writeHost(odd, name);
        const std::string game = world.paths.toGame(odd);
        EXPECT_EQ(std::count(game.begin(), game.end(), '\\'), 2);
        EXPECT_EQ(game.find_first_of("*?\":", 2), std::string::npos);
        EXPECT_EQ(world.paths.toHost(game), odd);
        EXPECT_EQ(world.files.read(game), name);
        const auto listed = world.files.list(world.paths.toGame(odd.parent_path()) + "\\*.*", 0);
        ASSERT_EQ(listed.size(), 1U);
        EXPECT_EQ(game.substr(game.rfind('\\') + 1), listed.front());
        seen.insert(game);
    }
    EXPECT_EQ(seen.size(), names.size());
}

TEST(Paths, ALetterThatMeansNothingWhereItStandsMeansTheNameThatHasIt) {
    if (!test::hasOddNames()) GTEST_SKIP() << test::noOddNames;
    TestWorld world;
    world.write("C:\\s\\x:Y.unr", "");
    EXPECT_EQ(world.paths.find("C:\\s\\X:y.unr"), world.at("C:\\s\\x:Y.unr"));
    EXPECT_EQ(world.paths.toHost("C:\\s\\new:*?\".unr"), world.at("C:\\s\\new:*?\".unr"));
    EXPECT_EQ(world.paths.toHost("C:\\\uF07Ea"), world.at("C:\\\uF07Ea"));
    EXPECT_EQ(world.paths.absolute("C:\\a:b\\c"), "C:\\a\uF03Ab\\c");
}

TEST(Paths, WhatLiesInsideAFolderIsToldByTheSpelling) {
    TestWorld world;
    world.makeFolder("C:\\game");
    world.paths.changeFolder("C:\\game");
    EXPECT_TRUE(world.paths.isInside("C:\\UT\\maps\\a.u", "C:\\UT\\"));
    EXPECT_TRUE(world.paths.isInside("C:\\UT\\..\\UT\\a.u", "C:\\UT"));
    EXPECT_TRUE(world.paths.isInside("a\\b", "C:\\game"));
    EXPECT_TRUE(world.paths.isInside("C:\\..\\..\\a", "C:\\"));
    EXPECT_FALSE(world.paths.isInside("C:\\UT\\..\\a.u", "C:\\UT\\"));
    EXPECT_FALSE(world.paths.isInside("C:\\UTother\\a.u", "C:\\UT"));
    EXPECT_FALSE(world.paths.isInside("C:\\UT\\maps\\..", "C:\\UT"));
    EXPECT_FALSE(world.paths.isInside("Z:\\UT\\a.u", "C:\\UT"));
}

TEST(Paths, TheStartIsTheProcessFolder) {
    TestWorld world;
    world.makeFolder("C:\\Game");
    fs::current_path(world.at("C:\\Game"));
    const Paths inside(world.host, world.drives);
    EXPECT_EQ(inside.currentFolder(), "C:\\Game");
    fs::current_path(world.drives.at('Z'));
    const Paths outside(world.host, world.drives);
    EXPECT_EQ(outside.currentFolder(), "Z:\\");
}

TEST(Paths, ADeletedStartFolderLeavesTheFirstDriveRoot) {
    if (!test::canLoseFolder()) GTEST_SKIP() << test::noLostFolder;
    TestWorld world;
    world.makeFolder("C:\\gone");
    fs::current_path(world.at("C:\\gone"));
    fs::remove(world.at("C:\\gone"));
    const Paths paths(world.host, world.drives);
    EXPECT_EQ(paths.currentFolder(), "C:\\");
}

TEST(Paths, ChangingTheFolderTakesTheProcessAlong) {
    TestWorld world;
    world.makeFolder("C:\\Game\\System");
    world.paths.changeFolder("game\\system");
    EXPECT_EQ(fs::current_path(), world.at("C:\\Game\\System"));
    world.paths.changeFolder("..");
    EXPECT_EQ(fs::current_path(), world.at("C:\\Game"));
}

TEST(Paths, ChangingTheFolderOfAnotherDriveChangesNoDrive) {
    TestWorld world;
    world.paths.changeFolder(folderOnZ());
    EXPECT_EQ(world.paths.currentFolder(), "C:\\");
    EXPECT_EQ(fs::current_path(), world.driveC());
    EXPECT_EQ(world.paths.absolute("Z:x"), folderOnZ() + "\\x");
}

TEST(Paths, ChangingTheDriveEntersItsFolder) {
    TestWorld world;
    world.paths.changeFolder(folderOnZ());
    world.paths.changeDrive("z");
    EXPECT_EQ(world.paths.currentFolder(), folderOnZ());
    EXPECT_EQ(world.paths.toGame(fs::current_path()), folderOnZ());
    world.paths.changeDrive("C:\\anything");
    EXPECT_EQ(fs::current_path(), world.driveC());
}

TEST(Paths, ADriveWhoseFolderIsGoneIsEnteredAtItsRoot) {
    TestWorld world;
    world.makeFolder("C:\\gone");
    world.paths.changeFolder("C:\\gone");
    world.paths.changeDrive("Z:");
    fs::remove(world.at("C:\\gone"));
    world.paths.changeDrive("C:");
    EXPECT_EQ(world.paths.currentFolder(), "C:\\");
    EXPECT_EQ(fs::current_path(), world.driveC());
}

TEST(Paths, AFolderThatIsNotThereRaises76AndChangesNothing) {
    TestWorld world;
    world.write("C:\\file", "");
    EXPECT_EQ(errorOf([&] { world.paths.changeFolder("C:\\nowhere"); }), errors::PathNotFound);
    EXPECT_EQ(errorOf([&] { world.paths.changeFolder("C:\\file"); }), errors::PathNotFound);
    EXPECT_EQ(world.paths.currentFolder(), "C:\\");
}

TEST(Paths, AFolderThatTheSystemRefusesChangesNothing) {
    TestWorld world;
    world.makeFolder("C:\\locked");
    world.host.refuse(test::Call::ChangeFolder, errors::PermissionDenied, "locked");
    EXPECT_EQ(errorOf([&] { world.paths.changeFolder("locked"); }), errors::PermissionDenied);
    EXPECT_EQ(world.paths.currentFolder(), "C:\\");
}

TEST(Paths, ATextWithoutADriveLetterRaises5) {
    TestWorld world;
    EXPECT_EQ(errorOf([&] { world.paths.changeDrive(""); }), errors::InvalidProcedureCall);
    EXPECT_EQ(errorOf([&] { world.paths.changeDrive("1:"); }), errors::InvalidProcedureCall);
}

TEST(Paths, DrivesComeInOrder) {
    TestWorld world;
    EXPECT_EQ(world.paths.drives(), (std::vector<char>{'C', 'Z'}));
}

}  // namespace
}  // namespace tessaro
