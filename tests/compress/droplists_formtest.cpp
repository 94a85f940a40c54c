#include <gmock/gmock.h>

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSysInfo>
#include <QTest>
#include <QUrl>

#include "compress/comp.h"
#include "compress/comp2.h"
#include "compress/decomp.h"
#include "compress/decomp2.h"
#include "compress/dropping.h"
#include "compress/packer.h"
#include "core/MainFrm.h"
#include "support/disk.h"

namespace tessaro {
namespace {

using test::control;
using test::dropAddresses;
using test::dropFiles;
using test::rowsOf;
using test::WhenItComes;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DropForms : public test::FormsTest {
  protected:
    test::Packer packer_{world_};
    test::TestWorld& disk_ = world_.world;

    HostPath file(const std::string& gamePath, const std::string& bytes = "12") {
        disk_.write(gamePath, bytes);
        return disk_.at(gamePath);
    }
    // What stands for a file behind the machine in an address.
    static QByteArray addressPath(const HostPath& path) {
        return QUrl::fromLocalFile(QString::fromStdString(path.string())).path().toUtf8();
    }
    template <class T>
    T& shown() {
        forms_.show<T>();
        return forms_.get<T>();
    }
    static ListView& list(Form& form) { return control<ListView>(form, "ListView1"); }
    static void click(Form& form, const char* button) {
        control<QPushButton>(form, button).click();
    }
    static QString textOf(Form& form, const char* label) {
        return control<QLabel>(form, label).text();
    }
    static QStringList captionsOf(const ListView& list) {
        QStringList captions;
        for (int i = 0; i < list.header()->count(); ++i)
            captions += list.model()->headerData(i, Qt::Horizontal).toString();
        return captions;
    }
};

TEST_F(DropForms, TheCompressorsTexts) {
    comp& form = shown<comp>();
    EXPECT_EQ(form.windowTitle(), QStringLiteral("UT File Compressor"));
    EXPECT_EQ(form.Title->text(), QStringLiteral("File Compressor"));
    EXPECT_EQ(textOf(form, "Label1"),
              QStringLiteral("Drag files you want to compress to the box below"));
    EXPECT_EQ(textOf(form, "Label3"), QStringLiteral("Files Only (No Folders)"));
    EXPECT_EQ(control<QPushButton>(form, "Command1").text(), QStringLiteral("&Remove"));
    EXPECT_EQ(control<QPushButton>(form, "Command2").text(), QStringLiteral("&Compress"));
    EXPECT_EQ(list(form).toolTip(),
              QStringLiteral("Drag files from Explorer to this box to build list then click "
                             "\"Compress\""));
    EXPECT_EQ(captionsOf(list(form)),
              QStringList({QStringLiteral("File Name"), QStringLiteral("File Location"),
                           QStringLiteral("File Size")}));
}

TEST_F(DropForms, TheDecompressorsTexts) {
    decomp& form = shown<decomp>();
    EXPECT_EQ(form.windowTitle(), QStringLiteral("UT File Decompressor"));
    EXPECT_EQ(form.Title->text(), QStringLiteral("File Decompressor"));
    EXPECT_EQ(textOf(form, "Label1"),
              QStringLiteral("Drag files you want to decompress to the box below"));
    EXPECT_EQ(textOf(form, "Label2"), QStringLiteral("Compressed files must have .uz extension"));
    EXPECT_EQ(control<QPushButton>(form, "Command2").text(), QStringLiteral("&Decompress"));
    EXPECT_EQ(list(form).toolTip(), QString());
    EXPECT_EQ(captionsOf(list(form)),
              QStringList({QStringLiteral("File Name"), QStringLiteral("File Location"),
                           QStringLiteral("File Size")}));
}

TEST_F(DropForms, FilesFromAFileManagerBecomeRowsAndAreNeverMoved) {
    comp& form = shown<comp>();
    const auto action = dropFiles(list(form), {file(R"(C:\Maps\a.unr)"), file(R"(C:\b.u)", "123")});
    EXPECT_EQ(action, Qt::CopyAction);
    EXPECT_THAT(rowsOf(form.dropped()), ElementsAre(R"(a.unr|C:\Maps\|2)", R"(b.u|C:\|3)"));
    EXPECT_EQ(list(form).model()->rowCount(), 2);
}

TEST_F(DropForms, FilesOutsideTheDriveOfTheGameAreNamedFromTheRoot) {
    comp& form = shown<comp>();
    const HostPath outside = disk_.folder() / "outside.unr";
    test::TestWorld::writeHost(outside, "12");
    dropFiles(list(form), {outside});
    const std::string folder = world_.program.paths.toGame(disk_.folder());
    EXPECT_THAT(rowsOf(form.dropped()), ElementsAre("outside.unr|" + folder + "\\|2"));
    EXPECT_TRUE(folder.starts_with("Z:\\")) << folder;
}

TEST_F(DropForms, UnusualNamesArriveAsTheyAre) {
    comp& form = shown<comp>();
    dropFiles(list(form), {file(R"(C:\My 'Maps'\DM-[A] 100%20 (é) #1.unr)")});
    EXPECT_THAT(rowsOf(form.dropped()), ElementsAre(R"(DM-[A] 100%20 (é) #1.unr|C:\My 'Maps'\|2)"));
}

TEST_F(DropForms, ANameThatIsNoUtf8ArrivesAsItIs) {
    if (!test::hasOddNames()) GTEST_SKIP() << test::noOddNames;
    comp& form = shown<comp>();
    const HostPath named = disk_.driveC() / "caf\xE9.unr";
    test::TestWorld::writeHost(named, "12");
    dropAddresses(list(form), "file://" + QByteArray::fromStdString(disk_.driveC().string()) +
                                  "/caf%E9.unr\r\n");
    EXPECT_THAT(rowsOf(form.dropped()), ElementsAre("caf\xE9.unr|C:\\|2"));
}

TEST_F(DropForms, AnAddressThatNamesThisMachineIsAFileOfIt) {
    comp& form = shown<comp>();
    const QByteArray path = addressPath(file(R"(C:\a.unr)"));
    for (const QByteArray& machine :
         {QByteArray("localhost"), QSysInfo::machineHostName().toUtf8()})
        dropAddresses(list(form), "file://" + machine + path + "\r\n");
    EXPECT_THAT(rowsOf(form.dropped()), ElementsAre(R"(a.unr|C:\|2)", R"(a.unr|C:\|2)"));
}

TEST_F(DropForms, ADropOfTextIsRefusedAndChangesNothing) {
    comp& form = shown<comp>();
    QMimeData text;
    text.setText(QStringLiteral("C:\\Maps\\a.unr"));
    EXPECT_EQ(test::dragAndDrop(list(form), text), Qt::IgnoreAction);
    test::serveEvents();
    EXPECT_THAT(rowsOf(form.dropped()), IsEmpty());
}

TEST_F(DropForms, ASourceThatOnlyMovesIsRefused) {
    comp& form = shown<comp>();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file(R"(C:\a.unr)").string()))});
    EXPECT_EQ(test::dragAndDrop(list(form), data, {.actions = Qt::MoveAction}), Qt::IgnoreAction);
    test::serveEvents();
    EXPECT_THAT(rowsOf(form.dropped()), IsEmpty());
}

