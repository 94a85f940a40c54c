#include "screenshots/bitmap.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <set>

#include "screenshots/bitmaps.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

using test::Bitmap;
using test::bytesOf;
using test::errorOf;
using namespace std::string_literals;

constexpr char file[] = "C:\\Shot0001.bmp";

class Bitmaps : public ::testing::Test {
  protected:
    QImage read(const std::string& bytes) {
        world_.write(file, bytes);
        return readBitmap(world_.files, file).toImage();
    }
    int errorOfReading(const std::string& bytes) {
        return errorOf([&] { read(bytes); });
    }
    // Colours from the top left pixel on, row by row.
    static std::string pixelsOf(const QImage& image) {
        std::string pixels;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                pixels += image.pixelColor(x, y).name().toStdString() + ' ';
        return pixels;
    }

    test::TestWorld world_;
};

const std::string fourColours = "#ff0000 #00ff00 #0000ff #ffffff ";
const std::string palette = "\0\0\xFF\0"s + "\0\xFF\0\0"s + "\xFF\0\0\0"s + "\xFF\xFF\xFF\0"s;
const std::string red = "\0\0\xFF"s, green = "\0\xFF\0"s, blue = "\xFF\0\0"s,
                  white = "\xFF\xFF\xFF"s, pad = "\0\0"s;

TEST_F(Bitmaps, Of24BitsAsTheGameWritesThem) {
    EXPECT_EQ(
        pixelsOf(read(bytesOf({.palette = {}, .rows = blue + white + pad + red + green + pad}))),
        fourColours);
}

TEST_F(Bitmaps, WithTheTopRowFirst) {
    EXPECT_EQ(pixelsOf(read(bytesOf(
                  {.height = -2, .palette = {}, .rows = red + green + pad + blue + white + pad}))),
              fourColours);
}

TEST_F(Bitmaps, Of32Bits) {
    EXPECT_EQ(
        pixelsOf(read(bytesOf({.bits = 32,
                               .palette = {},
                               .rows = blue + '\0' + white + '\0' + red + '\0' + green + '\0'}))),
        fourColours);
}

// The few bits of a colour are its upper ones.
TEST_F(Bitmaps, Of16Bits) {
    EXPECT_EQ(pixelsOf(read(bytesOf(
                  {.bits = 16, .palette = {}, .rows = "\x1F\x00\xFF\x7F"s + "\x00\x7C\xE0\x03"s}))),
              "#f80000 #00f800 #0000f8 #f8f8f8 ");
}

TEST_F(Bitmaps, Of16BitsWithMasks) {
    const std::string masks = "\0\xF8\0\0"s + "\xE0\x07\0\0"s + "\x1F\0\0\0"s;
    EXPECT_EQ(pixelsOf(read(bytesOf({.bits = 16,
                                     .compression = 3,
                                     .palette = masks,
                                     .rows = "\x1F\x00\xFF\xFF"s + "\x00\xF8\xE0\x07"s}))),
              "#f80000 #00fc00 #0000f8 #f8fcf8 ");
}

TEST_F(Bitmaps, Of8Bits) {
    EXPECT_EQ(
        pixelsOf(read(bytesOf({.bits = 8, .palette = palette, .rows = "\2\3\0\0"s + "\0\1\0\0"s}))),
        fourColours);
}

TEST_F(Bitmaps, Of4Bits) {
    EXPECT_EQ(pixelsOf(read(
                  bytesOf({.bits = 4, .palette = palette, .rows = "\x23\0\0\0"s + "\x01\0\0\0"s}))),
              fourColours);
}

TEST_F(Bitmaps, Of1Bit) {
    EXPECT_EQ(
        pixelsOf(read(bytesOf(
            {.bits = 1, .palette = palette.substr(0, 8), .rows = "\x80\0\0\0"s + "\x40\0\0\0"s}))),
        "#ff0000 #00ff00 #00ff00 #ff0000 ");
}

TEST_F(Bitmaps, RunLength8) {
    EXPECT_EQ(pixelsOf(read(bytesOf({.bits = 8,
                                     .compression = 1,
                                     .palette = palette,
                                     .rows = "\1\2\1\3\0\0"s + "\1\0\1\1\0\1"s}))),
              fourColours);
}

TEST_F(Bitmaps, RunLength4) {
    EXPECT_EQ(pixelsOf(read(bytesOf({.bits = 4,
                                     .compression = 2,
                                     .palette = palette,
                                     .rows = "\2\x23\0\0"s + "\2\x01\0\1"s}))),
              fourColours);
}

TEST_F(Bitmaps, OddWidthsKeepTheirRowsStraight) {
    const QImage image = read(test::shotBytes(5, 4, 9));
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(image.pixelColor(x, y), QColor(x, y, 9));
}

