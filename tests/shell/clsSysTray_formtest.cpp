#include "shell/clsSysTray.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <memory>
#include <utility>

#include "cache/mapext.h"
#include "core/mainwindow.h"
#include "shell/Skinz.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;

using Names = std::vector<std::string>;

// Writes down the events of a tray object in the order in which they come.
class Events : public QObject {
  public:
    explicit Events(clsSysTray& tray) {
        const auto note = [this, &tray](auto event, const char* name) {
            connect(&tray, event, this, [this, name] { names.emplace_back(name); });
        };
        note(&clsSysTray::LButtonDblClk, "LButtonDblClk");
        note(&clsSysTray::LButtonDown, "LButtonDown");
        note(&clsSysTray::LButtonUp, "LButtonUp");
        note(&clsSysTray::RButtonDblClk, "RButtonDblClk");
        note(&clsSysTray::RButtonDown, "RButtonDown");
        note(&clsSysTray::RButtonUP, "RButtonUP");
    }
    Names names;
};

class Tray : public GameFormsTest {
  protected:
    Tray() { window_ = &start(); }

    clsSysTray& runAs(int mode) {
        guarded(forms_, [&] { window_->SetRunType(mode); });
        return *window_->gSysTray;
    }
    QLabel* hook() { return window_->findChild<QLabel*>(QStringLiteral("pichook")); }
    // Moves the mouse on a box, as the tray does to tell of the mouse on the icon.
    static void move(QWidget& box, double x) {
        QMouseEvent event(QEvent::MouseMove, QPointF(x, 0), QPointF(x, 0), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&box, &event);
    }
    void send(int message) { move(*hook(), message); }
    // What the tray was told last.
    const NotifyRecord& record() { return desktop_.notes.back().second; }
    std::vector<TrayAction> actions() {
        std::vector<TrayAction> all;
        for (const auto& note : desktop_.notes) all.push_back(note.first);
        return all;
    }
    QMenu* popup() { return window_->findChild<QMenu*>(QStringLiteral("mnumypopup")); }
    // Does something once the pop-up menu is open, then closes it.
    std::unique_ptr<WhenItComes> inPopup(std::function<void()> act) {
        return std::make_unique<WhenItComes>([this] { return popup()->isVisible(); },
                                             [this, act = std::move(act)] {
                                                 act();
                                                 popup()->close();
                                             });
    }

    MainFrm* window_;
};

TEST_F(Tray, ANormalRunHasNone) {
    EXPECT_EQ(window_->gSysTray, nullptr);
    EXPECT_THAT(actions(), ElementsAre());
}

TEST_F(Tray, AnObjectBeginsWithAnEmptyRecord) {
    clsSysTray tray(forms_, desktop_);
    EXPECT_EQ(tray.DefaultDblClk(), Yes);
    EXPECT_EQ(tray.Icon(), 0);
    EXPECT_EQ(tray.ToolTip(), "");
    EXPECT_EQ(tray.SourceWindow(), nullptr);
    tray.IconInSysTray();
    EXPECT_EQ(record().cbSize, 88);
    EXPECT_EQ(record().hWnd, 0u);
    EXPECT_EQ(record().uID, 1);
    EXPECT_EQ(record().uFlags, 7);
    EXPECT_EQ(record().uCallbackMessage, 512);
    EXPECT_EQ(record().hIcon, 0);
    EXPECT_EQ(record().szTip, std::string(1, '\0'));
}

TEST_F(Tray, AFormGetsAHiddenHookThatBearsTheFormsIcon) {
    clsSysTray tray(forms_, desktop_);
    tray.SourceWindow(*window_);
    EXPECT_EQ(tray.SourceWindow(), window_);
    ASSERT_NE(hook(), nullptr);
    EXPECT_FALSE(hook()->isVisible());
    EXPECT_FALSE(hook()->pixmap(Qt::ReturnByValue).isNull());
    tray.IconInSysTray();
    EXPECT_EQ(record().hWnd, hook()->winId());
}

TEST_F(Tray, InTheTrayTheIconIsThereAndTheMainWindowIsNot) {
    const clsSysTray& tray = runAs(1);
    EXPECT_THAT(actions(), ElementsAre(TrayAction::Modify, TrayAction::Modify, TrayAction::Add));
    EXPECT_EQ(record().szTip, std::string("Ovrin Tessaro\0", 14));
    EXPECT_EQ(tray.ToolTip(), "Ovrin Tessaro");
    EXPECT_NE(record().hIcon, 0);
    EXPECT_EQ(record().hIcon, tray.Icon());
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(hook()->pixmap(Qt::ReturnByValue).toImage(),
              forms_.get<Skinz>().picture("systraypic").toImage());
}

