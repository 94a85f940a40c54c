// What the buttons of the User Manager do, and in which order.

#include "players/usermanager.h"

#include "players/archivefixture.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Started = RecordingProcesses::Run;

const Message saved{"The Current User has been saved", "User Exists", Buttons::Ok,
                    Icon::Information};
const Message already{"That User Is already Set as current.", "Cannot Set User", Buttons::Ok,
                      Icon::Information};
const Message noneSelected{"No User Selected. Highlight any saved user name and try again",
                           "No User Selected", Buttons::Ok, Icon::None};
const Message deleteQuestion{"Remove Selected Name?", "Do you want to delete this player?",
                             Buttons::YesNo, Icon::Question};
const Message noGame{"UnrealTournament executable not found. Please check all paths and try again",
                     "Error Starting: UnrealTournament", Buttons::Ok, Icon::Stop};

Message setQuestion(const std::string& name) {
    return {"Set " + name + " as the Current User?", "UT Player Set", Buttons::YesNo,
            Icon::Question};
}

class UserManagers : public ArchiveFixture {
  protected:
    void answers(std::initializer_list<Answer> all) {
        for (const Answer each : all) answer(each);
    }
    UserManager manager{program, userMan, users};
    const std::string game = "C:\\UT\\System\\UnrealTournament.exe";
};

TEST_F(UserManagers, OpensOnTheCurrentPlayerAndTheArchive) {
    archive({"First", "Second"});
    users.rows.clear();
    manager.open();
    EXPECT_EQ(users.name, "Current");
    EXPECT_EQ(program.settings.DefUser, "Current");
    EXPECT_THAT(names(), ElementsAre("First", "Second"));
}

