#include "players/asciibas.h"

#include <gmock/gmock.h>

#include "platform/text/codepage.h"
#include "platform/text/utf8.h"

namespace tessaro {
namespace {

using ::testing::ElementsAre;

constexpr char everyLetterOfTheTable[] = "1230abcdeijnorstuyABCDEINOSUWY`!?";

TEST(StylizeName, StyleOne) {
    EXPECT_EQ(StylizeName(everyLetterOfTheTable, 1), "¹²³Øâb©dëì,jñô®§†ùÿÅßÇÐ£ÏÑÕ§Û`//¥´¡¿");
}

TEST(StylizeName, StyleTwo) {
    EXPECT_EQ(StylizeName(everyLetterOfTheTable, 2), "¹²³Øåb©dêï,jñð®§†ûÿÄßÇÐ3ÎÑÕ$Û`//Ý´¡¿");
}

TEST(StylizeName, StyleThreeLeavesThreeCapitalsAsTheyAre) {
    EXPECT_EQ(StylizeName(everyLetterOfTheTable, 3), "¹²³Øäb©déî,jñõ®§†üÿÃßÇÐEÍÑÕSÛ`//Y´¡¿");
}

TEST(StylizeName, EveryOtherCharacterStaysAsItIs) {
    const std::string others =
        "456789 fghklmpqvwxzFGHJKLMPQRTVXZ-_[](){}.,;:'\"\\/|<>=+*&%$#@~^é†я";
    for (const int style : {1, 2, 3}) EXPECT_EQ(StylizeName(others, style), others) << style;
}

TEST(StylizeName, AReplacementIsNeverLookedAtAgain) {
    EXPECT_EQ(StylizeName("E3", 2), "3³");
    EXPECT_EQ(StylizeName("W`", 1), "`//´");
}

TEST(StylizeName, AnEmptyNameStaysEmptyAndALongOneIsNotCut) {
    EXPECT_EQ(StylizeName("", 1), "");
    EXPECT_EQ(length(StylizeName(std::string(300, 'W') + "x", 3)), 901u);
}

TEST(StylizeName, BytesThatAreNoCharacterStay) {
    EXPECT_EQ(StylizeName("a\xFF"
                          "a",
                          1),
              "â\xFF"
              "â");
}

TEST(ChartRows, TellTheCodeAndTheCharacterOfEachCodeButOne) {
    std::vector<std::string> expected;
    for (int code = 0; code < 256; ++code) {
        std::string row = std::to_string(code) + "  ";
        appendCharacter(row, fromCodePage(static_cast<unsigned char>(code)));
        if (code != 30) expected.push_back(row);
    }
    EXPECT_EQ(chartRows(), expected);
    EXPECT_EQ(chartRows().size(), 255u);
}

TEST(ChartRows, HoldTheCharactersThemselves) {
    const std::vector<std::string> rows = chartRows();
    EXPECT_EQ(rows.at(0), std::string("0  \0", 4));
    EXPECT_THAT(std::vector(rows.begin() + 29, rows.begin() + 32),
                ElementsAre("29  \x1D", "31  \x1F", "32   "));
    EXPECT_EQ(rows.at(64), "65  A");
    EXPECT_EQ(rows.at(127), "128  €");
    EXPECT_EQ(rows.at(133), "134  †");
    EXPECT_EQ(rows.at(254), "255  ÿ");
}

}  // namespace
}  // namespace tessaro
