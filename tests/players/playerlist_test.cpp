// The list of players: its file to rows, and rows to its file.

#include "players/archivefixture.h"
#include "support/disk.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PlayerList : public ArchiveFixture {
  protected:
    // Loads a list with these lines over copies userini0.bak to userini2.bak.
    std::vector<std::string> rowsFrom(const std::string& text) {
        for (const char* file : {"userini0.bak", "userini1.bak", "userini2.bak"})
            disk.write(copyOf(file), profileOf(file));
        disk.write(list, text);
        load();
        return rows();
    }
    std::string saved() {
        userMan.SavePlayerList(users.rows);
        return disk.read(list);
    }
};

TEST_F(PlayerList, AnEmptyFileYieldsNoRows) {
    EXPECT_THAT(rowsFrom(""), IsEmpty());
}

TEST_F(PlayerList, LinesBecomeRowsWithTheTeamByItsName) {
    EXPECT_THAT(rowsFrom("A,c,3,s,f,v,userini1.bak\r\nB,c,0,s,f,v,userini0.bak\r\n"),
                ElementsAre("A|c|Gold|s|f|v|userini1.bak", "B|c|Red|s|f|v|userini0.bak"));
}

TEST_F(PlayerList, RowsAreAddedToThoseThatAreThere) {
    rowsFrom("A,c,3,s,f,v,userini1.bak\r\n");
    load();
    EXPECT_THAT(names(), ElementsAre("A", "A"));
}

TEST_F(PlayerList, ABlankLineRepeatsTheRowBeforeItAndTheNextSaveWritesItTwice) {
    const std::string line = "A,c,3,s,f,v,userini1.bak\r\n";
    rowsFrom(line + "\r\n" + "B,c,1,s,f,v,userini0.bak\r\n");
    EXPECT_THAT(names(), ElementsAre("A", "A", "B"));
    EXPECT_EQ(saved(), line + line + "B,c,1,s,f,v,userini0.bak\r\n");
}

TEST_F(PlayerList, AShortLineTakesWhatItLacksFromTheLineBefore) {
    EXPECT_THAT(rowsFrom("A,c,3,s,f,v,userini1.bak\r\nB,d\r\nC,e,1\r\n"),
                ElementsAre("A|c|Gold|s|f|v|userini1.bak", "B|d|Gold|s|f|v|userini1.bak",
                            "C|e|Blue|s|f|v|userini1.bak"));
}

TEST_F(PlayerList, WhatALineLacksComesAlsoFromALineWhoseCopyIsMissing) {
    EXPECT_THAT(rowsFrom("A,c,2,s,f,v,gone.bak\r\nB,,,,,,userini0.bak\r\nC,d,1,x,y,z,gone.bak\r\n"
                         "D,e,2,s\r\nE,e,0,s,f,v,userini1.bak\r\n"),
                ElementsAre("B||None||||userini0.bak", "E|e|Red|s|f|v|userini1.bak"));
}

TEST_F(PlayerList, FieldsBeyondTheSeventhAreIgnored) {
    EXPECT_THAT(rowsFrom("A,c,3,s,f,v,userini1.bak,userini0.bak,more\r\n"),
                ElementsAre("A|c|Gold|s|f|v|userini1.bak"));
}

TEST_F(PlayerList, AMissingCopyIsPassedOverAndGoneFromTheFileWithTheNextSave) {
    const std::string kept = "B,c,1,s,f,v,userini0.bak\r\n";
    EXPECT_THAT(rowsFrom("A,c,1,s,f,v,userini7.bak\r\n" + kept + "C,c,1,s,f,v,x.bak\r\n"),
                ElementsAre("B|c|Blue|s|f|v|userini0.bak"));
    EXPECT_EQ(disk.read(list).substr(0, 2), "A,");
    EXPECT_EQ(saved(), kept);
}

TEST_F(PlayerList, AFolderInTheCopysPlaceIsNoCopy) {
    disk.makeFolder(copyOf("folder.bak"));
    EXPECT_THAT(rowsFrom("A,c,1,s,f,v,folder.bak\r\nB,c,1,s,f,v,userini0.bak\r\n"),
                ElementsAre("B|c|Blue|s|f|v|userini0.bak"));
}

TEST_F(PlayerList, ACopyIsFoundInAnyLetterCaseAndWhereTheFolderCannotBeListed) {
    if (!hasCases()) GTEST_SKIP() << noCases;
    const std::string text = lineOf("A", "USERINI1.bak") + lineOf("B", "userini0.bak");
    rowsFrom(text);
    EXPECT_THAT(names(), ElementsAre("A", "B"));
    users.rows.clear();
    host.refuse(Call::List, errors::PermissionDenied);
    load();
    EXPECT_THAT(names(), ElementsAre("B"));
}

TEST_F(PlayerList, ABlankFirstLineStandsForNoNameAndNoCopy) {
    EXPECT_THAT(rowsFrom("\r\nB,c,1,s,f,v,userini0.bak\r\n"),
                ElementsAre("||None||||", "B|c|Blue|s|f|v|userini0.bak"));
    fs::remove_all(disk.at(copies));
    disk.makeFolder(copies);
    disk.write(list, "\r\n");
    users.rows.clear();
    load();
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(PlayerList, ACommaInANameShiftsTheFieldsSoThatItsPlayerIsDropped) {
    rowsFrom(lineOf("A", "userini0.bak") + lineOf("B, the best", "userini1.bak") +
             lineOf("C", "userini2.bak"));
    EXPECT_THAT(names(), ElementsAre("A", "C"));
    EXPECT_EQ(saved(), lineOf("A", "userini0.bak") + lineOf("C", "userini2.bak"));
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), profileOf("userini1.bak"));
}

