#include "platform/profile/profilereader.h"

#include <gtest/gtest.h>

#include "support/profilereads.h"

namespace tessaro {
namespace {

using test::profileKeys;
using test::profileSections;
using namespace std::string_literals;
using test::profileValue;

using Found = std::optional<std::string>;

TEST(ProfileReader, ALineEndsAtAnyMixOfLineEnds) {
    const std::string file = "[S]\ra=1\nb=2\r\nc=3\r\r\nd=4\n\ne=5";
    for (const auto& [key, value] : {std::pair{"a", "1"}, {"b", "2"}, {"c", "3"}, {"d", "4"}})
        EXPECT_EQ(profileValue(file, "S", key), value);
    EXPECT_EQ(profileValue(file, "S", "e"), "5");
}

TEST(ProfileReader, ControlZIsAnOrdinaryByte) {
    EXPECT_EQ(profileValue("[S]\na=x\x1Ay\n\x1A\nb=2\n", "S", "a"), "x\x1Ay");
    EXPECT_EQ(profileValue("[S]\na=x\x1Ay\n\x1A\nb=2\n", "S", "b"), "2");
}

TEST(ProfileReader, BlanksAreCutRoundLinesKeysValuesAndHeaderNames) {
    const std::string file = " \t\v[ \t\vS \v]\n\v \tk \t\v=\t \vv w\v \t\n";
    EXPECT_EQ(profileValue(file, "S", "k"), "v w");
    EXPECT_EQ(profileSections(file), "S\0"s);
    EXPECT_EQ(profileKeys(file, "S"), "k\0"s);
}

TEST(ProfileReader, OtherControlBytesAndTheHardBlankAreNoBlanks) {
    EXPECT_EQ(profileValue("[S]\nk=\xA0v\x01\n", "S", "k"), "\u00A0v\x01");
    EXPECT_EQ(profileValue("[S]\nk=\fv\n", "S", "k"), "\fv");
    EXPECT_EQ(profileKeys("[S]\n\x01k=v\n", "S"), "\x01k\0"s);
}

TEST(ProfileReader, BlanksInsideANameCount) {
    EXPECT_EQ(profileValue("[My S]\nmy k=v\n", "My S", "my k"), "v");
    EXPECT_EQ(profileValue("[My S]\nmy k=v\n", "MyS", "my k"), Found());
    EXPECT_EQ(profileValue("[My S]\nmy k=v\n", "My S", "myk"), Found());
}

TEST(ProfileReader, AHeadersNameRunsToTheFirstBracketAndTheRestIsIgnored) {
    EXPECT_EQ(profileValue("[S]x] k=1\nk=2\n", "S", "k"), "2");
    EXPECT_EQ(profileSections("[S]x]\n[[T]\n"), "S\0[T\0"s);
}

TEST(ProfileReader, AHeaderWithoutABracketRunsToTheEndOfItsLine) {
    EXPECT_EQ(profileValue("[Sect = 1 \nk=v\n", "Sect = 1", "k"), "v");
}

TEST(ProfileReader, ALineInBracketsWithAValueIsAHeader) {
    EXPECT_EQ(profileSections("[S]\n[0]=w\nk=v\n"),
              "S\0"
              "0\0"s);
    EXPECT_EQ(profileValue("[S]\n[0]=w\nk=v\n", "S", "[0]"), Found());
    EXPECT_EQ(profileValue("[S]\n[0]=w\nk=v\n", "0", "k"), "v");
}

TEST(ProfileReader, ABracketInsideALineIsNoHeader) {
    EXPECT_EQ(profileValue("[S]\nList[0]=a [T]\nk=v\n", "S", "k"), "v");
    EXPECT_EQ(profileSections("[S]\nList[0]=a [T]\n;[U]\n"), "S\0"s);
}

TEST(ProfileReader, ASemicolonMakesACommentOnlyAtTheBeginning) {
    EXPECT_EQ(profileValue("[S]\n \t;k=1\nk=v ; x\n", "S", "k"), "v ; x");
    EXPECT_EQ(profileKeys("[S]\n;a=1\nb=2\n", "S"), "b\0"s);
    EXPECT_EQ(profileValue("[S]\n;a=1\n", "S", ";a"), Found());
}

TEST(ProfileReader, ANumberSignMakesNoComment) {
    EXPECT_EQ(profileValue("[S]\n#k=v\n", "S", "#k"), "v");
}

TEST(ProfileReader, TheFirstEqualsSignDivides) {
    EXPECT_EQ(profileValue("[S]\nk=a=b=\n", "S", "k"), "a=b=");
}

TEST(ProfileReader, AnEmptyValueIsFound) {
    EXPECT_EQ(profileValue("[S]\nk=\n", "S", "k"), "");
    EXPECT_EQ(profileValue("[S]\nk=", "S", "k"), "");
}

TEST(ProfileReader, ALineWithoutEqualsSignIsNoKey) {
    EXPECT_EQ(profileValue("[S]\nk\nk=2\n", "S", "k"), "2");
    EXPECT_EQ(profileValue("[S]\nk\n", "S", "k"), Found());
    EXPECT_EQ(profileKeys("[S]\nk\nj=1\n", "S"), "j\0"s);
}

TEST(ProfileReader, AKeyMayHaveAnEmptyName) {
    EXPECT_EQ(profileValue("[S]\n =x\n", "S", ""), "x");
    EXPECT_EQ(profileKeys("[S]\n=x\na=1\n", "S"), "\0a\0"s);
}

TEST(ProfileReader, OnlyTheFirstSectionOfANameIsSearched) {
    EXPECT_EQ(profileValue("[S]\na=1\n[T]\n[S]\nb=2\n", "S", "b"), Found());
    EXPECT_EQ(profileValue("[S]\n[S]\nb=2\n", "S", "b"), Found());
    EXPECT_EQ(profileKeys("[S]\n[S]\nb=2\n", "S"), "");
}

TEST(ProfileReader, TheFirstOfRepeatedKeysWins) {
    EXPECT_EQ(profileValue("[S]\nO=1\no=2\n", "S", "o"), "1");
}

TEST(ProfileReader, ListingsGiveEveryNameInFileOrderWithRepeats) {
    const std::string file = "[S]\nb=1\na=2\nB=3\n[T]\nc=1\n[s]\n";
    EXPECT_EQ(profileSections(file), "S\0T\0s\0"s);
    EXPECT_EQ(profileKeys(file, "S"), "b\0a\0B\0"s);
}

TEST(ProfileReader, KeysAboveTheFirstHeaderBelongToNoSection) {
    EXPECT_EQ(profileValue("k=1\n[S]\nj=2\n", "", "k"), Found());
    EXPECT_EQ(profileValue("k=1\n[S]\nj=2\n", "S", "k"), Found());
}

TEST(ProfileReader, AnEmptySectionNameMeansAnEmptyHeader) {
    EXPECT_EQ(profileValue("k=1\n[ ]\nk=2\n", "", "k"), "2");
}

TEST(ProfileReader, NamesMatchWithoutRegardToCase) {
    EXPECT_EQ(profileValue("[Core.System]\nPurgeCacheDays=30\n", "core.SYSTEM", "purgecachedays"),
              "30");
    EXPECT_EQ(profileValue("[\xC9t\xE9]\n\xD6l=1\n", "éTÉ", "öL"), "1");  // code page
    EXPECT_EQ(profileValue("[Été]\nŁ=1\nИмя=2\n", "éTÉ", "имя"), "2");    // UTF-8
    EXPECT_EQ(profileValue("[S]\n\xD6l=1\n", "S", "Ł"), Found());
    EXPECT_EQ(profileValue("[S]\nOl=1\n", "S", "Öl"), Found());
}

TEST(ProfileReader, OnePairOfEqualQuotesGoes) {
    const auto value = [](const std::string& text) {
        return profileValue("[S]\nk= " + text + " \n", "S", "k").value();
    };
    EXPECT_EQ(value("\"v\""), "v");
    EXPECT_EQ(value("'v'"), "v");
    EXPECT_EQ(value("\"\"v\"\""), "\"v\"");
    EXPECT_EQ(value("\"a\" \"b\""), "a\" \"b");
    EXPECT_EQ(value("\"v'"), "\"v'");
    EXPECT_EQ(value("\"v\" x"), "\"v\" x");
    EXPECT_EQ(value("\""), "\"");
    EXPECT_EQ(value("\"\""), "");
    EXPECT_EQ(value("\" v \""), " v ");
}

TEST(ProfileReader, ValuesComeAsUtf8FromEveryEncoding) {
    EXPECT_EQ(profileValue("[S]\nk=caf\xE9\x80\n", "S", "k"), "café€");
    EXPECT_EQ(profileValue("[S]\nk=caf\xC3\xA9\n", "S", "k"), "café");
    EXPECT_EQ(profileValue("\xEF\xBB\xBF[S]\nk=caf\xC3\xA9\n", "S", "k"), "café");
    EXPECT_EQ(profileValue("\xFF\xFE[\0S\0]\0\n\0k\0=\0\x41\x01"s, "S", "k"), "Ł");
    EXPECT_EQ(profileValue("\xFE\xFF\0[\0S\0]\0\n\0k\0=\x01\x41"s, "S", "K"), "Ł");
}

TEST(ProfileReader, AMarkIsNoPartOfTheFirstLine) {
    EXPECT_EQ(profileSections("\xEF\xBB\xBF[S]\n"), "S\0"s);
    EXPECT_EQ(profileSections("\xFF\xFE[\0S\0]\0"s), "S\0"s);
}

TEST(ProfileReader, InAMixedFileEachByteIsALetterOfTheCodePage) {
    EXPECT_EQ(profileValue("[S]\na=\xE9\nb=\xC3\xA9\n", "S", "b"), "Ã©");
}

TEST(ProfileReader, AStrayByteBehindAUtf8MarkIsALetterOfTheCodePage) {
    const std::string file = "\xEF\xBB\xBF[S]\n\xE9=1\nk=\x80\xC3\xA9\n";
    EXPECT_EQ(profileValue(file, "S", "É"), "1");
    EXPECT_EQ(profileValue(file, "S", "k"), "€é");
    EXPECT_EQ(profileKeys(file, "S"), "é\0k\0"s);
}

TEST(ProfileReader, AFileThatIsOnlyAMarkIsEmpty) {
    for (const std::string mark : {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"}) {
        EXPECT_EQ(profileSections(mark), "");
        EXPECT_EQ(profileValue(mark, "", ""), Found());
    }
}

TEST(DamagedProfile, AnEmptyFileHoldsNothing) {
    EXPECT_EQ(profileValue("", "S", "k"), Found());
    EXPECT_EQ(profileSections(""), "");
    EXPECT_EQ(profileKeys("", "S"), Found());
}

TEST(DamagedProfile, NulsAreOrdinaryBytes) {
    const std::string file = "\0[S]\0\n[S]\nk\0=1\nk=a\0b\n\0\0"s;
    EXPECT_EQ(profileValue(file, "S", "k"), "a\0b"s);
    EXPECT_EQ(profileValue(file, "S", "k\0"s), "1");
}

TEST(DamagedProfile, LoneCarriageReturnsAreLineEnds) {
    EXPECT_EQ(profileValue("[S]\r\r\rk=v\r", "S", "k"), "v");
}

TEST(DamagedProfile, AFileThatEndsInsideAHeaderOrAKeyIsRead) {
    EXPECT_EQ(profileSections("[S]\nk=v\n["), "S\0\0"s);
    EXPECT_EQ(profileSections("[S]\nk=v\n[Te"), "S\0Te\0"s);
    EXPECT_EQ(profileValue("[S]\nk", "S", "k"), Found());
    EXPECT_EQ(profileValue("[S", "S", "k"), Found());
}

TEST(DamagedProfile, TruncatedUtf16IsReadAsFarAsItGoes) {
    EXPECT_EQ(profileValue("\xFF\xFE[\0S\0]\0\n\0k\0=\0v\0w"s, "S", "k"), "v");
    EXPECT_EQ(profileSections("\xFF\xFE["), "");
    EXPECT_EQ(profileValue("\xFF\xFE[\0S\0]\0\n\0k\0=\0v\0\x00\xD8"s, "S", "k"), "v\xED\xA0\x80");
}

TEST(DamagedProfile, AHugeLineIsOneLine) {
    const std::string value(3'000'000, 'x');
    EXPECT_EQ(profileValue("[S]\nj" + value + "\nk=" + value + "\n", "S", "k"), value);
}

TEST(DamagedProfile, BinaryRubbishIsSearchedToItsEnd) {
    std::string rubbish;
    for (int i = 0; i < 70000; ++i) rubbish += static_cast<char>(i * 7919 >> 3);
    EXPECT_EQ(profileValue(rubbish + "\n[Tail]\nk=v\n", "Tail", "k"), "v");
    EXPECT_EQ(profileValue(rubbish, "no such", "k"), Found());
}

}  // namespace
}  // namespace tessaro
