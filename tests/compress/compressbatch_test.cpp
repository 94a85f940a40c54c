#include "compress/compressbatch.h"

#include <gmock/gmock.h>

#include "compress/batchfixture.h"

namespace tessaro {
namespace {

using test::destination;
using test::errorOf;
using test::missing;
using test::Packer;
using test::rowsOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const Message compressedQuestion{
    "File Batch Compression Complete.\nDo you wish to close UT File Compressor?",
    "Compression Completed", Buttons::YesNo, Icon::None};

class CompressBatchTest : public test::BatchTest<CompressBatch> {
  protected:
    // A batch of files in C:\Maps that hold their own names.
    void list(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            disk_.write("C:\\Maps\\" + name, name);
            packer_.fillBatch(batch_.ListView1, {"C:\\Maps\\" + name});
        }
    }
    static std::string packed(const std::string& name) { return Packer::compressed(name, name); }
};

TEST_F(CompressBatchTest, LoadsFullPathsAndPlainSizes) {
    disk_.write(R"(C:\Maps\a.unr)", std::string(1234, 'x'));
    ListItems dropped = makeDropList();
    dropFiles(world_.program, PackageTool::Compressor, dropped, {R"(C:\Maps\a.unr)"});
    loadBatch(world_.program, dropped, batch_.ListView1);
    EXPECT_THAT(rowsOf(batch_.ListView1), ElementsAre(R"(C:\Maps\a.unr|1234)"));
}

TEST_F(CompressBatchTest, LoadingAFileThatHasGoneSinceItsDropIsAFailure) {
    disk_.write(R"(C:\Maps\a.unr)", "x");
    ListItems dropped = makeDropList();
    dropFiles(world_.program, PackageTool::Compressor, dropped, {R"(C:\Maps\a.unr)"});
    std::filesystem::remove(disk_.at(R"(C:\Maps\a.unr)"));
    EXPECT_EQ(errorOf([&] { loadBatch(world_.program, dropped, batch_.ListView1); }),
              errors::FileNotFound);
}

TEST_F(CompressBatchTest, EndsBeforeTheNextFileAndWithoutAQuestionOnceItsFormHasGone) {
    list({"a.unr", "b.unr"});
    world_.events.onPump = [&] { form_.gone = true; };
    batch_.run();
    EXPECT_THAT(rowsOf(batch_.ListView2), ElementsAre(R"(C:\Out\a.unr.uz|11)"));
    EXPECT_FALSE(disk_.exists(R"(C:\Out\b.unr.uz)"));
    EXPECT_THAT(world_.dialogs.messages, IsEmpty());
}

TEST_F(CompressBatchTest, MovesTheResultAndLeavesTheSourceWhereItIs) {
    list({"DM-A b.unr"});
    run();
    EXPECT_THAT(packer_.commandLines(),
                ElementsAre(R"(C:\UnrealTournament\System\ucc.exe compress "C:\Maps\DM-A b.unr")"));
    EXPECT_THAT(disk_.names(R"(C:\Maps)"), ElementsAre("DM-A b.unr"));
    EXPECT_EQ(disk_.read(R"(C:\Maps\DM-A b.unr)"), "DM-A b.unr");
    EXPECT_EQ(disk_.read(R"(C:\Out\DM-A b.unr.uz)"), packed("DM-A b.unr"));
    EXPECT_THAT(rowsOf(batch_.ListView2), ElementsAre(R"(C:\Out\DM-A b.unr.uz|21)"));
}

TEST_F(CompressBatchTest, Windows98GoesThroughItsShell) {
    list({"a.unr"});
    CompressBatch old(world_.program, form_, Ucc(world_.program, test::windows98));
    packer_.fillBatch(old.ListView1, {R"(C:\Maps\a.unr)"});
    world_.dialogs.answer(Answer::No);
    old.run();
    EXPECT_THAT(packer_.commandLines(),
                ElementsAre("command.com /cC:\\UnrealTournament\\System\\ucc.exe compress "
                            "\"C:\\Maps\\a.unr\""));
    EXPECT_EQ(disk_.read(R"(C:\Out\a.unr.uz)"), packed("a.unr"));
}

TEST_F(CompressBatchTest, ShowsItsPositionAfterEachFileAndAsksInTheEnd) {
    list({"a.unr", "b.unr"});
    run(Answer::No);
    EXPECT_THAT(form_.seen, ElementsAre("running", "progress 1", "progress 2", "idle"));
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(compressedQuestion));
}

