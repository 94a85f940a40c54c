#include "screenshots/screenshotviewer.h"

#include <gmock/gmock.h>

#include "screenshots/viewerfixture.h"
#include "support/disk.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OpeningTheViewer : public ViewerTest {};

TEST_F(OpeningTheViewer, ListsTheShotsOfTheSystemFolderByName) {
    disk().makeFolder(shot("Shot-folder.bmp"));
    for (const char* name : {"shot0010.bmp", "SHOT0002.BMP", "Logo.bmp", "Shot0001.bmp",
                             "Shot0003.bmp.txt", "shotbmp", "UnrealTournament.ini"})
        write(name);
    viewer.LoadScreenshotList();
    EXPECT_THAT(screen.names,
                ElementsAre("Shot0001.bmp", "SHOT0002.BMP", "shot0010.bmp", "shotbmp"));
    EXPECT_EQ(viewer.List1.names(), screen.names);
}

TEST_F(OpeningTheViewer, ShowsTheFirstShotInAWindowCutToIt) {
    write("Shot0002.bmp", "3000 2000");
    write("Shot0001.bmp", "9600 7200");
    const auto steps = stepsOf([&] { viewer.LoadScreenshotList(); });
    EXPECT_THAT(steps, ElementsAre("select 0", "load Shot0001.bmp", "caption", "form 9700 7545"));
    EXPECT_EQ(screen.caption, "Now Viewing: C:\\UT\\System\\Shot0001.bmp");
    EXPECT_EQ(screen.selection, 0);
}

TEST_F(OpeningTheViewer, WithoutShotsSaysSoAndCloses) {
    write("Logo.bmp");
    dialogs().answer(Answer::Ok);
    const auto steps = stepsOf([&] { viewer.LoadScreenshotList(); });
    EXPECT_THAT(dialogs().messages,
                ElementsAre(Message{"No Screenshots Found in UT System Folder",
                                    "Screenshots Not Found", Buttons::Ok, Icon::Stop}));
    EXPECT_THAT(steps, ElementsAre("unload"));
    EXPECT_EQ(screen.caption, "UT Screenshot Viewer");
}

TEST_F(OpeningTheViewer, MakesTheSystemFolderTheCurrentOneForGood) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    EXPECT_EQ(program().paths.currentFolder(), shotFolder);
    EXPECT_EQ(std::filesystem::current_path(), disk().at(shotFolder));
    viewer.select(1);
    EXPECT_EQ(program().paths.currentFolder(), shotFolder);
}

TEST_F(OpeningTheViewer, MakesItTheCurrentOneWithoutShotsToo) {
    disk().makeFolder(shotFolder);
    dialogs().answer(Answer::Ok);
    viewer.LoadScreenshotList();
    EXPECT_EQ(program().paths.currentFolder(), shotFolder);
}

TEST_F(OpeningTheViewer, ASystemFolderThatHasGoneIsAFailure) {
    EXPECT_EQ(errorOf([&] { viewer.LoadScreenshotList(); }), errors::PathNotFound);
    EXPECT_THAT(screen.steps, IsEmpty());
}

TEST_F(OpeningTheViewer, ASystemFolderThatMayNotBeReadIsAFailure) {
    write("Shot0001.bmp");
    disk().host.refuse(Call::List, errors::PermissionDenied, "System");
    EXPECT_EQ(errorOf([&] { viewer.LoadScreenshotList(); }), errors::PermissionDenied);
}

TEST_F(OpeningTheViewer, AFirstShotThatIsDamagedIsAFailure) {
    write("Shot0001.bmp", "damaged");
    write("Shot0002.bmp");
    EXPECT_EQ(errorOf([&] { viewer.LoadScreenshotList(); }), errors::InvalidPicture);
    EXPECT_EQ(screen.caption, "UT Screenshot Viewer");
}

TEST_F(OpeningTheViewer, LetterCaseOfTheFolderDoesNotMatter) {
    write("Shot0001.bmp");
    program().gamePaths.UTSysPath = "c:\\ut\\SYSTEM";
    viewer.LoadScreenshotList();
    EXPECT_EQ(screen.shown, "Shot0001.bmp");
    EXPECT_EQ(screen.caption, "Now Viewing: c:\\ut\\SYSTEM\\Shot0001.bmp");
}

