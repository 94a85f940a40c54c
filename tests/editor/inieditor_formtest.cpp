#include "editor/inieditor.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "editor/findfrm.h"
#include "editor/inieditorpopup.h"
#include "editor/textbox.h"
#include "kit/look/text.h"
#include "kit/look/twips.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {
namespace {

const Message question{"Do you wish to save changes", "File Not Saved.", Buttons::YesNoCancel,
                       Icon::Question};

class EditorForm : public GameFormsTest {
  protected:
    EditorForm() {
        const std::string game = "C:\\UnrealTournament";
        program_.gamePaths = {game, game + "\\Cache", game + "\\Maps", game + "\\System"};
        program_.settings.Sounds = "0";
        program_.settings.Skin = "0";
    }

    inieditor& shown() {
        guarded(forms_, [this] { forms_.show<inieditor>(); });
        return form();
    }
    inieditor& form() { return forms_.get<inieditor>(); }
    TextBox& text() { return control<TextBox>(form(), "Text1"); }
    std::string textOf(const char* box) { return fromQt(control<QLineEdit>(form(), box).text()); }
    std::string shownText() { return fromQt(text().toPlainText()); }
    void type(const char* letters) { QTest::keyClicks(&text(), QLatin1String(letters)); }
    void choose(const char* item) {
        control<QAction>(forms_.get<inieditorpopup>(), item).trigger();
    }
    // The menu that is open, or null.
    static QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    void close() {
        form().window().close();
        serveEvents();
    }
    bool isOpen() { return forms_.loaded<inieditor>() != nullptr; }

    const std::string userIni_ = "C:\\UnrealTournament\\System\\User.ini";
};

TEST_F(EditorForm, OpensUntitledFromTheMenuOfTheMainWindow) {
    start();
    EXPECT_EQ(menuItem("mnuinieditor").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_E));
    menuItem("mnuinieditor").trigger();
    ASSERT_TRUE(isOpen());
    EXPECT_TRUE(form().isVisible());
    EXPECT_FALSE(form().isModal());
    EXPECT_EQ(form().Title->text(), QStringLiteral("Untitled.ini"));
    EXPECT_EQ(textOf("openedini"), "");
    EXPECT_TRUE(text().isEmpty());
    EXPECT_EQ(form().focusWidget(), &text());
}

TEST_F(EditorForm, TheMenusHoldTheirItems) {
    const auto captions = [](const QMenu& menu) {
        QStringList texts;
        for (const QAction* item : menu.actions())
            texts += item->isSeparator() ? QStringLiteral("-") : item->text();
        return fromQt(texts.join(QLatin1Char('|')));
    };
    const auto& menus = forms_.get<inieditorpopup>();
    EXPECT_EQ(captions(menus.mnufileini()),
              "&Load File|-|&Save|-|&1 UnrealTournament.ini|&2 User.ini|&3 Cache.ini|-|&Close");
    EXPECT_EQ(captions(menus.mnueditini()), "&Find");
    EXPECT_EQ(menus.mnufileini().title(), QStringLiteral("File"));
    EXPECT_EQ(menus.mnueditini().title(), QStringLiteral("Edit"));
    for (const char* name : {"mnudash", "mnuhyph9", "mnuhyphk"})
        EXPECT_TRUE(control<QAction>(forms_.get<inieditorpopup>(), name).isSeparator()) << name;
}

TEST_F(EditorForm, TheLabelsOpenTheirMenusAtTheirPlaces) {
    const std::tuple<const char*, const char*, double, Qt::Key> labels[] = {
        {"fakefile", "mnufileini", 150, Qt::Key_F}, {"fakedit", "mnueditini", 630, Qt::Key_E}};
    shown();
    for (const auto& [label, menu, left, letter] : labels) {
        const QPoint place = form().mapToGlobal(QPoint(pixels(left), pixels(650)));
        QTest::mouseClick(&control<QWidget>(form(), label), Qt::LeftButton);
        ASSERT_NE(openMenu(), nullptr) << label;
        EXPECT_EQ(fromQt(openMenu()->objectName()), menu);
        EXPECT_EQ(openMenu()->pos(), place);
        EXPECT_EQ(openMenu()->windowHandle()->transientParent(), form().windowHandle());
        openMenu()->close();
        form().activateWindow();  // the offscreen desktop forgets after a menu
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form()));
        QTest::keyClick(&form(), letter, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([] { return openMenu() != nullptr; })) << label;
        EXPECT_EQ(fromQt(openMenu()->objectName()), menu);
        openMenu()->close();
    }
}

