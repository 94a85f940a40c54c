#include "servers/listeditmenu.h"

#include <gmock/gmock.h>

#include <QContextMenuEvent>
#include <QTest>

#include "servers/serverformfixture.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ServerPopup : public ServerForm {
  protected:
    ServerPopup() { shown(); }
    ~ServerPopup() override {
        if (forms_.loaded<listeditmenu>() != nullptr) menu().close();
    }

    QMenu& menu() { return control<QMenu>(forms_.get<listeditmenu>(), "mypopup"); }
    bool isMenuOpen() { return forms_.loaded<listeditmenu>() != nullptr && menu().isVisible(); }
    void pressRight(const QPoint& place) {
        QTest::mousePress(list().viewport(), Qt::RightButton, {}, place);
    }
    void choose(const char* name) {
        QAction& action = control<QAction>(forms_.get<listeditmenu>(), name);
        QTest::mouseClick(&menu(), Qt::LeftButton, {}, menu().actionGeometry(&action).center());
    }
    void emptyList() { list().items()->clear(); }
};

TEST_F(ServerPopup, ItsItemsStandInOrder) {
    QStringList items;
    for (const QAction* action : menu().actions())
        items << (action->isSeparator() ? QStringLiteral("-") : action->text());
    EXPECT_EQ(items, (QStringList{"&Play on this Server", "-", "&Remove Server", "-",
                                  "Change Server Name", "C&hange IP Address", "Change &Port"}));
    EXPECT_EQ(menu().title(), QStringLiteral("ippopup"));
}

TEST_F(ServerPopup, OpensOnThePressOfTheRightButtonAtThePointer) {
    pressRight(middleOf(1));
    EXPECT_TRUE(isMenuOpen());
    EXPECT_EQ(menu().pos(), list().viewport()->mapToGlobal(middleOf(1)));
    EXPECT_EQ(list().items()->selectedItem(), 2u);
}

TEST_F(ServerPopup, OpensBesideTheRowsToo) {
    pressRight(QPoint(10, list().viewport()->height() - 5));
    EXPECT_TRUE(isMenuOpen());
}

TEST_F(ServerPopup, OpensOnAnEmptyList) {
    emptyList();
    pressRight(QPoint(10, 10));
    EXPECT_TRUE(isMenuOpen());
}

TEST_F(ServerPopup, DoesNotOpenForOtherButtons) {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton})
        QTest::mouseClick(list().viewport(), button, {}, middleOf(1));
    EXPECT_FALSE(isMenuOpen());
}

TEST_F(ServerPopup, OpensByTheMenuKey) {
    pick(1);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&list(), &key);
    EXPECT_TRUE(isMenuOpen());
}

TEST_F(ServerPopup, RenamesTheServerUnderThePointer) {
    pressRight(middleOf(1));
    world_.dialogs.type("Better");
    choose("mnuservername");
    EXPECT_THAT(rows(),
                ElementsAre("A\\1.1.1.1\\1111", "Better\\2.2.2.2\\2222", "C\\3.3.3.3\\3333"));
}

TEST_F(ServerPopup, ChangesTheAddressBeyondTheLimitOfTheBox) {
    pressRight(middleOf(1));
    world_.dialogs.type("a.very.long.name.example.org");
    choose("mnuchangeip");
    EXPECT_EQ(rows().at(1), "B\\a.very.long.name.example.org\\2222");
}

TEST_F(ServerPopup, ChangesThePortToFourCharactersOnly) {
    for (const char* port : {"80", "27960"}) {
        pressRight(middleOf(1));
        world_.dialogs.type(port);
        choose("mnuchangeport");
        EXPECT_EQ(rows().at(1), "B\\2.2.2.2\\2222");
    }
    pressRight(middleOf(1));
    world_.dialogs.type("abcd");
    choose("mnuchangeport");
    EXPECT_EQ(rows().at(1), "B\\2.2.2.2\\abcd");
}

TEST_F(ServerPopup, WhatItChangesReachesTheFileWhenTheFormCloses) {
    pressRight(middleOf(1));
    world_.dialogs.type("Better");
    choose("mnuservername");
    EXPECT_EQ(saved(), threeServers);
    press("CommandX");
    EXPECT_EQ(saved(), "A\\1.1.1.1\\1111\r\nBetter\\2.2.2.2\\2222\r\nC\\3.3.3.3\\3333\r\n");
}

TEST_F(ServerPopup, RemovesTheServerUnderThePointer) {
    pressRight(middleOf(1));
    world_.dialogs.answer(Answer::Yes);
    choose("mnudelip");
    EXPECT_THAT(rows(), ElementsAre("A\\1.1.1.1\\1111", "C\\3.3.3.3\\3333"));
}

TEST_F(ServerPopup, AsksBeforeItPlays) {
    pressRight(middleOf(1));
    world_.dialogs.answer(Answer::No);
    choose("mnuplaynow");
    EXPECT_EQ(messages_.at(0).text, "Start Game on Server: B\r\nIP: 2.2.2.2 On Port: 2222");
}

TEST_F(ServerPopup, OnAnEmptyListPlayingSaysSoAndRemovingSaysNothing) {
    emptyList();
    world_.dialogs.answer(Answer::Ok);
    pressRight(QPoint(10, 10));
    choose("mnuplaynow");
    pressRight(QPoint(10, 10));
    choose("mnudelip");
    ASSERT_EQ(messages_.size(), 1u);
    EXPECT_EQ(messages_[0].text, "Select an Ip to Play on");
}

TEST_F(ServerPopup, OnAnEmptyListAnEditEndsTheProgramWithTheReport) {
    emptyList();
    world_.dialogs.answer(Answer::Ok);
    pressRight(QPoint(10, 10));
    choose("mnuservername");
    ASSERT_EQ(messages_.size(), 1u);
    EXPECT_EQ(messages_[0].text,
              "Run-time error '91':\n\nObject variable or With block variable not set");
    EXPECT_TRUE(end_.ended());
    EXPECT_THAT(world_.dialogs.inputs, IsEmpty());
}

TEST_F(ServerPopup, ItsFormIsNeverShownAndServesTheNextListToo) {
    pressRight(middleOf(1));
    menu().close();
    EXPECT_FALSE(forms_.get<listeditmenu>().isVisible());
    press("CommandX");
    shown();
    pressRight(middleOf(0));
    world_.dialogs.type("First");
    choose("mnuservername");
    EXPECT_EQ(rows().at(0), "First\\1.1.1.1\\1111");
}

TEST_F(ServerPopup, WithoutAListItsCommandsDoNothing) {
    QAction& rename = control<QAction>(forms_.get<listeditmenu>(), "mnuservername");
    press("CommandX");
    rename.trigger();
    EXPECT_THAT(world_.dialogs.inputs, IsEmpty());
    EXPECT_FALSE(isOpen());
}

}  // namespace
}  // namespace tessaro::test
