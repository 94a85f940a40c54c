#include "cache/mapext.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QRadioButton>
#include <QTest>

#include "kit/controls/drivelist.h"
#include "kit/controls/folderlist.h"
#include "kit/controls/listview.h"
#include "kit/controls/wrapping.h"
#include "kit/look/text.h"
#include "support/forms/gameforms.h"
#include "support/forms/texts.h"

namespace tessaro::test {
namespace {

using Names = std::vector<std::string>;

const Message closingQuestion{"Extraction Complete, Do you wish to close this window?",
                              "Map Extractions Completed", Buttons::YesNo, Icon::None};

class WizardForm : public GameFormsTest {
  protected:
    WizardForm() {
        const std::string game = "C:\\UnrealTournament";
        program_.gamePaths = {game, game + "\\Cache", game + "\\Maps", game + "\\System"};
        program_.settings.Sounds = "0";
        program_.settings.Skin = "1";
    }
    // An index of three maps that are there and one that is gone.
    void makeCache() {
        std::string index = "[Cache]\r\n";
        for (const char letter : std::string("ABC")) {
            const std::string guid(32, letter);
            disk_.write(cache_ + "\\" + guid + ".uxx", std::string(2345, letter));
            index += guid + "=DM-" + letter + ".unr\r\n";
        }
        disk_.write(cache_ + "\\cache.ini", index + std::string(32, 'D') + "=Gone.u\r\n");
    }
    mapext& shown() {
        guarded(forms_, [this] { forms_.show<mapext>(); });
        return wizard();
    }
    mapext& wizard() { return forms_.get<mapext>(); }
    template <class Control>
    Control& the(const char* name) {
        return control<Control>(wizard(), name);
    }
    std::string textOf(const char* box) { return fromQt(the<QLineEdit>(box).text()); }
    void press(const char* button) {
        QTest::mouseClick(&the<QAbstractButton>(button), Qt::LeftButton);
    }
    bool visible(const char* name) { return the<QWidget>(name).isVisible(); }
    void type(const char* box, const std::string& text) { the<QLineEdit>(box).setText(toQt(text)); }
    // To step three, with the current installation as destination.
    void goToStepThree() {
        makeCache();
        shown();
        press("next");
        press("Command5");
    }

