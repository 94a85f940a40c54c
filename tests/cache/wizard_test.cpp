#include "cache/wizard.h"

#include <gtest/gtest.h>

#include "support/testprogram.h"

namespace tessaro::test {
namespace {

using Texts = std::vector<std::string>;

class Wizard : public ::testing::Test {
  protected:
    void cacheIn(const std::string& folder) { game.world.write(folder + "\\cache.ini", ""); }

    TestProgram game;
    Program& program = game.program;
    clsINI phile = program.makeINI();
};

TEST_F(Wizard, FolderIsValidIfItsIndexExistsWhateverItHolds) {
    cacheIn("C:\\UT\\Cache");
    game.world.makeFolder("C:\\Empty");
    EXPECT_TRUE(cacheFolderIsValid(program, "C:\\UT\\Cache", "C:\\UT\\Cache"));
    EXPECT_FALSE(cacheFolderIsValid(program, "C:\\Empty", "C:\\Empty"));
    EXPECT_FALSE(cacheFolderIsValid(program, "C:\\None", "C:\\None"));
}

TEST_F(Wizard, TypedTextIsLookedAtAndNotTheTree) {
    cacheIn("C:\\UT\\Cache");
    game.world.makeFolder("C:\\Empty");
    EXPECT_TRUE(cacheFolderIsValid(program, "C:\\UT\\Cache", "C:\\Empty"));
}

TEST_F(Wizard, DriveRootNeedsNoSecondBackslash) {
    cacheIn("C:");
    EXPECT_TRUE(cacheFolderIsValid(program, "C:\\", "C:\\"));
    // The rule leans on the text's own backslash.
    EXPECT_FALSE(cacheFolderIsValid(program, "C:\\x", "C:\\"));
}

TEST_F(Wizard, DestinationIsReadFromTheSettingsAndFilledIn) {
    loadExtractDest(program, phile);
    EXPECT_EQ(program.settings.ExtractDest, "C:\\UTMaps");
    EXPECT_EQ(game.world.read("C:\\Tessaro\\vornx.ini"), "[Common]\r\nVORNX=C:\\UTMaps\r\n");
    saveExtractDest(program, phile, "D:\\My Maps");
    loadExtractDest(program, phile);
    EXPECT_EQ(program.settings.ExtractDest, "D:\\My Maps");
}

TEST_F(Wizard, ChosenCacheFolderLandsInTheMapPath) {
    program.gamePaths = {"C:\\UT", "C:\\UT\\Cache", "C:\\UT\\Maps", "C:\\UT\\System"};
    cacheIn("C:\\Other");
    rememberCacheFolder(program, "C:\\Other");
    EXPECT_EQ(program.gamePaths.UTMapPath, "C:\\Other");
    EXPECT_EQ(program.gamePaths.UTCachePath, "C:\\UT\\Cache");
}

TEST_F(Wizard, FolderWithoutAnIndexIsNotRemembered) {
    program.gamePaths.UTMapPath = "C:\\UT\\Maps";
    rememberCacheFolder(program, "C:\\None");
    EXPECT_EQ(program.gamePaths.UTMapPath, "C:\\UT\\Maps");
}

TEST_F(Wizard, DestinationIsTheGameOrTheNamedFolderWithABackslash) {
    program.gamePaths = {"C:\\UT", "C:\\UT\\Cache", "C:\\Elsewhere", "C:\\UT\\System"};
    EXPECT_EQ(destinationRoot(program, true, "D:\\Mine"), "C:\\UT\\");
    EXPECT_EQ(destinationRoot(program, false, "D:\\Mine"), "D:\\Mine\\");
}

TEST_F(Wizard, LastDestinationIsOfferedWhileItExists) {
    program.gamePaths.UTPath = "C:\\UT";
    program.settings.ExtractDest = "C:\\Out";
    EXPECT_EQ(offeredDestination(program), "C:\\UT");
    game.world.makeFolder("C:\\Out");
    EXPECT_EQ(offeredDestination(program), "C:\\Out");
}

class NewFolder : public Wizard {
  protected:
    NewFolder() { game.world.makeFolder("C:\\UT"); }
    std::string create(const std::string& answer) {
        game.dialogs.type(answer);
        return createDestination(program, "C:\\UT");
    }
};

TEST_F(NewFolder, IsOfferedBelowTheShownOne) {
    create("");
    EXPECT_EQ(game.dialogs.inputs,
              (std::vector<ScriptedDialogs::Input>{
                  {"Enter New Folder Name", "Create Folder", "C:\\UT\\UTMaps"}}));
}

TEST_F(NewFolder, NothingIsMadeWhereTheUserCancels) {
    EXPECT_EQ(create(""), "C:\\UT");
    EXPECT_EQ(game.world.names("C:\\UT"), Texts{});
}

TEST_F(NewFolder, FullPathIsMadeAndEntered) {
    EXPECT_EQ(create("C:\\UT\\UTMaps"), "C:\\UT\\UTMaps");
    EXPECT_EQ(game.world.names("C:\\UT"), Texts{"UTMaps"});
    EXPECT_EQ(program.paths.currentFolder(), "C:\\UT\\UTMaps");
}

TEST_F(NewFolder, RelativeAnswerIsMadeBelowAndKeptAsTyped) {
    EXPECT_EQ(create("Mine"), "Mine");
    EXPECT_EQ(game.world.names("C:\\UT"), Texts{"Mine"});
    EXPECT_EQ(program.paths.currentFolder(), "C:\\UT\\Mine");
}

TEST_F(NewFolder, ExistingOneIsToldAndTheTextStays) {
    game.world.makeFolder("C:\\UT\\Mine");
    game.dialogs.answer(Answer::Ok);
    EXPECT_EQ(create("mine"), "C:\\UT");
    EXPECT_EQ(game.dialogs.messages,
              (std::vector<Message>{
                  {"Directory Exists", "Cannot create folder", Buttons::Ok, Icon::Information}}));
}

TEST_F(NewFolder, FailureIsPassedOverAndTheAnswerKept) {
    game.world.host.refuse(Call::MakeFolder, errors::PermissionDenied);
    EXPECT_EQ(create("Mine"), "Mine");
    EXPECT_EQ(game.world.names("C:\\UT"), Texts{});
}

TEST_F(NewFolder, MissingShownFolderIsPassedOver) {
    game.dialogs.type("C:\\Made");
    EXPECT_EQ(createDestination(program, "C:\\None"), "C:\\Made");
    EXPECT_TRUE(game.world.exists("C:\\Made"));
}

}  // namespace
}  // namespace tessaro::test
