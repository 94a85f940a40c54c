#include "players/nameeditor.h"

#include "players/archivefixture.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class NameEditors : public ArchiveFixture {
  protected:
    NameEditors() {
        archive({"First", "Second", "Third"});
        users.rows.pick(2);
        events.pumps = 0;
    }
    NameEditor editor{program, userMan, users.rows};
};

TEST_F(NameEditors, OpensOnTheNameInsideTheCopyAndNotOnTheRowsText) {
    disk.write(copyOf("userini1.bak"), profileOf("Inside"));
    EXPECT_EQ(editor.open(), "Inside");
    EXPECT_EQ(program.ini.inifile(), copyOf("userini1.bak"));
}

TEST_F(NameEditors, ACopyWithoutANameGetsTheDefaultOne) {
    disk.write(copyOf("userini1.bak"), "[DefaultPlayer]\r\nteam=0\r\n");
    EXPECT_EQ(editor.open(), "Player");
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), "[DefaultPlayer]\r\nteam=0\r\nName=Player\r\n");
}

TEST_F(NameEditors, OpeningOnAnEmptyListRaises91) {
    users.rows.clear();
    EXPECT_EQ(errorOf([&] { editor.open(); }), errors::ObjectNotSet);
}

TEST_F(NameEditors, TheCopyGetsTheNameAndKeepsAllOfItsOtherText) {
    editor.commit("Renamed");
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), profileOf("Renamed"));
    EXPECT_EQ(disk.read(copyOf("userini0.bak")), profileOf("First"));
    EXPECT_EQ(disk.read(userIni), profileOf("Current"));
}

TEST_F(NameEditors, TheRowMovesToTheEndKeepsItsCopyAndLosesItsTeam) {
    const std::string fields = "|SoldierSkins.blkt|SoldierSkins.Othello|BotPack.VoiceMaleTwo|";
    editor.commit("Renamed");
    EXPECT_THAT(rows(), ElementsAre("First|BotPack.TMale2|Blue" + fields + "userini0.bak",
                                    "Third|BotPack.TMale2|Blue" + fields + "userini2.bak",
                                    "Renamed|BotPack.TMale2|None" + fields + "userini1.bak"));
    EXPECT_EQ(disk.read(list), lineOf("First", "userini0.bak") + lineOf("Third", "userini2.bak") +
                                   lineOf("Renamed", "userini1.bak", "255"));
}

TEST_F(NameEditors, EveryTeamIsLost) {
    for (const char* team : {"Red", "Green", "Gold", "None"}) {
        users.rows.setSubItem(users.rows.selectedItem(), 2, team);
        editor.commit("Renamed");
        EXPECT_EQ(playerAt(users.rows, 3).UTTeam, "None") << team;
        users.rows.pick(3);
    }
}

TEST_F(NameEditors, TheSharedClassIsLeftAtTheGamesFile) {
    editor.commit("Renamed");
    EXPECT_EQ(program.ini.inifile(), userIni);
}

TEST_F(NameEditors, TwoRowsMayBearOneName) {
    editor.commit("First");
    EXPECT_THAT(names(), ElementsAre("First", "Third", "First"));
}

TEST_F(NameEditors, AnEmptyNameChangesNothing) {
    const std::string before = disk.read(list);
    editor.commit("");
    EXPECT_THAT(names(), ElementsAre("First", "Second", "Third"));
    EXPECT_EQ(disk.read(list), before);
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), profileOf("Second"));
    EXPECT_EQ(events.pumps, 0);
}

TEST_F(NameEditors, ANameWithACommaMakesThePlayerVanishFromTheListButNotItsCopy) {
    editor.commit("D,jango");
    EXPECT_THAT(names(), ElementsAre("First", "Third"));
    EXPECT_EQ(disk.read(list), lineOf("First", "userini0.bak") + lineOf("Third", "userini2.bak") +
                                   lineOf("D,jango", "userini1.bak", "255"));
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), profileOf("D,jango"));
}

TEST_F(NameEditors, NamesInsideTheCodePageStayInIt) {
    editor.commit("§ïñ†");
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), profileOf("\xA7\xEF\xF1\x86"));
    EXPECT_NE(disk.read(list).find("\xA7\xEF\xF1\x86,BotPack"), std::string::npos);
    EXPECT_THAT(names(), ElementsAre("First", "Third", "§ïñ†"));
}

TEST_F(NameEditors, NamesOutsideTheCodePageKeepListAndCopyReadable) {
    editor.commit("Игрок");
    EXPECT_EQ(disk.read(copyOf("userini1.bak")).substr(0, 2), "\xFF\xFE");
    EXPECT_EQ(disk.read(list).substr(0, 2), "\xFF\xFE");
    EXPECT_THAT(names(), ElementsAre("First", "Third", "Игрок"));
    users.rows.pick(3);
    EXPECT_EQ(editor.open(), "Игрок");
}

TEST_F(NameEditors, QuotesInANameStandInTheListAndGoFromTheCopyAsInEveryProfile) {
    editor.commit("\"Quoted\"");
    EXPECT_THAT(names(), ElementsAre("First", "Third", "\"Quoted\""));
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), profileOf("\"Quoted\""));
    users.rows.pick(3);
    EXPECT_EQ(editor.open(), "Quoted");
}

TEST_F(NameEditors, ALongNameIsWrittenWholeAndReadCut) {
    const std::string name(300, 'n');
    editor.commit(name);
    EXPECT_THAT(names(), ElementsAre("First", "Third", name));
    users.rows.pick(3);
    EXPECT_EQ(editor.open(), std::string(254, 'n'));
}

TEST_F(NameEditors, ACopyThatCannotBeWrittenKeepsItsNameWithoutAWord) {
    fs::permissions(disk.at(copyOf("userini1.bak")), fs::perms(0444));
    editor.commit("Renamed");
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), profileOf("Second"));
    EXPECT_THAT(names(), ElementsAre("First", "Third", "Renamed"));
    EXPECT_THAT(messages(), IsEmpty());
}

}  // namespace
}  // namespace tessaro::test
