#include "editor/linematch.h"

#include <gmock/gmock.h>

namespace tessaro {
namespace {

using ::testing::ElementsAre;

// Each character stands for a line.
std::vector<std::u16string> lines(std::u16string_view letters) {
    std::vector<std::u16string> each;
    for (const char16_t letter : letters) each.emplace_back(1, letter);
    return each;
}

// The line that each line of `now` was, as its letter in `0123...`, `-` for none.
std::string matched(std::u16string_view now, std::u16string_view before) {
    std::string found;
    for (const std::size_t line : matchLines(lines(now), lines(before)))
        found += line == noLine ? '-' : static_cast<char>('0' + line);
    return found;
}

TEST(LineMatch, EqualTextsMatchLineByLine) {
    EXPECT_EQ(matched(u"aab", u"aab"), "012");
}

TEST(LineMatch, NothingMatchesNothing) {
    EXPECT_EQ(matched(u"", u""), "");
    EXPECT_EQ(matched(u"", u"ab"), "");
    EXPECT_EQ(matched(u"ab", u""), "--");
    EXPECT_EQ(matched(u"ab", u"cd"), "--");
}

TEST(LineMatch, StartAndEndMatchAroundAChange) {
    EXPECT_EQ(matched(u"aaXbb", u"aabb"), "01-23");
    EXPECT_EQ(matched(u"aabb", u"aaXXbb"), "0145");
    EXPECT_EQ(matched(u"aaXbb", u"aaYYbb"), "01-45");
}

TEST(LineMatch, AMovedLineLeavesTheOthersMatched) {
    EXPECT_EQ(matched(u"bcdea", u"abcde"), "1234-");
    EXPECT_EQ(matched(u"eabcd", u"abcde"), "-0123");
    EXPECT_EQ(matched(u"XbcaYe", u"abcde"), "-12--4");
}

TEST(LineMatch, RepeatedLinesMatchBetweenUniqueOnes) {
    EXPECT_EQ(matched(u"X..m..Y", u"..m.."), "-01234-");
    EXPECT_EQ(matched(u"X.m.Y", u"Z.m.W"), "-123-");
}

TEST(LineMatch, OrderIsKept) {
    EXPECT_EQ(matched(u"XcbaY", u"ZabcW"), "---1-");
    EXPECT_EQ(matched(u"XdabecY", u"ZabcdeW"), "--12-3-");
}

}  // namespace
}  // namespace tessaro