TEST_F(CompressBatchTest, OnYesTheToolCloses) {
    list({"a.unr"});
    run(Answer::Yes);
    EXPECT_THAT(form_.seen, ElementsAre("running", "progress 1", "idle", "closed"));
}

TEST_F(CompressBatchTest, TargetsThatExistAreCountedAndNeverOverwritten) {
    list({"a.unr", "b.unr"});
    disk_.write(R"(C:\Out\a.unr.uz)", "old");
    disk_.write(R"(C:\Out\b.unr.uz)", "older");
    run();
    EXPECT_THAT(world_.processes.runs, IsEmpty());
    EXPECT_THAT(form_.seen, ElementsAre("running", "existing 1", "progress 1", "existing 2",
                                        "progress 2", "idle"));
    EXPECT_THAT(rowsOf(batch_.ListView2),
                ElementsAre(R"(C:\Out\a.unr.uz|3)", R"(C:\Out\b.unr.uz|5)"));
    EXPECT_EQ(disk_.read(R"(C:\Out\a.unr.uz)"), "old");
}

TEST_F(CompressBatchTest, LaterRunsFindEveryFinishedFileAndCountAnew) {
    list({"a.unr", "b.unr"});
    run();
    run();
    form_.seen.clear();
    run();
    EXPECT_THAT(world_.processes.runs, SizeIs(2));
    EXPECT_THAT(form_.seen, ElementsAre("running", "existing 1", "progress 1", "existing 2",
                                        "progress 2", "idle"));
    EXPECT_EQ(batch_.ListView2.count(), 2u);
}

TEST_F(CompressBatchTest, TheSameFileListedTwiceIsExistingTheSecondTime) {
    list({"a.unr", "a.unr"});
    run();
    EXPECT_THAT(world_.processes.runs, SizeIs(1));
    EXPECT_THAT(form_.seen,
                ElementsAre("running", "progress 1", "existing 1", "progress 2", "idle"));
}

TEST_F(CompressBatchTest, InTheSourcesOwnFolderNothingIsMoved) {
    world_.program.CompressDest = R"(C:\Maps)";
    list({"a.unr"});
    run();
    EXPECT_EQ(disk_.host.count(test::Call::Copy), 0);
    EXPECT_EQ(disk_.host.count(test::Call::RemoveFile), 0);
    EXPECT_EQ(disk_.read(R"(C:\Maps\a.unr.uz)"), packed("a.unr"));
    EXPECT_THAT(rowsOf(batch_.ListView2), ElementsAre(R"(C:\Maps\a.unr.uz|11)"));
    run();
    EXPECT_THAT(world_.processes.runs, SizeIs(1)) << "The second run finds the target";
}

TEST_F(CompressBatchTest, TheSourcesOwnFolderInAnotherSpellingCountsAsAnotherFolder) {
    world_.program.CompressDest = R"(C:\MAPS)";
    list({"a.unr"});
    // The file is copied onto itself, which the system refuses.
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::PermissionDenied);
    EXPECT_EQ(disk_.read(R"(C:\Maps\a.unr.uz)"), packed("a.unr"));
}

TEST_F(CompressBatchTest, InAnotherSpellingOfTheSourcesFolderALaterResultIsLost) {
    world_.program.CompressDest = R"(C:\MAPS)";
    list({"a.unr", "b.unr"});
    disk_.write(R"(C:\Maps\a.unr.uz)", "old");
    run();
    // Nobody hears of the refused copy, and what is deleted then is the only one there is.
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(compressedQuestion));
    EXPECT_THAT(disk_.names(R"(C:\Maps)"), ElementsAre("a.unr", "a.unr.uz", "b.unr"));
    EXPECT_THAT(rowsOf(batch_.ListView2),
                ElementsAre(R"(C:\MAPS\a.unr.uz|3)", R"(C:\MAPS\b.unr.uz)"));
}

