#include "cache/cacheindex.h"

#include <gtest/gtest.h>

#include "support/testworld.h"

namespace tessaro::test {
namespace {

const std::string guid = "25378BF44584EF794EAC6E86872140C4";

// The extension length that a row of names leaves, the first one starting with none.
std::size_t extLenAfter(std::initializer_list<const char*> names) {
    std::size_t ExtLen = 0;
    for (const char* name : names) getext(name, ExtLen);
    return ExtLen;
}

const FileType* typeOf(std::string_view name, std::size_t ExtLen) {
    for (const FileType& type : FileTypeTable)
        if (isOfType(name, ExtLen, type)) return &type;
    return nullptr;
}

std::string labelOf(const char* name) {
    const FileType* type = typeOf(name, extLenAfter({name}));
    return type == nullptr ? "none" : std::string(type->label);
}

TEST(IndexLine, IsSplitByPositionAlone) {
    EXPECT_EQ(cachedFileOf("C:\\UT\\Cache", guid + "=WhoPushedMe.u"),
              "C:\\UT\\Cache\\" + guid + ".uxx");
    EXPECT_EQ(trueNameOf(guid + "=WhoPushedMe.u"), "WhoPushedMe.u");
    EXPECT_EQ(trueNameOf(guid + "#a=b;c.u"), "a=b;c.u");
    EXPECT_EQ(trueNameOf(guid + "= leading blank.unr"), " leading blank.unr");
}

TEST(IndexLine, IsCountedInCharacters) {
    const std::string accents = "éééééééééééééééééééééééééééééééé";  // 32 characters
    EXPECT_EQ(cachedFileOf("C:", accents + "=ß.u"), "C:\\" + accents + ".uxx");
    EXPECT_EQ(trueNameOf(accents + "=ß.u"), "ß.u");
}

TEST(IndexLine, DriveRootGivesADoubledSeparator) {
    EXPECT_EQ(cachedFileOf("C:\\", "x"), "C:\\\\x.uxx");
}

TEST(IndexLine, ShortLineNamesACachedFileButHasNoTrueName) {
    EXPECT_EQ(cachedFileOf("C:", "short"), "C:\\short.uxx");
    EXPECT_EQ(errorOf([] { trueNameOf("short"); }), errors::InvalidProcedureCall);
    EXPECT_EQ(errorOf([] { trueNameOf(guid); }), errors::InvalidProcedureCall);
    EXPECT_EQ(trueNameOf(guid + "="), "");
}

TEST(IndexLine, OnlyTheExactHeaderAndEmptyLinesAreSkipped) {
    EXPECT_TRUE(isSkippedLine("[Cache]"));
    EXPECT_TRUE(isSkippedLine(""));
    for (const char* line : {"[cache]", "[Cache] ", " ", "; comment", "[Other]"})
        EXPECT_FALSE(isSkippedLine(line)) << line;
}

TEST(Extension, IsFoundAmongTheLastFourCharacters) {
    EXPECT_EQ(extLenAfter({"Botpack.u"}), 2u);
    EXPECT_EQ(extLenAfter({"Crypt.utx"}), 4u);
    EXPECT_EQ(extLenAfter({"Foo.u2"}), 3u);
    EXPECT_EQ(extLenAfter({"dot."}), 1u);
    EXPECT_EQ(extLenAfter({".u"}), 2u);
}

TEST(Extension, LastDotCountsIfItLiesThere) {
    EXPECT_EQ(extLenAfter({"DM-v1.2.unr"}), 4u);
    EXPECT_EQ(extLenAfter({"a.u.u"}), 2u);
}

TEST(Extension, OfAnEarlierNameStaysWhereThereIsNone) {
    EXPECT_EQ(extLenAfter({"Long.name"}), 0u);
    EXPECT_EQ(extLenAfter({"Botpack.u", "Long.name"}), 2u);
    EXPECT_EQ(extLenAfter({"Botpack.u", ""}), 2u);
    EXPECT_EQ(typeOf("Long.name", 2), nullptr);
    EXPECT_EQ(typeOf("Long.name", 0), nullptr);
}

TEST(Extension, LeftBehindMayFitANameWithoutOne) {
    // "Hut.utx" leaves 4, and the last four characters of a name are compared as they are.
    EXPECT_EQ(typeOf("Hut.utx", extLenAfter({"Hut.utx"}))->label, "Texture File");
    EXPECT_EQ(typeOf("no extension", extLenAfter({"Hut.utx", "no extension"})), nullptr);
}

TEST(Kind, FollowsTheExtension) {
    EXPECT_EQ(labelOf("Botpack.u"), "System File");
    EXPECT_EQ(labelOf("Crypt.utx"), "Texture File");
    EXPECT_EQ(labelOf("DM-Deck16][.unr"), "Map File");
    EXPECT_EQ(labelOf("Foregone.umx"), "Music File");
    EXPECT_EQ(labelOf("Announcer.uax"), "Sound File");
    for (const char* name : {"Foo.u2", "Botpack.int", "user.ini", "Setup.exe"})
        EXPECT_EQ(labelOf(name), "none") << name;
}

TEST(Kind, IsTakenWithRegardToCase) {
    EXPECT_EQ(labelOf("Foo.UNR"), "none");
    EXPECT_EQ(labelOf("Foo.Utx"), "none");
}

TEST(Kind, HasItsFolderInTheGamesTree) {
    const char* const folders[] = {"system\\", "textures\\", "maps\\", "music\\", "sounds\\"};
    for (std::size_t i = 0; i < std::size(folders); ++i)
        EXPECT_EQ(FileTypeTable[i].folder, folders[i]);
}

TEST(Kilobytes, AreCutFromTheDigits) {
    EXPECT_EQ(kilobytesOf("1234567"), "1234");
    EXPECT_EQ(kilobytesOf("999"), "");
    EXPECT_EQ(kilobytesOf("100"), "");
    EXPECT_EQ(errorOf([] { kilobytesOf("99"); }), errors::InvalidProcedureCall);
}

}  // namespace
}  // namespace tessaro::test
