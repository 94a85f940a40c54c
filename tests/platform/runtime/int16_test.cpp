#include "platform/runtime/int16.h"

#include <gtest/gtest.h>

#include "support/testworld.h"

namespace tessaro {
namespace {

using test::errorOf;

TEST(Int16, CountsUpToItsLastNumber) {
    Int16 count = 32766;
    EXPECT_EQ(++count, 32767);
}

TEST(Int16, GoingPastTheLastNumberOverflowsAndLeavesTheValue) {
    Int16 count = 32767;
    EXPECT_EQ(errorOf([&] { ++count; }), 6);
    EXPECT_EQ(errorOf([&] { count++; }), 6);
    EXPECT_EQ(errorOf([&] { count += 1; }), 6);
    EXPECT_EQ(count, 32767);
}

TEST(Int16, GoingBelowTheFirstNumberOverflowsAndLeavesTheValue) {
    Int16 count = -32768;
    EXPECT_EQ(errorOf([&] { count += -1; }), 6);
    EXPECT_EQ(count, -32768);
}

TEST(Int16, TakesOnlyNumbersThatFit) {
    EXPECT_EQ(Int16(32767), 32767);
    EXPECT_EQ(Int16(-32768), -32768);
    EXPECT_EQ(errorOf([] { Int16{32768}; }), 6);
    EXPECT_EQ(errorOf([] { Int16{-32769}; }), 6);
    EXPECT_EQ(errorOf([] { Int16{1LL << 40}; }), 6);
}

TEST(Int16, TheLaterIncrementGivesTheValueBefore) {
    Int16 count = 4;
    EXPECT_EQ(count++, 4);
    EXPECT_EQ(count, 5);
}

TEST(Int16, BeginsAtNought) {
    EXPECT_EQ(Int16(), 0);
}

TEST(YesNo, YesIsMinusOne) {
    EXPECT_EQ(yesNo(true), -1);
    EXPECT_EQ(yesNo(false), 0);
}

}  // namespace
}  // namespace tessaro
