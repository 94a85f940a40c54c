#include <QAccessible>
#include <QProcess>
#include <QScreen>

#include "screenshots/shotformfixture.h"

namespace tessaro::test {
namespace {

class ScreenshotForm : public ShotFormTest {};

TEST_F(ScreenshotForm, ShowsTheFirstShotInAnOrdinaryWindowCutToIt) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    EXPECT_TRUE(form().isVisible());
    EXPECT_FALSE(form().isModal());
    EXPECT_FALSE(form().windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(caption(), viewing("Shot0001.bmp"));
    EXPECT_EQ(form().size(), QSize(60, 40));
    EXPECT_EQ(picture().geometry(), QRect(0, 0, 60, 40));
    EXPECT_EQ(picture().toolTip(), QStringLiteral("Right Click for options"));
}

TEST_F(ScreenshotForm, ShowsEveryPixelOfThePictureAsItIs) {
    open({"Shot0001.bmp"});
    const QImage shown = form().grab().toImage();
    ASSERT_EQ(shown.size(), QSize(60, 40));
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 60; ++x) ASSERT_EQ(shown.pixelColor(x, y), QColor(x, y, 1));
}

// Whether this very test passes in a process of its own on a screen of 150 %.
bool passesOnAFinerScreen() {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("1.5"));
    // The child has one test to run, whichever share of all its parent has.
    for (const char* share : {"GTEST_TOTAL_SHARDS", "GTEST_SHARD_INDEX"})
        environment.remove(QLatin1String(share));
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--gtest_filter=%1.%2")
                     .arg(QLatin1String(test->test_suite_name()), QLatin1String(test->name()))});
    return child.waitForFinished(-1) && child.exitStatus() == QProcess::NormalExit &&
           child.exitCode() == 0 && child.readAllStandardOutput().contains("[  PASSED  ] 1 test.");
}

TEST_F(ScreenshotForm, ShowsThemAsTheyAreOnAScreenOf150PercentToo) {
    if (qApp->devicePixelRatio() != 1.5) {
        EXPECT_TRUE(passesOnAFinerScreen());
        return;
    }
    disk_.write(shot("Shot0001.bmp"), shotBytes(61, 43, 1));
    open();
    EXPECT_EQ(form().size(), QSize(41, 29));  // 40.7 by 28.7
    const QImage shown = form().grab().toImage();
    for (int y = 0; y < 43; ++y)
        for (int x = 0; x < 61; ++x) ASSERT_EQ(shown.pixelColor(x, y), QColor(x, y, 1));
    choose("mnufullscrn");
    serveEvents();
    EXPECT_EQ(form().frameGeometry(), form().screen()->geometry());
}

TEST_F(ScreenshotForm, DownAndUpStepThroughTheShots) {
    open({"Shot0001.bmp", "shot0002.BMP", "Shot0003.bmp"});
    press(Qt::Key_Down);
    EXPECT_EQ(blueShown(), 2);
    EXPECT_EQ(caption(), viewing("shot0002.BMP"));
    press(Qt::Key_Down);
    EXPECT_EQ(blueShown(), 3);
    press(Qt::Key_Up);
    EXPECT_EQ(blueShown(), 2);
    EXPECT_EQ(caption(), viewing("shot0002.BMP"));
}

TEST_F(ScreenshotForm, TheKeysStopAtBothEnds) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    press(Qt::Key_Up);
    EXPECT_EQ(list().currentIndex().row(), 0);
    for (int i = 0; i < 3; ++i) press(Qt::Key_Down);
    EXPECT_EQ(list().currentIndex().row(), 1);
    EXPECT_EQ(blueShown(), 2);
}

TEST_F(ScreenshotForm, HomeAndEndGoToTheFirstAndTheLast) {
    open({"Shot0001.bmp", "Shot0002.bmp", "Shot0003.bmp"});
    press(Qt::Key_End);
    EXPECT_EQ(blueShown(), 3);
    press(Qt::Key_Home);
    EXPECT_EQ(blueShown(), 1);
}

TEST_F(ScreenshotForm, TheMenuSteps) {
    open({"Shot0001.bmp", "Shot0002.bmp", "Shot0003.bmp"});
    for (int i = 0; i < 4; ++i) choose("mnunext");
    EXPECT_EQ(blueShown(), 3);
    EXPECT_EQ(list().currentIndex().row(), 2);
    choose("mnuprev");
    EXPECT_EQ(blueShown(), 2);
    EXPECT_EQ(caption(), viewing("Shot0002.bmp"));
}

TEST_F(ScreenshotForm, PreviousOnTheFirstSelectsNothingAndNextGoesBackToIt) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    choose("mnuprev");
    choose("mnuprev");
    EXPECT_FALSE(list().currentIndex().isValid());
    EXPECT_EQ(blueShown(), 1);
    EXPECT_EQ(caption(), viewing("Shot0001.bmp"));
    choose("mnunext");
    EXPECT_EQ(list().currentIndex().row(), 0);
    EXPECT_EQ(blueShown(), 1);
}

