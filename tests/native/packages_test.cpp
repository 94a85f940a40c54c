// Extraction, compression and decompression on the sample game as it lies on Linux.

#include <set>

#include "cache/extraction.h"
#include "compress/compressbatch.h"
#include "compress/decompressbatch.h"
#include "compress/packer.h"
#include "native/nativesampletest.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

// Lets an extraction run to its end.
class Unstopped : public ExtractionObserver {
  public:
    void show(ExtractionBox, const std::string&) override {}
    void enableStop(bool) override {}
    void setBusyPointer(bool) override {}
    bool stopped() override { return false; }
    bool overwriteExisting() override { return false; }
    void closeRequested() override {}
};

class NativeExtraction : public NativeSampleTest {
  protected:
    void extract() {
        entry.mypath = program.gamePaths.UTPath + "\\";
        world.dialogs.answer(Answer::No);
        extraction.run(program.gamePaths.UTCachePath);
    }
    // Where a file of that kind is to be found afterwards. Nothing for one of no known kind.
    HostPath destination(const std::string& name) const {
        if (name.ends_with(".u")) return written() / "System" / name;
        for (const auto& [end, folder] : kinds)
            if (name.ends_with(end)) return game() / folder / name;
        return {};
    }
    static constexpr std::pair<const char*, const char*> kinds[] = {
        {".unr", "Maps"}, {".utx", "Textures"}, {".uax", "Sounds"}, {".umx", "Music"}};

    Unstopped observer;
    CacheEntry entry;
    Extraction extraction{program, observer, entry};
};

TEST_F(NativeExtraction, PutsEachDownloadWhereTheGameLooksForIt) {
    std::set<HostPath> expected;
    std::size_t gone = 0;
    for (const sample::CacheFile& line : layout().cacheLines) {
        const HostPath file = destination(line.trueName);
        if (line.present && !file.empty()) expected.insert(file);
        gone += line.present ? 0 : 1;
    }
    // Two are in the game already, and are left alone.
    EXPECT_EQ(expected.erase(game() / "Maps" / "DM-Cybrosis][.unr"), 1U);
    EXPECT_EQ(expected.erase(written() / "System" / "relics.u"), 1U);
    const std::string installed = read(game() / "System" / "relics.u");
    extract();
    for (const HostPath& file : expected) EXPECT_TRUE(fs::exists(file)) << file;
    EXPECT_EQ(extraction.ListView1.count(), expected.size());
    EXPECT_EQ(extraction.List2.size(), gone);
    EXPECT_TRUE(read(game() / "System" / "relics.u") == installed);
}

TEST_F(NativeExtraction, FindsWhatLiesInTheGamesOwnCacheToo) {
    const auto first = *std::ranges::find(layout().cacheLines, true, &sample::CacheFile::present);
    EXPECT_FALSE(fs::exists(written() / "Cache" / (first.guid + ".uxx")));
    const std::string bytes = read(game() / "Cache" / (first.guid + ".uxx"));
    extract();
    EXPECT_EQ(read(destination(first.trueName)), bytes);
    EXPECT_EQ(read(game() / "Cache" / (first.guid + ".uxx")), bytes);
}

TEST_F(NativeExtraction, MapsOfAGameThatCannotBeWrittenGoToTheHome) {
    world.world.host.protect("/game/");
    extract();
    for (const sample::CacheFile& line : layout().cacheLines) {
        if (!line.present || !line.trueName.ends_with(".unr")) continue;
        if (fs::exists(sharedNativeSample().game / "Maps" / line.trueName)) continue;
        EXPECT_TRUE(fs::exists(written() / "Maps" / line.trueName)) << line.trueName;
        EXPECT_FALSE(fs::exists(game() / "Maps" / line.trueName)) << line.trueName;
    }
}

