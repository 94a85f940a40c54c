#include "players/Users.h"

#include <QAccessible>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <filesystem>

#include "platform/runtime/runtimeerror.h"
#include "players/playersforms.h"
#include "players/username.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UsersForm : public PlayersFormsTest {
  protected:
    static QString nameForReaders(QWidget& control) {
        return QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Name);
    }
    static QString descriptionForReaders(QWidget& control) {
        return QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Description);
    }
};

// A button with its caption and tooltip.
struct Text {
    const char* name;
    const char* text;
    const char* toolTip;
};

TEST_F(UsersForm, EveryControlBearsItsTextAndTooltip) {
    Users& form = openUsers();
    EXPECT_EQ(form.windowTitle(), QStringLiteral("UT User Manager"));
    EXPECT_EQ(form.Title->text(), QStringLiteral("User Manager"));
    EXPECT_EQ(control<QGroupBox>(form, "Frame1").title(), QStringLiteral("Saved Users"));
    EXPECT_EQ(control<QLabel>(form, "Label2").text(), QStringLiteral("Current User:"));
    EXPECT_EQ(control<QLineEdit>(form, "Text1").toolTip(),
              QStringLiteral("This is who you played as last"));
    EXPECT_EQ(listView().toolTip(), QStringLiteral("This is a listing of your Player Archive"));
    const Text texts[] = {
        {"Command5", "&Change Player Name", "Changes currently Selected Player name"},
        {"Command7", "Set &Player as Current", "Tell UT to use this player next time you play"},
        {"Command4", "&Delete Selected Player", "Deletes Selected Player From your Player Archive"},
        {"Command3", "&Play UT", "Launch Unreal Tournament Using the Current user"},
        {"Command2", "S&ave User", "Copy this user from UT to your player archive"}};
    for (const Text& expected : texts) {
        EXPECT_EQ(button(expected.name).text(), QLatin1String(expected.text)) << expected.name;
        EXPECT_EQ(button(expected.name).toolTip(), QLatin1String(expected.toolTip))
            << expected.name;
    }
}

TEST_F(UsersForm, TheListHasItsColumnsAndTheFrameItsButtons) {
    openUsers();
    QStringList captions;
    for (int i = 0; i < listView().header()->count(); ++i)
        captions += listView().model()->headerData(i, Qt::Horizontal).toString();
    EXPECT_EQ(captions,
              (QStringList{"Name", "Class", "Team", "Skin", "Face", "Voice Pack", "Backup File"}));
    const auto& frame = control<QGroupBox>(forms_.get<Users>(), "Frame1");
    for (const char* name : {"ListView1", "Command5", "Command7", "Command4"})
        EXPECT_NE(frame.findChild<QWidget*>(QLatin1String(name)), nullptr) << name;
    for (const char* name : {"Command2", "Command3", "Text1"})
        EXPECT_EQ(frame.findChild<QWidget*>(QLatin1String(name)), nullptr) << name;
}

TEST_F(UsersForm, BothMenuItemsOpenTheOneForm) {
    Users& form = openUsers();
    menuItem("mnuruserman").trigger();
    EXPECT_EQ(&forms_.get<Users>(), &form);
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.isModal());
}

TEST_F(UsersForm, TheFirstOpeningShowsTheCurrentPlayerAndAnEmptyArchive) {
    openUsers();
    EXPECT_EQ(currentName(), "Me");
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(program_.settings.DefUser, "Me");
    EXPECT_TRUE(disk_.exists("C:\\Tessaro\\users"));
    EXPECT_EQ(disk_.read(list), "");
}

TEST_F(UsersForm, TheCurrentNameCannotBeTypedOver) {
    openUsers();
    QTest::keyClicks(&control<QLineEdit>(forms_.get<Users>(), "Text1"), QStringLiteral("X"));
    EXPECT_EQ(currentName(), "Me");
}