TEST_F(OpeningTheViewer, NamesOutsideAsciiAreNamesToo) {
    if (!hasOddNames()) GTEST_SKIP() << noOddNames;
    open({"Shot ñandú.bmp", "Shot-Größe.BMP", "Shot\xE9.bmp", "ShotЖ.bmp"});
    for (int i = 1; i < 4; ++i) viewer.select(i);
    EXPECT_THAT(screen.names,
                ElementsAre("Shot ñandú.bmp", "Shot-Größe.BMP", "ShotЖ.bmp", "Shot\xE9.bmp"));
    EXPECT_EQ(screen.shown, "Shot\xE9.bmp");
}

class SteppingThrough : public ViewerTest {};

TEST_F(SteppingThrough, AChoiceLoadsThePictureAndCutsTheHiddenWindowToIt) {
    write("Shot0002.bmp", "12000 9000");
    open({"Shot0001.bmp"});
    EXPECT_THAT(
        stepsOf([&] { viewer.select(1); }),
        ElementsAre("select 1", "load Shot0002.bmp", "hide", "caption", "form 12100 9345", "show"));
    EXPECT_EQ(screen.caption, "Now Viewing: C:\\UT\\System\\Shot0002.bmp");
}

TEST_F(SteppingThrough, APictureIsReadOnceForEachStep) {
    open({"Shot0001.bmp", "Shot0002.bmp", "Shot0003.bmp"});
    const int before = disk().host.count(Call::Read);
    viewer.nextPicture();
    viewer.nextPicture();
    EXPECT_EQ(disk().host.count(Call::Read) - before, 2);
}

TEST_F(SteppingThrough, NextAndPreviousGoByOne) {
    open({"Shot0001.bmp", "Shot0002.bmp", "Shot0003.bmp"});
    viewer.nextPicture();
    EXPECT_EQ(screen.shown, "Shot0002.bmp");
    viewer.nextPicture();
    EXPECT_EQ(screen.shown, "Shot0003.bmp");
    viewer.previousPicture();
    EXPECT_EQ(screen.shown, "Shot0002.bmp");
    EXPECT_EQ(screen.selection, 1);
}

TEST_F(SteppingThrough, NextAtTheLastChangesNothing) {
    open({"Shot0001.bmp", "Shot0002.bmp"}, 1);
    EXPECT_THAT(stepsOf([&] { viewer.nextPicture(); }), IsEmpty());
    EXPECT_EQ(viewer.List1.index(), 1);
}

TEST_F(SteppingThrough, PreviousAtTheFirstSelectsNothingAndKeepsPictureAndCaption) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    EXPECT_THAT(stepsOf([&] { viewer.previousPicture(); }), ElementsAre("select -1"));
    EXPECT_EQ(screen.shown, "Shot0001.bmp");
    EXPECT_EQ(screen.caption, "Now Viewing: C:\\UT\\System\\Shot0001.bmp");
    EXPECT_TRUE(screen.visible);
}

TEST_F(SteppingThrough, NextAfterThatGoesToTheFirst) {
    open({"Shot0001.bmp", "Shot0002.bmp"}, 1);
    for (int i = 0; i < 2; ++i) viewer.previousPicture();
    EXPECT_THAT(
        stepsOf([&] { viewer.nextPicture(); }),
        ElementsAre("select 0", "load Shot0001.bmp", "hide", "caption", "form 9700 7545", "show"));
    EXPECT_EQ(viewer.List1.index(), 0);
}

TEST_F(SteppingThrough, PreviousWithNothingSelectedChangesNothing) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    viewer.previousPicture();
    EXPECT_THAT(stepsOf([&] { viewer.previousPicture(); }), IsEmpty());
    EXPECT_EQ(viewer.List1.index(), -1);
}

TEST_F(SteppingThrough, AChosenPictureThatIsDamagedIsAFailureAndLeavesTheFormHidden) {
    write("Shot0002.bmp", "damaged");
    open({"Shot0001.bmp"});
    EXPECT_EQ(errorOf([&] { viewer.select(1); }), errors::InvalidPicture);
    EXPECT_FALSE(screen.visible);
    EXPECT_EQ(screen.shown, "Shot0001.bmp");
    EXPECT_EQ(screen.caption, "Now Viewing: C:\\UT\\System\\Shot0001.bmp");
    EXPECT_EQ(viewer.List1.index(), 1);
}

TEST_F(SteppingThrough, AChosenPictureThatHasGoneIsAFailureToo) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    std::filesystem::remove(disk().at(shot("Shot0002.bmp")));
    EXPECT_EQ(errorOf([&] { viewer.select(1); }), errors::FileNotFound);
    EXPECT_FALSE(screen.visible);
}

