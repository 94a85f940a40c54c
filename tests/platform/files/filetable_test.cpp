#include "platform/files/filetable.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::errorOf;
using test::TestWorld;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> linesOf(TestWorld& world, std::string_view file) {
    std::vector<std::string> lines;
    world.table.openInput(1, file);
    while (!world.table.endOfFile(1)) lines.emplace_back(world.table.lineInput(1));
    world.table.close(1);
    return lines;
}

std::vector<std::string> linesIn(std::string_view bytes) {
    TestWorld world;
    world.write("C:\\a", bytes);
    return linesOf(world, "C:\\a");
}

TEST(FileTable, LinesEndInAnyOfThreeWays) {
    EXPECT_THAT(linesIn("a\r\nb\rc\nd"), ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(linesIn("\r\n\n\r\r\n"), ElementsAre("", "", "", ""));
}

TEST(FileTable, ALastLineWithoutAnEndCounts) {
    EXPECT_THAT(linesIn("a\r\nb"), ElementsAre("a", "b"));
    EXPECT_THAT(linesIn("a\r\nb\r\n"), ElementsAre("a", "b"));
    EXPECT_THAT(linesIn("\n"), ElementsAre(""));
}

TEST(FileTable, LongLinesEndWhereverTheirEndStands) {
    for (std::size_t size = 120; size <= 264; ++size) {
        const std::string line(size, 'x');
        for (const char* end : {"\r\n", "\r", "\n"})
            EXPECT_THAT(linesIn("a\n" + line + end + "b" + end), ElementsAre("a", line, "b"));
        EXPECT_THAT(linesIn(line + "\n\r" + line), ElementsAre(line, "", line));
        EXPECT_THAT(linesIn("a\r" + line), ElementsAre("a", line));
    }
}

TEST(FileTable, AnEmptyFileIsAtItsEnd) {
    EXPECT_THAT(linesIn(""), IsEmpty());
    EXPECT_THAT(linesIn("\xEF\xBB\xBF"), IsEmpty());
}

TEST(FileTable, MarksAreNoPartOfTheFirstLine) {
    EXPECT_THAT(linesIn("\xEF\xBB\xBF[Cache]\r\n"), ElementsAre("[Cache]"));
    EXPECT_THAT(linesIn(std::string_view("\xFF\xFE[\0]\0\r\0\n\0x\0", 12)), ElementsAre("[]", "x"));
}

TEST(FileTable, LettersComeOutAsUtf8) {
    EXPECT_THAT(linesIn("\xE4\r\n"), ElementsAre("\xC3\xA4"));
    EXPECT_THAT(linesIn("\xC3\xA4\r\n"), ElementsAre("\xC3\xA4"));
}

TEST(FileTable, ReadingPastTheEndRaises62) {
    TestWorld world;
    world.write("C:\\a", "x");
    world.table.openInput(1, "C:\\a");
    world.table.lineInput(1);
    EXPECT_TRUE(world.table.endOfFile(1));
    EXPECT_EQ(errorOf([&] { world.table.lineInput(1); }), errors::InputPastEnd);
}

TEST(FileTable, OpeningForInputRaisesWhatFits) {
    TestWorld world;
    const auto open = [&](const char* file) {
        return errorOf([&] { world.table.openInput(1, file); });
    };
    EXPECT_EQ(open("C:\\none"), errors::FileNotFound);
    EXPECT_EQ(open("C:\\no\\none"), errors::PathNotFound);
    EXPECT_EQ(open("C:\\"), errors::PathFileAccess);
    EXPECT_EQ(open(""), errors::PathFileAccess);
    EXPECT_EQ(world.table.freeNumber(), 1);
}

TEST(FileTable, TouchingMakesTheFileAndChangesNoneThatIsThere) {
    TestWorld world;
    world.write("C:\\a", "old");
    world.table.touch(1, "C:\\a");
    world.table.touch(1, "C:\\new");
    EXPECT_EQ(world.read("C:\\a"), "old");
    EXPECT_EQ(world.read("C:\\new"), "");
    EXPECT_EQ(errorOf([&] { world.table.touch(1, "C:\\no\\x"); }), errors::PathNotFound);
    EXPECT_EQ(world.table.freeNumber(), 1);
}

TEST(FileTable, TouchingRaisesWhatOpeningTheNumberRaises) {
    TestWorld world;
    world.write("C:\\a", "");
    world.table.openInput(1, "C:\\a");
    EXPECT_EQ(errorOf([&] { world.table.touch(1, "C:\\b"); }), errors::FileAlreadyOpen);
    EXPECT_EQ(errorOf([&] { world.table.touch(0, "C:\\b"); }), errors::BadFileNumber);
    EXPECT_FALSE(world.exists("C:\\b"));
}

TEST(FileTable, ANumberInUseRaises55) {
    TestWorld world;
    world.write("C:\\a", "");
    world.table.openInput(1, "C:\\a");
    EXPECT_EQ(errorOf([&] { world.table.openInput(1, "C:\\a"); }), errors::FileAlreadyOpen);
    EXPECT_EQ(errorOf([&] { world.table.openOutput(1, "C:\\b"); }), errors::FileAlreadyOpen);
    EXPECT_EQ(errorOf([&] { world.table.openAppend(1, "C:\\b"); }), errors::FileAlreadyOpen);
    EXPECT_FALSE(world.exists("C:\\b"));
}

TEST(FileTable, ANumberThatIsNotOpenRaises52) {
    TestWorld world;
    EXPECT_EQ(errorOf([&] { world.table.lineInput(1); }), errors::BadFileNumber);
    EXPECT_EQ(errorOf([&] { world.table.endOfFile(1); }), errors::BadFileNumber);
    EXPECT_EQ(errorOf([&] { world.table.printLine(1, ""); }), errors::BadFileNumber);
    EXPECT_EQ(errorOf([&] { world.table.openOutput(0, "C:\\a"); }), errors::BadFileNumber);
    EXPECT_EQ(errorOf([&] { world.table.openOutput(512, "C:\\a"); }), errors::BadFileNumber);
    world.table.close(1);
}

TEST(FileTable, AClosedNumberIsNotAtAnEnd) {
    TestWorld world;
    world.write("C:\\a", "x");
    world.table.openInput(1, "C:\\a");
    world.table.close(1);
    EXPECT_EQ(errorOf([&] { world.table.endOfFile(1); }), errors::BadFileNumber);
}

TEST(FileTable, AWrongModeRaises54) {
    TestWorld world;
    world.write("C:\\a", "x");
    world.table.openInput(1, "C:\\a");
    world.table.openOutput(2, "C:\\b");
    world.table.openAppend(3, "C:\\c");
    EXPECT_EQ(errorOf([&] { world.table.printLine(1, "x"); }), errors::BadFileMode);
    EXPECT_EQ(errorOf([&] { world.table.lineInput(2); }), errors::BadFileMode);
    EXPECT_EQ(errorOf([&] { world.table.endOfFile(3); }), errors::BadFileMode);
}

TEST(FileTable, FreeNumberIsTheLowest) {
    TestWorld world;
    for (int number = 1; number <= 511; ++number) {
        EXPECT_EQ(world.table.freeNumber(), number);
        world.table.openOutput(number, "C:\\a");
    }
    EXPECT_EQ(errorOf([&] { world.table.freeNumber(); }), errors::TooManyFiles);
    world.table.close(7);
    EXPECT_EQ(world.table.freeNumber(), 7);
}

TEST(FileTable, OutputReplacesTheFileWhenItIsClosed) {
    TestWorld world;
    world.write("C:\\a", "old");
    world.table.openOutput(1, "C:\\a");
    world.table.printLine(1, "one");
    world.table.printLine(1, "");
    EXPECT_EQ(world.read("C:\\a"), "old");
    world.table.close(1);
    EXPECT_EQ(world.read("C:\\a"), "one\r\n\r\n");
}

TEST(FileTable, OutputWithoutALineEmptiesTheFile) {
    TestWorld world;
    world.write("C:\\a", "old");
    world.table.openOutput(1, "C:\\a");
    world.table.close(1);
    world.table.openOutput(1, "C:\\new");
    world.table.close(1);
    EXPECT_EQ(world.read("C:\\a"), "");
    EXPECT_EQ(world.read("C:\\new"), "");
}

TEST(FileTable, OutputKeepsTheEncodingThatItFinds) {
    TestWorld world;
    world.write("C:\\page", "\xE4");
    world.write("C:\\utf8", "\xC3\xA4");
    world.write("C:\\wide", std::string_view("\xFF\xFE\xE4\0", 4));
    for (const char* file : {"C:\\page", "C:\\utf8", "C:\\wide", "C:\\new"}) {
        world.table.openOutput(1, file);
        world.table.printLine(1, "\xC3\xB6");
        world.table.close(1);
    }
    EXPECT_EQ(world.read("C:\\page"), "\xF6\r\n");
    EXPECT_EQ(world.read("C:\\new"), "\xF6\r\n");
    EXPECT_EQ(world.read("C:\\utf8"), "\xC3\xB6\r\n");
    EXPECT_EQ(world.read("C:\\wide"), std::string_view("\xFF\xFE\xF6\0\r\0\n\0", 8));
}

TEST(FileTable, OutputThatCannotBeRaisesAtOnce) {
    TestWorld world;
    world.write("C:\\protected", "");
    fs::permissions(world.at("C:\\protected"), fs::perms(0444));
    const auto open = [&](const char* file) {
        return errorOf([&] { world.table.openOutput(1, file); });
    };
    EXPECT_EQ(open("C:\\protected"), errors::PathFileAccess);
    EXPECT_EQ(open("C:\\"), errors::PathFileAccess);
    EXPECT_EQ(open(""), errors::PathFileAccess);
    EXPECT_EQ(open("C:\\no\\x"), errors::PathNotFound);
    EXPECT_EQ(world.table.freeNumber(), 1);
}

TEST(FileTable, AFailedCloseFreesTheNumberAndKeepsTheOldFile) {
    TestWorld world;
    world.write("C:\\a", "old");
    world.table.openOutput(1, "C:\\a");
    world.table.printLine(1, "new");
    world.host.setDiskSpace(2);
    EXPECT_EQ(errorOf([&] { world.table.close(1); }), errors::DiskFull);
    EXPECT_EQ(world.table.freeNumber(), 1);
    EXPECT_EQ(world.read("C:\\a"), "old");
}

TEST(FileTable, AnOpenFileStaysWhereItWasWhenTheFolderChanges) {
    TestWorld world;
    world.makeFolder("C:\\Game");
    world.table.openOutput(1, "a.txt");
    world.paths.changeFolder("C:\\Game");
    world.table.close(1);
    EXPECT_TRUE(world.exists("C:\\a.txt"));
    EXPECT_FALSE(world.exists("C:\\Game\\a.txt"));
}

TEST(FileTable, AppendGoesToTheEnd) {
    TestWorld world;
    world.write("C:\\a", "one\r\n");
    world.table.openAppend(1, "C:\\a");
    world.table.printLine(1, "two");
    world.table.close(1);
    EXPECT_EQ(world.read("C:\\a"), "one\r\ntwo\r\n");
}

TEST(FileTable, AppendKeepsOneMarkAndTheEncoding) {
    TestWorld world;
    world.write("C:\\a", std::string_view("\xFF\xFE"
                                          "a\0",
                                          4));
    world.table.openAppend(1, "C:\\a");
    world.table.printLine(1, "b");
    world.table.close(1);
    EXPECT_EQ(world.read("C:\\a"), std::string_view("\xFF\xFE"
                                                    "a\0b\0\r\0\n\0",
                                                    10));
}

TEST(FileTable, AppendWithoutALineOnlyMakesTheFile) {
    TestWorld world;
    world.table.openAppend(1, "C:\\new");
    EXPECT_TRUE(world.exists("C:\\new"));
    const auto before = fs::last_write_time(world.at("C:\\new"));
    world.table.close(1);
    EXPECT_EQ(fs::last_write_time(world.at("C:\\new")), before);
}

TEST(FileTable, AsManyLinesAsTheProgramCanCountComeThrough) {
    std::string bytes;
    for (int i = 0; i < 40'000; ++i) bytes += "line " + std::to_string(i) + "\r\n";
    const auto lines = linesIn(bytes);
    ASSERT_EQ(lines.size(), 40'000U);
    EXPECT_EQ(lines.back(), "line 39999");
}

}  // namespace
}  // namespace tessaro