TEST_F(DropForms, TheEffectIsLeftAsItCameUnlessItIsAMove) {
    comp& form = shown<comp>();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file(R"(C:\a.unr)").string()))});
    EXPECT_EQ(test::dragAndDrop(list(form), data, {.proposed = Qt::LinkAction}), Qt::LinkAction);
    EXPECT_EQ(test::dragAndDrop(list(form), data, {.proposed = Qt::CopyAction}), Qt::CopyAction);
    EXPECT_EQ(test::dragAndDrop(list(form), data, {.proposed = Qt::MoveAction}), Qt::CopyAction);
    EXPECT_EQ(test::dragAndDrop(list(form), data, {.actions = Qt::MoveAction | Qt::LinkAction}),
              Qt::LinkAction);
}

TEST_F(DropForms, OfADropThatMixesFilesAndTheWebOnlyTheFilesAreTaken) {
    comp& form = shown<comp>();
    const QByteArray path = addressPath(file(R"(C:\a.unr)"));
    dropAddresses(list(form), "https://example.org/b.unr\r\nfile://" + path +
                                  "\r\nhttps://example.org/c.unr\r\n");
    EXPECT_THAT(rowsOf(form.dropped()), ElementsAre(R"(a.unr|C:\|2)"));
}

TEST_F(DropForms, ALinkToTheWebIsNoFile) {
    comp& form = shown<comp>();
    EXPECT_EQ(dropAddresses(list(form), "https://example.org/a.unr\r\n"), Qt::IgnoreAction);
    EXPECT_THAT(rowsOf(form.dropped()), IsEmpty());
}