TEST_F(EditorForm, TheLabelsStandAboveTheirMenusAndBesideThePlate) {
    shown();
    for (const char* name : {"fakefile", "fakedit"}) {
        const auto& label = control<QWidget>(form(), name);
        EXPECT_TRUE(label.isVisible()) << name;
        EXPECT_EQ(label.geometry().bottom() + 1, pixels(650)) << name;
        EXPECT_FALSE(label.geometry().intersects(form().timg->geometry())) << name;
        const QRect box(text().mapTo(&form(), QPoint()), text().size());
        EXPECT_FALSE(label.geometry().intersects(box)) << name;
    }
}

TEST_F(EditorForm, ALoadShowsNameAndText) {
    shown();
    choose("mnuedituserini");
    EXPECT_EQ(form().Title->text(), QStringLiteral("user.ini"));
    EXPECT_EQ(textOf("openedini"), "C:\\UnrealTournament\\System\\user.ini");
    EXPECT_EQ(shownText(), "[DefaultPlayer]\nName=Me\n");
    choose("mnueditutini");
    EXPECT_EQ(form().Title->text(), QStringLiteral("unrealtournament.ini"));
    EXPECT_EQ(shownText(), "[URL]\n");
    choose("mnueditcacheini");
    EXPECT_EQ(form().Title->text(), QStringLiteral("cache.ini"));
    EXPECT_EQ(shownText(), "[URL]\n");
    close();
    EXPECT_FALSE(isOpen());
}

TEST_F(EditorForm, ThePathOfTheFileIsOutOfSight) {
    shown();
    EXPECT_FALSE(control<QLineEdit>(form(), "openedini").isVisible());
}

TEST_F(EditorForm, LoadFileAndSaveWriteTheChosenFile) {
    disk_.write("C:\\Mine\\my.ini", "[Mine]\nlast");
    shown();
    world_.dialogs.pickFile("C:\\Mine\\my.ini");
    choose("mnuloadini");
    EXPECT_EQ(form().Title->text(), QStringLiteral("my.ini"));
    type("; ");
    choose("mnusave");
    EXPECT_EQ(disk_.read("C:\\Mine\\my.ini"), "; [Mine]\nlast\r\n");
    EXPECT_EQ(shownText(), "; [Mine]\nlast");
}

TEST_F(EditorForm, TypingUntitledAndSavingProposesTheName) {
    shown();
    type("typed");
    world_.dialogs.pickFile("C:\\UnrealTournament\\new.ini");
    choose("mnusave");
    EXPECT_EQ(world_.dialogs.savePickers,
              (std::vector<FilePicker>{{"Save File As", "All File Types(*.*)|*.*|",
                                        "C:\\UnrealTournament\\System", "Untitled.ini"}}));
    EXPECT_EQ(disk_.read("C:\\UnrealTournament\\new.ini"), "typed\r\n");
    EXPECT_EQ(form().Title->text(), QStringLiteral("Untitled.ini"));
}

TEST_F(EditorForm, SavingNothingSaysSo) {
    shown();
    world_.dialogs.answer(Answer::Ok);
    choose("mnusave");
    EXPECT_EQ(world_.dialogs.messages[0],
              (Message{"No File Loaded", "No file to save", Buttons::Ok, Icon::Stop}));
}