TEST_F(CompressBatchTest, ADrivesRootAsDestinationGivesTargetsWithTwoBackslashes) {
    world_.program.CompressDest = R"(C:\)";
    list({"a.unr"});
    run();
    EXPECT_EQ(disk_.read(R"(C:\a.unr.uz)"), packed("a.unr"));
    EXPECT_THAT(disk_.names(R"(C:\Maps)"), ElementsAre("a.unr"));
    EXPECT_THAT(rowsOf(batch_.ListView2), ElementsAre(R"(C:\\a.unr.uz|11)"));
}

TEST_F(CompressBatchTest, ADrivesRootCountsAsAnotherFolderThanThatOfAFileInIt) {
    world_.program.CompressDest = R"(C:\)";
    disk_.write(R"(C:\a.unr)", "a.unr");
    packer_.fillBatch(batch_.ListView1, {R"(C:\a.unr)"});
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::PermissionDenied);
    EXPECT_EQ(disk_.read(R"(C:\a.unr.uz)"), packed("a.unr"));
}

TEST_F(CompressBatchTest, ALaterFileInADrivesRootIsLostThere) {
    world_.program.CompressDest = R"(C:\)";
    list({"a.unr"});
    disk_.write(R"(C:\b.unr)", "b.unr");
    packer_.fillBatch(batch_.ListView1, {R"(C:\b.unr)"});
    run();
    EXPECT_TRUE(disk_.exists(R"(C:\a.unr.uz)"));
    EXPECT_TRUE(disk_.exists(R"(C:\b.unr)"));
    EXPECT_FALSE(disk_.exists(R"(C:\b.unr.uz)"));
}

TEST_F(CompressBatchTest, AnOldResultBesideTheSourceIsMadeAnewAndMoved) {
    list({"a.unr"});
    disk_.write(R"(C:\Maps\a.unr.uz)", "left by an earlier run");
    run();
    EXPECT_THAT(disk_.names(R"(C:\Maps)"), ElementsAre("a.unr"));
    EXPECT_EQ(disk_.read(R"(C:\Out\a.unr.uz)"), packed("a.unr"));
}

TEST_F(CompressBatchTest, AFailedToolIsReportedByNameAndTheBatchGoesOn) {
    list({"a.unr", "b.unr", "c.unr"});
    packer_.failing = {R"(C:\Maps\b.unr)"};
    world_.dialogs.answer(Answer::Ok);
    run();
    EXPECT_THAT(world_.dialogs.messages,
                ElementsAre(missing(R"(C:\Maps\b.unr)"), compressedQuestion));
    EXPECT_THAT(rowsOf(batch_.ListView2), ElementsAre(R"(C:\Out\a.unr.uz|11)", R"(C:\Out\b.unr.uz)",
                                                      R"(C:\Out\c.unr.uz|11)"));
    EXPECT_THAT(disk_.names(destination), ElementsAre("a.unr.uz", "c.unr.uz"));
}

TEST_F(CompressBatchTest, AMissingResultOfTheFirstFileIsReportedAndThenFatal) {
    list({"a.unr", "b.unr"});
    packer_.failing = {R"(C:\Maps\a.unr)"};
    world_.dialogs.answer(Answer::Ok);
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::FileNotFound);
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(missing(R"(C:\Maps\a.unr)")));
    EXPECT_THAT(rowsOf(batch_.ListView2), ElementsAre(R"(C:\Out\a.unr.uz)"));
    EXPECT_THAT(form_.seen, ElementsAre("running"));
}

TEST_F(CompressBatchTest, TheFirstFileIsUnguardedInEachRunAgain) {
    list({"a.unr", "b.unr"});
    run();
    std::filesystem::remove(disk_.at(R"(C:\Out\a.unr.uz)"));
    packer_.failing = {R"(C:\Maps\a.unr)"};
    world_.dialogs.answer(Answer::Ok);
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::FileNotFound);
}