TEST_F(DropForms, AFolderGivesNoRowInTheCompressor) {
    comp& form = shown<comp>();
    disk_.makeFolder(R"(C:\Maps)");
    EXPECT_EQ(dropFiles(list(form), {disk_.at(R"(C:\Maps)")}), Qt::CopyAction);
    EXPECT_THAT(rowsOf(form.dropped()), IsEmpty());
}

TEST_F(DropForms, TheDecompressorReportsWhatIsNotCompressedOnceTheDragIsOver) {
    decomp& form = shown<decomp>();
    world_.dialogs.answer(Answer::Ok);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file(R"(C:\a.unr)").string()))});
    test::dragAndDrop(list(form), data);
    EXPECT_THAT(world_.dialogs.messages, IsEmpty());
    test::serveEvents();
    EXPECT_EQ(world_.dialogs.messages.size(), 1u);
}

TEST_F(DropForms, AFileThatHasGoneEndsTheProgramWithTheReport) {
    comp& form = shown<comp>();
    world_.dialogs.answer(Answer::Ok);
    dropFiles(list(form), {disk_.at(R"(C:\gone.unr)")});
    EXPECT_TRUE(end_.ended());
    EXPECT_EQ(world_.dialogs.messages.at(0).text, "Run-time error '53':\n\nFile not found");
}

TEST_F(DropForms, ManyFilesInOneDropAreEachLookedAtAFewTimes) {
    comp& form = shown<comp>();
    std::vector<HostPath> files;
    for (int i = 0; i < 2000; ++i) files.push_back(file("C:\\Maps\\" + std::to_string(i) + ".unr"));
    const int looksBefore = disk_.host.count(test::Call::Status);
    const int listsBefore = disk_.host.count(test::Call::List);
    dropFiles(list(form), files);
    EXPECT_EQ(form.dropped().count(), 2000u);
    EXPECT_EQ(list(form).model()->rowCount(), 2000);
    EXPECT_LE(disk_.host.count(test::Call::Status) - looksBefore, 2000 * 12);
    EXPECT_LE(disk_.host.count(test::Call::List) - listsBefore, 20);
}

TEST_F(DropForms, RemoveTakesTheRowThatTheUserPicked) {
    comp& form = shown<comp>();
    dropFiles(list(form), {file(R"(C:\a.unr)"), file(R"(C:\b.unr)"), file(R"(C:\c.unr)")});
    click(form, "Command1");
    EXPECT_EQ(form.dropped().count(), 3u);
    list(form).setCurrentIndex(list(form).model()->index(1, 0));
    click(form, "Command1");
    EXPECT_THAT(rowsOf(form.dropped()), ElementsAre(R"(a.unr|C:\|2)", R"(c.unr|C:\|2)"));
}

TEST_F(DropForms, WithoutFilesNoBatchOpens) {
    comp& form = shown<comp>();
    world_.dialogs.answer(Answer::Ok);
    click(form, "Command2");
    EXPECT_EQ(world_.dialogs.messages.at(0).title, "No files listed");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(forms_.loaded<comp2>(), nullptr);
}

TEST_F(DropForms, ACancelledPickerOpensNoBatch) {
    comp& form = shown<comp>();
    dropFiles(list(form), {file(R"(C:\a.unr)")});
    world_.dialogs.pick("");
    click(form, "Command2");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.dropped().count(), 1u);
    EXPECT_EQ(forms_.loaded<comp2>(), nullptr);
}