class NativePackages : public NativeSampleTest {
  protected:
    NativePackages() {
        program.CompressDest = program.DecompressDest = "C:\\Out";
        world.world.makeFolder("C:\\Out");
    }
    template <class Batch>
    void run(const std::vector<std::string>& files) {
        Batch batch(program, form, Ucc(program, anotherSystem));
        for (const std::string& file : files) batch.ListView1.add(file);
        world.dialogs.answer(Answer::No);
        batch.run();
        rows = rowsOf(batch.ListView2);
    }
    std::vector<std::string> out() const { return world.world.names("C:\\Out"); }
    auto messages() const { return world.dialogs.messages; }

    RecordingBatch form;
    std::vector<std::string> rows;
};

TEST_F(NativePackages, GoThereAndBack) {
    const std::string own = read(game() / "Maps" / "DM-Zeto.unr");
    const std::string unpacked = read(written() / "Maps" / "DM-Orangerie-Clémence.unr");
    run<CompressBatch>({path("maps\\dm-zeto.unr"), path("Maps\\DM-Orangerie-Clémence.unr")});
    EXPECT_THAT(rows, SizeIs(2));
    EXPECT_THAT(out(), ElementsAre("DM-Orangerie-Clémence.unr.uz", "dm-zeto.unr.uz"));
    EXPECT_FALSE(fs::exists(game() / "Maps" / "DM-Zeto.unr.uz"));
    EXPECT_THAT(TestWorld::namesIn(written() / "Maps"), ElementsAre("DM-Orangerie-Clémence.unr"));

    fs::remove(written() / "System" / "DM-Zeto.unr");
    run<DecompressBatch>({"C:\\Out\\DM-Orangerie-Clémence.unr.uz", "C:\\Out\\dm-zeto.unr.uz"});
    EXPECT_THAT(messages(), SizeIs(2));
    EXPECT_EQ(world.world.read("C:\\Out\\dm-zeto.unr"), own);
    EXPECT_EQ(world.world.read("C:\\Out\\DM-Orangerie-Clémence.unr"), unpacked);
    EXPECT_THAT(TestWorld::namesIn(written() / "System"),
                ElementsAre("UnrealTournament.log", "ucc.log"));
}

TEST_F(NativePackages, OfAStaleResultInTheHomeTheFreshOneIsTaken) {
    write(written() / "Maps" / "DM-Zeto.unr.uz", "stale");
    run<CompressBatch>({path("Maps\\DM-Zeto.unr")});
    EXPECT_NE(world.world.read("C:\\Out\\DM-Zeto.unr.uz"), "stale");
    EXPECT_EQ(read(written() / "Maps" / "DM-Zeto.unr.uz"), "stale");
    EXPECT_FALSE(fs::exists(game() / "Maps" / "DM-Zeto.unr.uz"));
}

TEST_F(NativePackages, AToolThatDoesNothingAndSaysThatAllIsWellIsReported) {
    fs::remove_all(game() / "SystemLocalized");
    write(world.world.at("C:\\Out\\first.unr.uz"), "keeps the run from ending at the first");
    world.dialogs.answer(Answer::Ok);
    run<CompressBatch>({"C:\\Out\\first.unr", path("Maps\\DM-Zeto.unr")});
    EXPECT_THAT(messages().front().text, HasSubstr("Error moving "));
    EXPECT_THAT(out(), ElementsAre("first.unr.uz"));
}

TEST_F(NativePackages, APackageOfTheGamesNameIsUnpackedAndTheGamesOwnStays) {
    const std::string own = read(game() / "System" / "BotPack.u");
    run<CompressBatch>({path("System\\BotPack.u")});
    EXPECT_THAT(out(), ElementsAre("BotPack.u.uz"));
    run<DecompressBatch>({"C:\\Out\\BotPack.u.uz"});
    EXPECT_EQ(world.world.read("C:\\Out\\BotPack.u"), own);
    EXPECT_EQ(read(game() / "System" / "BotPack.u"), own);
}

}  // namespace
}  // namespace tessaro::test
