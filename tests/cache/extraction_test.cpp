#include "cache/extraction.h"

#include <gtest/gtest.h>

#include <map>

#include "core/routines.h"
#include "support/disk.h"
#include "support/testprogram.h"

namespace tessaro::test {
namespace {

const Message closingQuestion{"Extraction Complete, Do you wish to close this window?",
                              "Map Extractions Completed", Buttons::YesNo, Icon::None};

// Shows what a form would show, and presses buttons when told to.
class Watcher : public ExtractionObserver {
  public:
    std::map<ExtractionBox, std::string> shown;
    bool running = false;
    bool busy = false;
    bool overwrite = false;
    int closings = 0;

    void show(ExtractionBox box, const std::string& text) override { shown[box] = text; }
    void enableStop(bool now) override { running = now; }
    void setBusyPointer(bool now) override { busy = now; }
    bool stopped() override { return !running; }
    bool overwriteExisting() override { return overwrite; }
    void closeRequested() override { ++closings; }
};

std::string guidOf(int number) {
    std::string digits = std::to_string(number);
    return std::string(32 - digits.size(), 'A') + digits;
}

class ExtractionRun : public ::testing::Test {
  protected:
    ExtractionRun() {
        program.gamePaths.UTPath = "C:\\UT";
        program.gamePaths.UTCachePath = cache;
        program.settings.Sounds = "1";
        game.world.makeFolder(cache);
        extraction.entry.mypath = "C:\\UT\\";
    }

    std::string lineOf(int number, const std::string& trueName) {
        return guidOf(number) + "=" + trueName + "\r\n";
    }
    void cached(int number, const std::string& bytes) {
        game.world.write(cache + "\\" + guidOf(number) + ".uxx", bytes);
    }
    void index(const std::string& text) { game.world.write(cache + "\\cache.ini", text); }
    // An index of present files under these names, each 1234 bytes of its own letter.
    void indexOf(std::initializer_list<const char*> names) {
        std::string text = "[Cache]\r\n";
        int number = 0;
        for (const char* name : names) {
            cached(number, std::string(1234, static_cast<char>('a' + number)));
            text += lineOf(number++, name);
        }
        index(text);
    }
    void run(Answer answer = Answer::No) {
        game.dialogs.answer(answer);
        extraction.run(cache);
    }
    std::string shown(ExtractionBox box) { return watcher.shown[box]; }
    // The rows as "name|type|size".
    std::vector<std::string> rows() {
        std::vector<std::string> texts;
        for (std::size_t i = 1; i <= extraction.ListView1.count(); ++i) {
            const ListItem& item = extraction.ListView1.item(i);
            texts.push_back(item.text + "|" + item.subItems[0] + "|" + item.subItems[1]);
        }
        return texts;
    }