TEST_F(EditorForm, SaveAfterANumberedItemEndsTheProgramIfNoFileWasChosen) {
    shown();
    choose("mnuedituserini");
    world_.dialogs.answer(Answer::Ok);
    choose("mnusave");
    EXPECT_EQ(world_.dialogs.messages[0].text, "Run-time error '75':\n\nPath/File access error");
    EXPECT_TRUE(forms_.ended());
    EXPECT_EQ(disk_.read(userIni_), "[DefaultPlayer]\r\nName=Me\r\n");
}

TEST_F(EditorForm, ClosingACleanTextAsksNothing) {
    shown();
    choose("mnuedituserini");
    QTest::mouseClick(form().CommandX, Qt::LeftButton);
    EXPECT_FALSE(isOpen());
}

TEST_F(EditorForm, EveryWayOfClosingADirtyTextAsks) {
    const std::function<void()> ways[] = {
        [this] { choose("mnuclose"); },
        [this] { QTest::mouseClick(form().CommandX, Qt::LeftButton); },
        [this] { form().window().close(); },
    };
    shown();
    choose("mnuedituserini");
    type("x");
    for (const auto& way : ways) {
        world_.dialogs.messages.clear();
        world_.dialogs.answer(Answer::Cancel);
        way();
        EXPECT_EQ(world_.dialogs.messages, std::vector<Message>{question});
        ASSERT_TRUE(isOpen());
        EXPECT_TRUE(form().isVisible());
    }
    world_.dialogs.answer(Answer::Yes);
    choose("mnuclose");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(disk_.read(userIni_), "x[DefaultPlayer]\r\nName=Me\r\n\r\n");
}

TEST_F(EditorForm, AfterASaveClosingStillAsks) {
    disk_.write("C:\\Mine\\my.ini", "[Mine]\r\n");
    shown();
    world_.dialogs.pickFile("C:\\Mine\\my.ini");
    choose("mnuloadini");
    type("x");
    choose("mnusave");
    world_.dialogs.answer(Answer::No);
    close();
    EXPECT_EQ(world_.dialogs.messages, std::vector<Message>{question});
    EXPECT_FALSE(isOpen());
}

TEST_F(EditorForm, DeclinedChangesCountAsCleanAfterACancelledDialog) {
    shown();
    type("typed");
    world_.dialogs.answer(Answer::No);
    world_.dialogs.pickFile("");
    choose("mnuloadini");
    EXPECT_EQ(shownText(), "typed");
    close();
    EXPECT_FALSE(isOpen());
}

// The flag is the program's, the text and the names are the form's.
TEST_F(EditorForm, TheFlagOutlivesTheForm) {
    shown();
    choose("mnuedituserini");
    type("x");
    world_.dialogs.answer(Answer::No);
    close();
    ASSERT_FALSE(isOpen());
    shown();
    EXPECT_EQ(form().Title->text(), QStringLiteral("Untitled.ini"));
    EXPECT_TRUE(text().isEmpty());
    world_.dialogs.answer(Answer::No);
    close();
    EXPECT_EQ(world_.dialogs.messages, (std::vector<Message>{question, question}));
    EXPECT_FALSE(isOpen());
}

TEST_F(EditorForm, TheMainWindowStaysUsableBesideIt) {
    MainFrm& main = start();
    shown();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(main.isEnabled());
}

TEST_F(EditorForm, ClosingTheMainWindowAsksToo) {
    start();
    shown();
    choose("mnuedituserini");
    type("x");
    const std::string file = disk_.read(userIni_);
    world_.dialogs.answer(Answer::Yes);
    forms_.get<MainFrm>().window().close();
    EXPECT_EQ(world_.dialogs.messages, std::vector<Message>{question});
    EXPECT_EQ(disk_.read(userIni_), "x" + file + "\r\n");
    EXPECT_TRUE(forms_.empty());
}

