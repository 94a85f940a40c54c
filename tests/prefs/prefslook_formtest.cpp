// What the dialog shows: texts, limits, colours, sizes, the way round by keyboard.

#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "kit/controls/wholetext.h"
#include "prefs/prefsformfixture.h"
#include "support/forms/reader.h"
#include "support/forms/texts.h"

namespace tessaro::test {
namespace {

class PrefsLook : public PrefsFormFixture {};

const Text texts[] = {
    {"Title", "Preferences", ""},
    {"Label2", "UnrealTournament Path:", ""},
    {"Text1", "C:\\UT", "Path Must be valid to Use Tessaro"},
    {"Command1", "B&rowse", ""},
    {"Label1", "This Program Has been loaded:", ""},
    {"cntlbl", "7", ""},
    {"Label5", "times!", ""},
    {"Frame1", "Tessaro Options:", ""},
    {"Check1", "Use Sounds", ""},
    {"Check2", "Auto-Save on Exit", ""},
    {"Frame2", "Program", "This option is not fully functional"},
    {"Option1", "Run in TaskBar", ""},
    {"Option2", "Run in Systray", ""},
    {"Frame3", "Visualization", "Select The Skin for Tessaro"},
    {"Option3", "Skin #1  [Black && White]", ""},
    {"Option4", "Skin #2  [Light Blue]", ""},
    {"Option5", "Skin #3  [Blood Red]", ""},
    {"Frame4", "Startup", ""},
    {"Check3", "Show Splash Screen", ""},
    {"Frame5", "UT Cache Settings",
     "UT will automatically clear internet cache every few days. Select how long till Purge"},
    {"Label3", "Clear UT Cache every", ""},
    {"Text2", "30", ""},
    {"Label4", "days", ""},
    {"Command3", "C&lear My UT Cache and Temp Files Now!", ""},
    {"Frame6", "Game Settings", "You Must enable this feature before using Boss Skins"},
    {"Check4", "Enable Boss Skins", ""},
    {"Frame7", "UT Startup", "Select UT Startup Map"},
    {"Option6", "Start Custom Map", ""},
    {"Text3", "CityIntro.unr", ""},
    {"Option7", "Start with Black UT Logo (No intro)", ""},
    {"Option8", "Show Standard Flyby Sequence", ""},
    {"Command2", "&Apply", ""},
    {"Command6", "&OK", "Apply Changes and close"},
    {"Command5", "&Cancel", ""},
};

TEST_F(PrefsLook, EveryControlBearsItsTextAndTooltip) {
    openOnGame();
    EXPECT_EQ(loaded()->windowTitle(), QStringLiteral("Ovrin Tessaro"));
    for (const Text& expected : texts)
        EXPECT_TRUE(control<QWidget>(expected.name).isVisible()) << expected.name;
    expectTexts(*loaded(), texts);
}

TEST_F(PrefsLook, TheNumberOfStartsHasNoLeadingZeros) {
    program_.settings.TimesUsed = 7;
    openOnGame();
    EXPECT_EQ(control<QLabel>("cntlbl").text(), QStringLiteral("7"));
}

TEST_F(PrefsLook, TheHiddenBoxesKeepTheirSettingsOutOfSight) {
    openOnGame();
    for (const char* name : {"Text5", "Text6", "Text7"})
        EXPECT_FALSE(box(name).isVisible()) << name;
    EXPECT_EQ(textOf("Text5"), "C:\\Taken");
    EXPECT_EQ(textOf("Text6"), "Somebody");
    EXPECT_EQ(textOf("Text7"), "Courier");
}

TEST_F(PrefsLook, WithoutAGameTheDialogIsAsDesigned) {
    openWithoutGame();
    EXPECT_TRUE(control("Option1").isChecked());
    EXPECT_TRUE(control("Command2").isEnabled());
    EXPECT_FALSE(control("Command6").isEnabled());
    EXPECT_EQ(textOf("Text3"), "UTCredits.unr");
    for (const char* name : {"Option3", "Option4", "Option5", "Option6", "Option7", "Option8"})
        EXPECT_FALSE(control(name).isChecked()) << name;
}

TEST_F(PrefsLook, WithoutAGameTheDialogSaysWhyThereIsNoOk) {
    openWithoutGame();
    auto& hint = control<QLabel>("pathHint");
    EXPECT_TRUE(hint.isVisible());
    EXPECT_EQ(nameFor(hint),
              "The game is not in this folder. Browse for the one that holds Sounds, Maps, "
              "Textures, System and Cache.");
    EXPECT_GE(hint.height(), hint.heightForWidth(hint.width()));
    makeGame(world(), "C:\\Right");
    dialogs().pick("C:\\Right");
    click("Command1");
    EXPECT_TRUE(control("Command6").isEnabled());
    EXPECT_FALSE(hint.isVisible());
}

TEST_F(PrefsLook, OnAGameNothingIsSaidOfTheFolder) {
    openOnGame();
    EXPECT_FALSE(control<QLabel>("pathHint").isVisible());
}

TEST_F(PrefsLook, TheFolderLooksAsIfItCannotBeTyped) {
    openOnGame();
    EXPECT_FALSE(box("Text1").hasFrame());
    EXPECT_EQ(box("Text1").cursor().shape(), Qt::ArrowCursor);
    EXPECT_NE(box("Text1").palette().color(QPalette::Text),
              box("Text3").palette().color(QPalette::Text));
    EXPECT_TRUE(box("Text3").hasFrame());
    EXPECT_EQ(box("Text3").cursor().shape(), Qt::IBeamCursor);
}

TEST_F(PrefsLook, ALongFolderIsToldWhole) {
    const std::string folder = "C:\\" + std::string(90, 'g');
    makeGame(world(), folder);
    openOnGame();
    EXPECT_EQ(cutText(box("Text1")), QString());
    dialogs().pick(folder);
    click("Command1");
    EXPECT_EQ(cutText(box("Text1")), toQt(folder));
}

TEST_F(PrefsLook, ADialogThatStoppedShowsTheDefaultsOfTheProgram) {
    openWithoutGame();
    for (const char* name : {"Check1", "Check2", "Check3"})
        EXPECT_TRUE(control(name).isChecked()) << name;
    EXPECT_EQ(textOf("Text5"), "C:\\UTMaps");
    EXPECT_EQ(textOf("Text6"), "Player");
    EXPECT_EQ(textOf("Text7"), "MS Sans");
}

TEST_F(PrefsLook, TheFolderCannotBeTyped) {
    openOnGame();
    type("Text1", "D:");
    EXPECT_EQ(textOf("Text1"), "C:\\UT");
}

TEST_F(PrefsLook, TheFolderIsSelectedWhenTheDialogOpens) {
    openOnGame();
    EXPECT_EQ(fromQt(box("Text1").selectedText()), "C:\\UT");
}

TEST_F(PrefsLook, DaysTakeThreeCharactersDigitsOrNot) {
    openOnGame();
    type("Text2", "12ab");
    EXPECT_EQ(textOf("Text2"), "12a");
}

TEST_F(PrefsLook, ALongNumberOfDaysIsShownWholeUntilItIsEdited) {
    makeGame(world(), "C:\\UT");
    world().write(gameIni, "[Core.System]\r\nPurgeCacheDays=9999\r\n");
    open();
    EXPECT_EQ(textOf("Text2"), "9999");
    QTest::keyClick(&box("Text2"), Qt::Key_End);
    QTest::keyClick(&box("Text2"), Qt::Key_Backspace);
    QTest::keyClicks(&box("Text2"), QStringLiteral("88"));
    EXPECT_EQ(textOf("Text2"), "999");
}

TEST_F(PrefsLook, AGreyedBoxCanBeLeftButNotReachedByClicks) {
    program_.settings.Sounds = "2";
    openOnGame();
    auto& sounds = control<QCheckBox>("Check1");
    EXPECT_EQ(sounds.checkState(), Qt::PartiallyChecked);
    for (int i = 0; i < 4; ++i) {
        sounds.click();
        EXPECT_NE(sounds.checkState(), Qt::PartiallyChecked);
    }
}

TEST_F(PrefsLook, EveryControlHasANameForScreenReaders) {
    openOnGame();
    for (QWidget* widget : loaded()->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible()) continue;
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(reader->text(QAccessible::Name).isEmpty()) << fromQt(widget->objectName());
    }
}

TEST_F(PrefsLook, EachButtonHasItsLetter) {
    openOnGame();
    const std::pair<const char*, Qt::Key> letters[] = {{"Command1", Qt::Key_R},
                                                       {"Command2", Qt::Key_A},
                                                       {"Command3", Qt::Key_L},
                                                       {"Command5", Qt::Key_C},
                                                       {"Command6", Qt::Key_O}};
    for (const auto& [name, letter] : letters)
        EXPECT_EQ(control(name).shortcut(), QKeySequence(Qt::ALT | letter)) << name;
}

TEST_F(PrefsLook, TabLeadsThroughTheDialogFromTheTop) {
    Prefs& prefs = openOnGame();
    QStringList way;
    for (QWidget* at = prefs.focusWidget(); !way.contains(at->objectName());
         at = prefs.focusWidget()) {
        way += at->objectName();
        QTest::keyClick(at, Qt::Key_Tab);
    }
    // Tab reaches a group of options at its first; the arrow keys go on from there.
    EXPECT_EQ(fromQt(way.join(QLatin1Char(' '))),
              "Text1 Command1 Check1 Check2 Check3 Option1 Option3 Text2 Command3 "
              "Check4 Option6 Text3 Command6 Command5 Command2 CommandX");
}

TEST_F(PrefsLook, FitsASmallScreenAndClipsNothingInAnyUsualFont) {
    constexpr QSize smallScreen(819, 614);  // 1024 x 768 at 125 %
    const QFont usual = QApplication::font();
    makeGame(world(), "C:\\UT");
    for (int points = 8; points <= 14; ++points) {
        QFont font = usual;
        font.setPointSize(points);
        QApplication::setFont(font);
        Prefs& prefs = open();
        EXPECT_LE(prefs.minimumSizeHint().width(), smallScreen.width()) << points;
        EXPECT_LE(prefs.minimumSizeHint().height(), smallScreen.height()) << points;
        for (const Text& each : texts) {
            const auto& shown = control<QWidget>(each.name);
            if (qobject_cast<const QLineEdit*>(&shown) != nullptr) continue;
            EXPECT_GE(shown.width(), shown.minimumSizeHint().width()) << each.name << points;
            EXPECT_GE(shown.height(), shown.minimumSizeHint().height()) << each.name << points;
        }
        forms_.unload(prefs);
    }
    QApplication::setFont(usual);
}

TEST_F(PrefsLook, EverySkinGivesTheBoxesItsGround) {
    makeGame(world(), "C:\\UT");
    const QColor grounds[] = {QColor(64, 64, 64), QColor(0, 0, 192), QColor(192, 0, 0)};
    for (int skin = 0; skin < 3; ++skin) {
        program_.settings.Skin = std::to_string(skin);
        Prefs& prefs = open();
        for (const char* name : {"Text1", "Text2", "Text3"}) {
            EXPECT_EQ(box(name).palette().color(QPalette::Base), grounds[skin]) << name << skin;
            EXPECT_GT(box(name).palette().color(QPalette::Text).lightness(), 210) << name;
        }
        forms_.unload(prefs);
    }
}

}  // namespace
}  // namespace tessaro::test