TEST_F(ScreenshotForm, DownAfterThatGoesToTheFirstToo) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    press(Qt::Key_Down);
    choose("mnuprev");
    choose("mnuprev");
    EXPECT_EQ(caption(), viewing("Shot0001.bmp"));
    press(Qt::Key_Down);
    EXPECT_EQ(list().currentIndex().row(), 0);
}

TEST_F(ScreenshotForm, TheWindowFollowsThePictureAndStaysWhereItIs) {
    disk_.write(shot("Shot0002.bmp"), shotBytes(200, 90, 2));
    open({"Shot0001.bmp"});
    form().move(33, 44);
    press(Qt::Key_Down);
    EXPECT_EQ(form().size(), QSize(200, 90));
    EXPECT_EQ(picture().size(), QSize(200, 90));
    EXPECT_EQ(form().pos(), QPoint(33, 44));
}

TEST_F(ScreenshotForm, AStepLeavesTheWindowOnTheScreen) {
    struct : QObject {
        int hidden = 0;
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Hide) ++hidden;
            return false;
        }
    } watcher;
    open({"Shot0001.bmp", "Shot0002.bmp"}).installEventFilter(&watcher);
    press(Qt::Key_Down);
    EXPECT_EQ(watcher.hidden, 0);
    EXPECT_EQ(blueShown(), 2);
}

TEST_F(ScreenshotForm, TheListLiesFarOutsideTheWindowOneRowHigh) {
    open({"Shot0001.bmp"});
    EXPECT_EQ(list().geometry(), QRect(13333, 4000, 9, 17));
    EXPECT_TRUE(list().isVisible());
    EXPECT_EQ(form().focusWidget(), &list());
}

TEST_F(ScreenshotForm, AClickOnThePictureOrTheFormGivesTheListTheFocus) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    for (QWidget* clicked : {static_cast<QWidget*>(&picture()), static_cast<QWidget*>(&form())}) {
        list().clearFocus();
        ASSERT_NE(form().focusWidget(), &list());
        QTest::mouseClick(clicked, Qt::LeftButton, {}, QPoint(5, 5));
        EXPECT_EQ(form().focusWidget(), &list());
    }
}

TEST_F(ScreenshotForm, TheMenuBearsItsNamesAndCaptions) {
    open({"Shot0001.bmp"});
    QStringList items;
    for (const QAction* item : menu().actions())
        items +=
            item->objectName() + u'=' + (item->isSeparator() ? QStringLiteral("-") : item->text());
    EXPECT_EQ(items, (QStringList{"mnunext=Next Picture          [Down Arrow]",
                                  "mnuprev=Previous Picture    [Up Arrow]",
                                  "mnufullscrn=Full Screen", "mnuhgsdi=-",
                                  "mnudelpic=&Delete Picture", "mnuhyph=-", "mnuclose=&Close"}));
    EXPECT_EQ(menu().title(), QStringLiteral("rcmenu"));
}

TEST_F(ScreenshotForm, ThePressOfTheRightButtonPopsTheMenuUp) {
    open({"Shot0001.bmp"});
    QTest::mousePress(&picture(), Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_FALSE(menu().isVisible());
    QTest::mousePress(&picture(), Qt::RightButton, {}, QPoint(20, 10));
    EXPECT_TRUE(menu().isVisible());
    EXPECT_EQ(menu().pos(), picture().mapToGlobal(QPoint(20, 10)));
    menu().close();
}

TEST_F(ScreenshotForm, TheMenuKeyPopsItUpAtThePicture) {
    open({"Shot0001.bmp"});
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), list().mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(&list(), &event);
    EXPECT_TRUE(menu().isVisible());
    EXPECT_TRUE(form().geometry().contains(menu().pos()));
    menu().close();
}

TEST_F(ScreenshotForm, CloseClosesItAndEscDoesNot) {
    open({"Shot0001.bmp"});
    press(Qt::Key_Escape);
    EXPECT_NE(loaded(), nullptr);
    choose("mnuclose");
    EXPECT_EQ(loaded(), nullptr);
}

TEST_F(ScreenshotForm, OpensAfreshEachTime) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    press(Qt::Key_Down);
    choose("mnufullscrn");
    choose("mnuclose");
    take({"Shot0000.bmp"});
    open();
    EXPECT_EQ(caption(), viewing("Shot0000.bmp"));
    EXPECT_EQ(form().size(), QSize(60, 40));
}

TEST_F(ScreenshotForm, WithoutShotsSaysSoAndIsGone) {
    world_.dialogs.answer(Answer::Ok);
    guarded(forms_, [this] { forms_.show<screenshot>(); });
    EXPECT_EQ(world_.dialogs.messages.at(0).text, "No Screenshots Found in UT System Folder");
    EXPECT_EQ(loaded(), nullptr);
    EXPECT_FALSE(end_.ended());
}