TEST_F(PlayerList, ATeamOutsideTheTableIsShownAsNoneAndSavedAs255) {
    EXPECT_THAT(rowsFrom("A,c,7,s,f,v,userini1.bak\r\nB,c,1,s,f,v,userini0.bak\r\n"),
                ElementsAre("A|c|None|s|f|v|userini1.bak", "B|c|Blue|s|f|v|userini0.bak"));
    EXPECT_EQ(saved(), "A,c,255,s,f,v,userini1.bak\r\nB,c,1,s,f,v,userini0.bak\r\n");
}

TEST_F(PlayerList, ACopyThatCarriesAFolderIsCutToItsNameWithTheNextSave) {
    disk.write(copyOf("old\\userini5.bak"), "x");
    EXPECT_THAT(rowsFrom("A,c,1,s,f,v,old\\userini5.bak\r\nB,c,1,s,f,v,userini0.bak\r\n"),
                ElementsAre("A|c|Blue|s|f|v|old\\userini5.bak", "B|c|Blue|s|f|v|userini0.bak"));
    EXPECT_EQ(saved(), "A,c,1,s,f,v,userini5.bak\r\nB,c,1,s,f,v,userini0.bak\r\n");
}

TEST_F(PlayerList, NamesOfEveryKindComeThrough) {
    const std::string full(300, 'n');
    const std::string text = lineOf("\"Quoted\" 'one'", "userini0.bak") +
                             lineOf("\xA7pike \x86", "userini1.bak") + lineOf("", "userini2.bak") +
                             lineOf(full, "userini0.bak");
    rowsFrom(text);
    EXPECT_THAT(names(), ElementsAre("\"Quoted\" 'one'", "§pike †", "", full));
    EXPECT_EQ(saved(), text);
}

TEST_F(PlayerList, ANameOutsideTheCodePageTurnsTheFileToUtf16AndStaysReadable) {
    rowsFrom(lineOf("A\xE4", "userini0.bak") + lineOf("B", "userini1.bak"));
    users.rows.setText(2, "Игрок");
    EXPECT_EQ(saved().substr(0, 4), std::string("\xFF\xFE"
                                                "A\0",
                                                4));
    users.rows.clear();
    load();
    EXPECT_THAT(names(), ElementsAre("Aä", "Игрок"));
}

TEST_F(PlayerList, PendingEventsAreServedOnceAfterTheListWasClosed) {
    std::vector<std::size_t> rowsAtPump;
    int number = 0;
    events.onPump = [&] {
        rowsAtPump.push_back(users.rows.count());
        number = program.table.freeNumber();
    };
    rowsFrom("A,c,1,s,f,v,userini0.bak\r\nB,c,1,s,f,v,userini0.bak\r\n");
    EXPECT_THAT(rowsAtPump, ElementsAre(2u));
    EXPECT_EQ(number, 1);
}

TEST_F(PlayerList, AListThatCannotBeReadYieldsNoRowsAndNoError) {
    fs::remove(disk.at(list));
    load();
    disk.makeFolder(list);
    load();
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(events.pumps, 2);
}

TEST_F(PlayerList, SavingEmptiesTheFileWhereThereAreNoRows) {
    disk.write(list, "old");
    EXPECT_EQ(saved(), "");
}

TEST_F(PlayerList, SavingPointsTheSharedClassAtTheGamesFileAndTouchesNothing) {
    const std::string before = disk.read(userIni);
    fs::permissions(disk.at(userIni), fs::perms(0444));
    saved();
    EXPECT_EQ(program.ini.inifile(), userIni);
    EXPECT_EQ(disk.read(userIni), before);
}

TEST_F(PlayerList, AReadOnlyListIsRefused) {
    archive({"A"});
    const std::string before = disk.read(list);
    fs::permissions(disk.at(list), fs::perms(0444));
    users.rows.clear();
    EXPECT_EQ(errorOf([&] { userMan.SavePlayerList(users.rows); }), errors::PathFileAccess);
    EXPECT_EQ(disk.read(list), before);
}

TEST_F(PlayerList, AFullDiskLeavesTheOldListWithoutAWord) {
    archive({"A", "B"});
    const std::string before = disk.read(list);
    users.rows.remove(1);
    host.setDiskSpace(10);
    userMan.SavePlayerList(users.rows);
    EXPECT_EQ(disk.read(list), before);
    EXPECT_THAT(disk.names("C:\\Tessaro"), ElementsAre("playerlist.lst", "users"));
    EXPECT_EQ(program.table.freeNumber(), 1);
}

TEST_F(PlayerList, WithoutARowAFailureToWriteIsRaised) {
    disk.write(list, "old");
    host.refuse(Call::Rename, errors::DiskFull, "playerlist");
    EXPECT_EQ(errorOf([&] { userMan.SavePlayerList(users.rows); }), errors::DiskFull);
    EXPECT_EQ(disk.read(list), "old");
}

}  // namespace
}  // namespace tessaro::test
