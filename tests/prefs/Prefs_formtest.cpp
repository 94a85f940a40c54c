// What the dialog does.

#include <QCheckBox>
#include <filesystem>

#include "prefs/prefsformfixture.h"

namespace tessaro::test {
namespace {

class PrefsForm : public PrefsFormFixture {
  protected:
    // Whether closing asks to save. The dialog stays open if so.
    bool closingAsks() {
        const std::size_t before = dialogs().messages.size();
        dialogs().answer(Answer::Cancel);
        click("CommandX");
        if (dialogs().messages.size() > before) {
            EXPECT_EQ(dialogs().messages.back(), unsavedQuestion);
            return true;
        }
        // The answer that nobody asked for.
        dialogs().message(unsavedQuestion);
        dialogs().messages.pop_back();
        return false;
    }
};

TEST_F(PrefsForm, OpensCleanAndClosesWithoutAQuestion) {
    openOnGame();
    EXPECT_FALSE(closingAsks());
    EXPECT_EQ(loaded(), nullptr);
}

TEST_F(PrefsForm, EveryOptionButTheFirstTwoMarksAtTheClick) {
    makeGame(world(), "C:\\UT");
    for (const char* name : {"Check3", "Check4", "Option1", "Option2", "Option3", "Option4",
                             "Option5", "Option6", "Option7", "Option8"}) {
        Prefs& prefs = open();
        click(name);
        EXPECT_TRUE(closingAsks()) << name;
        forms_.unload(prefs);
    }
}

TEST_F(PrefsForm, TypingIntoTheTwoBoxesMarks) {
    makeGame(world(), "C:\\UT");
    for (const char* name : {"Text2", "Text3"}) {
        Prefs& prefs = open();
        type(name, "9");
        EXPECT_TRUE(closingAsks()) << name;
        forms_.unload(prefs);
    }
}

TEST_F(PrefsForm, ABoxOfTheFirstTwoAndThenTheCloseBoxMarksNothing) {
    makeGame(world(), "C:\\UT");
    for (const char* name : {"Check1", "Check2"}) {
        open();
        click(name);
        EXPECT_FALSE(closingAsks()) << name;
        EXPECT_EQ(loaded(), nullptr);
    }
    EXPECT_EQ(program_.settings.Sounds, "1");
    EXPECT_EQ(program_.settings.AutoSave, "0");
}

TEST_F(PrefsForm, ABoxOfTheFirstTwoMarksWhenTheFocusMovesOn) {
    makeGame(world(), "C:\\UT");
    for (const char* name : {"Check1", "Check2"}) {
        Prefs& prefs = open();
        click(name);
        QTest::keyClick(&control(name), Qt::Key_Tab);
        EXPECT_TRUE(closingAsks()) << name;
        forms_.unload(prefs);
    }
}

TEST_F(PrefsForm, ABoxOfTheFirstTwoMarksWhenTheFocusLeavesItUnchanged) {
    openOnGame();
    control("Check1").setFocus();
    control("Option1").setFocus();
    EXPECT_TRUE(closingAsks());
}

TEST_F(PrefsForm, AClickOnCancelTakesTheFocusAndSoMarks) {
    openOnGame();
    click("Check1");
    dialogs().answer(Answer::Cancel);
    click("Command5");
    EXPECT_EQ(dialogs().messages, (std::vector<Message>{unsavedQuestion}));
}

TEST_F(PrefsForm, LeavingForAnotherWindowMarksNothing) {
    openOnGame();
    click("Check1");
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QApplication::setActiveWindow(loaded());
    EXPECT_FALSE(closingAsks());
}

TEST_F(PrefsForm, EscapeIsCancel) {
    Prefs& prefs = openOnGame();
    click("Check3");
    dialogs().answer(Answer::No);
    QTest::keyClick(&prefs, Qt::Key_Escape);
    EXPECT_EQ(dialogs().messages, (std::vector<Message>{unsavedQuestion}));
    EXPECT_EQ(loaded(), nullptr);
    EXPECT_EQ(program_.settings.ShowSplash, "0");
}

TEST_F(PrefsForm, TheDesktopsCloseIsCancelToo) {
    Prefs& prefs = openWithoutGame();
    dialogs().answer(Answer::No);
    EXPECT_FALSE(prefs.close());
    EXPECT_EQ(dialogs().messages.back(), invalidQuestion);
    EXPECT_TRUE(prefs.isVisible());
}

TEST_F(PrefsForm, EnterIsOk) {
    openOnGame();
    type("Text2", "5");
    QTest::keyClick(&box("Text2"), Qt::Key_Return);
    EXPECT_EQ(loaded(), nullptr);
    EXPECT_TRUE(holds(gameIni, "PurgeCacheDays=5"));
}

TEST_F(PrefsForm, EnterOnAButtonPressesThatButton) {
    openOnGame();
    makeGame(world(), "C:\\Other");
    dialogs().pick("C:\\Other");
    control("Command1").setFocus();
    QTest::keyClick(&control("Command1"), Qt::Key_Return);
    EXPECT_EQ(textOf("Text1"), "C:\\Other");
    EXPECT_NE(loaded(), nullptr);
}

TEST_F(PrefsForm, ChoosingTheSystrayChangesNothingButTheMark) {
    makeGame(world(), "C:\\UT");
    world().write(gameIni, "[URL]\r\nLocalMap=a.unr\r\n[Core.System]\r\nPurgeCacheDays=30\r\n");
    const std::string before = world().read(gameIni);
    const std::string user = world().read(userIni);
    open();
    click("Option2");
    click("Command6");
    EXPECT_EQ(world().read(settingsFile), settingsOfGame);
    EXPECT_EQ(world().read(gameIni), before);
    EXPECT_EQ(world().read(userIni), user);
    open();
    EXPECT_TRUE(control("Option1").isChecked());
}

TEST_F(PrefsForm, ReopeningAfterCancelShowsTheStoredValuesAgain) {
    makeGame(world(), "C:\\UT");
    open();
    click("Check3");
    click("Option3");
    click("Option7");
    type("Text2", "5");
    dialogs().answer(Answer::No);
    click("Command5");
    ASSERT_EQ(loaded(), nullptr);
    open();
    EXPECT_FALSE(control("Check3").isChecked());
    EXPECT_TRUE(control("Option5").isChecked());
    EXPECT_TRUE(control("Option8").isChecked());
    EXPECT_EQ(textOf("Text2"), "30");
}

TEST_F(PrefsForm, EverythingThatIsSetIsSaved) {
    openOnGame();
    for (const char* name : {"Check1", "Check2", "Check3", "Check4", "Option4", "Option6"})
        click(name);
    type("Text2", "14");
    type("Text3", "DM-Own.unr");
    click("Command6");
    for (const char* line : {"Sounds=0", "AutoSave=1", "ShowSplash=1", "Skin=1", "TimesUsed=7",
                             "UTPath=C:\\UT", "VORNX=C:\\Taken"})
        EXPECT_TRUE(holds(settingsFile, line)) << line;
    EXPECT_TRUE(holds(gameIni, "LocalMap=DM-Own.unr"));
    EXPECT_TRUE(holds(gameIni, "PurgeCacheDays=14"));
    EXPECT_TRUE(holds(userIni, "HasBeatenGame=True"));
    EXPECT_EQ(world_.sounds.names, (std::vector<std::string>{"ladvance"}));
}

TEST_F(PrefsForm, GreyedBoxesAreKept) {
    program_.settings.Sounds = "2";
    openOnGame();
    click("Command6");
    EXPECT_TRUE(holds(settingsFile, "Sounds=2"));
}

TEST_F(PrefsForm, ALongNumberOfDaysThatNobodyEditedIsKept) {
    makeGame(world(), "C:\\UT");
    world().write(gameIni, "[Core.System]\r\nPurgeCacheDays=9999\r\n");
    open();
    click("Command6");
    EXPECT_TRUE(holds(gameIni, "PurgeCacheDays=9999"));
}

TEST_F(PrefsForm, ApplyDressesTheDialogInTheNewSkinAtOnce) {
    openOnGame();
    click("Option4");
    click("Command2");
    EXPECT_EQ(box("Text1").palette().color(QPalette::Base), QColor(0, 0, 192));
    EXPECT_TRUE(loaded()->isVisible());
    EXPECT_FALSE(closingAsks());
}

TEST_F(PrefsForm, OkDressesTheDialogOnlyWhenItOpensAgain) {
    Prefs& prefs = openOnGame();
    click("Option4");
    const Forms::Running keepsTheDialog(forms_);
    const QLineEdit& old = box("Text1");
    click("Command6");
    EXPECT_FALSE(prefs.isVisible());
    EXPECT_EQ(old.palette().color(QPalette::Base), QColor(192, 0, 0));
    open();
    EXPECT_EQ(box("Text1").palette().color(QPalette::Base), QColor(0, 0, 192));
}

TEST_F(PrefsForm, ApplyInAModalDialogDoesNotEndIt) {
    makeGame(world(), "C:\\UT");
    bool stayed = false;
    const WhenItComes apply([&] { return loaded() != nullptr && loaded()->isVisible(); },
                            [&] { click("Command2"); });
    const WhenItComes close([&] { return apply.acted() && loaded()->isVisible(); },
                            [&] {
                                stayed = true;
                                click("Command5");
                            });
    forms_.showModal<Prefs>();
    EXPECT_TRUE(stayed);
    EXPECT_EQ(loaded(), nullptr);
}

TEST_F(PrefsForm, TheBrowseShowsTheFolderAndMakesOkPossible) {
    openWithoutGame();
    makeGame(world(), "C:\\Mes jeux\\Tournoi é");
    dialogs().pick("C:\\Mes jeux\\Tournoi é");
    click("Command1");
    EXPECT_EQ(textOf("Text1"), "C:\\Mes jeux\\Tournoi é");
    EXPECT_EQ(program_.gamePaths.UTPath, "C:\\Mes jeux\\Tournoi é");
    EXPECT_TRUE(control("Command6").isEnabled());
    EXPECT_TRUE(control("Option8").isChecked());
    EXPECT_FALSE(closingAsks());
}

TEST_F(PrefsForm, GivingUpTheBrowseWithAGoodFolderShownClosesTheDialog) {
    openOnGame();
    dialogs().pick("");
    dialogs().answer(Answer::Cancel);
    click("Command1");
    EXPECT_EQ(loaded(), nullptr);
}

TEST_F(PrefsForm, ABrowseAtLoadThatClosesTheDialogLeavesNothingToShow) {
    world().makeFolder("C:\\UT\\system");
    dialogs().pick("");
    dialogs().answer(Answer::Cancel);
    forms_.showModal<Prefs>();
    EXPECT_EQ(loaded(), nullptr);
}

TEST_F(PrefsForm, AnErrorWhileLoadingIsReportedAndEndsTheProgram) {
    makeGame(world(), "C:\\UT");
    world().write(userIni, "[Botpack.Ladder]\r\nHasBeatenGame=maybe\r\n");
    dialogs().answer(Answer::Ok);
    guarded(forms_, [&] { forms_.showModal<Prefs>(); });
    EXPECT_EQ(dialogs().messages.back().text, "Run-time error '13':\n\nType mismatch");
    EXPECT_TRUE(forms_.ended());
}

TEST_F(PrefsForm, TheButtonForTheCacheAsksTwiceAndMarksNothing) {
    openOnGame();
    dialogs().answer(Answer::No);
    dialogs().answer(Answer::No);
    click("Command3");
    EXPECT_EQ(dialogs().messages.size(), 2U);
    EXPECT_FALSE(closingAsks());
}

}  // namespace
}  // namespace tessaro::test