    const std::string cache_ = "C:\\UnrealTournament\\Cache";
};

TEST_F(WizardForm, LoadPointsAtTheCacheAndOffersTheLastDestination) {
    makeCache();
    settings("[Common]\r\nVORNX=C:\\Mine\r\n");
    shown();
    EXPECT_EQ(wizard().windowTitle(), QStringLiteral("UT Cached Files Extractor"));
    EXPECT_EQ(wizard().Title->text(), QStringLiteral("Map Extractor"));
    EXPECT_EQ(the<FolderList>("Dir1").path(), cache_);
    EXPECT_EQ(the<DriveList>("Drive1").drive(), "c:");
    EXPECT_EQ(textOf("Text1"), cache_);
    EXPECT_EQ(textOf("Text2"), "C:\\Mine");
    EXPECT_EQ(program_.settings.ExtractDest, "C:\\Mine");
    EXPECT_EQ(the<QLabel>("validdir").text(), QStringLiteral("Valid Directory!"));
    EXPECT_TRUE(the<QWidget>("next").isEnabled());
}

const Text wizardTexts[] = {
    {"Title", "Map Extractor"},
    {"Frame3", "Step One:"},
    {"Frame1", "Unreal Tournament Cache Directory"},
    {"Text1", "C:\\UnrealTournament\\Cache",
     "This is where we will look for your \"cache.ini\" file"},
    {"Command4", "✓"},
    {"Label1",
     "VORNX will now need to access your cache.ini file located in your cache directory."},
    {"Label9", "Example: C:\\Unreal Tournament\\Cache\\"},
    {"validdir", "Not a valid Directory."},
    {"next", "&Next >>"},
    {"Command2", "&Cancel"},
    {"Frame4", "Step Two:"},
    {"Frame2", "Destination for new files"},
    {"Option1", "Extract Maps and Textures to current UT installation."},
    {"Option2",
     "Create a new Folder to put all Maps and Textures in. (Subfolders will automatically be "
     "made.)"},
    {"Command10", "B&rowse"},
    {"Command1", "&New Folder"},
    {"Command6", "<< &Back"},
    {"Command5", "&Next >>"},
    {"Frame5", "Step Three:"},
    {"labelText3", "Current File:"},
    {"labelText4", "Map Name:"},
    {"labelText5", "File Size:"},
    {"labelText6", "Destination:"},
    {"labelText7", "Extracted:"},
    {"labelText8", "Failed:"},
    {"labelText9", "Existing files found:"},
    {"Text7", "0", "This is the number of files that were actually copied from your UT Cache"},
    {"Text8", "0", "Failures Occur when UT removes the file(s) listed in the cache.ini"},
    {"Text9", "0", "This is the number of files that were actually copied from your UT Cache"},
    {"Check1", "Overwrite Existing"},
    {"Command8", "&Extract"},
    {"Command3", "&Stop"},
    {"Command9", "<< Back"},
};

TEST_F(WizardForm, EveryControlBearsItsTextAndTooltip) {
    expectTexts(shown(), wizardTexts);
    EXPECT_TRUE(the<QRadioButton>("Option1").isChecked());
    EXPECT_FALSE(the<QWidget>("Command3").isEnabled());
    const QAbstractItemModel* rows = the<ListView>("ListView1").model();
    EXPECT_EQ(rows->headerData(0, Qt::Horizontal), QStringLiteral("Filename"));
    EXPECT_EQ(rows->headerData(1, Qt::Horizontal), QStringLiteral("Filetype"));
    EXPECT_EQ(rows->headerData(2, Qt::Horizontal), QStringLiteral("Size"));
}

TEST_F(WizardForm, EscCancelsTheFirstStepAndNoOther) {
    makeCache();
    shown();
    press("next");
    QTest::keyClick(&wizard(), Qt::Key_Escape);
    EXPECT_NE(forms_.loaded<mapext>(), nullptr);
    press("Command6");
    QTest::keyClick(&wizard(), Qt::Key_Escape);
    EXPECT_EQ(forms_.loaded<mapext>(), nullptr);
}

TEST_F(WizardForm, FolderWithoutAnIndexDoesNotLeadOn) {
    shown();
    EXPECT_EQ(the<QLabel>("validdir").text(), QStringLiteral("Not a valid Directory."));
    EXPECT_FALSE(the<QWidget>("next").isEnabled());
}

TEST_F(WizardForm, MissingCacheFolderEndsTheProgram) {
    std::filesystem::remove(disk_.at(cache_));
    world_.dialogs.answer(Answer::Ok);
    guarded(forms_, [this] { forms_.show<mapext>(); });
    ASSERT_EQ(world_.dialogs.messages.size(), 1u);
    EXPECT_EQ(world_.dialogs.messages[0].text, "Run-time error '76':\n\nPath not found");
    EXPECT_TRUE(forms_.ended());
}

TEST_F(WizardForm, StepsSwapTheirFrames) {
    makeCache();
    shown();
    EXPECT_TRUE(visible("Frame3"));
    press("next");
    EXPECT_FALSE(visible("Frame3"));
    EXPECT_TRUE(visible("Frame4"));
    press("Command6");
    EXPECT_TRUE(visible("Frame3"));
    press("next");
    press("Command5");
    EXPECT_FALSE(visible("Frame4"));
    EXPECT_TRUE(visible("Frame5"));
    press("Command9");
    EXPECT_TRUE(visible("Frame4"));
}

TEST_F(WizardForm, NextPutsTheCacheFolderIntoTheMapPath) {
    makeCache();
    shown();
    press("next");
    EXPECT_EQ(program_.gamePaths.UTMapPath, cache_);
}

TEST_F(WizardForm, ChangeOfFolderIsFollowed) {
    disk_.write("C:\\Other\\cache.ini", "");
    shown();
    the<FolderList>("Dir1").setPath("C:\\Other");
    EXPECT_EQ(textOf("Text1"), "C:\\Other");
    EXPECT_EQ(program_.paths.currentFolder(), "C:\\Other");
    EXPECT_TRUE(the<QWidget>("next").isEnabled());
}

TEST_F(WizardForm, ChangeOfDriveGoesToItsRootAndMakesItCurrent) {
    shown();
    the<DriveList>("Drive1").setDrive("z");
    EXPECT_EQ(the<FolderList>("Dir1").path(), "Z:\\");
    EXPECT_EQ(textOf("Text1"), "Z:\\");
    EXPECT_EQ(program_.paths.currentFolder(), "Z:\\");
}

TEST_F(WizardForm, DriveRootWithAnIndexIsValid) {
    disk_.write("C:\\cache.ini", "");
    shown();
    the<FolderList>("Dir1").setPath("C:\\");
    EXPECT_TRUE(the<QWidget>("next").isEnabled());
}

TEST_F(WizardForm, TypedFolderCountsOnlyOnceItIsConfirmed) {
    disk_.write("C:\\Other\\cache.ini", "");
    shown();
    type("Text1", "C:\\other");
    EXPECT_FALSE(the<QWidget>("next").isEnabled());
    EXPECT_EQ(the<FolderList>("Dir1").path(), cache_);
    press("Command4");
    EXPECT_TRUE(the<QWidget>("next").isEnabled());
    EXPECT_EQ(the<FolderList>("Dir1").path(), "C:\\Other");
}

TEST_F(WizardForm, EnterInTheTextConfirmsIt) {
    disk_.write("C:\\Other\\cache.ini", "");
    shown();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&wizard()));
    the<QWidget>("Text1").setFocus();
    type("Text1", "C:\\Other");
    QTest::keyClick(&the<QWidget>("Text1"), Qt::Key_Return);
    EXPECT_EQ(the<FolderList>("Dir1").path(), "C:\\Other");
    EXPECT_TRUE(visible("Frame3"));
}

