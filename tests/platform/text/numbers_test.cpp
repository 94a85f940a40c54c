#include "platform/text/numbers.h"

#include <gtest/gtest.h>

#include "support/testworld.h"

namespace tessaro {
namespace {

using test::errorOf;

TEST(Numbers, ReadsDecimalNumbers) {
    EXPECT_EQ(toNumber("1"), 1);
    EXPECT_EQ(toNumber("-12.5"), -12.5);
    EXPECT_EQ(toNumber("+3"), 3);
    EXPECT_EQ(toNumber(".5"), .5);
    EXPECT_EQ(toNumber("5."), 5);
    EXPECT_EQ(toNumber("1.5e3"), 1500);
    EXPECT_EQ(toNumber("2E-2"), 0.02);
}

TEST(Numbers, CutsBlanksRoundANumber) {
    EXPECT_EQ(toNumber(" \t7 "), 7);
}

TEST(Numbers, ReadsHexadecimalNumbersWithTheirSign) {
    EXPECT_EQ(toNumber("&H10"), 16);
    EXPECT_EQ(toNumber("&hff"), 255);
    EXPECT_EQ(toNumber("&HFFFF"), -1);
    EXPECT_EQ(toNumber("&H10000"), 65536);
    EXPECT_EQ(toNumber("&HFFFFFFFF"), -1);
}

TEST(Numbers, AHexadecimalNumberOfTooManyDigitsOverflows) {
    EXPECT_EQ(errorOf([] { toNumber("&H100000000"); }), 6);
}

TEST(Numbers, WhatIsNoNumberMismatches) {
    for (const char* text : {"", " ", "x", "1x", "1 2", "--1", "+-1", "1e", "&H", "&HG", "&H-1",
                             "inf", "nan", "0x10", "1,5", "<not_set>"})
        EXPECT_EQ(errorOf([&] { toNumber(text); }), 13) << text;
}

TEST(Numbers, ANumberBeyondAllMeasureOverflows) {
    EXPECT_EQ(errorOf([] { toNumber("1e999"); }), 6);
}

TEST(Numbers, RoundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(toInt16("0.5"), 0);
    EXPECT_EQ(toInt16("1.5"), 2);
    EXPECT_EQ(toInt16("2.5"), 2);
    EXPECT_EQ(toInteger("-1.5"), -2);
    EXPECT_EQ(toInteger("-2.5"), -2);
}

TEST(Numbers, SixteenBitsHoldNoMoreThan32767) {
    EXPECT_EQ(toInt16("32767.4"), 32767);
    EXPECT_EQ(errorOf([] { toInt16("32767.5"); }), 6);
    EXPECT_EQ(errorOf([] { toInt16("-32769"); }), 6);
    EXPECT_EQ(errorOf([] { toInt16("text"); }), 13);
}

TEST(Numbers, ThirtyTwoBitsHoldNoMoreThanTheirs) {
    EXPECT_EQ(toInteger("2147483647"), 2147483647);
    EXPECT_EQ(errorOf([] { toInteger("2147483648"); }), 6);
}

TEST(Numbers, BooleansAreWordsOrNumbers) {
    EXPECT_TRUE(toBoolean("True"));
    EXPECT_TRUE(toBoolean("tRUE"));
    EXPECT_FALSE(toBoolean("false"));
    EXPECT_TRUE(toBoolean("-1"));
    EXPECT_TRUE(toBoolean("0.1"));
    EXPECT_FALSE(toBoolean("0"));
}

TEST(Numbers, WhatIsNoBooleanMismatches) {
    EXPECT_EQ(errorOf([] { toBoolean("yes"); }), 13);
    EXPECT_EQ(errorOf([] { toBoolean(""); }), 13);
}

TEST(Numbers, ASettingIsComparedAsANumber) {
    EXPECT_TRUE(equalsNumber("1", 1));
    EXPECT_TRUE(equalsNumber(" 1.0", 1));
    EXPECT_FALSE(equalsNumber("2", 1));
    EXPECT_EQ(errorOf([] { equalsNumber("on", 1); }), 13);
}

}  // namespace
}  // namespace tessaro
