#include "screenshots/shotformfixture.h"

namespace tessaro::test {
namespace {

class ShotsThatCannotBeRead : public ShotFormTest {
  protected:
    // The second of three is damaged.
    void openWithDamaged(const std::string& bytes) {
        take({"Shot0001.bmp", "Shot0002.bmp", "Shot0003.bmp"});
        disk_.write(shot("Shot0002.bmp"), bytes);
        open();
    }
    static std::string huge() {
        return bytesOf({.width = 60000, .height = 60000, .palette = {}, .rows = "123"});
    }
};

TEST_F(ShotsThatCannotBeRead, ReachedByAKeyEndTheProgramWithTheReport) {
    openWithDamaged("");
    bool visible = true;
    world_.dialogs.whileOpen = [&] { visible = form().isVisible(); };
    world_.dialogs.answer(Answer::Ok);
    press(Qt::Key_Down);
    EXPECT_EQ(world_.dialogs.messages.at(0).text, "Run-time error '481':\n\nInvalid picture");
    EXPECT_FALSE(visible);
    EXPECT_TRUE(end_.ended());
}

TEST_F(ShotsThatCannotBeRead, ReachedByTheMenuLeaveTheViewerHidden) {
    openWithDamaged(huge());
    choose("mnunext");
    EXPECT_FALSE(form().isVisible());
    EXPECT_EQ(list().currentIndex().row(), 1);
    EXPECT_FALSE(end_.ended());
    forms_.show<screenshot>();
    EXPECT_TRUE(form().isVisible());
    EXPECT_EQ(blueShown(), 1);
    EXPECT_EQ(caption(), viewing("Shot0001.bmp"));
    choose("mnufullscrn");
    EXPECT_TRUE(form().isVisible());
    choose("mnunext");
    EXPECT_TRUE(form().isVisible());
    EXPECT_EQ(blueShown(), 3);
}

TEST_F(ShotsThatCannotBeRead, ThatHaveGoneEndTheProgramToo) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    std::filesystem::remove(disk_.at(shot("Shot0002.bmp")));
    world_.dialogs.answer(Answer::Ok);
    press(Qt::Key_Down);
    EXPECT_EQ(world_.dialogs.messages.at(0).text, "Run-time error '53':\n\nFile not found");
}

TEST_F(ShotsThatCannotBeRead, WithTheirWholeFolderEndTheProgramToo) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    disk_.host.vanish(disk_.at(folder));
    world_.dialogs.answer(Answer::Ok);
    press(Qt::Key_Down);
    EXPECT_EQ(world_.dialogs.messages.at(0).text, "Run-time error '53':\n\nFile not found");
    EXPECT_TRUE(end_.ended());
}

TEST_F(ShotsThatCannotBeRead, ThatAreOnlyCutShortAreShown) {
    openWithDamaged(shotBytes(60, 40, 2).substr(0, 54 + 180 * 10));
    press(Qt::Key_Down);
    EXPECT_EQ(caption(), viewing("Shot0002.bmp"));
    const QImage shown = form().grab().toImage();
    EXPECT_EQ(shown.pixelColor(5, 39), QColor(5, 39, 2));
    EXPECT_EQ(shown.pixelColor(5, 30), QColor(5, 30, 2));
    EXPECT_EQ(shown.pixelColor(5, 29), QColor(0, 0, 0));
}

class ScreenshotMenuItems : public ShotFormTest {
  protected:
    ScreenshotMenuItems() { start(); }
};

TEST_F(ScreenshotMenuItems, BothOpenTheOneViewerWithoutBlocking) {
    take({"Shot0001.bmp"});
    for (const char* item : {"mnuviewscrnshot", "mnurscrnsht", "mnuviewscrnshot"}) {
        menuItem(item).trigger();
        ASSERT_NE(loaded(), nullptr) << item;
        EXPECT_TRUE(form().isVisible());
        EXPECT_FALSE(form().isModal());
    }
    int windows = 0;
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String("screenshot")) ++windows;
    EXPECT_EQ(windows, 1);
}

TEST_F(ScreenshotMenuItems, F9OpensTheViewer) {
    take({"Shot0001.bmp"});
    MainFrm& main = forms_.get<MainFrm>();
    main.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    QTest::keyClick(&main, Qt::Key_F9);
    EXPECT_NE(loaded(), nullptr);
}

TEST_F(ScreenshotMenuItems, OnTheBarIsSilentAboutAViewerThatFailsToOpen) {
    disk_.write(shot("Shot0001.bmp"), "damaged");
    menuItem("mnuviewscrnshot").trigger();
    EXPECT_EQ(loaded(), nullptr);
    EXPECT_FALSE(end_.ended());
    take({"Shot0001.bmp"});
    menuItem("mnuviewscrnshot").trigger();
    EXPECT_NE(loaded(), nullptr);
}

TEST_F(ScreenshotMenuItems, OnTheBarIsSilentAboutASystemFolderThatHasGone) {
    disk_.host.vanish(disk_.at(folder));
    menuItem("mnuviewscrnshot").trigger();
    EXPECT_EQ(loaded(), nullptr);
    EXPECT_FALSE(end_.ended());
}

TEST_F(ScreenshotMenuItems, InThePopUpMenuReportsIt) {
    disk_.write(shot("Shot0001.bmp"), "damaged");
    world_.dialogs.answer(Answer::Ok);
    menuItem("mnurscrnsht").trigger();
    EXPECT_EQ(world_.dialogs.messages.at(0).text, "Run-time error '481':\n\nInvalid picture");
    EXPECT_TRUE(end_.ended());
}

TEST_F(ScreenshotMenuItems, WithoutShotsTellSoOverTheMainWindowWhichStays) {
    world_.dialogs.answer(Answer::Ok);
    menuItem("mnuviewscrnshot").trigger();
    EXPECT_EQ(world_.dialogs.messages.at(0).title, "Screenshots Not Found");
    EXPECT_TRUE(forms_.get<MainFrm>().isVisible());
}

}  // namespace
}  // namespace tessaro::test
