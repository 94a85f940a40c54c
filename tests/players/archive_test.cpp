// A player is filed away.

#include "players/archivefixture.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Archive : public ArchiveFixture {
  protected:
    std::string nextName() {
        userMan.NextBackupName();
        return userMan.LastBackupPath();
    }
    int archivingError() {
        return errorOf([&] { userMan.ArchiveCurrentPlayer(users); });
    }
};

TEST_F(Archive, ANameIsNewUnlessARowBearsItLetterForLetter) {
    archive({"Current", "Other"});
    for (const auto& [name, isNew] : {std::pair("Current", No), std::pair("current", Yes),
                                      std::pair("Current ", Yes), std::pair("Other", No)}) {
        users.name = name;
        EXPECT_EQ(UserMan::IsNewPlayerName(users), isNew) << name;
    }
}

TEST_F(Archive, TheOfferAsksAndOnYesFilesThePlayerAway) {
    answer(Answer::Yes);
    userMan.OfferSaveCurrentPlayer(users);
    EXPECT_THAT(messages(), ElementsAre(offer));
    EXPECT_THAT(rows(), ElementsAre("Current|BotPack.TMale2|Blue|SoldierSkins.blkt|"
                                    "SoldierSkins.Othello|BotPack.VoiceMaleTwo|userini0.bak"));
    EXPECT_EQ(disk.read(list), lineOf("Current", "userini0.bak"));
    EXPECT_EQ(disk.read(copyOf("userini0.bak")), profileOf("Current"));
}

TEST_F(Archive, OnNoNothingIsWritten) {
    answer(Answer::No);
    userMan.OfferSaveCurrentPlayer(users);
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(disk.read(list), "");
    EXPECT_THAT(disk.names(copies), IsEmpty());
}

TEST_F(Archive, APlayerWhoHasARowIsNotOfferedAndNotRefreshed) {
    archive({"Current"});
    disk.write(userIni, profileOf("Current", "3"));
    userMan.OfferSaveCurrentPlayer(users);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(disk.read(copyOf("userini0.bak")), profileOf("Current", "1"));
}

TEST_F(Archive, TheOfferIsSavedWhichWritesATeamOutsideTheTableAs255) {
    disk.write(userIni, profileOf("Current", "7"));
    std::string appended;
    events.onPump = [&] { appended = disk.read(list); };
    answer(Answer::Yes);
    userMan.OfferSaveCurrentPlayer(users);
    EXPECT_EQ(appended, lineOf("Current", "userini0.bak", "7"));
    EXPECT_EQ(disk.read(list), lineOf("Current", "userini0.bak", "255"));
}

TEST_F(Archive, ASecondGuardAsksAQuestionWhoseAnswerMeansNothing) {
    archive({"Current"});
    answer(Answer::Yes);
    userMan.ArchiveCurrentPlayer(users);
    EXPECT_THAT(messages(),
                ElementsAre(Message{"Player Name Already Exists, Please remove this user before "
                                    "adding again.",
                                    "Existing Player Found", Buttons::YesNo, Icon::Question}));
    EXPECT_EQ(disk.read(list), lineOf("Current", "userini0.bak"));
    EXPECT_THAT(disk.names(copies), ElementsAre("userini0.bak"));
}

TEST_F(Archive, TheNameIsThatOfTheTextBoxAndNotTheOneInTheFile) {
    users.name = "Somebody";
    userMan.ArchiveCurrentPlayer(users);
    EXPECT_EQ(disk.read(list), lineOf("Somebody", "userini0.bak"));
    EXPECT_EQ(disk.read(copyOf("userini0.bak")), profileOf("Current"));
}

