#include "kit/controls/columnwidths.h"

#include <gtest/gtest.h>

namespace tessaro {
namespace {

using Widths = std::vector<int>;

TEST(SharedWidths, WhatIsLeftOverGoesToEachColumnByWhatItHolds) {
    EXPECT_EQ(sharedWidths({100, 300, 100}, {50, 50, 50}, 1000), (Widths{200, 600, 200}));
}

TEST(SharedWidths, WhatIsWantedIsGivenWhereItJustFits) {
    EXPECT_EQ(sharedWidths({100, 300, 100}, {50, 50, 50}, 500), (Widths{100, 300, 100}));
}

TEST(SharedWidths, NothingIsLostByRounding) {
    EXPECT_EQ(sharedWidths({10, 10, 10}, {5, 5, 5}, 100), (Widths{33, 33, 34}));
    EXPECT_EQ(sharedWidths({10, 40, 40}, {5, 5, 5}, 36), (Widths{10, 13, 13}));
}

TEST(SharedWidths, NamesComeFirstAndTheOthersShareTheRest) {
    EXPECT_EQ(sharedWidths({200, 300, 100}, {50, 50, 50}, 450), (Widths{200, 175, 75}));
}

TEST(SharedWidths, OfLongNamesTheOthersAreLeftTwoFifths) {
    EXPECT_EQ(sharedWidths({900, 300, 100}, {50, 60, 70}, 450), (Widths{270, 104, 76}));
    EXPECT_EQ(sharedWidths({900, 60, 30}, {50, 40, 20}, 500), (Widths{410, 60, 30}));
}

TEST(SharedWidths, NamesLeaveTheOthersTheirHeads) {
    EXPECT_EQ(sharedWidths({900, 300, 100}, {50, 110, 90}, 450), (Widths{250, 110, 90}));
}

TEST(SharedWidths, NoColumnIsNarrowerThanItsHead) {
    EXPECT_EQ(sharedWidths({200, 300, 100}, {50, 60, 70}, 100), (Widths{50, 60, 70}));
}

TEST(SharedWidths, OneColumnTakesAll) {
    EXPECT_EQ(sharedWidths({200}, {50}, 300), (Widths{300}));
    EXPECT_EQ(sharedWidths({200}, {50}, 100), (Widths{100}));
}

TEST(SharedWidths, NoColumnsTakeNothing) {
    EXPECT_EQ(sharedWidths({}, {}, 300), Widths{});
}

}  // namespace
}  // namespace tessaro
