#include "editor/findfrm.h"

#include <QLineEdit>
#include <QTest>

#include "editor/inieditor.h"
#include "editor/inieditorpopup.h"
#include "editor/textbox.h"
#include "kit/look/text.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {
namespace {

class SearchBox : public GameFormsTest {
  protected:
    SearchBox() {
        program_.gamePaths.UTSysPath = "C:\\UnrealTournament\\System";
        program_.settings.Skin = "0";
    }

    void edit(const std::string& bytes) {
        disk_.write("C:\\UnrealTournament\\System\\User.ini", bytes);
        guarded(forms_, [this] { forms_.show<inieditor>(); });
        menuItem("mnuedituserini").trigger();
    }
    QAction& menuItem(const char* name) {
        return control<QAction>(forms_.get<inieditorpopup>(), name);
    }
    // Opens the search box from the menu and works in it, until it is closed.
    void search(const std::function<void()>& work) {
        const WhenItComes box(
            [this] { return forms_.loaded<findfrm>() && forms_.get<findfrm>().isVisible(); },
            [&] {
                work();
                if (forms_.loaded<findfrm>()) forms_.unload(forms_.get<findfrm>());
            });
        menuItem("mnufind").trigger();
        EXPECT_TRUE(box.acted());
        EXPECT_EQ(forms_.loaded<findfrm>(), nullptr);
    }
    findfrm& form() { return forms_.get<findfrm>(); }
    QLineEdit& wanted() { return control<QLineEdit>(form(), "Text2"); }
    QPushButton& button(const char* name) { return control<QPushButton>(form(), name); }
    void want(const char* text) {
        wanted().clear();
        QTest::keyClicks(&wanted(), QLatin1String(text));
    }
    void click() { QTest::mouseClick(&button("Command1"), Qt::LeftButton); }
    TextBox& text() { return control<TextBox>(forms_.get<inieditor>(), "Text1"); }
    // Line (from 0), column (from 0) and text of the selection.
    std::string selection() {
        const QTextCursor cursor = text().textCursor();
        QTextCursor start(text().document());
        start.setPosition(cursor.selectionStart());
        return std::to_string(start.blockNumber()) + ":" + std::to_string(start.positionInBlock()) +
               " " + fromQt(cursor.selectedText());
    }
};

TEST_F(SearchBox, OpensModalAboveTheEditorWithNothingToFind) {
    edit("text");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&forms_.get<inieditor>()));
    search([&] {
        EXPECT_TRUE(form().isModal());
        EXPECT_EQ(form().windowHandle()->transientParent(), forms_.get<inieditor>().windowHandle());
        EXPECT_EQ(form().windowTitle(), QStringLiteral("Find What?"));
        EXPECT_EQ(form().Title->text(), QStringLiteral("Find Text"));
        EXPECT_EQ(button("Command1").text(), QStringLiteral("&Find"));
        EXPECT_EQ(button("Command2").text(), QStringLiteral("&Cancel"));
        EXPECT_FALSE(button("Command1").isEnabled());
        EXPECT_TRUE(button("Command1").isDefault());
        EXPECT_EQ(form().focusWidget(), &wanted());
    });
}

TEST_F(SearchBox, TheButtonNeedsSomethingToFindAndKeepsItsCaption) {
    edit("one one");
    search([&] {
        want("one");
        EXPECT_TRUE(button("Command1").isEnabled());
        click();
        want("");
        EXPECT_FALSE(button("Command1").isEnabled());
        want("one");
        EXPECT_TRUE(button("Command1").isEnabled());
        EXPECT_EQ(button("Command1").text(), QStringLiteral("&Next"));
    });
}

TEST_F(SearchBox, TheFirstClickShowsTheSecondHitAndTheThirdWraps) {
    edit("Paths=1\r\nPATHS=2\npaths=3\r");
    search([&] {
        want("paths");
        click();
        EXPECT_EQ(selection(), "1:0 PATHS");
        click();
        EXPECT_EQ(selection(), "2:0 paths");
        QTest::keyClick(&wanted(), Qt::Key_Return);
        EXPECT_EQ(selection(), "0:0 Paths");
    });
}

TEST_F(SearchBox, ASingleHitIsFoundByTheFirstClick) {
    edit("\xC3\xA9\r\n\xF0\x9F\x8E\xAE key=\xC3\x89X\n");
    search([&] {
        want("key");
        click();
        EXPECT_EQ(selection(), "1:3 key");
        EXPECT_EQ(form().search().SearchCount, 1);
    });
}

TEST_F(SearchBox, HitsDoNotOverlap) {
    edit("aaaa");
    search([&] {
        want("aa");
        click();
        EXPECT_EQ(selection(), "0:2 aa");
        click();
        EXPECT_EQ(selection(), "0:0 aa");
    });
}

