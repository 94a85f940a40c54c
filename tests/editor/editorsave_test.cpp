// What the editor saves, and its closing.

#include "editor/editorfixture.h"

namespace tessaro::test {
namespace {

const FilePicker saveAs{"Save File As", "All File Types(*.*)|*.*|", iniFolder, "Untitled.ini"};

TEST_F(EditorTest, SaveOfNothingSaysSo) {
    dialogs_.answer(Answer::Ok);
    editor_.save();
    EXPECT_EQ(
        dialogs_.messages,
        (std::vector<Message>{{"No File Loaded", "No file to save", Buttons::Ok, Icon::Stop}}));
}

TEST_F(EditorTest, SaveOfAnEmptyTextThatIsOpenWritesALineBreak) {
    disk_.write(mine, "");
    loadMine();
    editor_.save();
    EXPECT_EQ(disk_.read(mine), "\r\n");
}

TEST_F(EditorTest, SaveOfAnUntitledTextAsksForAFileEachTime) {
    type(u"typed");
    for (const char* file : {"C:\\Mine\\one.ini", "C:\\Mine\\two.ini"}) {
        dialogs_.pickFile(file);
        editor_.save();
        EXPECT_EQ(disk_.read(file), "typed\r\n");
        EXPECT_EQ(editor_.CD1(), file);
    }
    EXPECT_EQ(dialogs_.savePickers, (std::vector<FilePicker>{saveAs, saveAs}));
    EXPECT_EQ(editor_.openedini(), "");
    EXPECT_EQ(editor_.title(), "Untitled.ini");
}

TEST_F(EditorTest, ACancelledSaveAsWritesNothingAndChoosesNothing) {
    type(u"typed");
    dialogs_.pickFile("");
    editor_.save();
    EXPECT_EQ(editor_.CD1(), "");
    EXPECT_EQ(disk_.names("C:\\Mine"), std::vector<std::string>{"my.ini"});
}

TEST_F(EditorTest, SaveAfterLoadFileWritesTheOpenFile) {
    loadMine();
    type(u"[Yours]");
    editor_.save();
    EXPECT_EQ(disk_.read(mine), "[Yours]\n\r\n");
}

TEST_F(EditorTest, SaveAfterANumberedItemWritesTheFileThatTheDialogChoseLast) {
    loadMine();
    editor_.loadUserIni();
    editor_.save();
    EXPECT_EQ(disk_.read(mine), "[DefaultPlayer]\r\n\r\n");
    EXPECT_EQ(disk_.read(userIni), "[DefaultPlayer]\r\n");
}

TEST_F(EditorTest, SaveAfterANumberedItemFailsIfTheDialogNeverChoseAFile) {
    editor_.loadUserIni();
    EXPECT_EQ(errorOf([&] { editor_.save(); }), errors::PathFileAccess);
    EXPECT_EQ(disk_.read(userIni), "[DefaultPlayer]\r\n");
}

TEST_F(EditorTest, NoSaveMakesTheTextClean) {
    loadMine();
    type(u"[Yours]");
    editor_.save();
    EXPECT_EQ(dirty(), 1);
    dialogs_.answer(Answer::Yes);
    EXPECT_TRUE(editor_.mayClose());
    EXPECT_EQ(dialogs_.messages, std::vector<Message>{saveQuestion});
    EXPECT_EQ(dirty(), 1);
}

TEST_F(EditorTest, EachSaveOfALoadedTextAddsALineBreak) {
    for (int i = 0; i < 2; ++i) {
        loadMine();
        editor_.save();
    }
    EXPECT_EQ(disk_.read(mine), "[Mine]\n\r\n\r\n");
    EXPECT_EQ(shown(), "[Mine]|||");
}

TEST_F(EditorTest, SavingTwiceWithoutALoadAddsOneLineBreak) {
    loadMine();
    editor_.save();
    editor_.save();
    EXPECT_EQ(disk_.read(mine), "[Mine]\n\r\n");
}

TEST_F(EditorTest, NamesMatchWithoutRegardToCaseAndStayAsTheyAre) {
    disk_.write(
        "C:\\Mine\\\xC3\x9C"
        "ber.INI",
        "a\r\n");
    dialogs_.pickFile(
        "c:\\mine\\\xC3\xBC"
        "ber.ini");
    editor_.loadChosenFile();
    EXPECT_EQ(shown(), "a||");
    editor_.save();
    EXPECT_EQ(disk_.names("C:\\Mine"), (std::vector<std::string>{"my.ini",
                                                                 "\xC3\x9C"
                                                                 "ber.INI"}));
}

TEST_F(EditorTest, ClosingACleanTextAsksNothing) {
    editor_.loadUserIni();
    EXPECT_TRUE(editor_.mayClose());
}

TEST_F(EditorTest, ClosingADirtyTextFollowsTheAnswer) {
    loadMine();
    type(u"[Yours]");
    dialogs_.answer(Answer::Cancel);
    EXPECT_FALSE(editor_.mayClose());
    dialogs_.answer(Answer::No);
    EXPECT_TRUE(editor_.mayClose());
    EXPECT_EQ(disk_.read(mine), "[Mine]\n");
    dialogs_.answer(Answer::Yes);
    EXPECT_TRUE(editor_.mayClose());
    EXPECT_EQ(disk_.read(mine), "[Yours]\n\r\n");
    EXPECT_EQ(dialogs_.messages, (std::vector<Message>{saveQuestion, saveQuestion, saveQuestion}));
}

TEST_F(EditorTest, ClosingWritesTheOpenFileWhateverTheDialogChose) {
    loadMine();
    editor_.loadUserIni();
    type(u"[Mine too]");
    dialogs_.answer(Answer::Yes);
    EXPECT_TRUE(editor_.mayClose());
    EXPECT_EQ(disk_.read(userIni), "[Mine too]\r\n\r\n");
    EXPECT_EQ(disk_.read(mine), "[Mine]\n");
}

TEST_F(EditorTest, ClosingAnUntitledTextAsksForAFileAndNeedsOne) {
    type(u"typed");
    dialogs_.answer(Answer::Yes);
    dialogs_.pickFile("");
    EXPECT_FALSE(editor_.mayClose());
    dialogs_.answer(Answer::Yes);
    dialogs_.pickFile("C:\\Mine\\new.ini");
    EXPECT_TRUE(editor_.mayClose());
    EXPECT_EQ(disk_.read("C:\\Mine\\new.ini"), "typed\r\n");
    EXPECT_EQ(dialogs_.savePickers, (std::vector<FilePicker>{saveAs, saveAs}));
}

TEST_F(EditorTest, ClosingAnUntitledTextIsContentWithAFileChosenBefore) {
    type(u"typed");
    dialogs_.pickFile("C:\\Mine\\new.ini");
    editor_.save();
    dialogs_.answer(Answer::Yes);
    dialogs_.pickFile("");
    EXPECT_TRUE(editor_.mayClose());
}

// Refusals, which stop root too.
class RefusedSave : public EditorTest {
  protected:
    RefusedSave() {
        loadMine();
        type(u"[Yours]");
    }
    void expectNothingLost() {
        disk_.host.relent();
        EXPECT_EQ(disk_.read(mine), "[Mine]\n");
        EXPECT_EQ(disk_.names("C:\\Mine"), std::vector<std::string>{"my.ini"});
        EXPECT_EQ(shown(), "[Yours]||");
        EXPECT_EQ(dirty(), 1);
    }
};

TEST_F(RefusedSave, AFullDiskLeavesTheOldFileAndTheText) {
    disk_.host.setDiskSpace(3);
    EXPECT_EQ(errorOf([&] { editor_.save(); }), errors::DiskFull);
    expectNothingLost();
}

TEST_F(RefusedSave, AReadOnlyFileIsLeftAloneWithTheText) {
    disk_.host.protect("my.ini");
    EXPECT_EQ(errorOf([&] { editor_.save(); }), errors::PathFileAccess);
    dialogs_.answer(Answer::Yes);
    EXPECT_EQ(errorOf([&] { editor_.mayClose(); }), errors::PathFileAccess);
    dialogs_.answer(Answer::Yes);
    EXPECT_EQ(errorOf([&] { editor_.loadUserIni(); }), errors::PathFileAccess);
    expectNothingLost();
}

TEST_F(RefusedSave, AVanishedFolderLeavesTheText) {
    disk_.host.vanish(disk_.at("C:\\Mine"));
    EXPECT_EQ(errorOf([&] { editor_.save(); }), errors::PathNotFound);
    expectNothingLost();
}

TEST_F(RefusedSave, ARenameThatFailsLeavesTheOldFileAndNoFragment) {
    disk_.host.refuse(Call::Rename, errors::DiskFull);
    EXPECT_EQ(errorOf([&] { editor_.save(); }), errors::DiskFull);
    expectNothingLost();
}

TEST_F(EditorTest, SaveAsIgnoresARefusalAndRemembersTheFile) {
    type(u"typed");
    disk_.host.setDiskSpace(3);
    dialogs_.pickFile(mine);
    editor_.save();
    disk_.host.relent();
    EXPECT_EQ(disk_.read(mine), "[Mine]\n");
    EXPECT_EQ(editor_.CD1(), mine);
    EXPECT_EQ(shown(), "typed|");
}

TEST_F(EditorTest, AVanishedSystemFolderOpensThePickersAllTheSame) {
    disk_.host.vanish(disk_.at(iniFolder));
    type(u"typed");
    dialogs_.pickFile("C:\\Mine\\new.ini");
    editor_.save();
    EXPECT_EQ(disk_.read("C:\\Mine\\new.ini"), "typed\r\n");
}

}  // namespace
}  // namespace tessaro::test