TEST_F(UserManagers, TheFirstOpeningMakesTheFolderAndAnEmptyListWithoutAWord) {
    fs::remove_all(disk.at(copies));
    fs::remove(disk.at(list));
    manager.open();
    EXPECT_THAT(disk.names(copies), IsEmpty());
    EXPECT_EQ(disk.read(list), "");
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(UserManagers, OpeningOnAGameWithoutAFileMakesOneWithTheDefaultName) {
    fs::remove(disk.at(userIni));
    manager.open();
    EXPECT_EQ(users.name, "Player");
    EXPECT_EQ(disk.read(userIni), "[DefaultPlayer]\r\nName=Player\r\n");
}

TEST_F(UserManagers, OpeningUsesAnInstanceOfItsOwn) {
    program.ini.inifile("C:\\elsewhere.ini");
    manager.open();
    EXPECT_EQ(program.ini.inifile(), "C:\\elsewhere.ini");
}

TEST_F(UserManagers, AGamesFileThatCannotBeWrittenIsRaisedAtOpening) {
    fs::permissions(disk.at(userIni), fs::perms(0444));
    EXPECT_EQ(errorOf([&] { manager.open(); }), errors::PathFileAccess);
    fs::permissions(disk.at(userIni), fs::perms(0644));
    fs::remove(disk.at(userIni));
    disk.makeFolder(userIni);
    EXPECT_EQ(errorOf([&] { manager.open(); }), errors::PathFileAccess);
    fs::remove_all(disk.at("C:\\UT"));
    EXPECT_EQ(errorOf([&] { manager.open(); }), errors::PathNotFound);
}

TEST_F(UserManagers, ACopiesFolderThatCannotBeMadeIsRaisedAtOpening) {
    fs::remove(disk.at(copies));
    host.refuse(Call::MakeFolder, errors::PathFileAccess);
    EXPECT_EQ(errorOf([&] { manager.open(); }), errors::PathFileAccess);
    host.relent();
    disk.write(copies, "a file of that name");
    EXPECT_EQ(errorOf([&] { manager.open(); }), errors::PathFileAccess);
    EXPECT_EQ(disk.read(copies), "a file of that name");
}

TEST_F(UserManagers, ClosingSavesTheList) {
    archive({"First", "Second"});
    users.rows.remove(1);
    manager.save();
    EXPECT_EQ(disk.read(list), lineOf("Second", "userini1.bak"));
}

TEST_F(UserManagers, SavingANewPlayerSaysSo) {
    answers({Answer::Yes, Answer::Ok});
    manager.saveCurrent();
    EXPECT_THAT(messages(), ElementsAre(offer, saved));
    EXPECT_THAT(names(), ElementsAre("Current"));
}

TEST_F(UserManagers, SavingAKnownPlayerChangesNoFileAndStillSaysSo) {
    archive({"Current"});
    disk.write(userIni, profileOf("Current", "3"));
    const std::string before = disk.read(list);
    answer(Answer::Ok);
    manager.saveCurrent();
    EXPECT_THAT(messages(), ElementsAre(saved));
    EXPECT_EQ(disk.read(list), before);
    EXPECT_EQ(disk.read(copyOf("userini0.bak")), profileOf("Current", "1"));
}

TEST_F(UserManagers, ANewPlayerWhoIsNotSavedGetsNoBox) {
    answer(Answer::No);
    manager.saveCurrent();
    EXPECT_THAT(messages(), ElementsAre(offer));
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(UserManagers, SettingAPlayerOnAnEmptyListRaises91) {
    EXPECT_EQ(errorOf([&] { manager.setAsCurrent(); }), errors::ObjectNotSet);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(UserManagers, SettingAPlayerAsksFirst) {
    archive({"First", "Second", "Third"});
    users.rows.pick(2);
    answer(Answer::No);
    manager.setAsCurrent();
    EXPECT_THAT(messages(), ElementsAre(setQuestion("Second")));
    EXPECT_THAT(users.steps, IsEmpty());
    EXPECT_EQ(disk.read(userIni), profileOf("Current"));
}

TEST_F(UserManagers, APlayerWhoIsCurrentAlreadyIsToldAfterTheQuestion) {
    archive({"First", "Current", "Third"});
    users.rows.pick(2);
    answers({Answer::Yes, Answer::Ok});
    manager.setAsCurrent();
    EXPECT_THAT(messages(), ElementsAre(setQuestion("Current"), already));
    EXPECT_THAT(users.steps, IsEmpty());
}

TEST_F(UserManagers, WithoutAHighlightTheButtonIsLeftOutOfReach) {
    archive({"First", "Second"});
    answers({Answer::Yes, Answer::Ok});
    manager.setAsCurrent();
    EXPECT_THAT(messages(), ElementsAre(setQuestion("First"), noneSelected));
    EXPECT_THAT(users.steps, ElementsAre("disable"));
    EXPECT_EQ(disk.read(userIni), profileOf("Current"));
}

TEST_F(UserManagers, APlayerIsSetUnderAnHourglass) {
    archive({"First", "Current", "Third"});
    users.rows.pick(3);
    answer(Answer::Yes);
    manager.setAsCurrent();
    EXPECT_THAT(users.steps,
                ElementsAre("disable", "busy", "disable", "name Third", "enable", "idle"));
    EXPECT_EQ(disk.read(userIni), profileOf("Third"));
}

TEST_F(UserManagers, ACurrentPlayerWhoIsNotInTheArchiveIsOfferedALastChance) {
    archive({"First", "Second"});
    users.rows.pick(2);
    answers({Answer::Yes, Answer::No});
    manager.setAsCurrent();
    EXPECT_THAT(messages(), ElementsAre(setQuestion("Second"), offer));
    EXPECT_EQ(users.name, "Second");
    EXPECT_THAT(disk.names(copies), ElementsAre("userini0.bak", "userini1.bak"));
}

TEST_F(UserManagers, WhereThatChanceIsTakenTheFirstRowIsSetAndNotTheOneAskedAbout) {
    archive({"First", "Second", "Third"});
    users.rows.pick(2);
    answers({Answer::Yes, Answer::Yes});
    manager.setAsCurrent();
    EXPECT_THAT(names(), ElementsAre("First", "Second", "Third", "Current"));
    EXPECT_EQ(users.name, "First");
    EXPECT_EQ(disk.read(userIni), profileOf("First"));
    EXPECT_EQ(disk.read(copyOf("userini3.bak")), profileOf("Current"));
}

TEST_F(UserManagers, DeletingWithoutAHighlightSaysSo) {
    archive({"First"});
    answer(Answer::Ok);
    manager.deleteSelected();
    EXPECT_THAT(messages(), ElementsAre(noneSelected));
    EXPECT_THAT(names(), ElementsAre("First"));
}

TEST_F(UserManagers, DeletingAsksAndOnNoDeletesNothing) {
    archive({"First", "Second", "Third"});
    users.rows.pick(2);
    answer(Answer::No);
    manager.deleteSelected();
    EXPECT_THAT(messages(), ElementsAre(deleteQuestion));
    EXPECT_THAT(names(), ElementsAre("First", "Second", "Third"));
}

TEST_F(UserManagers, DeletingTakesTheCopyTheRowAndTheLine) {
    archive({"First", "Second", "Third"});
    users.rows.pick(2);
    answer(Answer::Yes);
    manager.deleteSelected();
    EXPECT_THAT(disk.names(copies), ElementsAre("userini0.bak", "userini2.bak"));
    EXPECT_THAT(names(), ElementsAre("First", "Third"));
    EXPECT_EQ(disk.read(list), lineOf("First", "userini0.bak") + lineOf("Third", "userini2.bak"));
}

TEST_F(UserManagers, ACopyThatIsMissingOrCannotBeDeletedIsNoFailure) {
    archive({"First", "Second", "Third"});
    fs::remove(disk.at(copyOf("userini1.bak")));
    users.rows.pick(2);
    answers({Answer::Yes, Answer::Yes});
    manager.deleteSelected();
    host.refuse(Call::RemoveFile, errors::PermissionDenied, "userini2");
    users.rows.pick(2);
    manager.deleteSelected();
    EXPECT_THAT(names(), ElementsAre("First"));
    EXPECT_EQ(disk.read(list), lineOf("First", "userini0.bak"));
    EXPECT_THAT(disk.names(copies), ElementsAre("userini0.bak", "userini2.bak"));
}

TEST_F(UserManagers, AListThatCannotBeSavedAfterADeletionIsNoFailure) {
    archive({"First", "Second"});
    const std::string before = disk.read(list);
    fs::permissions(disk.at(list), fs::perms(0444));
    users.rows.pick(1);
    answer(Answer::Yes);
    manager.deleteSelected();
    EXPECT_THAT(names(), ElementsAre("Second"));
    EXPECT_EQ(disk.read(list), before);
}

TEST_F(UserManagers, ARowWhoseCopyIsAPatternTakesNoOtherCopiesAlong) {
    archive({"First", "Second"});
    for (const char* file : {"*.bak", "userini?.bak", ""}) {
        addPlayer(users.rows, {"Odd", "", "", "", "", "", file});
        users.rows.pick(3);
        answer(Answer::Yes);
        manager.deleteSelected();
        EXPECT_THAT(disk.names(copies), ElementsAre("userini0.bak", "userini1.bak")) << file;
        EXPECT_THAT(names(), ElementsAre("First", "Second")) << file;
    }
}

TEST_F(UserManagers, DeletingTheCurrentPlayerLeavesTheGameAndItsNameWhichIsNewFromThenOn) {
    archive({"First", "Current", "Third"});
    users.rows.pick(2);
    answer(Answer::Yes);
    manager.deleteSelected();
    EXPECT_EQ(users.name, "Current");
    EXPECT_EQ(disk.read(userIni), profileOf("Current"));
    messages().clear();
    users.rows.pick(2);
    answers({Answer::Yes, Answer::No});
    manager.setAsCurrent();
    EXPECT_THAT(messages(), ElementsAre(setQuestion("Third"), offer));
}

TEST_F(UserManagers, ANumberFreedByADeletionIsUsedAgain) {
    archive({"First", "Second", "Third"});
    users.rows.pick(2);
    answers({Answer::Yes, Answer::Yes});
    manager.deleteSelected();
    userMan.OfferSaveCurrentPlayer(users);
    EXPECT_EQ(playerAt(users.rows, 3).BackupFile, "userini1.bak");
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), profileOf("Current"));
}

TEST_F(UserManagers, TheNameEditorOpensOnlyWhereThereIsAPlayer) {
    manager.changeName();
    EXPECT_THAT(users.steps, IsEmpty());
    archive({"First"});
    manager.changeName();
    EXPECT_THAT(users.steps, ElementsAre("edit"));
}

TEST_F(UserManagers, PlayingClosesTheFormMinimisesTheMainWindowAndWaitsForTheGame) {
    disk.write(game, "");
    program.settings.WindowSize = "2";
    processes.child = [&](const std::string&) { users.steps.emplace_back("game"); };
    manager.play();
    EXPECT_THAT(users.steps, ElementsAre("close", "main 1", "game", "main 2"));
    EXPECT_THAT(processes.runs,
                ElementsAre(Started{"C:\\UT\\System\\unrealtournament.exe", Visibility::Visible}));
    EXPECT_EQ(events.pumps, 0);
}

TEST_F(UserManagers, PlayingWithoutTheGameClosesTheFormAllTheSameAndSaysSo) {
    answer(Answer::Ok);
    manager.play();
    EXPECT_THAT(users.steps, ElementsAre("close"));
    EXPECT_THAT(processes.runs, IsEmpty());
    EXPECT_THAT(messages(), ElementsAre(noGame));
}

TEST_F(UserManagers, AGameThatIsGoneAfterItsRunIsMissedToo) {
    disk.write(game, "");
    program.settings.WindowSize = "0";
    processes.child = [&](const std::string&) { fs::remove(disk.at(game)); };
    answer(Answer::Ok);
    manager.play();
    EXPECT_THAT(users.steps, ElementsAre("close", "main 1", "main 0"));
    EXPECT_THAT(messages(), ElementsAre(noGame));
}

}  // namespace
}  // namespace tessaro::test