TEST_F(ScreenshotForm, NamesOutsideAsciiAreShownAndFound) {
    open({"Shot Größe Ж.BMP", "shot ñandú.bmp"});
    press(Qt::Key_Down);
    EXPECT_EQ(caption(), viewing("shot ñandú.bmp"));
    EXPECT_EQ(blueShown(), 2);
}

TEST_F(ScreenshotForm, ANameThatIsNoUtf8IsFoundToo) {
    open({"Shot\xE9.bmp"});
    EXPECT_EQ(caption(), viewing("Shot\xEF\xBF\xBD.bmp"));
    EXPECT_EQ(blueShown(), 1);
}

TEST_F(ScreenshotForm, IsToldToAScreenReader) {
    open({"Shot0001.bmp", "Shot0002.bmp"});
    press(Qt::Key_Down);
    QAccessibleInterface* read = QAccessible::queryAccessibleInterface(&picture());
    EXPECT_EQ(read->role(), QAccessible::Graphic);
    EXPECT_EQ(read->text(QAccessible::Name), QStringLiteral("Shot0002.bmp"));
    EXPECT_EQ(read->text(QAccessible::Description), QStringLiteral("Right Click for options"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&list())->text(QAccessible::Name),
              QStringLiteral("Screenshots"));
    EXPECT_EQ(list().currentIndex().data().toString(), QStringLiteral("Shot0002.bmp"));
}

TEST_F(ScreenshotForm, WearsNoSkin) {
    program_.settings.Skin = "2";
    open({"Shot0001.bmp"});
    EXPECT_NE(list().palette().color(QPalette::Base), QColor(192, 0, 0));
}

class ShotsOnTheFullScreen : public ShotFormTest {
  protected:
    // The window with its frame covers the whole screen.
    void expectFullScreen() {
        EXPECT_EQ(form().frameGeometry(), form().screen()->geometry());
        EXPECT_EQ(picture().geometry(), form().rect());
    }
};

TEST_F(ShotsOnTheFullScreen, StretchThePictureOverIt) {
    open({"Shot0001.bmp"});
    choose("mnufullscrn");
    serveEvents();
    expectFullScreen();
    const QImage shown = form().grab().toImage();
    EXPECT_EQ(shown.pixelColor(0, 0), QColor(0, 0, 1));
    EXPECT_EQ(shown.pixelColor(shown.width() - 1, shown.height() - 1), QColor(59, 39, 1));
    EXPECT_NEAR(shown.pixelColor(shown.width() / 2, shown.height() / 2).red(), 30, 1);
    EXPECT_NEAR(shown.pixelColor(shown.width() / 2, shown.height() / 2).green(), 20, 1);
}

TEST_F(ShotsOnTheFullScreen, KeepItWhileStepping) {
    disk_.write(shot("Shot0002.bmp"), shotBytes(200, 90, 2));
    open({"Shot0001.bmp"});
    choose("mnufullscrn");
    press(Qt::Key_Down);
    expectFullScreen();
    EXPECT_EQ(blueShown(), 2);
    form().move(30, 50);
    press(Qt::Key_Up);
    EXPECT_EQ(form().pos(), QPoint(0, 50));
}

TEST_F(ShotsOnTheFullScreen, LeaveItForTheSizeThatWasInTheMiddle) {
    disk_.write(shot("Shot0002.bmp"), shotBytes(200, 90, 2));
    open({"Shot0001.bmp"});
    choose("mnufullscrn");
    press(Qt::Key_Down);
    choose("mnufullscrn");
    EXPECT_EQ(form().size(), QSize(60, 40));
    EXPECT_EQ(picture().size(), QSize(200, 90));
    const QRect screen = form().screen()->geometry();
    EXPECT_NEAR(form().frameGeometry().center().x(), screen.center().x(), 1);
    EXPECT_NEAR(form().frameGeometry().center().y(), screen.height() * 0.85 / 2, 1);
    press(Qt::Key_Up);
    EXPECT_EQ(form().size(), QSize(60, 40));
    EXPECT_EQ(picture().size(), QSize(60, 40));
}

TEST_F(ShotsOnTheFullScreen, AreRefusedFromAWindowWiderThan32767Twips) {
    disk_.write(shot("Shot0001.bmp"), shotBytes(2178, 4, 1));
    open();
    world_.dialogs.answer(Answer::Ok);
    choose("mnufullscrn");
    EXPECT_EQ(world_.dialogs.messages.at(0).text, "Run-time error '6':\n\nOverflow");
    EXPECT_TRUE(end_.ended());
}

TEST_F(ShotsOnTheFullScreen, AreReachedFromTheWidestThatFits) {
    disk_.write(shot("Shot0001.bmp"), shotBytes(2177, 4, 1));
    open();
    choose("mnufullscrn");
    expectFullScreen();
}

}  // namespace
}  // namespace tessaro::test
