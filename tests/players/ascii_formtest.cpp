#include "players/ascii.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QTest>

#include "players/asciibas.h"
#include "players/characterlist.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;

class Chart : public GameFormsTest {
  protected:
    Chart() {
        start();
        menuItem("mnuascii").trigger();
        serveEvents();
    }
    ascii& form() { return forms_.get<ascii>(); }
    CharacterList& list() { return control<CharacterList>(form(), "List1"); }
    QLineEdit& box(const char* name) { return control<QLineEdit>(form(), name); }
    QString preview() { return box("Text2").text(); }
    QString spelled() { return box("Text1").text(); }

    // The row of a code; that of code 30 is missing.
    static int rowOf(int code) { return code < 30 ? code : code - 1; }
    QPoint placeOf(int code) {
        QListWidgetItem* item = list().item(rowOf(code));
        list().scrollToItem(item);
        return list().visualItemRect(item).center();
    }
    void press(int code, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(list().viewport(), button, {}, placeOf(code));
    }
    void doubleClick(int code) {
        press(code);
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, placeOf(code));
    }
    QString spoken(int code) {
        QAccessibleInterface* chart = QAccessible::queryAccessibleInterface(&list());
        return chart->child(rowOf(code))->text(QAccessible::Name);
    }
};

TEST_F(Chart, HasItsTextsAndTwoMenuItems) {
    EXPECT_EQ(form().windowTitle(), QStringLiteral("ASCII Viewer"));
    EXPECT_EQ(form().Title->text(), QStringLiteral("ASCII Viewer"));
    EXPECT_EQ(form().CommandQ->accessibleName(), QStringLiteral("Help"));
    const ascii* opened = &form();
    menuItem("mnurasciiview").trigger();
    EXPECT_EQ(&form(), opened);
    EXPECT_FALSE(form().isModal());
}

TEST_F(Chart, ListsTheCharactersThemselves) {
    const std::vector<std::string> rows = chartRows();
    ASSERT_EQ(list().count(), 255);
    for (int row = 0; row < 255; ++row)
        EXPECT_EQ(list().item(row)->text().toStdString(), rows.at(static_cast<std::size_t>(row)));
}

TEST_F(Chart, EveryRowIsOneLineHigh) {
    const int height = list().visualItemRect(list().item(rowOf(65))).height();
    for (const int code : {0, 9, 10, 13, 255})
        EXPECT_EQ(list().visualItemRect(list().item(rowOf(code))).height(), height) << code;
}

TEST_F(Chart, FontsHaveTheirSizes) {
    EXPECT_EQ(box("Text2").font().pointSize(), 24);
    EXPECT_EQ(box("Text1").font().pointSize(), 12);
    for (const char* name : {"Text1", "Text2"})
        EXPECT_EQ(box(name).font().family(), QStringLiteral("MS Sans Serif")) << name;
}

TEST_F(Chart, APressOfAnyButtonShowsTheCharacterUnderIt) {
    EXPECT_EQ(preview(), QString());
    press(65);
    EXPECT_EQ(preview(), QStringLiteral("A"));
    press(0xD6, Qt::RightButton);
    EXPECT_EQ(preview(), QStringLiteral("Ö"));
    press(66, Qt::MiddleButton);
    EXPECT_EQ(preview(), QStringLiteral("B"));
    EXPECT_EQ(spelled(), QString());
}

TEST_F(Chart, APressWithNoRowSelectedLeavesThePreviewEmpty) {
    list().clear();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(preview(), QString());
}

TEST_F(Chart, DoubleClicksSpellAWordWhichIsHighlightedWhole) {
    doubleClick('H');
    doubleClick(0xEF);
    EXPECT_EQ(spelled(), QStringLiteral("Hï"));
    EXPECT_EQ(box("Text1").selectedText(), QStringLiteral("Hï"));
    EXPECT_EQ(box("Text1").selectionStart(), 0);
    EXPECT_EQ(form().focusWidget(), &box("Text1"));
}

TEST_F(Chart, WhatWasTypedStaysInFront) {
    QTest::keyClicks(&box("Text1"), QStringLiteral("typed"));
    box("Text1").setCursorPosition(0);
    doubleClick('!');
    EXPECT_EQ(spelled(), QStringLiteral("typed!"));
}

TEST_F(Chart, ABlankAndAControlCharacterAreAddedLikeAnyOther) {
    doubleClick(' ');
    doubleClick(1);
    doubleClick('x');
    EXPECT_EQ(spelled(), QStringLiteral(" \u0001x"));
}

TEST_F(Chart, EnterOnARowIsItsDoubleClick) {
    press('a');
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(spelled(), QStringLiteral("b"));
    EXPECT_EQ(preview(), QStringLiteral("b"));
}

TEST_F(Chart, TheArrowKeysAloneLeaveThePreviewAsItWas) {
    press('a');
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_EQ(preview(), QStringLiteral("a"));
}

TEST_F(Chart, TheSecondButtonExplainsTheUse) {
    world_.dialogs.answer(Answer::Ok);
    form().CommandQ->click();
    EXPECT_THAT(world_.dialogs.messages,
                ElementsAre(Message{"Double Click on an item to add it to box below. Spell words "
                                    "and names, then \r\nrightclick the bottom highlighted text "
                                    "to copy and paste to another location",
                                    "ASCII Viewer Help", Buttons::Ok, Icon::None}));
}

TEST_F(Chart, ADoubleClickOnTheFormsSurfaceBringsItToItsNormalSize) {
    form().setWindowState(Qt::WindowMaximized);
    serveEvents();
    QTest::mouseDClick(&form(), Qt::LeftButton);
    EXPECT_EQ(form().windowState() & Qt::WindowMaximized, Qt::WindowNoState);
}

TEST_F(Chart, AScreenReaderHearsWhatShowsAsNothing) {
    EXPECT_EQ(spoken(0), QStringLiteral("0  control character"));
    EXPECT_EQ(spoken(10), QStringLiteral("10  control character"));
    EXPECT_EQ(spoken(32), QStringLiteral("32  blank"));
    EXPECT_EQ(spoken(65), QStringLiteral("65  A"));
    EXPECT_EQ(spoken(127), QStringLiteral("127  control character"));
    EXPECT_EQ(spoken(129), QStringLiteral("129  control character"));
    EXPECT_EQ(spoken(160), QStringLiteral("160  blank"));
    EXPECT_EQ(spoken(173), QStringLiteral("173  invisible character"));
    EXPECT_EQ(spoken(255), QStringLiteral("255  ÿ"));
    for (const char* name : {"Text1", "Text2"}) EXPECT_FALSE(box(name).accessibleName().isEmpty());
}

TEST_F(Chart, TextsGoWithTheForm) {
    doubleClick('x');
    form().CommandX->click();
    EXPECT_EQ(forms_.loaded<ascii>(), nullptr);
    menuItem("mnuascii").trigger();
    EXPECT_EQ(spelled(), QString());
    EXPECT_EQ(preview(), QString());
}

TEST_F(Chart, WearsTheSkin) {
    form().CommandX->click();
    program_.settings.Skin = "1";
    menuItem("mnuascii").trigger();
    EXPECT_EQ(list().palette().color(QPalette::Base), QColor(0, 0, 192));
}

}  // namespace
}  // namespace tessaro::test