TEST_F(WizardForm, TypedFolderThatIsNotThereChangesNothing) {
    makeCache();
    shown();
    type("Text1", "C:\\None");
    press("Command4");
    EXPECT_EQ(the<FolderList>("Dir1").path(), cache_);
    EXPECT_TRUE(the<QWidget>("next").isEnabled());
}

class WizardDestination : public WizardForm {
  protected:
    void goToStepTwo() {
        makeCache();
        shown();
        press("next");
    }
};

TEST_F(WizardDestination, NewFolderControlsShowForTheNewFolderOnly) {
    goToStepTwo();
    for (const char* name : {"Text2", "Command10", "Command1"}) EXPECT_FALSE(visible(name));
    the<QRadioButton>("Option2").click();
    for (const char* name : {"Text2", "Command10", "Command1"}) EXPECT_TRUE(visible(name));
    the<QRadioButton>("Option1").click();
    for (const char* name : {"Text2", "Command10", "Command1"}) EXPECT_FALSE(visible(name));
}

TEST_F(WizardDestination, MissingLastDestinationFallsBackToTheGame) {
    goToStepTwo();
    EXPECT_EQ(textOf("Text2"), "C:\\UTMaps");
    the<QRadioButton>("Option2").click();
    EXPECT_EQ(textOf("Text2"), "C:\\UnrealTournament");
}

TEST_F(WizardDestination, BrowsingSetsTheFolderAndCancellingDoesNot) {
    goToStepTwo();
    the<QRadioButton>("Option2").click();
    world_.dialogs.pick("C:\\Out");
    press("Command10");
    world_.dialogs.pick("");
    press("Command10");
    const std::string prompt = "Where Do you wish to Extract your Map Files to?";
    EXPECT_EQ(world_.dialogs.folderPickers,
              (std::vector<FolderPicker>{{prompt, "C:\\UnrealTournament"}, {prompt, "C:\\Out"}}));
    EXPECT_EQ(textOf("Text2"), "C:\\Out");
    EXPECT_EQ(program_.settings.ExtractDest, "C:\\Out");
}

TEST_F(WizardDestination, NewFolderReachesTheTextButNotTheOfferedDestination) {
    goToStepTwo();
    the<QRadioButton>("Option2").click();
    world_.dialogs.type("Mine");
    press("Command1");
    EXPECT_EQ(textOf("Text2"), "Mine");
    EXPECT_TRUE(disk_.exists("C:\\UnrealTournament\\Mine"));
    EXPECT_EQ(program_.settings.ExtractDest, "C:\\UTMaps");
}

TEST_F(WizardDestination, RelativeDestinationFailsAtTheStart) {
    goToStepTwo();
    the<QRadioButton>("Option2").click();
    world_.dialogs.type("Mine");
    press("Command1");
    press("Command5");
    EXPECT_EQ(textOf("Text6"), "Mine\\");
    world_.dialogs.answer(Answer::Ok);
    press("Command8");
    EXPECT_EQ(world_.dialogs.messages.back().text, "Run-time error '76':\n\nPath not found");
    EXPECT_TRUE(forms_.ended());
}

TEST_F(WizardDestination, BothChoicesOfOneRootShowTheSameText) {
    goToStepTwo();
    press("Command5");
    EXPECT_EQ(textOf("Text6"), "C:\\UnrealTournament\\");
    press("Command9");
    the<QRadioButton>("Option2").click();
    press("Command5");
    EXPECT_EQ(textOf("Text6"), "C:\\UnrealTournament\\");
}

class WizardRun : public WizardForm {};

