#include "tools/samplegame/nativesample.h"

#include <gmock/gmock.h>

#include "native/nativesampletest.h"
#include "tests/samplegame/samplefolder.h"

namespace tessaro::sample {
namespace {

namespace fs = std::filesystem;
using ::testing::IsSupersetOf;

std::vector<std::string> namesIn(const fs::path& folder) {
    return test::TestWorld::namesIn(folder);
}

class NativeSampleLayout : public ::testing::Test {
  protected:
    const NativeSample& sample = test::sharedNativeSample();
    const fs::path programs = sample.game / nativeNames().folder;
};

TEST_F(NativeSampleLayout, ProgramsAndInisLieInTheFolderOfTheMachine) {
    EXPECT_THAT(namesIn(programs),
                IsSupersetOf({"ucc-bin" + nativeNames().suffix, "ut-bin" + nativeNames().suffix,
                              std::string("Default.ini"), std::string("DefUser.ini"),
                              std::string("UnrealTournament.ini"), std::string("User.ini"),
                              std::string("UnrealTournament.ini.tmp")}));
    EXPECT_TRUE(fs::exists(sample.game / "System" / "Botpack.u") ||
                fs::exists(sample.game / "System" / "BotPack.u"));
    EXPECT_FALSE(fs::exists(sample.game / "System" / "User.ini"));
    EXPECT_FALSE(fs::exists(sample.game / "System" / "UnrealTournament.exe"));
}

TEST_F(NativeSampleLayout, WhatTheGameWroteLiesInTheHomeForItsOwnerOnly) {
    for (const char* folder : {"", "System", "Cache", "Maps", "Save"})
        EXPECT_EQ(fs::status(sample.written / folder).permissions(), fs::perms::owner_all)
            << folder;
    EXPECT_EQ(namesIn(sample.written),
              (std::vector<std::string>{"Cache", "Maps", "Save", "System"}));
    EXPECT_TRUE(fs::exists(sample.written / "Cache" / sample.layout.unfinishedDownload));
    EXPECT_EQ(bytesOf(sample.written / "System" / "ucc.log").substr(0, 3), "\xEF\xBB\xBF");
}

TEST_F(NativeSampleLayout, LinesOfItsInisEndAsTheGameForLinuxEndsThem) {
    for (const char* name : {"UnrealTournament.ini", "User.ini"})
        EXPECT_EQ(bytesOf(programs / name).find('\r'), std::string::npos) << name;
}

TEST_F(NativeSampleLayout, EveryPresentDownloadIsInOneOfTheTwoCaches) {
    std::size_t own = 0;
    for (const CacheFile& line : sample.layout.cacheLines) {
        const bool inOwn = fs::exists(sample.game / "Cache" / (line.guid + ".uxx"));
        own += inOwn ? 1 : 0;
        EXPECT_EQ(line.present,
                  inOwn || fs::exists(sample.written / "Cache" / (line.guid + ".uxx")));
    }
    EXPECT_EQ(own, 1U);
}

TEST_F(NativeSampleLayout, MadeOverAnOlderOneItIsTheSame) {
    const test::TemporaryFolder folder;
    buildNativeSample(folder.path());
    const auto before = contentsOf(folder.path());
    buildNativeSample(folder.path());
    EXPECT_TRUE(contentsOf(folder.path()) == before);
}

}  // namespace
}  // namespace tessaro::sample
