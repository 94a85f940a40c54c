#include "shell/webpage.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include "shell/links.h"
#include "support/forms/contrast.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {
namespace {

class HelpForm : public GameFormsTest {
  protected:
    webpage& shown(const std::string& address) {
        auto& form = forms_.get<webpage>();
        form.navigate(address);
        forms_.show<webpage>();
        serveEvents();
        return form;
    }
    webpage& shown(const HelpPage& page) { return shown(helpAddress(program_.file, page)); }
    QTextBrowser& browser() { return control<QTextBrowser>(forms_.get<webpage>(), "WebBrowser1"); }
    int scrolled() { return browser().verticalScrollBar()->value(); }
    QString titleOfPage() { return browser().documentTitle(); }

    // Chooses a menu item and does something once the page is there.
    void choose(const char* item, const std::function<void(webpage&)>& act) {
        const WhenItComes page(
            [&] { return forms_.loaded<webpage>() && forms_.get<webpage>().isVisible(); },
            [&] { act(forms_.get<webpage>()); });
        menuItem(item).trigger();
        EXPECT_TRUE(page.acted()) << item;
    }
};

TEST_F(HelpForm, EachItemShowsItsPageUnderItsTitle) {
    start();
    const std::tuple<const char*, const char*, const char*> items[] = {
        {"mnuucc", "Console Commands", "Unreal Console Commands"},
        {"mnuserveradmin", "Server Admin Help", "Server Admin Tutorial"},
        {"mnurunserver", "Running UT Servers", "Running UT Servers"}};
    for (const auto& [item, title, titleOfItsPage] : items) {
        choose(item, [&, t = title, p = titleOfItsPage](webpage& form) {
            EXPECT_EQ(form.Title->text(), QLatin1String(t));
            EXPECT_EQ(titleOfPage(), QLatin1String(p));
            EXPECT_TRUE(form.isModal());
            EXPECT_EQ(form.windowTitle(), QStringLiteral("Tessaro - Help"));
            form.CommandX->click();
        });
        EXPECT_EQ(forms_.loaded<webpage>(), nullptr) << item;
    }
}

TEST_F(HelpForm, F2OpensAPageWhichEscDoesNotClose) {
    MainFrm& window = start();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const WhenItComes page(
        [&] { return forms_.loaded<webpage>() && forms_.get<webpage>().isVisible(); },
        [&] {
            QTest::keyClick(&browser(), Qt::Key_Escape);
            EXPECT_TRUE(forms_.get<webpage>().isVisible());
            forms_.get<webpage>().CommandX->click();
        });
    QTest::keyClick(&window, Qt::Key_F2);
    EXPECT_TRUE(page.acted());
    EXPECT_EQ(forms_.loaded<webpage>(), nullptr);
}

TEST_F(HelpForm, AProgramFolderWithBlanksAndUmlautsHoldsThePagesToo) {
    program_.file = {"C:\\Spiele f\xC3\xBCr mich\\Tessaro 100%", "my tessaro"};
    shown(adminHelp);
    EXPECT_EQ(titleOfPage(), QStringLiteral("Server Admin Tutorial"));
}

TEST_F(HelpForm, AnAddressWithoutAPageShowsAnErrorPageThatNamesIt) {
    shown("res://C:\\Tessaro\\tessaro.exe/<b>100%1</b>.htm");
    EXPECT_TRUE(browser().toPlainText().contains(QStringLiteral("This page cannot be shown")));
    EXPECT_TRUE(browser().toPlainText().contains(
        QStringLiteral("res://C:\\Tessaro\\tessaro.exe/<b>100%1</b>.htm")));
}

TEST_F(HelpForm, AfterAnErrorPageAPageIsShownAgain) {
    shown("res://nowhere");
    shown(consoleHelp);
    EXPECT_EQ(titleOfPage(), QStringLiteral("Unreal Console Commands"));
}

TEST_F(HelpForm, TheKeysScrollThePage) {
    QWidget& page = shown(consoleHelp);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    ASSERT_EQ(page.focusWidget(), &browser());
    QTest::keyClick(&browser(), Qt::Key_Down);
    const int line = scrolled();
    EXPECT_GT(line, 0);
    QTest::keyClick(&browser(), Qt::Key_PageDown);
    EXPECT_GT(scrolled(), 5 * line);
    QTest::keyClick(&browser(), Qt::Key_End);
    EXPECT_EQ(scrolled(), browser().verticalScrollBar()->maximum());
    QTest::keyClick(&browser(), Qt::Key_Home);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(HelpForm, TextCanBeCopiedWithTheKeys) {
    start();
    shown(serverHelp);
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(&browser(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&browser(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(
        QGuiApplication::clipboard()->text().contains(QStringLiteral("Botpack.DeathMatchPlus")));
}

TEST_F(HelpForm, AJumpFollowedByTheKeysScrollsToItsTargetAndBackAgain) {
    QWidget& page = shown(consoleHelp);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    QTest::keyClick(&browser(), Qt::Key_Tab);
    QTest::keyClick(&browser(), Qt::Key_Tab);
    QTest::keyClick(&browser(), Qt::Key_Return);
    EXPECT_EQ(browser().source().fragment(), QStringLiteral("reading"));
    EXPECT_GT(scrolled(), 0);
    EXPECT_EQ(titleOfPage(), QStringLiteral("Unreal Console Commands"));
    QTest::keyClick(&browser(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(HelpForm, ThePlateAloneMovesIt) {
    webpage& form = shown(adminHelp);
    const auto moves = [&] { return form.findChild<QObject*>(QStringLiteral("drag")) != nullptr; };
    QTest::mousePress(form.Title, Qt::LeftButton);
    EXPECT_FALSE(moves());
    QTest::mousePress(form.timg, Qt::LeftButton);
    EXPECT_TRUE(moves());
}

QColor colourOfFirstLink(const QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            const QTextCharFormat format = fragment.fragment().charFormat();
            if (!format.anchorHref().isEmpty()) return format.foreground().color();
        }
    }
    return {};
}

TEST_F(HelpForm, TextAndLinksAreReadableInEachSkin) {
    for (const char* skin : {"0", "1", "2", "none"}) {
        program_.settings.Skin = skin;
        webpage& form = shown(adminHelp);
        const QPalette palette = browser().palette();
        const QColor ground = palette.color(QPalette::Base);
        EXPECT_GE(contrast(palette.color(QPalette::Text), ground), readable) << skin;
        EXPECT_GE(contrast(palette.color(QPalette::Link), ground), readable) << skin;
        EXPECT_GE(contrast(palette.color(QPalette::LinkVisited), ground), readable) << skin;
        EXPECT_EQ(colourOfFirstLink(*browser().document()), palette.color(QPalette::Link)) << skin;
        forms_.unload(form);
    }
}

TEST_F(HelpForm, TheNamedPlacesAreNoLinksToTheEye) {
    shown(adminHelp);
    const QTextBlock heading = browser().document()->begin();
    EXPECT_EQ(heading.text(), QStringLiteral("Server Admin Tutorial"));
    EXPECT_EQ(heading.begin().fragment().charFormat().foreground().style(), Qt::NoBrush);
}

TEST_F(HelpForm, TheHelpBoxComesByItsItem) {
    start();
    world_.dialogs.answer(Answer::Ok);
    menuItem("mnumehelp").trigger();
    ASSERT_EQ(world_.dialogs.messages.size(), 1u);
    EXPECT_EQ(world_.dialogs.messages[0].title, "Tessaro Help");
}

TEST_F(HelpForm, TheLinkItemsOpenTheirSitesInTheBrowser) {
    start();
    std::vector<std::string> expected;
    for (const Link& link : links) {
        menuItem(std::string(link.item).c_str()).trigger();
        expected.emplace_back(link.address);
    }
    EXPECT_EQ(desktop_.addresses, expected);
}

}  // namespace
}  // namespace tessaro::test