TEST_F(WizardRun, CopiesShowsAndStaysAfterNo) {
    goToStepThree();
    world_.dialogs.answer(Answer::No);
    world_.dialogs.whileOpen = [&] {
        EXPECT_FALSE(the<QWidget>("Command8").isEnabled());
        EXPECT_TRUE(the<QWidget>("Command3").isEnabled());
    };
    press("Command8");
    EXPECT_EQ(world_.dialogs.messages, std::vector<Message>{closingQuestion});
    EXPECT_EQ(disk_.read("C:\\UnrealTournament\\Maps\\DM-B.unr"), std::string(2345, 'B'));
    EXPECT_EQ(textOf("Text3"), cache_ + "\\" + std::string(32, 'C') + ".uxx");
    EXPECT_EQ(textOf("Text4"), "DM-C.unr");
    EXPECT_EQ(textOf("Text5"), "2kb");
    EXPECT_EQ(textOf("Text7"), "2");
    EXPECT_EQ(textOf("Text8"), "1");
    EXPECT_EQ(textOf("Text9"), "0");
    EXPECT_EQ(the<ListView>("ListView1").items()->count(), 3u);
    EXPECT_TRUE(the<QWidget>("Command8").isEnabled());
    EXPECT_FALSE(the<QWidget>("Command3").isEnabled());
    EXPECT_NE(wizard().cursor().shape(), Qt::WaitCursor);
}

TEST_F(WizardRun, TakesTheFolderOfTheTreeAlsoWhenAnotherOneIsTyped) {
    disk_.write("C:\\Other\\cache.ini", "[Cache]\r\n");
    makeCache();
    shown();
    type("Text1", "C:\\Other");
    press("next");
    press("Command5");
    world_.dialogs.answer(Answer::No);
    press("Command8");
    EXPECT_EQ(textOf("Text4"), "DM-C.unr");
    EXPECT_EQ(disk_.names("C:\\UnrealTournament\\Maps"),
              (Names{"DM-A.unr", "DM-B.unr", "DM-C.unr"}));
}

TEST_F(WizardRun, TheFirstRowOfANewWizardShowsTheLastKindOfTheOneBefore) {
    goToStepThree();
    world_.dialogs.answer(Answer::Yes);
    press("Command8");
    ASSERT_EQ(forms_.loaded<mapext>(), nullptr);
    disk_.write(cache_ + "\\cache.ini", std::string(32, 'A') + "=New.u\r\n");
    shown();
    press("next");
    press("Command5");
    world_.dialogs.answer(Answer::No);
    press("Command8");
    EXPECT_EQ(the<ListView>("ListView1").items()->item(1).subItems.at(0), "Map File");
}

TEST_F(WizardRun, ANameWithoutAnExtensionIsMeasuredByWhatTheWizardBeforeLeft) {
    goToStepThree();
    world_.dialogs.answer(Answer::Yes);
    press("Command8");  // leaves the length of ".unr"
    disk_.write(cache_ + "\\cache.ini",
                std::string(32, 'A') + "=Odd.unr\r\n" + std::string(32, 'B') + "=x.utx5\r\n");
    shown();
    press("next");
    press("Command5");
    world_.dialogs.answer(Answer::No);
    press("Command8");
    EXPECT_EQ(disk_.read("C:\\UnrealTournament\\Maps\\Odd.unr"), std::string(2345, 'A'));
}

TEST_F(WizardRun, OverwritesOnlyWhereTheBoxIsTicked) {
    disk_.write("C:\\UnrealTournament\\Maps\\DM-A.unr", "mine");
    goToStepThree();
    world_.dialogs.answer(Answer::No);
    press("Command8");
    EXPECT_EQ(disk_.read("C:\\UnrealTournament\\Maps\\DM-A.unr"), "mine");
    the<QCheckBox>("Check1").setChecked(true);
    world_.dialogs.answer(Answer::No);
    press("Command8");
    EXPECT_EQ(disk_.read("C:\\UnrealTournament\\Maps\\DM-A.unr"), std::string(2345, 'A'));
    EXPECT_EQ(textOf("Text9"), "3");
}

TEST_F(WizardRun, StopDuringAPauseEndsItAfterTheFileUnderWork) {
    goToStepThree();
    bool pointerWasBusy = false;
    world_.events.onPump = [&] {
        if (!the<QWidget>("Command3").isEnabled()) return;
        pointerWasBusy = wizard().cursor().shape() == Qt::WaitCursor;
        press("Command3");
    };
    press("Command8");
    EXPECT_TRUE(pointerWasBusy);
    EXPECT_EQ(disk_.names("C:\\UnrealTournament\\Maps"), Names{"DM-A.unr"});
    EXPECT_TRUE(the<QWidget>("Command8").isEnabled());
    EXPECT_NE(wizard().cursor().shape(), Qt::WaitCursor);
}