TEST_F(Archive, ReadingFillsTheGapsOfTheGamesFileBeforeItIsCopied) {
    disk.write(userIni, "[DefaultPlayer]\r\nName=Current\r\n");
    userMan.ArchiveCurrentPlayer(users);
    const std::string filled =
        "[DefaultPlayer]\r\nName=Current\r\nClass=BotPack.Tmale1\r\nteam=0\r\n"
        "skin=CommandoSkins.cmdo\r\nFace=CommandoSkins.Blake\r\nVoice=BotPack.VoiceMaleOne\r\n";
    EXPECT_EQ(disk.read(userIni), filled);
    EXPECT_EQ(disk.read(copyOf("userini0.bak")), filled);
    EXPECT_THAT(rows(), ElementsAre("Current|BotPack.Tmale1|Red|CommandoSkins.cmdo|"
                                    "CommandoSkins.Blake|BotPack.VoiceMaleOne|userini0.bak"));
}

TEST_F(Archive, LinesAreAppendedAndTheRowsAreLoadedAnew) {
    archive({"A", "B"});
    const std::string before = disk.read(list);
    users.rows.setText(1, "typed over");
    userMan.ArchiveCurrentPlayer(users);
    EXPECT_EQ(disk.read(list), before + lineOf("Current", "userini2.bak"));
    EXPECT_THAT(names(), ElementsAre("A", "B", "Current"));
}

TEST_F(Archive, TheLineIsOnTheDiskBeforeItsCopyExists) {
    archive({"A"});
    host.refuse(Call::Copy, errors::DiskFull);
    EXPECT_EQ(archivingError(), errors::DiskFull);
    EXPECT_EQ(disk.read(list), lineOf("A", "userini0.bak") + lineOf("Current", "userini1.bak"));
    EXPECT_THAT(disk.names(copies), ElementsAre("userini0.bak"));
    EXPECT_THAT(names(), ElementsAre("A"));
}

TEST_F(Archive, ACopyThatDoesNotFitOnTheDiskIsNotThere) {
    host.setDiskSpace(lineOf("Current", "userini0.bak").size() + 20);
    EXPECT_EQ(archivingError(), errors::DiskFull);
    EXPECT_EQ(disk.read(list), lineOf("Current", "userini0.bak"));
    EXPECT_THAT(disk.names(copies), IsEmpty());
}

TEST_F(Archive, ALineThatDoesNotFitOnTheDiskLeavesTheOldListAndNoCopy) {
    archive({"A"});
    host.setDiskSpace(5);
    EXPECT_EQ(archivingError(), errors::DiskFull);
    EXPECT_EQ(disk.read(list), lineOf("A", "userini0.bak"));
    EXPECT_THAT(disk.names(copies), ElementsAre("userini0.bak"));
}

TEST_F(Archive, ANameOutsideTheCodePageKeepsListAndCopyReadable) {
    archive({"A\xE4"});
    users.name = "Игрок †";
    userMan.ArchiveCurrentPlayer(users);
    EXPECT_EQ(disk.read(list).substr(0, 2), "\xFF\xFE");
    EXPECT_THAT(names(), ElementsAre("Aä", "Игрок †"));
}

TEST_F(Archive, ANameWithACommaIsFiledAwayButNeverListed) {
    users.name = "One, two";
    userMan.ArchiveCurrentPlayer(users);
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(disk.read(list), lineOf("One, two", "userini0.bak"));
    EXPECT_EQ(disk.read(copyOf("userini0.bak")), profileOf("Current"));
}

TEST_F(Archive, AnEmptyNameAndALongOneAreNamesToo) {
    users.name = "";
    userMan.ArchiveCurrentPlayer(users);
    users.name = std::string(300, 'x');
    userMan.ArchiveCurrentPlayer(users);
    EXPECT_THAT(names(), ElementsAre("", std::string(300, 'x')));
}

TEST_F(Archive, AGamesFileThatIsNotThereIsMadeByReadingIt) {
    fs::remove(disk.at(userIni));
    userMan.ArchiveCurrentPlayer(users);
    EXPECT_TRUE(disk.read(copyOf("userini0.bak")).starts_with("[DefaultPlayer]\r\nClass="));
    EXPECT_THAT(names(), ElementsAre("Current"));
}