TEST_F(SteppingThrough, NextIgnoresADamagedPictureButTheFormStaysHiddenUntilTheStepAfterIt) {
    write("Shot0002.bmp", "damaged");
    open({"Shot0001.bmp", "Shot0003.bmp"});
    viewer.nextPicture();
    EXPECT_FALSE(screen.visible);
    EXPECT_EQ(viewer.List1.index(), 1);
    viewer.nextPicture();
    EXPECT_TRUE(screen.visible);
    EXPECT_EQ(screen.shown, "Shot0003.bmp");
}

TEST_F(SteppingThrough, PreviousIgnoresASystemFolderThatHasGone) {
    open({"Shot0001.bmp", "Shot0002.bmp"}, 1);
    disk().host.vanish(disk().at(shotFolder));
    viewer.previousPicture();
    EXPECT_FALSE(screen.visible);
    EXPECT_EQ(screen.shown, "Shot0002.bmp");
}

TEST_F(SteppingThrough, AShotThatWasTakenMeanwhileDoesNotAppear) {
    open({"Shot0001.bmp", "Shot0003.bmp"});
    write("Shot0002.bmp");
    viewer.nextPicture();
    EXPECT_EQ(screen.shown, "Shot0003.bmp");
}

class FullScreen : public ViewerTest {};

TEST_F(FullScreen, StretchesThePictureToTheScreenLessTheFrame) {
    open({"Shot0001.bmp"});
    EXPECT_THAT(
        stepsOf([&] { viewer.toggleFullScreen(); }),
        ElementsAre("stretch", "form 15360 11520", "picture 15260 11175", "center", "top", "left"));
}

TEST_F(FullScreen, TheSameItemGoesBackToTheSizeThatWas) {
    open({"Shot0001.bmp"});
    viewer.toggleFullScreen();
    EXPECT_THAT(
        stepsOf([&] { viewer.toggleFullScreen(); }),
        ElementsAre("form 9700 7545", "picture 9600 7200", "repaint", "center", "no stretch"));
    EXPECT_EQ(screen.picture, (TwipsSize{9600, 7200}));
    viewer.toggleFullScreen();
    EXPECT_TRUE(screen.stretched);
}

TEST_F(FullScreen, AStepKeepsTheSizeAndGoesToTheLeftEdge) {
    write("Shot0002.bmp", "3000 2000");
    open({"Shot0001.bmp"});
    viewer.toggleFullScreen();
    EXPECT_THAT(stepsOf([&] { viewer.nextPicture(); }),
                ElementsAre("select 1", "load Shot0002.bmp", "hide", "caption", "form 15360 11520",
                            "left", "show"));
    EXPECT_EQ(screen.picture, (TwipsSize{15260, 11175}));
}

TEST_F(FullScreen, LeftOnAPictureOfAnotherSizeTheWindowFitsItFromTheNextStepOn) {
    write("Shot0002.bmp", "3000 2000");
    write("Shot0003.bmp", "4000 3000");
    open({"Shot0001.bmp"});
    viewer.toggleFullScreen();
    viewer.nextPicture();
    viewer.toggleFullScreen();
    EXPECT_EQ(screen.form, (TwipsSize{9700, 7545}));
    EXPECT_EQ(screen.picture, (TwipsSize{3000, 2000}));
    EXPECT_THAT(
        stepsOf([&] { viewer.nextPicture(); }),
        ElementsAre("select 2", "load Shot0003.bmp", "hide", "caption", "form 4100 3345", "show"));
}

TEST_F(FullScreen, AFormOf32767TwipsIsTheLargest) {
    write("Shot0001.bmp", "32667 32422");
    open({});
    viewer.toggleFullScreen();
    viewer.toggleFullScreen();
    EXPECT_EQ(screen.form, (TwipsSize{32767, 32767}));
}

TEST_F(FullScreen, AWiderOrTallerFormOverflowsBeforeAnythingChanges) {
    write("Shot0001.bmp", "32668 7200");
    write("Shot0002.bmp", "9600 32423");
    open({});
    EXPECT_EQ(errorOf([&] { viewer.toggleFullScreen(); }), errors::Overflow);
    viewer.select(1);
    EXPECT_EQ(errorOf([&] { viewer.toggleFullScreen(); }), errors::Overflow);
    EXPECT_FALSE(screen.stretched);
    EXPECT_EQ(screen.form, (TwipsSize{9700, 32768}));
}

TEST_F(FullScreen, AFormDesignedTooLargeFailsToLoad) {
    write("Shot0001.bmp");
    screen.form = {40000, 5000};
    EXPECT_EQ(errorOf([&] { viewer.LoadScreenshotList(); }), errors::Overflow);
}

}  // namespace
}  // namespace tessaro::test
