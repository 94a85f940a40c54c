#include "core/VORNX.h"

#include <gtest/gtest.h>

#include "support/testprogram.h"

namespace tessaro::test {
namespace {

class CacheAnnouncement : public ::testing::Test {
  protected:
    CacheAnnouncement() {
        program.gamePaths.UTCachePath = "C:\\UT\\Cache";
        program.settings.Sounds = "1";
    }
    void writeIndex(int lines) {
        std::string text;
        for (int i = 0; i < lines; ++i) text += "line\r\n";
        game.world.write("C:\\UT\\Cache\\cache.ini", text);
    }
    std::vector<std::string> soundsFor(int lines) {
        writeIndex(lines);
        game.sounds.names.clear();
        AnnounceCacheSize(program);
        return game.sounds.names;
    }

    TestProgram game;
    Program& program = game.program;
};

using Names = std::vector<std::string>;

TEST_F(CacheAnnouncement, SoundTellsTheSize) {
    EXPECT_EQ(soundsFor(0), Names{"cd1min"});
    EXPECT_EQ(soundsFor(99), Names{"cd1min"});
    EXPECT_EQ(soundsFor(100), Names{"cd3min"});
    EXPECT_EQ(soundsFor(300), Names{"cd3min"});
    EXPECT_EQ(soundsFor(301), Names{"cd5min"});
}

TEST_F(CacheAnnouncement, WithSoundsOffTheIndexIsReadAllTheSame) {
    program.settings.Sounds = "0";
    EXPECT_EQ(soundsFor(5), Names{});
    EXPECT_EQ(game.events.pumps, 1);
    std::filesystem::remove(game.world.at("C:\\UT\\Cache\\cache.ini"));
    EXPECT_EQ(errorOf([&] { AnnounceCacheSize(program); }), errors::FileNotFound);
}

TEST_F(CacheAnnouncement, MoreLinesThanTheCounterHoldsOverflow) {
    writeIndex(32767);
    EXPECT_EQ(errorOf([&] { AnnounceCacheSize(program); }), 0);
    writeIndex(32768);
    EXPECT_EQ(errorOf([&] { AnnounceCacheSize(program); }), errors::Overflow);
}

TEST_F(CacheAnnouncement, MustNotRunWhileFileNumberOneIsOpen) {
    writeIndex(1);
    program.table.openInput(1, "C:\\UT\\Cache\\cache.ini");
    EXPECT_EQ(errorOf([&] { AnnounceCacheSize(program); }), errors::FileAlreadyOpen);
}

TEST(FileNames, NameIsWhatFollowsTheLastBackslash) {
    TestProgram game;
    EXPECT_EQ(GetFileName(game.program, "C:\\UT\\Maps\\DM-Deck16][.unr"), "DM-Deck16][.unr");
    EXPECT_EQ(game.program.LastFileName, "DM-Deck16][.unr");
    EXPECT_EQ(GetFileName(game.program, "bare.unr"), "bare.unr");
    EXPECT_EQ(GetFileName(game.program, "C:\\UT\\"), "");
    EXPECT_EQ(game.program.LastFileName, "");
    EXPECT_EQ(FileNamePart("C:\\Clémence.unr"), "Clémence.unr");
    EXPECT_EQ(FileNamePart(""), "");
}

TEST(FileNames, NamePartStoresNothing) {
    TestProgram game;
    GetFileName(game.program, "C:\\one.u");
    FileNamePart("C:\\two.u");
    EXPECT_EQ(game.program.LastFileName, "one.u");
}

TEST(ListSelection, AnyHighlightedRowCounts) {
    ListItems rows({ListColumn{"name", "Name"}});
    EXPECT_EQ(AnyListViewItemSelected(rows), No);
    rows.add("one");
    rows.add("two");
    // The first row is the selected item, but the user has highlighted none.
    EXPECT_EQ(AnyListViewItemSelected(rows), No);
    rows.setSelected(2, true);
    EXPECT_EQ(AnyListViewItemSelected(rows), Yes);
}

TEST(FolderBrowse, AnswerOfThePickerOrNothing) {
    TestProgram game;
    game.dialogs.pick("C:\\UT");
    game.dialogs.pick("");
    EXPECT_EQ(BrowseForFolder(game.program, {"Where?"}), "C:\\UT");
    EXPECT_EQ(BrowseForFolder(game.program, {"Where?"}), "");
    EXPECT_EQ(game.dialogs.pickers, (Names{"Where?", "Where?"}));
}

}  // namespace
}  // namespace tessaro::test