    const std::string cache = "C:\\UT\\Cache";
    TestProgram game;
    Program& program = game.program;
    Watcher watcher;
    CacheEntry entry;
    Extraction extraction{program, watcher, entry};
};

using Texts = std::vector<std::string>;

TEST_F(ExtractionRun, CopiesEachKindUnderItsTrueNameIntoItsFolder) {
    indexOf({"a.u", "b.utx", "c.unr", "d.umx", "e.uax"});
    run();
    EXPECT_EQ(game.world.read("C:\\UT\\system\\a.u"), std::string(1234, 'a'));
    EXPECT_EQ(game.world.read("C:\\UT\\textures\\b.utx"), std::string(1234, 'b'));
    EXPECT_EQ(game.world.read("C:\\UT\\maps\\c.unr"), std::string(1234, 'c'));
    EXPECT_EQ(game.world.read("C:\\UT\\music\\d.umx"), std::string(1234, 'd'));
    EXPECT_EQ(game.world.read("C:\\UT\\sounds\\e.uax"), std::string(1234, 'e'));
    EXPECT_EQ(game.dialogs.messages, std::vector<Message>{closingQuestion});
}

TEST_F(ExtractionRun, LeavesTheCacheAsItWas) {
    indexOf({"a.u", "b.unr"});
    const std::string before = game.world.read(cache + "\\cache.ini");
    run();
    EXPECT_EQ(game.world.read(cache + "\\cache.ini"), before);
    EXPECT_EQ(game.world.names(cache),
              (Texts{guidOf(0) + ".uxx", guidOf(1) + ".uxx", "cache.ini"}));
}

TEST_F(ExtractionRun, RowsShowTheKindOfTheFileBefore) {
    indexOf({"a.u", "b.utx", "c.unr"});
    run();
    EXPECT_EQ(rows(), (Texts{"a.u||1KB", "b.utx|System File|1KB", "c.unr|Texture File|1KB"}));
}

TEST_F(ExtractionRun, SecondRunClearsTheListButKeepsTheLastKind) {
    indexOf({"a.u", "c.unr"});
    run();
    watcher.overwrite = true;
    run();
    EXPECT_EQ(rows(), (Texts{"a.u|Map File|1KB", "c.unr|System File|1KB"}));
}

TEST_F(ExtractionRun, SecondRunLeavesTheCountsUntilTheyAreNextWritten) {
    indexOf({"a.u", "b.u"});
    index(game.world.read(cache + "\\cache.ini") + lineOf(7, "gone.u"));
    run();
    watcher.shown.clear();
    game.events.onPump = [&] {
        const bool inALine = watcher.shown.contains(ExtractionBox::CurrentFile);
        EXPECT_EQ(watcher.shown.contains(ExtractionBox::Extracted), inALine);
        EXPECT_FALSE(watcher.shown.contains(ExtractionBox::Failed));  // the last line's
    };
    run();
    EXPECT_EQ(shown(ExtractionBox::Extracted), "0");
    EXPECT_EQ(shown(ExtractionBox::Failed), "1");
    EXPECT_EQ(shown(ExtractionBox::Existing), "2");
}

TEST_F(ExtractionRun, ColumnClicksSortAndNeverTurnBack) {
    indexOf({"b.u", "a.u"});
    run();
    const ListItems& rows = extraction.ListView1;
    const auto click = [&](int column) {
        extraction.sortBy(column);
        return std::pair{rows.sortKey(), rows.sortOrder()};
    };
    EXPECT_EQ(click(1), (std::pair{0, 0}));
    EXPECT_EQ(rows.item(1).text, "a.u");
    EXPECT_EQ(click(1), (std::pair{0, 0}));  // 0 is compared with 1
    EXPECT_EQ(click(2), (std::pair{1, 0}));
    EXPECT_EQ(click(1), (std::pair{0, 1}));  // 1 is the last column, counted from 0
    EXPECT_EQ(click(1), (std::pair{0, 1}));
    EXPECT_EQ(rows.item(1).text, "b.u");
}

TEST_F(ExtractionRun, BoxesShowTheFileUnderWork) {
    indexOf({"a.u", "Clémence & co's [x].unr"});
    run();
    EXPECT_EQ(shown(ExtractionBox::CurrentFile), cache + "\\" + guidOf(1) + ".uxx");
    EXPECT_EQ(shown(ExtractionBox::MapName), "Clémence & co's [x].unr");
    EXPECT_EQ(shown(ExtractionBox::FileSize), "1kb");
    EXPECT_EQ(shown(ExtractionBox::Existing), "0");
}

TEST_F(ExtractionRun, ExtractedEndsOneLessThanTheRows) {
    indexOf({"a.u", "b.u", "c.u"});
    run();
    EXPECT_EQ(shown(ExtractionBox::Extracted), "2");
    EXPECT_EQ(extraction.ListView1.count(), 3u);
}

TEST_F(ExtractionRun, AllCachedFilesGoneOnlyCountsFailures) {
    index("[Cache]\r\n" + lineOf(0, "a.u") + "\r\n" + lineOf(1, "b.unr"));
    run();
    EXPECT_EQ(shown(ExtractionBox::Failed), "2");
    EXPECT_EQ(watcher.shown.count(ExtractionBox::CurrentFile), 0u);
    EXPECT_EQ(extraction.List2, (Texts{cache + "\\" + guidOf(0) + ".uxx,     1",
                                       cache + "\\" + guidOf(1) + ".uxx,     2"}));
    EXPECT_EQ(extraction.ListView1.count(), 0u);
    EXPECT_EQ(game.dialogs.messages, std::vector<Message>{closingQuestion});
    EXPECT_EQ(game.events.now, 43200 + game.events.step);  // the announcement's only
}

TEST_F(ExtractionRun, HiddenCachedFileCountsAsGone) {
    const std::string hidden = "." + std::string(31, 'A');
    game.world.write(cache + "\\" + hidden + ".uxx", std::string(500, 'x'));
    game.world.host.hide(hidden);
    index(hidden + "=a.u\r\n");
    run();
    EXPECT_EQ(shown(ExtractionBox::Failed), "1");
}

TEST_F(ExtractionRun, CachedFileIsFoundWhateverItsCase) {
    std::string lower = guidOf(7);
    for (char& letter : lower) letter = static_cast<char>(std::tolower(letter));
    game.world.write(cache + "\\" + lower + ".UXX", std::string(500, 'x'));
    index(lineOf(7, "a.u"));
    run();
    EXPECT_EQ(game.world.read("C:\\UT\\system\\a.u"), std::string(500, 'x'));
}

TEST_F(ExtractionRun, EmptyIndexCompletesNormally) {
    for (const char* text : {"", "[Cache]", "[Cache]\r\n\r\n"}) {
        index(text);
        run();
        EXPECT_EQ(watcher.shown.count(ExtractionBox::Failed), 0u) << text;
    }
    EXPECT_EQ(game.dialogs.messages.size(), 3u);
}

TEST_F(ExtractionRun, HeaderInOtherCaseCountsAsAFailedEntry) {
    index("[cache]\r\n   \r\n");
    run();
    EXPECT_EQ(shown(ExtractionBox::Failed), "2");
}

TEST_F(ExtractionRun, ExistingFileIsKeptUnlessOverwritten) {
    indexOf({"a.u"});
    game.world.write("C:\\UT\\System\\A.U", "mine");
    run();
    EXPECT_EQ(shown(ExtractionBox::Existing), "1");
    EXPECT_EQ(game.world.read("C:\\UT\\System\\A.U"), "mine");
    EXPECT_EQ(extraction.ListView1.count(), 0u);

    watcher.overwrite = true;
    run();
    EXPECT_EQ(shown(ExtractionBox::Existing), "1");
    EXPECT_EQ(game.world.names("C:\\UT\\System"), Texts{"A.U"});
    EXPECT_EQ(game.world.read("C:\\UT\\System\\A.U"), std::string(1234, 'a'));
    EXPECT_EQ(extraction.ListView1.count(), 1u);
}

TEST_F(ExtractionRun, HiddenFileAtTheDestinationCountsAsExisting) {
    indexOf({".a.u"});
    game.world.write("C:\\UT\\system\\.a.u", "mine");
    game.world.host.hide(".a.u");
    run();
    EXPECT_EQ(shown(ExtractionBox::Existing), "1");
    EXPECT_EQ(game.world.read("C:\\UT\\system\\.a.u"), "mine");
}

TEST_F(ExtractionRun, KindOfAKeptFileStillReachesTheNextRow) {
    indexOf({"a.u", "b.unr"});
    game.world.write("C:\\UT\\system\\a.u", "mine");
    run();
    EXPECT_EQ(rows(), Texts{"b.unr|System File|1KB"});
}

TEST_F(ExtractionRun, FileWithoutAKindCostsItsPauseAndNothingElse) {
    indexOf({"Botpack.int"});
    const double start = game.events.now;
    run();
    EXPECT_EQ(shown(ExtractionBox::MapName), "Botpack.int");
    EXPECT_GE(game.events.now - start, 0.1);
    EXPECT_EQ(extraction.ListView1.count(), 0u);
    EXPECT_EQ(watcher.shown.count(ExtractionBox::Failed), 0u);
    EXPECT_EQ(game.world.names("C:\\UT\\system"), Texts{});
}

TEST_F(ExtractionRun, EachPresentFilePausesATenthOfASecond) {
    indexOf({"a.u", "b.u", "c.int"});
    game.events.step = 0.125;  // exact in binary
    run();
    EXPECT_EQ(game.events.pumps, 1 + 3);
}

TEST_F(ExtractionRun, SizeOfTwoDigitsEndsTheRunAtTheQuestion) {
    cached(0, std::string(99, 'x'));
    cached(1, std::string(1000, 'y'));
    index(lineOf(0, "a.u") + lineOf(1, "b.u"));
    run();
    EXPECT_EQ(shown(ExtractionBox::MapName), "a.u");
    EXPECT_EQ(extraction.ListView1.count(), 0u);
    EXPECT_EQ(game.dialogs.messages, std::vector<Message>{closingQuestion});
}

TEST_F(ExtractionRun, SizeOfThreeDigitsShowsTheUnitAlone) {
    cached(0, std::string(100, 'x'));
    index(lineOf(0, "a.u"));
    run();
    EXPECT_EQ(shown(ExtractionBox::FileSize), "kb");
    EXPECT_EQ(rows(), Texts{"a.u||KB"});
}

TEST_F(ExtractionRun, ShortLineWithACachedFileEndsTheRun) {
    game.world.write(cache + "\\short.uxx", std::string(500, 'x'));
    cached(1, std::string(500, 'y'));
    index("short\r\n" + lineOf(1, "b.u"));
    run();
    EXPECT_EQ(extraction.ListView1.count(), 0u);
    EXPECT_EQ(watcher.shown.count(ExtractionBox::MapName), 0u);
}

TEST_F(ExtractionRun, ShortLineWithoutACachedFileIsAFailure) {
    index("short\r\n" + lineOf(1, "b.u"));
    run();
    EXPECT_EQ(shown(ExtractionBox::Failed), "2");
}

TEST_F(ExtractionRun, FullDiskEndsTheRunAndLeavesNoFragment) {
    indexOf({"a.u", "b.u", "c.u"});
    game.world.write("C:\\UT\\system\\b.u", "mine");
    watcher.overwrite = true;
    game.world.host.setDiskSpace(2000);
    run();
    EXPECT_EQ(game.world.names("C:\\UT\\system"), (Texts{"a.u", "b.u"}));
    EXPECT_EQ(game.world.read("C:\\UT\\system\\b.u"), "mine");
    EXPECT_EQ(extraction.ListView1.count(), 1u);
    EXPECT_EQ(game.dialogs.messages, std::vector<Message>{closingQuestion});
}

TEST_F(ExtractionRun, RefusedTargetEndsTheRunWithoutAWord) {
    indexOf({"a.u", "b.u"});
    game.world.write("C:\\UT\\system\\a.u", "locked");
    game.world.host.protect("a.u");
    watcher.overwrite = true;
    run();
    EXPECT_EQ(game.world.read("C:\\UT\\system\\a.u"), "locked");
    EXPECT_FALSE(game.world.exists("C:\\UT\\system\\b.u"));
    EXPECT_EQ(shown(ExtractionBox::Failed), "");
    EXPECT_EQ(game.dialogs.messages, std::vector<Message>{closingQuestion});
}

TEST_F(ExtractionRun, MoreFailuresThanTheCounterHoldsEndTheRun) {
    std::string text;
    for (int i = 0; i < 32767; ++i) text += guidOf(i) + "\n";
    // In a folder of its own: the announcement counts the lines of the configured cache.
    index("");
    game.world.write("C:\\Other\\" + guidOf(40000) + ".uxx", std::string(500, 'x'));
    game.world.write("C:\\Other\\cache.ini",
                     text + lineOf(40000, "after.u") + lineOf(40001, "gone.u"));
    game.dialogs.answer(Answer::No);
    extraction.run("C:\\Other");
    EXPECT_EQ(shown(ExtractionBox::Failed), "32767");
    EXPECT_EQ(game.dialogs.messages, std::vector<Message>{closingQuestion});
    EXPECT_FALSE(game.world.exists("C:\\UT\\system\\after.u"));
    EXPECT_EQ(extraction.ListView1.count(), 0u);
}

TEST_F(ExtractionRun, ClearsTheListThenAnnouncesAndOnlyThenMakesTheFolders) {
    indexOf({"a.u"});
    run();
    std::filesystem::remove_all(game.world.at("C:\\UT\\music"));
    bool announced = false;
    game.sounds.onStart = [&] {
        announced = true;
        EXPECT_EQ(extraction.ListView1.count(), 0u);
        EXPECT_FALSE(watcher.running);
        EXPECT_FALSE(game.world.exists("C:\\UT\\music"));
    };
    run();
    EXPECT_TRUE(announced);
    EXPECT_TRUE(game.world.exists("C:\\UT\\music"));
}

TEST_F(ExtractionRun, AFolderThatMayNotBeMadeEndsTheProgram) {
    indexOf({"a.u"});
    game.world.host.refuse(Call::MakeFolder, errors::PermissionDenied, "textures");
    EXPECT_EQ(errorOf([&] { extraction.run(cache); }), errors::PermissionDenied);
    EXPECT_TRUE(watcher.running);  // as the run had left the buttons by then
    EXPECT_FALSE(game.world.exists("C:\\UT\\system\\a.u"));
}

TEST_F(ExtractionRun, StopDuringAPauseStillCopiesThatFileAndAsksNothing) {
    indexOf({"a.u", "b.u", "c.u"});
    game.events.onPump = [&] {
        if (extraction.ListView1.count() == 1) extraction.StopExtraction();
    };
    extraction.run(cache);
    EXPECT_EQ(game.world.names("C:\\UT\\system"), (Texts{"a.u", "b.u"}));
    EXPECT_FALSE(watcher.running);
    EXPECT_FALSE(watcher.busy);
    EXPECT_EQ(errorOf([&] { program.table.endOfFile(1); }), errors::BadFileNumber);
}

TEST_F(ExtractionRun, CopyThatFailsAfterStopStillAsks) {
    indexOf({"a.u"});
    game.events.onPump = [&] {
        if (watcher.running) {
            extraction.StopExtraction();
            game.world.host.setDiskSpace(10);
        }
    };
    run();
    EXPECT_EQ(game.dialogs.messages, std::vector<Message>{closingQuestion});
}

TEST_F(ExtractionRun, IndexClosedFromOutsideEndsAtTheQuestion) {
    indexOf({"a.u", "b.u"});
    game.events.onPump = [&] {
        if (watcher.running) extraction.closeIndex();  // what the end of the form does
    };
    run();
    EXPECT_EQ(game.world.names("C:\\UT\\system"), Texts{"a.u"});
    EXPECT_EQ(game.dialogs.messages, std::vector<Message>{closingQuestion});
}

TEST_F(ExtractionRun, NoLeavesTheFormIdleAndTheIndexClosed) {
    indexOf({"a.u"});
    game.dialogs.whileOpen = [&] {
        EXPECT_TRUE(watcher.running);  // until the answer
        EXPECT_FALSE(watcher.busy);
        EXPECT_EQ(errorOf([&] { program.table.endOfFile(1); }), 0);
    };
    run(Answer::No);
    EXPECT_FALSE(watcher.running);
    EXPECT_EQ(watcher.closings, 0);
    EXPECT_EQ(errorOf([&] { program.table.endOfFile(1); }), errors::BadFileNumber);
}

TEST_F(ExtractionRun, YesClosesTheForm) {
    indexOf({"a.u"});
    run(Answer::Yes);
    EXPECT_EQ(watcher.closings, 1);
}

TEST_F(ExtractionRun, MissingIndexInTheChosenFolderIsTold) {
    index("[Cache]\r\n");
    game.world.makeFolder("C:\\Other");
    game.dialogs.answer(Answer::Ok);
    extraction.run("C:\\Other");
    EXPECT_EQ(game.dialogs.messages,
              (std::vector<Message>{{"The Specified Cache.ini file could not be located\n"
                                     "in the specified folder, please check\n"
                                     "the path and try again.",
                                     "Error Finding Cache Resources", Buttons::Ok, Icon::Stop}}));
    // Only "&Stop" brings "&Extract" back.
    EXPECT_TRUE(watcher.running);
    EXPECT_FALSE(watcher.busy);
    extraction.StopExtraction();
    EXPECT_FALSE(watcher.running);
}

TEST_F(ExtractionRun, MissingIndexInTheConfiguredCacheEndsTheProgram) {
    EXPECT_EQ(errorOf([&] { extraction.run(cache); }), errors::FileNotFound);
    EXPECT_FALSE(watcher.running);
}

TEST_F(ExtractionRun, MissingDestinationEndsTheProgram) {
    indexOf({"a.u"});
    extraction.entry.mypath = "C:\\Nowhere\\";
    EXPECT_EQ(errorOf([&] { extraction.run(cache); }), errors::PathNotFound);
}

TEST_F(ExtractionRun, IndexThatCannotBeOpenedComesToTheQuestion) {
    indexOf({"a.u"});
    game.world.makeFolder("C:\\Locked");
    game.world.write("C:\\Locked\\cache.ini", "[Cache]\r\n");
    game.world.host.refuse(Call::Read, errors::PermissionDenied, "Locked");
    game.dialogs.answer(Answer::No);
    extraction.run("C:\\Locked");
    EXPECT_EQ(game.dialogs.messages, std::vector<Message>{closingQuestion});
}

TEST_F(ExtractionRun, MakesTheFiveFoldersButNoneBesideOneOfOtherCase) {
    index("");
    game.world.makeFolder("C:\\UT\\Maps");
    game.world.makeFolder("C:\\UT\\SYSTEM");
    run();
    EXPECT_EQ(game.world.names("C:\\UT"),
              (Texts{"Cache", "Maps", "SYSTEM", "music", "sounds", "textures"}));
}

TEST_F(ExtractionRun, MakesNoTwinsWhereNamesCannotBeListed) {
    if (!hasCases()) GTEST_SKIP() << noCases;
    indexOf({"a.u"});
    for (const char* folder : {"Maps", "System", "Textures", "Sounds", "Music"})
        game.world.makeFolder(std::string("C:\\UT\\") + folder);
    const Texts before = game.world.names("C:\\UT");
    game.world.host.refuse(Call::List, errors::TooManyFiles, "/UT");
    EXPECT_EQ(errorOf([&] { extraction.run(cache); }), errors::TooManyFiles);
    EXPECT_EQ(game.world.names("C:\\UT"), before);
}

TEST_F(ExtractionRun, FoldersOfADestinationOnAnotherDriveAreMadeOnTheCurrentOne) {
    indexOf({"a.u"});
    program.paths.changeFolder("C:\\UT");
    const std::string other = program.paths.toGame(game.world.folder()) + "\\out";
    std::filesystem::create_directory(game.world.folder() / "out");
    extraction.entry.mypath = other + "\\";
    run();
    EXPECT_TRUE(game.world.exists("C:\\UT\\music"));
    EXPECT_TRUE(std::filesystem::is_empty(game.world.folder() / "out"));
    EXPECT_EQ(extraction.ListView1.count(), 0u);  // no folder to copy into
}

TEST_F(ExtractionRun, TrueNameWithAPathIsJoinedAsItStands) {
    indexOf({"sub\\a.u"});
    game.world.makeFolder("C:\\UT\\system\\sub");
    run();
    EXPECT_TRUE(game.world.exists("C:\\UT\\system\\sub\\a.u"));
}

TEST_F(ExtractionRun, TrueNameThatStaysInsideTheDestinationIsTaken) {
    indexOf({"..\\Maps\\a.u", "./b.u", "sub\\..\\c.u"});
    game.world.makeFolder("C:\\UT\\system\\sub");
    run();
    EXPECT_EQ(game.world.names("C:\\UT\\maps"), Texts{"a.u"});
    EXPECT_EQ(game.world.names("C:\\UT\\system"), (Texts{"b.u", "c.u", "sub"}));
}

TEST_F(ExtractionRun, TrueNameThatLeadsOutOfTheDestinationEndsTheRun) {
    for (const char* name : {R"(..\..\Startup\x.u)", R"(../../Startup/x.u)", R"(..\..\x.u)",
                             R"(..\..\UTother\x.u)", R"(sub\..\..\..\Startup\x.u)"}) {
        SCOPED_TRACE(name);
        for (const char* file : {"C:\\Startup\\x.u", "C:\\x.u", "C:\\UTother\\x.u"})
            game.world.write(file, "theirs");
        indexOf({"a.u", name, "b.u"});
        for (watcher.overwrite = false;; watcher.overwrite = true) {
            game.dialogs.messages.clear();
            run();
            EXPECT_EQ(game.world.names("C:\\UT\\system"), Texts{"a.u"});
            EXPECT_EQ(game.world.read("C:\\Startup\\x.u"), "theirs");
            EXPECT_EQ(game.world.read("C:\\x.u"), "theirs");
            EXPECT_EQ(game.world.read("C:\\UTother\\x.u"), "theirs");
            EXPECT_EQ(game.dialogs.messages, std::vector<Message>{closingQuestion});
            if (watcher.overwrite) break;
        }
        EXPECT_EQ(shown(ExtractionBox::MapName), name);
    }
}

TEST_F(ExtractionRun, TrueNameThatLeadsOutButHasNoKindIsPassedOver) {
    indexOf({R"(..\..\x.int)", "b.u"});
    run();
    EXPECT_EQ(game.world.names("C:\\UT\\system"), Texts{"b.u"});
}

TEST_F(ExtractionRun, TrueNameWithLettersThatMeanSomethingIsKeptUnlessOverwritten) {
    if (!test::hasOddNames()) GTEST_SKIP() << test::noOddNames;
    for (const char* name : {"x:y.u", "x\"y.u"}) {
        indexOf({name});
        game.world.write(std::string("C:\\UT\\system\\") + name, "mine");
        run();
        EXPECT_EQ(shown(ExtractionBox::Existing), "1");
        EXPECT_EQ(game.world.read(std::string("C:\\UT\\system\\") + name), "mine");
    }
    EXPECT_EQ(game.world.names("C:\\UT\\system"), (Texts{"x\"y.u", "x:y.u"}));
}

TEST_F(ExtractionRun, TwoLinesOfOneNameMeetEachOther) {
    indexOf({"a.u", "a.u"});
    run();
    EXPECT_EQ(shown(ExtractionBox::Existing), "1");
    EXPECT_EQ(game.world.read("C:\\UT\\system\\a.u"), std::string(1234, 'a'));
}

TEST_F(ExtractionRun, TrueNameWithANulReplacesNothingAndEndsTheRun) {
    game.world.write("C:\\UT\\system\\Botpack.u", "mine");
    cached(0, std::string(500, 'x'));
    cached(1, std::string(500, 'y'));
    index(lineOf(0, std::string("Botpack.u\0x.u", 13)) + lineOf(1, "b.u"));
    run();
    EXPECT_EQ(game.world.read("C:\\UT\\system\\Botpack.u"), "mine");
    EXPECT_EQ(game.world.names("C:\\UT\\system"), Texts{"Botpack.u"});
    EXPECT_EQ(game.dialogs.messages, std::vector<Message>{closingQuestion});
}

TEST_F(ExtractionRun, DamagedIndexLosesNothing) {
    const std::string nuls("\0\0\n\0=\r\r\n", 8);
    for (const std::string& text :
         {nuls, std::string("\xFF\xFE["), std::string("\xEF\xBB\xBF[Cache]\r\n"),
          std::string(100000, '='), std::string("\xFF\xFF\xFE\n\x81\n")}) {
        index(text);
        run();
    }
    EXPECT_EQ(extraction.ListView1.count(), 0u);
    EXPECT_EQ(game.dialogs.messages.size(), 5u);
}

TEST_F(ExtractionRun, IndexInOtherEncodingsGivesTheSameNames) {
    cached(0, std::string(500, 'x'));
    const std::string line = guidOf(0) + "=\xC3\x89t\xC3\xA9.unr";
    std::string wide = "\xFF\xFE";
    for (const char byte : guidOf(0) + "=") wide += {byte, '\0'};
    wide += std::string("\xC9\0t\0\xE9\0.\0u\0n\0r\0", 14);
    for (const std::string& text : {line, "\xEF\xBB\xBF" + line + "\n", wide}) {
        index(text);
        watcher.overwrite = true;
        run();
        EXPECT_EQ(game.world.names("C:\\UT\\maps"), Texts{"Été.unr"});
        std::filesystem::remove(game.world.at("C:\\UT\\maps\\Été.unr"));
    }
}

}  // namespace
}  // namespace tessaro::test
