#include <gmock/gmock.h>

#include "screenshots/viewerfixture.h"
#include "support/disk.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DeletingAShot : public ViewerTest {
  protected:
    void confirm() { dialogs().answer(Answer::Ok); }
    std::vector<std::string> deletion() {
        return stepsOf([&] { viewer.DeleteSelectedPicture(); });
    }
    std::vector<std::string> filesLeft() { return disk().names(shotFolder); }
};

TEST_F(DeletingAShot, AsksFirstByName) {
    open({"Shot0001.bmp", "Shot0002.bmp"}, 1);
    dialogs().answer(Answer::Cancel);
    EXPECT_THAT(deletion(), IsEmpty());
    EXPECT_THAT(dialogs().messages,
                ElementsAre(Message{"Do you wish to delete Shot0002.bmp from your hard drive?",
                                    "Delete Screenshot?", Buttons::OkCancel, Icon::None}));
    EXPECT_THAT(filesLeft(), ElementsAre("Shot0001.bmp", "Shot0002.bmp"));
    EXPECT_EQ(viewer.List1.index(), 1);
}

TEST_F(DeletingAShot, InTheMiddleShowsTheOneBefore) {
    open({"Shot0001.bmp", "Shot0002.bmp", "Shot0003.bmp"}, 1);
    confirm();
    EXPECT_THAT(deletion(), ElementsAre("remove 1",                                   //
                                        "select 0", "load Shot0001.bmp",              // click
                                        "hide", "caption", "form 9700 7545", "show",  // scroll
                                        "hide", "load Shot0001.bmp", "caption",       // at last
                                        "form 9700 7545", "show"));
    EXPECT_THAT(filesLeft(), ElementsAre("Shot0001.bmp", "Shot0003.bmp"));
    EXPECT_EQ(screen.names, filesLeft());
    EXPECT_EQ(viewer.List1.selectedName(), "Shot0001.bmp");
}

TEST_F(DeletingAShot, OfTheLastShowsTheOneBefore) {
    open({"Shot0001.bmp", "Shot0002.bmp", "Shot0003.bmp"}, 2);
    confirm();
    deletion();
    EXPECT_THAT(filesLeft(), ElementsAre("Shot0001.bmp", "Shot0002.bmp"));
    EXPECT_EQ(screen.shown, "Shot0002.bmp");
    EXPECT_EQ(screen.caption, "Now Viewing: C:\\UT\\System\\Shot0002.bmp");
    EXPECT_EQ(screen.selection, 1);
}

TEST_F(DeletingAShot, OfTheFirstShowsTheNewFirst) {
    open({"Shot0001.bmp", "Shot0002.bmp", "Shot0003.bmp"});
    confirm();
    deletion();
    EXPECT_THAT(filesLeft(), ElementsAre("Shot0002.bmp", "Shot0003.bmp"));
    EXPECT_EQ(screen.shown, "Shot0002.bmp");
    EXPECT_EQ(screen.selection, 0);
    EXPECT_TRUE(screen.visible);
}

TEST_F(DeletingAShot, OneOfTwoShowsTheOther) {
    for (const int index : {1, 0}) {
        viewer.List1 = {};
        open({"Shot0001.bmp", "Shot0002.bmp"}, index);
        confirm();
        deletion();
        EXPECT_EQ(screen.shown, index == 0 ? "Shot0002.bmp" : "Shot0001.bmp");
        EXPECT_EQ(viewer.List1.index(), 0);
    }
}

TEST_F(DeletingAShot, OfTheOnlyOneEndsTheViewer) {
    open({"Shot0001.bmp"});
    confirm();
    dialogs().answer(Answer::Ok);
    bool enabledInTheBox = true;
    dialogs().whileOpen = [&] { enabledInTheBox = screen.enabled; };
    EXPECT_THAT(deletion(), ElementsAre("remove 0", "unload"));
    EXPECT_FALSE(enabledInTheBox);
    EXPECT_EQ(dialogs().messages.at(1),
              (Message{"No More Pictures to View. Screenshot Viewer will now exit",
                       "No Files Found", Buttons::Ok, Icon::Stop}));
    EXPECT_THAT(filesLeft(), IsEmpty());
}