TEST_F(DropForms, TheCompressorHidesBehindItsBatchWhichDoesNotBlock) {
    comp& form = shown<comp>();
    dropFiles(list(form), {file(R"(C:\a.unr)")});
    world_.dialogs.pick(test::destination);
    click(form, "Command2");
    EXPECT_FALSE(form.isVisible());
    ASSERT_NE(forms_.loaded<comp2>(), nullptr);
    EXPECT_TRUE(forms_.loaded<comp2>()->isVisible());
    EXPECT_FALSE(forms_.loaded<comp2>()->isModal());
    EXPECT_EQ(forms_.loaded<comp>(), &form);
}

TEST_F(DropForms, TheDecompressorStaysBehindItsBatchWhichBlocks) {
    decomp& form = shown<decomp>();
    dropFiles(list(form), {file(R"(C:\a.unr.uz)")});
    world_.dialogs.pick(test::destination);
    WhenItComes batch([&] { return forms_.loaded<decomp2>() != nullptr; },
                      [&] {
                          decomp2& opened = forms_.get<decomp2>();
                          EXPECT_TRUE(opened.isModal());
                          EXPECT_TRUE(form.isVisible());
                          click(opened, "Command3");
                      });
    click(form, "Command2");
    EXPECT_TRUE(batch.acted());
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.dropped().count(), 1u);
    EXPECT_EQ(forms_.loaded<decomp2>(), nullptr);
}

TEST_F(DropForms, TheCloseButtonUnloadsAndTheOneBesideItCannotBePressed) {
    comp& form = shown<comp>();
    ASSERT_NE(form.CommandQ, nullptr);
    EXPECT_EQ(form.CommandQ->text(), QStringLiteral("_"));
    EXPECT_EQ(form.CommandQ->accessibleName(), QStringLiteral("Minimise"));
    EXPECT_FALSE(form.CommandQ->isEnabled());
    form.CommandQ->click();
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.isMinimized());
    form.CommandX->click();
    EXPECT_EQ(forms_.loaded<comp>(), nullptr);
}

TEST_F(DropForms, BothFormsAreDressedInTheSkin) {
    program_.settings.Skin = "2";
    for (Form* form : {static_cast<Form*>(&shown<comp>()), static_cast<Form*>(&shown<decomp>())})
        EXPECT_EQ(list(*form).palette().color(QPalette::Base), QColor(192, 0, 0));
}

// The forms beside a main window that stands.
class DropFormsWithMainWindow : public DropForms {
  protected:
    DropFormsWithMainWindow() {
        for (const char* folder : {"Sounds", "Maps", "Textures", "Cache"})
            disk_.makeFolder(std::string(R"(C:\UnrealTournament\)") + folder);
        for (const char* ini : {"UnrealTournament.ini", "User.ini"})
            disk_.write(test::packerFolder + std::string("\\") + ini, "[Engine.Engine]\r\n");
        disk_.write(R"(C:\Tessaro\vornx.ini)", "[Misc]\r\nShowSplash=0\r\nSounds=0\r\n");
        forms_.show<MainFrm>();
    }
    MainFrm& main() { return forms_.get<MainFrm>(); }
};

TEST_F(DropFormsWithMainWindow, ClosingTheCompressorHidesAMinimisedMainWindow) {
    comp& form = shown<comp>();
    main().setState(windowstate::Minimised);
    forms_.close(form);
    EXPECT_FALSE(main().isVisible());
}

TEST_F(DropFormsWithMainWindow, ClosingTheCompressorLeavesAnOpenMainWindowAlone) {
    forms_.close(shown<comp>());
    EXPECT_TRUE(main().isVisible());
}

TEST_F(DropFormsWithMainWindow, ClosingTheDecompressorLeavesAMinimisedMainWindowAlone) {
    decomp& form = shown<decomp>();
    main().setState(windowstate::Minimised);
    forms_.close(form);
    EXPECT_TRUE(main().isVisible());
    EXPECT_TRUE(main().isMinimized());
}

}  // namespace
}  // namespace tessaro
