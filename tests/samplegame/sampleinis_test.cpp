#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "tests/samplegame/samplefolder.h"
#include "tools/samplegame/inifiles.h"

namespace tessaro::sample {
namespace {

struct Ini {
    std::vector<std::string> headers;
    std::map<std::string, int> keys;  // how often each occurs, whatever the section
};

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find("\r\n"); end != std::string::npos;
         end = text.find("\r\n", start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

Ini read(const std::string& text) {
    Ini ini;
    for (const std::string& line : linesOf(text)) {
        if (line.starts_with('[')) {
            ini.headers.push_back(line);
        } else if (!line.empty()) {
            ++ini.keys[line.substr(0, line.find('='))];
        }
    }
    return ini;
}

std::ptrdiff_t countOf(const std::vector<std::string>& lines, const std::string& line) {
    return std::count(lines.begin(), lines.end(), line);
}

// The lines from a header to the next blank line, first section of that name.
std::vector<std::string> section(const std::string& text, const std::string& header,
                                 std::size_t from = 0) {
    const std::size_t start = text.find(header + "\r\n", from);
    return linesOf(text.substr(start, text.find("\r\n\r\n", start) + 2 - start));
}

TEST(SampleIni, GameSettingsHaveAboutElevenHundredLines) {
    const std::size_t lines = linesOf(unrealTournamentIni()).size();
    EXPECT_GE(lines, 1'050U);
    EXPECT_LE(lines, 1'150U);
}

TEST(SampleIni, PlayerSettingsHaveAboutSixHundredLines) {
    const std::size_t lines = linesOf(userIni()).size();
    EXPECT_GE(lines, 600U);
    EXPECT_LE(lines, 620U);
}

TEST(SampleIni, KeysRepeatAsOftenAsInTheGame) {
    const Ini ini = read(unrealTournamentIni());
    EXPECT_EQ(ini.keys.at("EditPackages"), 20);
    EXPECT_EQ(ini.keys.at("ServerActors"), 18);
    EXPECT_EQ(ini.keys.at("Suppress"), 14);
    EXPECT_EQ(ini.keys.at("ServerPackages"), 12);
    EXPECT_EQ(ini.keys.at("Paths"), 5);
    EXPECT_EQ(ini.keys.at("LangPaths"), 2);
    EXPECT_EQ(ini.keys.at("DownloadManagers"), 2);
}

TEST(SampleIni, OneSectionStandsTwiceWithOneKeyInCommon) {
    const std::string header = "[UMenu.UMenuNetworkClientWindow]";
    const std::string text = unrealTournamentIni();
    Ini ini = read(text);
    EXPECT_EQ(countOf(ini.headers, header), 2);
    const auto first = section(text, header);
    const auto second = section(text, header, text.find(header) + 1);
    EXPECT_EQ(countOf(first, "NetSpeedChoice=2"), 1);
    EXPECT_EQ(countOf(second, "NetSpeedChoice=3"), 1);
    std::sort(ini.headers.begin(), ini.headers.end());
    const auto end = std::unique(ini.headers.begin(), ini.headers.end());
    EXPECT_EQ(ini.headers.end() - end, 1);
}

TEST(SampleIni, OptionsOfTheGameHaveTheirStockValues) {
    const std::string text = unrealTournamentIni();
    EXPECT_EQ(countOf(section(text, "[URL]"), "LocalMap=CityIntro.unr"), 1);
    EXPECT_EQ(countOf(section(text, "[Core.System]"), "PurgeCacheDays=30"), 1);
    EXPECT_EQ(countOf(section(text, "[Core.System]"), "CachePath=../Cache"), 1);
    EXPECT_EQ(userIni().find("HasBeatenGame"), std::string::npos);
}

TEST(SampleIni, FavouritesAreCountedAndEndInAnEmptyEntry) {
    const auto lines = section(unrealTournamentIni(), "[UBrowser.UBrowserFavoritesFact]");
    ASSERT_EQ(lines.size(), 13U);
    EXPECT_EQ(lines.at(1), "FavoriteCount=10");
    EXPECT_EQ(lines.at(2), R"(Favorites[0]=The Harbour Kettle [DM]\192.0.2.14\7778\True)");
    EXPECT_EQ(lines.back(), "Favorites[10]=");
}

TEST(SampleIni, FavouritesHoldADoubledNameABlankOneAndOneWithExtraFields) {
    const auto lines = section(unrealTournamentIni(), "[UBrowser.UBrowserFavoritesFact]");
    EXPECT_EQ(lines.at(5), R"(Favorites[3]=The Harbour Kettle [DM]\192.0.2.15\7778\False)");
    EXPECT_EQ(lines.at(8), R"(Favorites[6]=\192.0.2.31\7778\False)");
    EXPECT_EQ(lines.at(9), R"(Favorites[7]=Monster Cellar (co-op)\192.0.2.200\7788\True\7787\8)");
}

TEST(SampleIni, NumberedLinesCountUpWithoutAGap) {
    const Ini ini = read(unrealTournamentIni());
    for (int number = 0; number < 255; ++number)
        EXPECT_EQ(ini.keys.count("IPPolicies[" + std::to_string(number) + "]"), 1U) << number;
    EXPECT_EQ(ini.keys.count("IPPolicies[255]"), 0U);
}

TEST(SampleIni, AllFourAreAsciiWithCrLfOnly) {
    for (const std::string& text : {unrealTournamentIni(), userIni(), defaultIni(), defUserIni()}) {
        EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char letter) {
            return letter == '\r' || letter == '\n' || letter == '\t' ||
                   (letter >= ' ' && letter <= '~');
        }));
        const auto feeds = std::count(text.begin(), text.end(), '\n');
        EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), feeds);
        EXPECT_EQ(linesOf(text).size(), static_cast<std::size_t>(feeds));
        EXPECT_TRUE(text.ends_with("\r\n"));
        EXPECT_EQ(text.find('%'), std::string::npos);
    }
}