TEST_F(CompressBatchTest, ADestinationThatVanishesLeavesTheResultsBesideTheirSources) {
    list({"a.unr", "b.unr"});
    disk_.write(R"(C:\Out\a.unr.uz)", "old");
    world_.processes.child = [this, tool = world_.processes.child](const std::string& line) {
        tool(line);
        std::filesystem::remove_all(disk_.at(destination));
    };
    run();
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(compressedQuestion));
    EXPECT_EQ(disk_.read(R"(C:\Maps\b.unr.uz)"), packed("b.unr"));
    EXPECT_THAT(rowsOf(batch_.ListView2),
                ElementsAre(R"(C:\Out\a.unr.uz|3)", R"(C:\Out\b.unr.uz)"));
}

TEST_F(CompressBatchTest, ADestinationThatVanishesBeforeTheFirstFileIsFatal) {
    list({"a.unr"});
    std::filesystem::remove_all(disk_.at(destination));
    EXPECT_NE(errorOf([&] { batch_.run(); }), 0);
    EXPECT_EQ(disk_.read(R"(C:\Maps\a.unr.uz)"), packed("a.unr"));
}

TEST_F(CompressBatchTest, AFullDiskAtTheFirstFileIsFatalAndKeepsTheResult) {
    list({"a.unr"});
    disk_.host.setDiskSpace(5);
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::DiskFull);
    EXPECT_EQ(disk_.read(R"(C:\Maps\a.unr.uz)"), packed("a.unr"));
    EXPECT_THAT(disk_.names(destination), IsEmpty());
}

TEST_F(CompressBatchTest, AFullDiskAtALaterFileIsIgnoredAndItsResultIsLost) {
    list({"a.unr", "b.unr"});
    disk_.host.setDiskSpace(15);
    run();
    EXPECT_THAT(disk_.names(destination), ElementsAre("a.unr.uz"));
    EXPECT_THAT(disk_.names(R"(C:\Maps)"), ElementsAre("a.unr", "b.unr"));
    EXPECT_THAT(rowsOf(batch_.ListView2),
                ElementsAre(R"(C:\Out\a.unr.uz|11)", R"(C:\Out\b.unr.uz)"));
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(compressedQuestion));
}

TEST_F(CompressBatchTest, ADestinationThatCannotBeWrittenIsFatalAtTheFirstFile) {
    list({"a.unr"});
    disk_.host.refuse(test::Call::Copy, errors::PermissionDenied, "Out");
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::PermissionDenied);
    EXPECT_EQ(disk_.read(R"(C:\Maps\a.unr.uz)"), packed("a.unr"));
}

TEST_F(CompressBatchTest, AResultThatCannotBeDeletedIsFatalAtTheFirstFileOnly) {
    list({"a.unr", "b.unr"});
    disk_.host.refuse(test::Call::RemoveFile, errors::PermissionDenied, "b.unr.uz");
    run();
    EXPECT_EQ(disk_.read(R"(C:\Out\b.unr.uz)"), packed("b.unr"));
    disk_.host.refuse(test::Call::RemoveFile, errors::PermissionDenied, "a.unr.uz");
    std::filesystem::remove(disk_.at(R"(C:\Out\a.unr.uz)"));
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::PermissionDenied);
}

using SlowCompressBatchTest = CompressBatchTest;
TEST_F(SlowCompressBatchTest, ExistingFilesAreCountedIn16BitsAndTheListGoesOn) {
    disk_.write(R"(C:\Out\a.unr.uz)", "old");
    listRepeatedly(R"(C:\Maps\a.unr)", 32769);
    run();
    EXPECT_EQ(form_.seen.at(form_.seen.size() - 3), "existing 32767");
    EXPECT_EQ(form_.seen.at(form_.seen.size() - 2), "progress 32769");
    EXPECT_EQ(batch_.ListView2.count(), 32769u);
}

TEST_F(CompressBatchTest, AnEmptyListOnlyAsks) {
    run();
    EXPECT_THAT(form_.seen, ElementsAre("running", "idle"));
    EXPECT_THAT(world_.processes.runs, IsEmpty());
}

}  // namespace
}  // namespace tessaro
