#include <gmock/gmock.h>

#include <QTest>

#include "servers/serverformfixture.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Message notFound{
    "UnrealTournament executable not found. Please check all paths and try again",
    "Error Starting: UnrealTournament", Buttons::Ok, Icon::Stop};

// The list beside a main window that stands.
class PlayingOnAServer : public ServerForm {
  protected:
    PlayingOnAServer() {
        settings("[Misc]\r\nShowSplash=0\r\nSounds=0\r\n");
        start();
        menuItem("mnuipaddr").trigger();
        serveEvents();
    }
    MainFrm& main() { return forms_.get<MainFrm>(); }
    void installGame() { disk_.write(system_ + R"(\UnrealTournament.exe)", "MZ"); }
};

TEST_F(PlayingOnAServer, StartsTheGameOnTheOneThatWasClicked) {
    installGame();
    pick(1);
    world_.dialogs.answer(Answer::Yes);
    press("Command1");
    EXPECT_THAT(
        gameLines(),
        ElementsAre(R"(C:\UnrealTournament\System\unrealtournament.exe 2.2.2.2?port=2222)"));
    EXPECT_FALSE(isOpen());
}

TEST_F(PlayingOnAServer, TheListIsSavedAndClosedAndTheMainWindowMinimisedWhileTheGameRuns) {
    installGame();
    list().items()->setText(3, "Changed");
    pick(1);
    bool checked = false;
    world_.processes.child = [&](const std::string&) {
        EXPECT_FALSE(isOpen());
        EXPECT_EQ(saved(), "A\\1.1.1.1\\1111\r\nB\\2.2.2.2\\2222\r\nChanged\\3.3.3.3\\3333\r\n");
        EXPECT_TRUE(main().isMinimized());
        checked = true;
    };
    world_.dialogs.answer(Answer::Yes);
    press("Command1");
    EXPECT_TRUE(checked);
    EXPECT_FALSE(main().isMinimized());
    EXPECT_TRUE(main().isVisible());
}

TEST_F(PlayingOnAServer, AMaximisedMainWindowComesBackMaximised) {
    installGame();
    main().setState(windowstate::Maximised);
    pick(1);
    world_.dialogs.answer(Answer::Yes);
    press("Command1");
    EXPECT_TRUE(main().isMaximized());
    EXPECT_EQ(program_.settings.WindowSize, "2");
}

TEST_F(PlayingOnAServer, AMissingGameIsToldOfOnceTheListHasClosed) {
    pick(1);
    world_.dialogs.answer(Answer::Yes);
    world_.dialogs.answer(Answer::Ok);
    bool openAtTheEnd = true;
    world_.dialogs.whileOpen = [&] { openAtTheEnd = isOpen(); };
    press("Command1");
    EXPECT_FALSE(openAtTheEnd);
    ASSERT_EQ(messages_.size(), 2u);
    EXPECT_EQ(messages_[1], notFound);
    EXPECT_FALSE(main().isMinimized());
}

TEST_F(PlayingOnAServer, ANoLeavesTheListOpen) {
    installGame();
    pick(1);
    world_.dialogs.answer(Answer::No);
    press("Command1");
    EXPECT_TRUE(isOpen());
    EXPECT_THAT(gameLines(), IsEmpty());
}

TEST_F(PlayingOnAServer, WithoutAHighlightedServerTheButtonSaysSo) {
    world_.dialogs.answer(Answer::Ok);
    press("Command1");
    ASSERT_EQ(messages_.size(), 1u);
    EXPECT_EQ(messages_[0].text, "Select an Ip to Play on");
}

TEST_F(PlayingOnAServer, ADoubleClickOnAServerAsksToPlayOnIt) {
    world_.dialogs.answer(Answer::No);
    pick(1);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, middleOf(1));
    ASSERT_EQ(messages_.size(), 1u);
    EXPECT_EQ(messages_[0].text, "Start Game on Server: B\r\nIP: 2.2.2.2 On Port: 2222");
}

TEST_F(PlayingOnAServer, ADoubleClickBesideTheServersSaysNothing) {
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {},
                       QPoint(10, list().viewport()->height() - 5));
    EXPECT_THAT(messages_, IsEmpty());
}

TEST_F(PlayingOnAServer, AListThatCannotBeSavedEndsTheProgramBeforeTheGameStarts) {
    installGame();
    pick(1);
    disk_.host.protect("servers.ip");
    world_.dialogs.answer(Answer::Yes);
    world_.dialogs.answer(Answer::Ok);
    press("Command1");
    EXPECT_EQ(messages_.at(1).text, "Run-time error '75':\n\nPath/File access error");
    EXPECT_THAT(gameLines(), IsEmpty());
    EXPECT_EQ(saved(), threeServers);
    EXPECT_TRUE(end_.ended());
}

// What ends the program with the standard report.
class FailingServerForm : public ServerForm {
  protected:
    void expectEndBy(const std::string& report) {
        ASSERT_EQ(messages_.size(), 1u);
        EXPECT_EQ(messages_[0], (Message{report, "Ovrin Tessaro", Buttons::Ok, Icon::Stop}));
        EXPECT_TRUE(end_.ended());
    }
    void importFrom(const std::string& ini) {
        disk_.write(system_ + R"(\UnrealTournament.ini)", ini);
        guarded(forms_, [this] { forms_.show<iplist>(); });
        world_.dialogs.answer(Answer::Ok);
        press("Command4");
    }
};

TEST_F(FailingServerForm, AFolderInPlaceOfTheListsFile) {
    std::filesystem::remove(disk_.at(serverFile));
    disk_.makeFolder(serverFile);
    world_.dialogs.answer(Answer::Ok);
    guarded(forms_, [this] { forms_.show<iplist>(); });
    expectEndBy("Run-time error '75':\n\nPath/File access error");
    EXPECT_FALSE(isOpen());
}

TEST_F(FailingServerForm, ACountOfFavouritesThatIsNoNumber) {
    importFrom(favorites("many", {R"(D\4.4.4.4\4444)"}));
    expectEndBy("Run-time error '13':\n\nType mismatch");
}

TEST_F(FailingServerForm, AFavouriteShortOfFields) {
    importFrom(favorites("2", {R"(D\4.4.4.4)", R"(E\5.5.5.5\5555)"}));
    expectEndBy("Run-time error '9':\n\nSubscript out of range");
    EXPECT_EQ(saved(), threeServers);
}

}  // namespace
}  // namespace tessaro::test
