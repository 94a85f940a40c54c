#include "platform/profile/profileedit.h"

#include <gtest/gtest.h>

#include "support/profilereads.h"

namespace tessaro {
namespace {

using test::profileSections;
using namespace std::string_literals;
using test::profileValue;

std::optional<std::string> write(std::string_view bytes, std::string_view section,
                                 std::string_view key, std::string_view text) {
    return changedProfile(bytes, {section, key, text});
}

std::optional<std::string> deleteKey(std::string_view bytes, std::string_view section,
                                     std::string_view key) {
    return changedProfile(bytes, {section, key, std::nullopt});
}

std::optional<std::string> deleteSection(std::string_view bytes, std::string_view section) {
    return changedProfile(bytes, {section, std::nullopt, std::nullopt});
}

TEST(ProfileEdit, ReplacesTheValueOnTheFirstLineOfAKeyAndNoOtherByte) {
    EXPECT_EQ(write("; c\r\n\n[S] tail\n  Key \t=  old  \r\n\n#x\nkey=2\0\r[S]\nkey=3"s, "s", "KEY",
                    "new"),
              "; c\r\n\n[S] tail\n  Key \t=  new  \r\n\n#x\nkey=2\0\r[S]\nkey=3"s);
}

TEST(ProfileEdit, ReplacesAnEmptyValueBehindItsBlanks) {
    EXPECT_EQ(write("[S]\nk=\nj=1\n", "S", "k", "v"), "[S]\nk=v\nj=1\n");
    EXPECT_EQ(write("[S]\nk = \n", "S", "k", "v"), "[S]\nk = v\n");
    EXPECT_EQ(write("[S]\nk=", "S", "k", "v"), "[S]\nk=v");
}

TEST(ProfileEdit, AnEmptyTextLeavesTheKey) {
    EXPECT_EQ(write("[S]\nk=v\n", "S", "k", ""), "[S]\nk=\n");
}

TEST(ProfileEdit, QuotesBelongToTheValueThatIsReplaced) {
    EXPECT_EQ(write("[S]\nk=\"old\"\n", "S", "k", "new"), "[S]\nk=new\n");
}

TEST(ProfileEdit, ANewKeyGoesRightAfterTheLastKeyLine) {
    EXPECT_EQ(write("[S]\na=1\nb=2\n; end\n\n[T]\nc=3\n", "S", "n", "v"),
              "[S]\na=1\nb=2\nn=v\n; end\n\n[T]\nc=3\n");
}

TEST(ProfileEdit, ANewKeyOfAnEmptySectionGoesRightAfterItsHeader) {
    EXPECT_EQ(write("[S]\n; c\n\n[T]\n", "S", "n", "v"), "[S]\nn=v\n; c\n\n[T]\n");
    EXPECT_EQ(write("[S]", "S", "n", "v"), "[S]\r\nn=v\r\n");
}

TEST(ProfileEdit, ANewKeyGoesIntoTheFirstSectionOfItsName) {
    EXPECT_EQ(write("[S]\n[S]\na=1\n", "S", "n", "v"), "[S]\nn=v\n[S]\na=1\n");
    EXPECT_EQ(write("[S]\n[S]\na=1\n", "S", "a", "v"), "[S]\na=v\n[S]\na=1\n");
}

TEST(ProfileEdit, ANewSectionGoesToTheEndWithoutABlankLine) {
    EXPECT_EQ(write("[S]\na=1\n", "T", "n", "v"), "[S]\na=1\n[T]\nn=v\n");
    EXPECT_EQ(write("[S]\na=1\n\n", "T", "n", "v"), "[S]\na=1\n\n[T]\nn=v\n");
}

TEST(ProfileEdit, AMissingLastLineEndIsSuppliedFirst) {
    EXPECT_EQ(write("[S]\na=1", "S", "n", "v"), "[S]\na=1\nn=v\n");
    EXPECT_EQ(write("[S]\na=1", "T", "n", "v"), "[S]\na=1\n[T]\nn=v\n");
}

TEST(ProfileEdit, NewLinesEndAsTheFirstLineDoes) {
    EXPECT_EQ(write("[S]\r\na=1\n", "S", "n", "v"), "[S]\r\na=1\nn=v\r\n");
    EXPECT_EQ(write("[S]\na=1\r\n", "S", "n", "v"), "[S]\na=1\r\nn=v\n");
    EXPECT_EQ(write("[S]\ra=1\r\n", "S", "n", "v"), "[S]\ra=1\r\nn=v\r");
    EXPECT_EQ(write("", "S", "n", "v"), "[S]\r\nn=v\r\n");
    EXPECT_EQ(write("text", "S", "n", "v"), "text\r\n[S]\r\nn=v\r\n");
}

TEST(ProfileEdit, TextIsWrittenAsGiven) {
    EXPECT_EQ(write("[S]\n", "S", "k", " \"a;b\"=\\n\t "), "[S]\nk= \"a;b\"=\\n\t \n");
    EXPECT_EQ(write("[S]\nk=1\n", "S", "k", "  v "), "[S]\nk=  v \n");
}

TEST(ProfileEdit, WritingWhatIsThereChangesNothing) {
    EXPECT_EQ(write("[S]\nk=v\n", "S", "K", "v"), std::nullopt);
    EXPECT_EQ(write("[S]\nk =  v  \n", "S", "k", "v"), std::nullopt);
    EXPECT_EQ(write("[S]\nk=\n", "S", "k", ""), std::nullopt);
    EXPECT_EQ(write("[S]\nk=\xE9\n", "S", "k", "é"), std::nullopt);
}

TEST(ProfileEdit, WritingATextWithBlanksAgainChangesNothing) {
    for (const std::string text : {" v", "v ", "\t v \t", " ", "\t", " \" v\" "}) {
        const auto once = write("[S]\nk = x \n", "S", "k", text);
        ASSERT_TRUE(once) << text;
        EXPECT_EQ(write(*once, "S", "k", text), std::nullopt) << *once;
    }
}

TEST(ProfileEdit, BlanksThatTheTextBringsAreAChange) {
    EXPECT_EQ(write("[S]\nk=v\n", "S", "k", "v "), "[S]\nk=v \n");
    EXPECT_EQ(write("[S]\nk=v\n", "S", "k", " v"), "[S]\nk= v\n");
    EXPECT_EQ(write("[S]\nk=v \n", "S", "k", "v\t"), "[S]\nk=v\t \n");
    EXPECT_EQ(write("[S]\nk=v \n", "S", "k", "v "), std::nullopt);
    EXPECT_EQ(write("[S]\nk= \n", "S", "k", "\t"), "[S]\nk= \t\n");
}

TEST(ProfileEdit, AnotherSpellingOfTheValueIsAChange) {
    EXPECT_EQ(write("[S]\nk=true\n", "S", "k", "True"), "[S]\nk=True\n");
}

TEST(ProfileEdit, DeletingAKeyTakesItsFirstLineOnly) {
    EXPECT_EQ(deleteKey("[S]\n;k=0\n k = 1\r\nj=2\nk=3\n", "S", "K"), "[S]\n;k=0\nj=2\nk=3\n");
    EXPECT_EQ(deleteKey("[S]\nj=2\nk=1", "S", "k"), "[S]\nj=2\n");
}

TEST(ProfileEdit, DeletingASectionTakesEverythingUpToTheNextHeader) {
    EXPECT_EQ(deleteSection("; top\n [S] x\na=1\n; c\n\n  [T]\nb=2\n[S]\n", "s"),
              "; top\n  [T]\nb=2\n[S]\n");
    EXPECT_EQ(deleteSection("[T]\nb=2\n[S]\na=1", "S"), "[T]\nb=2\n");
    EXPECT_EQ(deleteSection("[S]", "S"), "");
}

TEST(ProfileEdit, DeletingWhatIsNotThereChangesNothing) {
    EXPECT_EQ(deleteKey("[S]\na=1\n", "S", "k"), std::nullopt);
    EXPECT_EQ(deleteKey("[S]\na=1\n", "T", "a"), std::nullopt);
    EXPECT_EQ(deleteSection("[S]\na=1\n", "T"), std::nullopt);
    EXPECT_EQ(deleteSection("", "T"), std::nullopt);
}

TEST(ProfileEdit, LettersFollowTheFilesEncoding) {
    EXPECT_EQ(write("[S]\nk=\xE9\n", "S", "k", "ö"), "[S]\nk=\xF6\n");
    EXPECT_EQ(write("[S]\nj=\xC3\xA9\n", "S", "k", "ö"), "[S]\nj=\xC3\xA9\nk=\xC3\xB6\n");
    EXPECT_EQ(write("[S]\n", "S", "k", "ö"), "[S]\nk=\xF6\n");
    EXPECT_EQ(write("", "S", "k", "ö"), "[S]\r\nk=\xF6\r\n");
}

TEST(ProfileEdit, AMarkStaysAndNoneIsAdded) {
    EXPECT_EQ(write("\xEF\xBB\xBF[S]\n", "S", "k", "Ł"), "\xEF\xBB\xBF[S]\nk=\xC5\x81\n");
    EXPECT_EQ(write("\xFF\xFE[\0S\0]\0\n\0"s, "S", "k", "Ł"),
              "\xFF\xFE[\0S\0]\0\n\0k\0=\0\x41\x01\n\0"s);
    EXPECT_EQ(write("\xFE\xFF\0[\0S\0]\0\n"s, "S", "k", "1"),
              "\xFE\xFF\0[\0S\0]\0\n\0k\0=\0"
              "1\0\n"s);
    EXPECT_EQ(write("\xEF\xBB\xBF", "S", "k", "1"), "\xEF\xBB\xBF[S]\r\nk=1\r\n");
    EXPECT_EQ(deleteSection("\xEF\xBB\xBF[S]\n", "S"), "\xEF\xBB\xBF");
}

TEST(ProfileEdit, ATextThatDoesNotFitWidensTheWholeFile) {
    EXPECT_EQ(write("[S]\nj=\xE9\n", "S", "k", "Ł"),
              "\xFF\xFE[\0S\0]\0\n\0j\0=\0\xE9\0\n\0k\0=\0\x41\x01\n\0"s);
    EXPECT_EQ(write("", "Ł", "k", ""), "\xFF\xFE[\0\x41\x01]\0\r\0\n\0k\0=\0\r\0\n\0"s);
}

TEST(ProfileEdit, AWidenedUtf8FileKeepsItsLetters) {
    const auto bytes = write("[S]\nj=\xC3\xA9\n", "S", "k", "\xED\xA0\x80");
    EXPECT_EQ(bytes, "\xFF\xFE[\0S\0]\0\n\0j\0=\0\xE9\0\n\0k\0=\0\x00\xD8\n\0"s);
}

TEST(ProfileEdit, CodePageBytesThatWouldReadAsUtf8WidenTheFile) {
    const auto bytes = write("[S]\nj=1\n", "S", "k", "Ã©");
    ASSERT_TRUE(bytes);
    EXPECT_TRUE(bytes->starts_with("\xFF\xFE"));
    EXPECT_EQ(profileValue(*bytes, "S", "k"), "Ã©");
}

TEST(ProfileEdit, SuchBytesFitWhereAnotherLetterKeepsTheFileInTheCodePage) {
    EXPECT_EQ(write("[S]\nj=\xE9\n", "S", "k", "Ã©"), "[S]\nj=\xE9\nk=\xC3\xA9\n");
}

TEST(ProfileEdit, AUtf8FileMayLoseItsLastLetter) {
    EXPECT_EQ(write("[S]\nk=\xC3\xA9\n", "S", "k", "e"), "[S]\nk=e\n");
}

TEST(ProfileEdit, TheOtherBytesOfAMixedFileStay) {
    EXPECT_EQ(write("[S]\na=\xE9\nb=\xC3\xA9\nk=1\n", "S", "k", "2"),
              "[S]\na=\xE9\nb=\xC3\xA9\nk=2\n");
    EXPECT_EQ(write("[S]\na=\xE9\nb=\xC3\xA9\n", "S", "a", "x"), "[S]\na=x\nb=\xC3\xA9\n");
    EXPECT_EQ(deleteKey("[S]\na=\xE9\nb=\xC3\xA9\n", "S", "a"), "[S]\nb=\xC3\xA9\n");
    EXPECT_EQ(write("\xEF\xBB\xBF[S]\na=\xE9\n", "S", "k", "Ł"),
              "\xEF\xBB\xBF[S]\na=\xE9\nk=\xC5\x81\n");
}

// The key's name and the value of `j` are UTF-8 by themselves, the value of the key is not, so that
// all of it reads as code page text until that value goes.
TEST(ProfileEdit, AMixedFileIsWidenedWhenItsLastCodePageLetterWouldTakeTheKeysNameAlong) {
    const auto bytes = write("[s]\n\xC3\xA9=\xE9\nj=\xC3\xA9\n", "s", "Ã©", "1");
    EXPECT_EQ(bytes,
              "\xFF\xFE[\0s\0]\0\n\0\xC3\0\xA9\0=\0"
              "1\0\n\0j\0=\0\xC3\0\xA9\0\n\0"s);
    EXPECT_EQ(profileValue(*bytes, "s", "Ã©"), "1");
    EXPECT_EQ(write(*bytes, "s", "Ã©", "1"), std::nullopt);
}

TEST(ProfileEdit, AMixedFileIsWidenedWhenASectionsNameWouldChange) {
    const auto bytes = write("[\xC3\xA9]\nk=\xE9\n", "Ã©", "k", "1");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(profileValue(*bytes, "Ã©", "k"), "1");
    EXPECT_EQ(profileSections(*bytes), "Ã©\0"s);
}

TEST(ProfileEdit, AMixedFileIsWidenedWhenADeletedKeyWouldAppearAgain) {
    const auto bytes = deleteKey("[s]\n\xE9=1\n\xC3\xA9=2\n", "s", "é");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(profileValue(*bytes, "s", "é"), std::nullopt);
    EXPECT_EQ(profileValue(*bytes, "s", "Ã©"), "2");
}

TEST(ProfileEdit, AMixedFileIsWidenedWhenADeletedSectionWouldAppearAgain) {
    const auto bytes = deleteSection("[\xE9]\nk=1\n[\xC3\xA9]\nk=2\n", "é");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(profileSections(*bytes), "Ã©\0"s);
}

TEST(ProfileEdit, AWidenedMixedFileShowsOnEveryLineWhatItShowedBefore) {
    const std::string mixed = "[s]\na=\xE9\nb=\xC3\xA9\nc=\x80\x81\nd=\xC5\x81\n";
    const std::string bytes = write(mixed, "s", "k", "Ł").value();
    ASSERT_TRUE(bytes.starts_with("\xFF\xFE"));
    for (const std::string key : {"a", "b", "c", "d"})
        EXPECT_EQ(profileValue(bytes, "s", key), profileValue(mixed, "s", key)) << key;
    EXPECT_EQ(profileValue(bytes, "s", "d"), "Å\u0081");
}

TEST(ProfileEdit, DamagedUtf16KeepsItsBytes) {
    EXPECT_EQ(write("\xFF\xFE[\0S\0]\0\n\0j\0=\0\x00\xD8\n\0k\0=\0v\0z"s, "S", "k", "w"),
              "\xFF\xFE[\0S\0]\0\n\0j\0=\0\x00\xD8\n\0k\0=\0w\0z"s);
    EXPECT_EQ(write("\xFF\xFEz"s, "S", "k", "w"), "\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0w\0\r\0\n\0z"s);
}

TEST(ProfileEdit, HalfAPairReadFromOneFileIsKeptInAnother) {
    const auto bytes = write("[S]\n", "S", "k", "\xED\xA0\x80");
    EXPECT_EQ(bytes, "\xFF\xFE[\0S\0]\0\n\0k\0=\0\x00\xD8\n\0"s);
}

TEST(ProfileEdit, RepeatedWritesOfDifferentTextsStayOneLine) {
    std::string bytes = "[S]\r\n";
    for (const std::string text : {"a", "bb", "", "Ö", "c"})
        bytes = write(bytes, "S", "k", text).value();
    EXPECT_EQ(bytes, "[S]\r\nk=c\r\n");
}

}  // namespace
}  // namespace tessaro