TEST_F(Tray, InTheTaskBarTheMainWindowStaysAndTheIconGoes) {
    runAs(0);
    EXPECT_THAT(actions(), ElementsAre(TrayAction::Modify, TrayAction::Modify, TrayAction::Delete));
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(Tray, AnyOtherModeChangesNothing) {
    for (const int mode : {2, -1}) {
        window_->SetRunType(mode);
        EXPECT_EQ(window_->gSysTray, nullptr) << mode;
    }
    const clsSysTray* tray = &runAs(0);
    EXPECT_EQ(&runAs(2), tray);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(actions().size(), 3u);
}

TEST_F(Tray, ASecondObjectForTheSameFormEndsTheProgramWithAnErrorBox) {
    const clsSysTray* first = &runAs(0);
    world_.dialogs.answer(Answer::Ok);
    const clsSysTray* second = &runAs(1);
    EXPECT_THAT(
        world_.dialogs.messages,
        ElementsAre(Message{"Run-time error '727':\n\nThere is already a control with that name",
                            "Error", Buttons::Ok, Icon::Stop}));
    EXPECT_TRUE(forms_.ended());
    EXPECT_TRUE(window_->isVisible());
    EXPECT_NE(first, second);
    EXPECT_EQ(actions().size(), 3u);
}

TEST_F(Tray, EachMessageHasItsEvent) {
    clsSysTray& tray = runAs(0);
    const Events events(tray);
    for (const int message : {513, 514, 518, 517, 515}) send(message);
    EXPECT_EQ(events.names,
              (Names{"LButtonDown", "LButtonUp", "RButtonDblClk", "RButtonUP", "LButtonDblClk"}));
}

TEST_F(Tray, AMoveThatIsNoMessageDoesNothing) {
    clsSysTray& tray = runAs(1);
    const Events events(tray);
    for (const int message : {512, 0, 519, -513, 5130}) send(message);
    EXPECT_EQ(events.names, Names{});
    EXPECT_FALSE(window_->isVisible());
    EXPECT_FALSE(popup()->isVisible());
}

TEST_F(Tray, ThePlaceIsRoundedToAMessage) {
    clsSysTray& tray = runAs(0);
    const Events events(tray);
    move(*hook(), 513.4);
    move(*hook(), 513.6);
    EXPECT_EQ(events.names, (Names{"LButtonDown", "LButtonUp"}));
    EXPECT_EQ(tray.previousMessage(), 513);
    EXPECT_EQ(tray.lastMessage(), 514);
}

TEST_F(Tray, ALeftDoubleClickBringsTheMainWindowBackAndTakesTheIconAway) {
    clsSysTray& tray = runAs(1);
    const Events events(tray);
    send(515);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(window_->state(), windowstate::Normal);
    EXPECT_EQ(actions().back(), TrayAction::Delete);
    EXPECT_EQ(record().hWnd, hook()->winId());
    EXPECT_EQ(events.names, Names{"LButtonDblClk"});
}

TEST_F(Tray, ALeftDoubleClickBringsAMaximisedWindowBackInTheNormalState) {
    window_->setState(windowstate::Maximised);
    runAs(1);
    send(515);
    EXPECT_EQ(window_->state(), windowstate::Normal);
    EXPECT_EQ(program_.settings.WindowSize, "0");
}

TEST_F(Tray, ADoubleClickMayBeLeftToTheEvent) {
    clsSysTray& tray = runAs(1);
    const Events events(tray);
    tray.DefaultDblClk(No);
    send(515);
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(actions().back(), TrayAction::Add);
    EXPECT_EQ(events.names, Names{"LButtonDblClk"});
    tray.DefaultDblClk(1);  // any value but 0 is yes
    send(515);
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(Tray, ARightClickShowsThePopUpMenuAndThenTellsOfIt) {
    clsSysTray& tray = runAs(1);
    const Events events(tray);
    const auto menu = inPopup([&] { EXPECT_EQ(events.names, Names{}); });
    send(516);
    EXPECT_TRUE(menu->acted());
    EXPECT_EQ(events.names, Names{"RButtonDown"});
}

TEST_F(Tray, MessagesThatComeWhileTheMenuIsOpenAreDropped) {
    clsSysTray& tray = runAs(1);
    const Events events(tray);
    const auto menu = inPopup([&] {
        for (const int message : {517, 515, 513}) send(message);
        EXPECT_EQ(tray.lastMessage(), 513);
        EXPECT_EQ(tray.previousMessage(), 515);
    });
    send(516);
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(events.names, Names{"RButtonDown"});
    send(517);
    EXPECT_EQ(events.names, (Names{"RButtonDown", "RButtonUP"}));
}

TEST_F(Tray, TheMenusExtractorBlocksUntilItIsClosed) {
    runAs(1);
    const WhenItComes wizard(
        [&] { return forms_.loaded<mapext>() && forms_.get<mapext>().isVisible(); },
        [&] {
            EXPECT_TRUE(forms_.get<mapext>().isModal());
            forms_.get<mapext>().close();
        });
    const auto menu = inPopup([&] { menuItem("mnurmapext").trigger(); });
    send(516);
    EXPECT_TRUE(wizard.acted());
}

TEST_F(Tray, TheMenusExitEndsTheProgram) {
    runAs(1);
    const auto menu = inPopup([&] { menuItem("mnurexit").trigger(); });
    send(516);
    EXPECT_TRUE(menu->acted());
    EXPECT_TRUE(forms_.ended());
    EXPECT_TRUE(forms_.empty());
}

TEST_F(Tray, TheMenuIsTheMainWindowsWhicheverFormIsServed) {
    clsSysTray tray(forms_, desktop_);
    auto& served = forms_.get<Skinz>();
    tray.SourceWindow(served);
    tray.MinToSysTray();
    const auto menu = inPopup([] {});
    move(*served.findChild<QLabel*>(QStringLiteral("pichook")), 516);
    EXPECT_TRUE(menu->acted());
}

TEST_F(Tray, ATipIsCutToItsField) {
    clsSysTray& tray = runAs(0);
    const std::string sixtyThree(63, 'x');
    tray.ToolTip(sixtyThree);
    EXPECT_EQ(record().szTip, sixtyThree + '\0');
    EXPECT_EQ(actions().back(), TrayAction::Modify);
    tray.ToolTip(sixtyThree + "yz");
    EXPECT_EQ(record().szTip, sixtyThree + "y");
    EXPECT_EQ(tray.ToolTip(), sixtyThree + "yz");
}

TEST_F(Tray, CharactersOfATipAreCountedNotBytes) {
    clsSysTray& tray = runAs(0);
    std::string tip;
    for (int i = 0; i < 70; ++i) tip += "\xC3\xBC";
    tray.ChangeToolTip(tip);
    EXPECT_EQ(record().szTip, tip.substr(0, 128));
}

TEST_F(Tray, ATipBecomesTheCaptionOfAMinimisedWindow) {
    clsSysTray& tray = runAs(0);
    tray.ToolTip("Resting");
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Ovrin Tessaro v3"));
    window_->setState(windowstate::Minimised);
    tray.ToolTip("Asleep");
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Asleep"));
}

TEST_F(Tray, ANewPictureGoesToTheHookAndToTheTray) {
    clsSysTray& tray = runAs(1);
    const std::int32_t before = tray.Icon();
    QPixmap red(16, 16);
    red.fill(Qt::red);
    tray.Icon(red);
    EXPECT_EQ(actions().back(), TrayAction::Modify);
    EXPECT_NE(record().hIcon, before);
    EXPECT_EQ(hook()->pixmap(Qt::ReturnByValue).toImage(), red.toImage());
}

TEST_F(Tray, WithoutASourceWindowOnlyTheIconCanBeChangedAndShown) {
    clsSysTray tray(forms_, desktop_);
    tray.ChangeIcon(QPixmap(16, 16));
    tray.IconInSysTray();
    EXPECT_EQ(tray.Icon(), 0);
    EXPECT_THAT(actions(), ElementsAre(TrayAction::Modify, TrayAction::Add));
    EXPECT_EQ(errorOf([&] { tray.RemoveFromSysTray(); }), 91);
    EXPECT_EQ(errorOf([&] { tray.MinToSysTray(); }), 91);
    EXPECT_EQ(errorOf([&] { tray.ChangeToolTip("tip"); }), 91);
    EXPECT_EQ(tray.ToolTip(), "tip");
}

TEST_F(Tray, TheEndOfTheProgramDoesNotTakeTheIconAway) {
    runAs(1);
    menuItem("mnurexit").trigger();
    EXPECT_EQ(actions().back(), TrayAction::Add);
}

TEST_F(Tray, TheStoresBoxAnswersAPlaceOfTheRightPressWithTheMenu) {
    auto& box = control<QLabel>(forms_.get<Skinz>(), "systraypic");
    const auto menu = inPopup([] {});
    move(box, 516);
    EXPECT_TRUE(menu->acted());
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(Tray, TheStoresBoxAnswersAPlaceOfTheLeftPressWithTheMainWindow) {
    auto& box = control<QLabel>(forms_.get<Skinz>(), "systraypic");
    EXPECT_TRUE(box.hasMouseTracking());
    move(box, 513);
    EXPECT_FALSE(window_->isVisible());
    move(box, 513);
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(Tray, TheStoresBoxAnswersNoOtherPlace) {
    auto& box = control<QLabel>(forms_.get<Skinz>(), "systraypic");
    for (const int x : {0, 512, 514, 515, 517, 518}) move(box, x);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_FALSE(popup()->isVisible());
    EXPECT_THAT(actions(), ElementsAre());
}

}  // namespace
}  // namespace tessaro::test
