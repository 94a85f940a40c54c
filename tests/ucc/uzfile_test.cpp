#include "tools/ucc/uzfile.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tessaro::ucc {
namespace {

TEST(UzFileTest, BeginsWithTheSignatureAndTheName) {
    const std::string file = compressed({"Map.u", "content"});
    EXPECT_EQ(file.substr(0, 11), std::string("\xD2\x04\0\0\x06Map.u\0", 11));
}

TEST(UzFileTest, LongNamesHaveALengthOfTwoBytes) {
    EXPECT_EQ(compressed({std::string(62, 'n'), ""}).substr(4, 2), "\x3Fn");
    EXPECT_EQ(compressed({std::string(63, 'n'), ""}).substr(4, 3), "\x40\x01n");
    EXPECT_EQ(compressed({std::string(199, 'n'), ""}).substr(4, 3), "\x48\x03n");
}

TEST(UzFileTest, PackageComesBackAsItWas) {
    std::string bytes;
    for (std::uint32_t i = 0; i < 300'000; ++i) bytes += static_cast<char>(i * i >> 7U);
    for (const Package& package : {Package{"DM-A b][.unr", bytes}, Package{"Empty.u", ""},
                                   Package{"Höhle.u", "x"}, Package{std::string(9000, 'n'), "x"}})
        EXPECT_EQ(decompressed(compressed(package)), package);
}

TEST(UzFileTest, RepeatedContentGetsSmaller) {
    EXPECT_LT(compressed({"Map.u", std::string(100'000, 'x')}).size(), 1000U);
}

TEST(UzFileTest, CutFileIsRefused) {
    const std::string file = compressed({"Map.u", "some content"});
    for (std::size_t size = 0; size < file.size(); ++size)
        EXPECT_THROW(decompressed(file.substr(0, size)), std::runtime_error) << size;
}

TEST(UzFileTest, DamagedFileIsRefused) {
    const std::string file = compressed({"Map.u", "some content"});
    const auto with = [&](std::size_t at, char byte) {
        std::string damaged = file;
        damaged[at] = byte;
        return damaged;
    };
    EXPECT_THROW(decompressed(with(0, '\xD3')), std::runtime_error) << "signature";
    EXPECT_THROW(decompressed(with(4, '\x86')), std::runtime_error) << "negative length";
    EXPECT_THROW(decompressed(with(4, '\0')), std::runtime_error) << "no room for the NUL";
    EXPECT_THROW(decompressed(with(4, '\x05')), std::runtime_error) << "no NUL";
    EXPECT_THROW(decompressed(with(4, '\x3F')), std::runtime_error) << "length past the end";
    EXPECT_THROW(decompressed(with(12, 'x')), std::runtime_error) << "compressed bytes";
    EXPECT_THROW(decompressed(with(file.size() - 1, 'x')), std::runtime_error) << "check sum";
}

}  // namespace
}  // namespace tessaro::ucc