TEST_F(EditorForm, KeptWhenTheMainWindowGoesItIsTheLastToTakeTheOthersWithIt) {
    start();
    shown();
    type("x");
    world_.dialogs.answer(Answer::Cancel);
    forms_.get<MainFrm>().window().close();
    EXPECT_EQ(forms_.loaded<MainFrm>(), nullptr);
    ASSERT_TRUE(isOpen());
    EXPECT_TRUE(form().isVisible());
    world_.dialogs.answer(Answer::No);
    choose("mnuedituserini");  // loads the hidden form of the menus anew
    EXPECT_NE(forms_.loaded<inieditorpopup>(), nullptr);
    close();
    EXPECT_TRUE(forms_.empty());
}

TEST_F(EditorForm, TheFormTakesItsSearchWithIt) {
    shown();
    forms_.get<findfrm>();
    close();
    EXPECT_EQ(forms_.loaded<findfrm>(), nullptr);
}

TEST_F(EditorForm, EverySkinGivesTheTextADarkGroundAndWhiteLetters) {
    const QColor grounds[] = {QColor(64, 64, 64), QColor(0, 0, 192), QColor(192, 0, 0)};
    for (int skin = 0; skin < 3; ++skin) {
        program_.settings.Skin = std::to_string(skin);
        shown();
        const QPalette& palette = text().palette();
        EXPECT_EQ(palette.color(QPalette::Base), grounds[skin]);
        EXPECT_EQ(palette.color(QPalette::Text), QColor(Qt::white));
        close();
    }
}

TEST_F(EditorForm, ALongNameIsCutOnThePlateAndToldWhole) {
    const std::string name = std::string(200, 'n') + ".ini";
    disk_.write("C:\\Mine\\" + name, "");
    shown();
    form().resize(1, 1);
    serveEvents();
    const QSize before = form().size();
    world_.dialogs.pickFile("C:\\Mine\\" + name);
    choose("mnuloadini");
    serveEvents();
    EXPECT_EQ(form().size(), before);
    form().resize(1, 1);
    EXPECT_EQ(form().size(), before);
    EXPECT_TRUE(form().timg->geometry().contains(form().Title->geometry()));
    EXPECT_FALSE(
        form().timg->geometry().intersects(control<QWidget>(form(), "fakedit").geometry()));
    EXPECT_EQ(fromQt(form().Title->text()), name);
    EXPECT_EQ(fromQt(form().Title->toolTip()), name);
}

TEST_F(EditorForm, AnotherFontIsNoChangeOfTheTextAndLeavesTheLabelsRoom) {
    shown();
    choose("mnuedituserini");
    QFont font = form().font();
    font.setPointSize(font.pointSize() * 3 / 2);  // the screen has room for no more
    form().setFont(font);
    text().setFont(font);
    serveEvents();
    const auto& file = control<QWidget>(form(), "fakefile");
    const auto& edit = control<QWidget>(form(), "fakedit");
    EXPECT_GE(file.width(), file.sizeHint().width());
    EXPECT_FALSE(file.geometry().intersects(edit.geometry()));
    EXPECT_FALSE(edit.geometry().intersects(form().timg->geometry()));
    EXPECT_EQ(edit.geometry().bottom() + 1, pixels(650));
    close();
    EXPECT_FALSE(isOpen());
}

TEST_F(EditorForm, EveryControlHasANameForScreenReaders) {
    shown();
    for (QWidget* widget : form().findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible()) continue;
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(reader->text(QAccessible::Name).isEmpty()) << fromQt(widget->objectName());
    }
}

TEST_F(EditorForm, CtrlTabLeadsFromTheTextToTheLabelsAndTheCloseButton) {
    shown();
    QStringList way;
    for (QWidget* at = form().focusWidget(); !way.contains(at->objectName());
         at = form().focusWidget()) {
        way += at->objectName();
        QTest::keyClick(at, Qt::Key_Tab, at == &text() ? Qt::ControlModifier : Qt::NoModifier);
    }
    EXPECT_EQ(fromQt(way.join(QLatin1Char(' '))), "Text1 fakefile fakedit CommandX");
}

}  // namespace
}  // namespace tessaro::test
