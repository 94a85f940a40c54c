#include "platform/posix/commandline.h"

#include <gtest/gtest.h>

namespace tessaro {
namespace {

using Arguments = std::vector<std::string>;

Arguments argumentsOf(const std::string& text) {
    return splitCommandLine("x " + text).arguments;
}

TEST(CommandLineTest, ProgramAndArgumentsAreParted) {
    const CommandLine line = splitCommandLine("C:\\System\\ucc.exe compress \"C:\\a b.unr\"");
    EXPECT_EQ(line, (CommandLine{"C:\\System\\ucc.exe", {"compress", "C:\\a b.unr"}}));
}

TEST(CommandLineTest, ProgramAloneHasNoArguments) {
    EXPECT_EQ(splitCommandLine("C:\\a.exe"), (CommandLine{"C:\\a.exe", {}}));
    EXPECT_EQ(splitCommandLine("C:\\a.exe  \t "), (CommandLine{"C:\\a.exe", {}}));
}

TEST(CommandLineTest, BlankInTheProgramsFolderBreaksTheLine) {
    EXPECT_EQ(splitCommandLine("C:\\My Games\\ucc.exe compress"),
              (CommandLine{"C:\\My", {"Games\\ucc.exe", "compress"}}));
}

TEST(CommandLineTest, QuotesDoNotKeepTheProgramsNameTogether) {
    EXPECT_EQ(splitCommandLine("\"C:\\My Games\\ucc.exe\" x").program, "\"C:\\My");
}

TEST(CommandLineTest, TabEndsTheProgramsNameToo) {
    EXPECT_EQ(splitCommandLine("a.exe\tb"), (CommandLine{"a.exe", {"b"}}));
}

TEST(CommandLineTest, EmptyLineAndLeadingBlankNameNoProgram) {
    EXPECT_EQ(splitCommandLine(""), CommandLine{});
    EXPECT_EQ(splitCommandLine(" a.exe b"), (CommandLine{"", {"a.exe", "b"}}));
}

TEST(CommandLineTest, CommandInterpreterKeepsItsSwitchAndThePathInOneArgument) {
    EXPECT_EQ(splitCommandLine("command.com /cC:\\UT\\System\\ucc.exe compress \"C:\\a b.u\""),
              (CommandLine{"command.com", {"/cC:\\UT\\System\\ucc.exe", "compress", "C:\\a b.u"}}));
}

TEST(CommandLineTest, RunsOfBlanksAndTabsPartArguments) {
    EXPECT_EQ(argumentsOf(" a \t  b\tc "), (Arguments{"a", "b", "c"}));
}

TEST(CommandLineTest, QuotesMayStandInsideOfAWord) {
    EXPECT_EQ(argumentsOf("a\"b c\"d e"), (Arguments{"ab cd", "e"}));
}

TEST(CommandLineTest, EmptyQuotesAreAnEmptyArgument) {
    EXPECT_EQ(argumentsOf("\"\" a \"\""), (Arguments{"", "a", ""}));
}

TEST(CommandLineTest, TwoQuotesWithinQuotesGiveOneAndEndThem) {
    EXPECT_EQ(argumentsOf("\"a\"\"b c\""), (Arguments{"a\"b", "c"}));
    EXPECT_EQ(argumentsOf("\"\"\""), (Arguments{"\""}));
    EXPECT_EQ(argumentsOf("\"\"\"\" a"), (Arguments{"\" a"}));
}

TEST(CommandLineTest, OpenQuoteTakesTheRest) {
    EXPECT_EQ(argumentsOf("\"a b "), (Arguments{"a b "}));
    EXPECT_EQ(argumentsOf("a \""), (Arguments{"a", ""}));
}

TEST(CommandLineTest, BackslashesAwayFromQuotesAreLetters) {
    EXPECT_EQ(argumentsOf("\\\\server\\\\x C:\\"), (Arguments{"\\\\server\\\\x", "C:\\"}));
    EXPECT_EQ(argumentsOf("\"C:\\a\\b c\\d\""), (Arguments{"C:\\a\\b c\\d"}));
}

TEST(CommandLineTest, EvenBackslashesBeforeAQuoteAreHalved) {
    EXPECT_EQ(argumentsOf("\"C:\\a b\\\\\" c"), (Arguments{"C:\\a b\\", "c"}));
    EXPECT_EQ(argumentsOf("a\\\\\\\\\"b c\""), (Arguments{"a\\\\b c"}));
}

TEST(CommandLineTest, OddBackslashMakesAQuoteALetter) {
    EXPECT_EQ(argumentsOf("a\\\"b c"), (Arguments{"a\"b", "c"}));
    EXPECT_EQ(argumentsOf("\"a\\\\\\\"b c\""), (Arguments{"a\\\"b c"}));
    EXPECT_EQ(argumentsOf("\"C:\\a b\\\" c"), (Arguments{"C:\\a b\" c"}));
}

TEST(CommandLineTest, LettersThatShellsMindAreLeftAlone) {
    const std::string name = "C:\\DM-[]'%PATH%$(x)`!!{}&;|*?~#^<>.unr";
    EXPECT_EQ(argumentsOf("\"" + name + "\""), Arguments{name});
}

TEST(CommandLineTest, LettersOutsideAsciiAreLeftAlone) {
    const std::string name = "C:\\Räuber Höhle ж 日本 \xC2\xA0.unr";
    EXPECT_EQ(argumentsOf("\"" + name + "\""), Arguments{name});
}

TEST(CommandLineTest, AddressWithAPortIsOneArgument) {
    EXPECT_EQ(argumentsOf("10.0.0.1?port=7777"), Arguments{"10.0.0.1?port=7777"});
}

TEST(CommandLineTest, FullGamePathsBeginWithADrive) {
    for (const char* path : {"C:\\", "z:\\home\\me", "C:\\a b"})
        EXPECT_TRUE(isFullGamePath(path)) << path;
    for (const char* other : {"", "C:", "C:a", "\\a", "a\\b", "1:\\a", "[:\\a", "/cC:\\a", "..\\a"})
        EXPECT_FALSE(isFullGamePath(other)) << other;
}

}  // namespace
}  // namespace tessaro
