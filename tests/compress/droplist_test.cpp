#include "compress/droplist.h"

#include <gmock/gmock.h>

#include "compress/packer.h"

namespace tessaro {
namespace {

using test::errorOf;
using test::rowsOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DropList : public ::testing::Test {
  protected:
    test::TestProgram world_;
    Program& program_ = world_.program;
    ListItems list_ = makeDropList();

    void compressorGets(const std::vector<std::string>& paths) {
        dropFiles(program_, PackageTool::Compressor, list_, paths);
    }
    void decompressorGets(const std::vector<std::string>& paths) {
        dropFiles(program_, PackageTool::Decompressor, list_, paths);
    }
    const std::vector<Message>& messages() const { return world_.dialogs.messages; }
};

TEST_F(DropList, HasItsThreeColumns) {
    std::vector<std::string> captions;
    for (const ListColumn& column : list_.columns()) captions.push_back(column.caption);
    EXPECT_THAT(captions, ElementsAre("File Name", "File Location", "File Size"));
}

TEST_F(DropList, ARowHoldsNameFolderAndSize) {
    world_.world.write(R"(C:\My Maps\DM-[A] 100% é.unr)", std::string(1234567, 'x'));
    compressorGets({R"(C:\My Maps\DM-[A] 100% é.unr)"});
    EXPECT_THAT(rowsOf(list_), ElementsAre(R"(DM-[A] 100% é.unr|C:\My Maps\|1,234,567)"));
    EXPECT_EQ(droppedPath(list_.item(1)), R"(C:\My Maps\DM-[A] 100% é.unr)");
}

TEST_F(DropList, AFileInARootHasTheRootForItsFolder) {
    world_.world.write(R"(C:\a.unr)", "12");
    compressorGets({R"(C:\a.unr)"});
    EXPECT_THAT(rowsOf(list_), ElementsAre(R"(a.unr|C:\|2)"));
}

TEST_F(DropList, SizesAreGroupedByThreeDigitsAndNothingIsWrittenForZero) {
    EXPECT_EQ(groupedDigits(0), "");
    EXPECT_EQ(groupedDigits(7), "7");
    EXPECT_EQ(groupedDigits(999), "999");
    EXPECT_EQ(groupedDigits(1000), "1,000");
    EXPECT_EQ(groupedDigits(123456), "123,456");
    EXPECT_EQ(groupedDigits(4294967296), "4,294,967,296");
}

TEST_F(DropList, TheSameFileTwiceGivesTwoRows) {
    world_.world.write(R"(C:\a.unr)", "12");
    compressorGets({R"(C:\a.unr)", R"(C:\a.unr)"});
    compressorGets({R"(C:\a.unr)"});
    EXPECT_EQ(list_.count(), 3u);
}

TEST_F(DropList, TheCompressorPassesOverEmptyFilesAndFoldersInSilence) {
    world_.world.write(R"(C:\empty.unr)", "");
    world_.world.makeFolder(R"(C:\Maps)");
    compressorGets({R"(C:\empty.unr)", R"(C:\Maps)"});
    EXPECT_THAT(rowsOf(list_), IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(DropList, TheDecompressorTakesEmptyFilesAndWritesNoSize) {
    world_.world.write(R"(C:\a.unr.uz)", "");
    decompressorGets({R"(C:\a.unr.uz)"});
    EXPECT_THAT(rowsOf(list_), ElementsAre(R"(a.unr.uz|C:\|)"));
}

TEST_F(DropList, TheDecompressorTakesAFolderWhoseNameFits) {
    world_.world.makeFolder(R"(C:\folder.uz)");
    decompressorGets({R"(C:\folder.uz)"});
    EXPECT_THAT(rowsOf(list_), ElementsAre(R"(folder.uz|C:\|)"));
}

TEST_F(DropList, TheDecompressorLooksAtTheTailWithoutRegardToCase) {
    world_.world.write(R"(C:\Map.UZ)", "12");
    decompressorGets({R"(C:\Map.UZ)"});
    EXPECT_THAT(rowsOf(list_), ElementsAre(R"(Map.UZ|C:\|2)"));
}

TEST_F(DropList, TheDecompressorReportsEachFileOfAnotherKindAndGoesOn) {
    world_.world.write(R"(C:\a.unr)", "1");
    world_.world.write(R"(C:\b.unr.uz)", "22");
    world_.world.write(R"(C:\c.uz2)", "1");
    world_.dialogs.answer(Answer::Ok);
    world_.dialogs.answer(Answer::Ok);
    decompressorGets({R"(C:\a.unr)", R"(C:\b.unr.uz)", R"(C:\c.uz2)"});
    EXPECT_THAT(rowsOf(list_), ElementsAre(R"(b.unr.uz|C:\|2)"));
    EXPECT_THAT(messages(), ElementsAre(Message{"The file: C:\\a.unr\n"
                                                "does not appear to be a valid UT compressed file.",
                                                "Not Valid File Format", Buttons::Ok, Icon::Stop},
                                        Message{"The file: C:\\c.uz2\n"
                                                "does not appear to be a valid UT compressed file.",
                                                "Not Valid File Format", Buttons::Ok, Icon::Stop}));
}

TEST_F(DropList, AFileThatCannotBeMeasuredIsAFailure) {
    EXPECT_EQ(errorOf([&] { compressorGets({R"(C:\gone.unr)"}); }), errors::FileNotFound);
    EXPECT_EQ(errorOf([&] { decompressorGets({R"(C:\gone.uz)"}); }), errors::FileNotFound);
}

TEST_F(DropList, APathWithoutABackslashIsAFailure) {
    world_.world.write(R"(C:\a.unr)", "1");
    EXPECT_EQ(errorOf([&] { compressorGets({"a.unr"}); }), errors::InvalidProcedureCall);
    EXPECT_EQ(errorOf([&] { decompressorGets({"a.txt"}); }), errors::InvalidProcedureCall);
}

TEST_F(DropList, TheFilesOfADropAreCountedIn16Bits) {
    const std::vector<std::string> tooMany(32768, R"(C:\a.unr)");
    EXPECT_EQ(errorOf([&] { compressorGets(tooMany); }), errors::Overflow);
    EXPECT_EQ(list_.count(), 0u);
}

TEST_F(DropList, RemovingWithNothingHighlightedDoesNothing) {
    world_.world.write(R"(C:\a.unr)", "1");
    compressorGets({R"(C:\a.unr)"});
    removeSelected(list_);
    EXPECT_EQ(list_.count(), 1u);
}

TEST_F(DropList, RemovingTakesTheSelectedRow) {
    for (const char* file : {R"(C:\a.unr)", R"(C:\b.unr)", R"(C:\c.unr)"}) {
        world_.world.write(file, "1");
        compressorGets({file});
    }
    list_.pick(2);
    removeSelected(list_);
    EXPECT_THAT(rowsOf(list_), ElementsAre(R"(a.unr|C:\|1)", R"(c.unr|C:\|1)"));
}

TEST_F(DropList, WithoutFilesTheCompressorSaysSoAndAsksForNoFolder) {
    world_.dialogs.answer(Answer::Ok);
    EXPECT_FALSE(askDestination(program_, PackageTool::Compressor, list_));
    EXPECT_THAT(messages(), ElementsAre(Message{"You Must Select Files to compress",
                                                "No files listed", Buttons::Ok, Icon::Stop}));
    EXPECT_THAT(world_.dialogs.pickers, IsEmpty());
}

TEST_F(DropList, WithoutFilesTheDecompressorSaysSoInItsOwnWords) {
    world_.dialogs.answer(Answer::Ok);
    EXPECT_FALSE(askDestination(program_, PackageTool::Decompressor, list_));
    EXPECT_THAT(
        messages(),
        ElementsAre(Message{
            "You must first drag Unreal Compressed files to the window before decompressing",
            "No Files to compress", Buttons::Ok, Icon::Information}));
}

TEST_F(DropList, EachToolKeepsTheFolderThatWasChosenForIt) {
    list_.add("a.unr");
    world_.dialogs.pick(R"(C:\Packed)");
    world_.dialogs.pick(R"(C:\Unpacked)");
    EXPECT_TRUE(askDestination(program_, PackageTool::Compressor, list_));
    EXPECT_TRUE(askDestination(program_, PackageTool::Decompressor, list_));
    EXPECT_EQ(program_.CompressDest, R"(C:\Packed)");
    EXPECT_EQ(program_.DecompressDest, R"(C:\Unpacked)");
    EXPECT_THAT(world_.dialogs.pickers,
                ElementsAre("Select destination folder to compress files to:",
                            "Select destination folder to decompress files to:"));
}

TEST_F(DropList, ThePickerOpensInTheFolderThatWasChosenLast) {
    list_.add("a.unr");
    world_.dialogs.pick(R"(C:\Packed)");
    world_.dialogs.pick("");
    askDestination(program_, PackageTool::Compressor, list_);
    askDestination(program_, PackageTool::Compressor, list_);
    EXPECT_EQ(world_.dialogs.folderPickers[0].folder, "");
    EXPECT_EQ(world_.dialogs.folderPickers[1].folder, R"(C:\Packed)");
}

TEST_F(DropList, ACancelledPickerLeavesTheListAsItIs) {
    list_.add("a.unr");
    world_.dialogs.pick("");
    EXPECT_FALSE(askDestination(program_, PackageTool::Compressor, list_));
    EXPECT_EQ(list_.count(), 1u);
}

}  // namespace
}  // namespace tessaro
