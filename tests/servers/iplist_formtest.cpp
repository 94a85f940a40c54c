#include <gmock/gmock.h>

#include <QLabel>
#include <QTest>

#include "servers/serverformfixture.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;

TEST_F(ServerForm, TextsLimitsAndTooltip) {
    shown();
    EXPECT_EQ(form().windowTitle(), QStringLiteral("UT Favorites"));
    EXPECT_EQ(form().Title->text(), QStringLiteral("UT IP Manager"));
    EXPECT_EQ(the<QPushButton>("Command1").text(), QStringLiteral("&Play on Server!"));
    EXPECT_EQ(the<QPushButton>("Command2").text(), QStringLiteral("&Add +"));
    EXPECT_EQ(the<QPushButton>("Command3").text(), QStringLiteral("&Remove -"));
    EXPECT_EQ(the<QPushButton>("Command4").text(), QStringLiteral("&Import Servers"));
    EXPECT_EQ(the<QPushButton>("CommandX").text(), QStringLiteral("X"));
    EXPECT_EQ(the<QLabel>("Label1").text(), QStringLiteral("Server Name"));
    EXPECT_EQ(the<QLabel>("Label2").text(), QStringLiteral("IP Address"));
    EXPECT_EQ(the<QLabel>("Label3").text(), QStringLiteral("Port #"));
    EXPECT_EQ(list().toolTip(), QStringLiteral("Right Click a Servername for more options"));
    const auto caption = [this](int column) {
        return list().model()->headerData(column, Qt::Horizontal).toString();
    };
    EXPECT_EQ(caption(0), QStringLiteral("Server Name"));
    EXPECT_EQ(caption(1), QStringLiteral("IP"));
    EXPECT_EQ(caption(2), QStringLiteral("Port"));
    EXPECT_EQ(list().header()->count(), 3);
}

TEST_F(ServerForm, BothMenuItemsShowTheOneForm) {
    start();
    menuItem("mnuipaddr").trigger();
    ASSERT_TRUE(isOpen());
    const iplist* opened = &form();
    EXPECT_TRUE(form().isVisible());
    EXPECT_FALSE(form().isModal());
    menuItem("mnuripaddr").trigger();
    EXPECT_EQ(&form(), opened);
}

TEST_F(ServerForm, IsDressedInTheSkin) {
    program_.settings.Skin = "2";
    shown();
    EXPECT_EQ(list().palette().color(QPalette::Base), QColor(192, 0, 0));
    EXPECT_EQ(the<QLineEdit>("Text3").palette().color(QPalette::Base), QColor(192, 0, 0));
}

TEST_F(ServerForm, ShowsTheSavedServersWithoutAHighlight) {
    shown();
    EXPECT_THAT(rows(), ElementsAre("A\\1.1.1.1\\1111", "B\\2.2.2.2\\2222", "C\\3.3.3.3\\3333"));
    EXPECT_EQ(list().model()->index(1, 1).data().toString(), QStringLiteral("2.2.2.2"));
    EXPECT_FALSE(anyItemSelected(*list().items()));
}

TEST_F(ServerForm, EveryWayOfClosingSavesTheList) {
    const std::vector<std::function<void()>> ways = {[this] { press("CommandX"); },
                                                     [this] { form().close(); },
                                                     [this] { forms_.UnloadAllForms(); }};
    for (std::size_t way = 0; way < ways.size(); ++way) {
        disk_.write(serverFile, threeServers);
        shown();
        list().items()->setText(2, "Changed");
        ways[way]();
        EXPECT_FALSE(isOpen()) << way;
        EXPECT_EQ(saved(), "A\\1.1.1.1\\1111\r\nChanged\\2.2.2.2\\2222\r\nC\\3.3.3.3\\3333\r\n")
            << way;
    }
}