TEST_F(WizardRun, BackDuringARunOnlySwapsTheFrames) {
    goToStepThree();
    world_.events.onPump = [&] {
        if (visible("Frame5")) press("Command9");
    };
    world_.dialogs.answer(Answer::No);
    press("Command8");
    EXPECT_TRUE(visible("Frame4"));
    EXPECT_EQ(disk_.names("C:\\UnrealTournament\\Maps").size(), 3u);
}

TEST_F(WizardRun, ClosingDuringARunLeadsToTheQuestionAndNoFurther) {
    goToStepThree();
    world_.events.onPump = [&] {
        if (forms_.loaded<mapext>() != nullptr && !the<QWidget>("Command8").isEnabled())
            wizard().close();
    };
    world_.dialogs.answer(Answer::Yes);
    press("Command8");
    EXPECT_EQ(forms_.loaded<mapext>(), nullptr);
    EXPECT_EQ(world_.dialogs.messages, std::vector<Message>{closingQuestion});
    EXPECT_EQ(disk_.names("C:\\UnrealTournament\\Maps"), Names{"DM-A.unr"});
}

TEST_F(WizardRun, YesClosesTheWizardAndStoresTheDestination) {
    goToStepThree();
    type("Text2", "C:\\Elsewhere");
    world_.dialogs.answer(Answer::Yes);
    press("Command8");
    EXPECT_EQ(forms_.loaded<mapext>(), nullptr);
    EXPECT_NE(savedSettings().find("VORNX=C:\\Elsewhere"), std::string::npos);
}

TEST_F(WizardRun, AClickOnAColumnsHeadSorts) {
    goToStepThree();
    world_.dialogs.answer(Answer::No);
    press("Command8");
    auto& list = the<ListView>("ListView1");
    Q_EMIT list.columnClicked(2);
    Q_EMIT list.columnClicked(1);
    EXPECT_EQ(list.items()->item(1).text, "DM-C.unr");
}

TEST_F(WizardForm, CloseButtonAndCancelUnload) {
    for (const char* button : {"CommandX", "Command2"}) {
        shown();
        press(button);
        EXPECT_EQ(forms_.loaded<mapext>(), nullptr) << button;
    }
}

TEST_F(WizardForm, EveryControlHasAnAccessibleNameOrText) {
    shown();
    for (const QWidget* widget : wizard().findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith(u"qt_"))
            continue;
        if (qobject_cast<const QLabel*>(widget) != nullptr) continue;
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const bool named =
            !widget->accessibleName().isEmpty() || (button != nullptr && !button->text().isEmpty());
        EXPECT_TRUE(named) << widget->objectName().toStdString();
    }
}

bool showsText(const QWidget& widget) {
    const bool picture = widget.objectName().endsWith(QStringLiteral("img"));
    return widget.isVisible() && !picture &&
           (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
            qobject_cast<const QLabel*>(&widget) != nullptr);
}

// No control on show needs more room than it has.
void expectWhole(const QWidget& form, int points) {
    for (const QWidget* widget : form.findChildren<QWidget*>()) {
        if (!showsText(*widget)) continue;
        const QString name = QStringLiteral("%1 at %2").arg(widget->objectName()).arg(points);
        const QSize needed = widget->minimumSizeHint().boundedTo(widget->maximumSize());
        EXPECT_GE(widget->width(), needed.width()) << name.toStdString();
        EXPECT_GE(widget->height(), needed.height()) << name.toStdString();
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        if (button == nullptr || qobject_cast<const WrappingOption*>(button) != nullptr) continue;
        const QString caption = button->text().remove(u'&');
        EXPECT_GE(button->width(), button->fontMetrics().horizontalAdvance(caption))
            << name.toStdString();
    }
}

TEST_F(WizardForm, NothingIsClippedAtAnyFontSize) {
    makeCache();
    for (const int points : {9, 11, 14}) {
        mapext& form = shown();
        QFont font = form.font();
        font.setPointSize(points);
        form.setFont(font);
        serveEvents();
        expectWhole(form, points);
        press("next");
        the<QRadioButton>("Option2").click();
        serveEvents();
        expectWhole(form, points);
        press("Command5");
        serveEvents();
        expectWhole(form, points);
        forms_.unload(form);
    }
}

}  // namespace
}  // namespace tessaro::test