TEST_F(DeletingAShot, WithNothingSelectedTheQuestionNamesNothing) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    viewer.previousPicture();
    dialogs().answer(Answer::Cancel);
    EXPECT_THAT(deletion(), IsEmpty());
    EXPECT_EQ(dialogs().messages.at(0).text, "Do you wish to delete  from your hard drive?");
}

TEST_F(DeletingAShot, WithNothingSelectedFailsAndDeletesNothing) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    write("UnrealTournament.ini");
    viewer.previousPicture();
    confirm();
    EXPECT_EQ(errorOf([&] { viewer.DeleteSelectedPicture(); }), errors::FileNotFound);
    EXPECT_THAT(filesLeft(), ElementsAre("Shot0001.bmp", "Shot0002.bmp", "UnrealTournament.ini"));
    EXPECT_EQ(viewer.List1.count(), 2);
}

TEST_F(DeletingAShot, ARefusalIsAFailureAndChangesNothing) {
    open({"Shot0001.bmp", "Shot0002.bmp"}, 1);
    confirm();
    disk().host.refuse(Call::RemoveFile, errors::PermissionDenied, "Shot0002");
    EXPECT_EQ(errorOf([&] { viewer.DeleteSelectedPicture(); }), errors::PermissionDenied);
    EXPECT_THAT(screen.names, ElementsAre("Shot0001.bmp", "Shot0002.bmp"));
    EXPECT_EQ(viewer.List1.index(), 1);
    EXPECT_TRUE(screen.visible);
}

TEST_F(DeletingAShot, AReadOnlyShotIsNotDeleted) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    std::filesystem::permissions(disk().at(shot("Shot0001.bmp")),
                                 std::filesystem::perms::owner_read);
    confirm();
    EXPECT_EQ(errorOf([&] { viewer.DeleteSelectedPicture(); }), errors::PathFileAccess);
    EXPECT_THAT(filesLeft(), ElementsAre("Shot0001.bmp", "Shot0002.bmp"));
}

TEST_F(DeletingAShot, OneThatHasGoneIsAFailure) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    std::filesystem::remove(disk().at(shot("Shot0001.bmp")));
    confirm();
    EXPECT_EQ(errorOf([&] { viewer.DeleteSelectedPicture(); }), errors::FileNotFound);
    EXPECT_EQ(viewer.List1.count(), 2);
}

TEST_F(DeletingAShot, BesideADamagedOneFailsOnceTheFileIsGone) {
    write("Shot0001.bmp");
    open({"Shot0002.bmp"}, 1);
    write("Shot0001.bmp", "damaged");
    confirm();
    EXPECT_EQ(errorOf([&] { viewer.DeleteSelectedPicture(); }), errors::InvalidPicture);
    EXPECT_THAT(filesLeft(), ElementsAre("Shot0001.bmp"));
    EXPECT_FALSE(screen.visible);
}

TEST_F(DeletingAShot, TakesTheFileOfExactlyThatLetterCase) {
    if (!hasCases()) GTEST_SKIP() << noCases;
    open({"shot0001.bmp", "SHOT0001.BMP", "Shot0001.bmp"}, 1);
    const std::string name = viewer.List1.selectedName();
    confirm();
    deletion();
    EXPECT_EQ(screen.names.size(), 2u);
    EXPECT_FALSE(disk().exists(shot(name))) << name;
    EXPECT_EQ(filesLeft().size(), 2u);
}

TEST_F(DeletingAShot, AnAsteriskInItsNameTakesNoOtherWithIt) {
    if (!hasOddNames()) GTEST_SKIP() << noOddNames;
    open({"Shot*.bmp", "Shot0001.bmp", "Shot0002.bmp"}, 2);
    confirm();
    deletion();
    EXPECT_THAT(filesLeft(), ElementsAre("Shot0001.bmp", "Shot0002.bmp"));
}

TEST_F(DeletingAShot, InTheFullScreenKeepsTheSize) {
    write("Shot0002.bmp", "3000 2000");
    open({"Shot0001.bmp"});
    viewer.toggleFullScreen();
    confirm();
    deletion();
    EXPECT_EQ(screen.shown, "Shot0002.bmp");
    EXPECT_EQ(screen.form, screen.screen);
}

}  // namespace
}  // namespace tessaro::test