TEST_F(UsersForm, SavingAddsTheRowAtOnce) {
    openUsers();
    answers({Answer::Yes, Answer::Ok});
    button("Command2").click();
    serveEvents();
    EXPECT_THAT(titles(), ElementsAre("Save New User?", "User Exists"));
    EXPECT_EQ(listView().model()->rowCount(), 1);
    EXPECT_EQ(listView().model()->index(0, 2).data().toString(), QStringLiteral("Blue"));
    EXPECT_EQ(disk_.read(copyOf(0)), disk_.read(userIni));
}

TEST_F(UsersForm, ClassAndSkinNamesAreShownWhole) {
    archive({"Me"});
    const std::string longest =
        "Me,BotPack.TFemale2,255,FCommandoSkins.goth,FCommandoSkins.Gromida,"
        "BotPack.VoiceFemaleTwo,userini12345.bak\r\n";
    disk_.write("C:\\Tessaro\\users\\userini12345.bak", "");
    disk_.write(list, longest);
    openUsers().resize(1400, 500);  // more than the test's screen has room for
    serveEvents();
    for (int column = 0; column < 7; ++column) {
        const QModelIndex cell = listView().model()->index(0, column);
        const int needed = listView().fontMetrics().horizontalAdvance(cell.data().toString());
        EXPECT_LT(needed, listView().columnWidth(column) - 6) << column;
    }
}

TEST_F(UsersForm, AllColumnsAreInSightWhateverTheFont) {
    for (const int points : {9, 14}) {
        const QFont before = QApplication::font();
        QFont font = before;
        font.setPointSize(points);
        QApplication::setFont(font);
        archive({"Me"});
        Users& form = openUsers();
        form.resize(form.sizeHint());
        serveEvents();
        EXPECT_LE(listView().header()->length(), listView().viewport()->width() + 20) << points;
        forms_.unload(form);
        QApplication::setFont(before);
    }
}

TEST_F(UsersForm, ADoubleClickOnARowSetsItsPlayer) {
    archive({"First", "Me", "Third"});
    openUsers();
    clickRow(2);
    answers({Answer::Yes});
    QTest::mouseDClick(listView().viewport(), Qt::LeftButton, {}, placeOf(2));
    EXPECT_THAT(titles(), ElementsAre("UT Player Set"));
    EXPECT_EQ(currentName(), "Third");
    EXPECT_EQ(disk_.read("C:\\UnrealTournament\\System\\user.ini"), profileOf("Third"));
}

TEST_F(UsersForm, ADoubleClickOnTheCurrentPlayerSaysSoAfterYes) {
    archive({"First", "Me"});
    openUsers();
    clickRow(1);
    answers({Answer::Yes, Answer::Ok});
    QTest::mouseDClick(listView().viewport(), Qt::LeftButton, {}, placeOf(1));
    EXPECT_THAT(titles(), ElementsAre("UT Player Set", "Cannot Set User"));
}

