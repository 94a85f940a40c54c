#include "editor/filetext.h"

#include <gtest/gtest.h>

#include <random>

#include "editor/plainbox.h"

namespace tessaro {
namespace {

using namespace std::string_literals;
using test::BoxLines;
using test::PlainBox;

// A file in a box.
class EditedFile {
  public:
    explicit EditedFile(const std::string& bytes) : text_(bytes) {
        box.show(text_.loaded());
        box.changed = [this](auto... lines) { text_.replaced(lines...); };
    }

    std::string saved() const { return text_.saved(lines()); }
    std::string text() const { return text_.text(lines()); }

    PlainBox box;

  private:
    BoxLine lines() const {
        return [this](std::size_t number) { return box.line(number); };
    }
    FileText text_;
};

std::string utf16(std::u16string_view text, bool littleEndian = true) {
    std::string bytes = littleEndian ? "\xFF\xFE" : "\xFE\xFF";
    for (const char16_t unit : text) {
        const auto low = static_cast<char>(unit & 0xFF);
        const auto high = static_cast<char>(unit >> 8);
        bytes += littleEndian ? low : high;
        bytes += littleEndian ? high : low;
    }
    return bytes;
}

TEST(FileText, AnUntouchedTextIsSavedByteForByteWithALineBreakBehindIt) {
    const std::string files[] = {
        "",
        "\r\n",
        "[A]\r\nb=c\r\n",
        "[A]\nb=c\n",
        "[A]\rb=c",
        "a\r\nb\nc\rd\n\re\r\r\nf",
        "zero\0inside\r\nlast\0"s,
        "caf\xE9 \x81\x8D\x8F\x90\x9D\r\nlast",
        "caf\xC3\xA9\r\nlast",
        "\xEF\xBB\xBF[A]\r\nlast",
        "\xEF\xBB\xBF"
        "damaged \x80\xED\xA0\x80\r\nlast",
        "separators \xE2\x80\xA8 and \xE2\x80\xA9 and \xEF\xB7\x90 in UTF-8",
        "\xE2\x80\xA9 is three letters in the code page \xE9",
        "\xEF\xBB\xBF\xEF\xBB\xBFtwo marks",
    };
    for (const std::string& file : files) EXPECT_EQ(EditedFile(file).saved(), file + "\r\n");
}

TEST(FileText, AnUntouchedUtf16FileIsSavedByteForByteWithALineBreakBehindIt) {
    const std::u16string texts[] = {u"", u"\ufeffmark\r\nlast", u"a\nb\r\u2029\u03a9\0"s,
                                    u"half "s + char16_t{0xD83C} + u" pair\r\n"};
    for (const std::u16string& text : texts) {
        EXPECT_EQ(EditedFile(utf16(text)).saved(), utf16(text + u"\r\n"));
        EXPECT_EQ(EditedFile(utf16(text, false)).saved(), utf16(text + u"\r\n", false));
    }
}

TEST(FileText, TheOddByteOfAUtf16FileStaysBehindTheText) {
    const std::string file = utf16(u"a\r\nb");
    EXPECT_EQ(EditedFile(file + "z").saved(), utf16(u"a\r\nb\r\n") + "z");
    EditedFile edited(file + "z");
    edited.box.edit(1, 1, {u"bc", u"d"});
    EXPECT_EQ(edited.saved(), utf16(u"a\r\nbc\r\nd\r\n") + "z");
}

TEST(FileText, AnEditedLineKeepsItsEndAndAllOthersTheirBytes) {
    EditedFile file("one\r\ntwo\nthree\rfour \xE9\n\rlast");
    file.box.edit(1, 1, {u"zwei"});
    file.box.edit(2, 1, {u"drei"});
    EXPECT_EQ(file.saved(), "one\r\nzwei\ndrei\rfour \xE9\n\rlast\r\n");
}

TEST(FileText, ANewLineEndsAsTheOneAbove) {
    EditedFile file("one\r\ntwo\nthree\rfour");
    file.box.edit(1, 1, {u"two", u"new"});       // Enter at the end of "two"
    file.box.edit(3, 1, {u"three", u"newer"});   // Enter at the end of "three"
    file.box.edit(0, 1, {u"one", u"new", u""});  // a paste behind "one"
    EXPECT_EQ(file.saved(), "one\r\nnew\r\n\r\ntwo\nnew\nthree\rnewer\rfour\r\n");
}

TEST(FileText, ANewLineAtTheTopEndsAsTheOneBelow) {
    EditedFile file("one\ntwo\r\n");
    file.box.edit(0, 1, {u"", u"one"});
    EXPECT_EQ(file.saved(), "\none\ntwo\r\n\r\n");
}

TEST(FileText, ALineThatWasTheLastGetsTheEndOfTheOneAbove) {
    EditedFile file("one\ntwo");
    file.box.edit(1, 1, {u"two", u"three"});
    EXPECT_EQ(file.saved(), "one\ntwo\nthree\r\n");
}

TEST(FileText, LinesOfAFileWithoutAnyEndInCrLf) {
    EditedFile file("");
    file.box.edit(0, 1, {u"[A]", u"b=c", u""});
    EXPECT_EQ(file.saved(), "[A]\r\nb=c\r\n\r\n");
}

TEST(FileText, ASplitLineKeepsItsEndBehindTheSecondHalf) {
    EditedFile file("one\ntwo halves\r\nlast");
    file.box.edit(1, 1, {u"two ", u"halves"});
    EXPECT_EQ(file.saved(), "one\ntwo \nhalves\r\nlast\r\n");
}

TEST(FileText, JoinedLinesEndAsTheSecond) {
    EditedFile file("one\r\ntwo\nthree");
    file.box.edit(0, 2, {u"onetwo"});
    EXPECT_EQ(file.saved(), "onetwo\nthree\r\n");
}

TEST(FileText, OfTwinLinesTheOneThatIsLeftKeepsItsEnd) {
    EditedFile upper("twin\r\ntwin\nlast");
    upper.box.edit(0, 2, {u"twin"});  // the first and its end are deleted
    EXPECT_EQ(upper.saved(), "twin\nlast\r\n");
}

TEST(FileText, AnEmptyLineTakenAwayBelowLeavesTheLineAboveItsEnd) {
    EditedFile file("one\r\n\nlast");
    file.box.edit(0, 2, {u"one"});
    EXPECT_EQ(file.saved(), "one\r\nlast\r\n");
}

TEST(FileText, DeletingTheTailLeavesNoLineEnd) {
    EditedFile file("one\r\ntwo\nthree\n");
    file.box.edit(0, 4, {u"one"});
    EXPECT_EQ(file.saved(), "one\r\n");
}

TEST(FileText, DeletedLinesThatComeBackHaveTheirOldEnds) {
    const std::string bytes = "one\r\ntwo\nthree\rfour\n\rlast";
    EditedFile file(bytes);
    file.box.edit(1, 5, {u"last"});
    EXPECT_EQ(file.saved(), "one\r\nlast\r\n");
    file.box.edit(1, 1, {u"two", u"three", u"four", u"", u"last"});
    EXPECT_EQ(file.saved(), bytes + "\r\n");
}

TEST(FileText, AJoinThatIsTakenBackRestoresTheEnd) {
    const std::string bytes = "one\r\ntwo\nthree\rfour";
    EditedFile file(bytes);
    file.box.edit(1, 2, {u"twothree"});
    file.box.edit(1, 1, {u"two", u"three"});
    EXPECT_EQ(file.saved(), bytes + "\r\n");
}

TEST(FileText, ALineMovedInOneEditLeavesTheOthersTheirEnds) {
    EditedFile file("moved\na\r\nb\nc\rd\r\nlast");
    file.box.edit(0, 6, {u"a", u"b", u"c", u"d", u"moved", u"last"});
    EXPECT_EQ(file.saved(), "a\r\nb\nc\rd\r\nmoved\r\nlast\r\n");
}

TEST(FileText, TextMovedBetweenLinesInOneEditLeavesThoseBetweenTheirEnds) {
    EditedFile file("x1\na\r\nb\nc\r2\r\nlast");
    file.box.edit(0, 5, {u"1", u"a", u"b", u"c", u"x2"});
    EXPECT_EQ(file.saved(), "1\r\na\r\nb\nc\rx2\r\nlast\r\n");
}

TEST(FileText, LettersOfTheCodePageAreSavedInIt) {
    EditedFile file("one\r\ntwo");
    file.box.edit(1, 1, {u"\u20ac \u0081 \u00e9"});
    EXPECT_EQ(file.saved(), "one\r\n\x80 \x81 \xE9\r\n");
}

TEST(FileText, LettersOfAUtf8FileAreSavedInUtf8) {
    EditedFile file("\xC3\xA9\r\ntwo");
    file.box.edit(1, 1, {u"\u03a9\U0001F3AE"});
    EXPECT_EQ(file.saved(), "\xC3\xA9\r\n\xCE\xA9\xF0\x9F\x8E\xAE\r\n");
}

TEST(FileText, ALetterOutsideTheCodePageTurnsTheFileToUtf16) {
    EditedFile file("caf\xE9\ntwo\r\nlast");
    file.box.edit(1, 1, {u"\u03a9"});
    EXPECT_EQ(file.saved(), utf16(u"caf\u00e9\n\u03a9\r\nlast\r\n"));
}

TEST(FileText, BytesThatWouldBeTakenForUtf8TurnTheFileToUtf16) {
    EditedFile file("one\r\nlast");
    file.box.edit(0, 1, {u"\u00c3\u00a9"});
    EXPECT_EQ(file.saved(), utf16(u"\u00c3\u00a9\r\nlast\r\n"));
}

TEST(FileText, AFileThatCouldNotHoldALetterIsItselfAgainWithoutIt) {
    EditedFile file("caf\xE9\r\nlast");
    file.box.edit(1, 1, {u"\u03a9"});
    file.box.edit(1, 1, {u"last"});
    EXPECT_EQ(file.saved(), "caf\xE9\r\nlast\r\n");
}

TEST(FileText, AUtf8FileThatLosesItsLettersStaysAsItIs) {
    EditedFile file("caf\xC3\xA9\r\nlast");
    file.box.edit(0, 1, {u"cafe"});
    EXPECT_EQ(file.saved(), "cafe\r\nlast\r\n");
}

TEST(FileText, AnEditedLineOfADamagedFileKeepsItsStrayBytes) {
    EditedFile file(
        "\xEF\xBB\xBF"
        "a \x80\xFF b\r\nlast");
    file.box.edit(0, 1, {u"more " + file.box.line(0)});
    EXPECT_EQ(file.saved(), "\xEF\xBB\xBFmore a \x80\xFF b\r\nlast\r\n");
}

TEST(FileText, TheSearchedTextHasTheLineEndsOfTheFile) {
    EditedFile file("caf\xE9\r\ntwo\nthree\r");
    EXPECT_EQ(file.text(), "caf\xC3\xA9\r\ntwo\nthree\r");
    file.box.edit(1, 1, {u"zwei", u"new"});
    EXPECT_EQ(file.text(), "caf\xC3\xA9\r\nzwei\r\nnew\nthree\r");
}

TEST(FileText, TheSearchedTextHasOneCharacterForWhatIsNone) {
    EXPECT_EQ(EditedFile("\xEF\xBB\xBF"
                         "a\x80z")
                  .text(),
              "a\xEF\xBF\xBDz");
}

// Splits as the box does, with each line's end.
std::vector<std::string> wholeLines(const std::string& text) {
    std::vector<std::string> lines(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        lines.back() += text[i];
        const bool pair = text.compare(i, 2, "\r\n") == 0;
        if (text[i] == '\n' || (text[i] == '\r' && !pair)) lines.emplace_back();
    }
    return lines;
}

// Whatever is inserted and deleted: each line that never was touched is found again with its end.
TEST(FileText, UntouchedLinesKeepTheirEndsThroughRandomEdits) {
    std::mt19937 chance(11);
    const auto below = [&](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(chance);
    };
    const char* const ends[] = {"\r\n", "\n", "\r"};
    for (int round = 0; round < 200; ++round) {
        std::string bytes;
        for (int i = 0; i < 12; ++i) bytes += "line" + std::to_string(i) + " \xE9" + ends[below(3)];
        EditedFile file(bytes);
        for (int step = 0; step < 6; ++step) {
            const std::size_t first = below(file.box.lines.size());
            const std::size_t removed =
                1 + below(std::min<std::size_t>(3, file.box.lines.size() - first));
            BoxLines added;
            for (std::size_t i = 0, count = 1 + below(3); i < count; ++i)
                added.push_back(u"typed" + std::u16string(1, static_cast<char16_t>(u'0' + step)));
            file.box.edit(first, removed, added);
        }
        const auto before = wholeLines(bytes);
        const auto after = wholeLines(file.saved());
        for (const std::string& line : after) {
            if (!line.starts_with("line")) continue;
            EXPECT_NE(std::find(before.begin(), before.end(), line), before.end()) << line;
        }
    }
}

}  // namespace
}  // namespace tessaro
