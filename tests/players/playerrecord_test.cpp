#include "players/playerrecord.h"

#include <gmock/gmock.h>

#include "support/testworld.h"

namespace tessaro {
namespace {

using test::errorOf;
using ::testing::ElementsAre;

const PlayerRecord malcolm{"Malcolm", "BotPack.TMale1", "Red",          "CommandoSkins.cmdo",
                           "Blake",   "VoiceMaleOne",   "userini17.bak"};

PlayerRecord after(std::initializer_list<std::string_view> lines) {
    PlayerRecord record;
    for (const std::string_view line : lines) readPlayerLine(line, record);
    return record;
}

TEST(TeamName, KnowsTheFiveTeamsOfTheFile) {
    EXPECT_EQ(TeamName("0"), "Red");
    EXPECT_EQ(TeamName("1"), "Blue");
    EXPECT_EQ(TeamName("2"), "Green");
    EXPECT_EQ(TeamName("3"), "Gold");
    EXPECT_EQ(TeamName("255"), "None");
}

TEST(TeamName, AnyOtherTextIsNoTeam) {
    for (const char* code : {"7", "", "00", " 0", "Red", "256"}) EXPECT_EQ(TeamName(code), "None");
}

TEST(TeamCode, AnyOtherTextThanTheFiveNamesIsNoTeamANumberToo) {
    EXPECT_EQ(teamCode("Red"), "0");
    EXPECT_EQ(teamCode("Blue"), "1");
    EXPECT_EQ(teamCode("Green"), "2");
    EXPECT_EQ(teamCode("Gold"), "3");
    EXPECT_EQ(teamCode("None"), "255");
    for (const char* name : {"1", "red", "", "Purple"}) EXPECT_EQ(teamCode(name), "255");
}

TEST(PlayerLine, JoinsTheSevenFieldsInOrder) {
    EXPECT_EQ(playerLine(malcolm),
              "Malcolm,BotPack.TMale1,Red,CommandoSkins.cmdo,Blake,VoiceMaleOne,userini17.bak");
    EXPECT_EQ(playerLine({}), ",,,,,,");
}

TEST(PlayerLine, IsReadBack) {
    EXPECT_EQ(after({playerLine(malcolm)}), malcolm);
    EXPECT_EQ(after({playerLine(malcolm), ",,,,,,"}), PlayerRecord());
}

TEST(PlayerLine, FieldsThatItLacksKeepTheirValue) {
    PlayerRecord expected = malcolm;
    expected.name = "Xan";
    expected.UTClass = "";
    EXPECT_EQ(after({playerLine(malcolm), "Xan,"}), expected);
    EXPECT_EQ(after({playerLine(malcolm), ""}), malcolm);
}

TEST(PlayerLine, FieldsBeyondTheSeventhAreIgnored) {
    EXPECT_EQ(after({playerLine(malcolm) + ",more,,"}), malcolm);
}

TEST(UserTable, HasTheSevenColumns) {
    const ListItems table = makeUserTable();
    std::vector<std::string> captions;
    for (const ListColumn& column : table.columns()) captions.push_back(column.caption);
    EXPECT_THAT(captions,
                ElementsAre("Name", "Class", "Team", "Skin", "Face", "Voice Pack", "Backup File"));
}

TEST(UserTable, ANewRowGoesToTheEndWithAllItsFields) {
    ListItems table = makeUserTable();
    addPlayer(table, {});
    addPlayer(table, malcolm);
    EXPECT_EQ(table.item(2).text, "Malcolm");
    EXPECT_THAT(table.item(2).subItems, ElementsAre("BotPack.TMale1", "Red", "CommandoSkins.cmdo",
                                                    "Blake", "VoiceMaleOne", "userini17.bak"));
    EXPECT_EQ(playerAt(table, 2), malcolm);
    EXPECT_EQ(playerAt(table, 1), PlayerRecord());
}

TEST(UserTable, AnEmptyOneHasNoSelectedPlayerWhichRaises91) {
    ListItems table = makeUserTable();
    EXPECT_EQ(errorOf([&] { selectedPlayer(table); }), 91);
    addPlayer(table, malcolm);
    EXPECT_EQ(selectedPlayer(table), 1u);
}

}  // namespace
}  // namespace tessaro