TEST(SampleIni, HasEmptyValuesATrailingTabAndVariedLetterCase) {
    const std::string text = unrealTournamentIni();
    EXPECT_NE(text.find("\r\nHost=\r\n"), std::string::npos);
    EXPECT_NE(text.find("\t\r\n"), std::string::npos);
    EXPECT_NE(text.find("\r\nListenPort="), std::string::npos);
    EXPECT_NE(text.find("\r\nListenport="), std::string::npos);
    EXPECT_NE(userIni().find("\r\nHudMode=0\t\r\n"), std::string::npos);
}

TEST(SampleIni, PlayerIsTheStockOne) {
    const std::vector<std::string> expected{"[DefaultPlayer]",        "Name=Player",
                                            "Class=Botpack.TMale2",   "team=255",
                                            "skin=SoldierSkins.blkt", "Face=SoldierSkins.Othello"};
    EXPECT_EQ(section(userIni(), "[DefaultPlayer]"), expected);
}

TEST(SampleIni, KeyBindingsAreUniqueButForOneInTheTemplate) {
    EXPECT_EQ(read(userIni()).keys.at("O"), 1);
    EXPECT_EQ(read(defUserIni()).keys.at("O"), 2);
    const auto input = section(userIni(), "[Engine.Input]");
    EXPECT_EQ(countOf(input, "0=SwitchWeapon 10"), 1);
    EXPECT_EQ(countOf(input, "9=SwitchWeapon 9"), 1);
    EXPECT_EQ(countOf(input, "Aliases[39]=(Command=\"\",Alias=\"None\")"), 1);
}

TEST(SampleIni, FilesOnDiskAreTheseTexts) {
    const auto system = sharedSample().root() / "System";
    EXPECT_EQ(bytesOf(system / "UnrealTournament.ini"), unrealTournamentIni());
    EXPECT_EQ(bytesOf(system / "User.ini"), userIni());
    EXPECT_EQ(bytesOf(system / "Default.ini"), defaultIni());
    EXPECT_EQ(bytesOf(system / "DefUser.ini"), defUserIni());
}

}  // namespace
}  // namespace tessaro::sample
