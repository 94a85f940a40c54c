#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

#include "tests/samplegame/samplefolder.h"
#include "tools/samplegame/cacheindex.h"

namespace tessaro::sample {
namespace {

namespace fs = std::filesystem;

const std::vector<CacheFile>& lines() {
    return sharedSample().layout().cacheLines;
}

fs::path cacheFolder() {
    return sharedSample().root() / "Cache";
}

std::string extensionOf(const std::string& name) {
    return name.substr(name.rfind('.'));
}

// The GUID of a package's header, as the game prints it.
std::string headerGuid(const std::string& bytes) {
    Guid guid;
    for (std::size_t i = 0; i < guid.parts.size(); ++i)
        guid.parts.at(i) = numberAt(bytes, 36 + 4 * i, 4);
    return guid.text();
}

std::ptrdiff_t countOf(const std::string& extension, bool present) {
    return std::count_if(lines().begin(), lines().end(), [&](const CacheFile& line) {
        return line.present == present && extensionOf(line.trueName) == extension;
    });
}

bool anyTrueNameHolds(const std::string& piece) {
    return std::any_of(lines().begin(), lines().end(), [&](const CacheFile& line) {
        return line.trueName.find(piece) != std::string::npos;
    });
}

TEST(SampleCache, HasSixtySixLinesWithAFileAndFourteenWithout) {
    const auto present = std::count_if(lines().begin(), lines().end(),
                                       [](const CacheFile& line) { return line.present; });
    EXPECT_EQ(present, 66);
    EXPECT_EQ(lines().size(), 80U);
}

TEST(SampleCache, FilesLieThereExactlyWhereTheLayoutSaysSo) {
    for (const CacheFile& line : lines()) {
        const fs::path file = cacheFolder() / (line.guid + ".uxx");
        ASSERT_EQ(fs::exists(file), line.present) << line.trueName;
        EXPECT_EQ(line.present ? fs::file_size(file) : 0, line.bytes) << line.trueName;
    }
}

TEST(SampleCache, EveryFileHasFromTwoKilobytesToAMegabyte) {
    for (const CacheFile& line : lines()) {
        if (line.present) {
            EXPECT_GE(line.bytes, 2'048U) << line.trueName;
            EXPECT_LE(line.bytes, 1'048'576U) << line.trueName;
        }
    }
}

TEST(SampleCache, GuidInTheHeaderIsTheNameOfTheFile) {
    int packages = 0;
    for (const auto& entry : fs::directory_iterator(cacheFolder())) {
        if (entry.path().extension() == ".uxx") {
            EXPECT_EQ(headerGuid(bytesOf(entry.path())), entry.path().stem().string());
            ++packages;
        }
    }
    EXPECT_EQ(packages, 66 + 3);
}

TEST(SampleCache, EveryKindOccursWithItsFileAndWithout) {
    for (const char* extension : {".unr", ".u", ".utx", ".uax", ".umx"}) {
        EXPECT_GT(countOf(extension, true), 0) << extension;
        EXPECT_GT(countOf(extension, false), 0) << extension;
    }
}

TEST(SampleCache, HasOneTextAndOneExtensionInCapitals) {
    EXPECT_EQ(countOf(".int", true), 1);
    EXPECT_EQ(countOf(".UNR", true), 1);
}

TEST(SampleCache, HasAwkwardTrueNames) {
    for (const char* piece : {" ", "][", "'", "&", "+", ",", "=", ";", "!!", "é", "ß", "€"})
        EXPECT_TRUE(anyTrueNameHolds(piece)) << piece;
    EXPECT_TRUE(std::any_of(lines().begin(), lines().end(),
                            [](const CacheFile& line) { return line.trueName.size() == 100; }));
}

TEST(SampleCache, OneTrueNameStandsUnderTwoGuids) {
    std::map<std::string, std::set<std::string>> guids;
    for (const CacheFile& line : lines()) guids[line.trueName].insert(line.guid);
    EXPECT_EQ(guids.at("TarnCoreIII.u").size(), 2U);
    EXPECT_EQ(guids.size(), 79U);
}

TEST(SampleCache, TwoOfThePackagesAreInTheirFoldersAlready) {
    EXPECT_TRUE(anyTrueNameHolds("DM-Cybrosis][.unr"));
    EXPECT_TRUE(fs::exists(sharedSample().root() / "Maps" / "DM-Cybrosis][.unr"));
    EXPECT_TRUE(anyTrueNameHolds("relics.u"));
    EXPECT_TRUE(fs::exists(sharedSample().root() / "System" / "relics.u"));
}

TEST(SampleCache, IndexOnDiskIsThatOfTheLayout) {
    const std::string text = bytesOf(cacheFolder() / "cache.ini");
    EXPECT_EQ(text, cacheIndex(lines()));
    EXPECT_NE(text.find("=DM-Caf\xE9-Noisette.unr\r\n"), std::string::npos);
    EXPECT_NE(text.find("=DM-Gr\xFCne-Stra\xDF"
                        "e.unr\r\n"),
              std::string::npos);
    EXPECT_NE(text.find("20\x80.unr\r\n"), std::string::npos);
}

TEST(SampleCache, HasPackagesWithoutALineAndABrokenDownload) {
    const Layout& layout = sharedSample().layout();
    const std::string index = bytesOf(cacheFolder() / "cache.ini");
    EXPECT_EQ(layout.unlistedPackages.size(), 3U);
    for (const std::string& name : layout.unlistedPackages) {
        EXPECT_GE(fs::file_size(cacheFolder() / name), 100U);
        EXPECT_EQ(index.find(name.substr(0, 32)), std::string::npos);
    }
    EXPECT_EQ(layout.unfinishedDownload, "1234.tmp");
    EXPECT_TRUE(fs::exists(cacheFolder() / "1234.tmp"));
}

TEST(SampleCache, IndexIsAHeaderAndALinePerFile) {
    const std::vector<CacheFile> two{{"AB", "Foo.u", true, 1}, {"CD", "caf\u00E9=1.unr", false, 0}};
    EXPECT_EQ(cacheIndex(two), "[Cache]\r\nAB=Foo.u\r\nCD=caf\xE9=1.unr\r\n");
}

TEST(SampleCodePage, HoldsLatinLettersAndTheEuroSign) {
    EXPECT_EQ(toCodePage("a\u00A0\u00BF\u00C0\u00FF\u20AC"), "a\xA0\xBF\xC0\xFF\x80");
}

TEST(SampleCodePage, RefusesWhatItCannotWrite) {
    EXPECT_THROW(toCodePage("\u65E5"), std::runtime_error);
    EXPECT_THROW(toCodePage("\xC2\x80"), std::runtime_error);
    EXPECT_THROW(toCodePage("\xE9t\xE9"), std::runtime_error);
    EXPECT_THROW(toCodePage("\xC3"), std::runtime_error);
}

}  // namespace
}  // namespace tessaro::sample