TEST_F(ServerForm, ASecondOpeningStartsWithAFreshSortOrder) {
    shown();
    clickColumn(0);
    press("CommandX");
    shown();
    EXPECT_EQ(rows().front(), "C\\3.3.3.3\\3333");
    clickColumn(0);
    EXPECT_EQ(rows().front(), "C\\3.3.3.3\\3333");
    clickColumn(0);
    EXPECT_EQ(rows().front(), "A\\1.1.1.1\\1111");
}

TEST_F(ServerForm, ServersAreTypedAndAdded) {
    shown();
    type("Text1", "A name without any limit to its length, as long as a name may ever be");
    type("Text2", "123.123.123.1234567");
    type("Text3", "12345");
    press("Command2");
    EXPECT_EQ(rows().at(3),
              "A name without any limit to its length, as long as a name may ever be\\"
              "123.123.123.123\\1234");
    EXPECT_EQ(textOf("Text1") + textOf("Text2") + textOf("Text3"), "");
}

TEST_F(ServerForm, EnterInABoxAddsToo) {
    shown();
    for (const char* box : {"Text1", "Text2", "Text3"}) {
        type("Text1", "Name");
        type("Text2", "4.4.4.4");
        type("Text3", "4444");
        QTest::keyClick(&the<QLineEdit>(box), Qt::Key_Return);
        EXPECT_EQ(rows().back(), "Name\\4.4.4.4\\4444");
        EXPECT_EQ(textOf("Text1") + textOf("Text2") + textOf("Text3"), "");
    }
    EXPECT_EQ(rows().size(), 6u);
}

TEST_F(ServerForm, APastedLineBreakEndsAText) {
    shown();
    paste("Text1", "Name\nand more");
    paste("Text2", "4.4.4.4\r\n");
    paste("Text3", "44\n4");
    press("Command2");
    EXPECT_EQ(rows().at(3), "Name\\4.4.4.4\\44");
}

TEST_F(ServerForm, AddWithAnEmptyBoxLeavesTheOthersAsTheyAre) {
    shown();
    type("Text1", "Name");
    type("Text3", "7777");
    press("Command2");
    EXPECT_EQ(rows().size(), 3u);
    EXPECT_EQ(textOf("Text1") + textOf("Text2") + textOf("Text3"), "Name7777");
}

TEST_F(ServerForm, RemoveTakesTheServerThatWasClicked) {
    shown();
    pick(1);
    world_.dialogs.answer(Answer::Yes);
    press("Command3");
    EXPECT_THAT(rows(), ElementsAre("A\\1.1.1.1\\1111", "C\\3.3.3.3\\3333"));
}

TEST_F(ServerForm, AColumnsHeadSortsByIt) {
    disk_.write(serverFile, "A\\2\\900\r\nB\\3\\8000\r\nC\\1\\7777\r\n");
    shown();
    clickColumn(2);
    EXPECT_THAT(rows(), ElementsAre("A\\2\\900", "B\\3\\8000", "C\\1\\7777"));
    clickColumn(1);
    EXPECT_THAT(rows(), ElementsAre("C\\1\\7777", "A\\2\\900", "B\\3\\8000"));
    press("CommandX");
    EXPECT_EQ(saved(), "C\\1\\7777\r\nA\\2\\900\r\nB\\3\\8000\r\n");
}

TEST_F(ServerForm, TheListKeepsTheKeyboardThroughASort) {
    shown();
    list().setFocus();
    clickColumn(0);
    EXPECT_EQ(form().focusWidget(), &list());
}

TEST_F(ServerForm, ImportedFavouritesAreShownAndAreSavedWhenTheFormCloses) {
    disk_.write(system_ + R"(\UnrealTournament.ini)",
                favorites("2", {R"(B\9.9.9.9\9999\True)", R"(D\4.4.4.4\4444\True)"}));
    shown();
    press("Command4");
    EXPECT_EQ(list().model()->rowCount(), 4);
    EXPECT_EQ(rows().at(3), "D\\4.4.4.4\\4444");
    EXPECT_EQ(saved(), threeServers);
    press("CommandX");
    EXPECT_EQ(saved(), threeServers + "D\\4.4.4.4\\4444\r\n");
}

}  // namespace
}  // namespace tessaro::test
