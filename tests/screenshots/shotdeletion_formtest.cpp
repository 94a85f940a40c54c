#include <gmock/gmock.h>

#include "screenshots/shotformfixture.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DeletingInTheForm : public ShotFormTest {
  protected:
    void remove() {
        world_.dialogs.answer(Answer::Ok);
        choose("mnudelpic");
        serveEvents();
    }
    std::vector<std::string> shotsLeft() {
        std::vector<std::string> names = disk_.names(folder);
        std::erase_if(names, [](const std::string& name) { return !isScreenshotName(name); });
        return names;
    }
};

TEST_F(DeletingInTheForm, ShowsTheOneBeforeIt) {
    open({"Shot0001.bmp", "Shot0002.bmp", "Shot0003.bmp"});
    press(Qt::Key_Down);
    remove();
    EXPECT_THAT(shotsLeft(), ElementsAre("Shot0001.bmp", "Shot0003.bmp"));
    EXPECT_EQ(blueShown(), 1);
    EXPECT_EQ(caption(), viewing("Shot0001.bmp"));
    EXPECT_EQ(list().model()->rowCount(), 2);
    EXPECT_EQ(list().currentIndex().row(), 0);
    press(Qt::Key_Down);
    EXPECT_EQ(blueShown(), 3);
}

TEST_F(DeletingInTheForm, OfTheFirstShowsTheNewFirst) {
    open({"Shot0001.bmp", "Shot0002.bmp", "Shot0003.bmp"});
    remove();
    EXPECT_THAT(shotsLeft(), ElementsAre("Shot0002.bmp", "Shot0003.bmp"));
    EXPECT_EQ(blueShown(), 2);
    EXPECT_EQ(list().currentIndex().row(), 0);
}

TEST_F(DeletingInTheForm, OfTheLastShowsTheOneBefore) {
    open({"Shot0001.bmp", "Shot0002.bmp", "Shot0003.bmp"});
    press(Qt::Key_End);
    remove();
    EXPECT_THAT(shotsLeft(), ElementsAre("Shot0001.bmp", "Shot0002.bmp"));
    EXPECT_EQ(blueShown(), 2);
    EXPECT_EQ(list().currentIndex().row(), 1);
}

TEST_F(DeletingInTheForm, OfTheOnlyOneEndsTheViewer) {
    open({"Shot0001.bmp"});
    bool enabled = true;
    world_.dialogs.whileOpen = [&] { enabled = picture().isEnabled(); };
    world_.dialogs.answer(Answer::Ok);
    remove();
    EXPECT_FALSE(enabled);
    EXPECT_EQ(world_.dialogs.messages.at(1).title, "No Files Found");
    EXPECT_EQ(loaded(), nullptr);
    EXPECT_THAT(shotsLeft(), IsEmpty());
}

TEST_F(DeletingInTheForm, CancelKeepsTheShot) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    world_.dialogs.answer(Answer::Cancel);
    choose("mnudelpic");
    EXPECT_THAT(shotsLeft(), ElementsAre("Shot0001.bmp", "Shot0002.bmp"));
    EXPECT_EQ(blueShown(), 1);
}

TEST_F(DeletingInTheForm, WithNothingSelectedNamesNothingAndFails) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    choose("mnuprev");
    world_.dialogs.answer(Answer::Ok);
    remove();
    EXPECT_EQ(world_.dialogs.messages.at(0).text, "Do you wish to delete  from your hard drive?");
    EXPECT_EQ(world_.dialogs.messages.at(1).text, "Run-time error '53':\n\nFile not found");
    EXPECT_TRUE(end_.ended());
    EXPECT_THAT(shotsLeft(), ElementsAre("Shot0001.bmp", "Shot0002.bmp"));
}

TEST_F(DeletingInTheForm, ARefusalIsReportedAndEndsTheProgram) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    disk_.host.refuse(Call::RemoveFile, errors::PermissionDenied, "Shot0001");
    world_.dialogs.answer(Answer::Ok);
    remove();
    EXPECT_EQ(world_.dialogs.messages.at(1).text, "Run-time error '70':\n\nPermission denied");
    EXPECT_TRUE(end_.ended());
    EXPECT_THAT(shotsLeft(), ElementsAre("Shot0001.bmp", "Shot0002.bmp"));
}

TEST_F(DeletingInTheForm, AShotThatHasGoneIsReportedAndEndsTheProgram) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    std::filesystem::remove(disk_.at(shot("Shot0001.bmp")));
    world_.dialogs.answer(Answer::Ok);
    remove();
    EXPECT_EQ(world_.dialogs.messages.at(1).text, "Run-time error '53':\n\nFile not found");
    EXPECT_TRUE(end_.ended());
}

}  // namespace
}  // namespace tessaro::test