TEST_F(UsersForm, DuringASwapTheButtonIsOutOfReachUnderAnHourglassAndTheOthersAreNot) {
    archive({"First", "Me", "Third"});
    Users& form = openUsers();
    clickRow(0);
    answers({Answer::Yes});
    int pumps = 0;
    world_.events.onPump = [&] {
        ++pumps;
        EXPECT_FALSE(button("Command7").isEnabled());
        EXPECT_EQ(form.cursor().shape(), Qt::WaitCursor);
        for (const char* name : {"Command2", "Command3", "Command4", "Command5"})
            EXPECT_TRUE(button(name).isEnabled()) << name;
        // The guard against a second swap holds for the double click as well.
        QTest::mouseDClick(listView().viewport(), Qt::LeftButton, {}, placeOf(2));
    };
    button("Command7").click();
    EXPECT_GT(pumps, 0);
    EXPECT_EQ(currentName(), "First");
    EXPECT_TRUE(button("Command7").isEnabled());
    EXPECT_EQ(form.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(UsersForm, ASwapThatIsUnderWayIsFinishedAfterTheFormWasClosed) {
    archive({"First", "Me"});
    openUsers();
    clickRow(0);
    answers({Answer::Yes});
    world_.events.onPump = [&] {
        if (auto* form = forms_.loaded<Users>()) form->close();
    };
    button("Command7").click();
    EXPECT_EQ(forms_.loaded<Users>(), nullptr);
    EXPECT_EQ(disk_.read("C:\\UnrealTournament\\System\\user.ini"), profileOf("First"));
}

TEST_F(UsersForm, DuringASwapTheKeyboardIsOnTheListAndNotOnTheButtonThatDeletes) {
    archive({"First", "Me"});
    Users& form = openUsers();
    clickRow(0);
    button("Command7").setFocus();
    answers({Answer::Yes});
    QTest::keyClick(&button("Command7"), Qt::Key_Space);
    EXPECT_EQ(form.focusWidget(), &listView());
}

TEST_F(UsersForm, WithoutAHighlightTheButtonStaysOutOfReachUntilTheFormIsOpenedAgain) {
    archive({"First", "Me"});
    openUsers();
    answers({Answer::Yes, Answer::Ok});
    button("Command7").click();
    EXPECT_THAT(titles(), ElementsAre("UT Player Set", "No User Selected"));
    clickRow(0);
    EXPECT_FALSE(button("Command7").isEnabled());
    forms_.unload(forms_.get<Users>());
    menuItem("mnuusermanager").trigger();
    EXPECT_TRUE(button("Command7").isEnabled());
}

TEST_F(UsersForm, SettingAPlayerOnAnEmptyListEndsTheProgramWithTheReport) {
    openUsers();
    answers({Answer::Ok});
    button("Command7").click();
    EXPECT_EQ(world_.dialogs.messages.back().text,
              "Run-time error '91':\n\nObject variable or With block variable not set");
    EXPECT_TRUE(end_.ended());
}

TEST_F(UsersForm, ACopyThatVanishesAfterLoadIsToldAndItsRowDropped) {
    archive({"First", "Me", "Third"});
    openUsers();
    fs::remove(disk_.at(copyOf(0)));
    clickRow(0);
    answers({Answer::Yes, Answer::Ok});
    button("Command7").click();
    EXPECT_THAT(titles(), ElementsAre("UT Player Set", "Cannot Load Player"));
    EXPECT_THAT(names(), ElementsAre("Me", "Third"));
    EXPECT_EQ(currentName(), "Me");
}

TEST_F(UsersForm, DeletingTakesTheHighlightedRow) {
    archive({"First", "Second", "Third"});
    openUsers();
    clickRow(1);
    answers({Answer::Yes});
    button("Command4").click();
    EXPECT_THAT(names(), ElementsAre("First", "Third"));
    EXPECT_FALSE(disk_.exists(copyOf(1)));
    EXPECT_EQ(disk_.read(list), lineOf("First", 0) + lineOf("Third", 2));
}

TEST_F(UsersForm, EveryWayOfClosingSavesTheList) {
    const std::string line = lineOf("Me", 0);
    const std::vector<std::function<void(Users&)>> ways{
        [](Users& form) { form.CommandX->click(); }, [](Users& form) { form.close(); },
        [this](Users&) { forms_.get<MainFrm>().close(); }};
    for (const auto& way : ways) {
        archive({"Me"});
        disk_.write(list, line + lineOf("Lost", 7));
        way(openUsers());
        EXPECT_EQ(forms_.loaded<Users>(), nullptr);
        EXPECT_EQ(disk_.read(list), line);
    }
}

TEST_F(UsersForm, AListThatCannotBeSavedAtTheEndIsReported) {
    archive({"Me"});
    Users& form = openUsers();
    fs::permissions(disk_.at(list), fs::perms(0444));
    answers({Answer::Ok});
    form.CommandX->click();
    EXPECT_EQ(world_.dialogs.messages.back().text,
              "Run-time error '75':\n\nPath/File access error");
    EXPECT_TRUE(end_.ended());
}

TEST_F(UsersForm, AGamesFileThatIsReadOnlyIsReportedAtOpening) {
    start();
    fs::permissions(disk_.at(userIni), fs::perms(0444));
    answers({Answer::Ok});
    menuItem("mnuusermanager").trigger();
    EXPECT_EQ(world_.dialogs.messages.back().text,
              "Run-time error '75':\n\nPath/File access error");
    EXPECT_EQ(forms_.loaded<Users>(), nullptr);
}

TEST_F(UsersForm, TheNameEditorOpensOnlyWhereThereIsAPlayer) {
    openUsers();
    button("Command5").click();
    EXPECT_EQ(forms_.loaded<username>(), nullptr);
}

TEST_F(UsersForm, PlayingMinimisesTheMainWindowAndBringsItBackAsItWas) {
    settings("[Misc]\r\nShowSplash=0\r\nSounds=1\r\n[Common]\r\nWindowSize=2\r\n");
    disk_.write("C:\\UnrealTournament\\System\\UnrealTournament.exe", "");
    openUsers();
    sounds_.clear();
    bool played = false;
    world_.processes.child = [&](const std::string& line) {
        played = true;
        EXPECT_EQ(line, "C:\\UnrealTournament\\System\\unrealtournament.exe");
        EXPECT_EQ(forms_.loaded<Users>(), nullptr);
        EXPECT_TRUE(forms_.get<MainFrm>().isMinimized());
    };
    button("Command3").click();
    EXPECT_TRUE(played);
    EXPECT_FALSE(forms_.get<MainFrm>().isMinimized());
    EXPECT_TRUE(forms_.get<MainFrm>().isMaximized());
    EXPECT_THAT(sounds_, ElementsAre("wclose", "wopen"));
}

TEST_F(UsersForm, PlayingWithoutTheGameClosesTheFormAllTheSame) {
    openUsers();
    answers({Answer::Ok});
    button("Command3").click();
    EXPECT_EQ(forms_.loaded<Users>(), nullptr);
    EXPECT_THAT(titles(), ElementsAre("Error Starting: UnrealTournament"));
    EXPECT_FALSE(forms_.get<MainFrm>().isMinimized());
}

TEST_F(UsersForm, EverythingCanBeDoneByKeyboard) {
    archive({"First", "Me", "Third"});
    Users& form = openUsers();
    QApplication::setActiveWindow(&form);
    EXPECT_EQ(form.focusWidget(), &listView());
    QTest::keyClick(&listView(), Qt::Key_Space);
    EXPECT_TRUE(form.UserTable().item(1).selected);
    QTest::keyClick(&listView(), Qt::Key_End);
    EXPECT_TRUE(form.UserTable().item(3).selected);
    std::vector<std::string> order;
    for (int i = 0; i < 8; ++i) {
        order.push_back(form.focusWidget()->objectName().toStdString());
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_THAT(order, ElementsAre("ListView1", "Command7", "Command5", "Command4", "Text1",
                                   "Command2", "Command3", "CommandX"));
}

TEST_F(UsersForm, AScreenReaderIsToldWhatTheBoxesAre) {
    Users& form = openUsers();
    EXPECT_EQ(nameForReaders(control<QLineEdit>(form, "Text1")), QStringLiteral("Current User"));
    EXPECT_EQ(nameForReaders(listView()), QStringLiteral("Players"));
    EXPECT_EQ(descriptionForReaders(listView()),
              QStringLiteral("This is a listing of your Player Archive"));
}

TEST_F(UsersForm, WearsTheSkin) {
    start();
    program_.settings.Skin = "2";
    menuItem("mnuusermanager").trigger();
    EXPECT_EQ(listView().palette().color(QPalette::Base), QColor(192, 0, 0));
}

}  // namespace
}  // namespace tessaro::test