TEST_F(SearchBox, TheHitIsSeenWhileTheSearchBoxHasTheFocus) {
    std::string file;
    for (int i = 0; i < 300; ++i) file += "line\r\n";
    edit(file + "wanted\r\n" + file);
    search([&] {
        want("wanted");
        QTest::keyClick(&wanted(), Qt::Key_Return);
        EXPECT_EQ(form().focusWidget(), &wanted());
        EXPECT_FALSE(text().hasFocus());
        const QRect hit = text().cursorRect();
        EXPECT_TRUE(text().viewport()->rect().contains(hit));
        const QPoint place = text().viewport()->mapToGlobal(hit.center());
        EXPECT_FALSE(form().geometry().contains(place));
        const QImage letters = text().viewport()->grab(hit.adjusted(-20, 0, 0, 0)).toImage();
        EXPECT_EQ(letters.pixelColor(0, 0), text().palette().color(QPalette::Highlight));
    });
}

TEST_F(SearchBox, TheTextThatIsSearchedIsTheOneOnTheScreen) {
    edit("one\n");
    QTest::keyClicks(&text(), QStringLiteral("typed "));
    QTest::keyClick(&text(), Qt::Key_Return);
    search([&] {
        EXPECT_EQ(form().search().SearchText, "typed \none\n");
        want("one");
        click();
        EXPECT_EQ(selection(), "1:0 one");
    });
}

TEST_F(SearchBox, ReopeningTakesAFreshCopyAndStartsWithFind) {
    edit("one one");
    search([&] {
        want("one");
        click();
    });
    QTest::keyClick(&text(), Qt::Key_Delete);
    search([&] {
        EXPECT_EQ(button("Command1").text(), QStringLiteral("&Find"));
        EXPECT_EQ(wanted().text(), QString());
        EXPECT_EQ(form().search().SearchPos, 0);
        EXPECT_EQ(form().search().SearchText, "one ");
    });
}

TEST_F(SearchBox, TheFirstClickOnAnAbsentStringEndsTheProgram) {
    edit("text");
    world_.dialogs.answer(Answer::Ok);
    world_.dialogs.answer(Answer::Ok);
    const WhenItComes box(
        [this] { return forms_.loaded<findfrm>() && forms_.get<findfrm>().isVisible(); },
        [&] {
            want("absent");
            click();
        });
    menuItem("mnufind").trigger();
    ASSERT_EQ(world_.dialogs.messages.size(), 2U);
    EXPECT_EQ(world_.dialogs.messages[0], (Message{"Search String Not found!", "Finished Search",
                                                   Buttons::Ok, Icon::Information}));
    EXPECT_EQ(world_.dialogs.messages[1].text,
              "Run-time error '5':\n\nInvalid procedure call or argument");
    EXPECT_TRUE(forms_.ended());
}

TEST_F(SearchBox, AHitBeyondThe32767thCharacterEndsTheProgram) {
    edit(std::string(33000, '.') + "end");
    world_.dialogs.answer(Answer::Ok);
    const WhenItComes box(
        [this] { return forms_.loaded<findfrm>() && forms_.get<findfrm>().isVisible(); },
        [&] {
            want("end");
            click();
        });
    menuItem("mnufind").trigger();
    ASSERT_EQ(world_.dialogs.messages.size(), 1U);
    EXPECT_EQ(world_.dialogs.messages[0].text, "Run-time error '6':\n\nOverflow");
}

TEST_F(SearchBox, FindLastGivesTheTextTheFocus) {
    edit("end\r\nend");
    search([&] {
        form().search().FindLast("END");
        EXPECT_EQ(selection(), "1:0 end");
        EXPECT_EQ(forms_.get<inieditor>().focusWidget(), &text());
    });
}

TEST_F(SearchBox, CancelCloseButtonAndEscCloseIt) {
    edit("text");
    for (const char* name : {"Command2", "CommandX"})
        search([&] { QTest::mouseClick(&button(name), Qt::LeftButton); });
    search([&] { QTest::keyClick(&form(), Qt::Key_Escape); });
    EXPECT_NE(forms_.loaded<inieditor>(), nullptr);
}

TEST_F(SearchBox, EverySkinGivesTheFieldItsGround) {
    const QColor grounds[] = {QColor(64, 64, 64), QColor(0, 0, 192), QColor(192, 0, 0)};
    edit("text");
    for (int skin = 0; skin < 3; ++skin) {
        program_.settings.Skin = std::to_string(skin);
        // The first skin names no second list, but the second text box.
        search([&] { EXPECT_EQ(wanted().palette().color(QPalette::Base), grounds[skin]); });
    }
}

}  // namespace
}  // namespace tessaro::test
