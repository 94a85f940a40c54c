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

TEST(LetterCase, LeavesWhatHasNoPairAlone) {
    EXPECT_EQ(lowerCase("İıĸŉſ漢÷"), "İıĸŉſ漢÷");
    EXPECT_EQ(lowerCase("A\xFFZ"), "a\xFFz");
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
