#include "platform/text/utf8.h"

#include <gtest/gtest.h>

#include "support/testworld.h"

namespace tessaro {
namespace {

TEST(Utf8, CountsCharactersNotBytes) {
    EXPECT_EQ(length(""), 0U);
    EXPECT_EQ(length("abc"), 3U);
    EXPECT_EQ(length("äß€"), 3U);
    EXPECT_EQ(length("\xF0\x9F\x8E\xAE!"), 2U);
}

TEST(Utf8, AnInvalidByteCountsAsOneCharacter) {
    EXPECT_EQ(length("a\xFF\xC3"), 3U);
    EXPECT_EQ(length("\xE2\x82"), 2U);
}

TEST(Utf8, LeftRightAndMidCutBetweenCharacters) {
    EXPECT_EQ(left("äöü", 2), "äö");
    EXPECT_EQ(left("äöü", 9), "äöü");
    EXPECT_EQ(right("äöü", 2), "öü");
    EXPECT_EQ(right("äöü", 9), "äöü");
    EXPECT_EQ(mid("äöü", 2, 1), "ö");
    EXPECT_EQ(mid("äöü", 3, 9), "ü");
    EXPECT_EQ(mid("äöü", 4, 1), "");
}

TEST(Utf8, MidCountsFromOne) {
    EXPECT_EQ(test::errorOf([] { mid("abc", 0, 1); }), 5);
}

TEST(Utf8, EveryCharacterComesBackFromItsBytes) {
    for (const char32_t character : {0x00U, 0x41U, 0x7FU, 0x80U, 0x7FFU, 0x800U, 0xD7FFU, 0xE000U,
                                     0xFFFFU, 0x10000U, 0x10FFFFU}) {
        std::string text;
        appendCharacter(text, character);
        std::size_t position = 0;
        EXPECT_EQ(nextCharacter(text, position), character);
        EXPECT_EQ(position, text.size());
        EXPECT_TRUE(isValidUtf8(text));
    }
}

TEST(Utf8, RefusesWhatIsNoCharacter) {
    EXPECT_FALSE(isValidUtf8("\x80"));
    EXPECT_FALSE(isValidUtf8("\xC3"));
    EXPECT_FALSE(isValidUtf8("\xC0\xAF"));          // longer than needed
    EXPECT_FALSE(isValidUtf8("\xE0\x80\xAF"));      // longer than needed
    EXPECT_FALSE(isValidUtf8("\xED\xA0\x80"));      // half of a pair
    EXPECT_FALSE(isValidUtf8("\xF4\x90\x80\x80"));  // behind the last character
    EXPECT_FALSE(isValidUtf8("\xF8\x88\x80\x80\x80"));
    EXPECT_FALSE(isValidUtf8("12345678\xE9 and more"));
}

TEST(Utf8, FindsLettersOutsideAsciiAtAnyPlace) {
    for (std::size_t at = 0; at < 20; ++at) {
        std::string text(20, 'x');
        EXPECT_TRUE(isAsciiText(text));
        text[at] = '\xE9';
        EXPECT_FALSE(isAsciiText(text)) << at;
        EXPECT_FALSE(isValidUtf8(text)) << at;
    }
}

TEST(Utf8, TrimsSpacesOnly) {
    EXPECT_EQ(trimSpaces("  a b  "), "a b");
    EXPECT_EQ(trimSpaces("\ta "), "\ta");
    EXPECT_EQ(trimSpaces("   "), "");
}

}  // namespace
}  // namespace tessaro
