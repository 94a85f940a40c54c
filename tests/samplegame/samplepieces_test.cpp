#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/samplegame/samplefolder.h"
#include "tools/samplegame/bitmap.h"
#include "tools/samplegame/package.h"
#include "tools/samplegame/rng.h"
#include "tools/ucc/uzfile.h"

namespace tessaro::sample {
namespace {

TEST(SampleRng, NumbersAreThoseOfTheStandardEngine) {
    Rng rng(5489);
    for (int i = 0; i < 9'999; ++i) rng.next();
    EXPECT_EQ(rng.next(), 4'123'659'995U);  // what the C++ standard says of mt19937
}

TEST(SampleRng, NumbersStayInTheirRange) {
    Rng rng(7);
    for (int i = 0; i < 1'000; ++i) {
        const std::uint32_t number = rng.between(3, 5);
        EXPECT_TRUE(number >= 3 && number <= 5) << number;
    }
}

TEST(SampleRng, FillerIsAsLongAsAskedEvenBeyondItsBlock) {
    Rng rng(7);
    for (const std::size_t size : {0U, 1U, 1'000U, 3'000'000U})
        EXPECT_EQ(rng.filler(size).size(), size);
}

TEST(SampleRng, FillerDiffersFromCallToCall) {
    Rng rng(7);
    const std::string first = rng.filler(1'000);
    EXPECT_NE(first, rng.filler(1'000));
}

TEST(SamplePackage, HeaderHasTheGamesLayout) {
    Rng rng(7);
    const Guid guid{{0x11223344U, 0x55667788U, 0x99AABBCCU, 0xDDEEFF00U}};
    const std::string bytes = packageBytes(guid, 500, rng);
    EXPECT_EQ(bytes.size(), 500U);
    EXPECT_EQ(bytes.substr(0, 4), "\xC1\x83\x2A\x9E");
    EXPECT_EQ(numberAt(bytes, 4, 2), 69U);
    EXPECT_EQ(numberAt(bytes, 6, 2), 0U);
    for (const std::size_t table : {12U, 20U, 28U}) {
        EXPECT_EQ(numberAt(bytes, table, 4), 0U);
        EXPECT_EQ(numberAt(bytes, table + 4, 4), 64U);
    }
    EXPECT_EQ(bytes.substr(36, 8), "\x44\x33\x22\x11\x88\x77\x66\x55");
    EXPECT_EQ(numberAt(bytes, 52, 4), 1U);
}

TEST(SamplePackage, GuidIsPrintedAsFourNumbers) {
    const Guid guid{{0x11223344U, 0x5U, 0x99AABBCCU, 0xDDEEFF00U}};
    EXPECT_EQ(guid.text(), "112233440000000599AABBCCDDEEFF00");
}

TEST(SamplePackage, SmallestIsAHeaderAlone) {
    Rng rng(7);
    EXPECT_EQ(packageBytes(Guid{}, 64, rng).size(), 64U);
    EXPECT_THROW(packageBytes(Guid{}, 63, rng), std::invalid_argument);
}

TEST(SamplePackage, LosesAThirdToAHalfWhenItIsPacked) {
    Rng rng(7);
    for (const std::size_t size : {20'000U, 3'000'000U}) {
        const ucc::Package package{"DM-Example.unr", packageBytes(Guid{}, size, rng)};
        const double saved =
            1 - static_cast<double>(ucc::compressed(package).size()) / static_cast<double>(size);
        EXPECT_GT(saved, 1.0 / 3) << size;
        EXPECT_LT(saved, 1.0 / 2) << size;
    }
}

TEST(SampleBmp, HeaderSaysTwentyFourBitsBottomUp) {
    Rng rng(7);
    const std::string bytes = screenshotBmp(640, 480, rng);
    EXPECT_EQ(bytes.size(), 921'654U);
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(numberAt(bytes, 2, 4), bytes.size());
    EXPECT_EQ(numberAt(bytes, 10, 4), 54U);
    EXPECT_EQ(numberAt(bytes, 14, 4), 40U);
    EXPECT_EQ(numberAt(bytes, 18, 4), 640U);
    EXPECT_EQ(numberAt(bytes, 22, 4), 480U);
    EXPECT_EQ(numberAt(bytes, 26, 2), 1U);
    EXPECT_EQ(numberAt(bytes, 28, 2), 24U);
    EXPECT_EQ(numberAt(bytes, 30, 4), 0U);
    EXPECT_EQ(numberAt(bytes, 34, 4), 921'600U);
}

TEST(SampleBmp, RowsArePaddedToFourBytes) {
    Rng rng(7);
    const std::string bytes = screenshotBmp(3, 2, rng);
    EXPECT_EQ(bytes.size(), 54U + 2 * 12);
    EXPECT_EQ(bytes.substr(54 + 9, 3), std::string(3, '\0'));
    EXPECT_EQ(bytes.substr(54 + 21, 3), std::string(3, '\0'));
}

// The sky is dark at the top, and the top row is the file's last.
TEST(SampleBmp, LastRowOfTheFileIsOneColourOfSky) {
    Rng rng(7);
    const std::string bytes = screenshotBmp(64, 48, rng);
    const std::string row = bytes.substr(bytes.size() - 192);
    for (std::size_t x = 0; x < 64; ++x) EXPECT_EQ(row.substr(3 * x, 3), row.substr(0, 3)) << x;
    EXPECT_NE(bytes.substr(54, 192), row);
}

TEST(SampleBmp, AnyPositiveSizeCanBePainted) {
    Rng rng(7);
    EXPECT_EQ(screenshotBmp(1, 1, rng).size(), 54U + 4);
    EXPECT_EQ(screenshotBmp(1366, 7, rng).size(), 54U + 4'100 * 7);
    EXPECT_THROW(screenshotBmp(0, 5, rng), std::invalid_argument);
    EXPECT_THROW(screenshotBmp(5, -1, rng), std::invalid_argument);
}

}  // namespace
}  // namespace tessaro::sample
