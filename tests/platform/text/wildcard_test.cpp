#include "platform/text/wildcard.h"

#include <gtest/gtest.h>

namespace tessaro {
namespace {

TEST(Wildcard, StarTakesAnyRunAndNoneAtAll) {
    EXPECT_TRUE(matchesWildcard("cache*.tmp", "cache12.tmp"));
    EXPECT_TRUE(matchesWildcard("cache*.tmp", "cache.tmp"));
    EXPECT_FALSE(matchesWildcard("cache*.tmp", "cache1.tmp.bak"));
    EXPECT_FALSE(matchesWildcard("cache*.tmp", "mycache1.tmp"));
}

TEST(Wildcard, StarGivesBackWhatTheRestNeeds) {
    EXPECT_TRUE(matchesWildcard("shot*bmp", "shotbmp.bmp"));
    EXPECT_TRUE(matchesWildcard("*a*b*c", "xxaabbabc"));
    EXPECT_FALSE(matchesWildcard("*a*b*c", "xxaabbab"));
}

TEST(Wildcard, CaseDoesNotMatter) {
    EXPECT_TRUE(matchesWildcard("shot*bmp", "Shot0001.BMP"));
    EXPECT_TRUE(matchesWildcard("\xC3\x84*", "\xC3\xA4rger"));
}

TEST(Wildcard, QuestionMarkTakesOneCharacterNotOneByte) {
    EXPECT_TRUE(matchesWildcard("a?c", "abc"));
    EXPECT_TRUE(matchesWildcard("a?c",
                                "a\xC3\xA4"
                                "c"));
    EXPECT_FALSE(matchesWildcard("a?c", "ac"));
    EXPECT_FALSE(matchesWildcard("a?c", "abbc"));
}

TEST(Wildcard, AnyExtensionFitsNamesWithoutOne) {
    EXPECT_TRUE(matchesWildcard("*.*", "Makefile"));
    EXPECT_TRUE(matchesWildcard("*.*", "a.b"));
    EXPECT_TRUE(matchesWildcard("user.*", "user"));
    EXPECT_FALSE(matchesWildcard("user.*", "user2"));
}

TEST(Wildcard, EmptyPatternFitsTheEmptyNameOnly) {
    EXPECT_TRUE(matchesWildcard("", ""));
    EXPECT_FALSE(matchesWildcard("", "a"));
    EXPECT_TRUE(matchesWildcard("**", ""));
}

TEST(Wildcard, IsToldFromAPlainName) {
    EXPECT_TRUE(hasWildcard("a*"));
    EXPECT_TRUE(hasWildcard("a?"));
    EXPECT_FALSE(hasWildcard("a.b"));
}

}  // namespace
}  // namespace tessaro
