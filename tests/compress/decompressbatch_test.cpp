#include "compress/decompressbatch.h"

#include <gmock/gmock.h>

#include "compress/batchfixture.h"

namespace tessaro {
namespace {

using test::destination;
using test::errorOf;
using test::missing;
using test::packerFolder;
using test::rowsOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

Message decompressedQuestion(int found) {
    return {"Batch Decompression Complete.\n" + std::to_string(found) +
                " existing file(s) found.\nDo you wish to close UT File Decompressor?",
            "Decompression Completed", Buttons::YesNo, Icon::None};
}

// Loses a file when a folder is looked at, once the file is there.
class LosingHost : public test::FailingHost {
  public:
    LosingHost(Host& real, HostPath folder, HostPath file)
        : FailingHost(real), folder_(std::move(folder)), file_(std::move(file)) {}

    std::optional<HostStatus> status(const HostPath& path) override {
        if (path == folder_) std::filesystem::remove(file_);
        return FailingHost::status(path);
    }

  private:
    HostPath folder_;
    HostPath file_;
};

class DecompressBatchTest : public test::BatchTest<DecompressBatch> {
  protected:
    // A batch of compressed packages in C:\Packed that hold their own file names.
    void list(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            packer_.writeUz("C:\\Packed\\" + name, name);
            packer_.fillBatch(batch_.ListView1, {"C:\\Packed\\" + name});
        }
    }
};

TEST(PackageName, IsTheFilesNameUpToItsFirstUz) {
    EXPECT_EQ(packagePathOf(R"(C:\Packed\Map.u.uz)"), R"(C:\Packed\Map.u)");
    EXPECT_EQ(packagePathOf(R"(C:\Packed\a.uzb.u.uz)"), R"(C:\Packed\a)");
}

TEST(PackageName, KeepsAnUpperCaseExtension) {
    EXPECT_EQ(packagePathOf(R"(C:\Packed\Map.UZ)"), R"(C:\Packed\Map.UZ)");
}

TEST(PackageName, IsCutInAFolderToo) {
    EXPECT_EQ(packagePathOf(R"(C:\maps.uz files\Map.unr.uz)"), R"(C:\maps)");
}

TEST_F(DecompressBatchTest, RemembersTheNameOfTheFileUnderWork) {
    list({"DM-A.unr.uz"});
    disk_.write(R"(C:\Out\DM-A.unr)", "there already");
    run();
    EXPECT_EQ(world_.program.LastFileName, "DM-A.unr");
}

TEST_F(DecompressBatchTest, MovesTheResultOutOfTheSystemFolder) {
    list({"DM-A b.unr.uz"});
    run();
    EXPECT_THAT(
        packer_.commandLines(),
        ElementsAre(R"(C:\UnrealTournament\System\ucc.exe decompress "C:\Packed\DM-A b.unr.uz")"));
    EXPECT_EQ(disk_.read(R"(C:\Out\DM-A b.unr)"), "DM-A b.unr.uz");
    EXPECT_THAT(disk_.names(packerFolder), IsEmpty());
    EXPECT_THAT(disk_.names(R"(C:\Packed)"), ElementsAre("DM-A b.unr.uz"));
    EXPECT_THAT(rowsOf(batch_.ListView2), ElementsAre(R"(C:\Out\DM-A b.unr|13)"));
}

TEST_F(DecompressBatchTest, Windows98GoesThroughItsShell) {
    list({"a.unr.uz"});
    DecompressBatch old(world_.program, form_, Ucc(world_.program, test::windows98));
    packer_.fillBatch(old.ListView1, {R"(C:\Packed\a.unr.uz)"});
    world_.dialogs.answer(Answer::No);
    old.run();
    EXPECT_THAT(packer_.commandLines(),
                ElementsAre("command.com /cC:\\UnrealTournament\\System\\ucc.exe decompress "
                            "\"C:\\Packed\\a.unr.uz\""));
}

TEST_F(DecompressBatchTest, StartsItsBarAnewAndAsksInTheEnd) {
    list({"a.unr.uz", "b.u.uz"});
    run(Answer::No);
    EXPECT_THAT(form_.seen,
                ElementsAre("progress 0", "running", "progress 1", "progress 2", "idle"));
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(decompressedQuestion(0)));
}

TEST_F(DecompressBatchTest, OnYesTheToolCloses) {
    list({"a.unr.uz"});
    run(Answer::Yes);
    EXPECT_EQ(form_.seen.back(), "closed");
}

