#include "platform/text/encoding.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/text/codepage.h"
#include "platform/text/utf8.h"

namespace tessaro {
namespace {

using namespace std::string_literals;

std::string allBytes() {
    std::string bytes;
    for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
    return bytes;
}

TEST(CodePage, EveryCodeStandsForOneCharacterAndComesBack) {
    for (unsigned code = 0; code < 256; ++code) {
        const auto byte = static_cast<unsigned char>(code);
        EXPECT_EQ(toCodePage(fromCodePage(byte)), byte);
    }
}

TEST(CodePage, OpenCodesStandForTheControlsOfTheirNumber) {
    for (const unsigned code : {0x81U, 0x8DU, 0x8FU, 0x90U, 0x9DU})
        EXPECT_EQ(fromCodePage(static_cast<unsigned char>(code)), code);
}

TEST(CodePage, HasTheEuroAndTheQuotes) {
    EXPECT_EQ(fromCodePage(0x80), U'€');
    EXPECT_EQ(fromCodePage(0x93), U'“');
    EXPECT_EQ(fromCodePage(0xE9), U'é');
    EXPECT_EQ(toCodePage(U'Ł'), std::nullopt);
    EXPECT_EQ(toCodePage(0x80), std::nullopt);
}

TEST(Encoding, AMarkDecides) {
    EXPECT_EQ(detectEncoding("\xFF\xFE"), Encoding::Utf16LittleEndian);
    EXPECT_EQ(detectEncoding("\xFE\xFF"), Encoding::Utf16BigEndian);
    EXPECT_EQ(detectEncoding("\xEF\xBB\xBF"), Encoding::Utf8Mark);
    EXPECT_EQ(detectEncoding("\xEF\xBB\xBF\xFF"), Encoding::Utf8Mark);
}

TEST(Encoding, WithoutAMarkTheLettersDecide) {
    EXPECT_EQ(detectEncoding(""), Encoding::CodePage);
    EXPECT_EQ(detectEncoding("plain"), Encoding::CodePage);
    EXPECT_EQ(detectEncoding("caf\xC3\xA9"), Encoding::Utf8);
    EXPECT_EQ(detectEncoding("caf\xE9"), Encoding::CodePage);
    EXPECT_EQ(detectEncoding("caf\xC3\xA9 caf\xE9"), Encoding::CodePage);
    EXPECT_EQ(detectEncoding("\xFF"), Encoding::CodePage);
}

TEST(Encoding, DecodesWithoutTheMark) {
    EXPECT_EQ(decodeText("\xE9\x80", Encoding::CodePage), "é€");
    EXPECT_EQ(decodeText("\xEF\xBB\xBF\xC3\xA9", Encoding::Utf8Mark), "é");
    EXPECT_EQ(decodeText("\xFF\xFE\xE9\0\x3C\xD8\xAE\xDF"s, Encoding::Utf16LittleEndian),
              "é\xF0\x9F\x8E\xAE");
    EXPECT_EQ(decodeText("\xFE\xFF\0\xE9"s, Encoding::Utf16BigEndian), "é");
}

TEST(Encoding, EveryByteOfACodePageFileComesBack) {
    const std::string bytes = allBytes();
    ASSERT_EQ(detectEncoding(bytes), Encoding::CodePage);
    EXPECT_EQ(encodeText(decodeText(bytes, Encoding::CodePage), Encoding::CodePage), bytes);
}

TEST(Encoding, ALetterOfTheCodePageIsSeenWhereverItStands) {
    const std::string plain = "0123456789 ASCII\0alone 123456789"s;
    EXPECT_EQ(decodeText(plain, Encoding::CodePage), plain);
    EXPECT_EQ(encodeText(plain, Encoding::CodePage), plain);
    for (std::size_t place = 0; place <= plain.size(); ++place) {
        const std::string before = plain.substr(0, place);
        const std::string bytes = before + "\xE9" + plain.substr(place);
        const std::string text = before + "é" + plain.substr(place);
        EXPECT_EQ(decodeText(bytes, Encoding::CodePage), text);
        EXPECT_EQ(encodeText(text, Encoding::CodePage), bytes);
        EXPECT_EQ(encodeText(before + "Ł" + plain.substr(place), Encoding::CodePage), std::nullopt);
    }
}

TEST(Encoding, DamagedBytesBehindAUtf8MarkComeBack) {
    const std::string bytes = "\xEF\xBB\xBF" + allBytes();
    EXPECT_EQ(encodeText(decodeText(bytes, Encoding::Utf8Mark), Encoding::Utf8Mark), bytes);
}

TEST(Encoding, DamagedUtf16ComesBack) {
    const std::string damaged[] = {
        "\x00\xD8"s,                  // half a pair at the end
        "\x00\xDC\x00\xD8"s,          // a pair the wrong way round
        "a\0\x00\xD8z\0"s,            // half a pair inside
        "a\0b"s,                      // an odd byte
        "\x00\xD8\xFF"s,              // half a pair and an odd byte
        "\xFF\xFE\xFE\xFF\xFF\xFF"s,  // further marks
    };
    for (const Encoding encoding : {Encoding::Utf16LittleEndian, Encoding::Utf16BigEndian}) {
        for (const std::string& text : damaged) {
            const std::string bytes = std::string(markOf(encoding)) + text;
            EXPECT_EQ(encodeText(decodeText(bytes, encoding), encoding), bytes);
        }
    }
}

TEST(Encoding, AnyUtf16BytesComeBack) {
    std::mt19937 random(11);
    for (int round = 0; round < 500; ++round) {
        std::string bytes = "\xFF\xFE";
        for (auto size = random() % 12; size > 0; --size)
            bytes += static_cast<char>(random() % 3 == 0 ? 0xD8 + random() % 8 : random());
        const std::string text = decodeText(bytes, Encoding::Utf16LittleEndian);
        EXPECT_EQ(encodeText(text, Encoding::Utf16LittleEndian), bytes);
    }
}

TEST(Encoding, AnOddByteStaysLastWhenTextIsAdded) {
    const std::string text = decodeText(
                                 "\xFF\xFE"
                                 "a\0b"s,
                                 Encoding::Utf16LittleEndian) +
                             "c";
    EXPECT_EQ(encodeText(text, Encoding::Utf16LittleEndian),
              "\xFF\xFE"
              "a\0c\0b"s);
}

TEST(Encoding, ALetterThatTheCodePageLacksDoesNotFit) {
    EXPECT_EQ(encodeText("Łódź", Encoding::CodePage), std::nullopt);
    EXPECT_EQ(encodeText("é", Encoding::CodePage), "\xE9");
}

TEST(Encoding, CodePageBytesThatWouldBeTakenForUtf8DoNotFit) {
    EXPECT_EQ(encodeText("Ã©", Encoding::CodePage), std::nullopt);
    EXPECT_EQ(encodeText("ï»¿", Encoding::CodePage), std::nullopt);  // a mark
    EXPECT_EQ(encodeText("ÿþ", Encoding::CodePage), std::nullopt);   // a mark
    EXPECT_EQ(encodeText("Ã© é", Encoding::CodePage), "\xC3\xA9 \xE9");
}

TEST(Encoding, TextThatIsNoUtf8DoesNotFitIntoAUtf8File) {
    EXPECT_EQ(encodeText("\xE9", Encoding::Utf8), std::nullopt);
    EXPECT_EQ(encodeText("\xEF\xBB\xBFx", Encoding::Utf8), std::nullopt);  // would be a mark
}

TEST(Encoding, AUtf8FileThatLosesItsLastLetterIsPlain) {
    EXPECT_EQ(encodeText("cafe", Encoding::Utf8), "cafe");
}

TEST(Encoding, WhatDoesNotFitWidensTheFile) {
    EXPECT_EQ(encodeOrWiden("é", Encoding::CodePage), "\xE9");
    EXPECT_EQ(encodeOrWiden("Ł", Encoding::CodePage), "\xFF\xFE\x41\x01");
    EXPECT_EQ(encodeOrWiden("Ł", Encoding::Utf8), "Ł");
    EXPECT_EQ(encodeOrWiden("Ã©", Encoding::CodePage), "\xFF\xFE\xC3\0\xA9\0"s);
}

TEST(Encoding, AStrayByteBecomesALetterOfTheCodePageWhenWidened) {
    EXPECT_EQ(encodeOrWiden("\xE9", Encoding::Utf8), "\xFF\xFE\xE9\0"s);
}

TEST(Encoding, OnlyFilesWithAMarkGetOne) {
    EXPECT_EQ(markOf(Encoding::CodePage), "");
    EXPECT_EQ(markOf(Encoding::Utf8), "");
    EXPECT_EQ(encodeText("a", Encoding::Utf8Mark),
              "\xEF\xBB\xBF"
              "a");
    EXPECT_EQ(encodeText("a", Encoding::Utf16BigEndian), "\xFE\xFF\0a"s);
}

}  // namespace
}  // namespace tessaro
