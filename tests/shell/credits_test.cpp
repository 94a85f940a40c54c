#include "shell/credits.h"

#include <gmock/gmock.h>

#include <set>
#include <sstream>
#include <vector>

namespace tessaro {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

using Lines = std::vector<std::string>;

// The lines, each of which has a line end.
Lines creditLines() {
    std::istringstream text(credits());
    Lines lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
}

Lines part(std::size_t from, std::size_t count) {
    const Lines lines = creditLines();
    const auto begin = lines.begin() + static_cast<std::ptrdiff_t>(from);
    return {begin, begin + static_cast<std::ptrdiff_t>(count)};
}

TEST(Credits, EveryLineHasItsEnd) {
    EXPECT_EQ(credits().back(), '\n');
    EXPECT_EQ(creditLines().size(), 51u);
}

TEST(Credits, TheTeamComesFirstOneLineForEachRole) {
    EXPECT_THAT(part(0, 10),
                ElementsAre("Ovrin Design Team:", StartsWith("Lead Programmer - "),
                            StartsWith("Asst. Programmer - "), StartsWith("Beta Tester - "),
                            StartsWith("Project Design - "), StartsWith("Graphics - "),
                            StartsWith("Module Designer - "), StartsWith("Hardware Tech - "),
                            StartsWith("Project Coordinator - "), ""));
}

TEST(Credits, FifteenPlayersAndSevenTeamsAreGreeted) {
    const Lines greets = part(10, 25);
    EXPECT_EQ(greets[0], "Greets To:");
    for (std::size_t i = 1; i <= 15; ++i) EXPECT_NE(greets[i].substr(0, 5), "Team ") << greets[i];
    for (std::size_t i = 16; i <= 22; ++i) EXPECT_THAT(greets[i], StartsWith("Team "));
    EXPECT_EQ(greets[23], "All Other Clans");
    EXPECT_EQ(greets[24], "");
}

TEST(Credits, NobodyIsNamedTwiceOrLeftWithoutAName) {
    std::set<std::string> names;
    for (const std::string& line : part(1, 8)) names.insert(line.substr(line.find(" - ") + 3));
    for (const std::string& line : part(11, 22)) names.insert(line);
    EXPECT_EQ(names.size(), 30u);
    EXPECT_EQ(names.count(""), 0u);
    EXPECT_EQ(names.count("Team "), 0u);
}

TEST(Credits, TheNoticesFollowWordForWord) {
    EXPECT_THAT(
        part(35, 16),
        ElementsAre(StartsWith("Copyright"), "All Rights Reserved.", "", "UnrealTournament(c) is a",
                    "registered trademark of", "EpicGames all rights reserved.", "",
                    "This program is provided as is", "with no guarantees expressed",
                    "or implied. Ovrin and members", "thereof may in no way be liable",
                    "for any data errors that may", "occour in direct or indirect",
                    "relation to use of this program", "", "That is all..."));
}

OSVersionInfo named(const char* name) {
    OSVersionInfo system;
    system.name = name;
    return system;
}

int topAfter(int ticks, const char* system) {
    CreditsRoll roll;
    for (int i = 0; i < ticks; ++i) roll.tick(named(system));
    return roll.top();
}

TEST(TheCreditsRoll, StartsBelowTheFrame) {
    EXPECT_EQ(CreditsRoll().top(), 3560);
}

TEST(TheCreditsRoll, RisesBySevenTwipsATick) {
    EXPECT_EQ(topAfter(1, "Linux"), 3553);
    EXPECT_EQ(topAfter(3, "Linux"), 3539);
}

TEST(TheCreditsRoll, RisesByThirtyOnWindows98HoweverItIsWritten) {
    EXPECT_EQ(topAfter(2, "Windows 98"), 3500);
    EXPECT_EQ(topAfter(2, "WINDOWS 98"), 3500);
}

TEST(TheCreditsRoll, RisesBySevenOnAllOtherWindows) {
    for (const char* system : {"Windows 95", "Windows ME", "Whistler", "Windows 98 SE", ""})
        EXPECT_EQ(topAfter(1, system), 3553) << system;
}

TEST(TheCreditsRoll, ComesInAgainALittleLowerOnceTheTextHasLeft) {
    EXPECT_EQ(topAfter(2422, "Linux"), -13394);
    EXPECT_EQ(topAfter(2423, "Linux"), 3700);
    EXPECT_EQ(topAfter(2424, "Linux"), 3693);
}

TEST(TheCreditsRoll, ATextThatStandsJustAboveTheFrameHasNotLeft) {
    const int firstPass = 566;  // ticks until it comes in again
    EXPECT_EQ(topAfter(firstPass, "Windows 98"), 3700);
    EXPECT_EQ(topAfter(firstPass + 570, "Windows 98"), -13400);
    EXPECT_EQ(topAfter(firstPass + 571, "Windows 98"), 3700);
}

TEST(TheCreditsRoll, GoesRoundWithoutEnd) {
    EXPECT_EQ(topAfter(2423 + 2443, "Linux"), 3700);
    EXPECT_EQ(topAfter(2423 + 2 * 2443 + 1, "Linux"), 3693);
}

}  // namespace
}  // namespace tessaro
