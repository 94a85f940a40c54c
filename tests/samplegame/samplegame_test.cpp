#include "tools/samplegame/samplegame.h"

#include <gtest/gtest.h>

#include <chrono>
#include <set>

#include "tests/samplegame/samplefolder.h"

namespace tessaro::sample {
namespace {

namespace fs = std::filesystem;

// FNV-1a, 64 bits, continued from `sum`.
std::uint64_t checksum(const std::string& bytes, std::uint64_t sum) {
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 1'099'511'628'211U;
    return sum;
}

TEST(SlowSampleGame, SameSeedGivesTheSameBytes) {
    const SampleFolder again;
    EXPECT_TRUE(contentsOf(sharedSample().root()) == contentsOf(again.root()));
}

TEST(SampleGame, AnotherSeedGivesOtherBytes) {
    Options options;
    options.seed = 2;
    const SampleFolder other(options);
    const fs::path map = fs::path("Maps") / "DM-Zeto.unr";
    EXPECT_NE(bytesOf(sharedSample().root() / map), bytesOf(other.root() / map));
    EXPECT_NE(sharedSample().layout().cacheLines.front().guid,
              other.layout().cacheLines.front().guid);
}

// The cache is made last, so it depends on every number drawn before. A change of the lists of
// names changes this sum, and then the new one is right; a difference between two compilers never
// is.
TEST(SampleGame, BytesAreThoseEveryCompilerGives) {
    std::uint64_t sum = 14'695'981'039'346'656'037U;
    for (const auto& [path, bytes] : contentsOf(sharedSample().root())) {
        if (path.extension() == ".uxx" || path.extension() == ".usa" || path.extension() == ".bmp")
            sum = checksum(bytes, sum);
    }
    EXPECT_EQ(sum, 2'087'637'170'514'759'085U);
}

TEST(SampleGame, TotalIsCountedAndStaysUnderFortyMegabytes) {
    std::uintmax_t total = 0;
    for (const auto& entry : fs::recursive_directory_iterator(sharedSample().root()))
        total += entry.is_regular_file() ? entry.file_size() : 0;
    EXPECT_EQ(sharedSample().layout().totalBytes, total);
    EXPECT_LT(total, 40'000'000U);
    EXPECT_GT(total, 20'000'000U);
}

TEST(SampleGame, HasTheFoldersOfTheGame) {
    std::set<std::string> folders;
    for (const auto& entry : fs::directory_iterator(sharedSample().root()))
        folders.insert(entry.path().filename().string());
    const std::set<std::string> expected{
        "Cache",           "Help", "Logs", "Manuals", "Maps",   "Music",
        "NetGamesUSA.com", "Save", "Web",  "Sounds",  "System", "SystemLocalized",
        "Textures",
    };
    EXPECT_EQ(folders, expected);
}

TEST(SampleGame, HasStockFilesInTheirRealLetterCase) {
    for (const char* name :
         {"Maps/DM-Deck16][.unr", "Maps/CityIntro.unr", "Music/firebr.umx", "Sounds/rain.uax",
          "Textures/Soldierskins.utx", "Textures/UTcrypt.utx", "System/BotPack.u", "System/Core.u",
          "System/User.ini", "System/Botpack.int", "Help/ReadMe.htm"})
        EXPECT_TRUE(fs::is_regular_file(sharedSample().root() / name)) << name;
}

TEST(SampleGame, HasOneMapWithALetterOutsideAsciiInItsNameOnDisk) {
    EXPECT_TRUE(fs::exists(sharedSample().root() / u8"Maps" / u8"DM-Orangerie-Cl\u00E9mence.unr"));
}

TEST(SampleGame, ProgramsAreTextsThatSaySo) {
    for (const char* name : {"UnrealTournament.exe", "UCC.exe", "Core.dll"}) {
        const std::string text = bytesOf(sharedSample().root() / "System" / name);
        EXPECT_TRUE(text.starts_with(std::string("This is a stand-in for ") + name)) << text;
    }
}

TEST(SampleGame, ScreenshotsLeaveAGapInTheirNumbers) {
    const std::vector<std::string> expected{"Shot0000.bmp", "Shot0001.bmp", "Shot0004.bmp"};
    EXPECT_EQ(sharedSample().layout().screenshots, expected);
    for (const std::string& name : expected)
        EXPECT_EQ(fs::file_size(sharedSample().root() / "System" / name), 921'654U);
}

TEST(SampleGame, FolderThatIsAFileIsRefused) {
    const fs::path file = sharedSample().root() / "Logs" / "delete_me.txt";
    EXPECT_THROW(buildSampleGame(file), fs::filesystem_error);
}

TEST(SampleGame, FolderInPlaceOfAFileIsRefused) {
    const SampleFolder sample;
    const fs::path file = sample.root() / "System" / "User.ini";
    fs::remove(file);
    fs::create_directory(file);
    EXPECT_THROW(buildSampleGame(sample.root()), fs::filesystem_error);
}

TEST(SampleGame, AgesOfCachedFilesReachFromTodayToFourHundredDays) {
    Options options;
    options.now = fs::file_time_type::clock::now() - std::chrono::hours(24) * 1000;
    const SampleFolder sample(options);
    std::set<std::int64_t> days;
    for (const CacheFile& line : sample.layout().cacheLines) {
        if (line.present) {
            const auto written =
                fs::last_write_time(sample.root() / "Cache" / (line.guid + ".uxx"));
            days.insert(
                std::chrono::duration_cast<std::chrono::hours>(options.now - written).count() / 24);
        }
    }
    EXPECT_GE(*days.begin(), 0);
    EXPECT_LT(*days.begin(), 30);
    EXPECT_LE(*days.rbegin(), 400);
    EXPECT_GT(*days.rbegin(), 370);
    EXPECT_GT(days.size(), 50U);
}

}  // namespace
}  // namespace tessaro::sample