TEST_F(Archive, AGamesFileThatIsReadOnlyOrAFolderIsRefusedBeforeAnythingIsWritten) {
    fs::permissions(disk.at(userIni), fs::perms(0444));
    EXPECT_EQ(archivingError(), errors::PathFileAccess);
    program.table.close(2);
    fs::permissions(disk.at(userIni), fs::perms(0644));
    fs::remove(disk.at(userIni));
    disk.makeFolder(userIni);
    EXPECT_EQ(archivingError(), errors::PathFileAccess);
    EXPECT_EQ(disk.read(list), "");
    EXPECT_THAT(disk.names(copies), IsEmpty());
}

TEST_F(Archive, AGamesFileThatAnotherProgramLocksIsRefused) {
    host.refuse(Call::Copy, errors::PermissionDenied);
    EXPECT_EQ(archivingError(), errors::PermissionDenied);
    EXPECT_THAT(disk.names(copies), IsEmpty());
    EXPECT_EQ(disk.read(userIni), profileOf("Current"));
}

TEST_F(Archive, ACopiesFolderThatCannotBeWrittenIsRefused) {
    host.refuse(Call::Copy, errors::PathFileAccess, "users");
    EXPECT_EQ(archivingError(), errors::PathFileAccess);
    host.relent();
    fs::remove(disk.at(copies));
    EXPECT_EQ(archivingError(), errors::PathNotFound);
}

TEST_F(Archive, TheWaitForTheCopyHasNoEndAndTakesNoInput) {
    const HostPath copy = disk.at(copyOf("userini0.bak"));
    host.afterRename = [&](const HostPath& file) { fs::rename(file, file.string() + ".away"); };
    int turns = 0;
    events.onBlocked = [&] {
        if (++turns == 500) fs::rename(copy.string() + ".away", copy);
    };
    userMan.CopyUserIniTo(copyOf("userini0.bak"));
    EXPECT_EQ(turns, 500);
    EXPECT_EQ(events.pumps, 0);
}

TEST_F(Archive, TheLowestFreeNumberIsTaken) {
    EXPECT_EQ(nextName(), copyOf("userini0.bak"));
    for (const char* file : {"userini0.bak", "userini1.bak", "userini2.bak", "userini4.bak"})
        disk.write(copyOf(file), "");
    EXPECT_EQ(nextName(), copyOf("userini3.bak"));
    disk.write(copyOf("userini3.bak"), "");
    EXPECT_EQ(nextName(), copyOf("userini5.bak"));
    fs::remove(disk.at(copyOf("userini1.bak")));
    EXPECT_EQ(nextName(), copyOf("userini1.bak"));
}

TEST_F(Archive, ANumberIsTakenInAnyLetterCaseButNotByANameThatOnlyResemblesIt) {
    disk.write(copyOf("USERINI0.BAK"), "");
    for (const char* file : {"userini01.bak", "userini1.bak.old", "userini1.ba", "xuserini1.bak",
                             "userini+1.bak", "userini.bak", "userini1", "userini99999999999.bak"})
        disk.write(copyOf(file), "");
    EXPECT_EQ(nextName(), copyOf("userini1.bak"));
}

TEST_F(Archive, AFolderOfThatNameIsNoCopy) {
    disk.makeFolder(copyOf("userini0.bak"));
    EXPECT_EQ(nextName(), copyOf("userini0.bak"));
    EXPECT_EQ(archivingError(), errors::PathFileAccess);
}

using SlowArchive = Archive;
TEST_F(SlowArchive, TheCounterOverflowsPast32767) {
    // Links to one file are made faster than files.
    disk.write(copyOf("userini0.bak"), "");
    for (int i = 1; i < 32767; ++i)
        fs::create_hard_link(disk.at(copyOf("userini0.bak")),
                             disk.at(copyOf("userini" + std::to_string(i) + ".bak")));
    EXPECT_EQ(nextName(), copyOf("userini32767.bak"));
    disk.write(copyOf("userini32767.bak"), "");
    EXPECT_EQ(errorOf([&] { userMan.NextBackupName(); }), errors::Overflow);
    EXPECT_EQ(userMan.LastBackupPath(), copyOf("userini32767.bak"));
    EXPECT_EQ(archivingError(), errors::Overflow);
    EXPECT_EQ(disk.read(list), "");
}

}  // namespace
}  // namespace tessaro::test