TEST_F(Bitmaps, CutShortAreBlackWhereTheirRowsAreMissing) {
    const std::string upright = bytesOf({.palette = {}, .rows = blue + white + pad});
    const std::string topFirst = bytesOf({.height = -2, .palette = {}, .rows = blue + white + pad});
    const std::string runs =
        bytesOf({.bits = 8, .compression = 1, .palette = palette, .rows = "\1\2\1\3\0\0"s});
    for (int i = 0; i < 20; ++i) {
        // What was freed here must not shine through.
        { const std::vector<std::string> dirt(50, std::string(16 + std::size_t(i), '\x5A')); }
        EXPECT_EQ(pixelsOf(read(upright)), "#000000 #000000 #0000ff #ffffff ");
        EXPECT_EQ(pixelsOf(read(topFirst)), "#0000ff #ffffff #000000 #000000 ");
        EXPECT_EQ(pixelsOf(read(runs)), "#ff0000 #ff0000 #0000ff #ffffff ");  // colour 0
    }
}

TEST_F(Bitmaps, DamagedOnesAreNoPictures) {
    const std::string whole = test::shotBytes(4, 4, 0);
    const auto withNumber = [&](std::size_t offset, std::uint32_t number, std::size_t count) {
        std::string bytes;
        sample::appendLittleEndian(bytes, number, count);
        return std::string(whole).replace(offset, count, bytes);
    };
    const std::pair<const char*, std::string> damaged[] = {
        {"empty", ""},
        {"two letters", "BM"},
        {"half a header", whole.substr(0, 30)},
        {"no rows", whole.substr(0, 54)},
        {"another mark", "PM" + whole.substr(2)},
        {"a PNG", "\x89PNG\r\n\x1A\n" + whole},
        {"all zeros", std::string(1000, '\0')},
        {"no width", withNumber(18, 0, 4)},
        {"a negative width", withNumber(18, 0xFFFFFFFC, 4)},
        {"no height", withNumber(22, 0, 4)},
        {"the least height", withNumber(22, 0x80000000, 4)},
        {"no bits", withNumber(28, 0, 2)},
        {"5 bits", withNumber(28, 5, 2)},
        {"65535 bits", withNumber(28, 0xFFFF, 2)},
        {"an unknown compression", withNumber(30, 77, 4)},
        {"runs of 24 bits", withNumber(30, 1, 4)},
        {"an odd header", withNumber(14, 41, 4)}};
    for (const auto& [what, bytes] : damaged)
        EXPECT_EQ(errorOfReading(bytes), errors::InvalidPicture) << what;
}

TEST_F(Bitmaps, NonsenseNeverBreaksTheReader) {
    const std::string whole =
        bytesOf({.bits = 8, .compression = 1, .palette = palette, .rows = "\0\2\xFF\xFF\1\1"s});
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const char odd : {'\0', '\x7F', '\x80', '\xFF'}) {
            std::string bytes = whole;
            bytes[at] = odd;
            const int error = errorOfReading(bytes);
            EXPECT_TRUE(error == 0 || error == errors::InvalidPicture) << at;
        }
    }
}

TEST_F(Bitmaps, ThoseThatClaimToBeHugeAreNotEvenTried) {
    const std::pair<int, int> sizes[] = {{60000, 60000}, {60000, -60000}, {2147483647, 2147483647},
                                         {32768, 1},     {1, 32768},      {8192, 4097},
                                         {32767, 32767}, {2147483647, 1}};
    for (const unsigned bits : {1u, 8u, 24u, 32u}) {
        for (const auto& [width, height] : sizes) {
            EXPECT_EQ(errorOfReading(bytesOf({.width = width,
                                              .height = height,
                                              .bits = bits,
                                              .palette = palette,
                                              .rows = std::string(64, '\0')})),
                      errors::InvalidPicture)
                << width << " by " << height << " of " << bits;
        }
    }
}

TEST_F(Bitmaps, TheLongestSideIsWhatAWindowCanBe) {
    const QImage image = read(test::shotBytes(32767, 1, 7));
    EXPECT_EQ(image.size(), QSize(32767, 1));
    EXPECT_EQ(image.pixelColor(32766, 0).blue(), 7);
}

TEST_F(Bitmaps, AFileLargerThanAnyPictureIsNotRead) {
    world_.write(file, test::shotBytes(4, 4, 0));
    std::filesystem::resize_file(world_.at(file), std::uintmax_t(5 * mostPixels));
    EXPECT_EQ(errorOf([&] { readBitmap(world_.files, file); }), errors::InvalidPicture);
    EXPECT_EQ(world_.host.count(test::Call::Read), 0);
}

TEST_F(Bitmaps, AFileThatHasGoneOrMayNotBeReadIsTold) {
    EXPECT_EQ(errorOf([&] { readBitmap(world_.files, file); }), errors::FileNotFound);
    world_.host.refuse(test::Call::Read, errors::PermissionDenied);
    EXPECT_EQ(errorOfReading(test::shotBytes(4, 4, 0)), errors::PermissionDenied);
}

std::set<QByteArray> loadedLibraries() {
    std::set<QByteArray> libraries;
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.open(QIODevice::ReadOnly)) return libraries;
    for (const QByteArray& line : maps.readAll().split('\n'))
        if (line.contains("/imageformats/")) libraries.insert(line.mid(line.indexOf('/')));
    return libraries;
}

TEST_F(Bitmaps, AreReadWithoutLoadingTheSystemsPictureLibraries) {
    const auto before = loadedLibraries();
    read(test::shotBytes(4, 4, 0));
    errorOfReading("no picture at all");
    EXPECT_EQ(loadedLibraries(), before);
}

}  // namespace
}  // namespace tessaro