TEST_F(DecompressBatchTest, ExistingFilesAreCountedAndKeptUnlessTheUserSaysOtherwise) {
    list({"a.unr.uz"});
    disk_.write(R"(C:\Out\a.unr)", "old");
    run();
    EXPECT_THAT(world_.processes.runs, IsEmpty());
    EXPECT_EQ(disk_.read(R"(C:\Out\a.unr)"), "old");
    EXPECT_THAT(form_.seen,
                ElementsAre("progress 0", "running", "existing 1", "progress 1", "idle"));
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(decompressedQuestion(1)));
    EXPECT_THAT(rowsOf(batch_.ListView2), IsEmpty());
}

TEST_F(DecompressBatchTest, AReplacedFileIsStillCounted) {
    list({"a.unr.uz"});
    disk_.write(R"(C:\Out\a.unr)", "old");
    batch_.overwriteExisting = true;
    run();
    EXPECT_EQ(disk_.read(R"(C:\Out\a.unr)"), "a.unr.uz");
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(decompressedQuestion(1)));
    EXPECT_THAT(rowsOf(batch_.ListView2), ElementsAre(R"(C:\Out\a.unr|8)"));
}

TEST_F(DecompressBatchTest, LaterRunsCountAnewAndListAnew) {
    list({"a.unr.uz"});
    run();
    run();
    run();
    EXPECT_THAT(
        world_.dialogs.messages,
        ElementsAre(decompressedQuestion(0), decompressedQuestion(1), decompressedQuestion(1)));
    EXPECT_THAT(rowsOf(batch_.ListView2), IsEmpty());
}

TEST_F(DecompressBatchTest, AnUpperCaseExtensionMakesItsResultUnfindable) {
    packer_.writeUz(R"(C:\Packed\Map.UZ)", "x");
    packer_.fillBatch(batch_.ListView1, {R"(C:\Packed\Map.UZ)"});
    world_.dialogs.answer(Answer::Ok);
    run();
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(missing("Map.UZ"), decompressedQuestion(0)));
    EXPECT_TRUE(disk_.exists(packerFolder + std::string(R"(\Map)")));
}

TEST_F(DecompressBatchTest, AUzInTheMiddleMakesItsResultUnfindable) {
    list({"a.uzb.u.uz"});
    world_.dialogs.answer(Answer::Ok);
    run();
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(missing("a"), decompressedQuestion(0)));
}

TEST_F(DecompressBatchTest, AFailedToolIsReportedByNameAndTheBarMoves) {
    list({"a.unr.uz"});
    packer_.failing = {R"(C:\Packed\a.unr.uz)"};
    world_.dialogs.answer(Answer::Ok);
    run();
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(missing("a.unr"), decompressedQuestion(0)));
    EXPECT_THAT(form_.seen, ElementsAre("progress 0", "running", "progress 1", "idle"));
}

TEST_F(DecompressBatchTest, AFileThatSucceedsAfterASkippedOneIsRefusedByTheList) {
    list({"a.unr.uz", "b.unr.uz"});
    disk_.write(R"(C:\Out\a.unr)", "old");
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::IndexOutOfBounds);
    EXPECT_THAT(rowsOf(batch_.ListView2), IsEmpty());
    // The refusal comes after the move.
    EXPECT_EQ(disk_.read(R"(C:\Out\b.unr)"), "b.unr.uz");
}

TEST_F(DecompressBatchTest, AFileThatSucceedsAfterAFailedOneIsRefusedByTheList) {
    list({"a.unr.uz", "b.unr.uz"});
    packer_.failing = {R"(C:\Packed\a.unr.uz)"};
    world_.dialogs.answer(Answer::Ok);
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::IndexOutOfBounds);
}

TEST_F(DecompressBatchTest, ASkippedFileAtTheEndIsNoFailure) {
    list({"a.unr.uz", "b.unr.uz"});
    disk_.write(R"(C:\Out\b.unr)", "old");
    run();
    EXPECT_THAT(rowsOf(batch_.ListView2), ElementsAre(R"(C:\Out\a.unr|8)"));
}

TEST_F(DecompressBatchTest, AVanishedSourceIsPassedOverAndTheBarStays) {
    list({"a.unr.uz", "b.unr.uz"});
    std::filesystem::remove(disk_.at(R"(C:\Packed\b.unr.uz)"));
    run();
    EXPECT_THAT(world_.processes.runs, SizeIs(1));
    EXPECT_THAT(form_.seen, ElementsAre("progress 0", "running", "progress 1", "idle"));
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(decompressedQuestion(0)));
}

TEST_F(DecompressBatchTest, ADestinationThatHasGoneLeavesTheResultInTheSystemFolder) {
    list({"a.unr.uz"});
    std::filesystem::remove_all(disk_.at(destination));
    run();
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(decompressedQuestion(0)));
    EXPECT_THAT(disk_.names(packerFolder), ElementsAre("a.unr"));
}

