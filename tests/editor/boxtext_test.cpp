#include "editor/boxtext.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/text/utf8.h"

namespace tessaro {
namespace {

const Encoding everyEncoding[] = {Encoding::CodePage, Encoding::Utf8, Encoding::Utf8Mark,
                                  Encoding::Utf16LittleEndian, Encoding::Utf16BigEndian};

std::u16string shown(std::string_view bytes) {
    const Encoding encoding = detectEncoding(bytes);
    return toBox(decodeText(bytes, encoding), encoding);
}

std::string keptBytes(std::u16string_view text, Encoding encoding) {
    return encodePiece(fromBox(text, encoding), encoding).value();
}

TEST(BoxText, LettersOfEachEncodingAreShown) {
    EXPECT_EQ(shown("caf\xE9 \x80"), u"caf\u00e9 \u20ac");
    EXPECT_EQ(shown("caf\xC3\xA9"), u"caf\u00e9");
    EXPECT_EQ(shown("\xEF\xBB\xBF"
                    "caf\xC3\xA9"),
              u"caf\u00e9");
    EXPECT_EQ(shown(std::string_view("\xFF\xFE\xA9\x03!\0", 6)), u"\u03a9!");
    EXPECT_EQ(shown(std::string_view("\xFE\xFF\x03\xA9\0!", 6)), u"\u03a9!");
}

TEST(BoxText, ACharacterBeyond16BitsIsAPair) {
    EXPECT_EQ(shown("\xF0\x9F\x8E\xAE!"), u"\U0001F3AE!");
    EXPECT_EQ(fromBox(u"\U0001F3AE!", Encoding::Utf8), "\xF0\x9F\x8E\xAE!");
}

TEST(BoxText, StrayBytesOfADamagedFileAreShownAndComeBack) {
    const std::string damaged = "a\x80z\xC3 \xED\xA0\x80 \xF4\x90\x80\x80 \xFF";
    const std::u16string text = toBox(damaged, Encoding::Utf8Mark);
    EXPECT_EQ(text.substr(0, 3), std::u16string({u'a', 0xDC80, u'z'}));
    EXPECT_EQ(fromBox(text, Encoding::Utf8Mark), damaged);
}

TEST(BoxText, HalvesOfPairsStandForThemselves) {
    const std::u16string halves{u'a', 0xDC80, u'b', 0xD83C, u'c', 0xD83C};
    for (const Encoding encoding : {Encoding::Utf16LittleEndian, Encoding::Utf16BigEndian}) {
        const std::string bytes = keptBytes(halves, encoding);
        EXPECT_EQ(toBox(decodeText(std::string(markOf(encoding)) + bytes, encoding), encoding),
                  halves);
    }
}

TEST(BoxText, AnyBytesComeBackInAnyEncoding) {
    std::mt19937 chance(7);
    std::uniform_int_distribution<int> byte(0, 255);
    for (const Encoding encoding : everyEncoding) {
        for (int round = 0; round < 200; ++round) {
            std::string bytes;
            for (int i = 0; i < 60; ++i) bytes += static_cast<char>(byte(chance));
            if (encoding == Encoding::Utf8 && !isValidUtf8(bytes)) continue;
            const std::string file = std::string(markOf(encoding)) + bytes;
            const std::u16string text = toBox(decodeText(file, encoding), encoding);
            EXPECT_EQ(keptBytes(text, encoding), bytes);
        }
    }
}

TEST(BoxText, ReadableTextHasNoHalves) {
    EXPECT_EQ(readable(u"caf\u00e9"), "caf\xC3\xA9");
    EXPECT_EQ(readable(std::u16string{u'a', 0xDC80, u'b', 0xD83C, 0xDFAE}),
              "a\xEF\xBF\xBD"
              "b\xF0\x9F\x8E\xAE");
}

TEST(BoxText, TheNextLineEndIsTheFirstOfAnyKindFromThere) {
    const std::u16string text = u"ab\r\n\u2028c\rd\n\n\u2029e\xFDD0\xFDD1\u2030";
    std::string found;
    for (std::size_t i = 0; i <= text.size(); ++i)
        found += std::to_string(nextLineEnd(text, i)) + " ";
    EXPECT_EQ(found, "2 2 2 3 6 6 6 8 8 9 10 12 12 13 15 15 ");
}

// Long texts are looked at in blocks.
TEST(BoxText, OneOddCharacterIsSeenWhereverItStands) {
    for (std::size_t at = 0; at < 50; ++at) {
        std::string text(50, 'x');
        text.replace(at, 1, "\xC3\xA9");
        std::u16string expected(50, u'x');
        expected[at] = u'\u00E9';
        EXPECT_EQ(toBox(text, Encoding::CodePage), expected) << at;
    }
}

TEST(BoxText, ALineEndIsFoundWhereverItStands) {
    for (const char16_t end : {u'\n', u'\r', u'\u2029', u'\uFDD0', u'\uFDD1'}) {
        for (std::size_t at = 0; at < 50; ++at) {
            std::u16string text(50, u'x');
            text[at] = end;
            EXPECT_EQ(nextLineEnd(text, 0), at);
            EXPECT_EQ(nextLineEnd(text, at), at);
            EXPECT_EQ(nextLineEnd(text, at + 1), 50U) << at;
        }
    }
    EXPECT_EQ(nextLineEnd(std::u16string(50, u'\uFDD2'), 0), 50U);
}

TEST(BoxText, ACrLfIsOneLineEnd) {
    const std::u16string text = u"a\r\nb\rc\nd\n\re";
    std::string sizes;
    for (std::size_t i = 0; i <= text.size(); ++i) sizes += std::to_string(lineEndAt(text, i));
    EXPECT_EQ(sizes, "021010101100");
}

TEST(BoxText, WhatTheBoxTakesForALineEndIsOne) {
    for (const char16_t unit : {u'\u2029', char16_t{0xFDD0}, char16_t{0xFDD1}})
        EXPECT_EQ(lineEndAt(std::u16string{unit}, 0), 1U);
    for (const char16_t unit : {u'\u2028', u'\u0085', u'\f', u'\v', u'\0'})
        EXPECT_EQ(lineEndAt(std::u16string{unit}, 0), 0U);
}

TEST(BoxText, PositionsInTheBoxCountACrLfOnceAndAPairTwice) {
    const std::string text = "a\r\nb\rc\n\n\xF0\x9F\x8E\xAE!";
    const std::size_t expected[] = {0, 1, 2, 2, 3, 4, 5, 6, 7, 9, 10, 10};
    for (std::size_t characters = 0; characters < std::size(expected); ++characters)
        EXPECT_EQ(boxPosition(text, characters), expected[characters]) << characters;
}

}  // namespace
}  // namespace tessaro
