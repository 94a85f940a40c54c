// What the editor loads.

#include <tuple>

#include "editor/editorfixture.h"

namespace tessaro::test {
namespace {

TEST_F(EditorTest, BeginsUntitledCleanAndEmpty) {
    EXPECT_EQ(editor_.title(), "Untitled.ini");
    EXPECT_EQ(editor_.openedini(), "");
    EXPECT_EQ(editor_.CD1(), "");
    EXPECT_EQ(dirty(), 0);
    EXPECT_TRUE(editor_.mayClose());
}

TEST_F(EditorTest, EachNumberedItemLoadsItsFile) {
    disk_.write(cacheIni, "[Cache]\r\n");
    const std::tuple<void (Editor::*)(), std::string, std::string, std::string> items[] = {
        {&Editor::loadUnrealTournamentIni, utIni, "unrealtournament.ini", "[URL]|Name=Me||"},
        {&Editor::loadUserIni, userIni, "user.ini", "[DefaultPlayer]||"},
        {&Editor::loadCacheIni, cacheIni, "cache.ini", "[Cache]||"}};
    for (const auto& [load, path, name, text] : items) {
        (editor_.*load)();
        EXPECT_EQ(view_.openedini, path);
        EXPECT_EQ(editor_.openedini(), path);
        EXPECT_EQ(view_.title, name);
        EXPECT_EQ(shown(), text);
        EXPECT_EQ(dirty(), 0);
    }
    EXPECT_EQ(editor_.CD1(), "");
}

TEST_F(EditorTest, AnEmptyFileLoadsAsAnEmptyCleanText) {
    type(u"typed");
    disk_.write(cacheIni, "");
    dialogs_.answer(Answer::No);
    editor_.loadCacheIni();
    EXPECT_EQ(shown(), "|");
    EXPECT_EQ(dirty(), 0);
}

TEST_F(EditorTest, AMissingFileChangesTheNamesAndNotTheText) {
    editor_.loadUserIni();
    editor_.loadCacheIni();
    EXPECT_EQ(editor_.openedini(), cacheIni);
    EXPECT_EQ(view_.title, "cache.ini");
    EXPECT_EQ(shown(), "[DefaultPlayer]||");
    EXPECT_EQ(dirty(), 0);
}

TEST_F(EditorTest, AFileThatCannotBeReadChangesTheNamesAndNotTheText) {
    type(u"typed");
    disk_.host.refuse(Call::Read, errors::PermissionDenied, "user");
    dialogs_.answer(Answer::No);
    editor_.loadUserIni();
    EXPECT_EQ(editor_.openedini(), userIni);
    EXPECT_EQ(shown(), "typed|");
    EXPECT_EQ(dirty(), 0);
}

TEST_F(EditorTest, TheTextOfAFailedLoadStillKnowsItsLineEnds) {
    disk_.write(userIni, "one\ntwo\n");
    editor_.loadUserIni();
    editor_.loadCacheIni();
    type(u"eins");
    dialogs_.answer(Answer::Yes);
    editor_.mayClose();
    EXPECT_EQ(disk_.read(cacheIni), "eins\ntwo\n\r\n");
}

TEST_F(EditorTest, LoadFileAsksForAnIniFileInTheSystemFolder) {
    loadMine();
    EXPECT_EQ(dialogs_.openPickers,
              (std::vector<FilePicker>{{"", "All UT .ini Files(*.ini)|*.ini|", iniFolder, ""}}));
    EXPECT_EQ(editor_.openedini(), mine);
    EXPECT_EQ(view_.title, "my.ini");
    EXPECT_EQ(editor_.CD1(), mine);
    EXPECT_EQ(shown(), "[Mine]||");
}

TEST_F(EditorTest, AChosenFileThatIsNotThereIsOpenAllTheSame) {
    dialogs_.pickFile("C:\\Mine\\new.ini");
    editor_.loadChosenFile();
    EXPECT_EQ(editor_.openedini(), "C:\\Mine\\new.ini");
    EXPECT_EQ(editor_.CD1(), "C:\\Mine\\new.ini");
}

TEST_F(EditorTest, AChangeMakesTheTextDirtyAndALoadClean) {
    type(u"typed");
    EXPECT_EQ(dirty(), 1);
    dialogs_.answer(Answer::No);
    editor_.loadUserIni();
    EXPECT_EQ(dirty(), 0);
}

TEST_F(EditorTest, EveryLoadOfADirtyTextAsksAndCancelKeepsTextNamesAndFlag) {
    type(u"typed");
    for (const auto load : {&Editor::loadChosenFile, &Editor::loadUnrealTournamentIni,
                            &Editor::loadUserIni, &Editor::loadCacheIni}) {
        dialogs_.messages.clear();
        dialogs_.answer(Answer::Cancel);
        (editor_.*load)();
        EXPECT_EQ(dialogs_.messages, std::vector<Message>{saveQuestion});
        EXPECT_EQ(shown(), "typed|");
        EXPECT_EQ(editor_.openedini(), "");
        EXPECT_EQ(dirty(), 1);
    }
    EXPECT_TRUE(dialogs_.openPickers.empty());
}

TEST_F(EditorTest, YesBeforeALoadSavesTheOpenFileFirst) {
    editor_.loadUserIni();
    type(u"[Changed]");
    dialogs_.answer(Answer::Yes);
    editor_.loadUnrealTournamentIni();
    EXPECT_EQ(disk_.read(userIni), "[Changed]\r\n\r\n");
    EXPECT_EQ(shown(), "[URL]|Name=Me||");
}

TEST_F(EditorTest, YesOnAnUntitledTextFailsAndLosesNothing) {
    type(u"typed");
    dialogs_.answer(Answer::Yes);
    EXPECT_EQ(errorOf([&] { editor_.loadUserIni(); }), errors::PathFileAccess);
    EXPECT_EQ(shown(), "typed|");
    EXPECT_EQ(dirty(), 1);
}

TEST_F(EditorTest, NoAndACancelledDialogKeepTheTextAndCountItAsClean) {
    type(u"typed");
    dialogs_.answer(Answer::No);
    dialogs_.pickFile("");
    editor_.loadChosenFile();
    EXPECT_EQ(shown(), "typed|");
    EXPECT_EQ(editor_.openedini(), "");
    EXPECT_EQ(dirty(), 0);
    EXPECT_TRUE(editor_.mayClose());
}

}  // namespace
}  // namespace tessaro::test