TEST_F(DecompressBatchTest, AResultThatVanishesBeforeItsMoveIsReported) {
    list({"a.unr.uz"});
    const HostPath result = disk_.at(R"(C:\UnrealTournament\System\a.unr)");
    LosingHost host(disk_.host, disk_.at(destination), result);
    Program program(host, disk_.drives,
                    {world_.dialogs, world_.sounds, world_.processes, world_.events},
                    world_.program.file);
    program.gamePaths = world_.program.gamePaths;
    program.DecompressDest = destination;
    DecompressBatch batch(program, form_, Ucc(program, test::anotherSystem));
    packer_.fillBatch(batch.ListView1, {R"(C:\Packed\a.unr.uz)"});
    world_.dialogs.answer(Answer::Ok);
    world_.dialogs.answer(Answer::No);
    batch.run();
    EXPECT_THAT(world_.dialogs.messages,
                ElementsAre(Message{"File Decompression Error!", "File Copy Error", Buttons::Ok,
                                    Icon::Stop},
                            decompressedQuestion(0)));
}

TEST_F(DecompressBatchTest, APackageOfTheGamesWithTheSameNameIsLost) {
    list({"Botpack.u.uz"});
    disk_.write(R"(C:\UnrealTournament\System\Botpack.u)", "the game's own");
    run();
    EXPECT_THAT(disk_.names(packerFolder), IsEmpty());
    EXPECT_EQ(disk_.read(R"(C:\Out\Botpack.u)"), "Botpack.u.uz");
}

TEST_F(DecompressBatchTest, TheSystemFolderAsDestinationIsAFailureThatKeepsTheResult) {
    world_.program.DecompressDest = packerFolder;
    list({"a.unr.uz"});
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::PermissionDenied);
    EXPECT_THAT(disk_.names(packerFolder), ElementsAre("a.unr"));
}

TEST_F(DecompressBatchTest, ADrivesRootAsDestinationGivesRowsWithTwoBackslashes) {
    world_.program.DecompressDest = R"(C:\)";
    list({"a.unr.uz"});
    run();
    EXPECT_EQ(disk_.read(R"(C:\a.unr)"), "a.unr.uz");
    EXPECT_THAT(rowsOf(batch_.ListView2), ElementsAre(R"(C:\\a.unr|8)"));
}

TEST_F(DecompressBatchTest, MoreFilesThan16BitsHoldAreAFailureAheadOfTheFirst) {
    listRepeatedly(R"(C:\Packed\gone.unr.uz)", 32768);
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::Overflow);
    EXPECT_THAT(form_.seen, ElementsAre("progress 0", "running"));
    EXPECT_THAT(world_.dialogs.messages, IsEmpty());
}

using SlowDecompressBatchTest = DecompressBatchTest;
TEST_F(SlowDecompressBatchTest, APositionPast16BitsIsAFailureAfterTheLastFile) {
    listRepeatedly(R"(C:\Packed\gone.unr.uz)", 32766);
    packer_.writeUz(R"(C:\Packed\a.unr.uz)", "x");
    disk_.write(R"(C:\Out\a.unr)", "old");
    packer_.fillBatch(batch_.ListView1, {R"(C:\Packed\a.unr.uz)"});
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::Overflow);
    EXPECT_EQ(form_.seen.back(), "progress 32767");
}

TEST_F(DecompressBatchTest, AFullDiskIsAFailureAndLosesNothing) {
    list({"a.unr.uz"});
    disk_.host.setDiskSpace(3);
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::DiskFull);
    EXPECT_THAT(disk_.names(packerFolder), ElementsAre("a.unr"));
    EXPECT_THAT(disk_.names(destination), IsEmpty());
}

TEST_F(DecompressBatchTest, ADestinationThatCannotBeWrittenIsAFailureAtALaterFileToo) {
    list({"a.unr.uz", "b.unr.uz"});
    disk_.write(R"(C:\Out\b.unr)", "old");
    batch_.overwriteExisting = true;
    disk_.host.protect("b.unr");
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::PathFileAccess);
    EXPECT_EQ(disk_.read(R"(C:\Out\b.unr)"), "old");
    EXPECT_THAT(disk_.names(packerFolder), ElementsAre("b.unr"));
}

TEST_F(DecompressBatchTest, AResultThatCannotBeDeletedIsAFailure) {
    list({"a.unr.uz"});
    disk_.host.refuse(test::Call::RemoveFile, errors::PermissionDenied, "System");
    EXPECT_EQ(errorOf([&] { batch_.run(); }), errors::PermissionDenied);
    EXPECT_THAT(rowsOf(batch_.ListView2), IsEmpty());
}

}  // namespace
}  // namespace tessaro
