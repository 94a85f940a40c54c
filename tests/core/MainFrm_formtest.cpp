#include "core/MainFrm.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QResizeEvent>
#include <QScreen>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTest>

#include "cache/mapext.h"
#include "compress/comp.h"
#include "kit/look/twips.h"
#include "prefs/Prefs.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {
namespace {

using Names = std::vector<std::string>;

class MainWindowForm : public GameFormsTest {
  protected:
    // Applies a state as the desktop would and lets the window hear of it.
    void setState(MainFrm& window, int state) {
        window.setState(state);
        serveEvents();
    }
};

TEST_F(MainWindowForm, StartsWithoutASettingsFileAndMakesOne) {
    std::filesystem::remove(disk_.at("C:\\Tessaro\\vornx.ini"));
    const WhenItComes splash(
        [&] { return visibleWindow<QWidget>("splash") != nullptr; },
        [&] { QTest::mouseClick(visibleWindow<QWidget>("splash"), Qt::LeftButton); });
    EXPECT_TRUE(start().isVisible());
    EXPECT_TRUE(splash.acted());
    EXPECT_EQ(sounds_, (Names{"roger", "godlike"}));
    EXPECT_NE(savedSettings().find("TimesUsed=2\r\n"), std::string::npos);
}

TEST_F(MainWindowForm, ShowsItsCaptionAndOnceActiveItsName) {
    MainFrm& window = start();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Ovrin Tessaro v3"));
    EXPECT_EQ(control<QStatusBar>(window, "StatusBar1").currentMessage(),
              QStringLiteral("Tessaro"));
    EXPECT_EQ(sounds_, Names{"godlike"});
}

TEST_F(MainWindowForm, SetsItsStatusTextAtEveryActivation) {
    MainFrm& window = start();
    for (int time = 0; time < 2; ++time) {
        control<QStatusBar>(window, "StatusBar1").showMessage(QStringLiteral("something else"));
        QWidget other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        EXPECT_EQ(control<QStatusBar>(window, "StatusBar1").currentMessage(),
                  QStringLiteral("Tessaro"));
    }
}

TEST_F(MainWindowForm, StandsInTheMiddleAcrossAndALittleAboveIt) {
    MainFrm& window = start();
    const QRect screen = window.screen()->geometry();
    const QRect frame = window.frameGeometry();
    // The desktop puts its frame round the window only when it shows it.
    EXPECT_NEAR(frame.center().x(), screen.center().x(), 2);
    EXPECT_NEAR(frame.top(), screen.height() * 0.85 / 2 - frame.height() / 2.0, 2);
}

TEST_F(MainWindowForm, RemembersItsLastStateThatWasNotMinimised) {
    MainFrm& window = start();
    EXPECT_EQ(program_.LastWindowState, windowstate::Normal);
    setState(window, windowstate::Maximised);
    setState(window, windowstate::Minimised);
    EXPECT_EQ(program_.LastWindowState, windowstate::Maximised);
}

TEST_F(MainWindowForm, MenusDoNotWipeTheStatusText) {
    MainFrm& window = start();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QStatusTipEvent tip{QString()};
    QCoreApplication::sendEvent(&window, &tip);
    EXPECT_EQ(control<QStatusBar>(window, "StatusBar1").currentMessage(),
              QStringLiteral("Tessaro"));
}

TEST_F(MainWindowForm, CannotBeMadeSmallerThanItsLimits) {
    MainFrm& window = start();
    window.resize(10, 10);
    serveEvents();
    // With the frame that the desktop puts round it.
    EXPECT_EQ(window.frameSize(), QSize(pixels(8000), pixels(6000)));
    window.resize(700, 10);
    serveEvents();
    EXPECT_EQ(window.width(), 700);
    EXPECT_EQ(window.frameSize().height(), pixels(6000));
}

TEST_F(MainWindowForm, PictureFollowsTheWindow) {
    MainFrm& window = start();
    window.resize(900, 600);
    serveEvents();
    const QSize picture = control<QLabel>(window, "Image1").size();
    EXPECT_EQ(picture.width(), window.frameSize().width());
    EXPECT_EQ(picture.height(), window.frameSize().height() - pixels(1010));
}

TEST_F(MainWindowForm, MaximisingPlaysOnceAndRestoringIsSilent) {
    MainFrm& window = start();
    sounds_.clear();
    setState(window, windowstate::Maximised);
    EXPECT_EQ(sounds_, Names{"wopen"});
    EXPECT_EQ(program_.settings.WindowSize, "2");
    setState(window, windowstate::Normal);
    EXPECT_EQ(sounds_, Names{"wopen"});
    EXPECT_EQ(program_.settings.WindowSize, "0");
}

TEST_F(MainWindowForm, MinimisingPlaysAndIsNotStored) {
    MainFrm& window = start();
    sounds_.clear();
    setState(window, windowstate::Minimised);
    EXPECT_EQ(sounds_, Names{"wclose"});
    EXPECT_EQ(program_.settings.WindowSize, "0");
}

TEST_F(MainWindowForm, StoredMaximisedStateComesBackWithItsSoundBeforeTheGreeting) {
    settings("[Misc]\r\nShowSplash=0\r\n[Common]\r\nWindowSize=2\r\n");
    MainFrm& window = start();
    EXPECT_TRUE(window.isMaximized());
    ASSERT_GE(sounds_.size(), 2u);
    EXPECT_EQ(sounds_[0], "wopen");
    EXPECT_EQ(sounds_[1], "godlike");
}

TEST_F(MainWindowForm, EveryResizeWhileMaximisedPlaysAgainAlsoAfterAMinimisation) {
    MainFrm& window = start();
    sounds_.clear();
    setState(window, windowstate::Maximised);
    setState(window, windowstate::Minimised);
    setState(window, windowstate::Maximised);
    EXPECT_EQ(sounds_, (Names{"wopen", "wclose", "wopen"}));
    QResizeEvent larger(window.size() + QSize(10, 10), window.size());
    QCoreApplication::sendEvent(&window, &larger);
    EXPECT_EQ(sounds_, (Names{"wopen", "wclose", "wopen", "wopen"}));
}

TEST_F(MainWindowForm, StoredMinimisedStateOpensMinimisedWithItsSound) {
    settings("[Misc]\r\nShowSplash=0\r\n[Common]\r\nWindowSize=1\r\n");
    MainFrm& window = start();
    EXPECT_TRUE(window.isMinimized());
    EXPECT_EQ(sounds_, (Names{"wclose", "godlike"}));
    EXPECT_EQ(program_.settings.WindowSize, "1");
}

TEST_F(MainWindowForm, StoredNormalStateIsTakenOverAsTheNumberThatItStandsFor) {
    settings("[Misc]\r\nShowSplash=0\r\n[Common]\r\nWindowSize=0.4\r\n");
    start();
    EXPECT_EQ(program_.settings.WindowSize, "0");
}

TEST_F(MainWindowForm, WindowStateBeyondTheThreeEndsTheProgram) {
    settings("[Misc]\r\nShowSplash=0\r\n[Common]\r\nWindowSize=7\r\n");
    world_.dialogs.answer(Answer::Ok);
    guarded(forms_, [this] { forms_.show<MainFrm>(); });
    ASSERT_EQ(world_.dialogs.messages.size(), 1u);
    EXPECT_EQ(world_.dialogs.messages[0].text, "Run-time error '380':\n\nInvalid property value");
    EXPECT_TRUE(forms_.ended());
}

TEST_F(MainWindowForm, SoundFlagThatIsNoNumberStopsTheStartAtTheFirstSound) {
    settings("[Misc]\r\nShowSplash=0\r\nSounds=loud\r\n[Common]\r\nWindowSize=2\r\n");
    world_.dialogs.answer(Answer::Ok);
    guarded(forms_, [this] { forms_.show<MainFrm>(); });
    ASSERT_EQ(world_.dialogs.messages.size(), 1u);
    EXPECT_EQ(world_.dialogs.messages[0].text, "Run-time error '13':\n\nType mismatch");
    EXPECT_TRUE(forms_.ended());
    EXPECT_EQ(forms_.loaded<Prefs>(), nullptr);  // the path check was not reached
}

TEST_F(MainWindowForm, RunCountAtItsLimitEndsTheProgramWithTheReport) {
    settings("[Misc]\r\nTimesUsed=32767\r\n");
    world_.dialogs.answer(Answer::Ok);
    guarded(forms_, [this] { forms_.show<MainFrm>(); });
    ASSERT_EQ(world_.dialogs.messages.size(), 1u);
    EXPECT_EQ(world_.dialogs.messages[0].text, "Run-time error '6':\n\nOverflow");
    EXPECT_TRUE(forms_.ended());
    EXPECT_EQ(forms_.loaded<MainFrm>(), nullptr);
}

TEST_F(MainWindowForm, CloseButtonUnloadsEveryForm) {
    MainFrm& window = start();
    forms_.show<mapext>();
    sounds_.clear();
    window.close();
    EXPECT_EQ(sounds_, Names{"nasty"});
    EXPECT_TRUE(forms_.empty());
    EXPECT_FALSE(forms_.ended());
    EXPECT_NE(savedSettings().find("VORNX="), std::string::npos);
}

TEST_F(MainWindowForm, ExitItemUnloadsAndThenEndsTheProgram) {
    start();
    menuItem("mnuexit").trigger();
    EXPECT_TRUE(forms_.empty());
    EXPECT_TRUE(forms_.ended());
    EXPECT_EQ(sounds_.back(), "nasty");
}

TEST_F(MainWindowForm, ExitDuringTheFarewellDoesNotLoseTheSettings) {
    MainFrm& window = start();
    program_.settings.Skin = "2";
    world_.events.onPump = [&] {
        if (!forms_.isLoaded(window)) return;
        menuItem("mnuexit").trigger();
        end_.throwIfEnded();  // as a real pump does
    };
    window.close();
    EXPECT_TRUE(forms_.empty());
    EXPECT_NE(savedSettings().find("Skin=2\r\n"), std::string::npos);
}

TEST_F(MainWindowForm, ExitOfThePopUpMenuDoesTheSame) {
    start();
    menuItem("mnurexit").trigger();
    EXPECT_TRUE(forms_.empty());
    EXPECT_TRUE(forms_.ended());
}

TEST_F(MainWindowForm, ExtractorOpensByItsKeyAndOnlyOnce) {
    MainFrm& window = start();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    disk_.write("C:\\UnrealTournament\\Cache\\cache.ini", "[Cache]\r\n");
    QTest::keyClick(&window, Qt::Key_M, Qt::ControlModifier);
    mapext* wizard = forms_.loaded<mapext>();
    ASSERT_NE(wizard, nullptr);
    EXPECT_TRUE(wizard->isVisible());
    EXPECT_FALSE(wizard->isModal());
    menuItem("mnumapextractor").trigger();
    EXPECT_EQ(forms_.loaded<mapext>(), wizard);
}

TEST_F(MainWindowForm, CtrlCOpensTheCompressorAndCopiesNothing) {
    MainFrm& window = start();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier);
    EXPECT_NE(forms_.loaded<comp>(), nullptr);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
}

TEST_F(MainWindowForm, ExtractorOfThePopUpMenuBlocksUntilItIsClosed) {
    start();
    bool modal = false;
    const WhenItComes wizard(
        [&] { return forms_.loaded<mapext>() && forms_.get<mapext>().isVisible(); },
        [&] {
            modal = forms_.get<mapext>().isModal();
            forms_.get<mapext>().close();
        });
    menuItem("mnurmapext").trigger();
    EXPECT_TRUE(modal);
    EXPECT_EQ(forms_.loaded<mapext>(), nullptr);
}

}  // namespace
}  // namespace tessaro::test
