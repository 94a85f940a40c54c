#include "platform/text/lettercase.h"

#include <gtest/gtest.h>

namespace tessaro {
namespace {

TEST(LetterCase, FoldsLatinGreekAndCyrillic) {
    EXPECT_EQ(lowerCase("ABCxyz[0]"), "abcxyz[0]");
    EXPECT_EQ(lowerCase("ÄÖÜÀÞ×ß"), "äöüàþ×ß");
    EXPECT_EQ(lowerCase("ŁŻĄŠŽŸŐĐ"), "łżąšžÿőđ");
    EXPECT_EQ(lowerCase("ΆΈΉΊΌΎΏΑΣΩΫ"), "άέήίόύώασωϋ");
    EXPECT_EQ(lowerCase("ЀЁЏАЯѠҐӁӀӐ"), "ѐёџаяѡґӂӏӑ");
}

TEST(LetterCase, FoldsTheRarerLettersOfTheseScriptsToo) {
    EXPECT_EQ(lowerCase("ƁƆǄǅǍǶȘȚɎ"), "ɓɔǆǆǎƕșțɏ");
    EXPECT_EQ(lowerCase("ḀẞẠỾⱠⱯꜢꞍ"), "ḁßạỿⱡɐꜣɥ");
    EXPECT_EQ(lowerCase("ͰͿςϐϴἈᾈᾺῼ"), "ͱϳσβθἀᾀὰῳ");
    EXPECT_EQ(lowerCase("ᲀᲈꙀꚚ"), "вꙋꙁꚛ");
    EXPECT_EQ(lowerCase("ſKÅΩµ"), "skåωμ");
    EXPECT_EQ(lowerCase("ＡＺⅣ"), "ａｚⅳ");
}

// One letter before and one behind each end of a run of the table.
TEST(LetterCase, LeavesTheNeighboursOfLettersAlone) {
    EXPECT_EQ(lowerCase("´¶¿×ß÷Œœ"), "´¶¿×ß÷œœ");
    EXPECT_EQ(lowerCase("ƀɐͳΐ΢ԯ԰ẕẟἀἇἐ₩℩Ⅎ"),
              "ƀɐͳΐ΢ԯ԰ẕẟἀἇἐ₩℩ⅎ");
    EXPECT_EQ(lowerCase("＠［｀"), "＠［｀");
}

TEST(LetterCase, LeavesWhatHasNoPairAlone) {
    EXPECT_EQ(lowerCase("İıĸŉ漢÷"), "İıĸŉ漢÷");
    EXPECT_EQ(lowerCase("A\xFFZ"), "a\xFFz");
}

TEST(LetterCase, LeavesOtherScriptsAlone) {
    EXPECT_EQ(lowerCase("ԱႠᎠϢⰀⒶ𐐀"), "ԱႠᎠϢⰀⒶ𐐀");
}

TEST(LetterCase, NamesThatAreTheSameHaveTheSameHash) {
    for (const auto& [one, other] :
         {std::pair{"", ""}, {"UnrealTournament.ini", "unrealtournament.INI"}, {"ÄΣſ", "äςS"}}) {
        EXPECT_TRUE(sameName(one, other)) << one;
        EXPECT_EQ(nameHash(one), nameHash(other)) << one;
    }
    EXPECT_NE(nameHash("a"), nameHash("b"));
    EXPECT_NE(nameHash("ab"), nameHash("ba"));
    EXPECT_NE(nameHash("\xFE"), nameHash("a"));
}

TEST(LetterCase, SameNameIgnoresCaseOnly) {
    EXPECT_TRUE(sameName("", ""));
    EXPECT_TRUE(sameName("DefaultPlayer", "defaultplayer"));
    EXPECT_TRUE(sameName("Größe", "GRÖßE"));
    EXPECT_TRUE(sameName("Игрок", "ИГРОК"));
    EXPECT_FALSE(sameName("Name", "Names"));
    EXPECT_FALSE(sameName("Namé", "Name"));
    EXPECT_FALSE(sameName("a\xFF", "a\xFE"));
    EXPECT_FALSE(sameName("[", "{"));
}

}  // namespace
}  // namespace tessaro
