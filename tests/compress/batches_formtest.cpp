#include <gmock/gmock.h>

#include <QCheckBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include "compress/comp.h"
#include "compress/comp2.h"
#include "compress/decomp.h"
#include "compress/decomp2.h"
#include "compress/dropping.h"
#include "compress/packer.h"
#include "shell/Skins.h"

namespace tessaro {
namespace {

using test::control;
using test::rowsOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class BatchForms : public test::FormsTest {
  protected:
    test::Packer packer_{world_};
    test::TestWorld& disk_ = world_.world;

    // The form of a batch over what was dropped on its list form.
    template <class BatchForm, class ListForm>
    BatchForm& over(const std::vector<std::string>& files) {
        std::vector<HostPath> hostFiles;
        for (const std::string& file : files) hostFiles.push_back(disk_.at(file));
        forms_.show<ListForm>();
        test::dropFiles(listOf(forms_.get<ListForm>(), "ListView1"), hostFiles);
        forms_.show<BatchForm>();
        return forms_.get<BatchForm>();
    }
    comp2& compression(const std::vector<std::string>& files) {
        for (const std::string& file : files) disk_.write(file, "map");
        return over<comp2, comp>(files);
    }
    decomp2& decompression(const std::vector<std::string>& files) {
        for (const std::string& file : files) packer_.writeUz(file, "map");
        return over<decomp2, decomp>(files);
    }
    void start(Form& form, Answer answer) {
        world_.dialogs.answer(answer);
        control<QPushButton>(form, "Command2").click();
    }
    // Something to be looked at while the packer runs.
    void duringRun(std::function<void()> look) {
        world_.processes.child = [look, tool = world_.processes.child](const std::string& line) {
            tool(line);
            look();
        };
    }

    static ListView& listOf(Form& form, const char* name) { return control<ListView>(form, name); }
    static std::vector<std::string> rows(Form& form, const char* list) {
        return rowsOf(*listOf(form, list).items());
    }
    static QString labelOf(Form& form, const char* name) {
        return control<QLabel>(form, name).text();
    }
    static QString boxOf(Form& form, const char* name) {
        return control<QLineEdit>(form, name).text();
    }
    static int progressOf(Form& form) {
        return control<QProgressBar>(form, "ProgressBar1").value();
    }
    static QString tipOf(Form& form, const char* name) {
        return control<QWidget>(form, name).toolTip();
    }
    static void expectCommonTexts(Form& form) {
        for (const char* name : {"ListView1", "ListView2"}) {
            const auto* model = listOf(form, name).model();
            EXPECT_EQ(model->headerData(0, Qt::Horizontal), QStringLiteral("File Name"));
            EXPECT_EQ(model->headerData(1, Qt::Horizontal), QStringLiteral("Size"));
        }
        EXPECT_EQ(tipOf(form, "ListView1"),
                  QStringLiteral("This is a listing of original filenames and sizes before "
                                 "compression"));
        EXPECT_EQ(tipOf(form, "ListView2"),
                  QStringLiteral("This is a listing of original filenames and sizes after "
                                 "compression"));
        EXPECT_EQ(tipOf(form, "Text2"),
                  QStringLiteral("This is the number of files that were actually copied from your "
                                 "UT Cache"));
        EXPECT_EQ(tipOf(form, "Command2"), QStringLiteral("Click Here to begin Compression"));
        EXPECT_EQ(control<QPushButton>(form, "Command2").text(), QStringLiteral("&Start"));
        EXPECT_EQ(control<QPushButton>(form, "Command3").text(), QStringLiteral("&Close"));
    }
};

TEST_F(BatchForms, TheCompressorsTexts) {
    comp2& form = compression({});
    EXPECT_EQ(form.windowTitle(), QStringLiteral("UT File Compressor"));
    EXPECT_EQ(form.Title->text(), QStringLiteral("File Compressor"));
    EXPECT_EQ(labelOf(form, "Label1"), QStringLiteral("Original File(s)"));
    EXPECT_EQ(labelOf(form, "Label2"), QStringLiteral("Compressed File(s)"));
    EXPECT_EQ(labelOf(form, "Label3"), QStringLiteral("Destination for Compressed files:"));
    EXPECT_EQ(labelOf(form, "Label4"), QStringLiteral("# Of Existing Files Not Compressed:"));
    expectCommonTexts(form);
}

TEST_F(BatchForms, TheDecompressorsTexts) {
    decomp2& form = decompression({});
    EXPECT_EQ(form.windowTitle(), QStringLiteral("UT File Deompressor"));
    EXPECT_EQ(form.Title->text(), QStringLiteral("File Decompressor"));
    EXPECT_EQ(labelOf(form, "Label1"), QStringLiteral("Compressed File(s)"));
    EXPECT_EQ(labelOf(form, "Label2"), QStringLiteral("Decompressed File(s)"));
    EXPECT_EQ(labelOf(form, "Label3"), QStringLiteral("Destination for Decompressed files:"));
    EXPECT_EQ(labelOf(form, "Label4"), QStringLiteral("Existing files found:"));
    EXPECT_EQ(control<QCheckBox>(form, "Check1").text(),
              QStringLiteral("Overwrite Existing Files"));
    expectCommonTexts(form);
}

TEST_F(BatchForms, ShowTheDroppedFilesAndTheDestination) {
    comp2& form = compression({R"(C:\Maps\a.unr)", R"(C:\b.u)"});
    EXPECT_THAT(rows(form, "ListView1"), ElementsAre(R"(C:\Maps\a.unr|3)", R"(C:\b.u|3)"));
    EXPECT_EQ(boxOf(form, "Text1"), QStringLiteral("C:\\Out"));
    EXPECT_EQ(control<QProgressBar>(form, "ProgressBar1").maximum(), 2);
    EXPECT_EQ(progressOf(form), 0);
    EXPECT_EQ(world_.events.pumps, 1);
}

TEST_F(BatchForms, ACompressionShowsItsResults) {
    disk_.write(R"(C:\Out\b.u.uz)", "old one");
    comp2& form = compression({R"(C:\Maps\a.unr)", R"(C:\b.u)"});
    start(form, Answer::No);
    EXPECT_THAT(rows(form, "ListView2"), ElementsAre(R"(C:\Out\a.unr.uz|9)", R"(C:\Out\b.u.uz|7)"));
    EXPECT_EQ(boxOf(form, "Text2"), QStringLiteral("1"));
    EXPECT_EQ(progressOf(form), 2);
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(control<QPushButton>(form, "Command2").isEnabled());
}

TEST_F(BatchForms, ADecompressionShowsItsResults) {
    disk_.write(R"(C:\Out\b.u)", "old");
    decomp2& form = decompression({R"(C:\Packed\a.unr.uz)", R"(C:\Packed\b.u.uz)"});
    start(form, Answer::No);
    EXPECT_THAT(rows(form, "ListView2"), ElementsAre(R"(C:\Out\a.unr|3)"));
    EXPECT_EQ(boxOf(form, "Text2"), QStringLiteral("1"));
    EXPECT_EQ(progressOf(form), 2);
    EXPECT_EQ(disk_.read(R"(C:\Out\b.u)"), "old");
}

TEST_F(BatchForms, TheCheckBoxLetsExistingFilesBeReplaced) {
    disk_.write(R"(C:\Out\a.unr)", "old");
    decomp2& form = decompression({R"(C:\Packed\a.unr.uz)"});
    control<QCheckBox>(form, "Check1").click();
    start(form, Answer::No);
    EXPECT_EQ(disk_.read(R"(C:\Out\a.unr)"), "map");
    control<QCheckBox>(form, "Check1").click();
    start(form, Answer::No);
    EXPECT_EQ(world_.processes.runs.size(), 1u);
}

TEST_F(BatchForms, WhileABatchRunsTheFormTakesNoInputAndCannotBeClosed) {
    comp2& form = compression({R"(C:\a.unr)"});
    bool looked = false;
    duringRun([&] {
        looked = true;
        EXPECT_FALSE(form.isEnabled());
        // What is seen, whatever the form's own pointer says: a disabled widget shows none.
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        form.close();
        EXPECT_TRUE(form.isVisible());
    });
    start(form, Answer::No);
    EXPECT_TRUE(looked);
    EXPECT_TRUE(form.isEnabled());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(BatchForms, TheHourglassGoesWithAFormThatIsUnloadedDuringItsBatch) {
    comp2& form = compression({R"(C:\a.unr)"});
    duringRun([&] { forms_.unload(form); });
    control<QPushButton>(form, "Command2").click();
    test::serveEvents();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(BatchForms, ACompressionEndsBeforeItsNextFileOnceAllFormsWereUnloaded) {
    comp2& form = compression({R"(C:\a.unr)", R"(C:\b.unr)"});
    duringRun([&] { forms_.UnloadAllForms(); });
    control<QPushButton>(form, "Command2").click();
    EXPECT_THAT(packer_.commandLines(),
                ElementsAre(R"(C:\UnrealTournament\System\ucc.exe compress "C:\a.unr")"));
    EXPECT_THAT(world_.dialogs.messages, IsEmpty());
    EXPECT_EQ(disk_.read(R"(C:\Out\a.unr.uz)"), test::Packer::compressed("a.unr", "map"));
}

TEST_F(BatchForms, ADecompressionEndsBeforeItsNextFileOnceAllFormsWereUnloaded) {
    decomp2& form = decompression({R"(C:\a.unr.uz)", R"(C:\b.unr.uz)"});
    duringRun([&] { forms_.UnloadAllForms(); });
    control<QPushButton>(form, "Command2").click();
    EXPECT_THAT(packer_.commandLines(),
                ElementsAre(R"(C:\UnrealTournament\System\ucc.exe decompress "C:\a.unr.uz")"));
    EXPECT_THAT(world_.dialogs.messages, IsEmpty());
    EXPECT_EQ(disk_.read(R"(C:\Out\a.unr)"), "map");
}

TEST_F(BatchForms, TheBatchComesToTheFrontWhenTheCompressorIsChosenAgain) {
    const comp2& form = compression({R"(C:\a.unr)"});
    forms_.get<comp>().hide();
    showCompressor(forms_);
    EXPECT_FALSE(forms_.get<comp>().isVisible());
    EXPECT_TRUE(form.isVisible());
    forms_.unload(forms_.get<comp2>());
    showCompressor(forms_);
    EXPECT_TRUE(forms_.get<comp>().isVisible());
}

TEST_F(BatchForms, EscClosesNeitherAListNorABatch) {
    comp2& compressing = compression({R"(C:\a.unr)"});
    QTest::keyClick(&compressing, Qt::Key_Escape);
    EXPECT_TRUE(compressing.isVisible());
    QTest::keyClick(&forms_.get<comp>(), Qt::Key_Escape);
    EXPECT_NE(forms_.loaded<comp>(), nullptr);
}

TEST_F(BatchForms, TheBarOfAnEmptyListKeepsItsDesignedEnd) {
    decomp2& form = decompression({});
    EXPECT_EQ(control<QProgressBar>(form, "ProgressBar1").maximum(), 100);
}

TEST_F(BatchForms, ALaterRunGoesWhereTheDestinationPointsByThen) {
    decomp2& form = decompression({R"(C:\a.unr.uz)"});
    start(form, Answer::No);
    disk_.makeFolder(R"(C:\Later)");
    program_.DecompressDest = R"(C:\Later)";
    start(form, Answer::No);
    EXPECT_EQ(disk_.read(R"(C:\Later\a.unr)"), "map");
    EXPECT_THAT(rows(form, "ListView2"), ElementsAre(R"(C:\Later\a.unr|3)"));
}

TEST_F(BatchForms, AfterABatchTheKeyboardIsBackOnTheButtons) {
    comp2& form = compression({R"(C:\a.unr)"});
    start(form, Answer::No);
    EXPECT_EQ(form.focusWidget(), &control<QPushButton>(form, "Command2"));
}

TEST_F(BatchForms, OnYesTheWholeCompressorCloses) {
    start(compression({R"(C:\a.unr)"}), Answer::Yes);
    EXPECT_EQ(forms_.loaded<comp2>(), nullptr);
    EXPECT_EQ(forms_.loaded<comp>(), nullptr);
}

TEST_F(BatchForms, OnYesTheWholeDecompressorCloses) {
    start(decompression({R"(C:\a.unr.uz)"}), Answer::Yes);
    EXPECT_EQ(forms_.loaded<decomp2>(), nullptr);
    EXPECT_EQ(forms_.loaded<decomp>(), nullptr);
}

TEST_F(BatchForms, EveryWayOutOfTheCompressionEndsTheWholeTool) {
    for (const char* button : {"Command3", "CommandX"}) {
        comp2& form = compression({R"(C:\a.unr)"});
        control<QPushButton>(form, button).click();
        EXPECT_EQ(forms_.loaded<comp2>(), nullptr) << button;
        EXPECT_EQ(forms_.loaded<comp>(), nullptr) << button;
    }
}

TEST_F(BatchForms, ClosingTheDecompressionKeepsTheDroppedFiles) {
    decomp2& form = decompression({R"(C:\a.unr.uz)"});
    control<QPushButton>(form, "Command3").click();
    EXPECT_EQ(forms_.loaded<decomp2>(), nullptr);
    ASSERT_NE(forms_.loaded<decomp>(), nullptr);
    EXPECT_EQ(forms_.loaded<decomp>()->dropped().count(), 1u);
}

TEST_F(BatchForms, AFailureOfTheFirstFileEndsTheProgramWithTheReport) {
    comp2& form = compression({R"(C:\a.unr)"});
    packer_.failing = {R"(C:\a.unr)"};
    world_.dialogs.answer(Answer::Ok);
    start(form, Answer::Ok);
    EXPECT_EQ(world_.dialogs.messages.at(1).text, "Run-time error '53':\n\nFile not found");
    EXPECT_TRUE(end_.ended());
}

TEST_F(BatchForms, AFileThatHasGoneSinceItsDropEndsTheProgramWithTheReport) {
    disk_.write(R"(C:\a.unr)", "map");
    forms_.show<comp>();
    comp& list = forms_.get<comp>();
    test::dropFiles(listOf(list, "ListView1"), {disk_.at(R"(C:\a.unr)")});
    std::filesystem::remove(disk_.at(R"(C:\a.unr)"));
    world_.dialogs.pick(test::destination);
    world_.dialogs.answer(Answer::Ok);
    control<QPushButton>(list, "Command2").click();
    EXPECT_EQ(world_.dialogs.messages.at(0).text, "Run-time error '53':\n\nFile not found");
}

TEST_F(BatchForms, TheFirstSkinLeavesTheSecondListAsItWas) {
    program_.settings.Skin = "1";
    comp2& form = compression({});
    program_.settings.Skin = "0";
    ApplySkin(program_, forms_, form);
    EXPECT_EQ(listOf(form, "ListView1").palette().color(QPalette::Base), QColor(64, 64, 64));
    EXPECT_EQ(listOf(form, "ListView2").palette().color(QPalette::Base), QColor(0, 0, 192));
}

}  // namespace
}  // namespace tessaro
