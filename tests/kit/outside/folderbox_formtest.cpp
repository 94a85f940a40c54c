#include "kit/outside/folderbox.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

#include "kit/look/text.h"
#include "support/forms/formsfixture.h"
#include "support/forms/reader.h"
#include "support/testworld.h"

namespace tessaro::test {
namespace {

class FolderBoxes : public ::testing::Test {
  protected:
    FolderBoxes() {
        world_.makeFolder("C:\\Games\\UT 99\\Maps");
        world_.makeFolder("C:\\Games\\Other");
    }
    FolderBox& open(const std::string& folder) {
        box_ = std::make_unique<FolderBox>(
            nullptr, world_.files, FolderPicker{"Select a Folder.", folder, "It holds Maps."});
        box_->show();
        QApplication::setActiveWindow(box_.get());
        serveEvents();
        return *box_;
    }
    template <class Control>
    Control& the(const char* name) {
        return *box_->findChild<Control*>(QLatin1String(name));
    }
    std::string path() { return fromQt(the<QLineEdit>("path").text()); }
    std::string openFolder() { return the<FolderList>("folders").path(); }
    void highlight(const char* name) {
        auto& list = the<FolderList>("folders");
        const auto found =
            list.findItems(QLatin1String(name), Qt::MatchExactly | Qt::MatchRecursive);
        list.setCurrentItem(found.constFirst());
    }
    void type(const char* text) {
        the<QLineEdit>("path").selectAll();
        QTest::keyClicks(&the<QLineEdit>("path"), QLatin1String(text));
    }
    void enter() { QTest::keyClick(&the<QLineEdit>("path"), Qt::Key_Return); }
    bool stayed(const char* notice) {
        EXPECT_EQ(fromQt(the<QLabel>("notice").text()), notice);
        return box_->isVisible() && the<QLabel>("notice").isVisible();
    }
    std::string chosen() {
        EXPECT_EQ(box_->result(), QDialog::Accepted);
        return box_->folder();
    }

    TestWorld world_;
    std::unique_ptr<FolderBox> box_;
};

TEST_F(FolderBoxes, OpensInAFolderAndSpeaksOfItAsTheProgramDoes) {
    open("c:\\games\\ut 99");
    EXPECT_EQ(openFolder(), "C:\\Games\\UT 99");
    EXPECT_EQ(path(), "C:\\Games\\UT 99");
    EXPECT_EQ(the<DriveList>("drives").drive(), "c:");
    enter();
    EXPECT_EQ(chosen(), "C:\\Games\\UT 99");
}

TEST_F(FolderBoxes, TheCaptionTellsWhatIsWantedAndThereIsRoomForIt) {
    const FolderBox& box = open("");
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Select a Folder. It holds Maps."));
    EXPECT_GT(box.width(), box.fontMetrics().horizontalAdvance(box.windowTitle()) + 60);
}

TEST_F(FolderBoxes, OpensInTheNearestFolderAboveOneThatIsNotThere) {
    open("C:\\Games\\Gone\\Deeper");
    EXPECT_EQ(openFolder(), "C:\\Games");
    open("C:\\Gone");
    EXPECT_EQ(openFolder(), "C:\\");
}

TEST_F(FolderBoxes, OpensInTheCurrentFolderWhereThereIsNotEvenTheDrive) {
    world_.paths.changeFolder("C:\\Games");
    for (const char* folder : {"Q:\\Games", ""}) {
        open(folder);
        EXPECT_EQ(openFolder(), "C:\\Games") << folder;
    }
}

TEST_F(FolderBoxes, TakesTheFolderThatIsHighlighted) {
    open("C:\\Games");
    highlight("Other");
    EXPECT_EQ(path(), "C:\\Games\\Other");
    EXPECT_EQ(openFolder(), "C:\\Games");
    box_->accept();
    EXPECT_EQ(chosen(), "C:\\Games\\Other");
}

TEST_F(FolderBoxes, TakesAFolderThatIsTyped) {
    open("C:\\");
    type("c:/games/ut 99");
    enter();
    EXPECT_EQ(chosen(), "C:\\Games\\UT 99");
}

TEST_F(FolderBoxes, ANameAloneMeansAFolderInTheOpenOne) {
    open("C:\\Games");
    type("other");
    enter();
    EXPECT_EQ(chosen(), "C:\\Games\\Other");
}

TEST_F(FolderBoxes, APathWithoutADriveStartsAtTheRoot) {
    for (const char* path : {"\\games\\other", "/games/other"}) {
        open("C:\\Games");
        type(path);
        enter();
        EXPECT_EQ(chosen(), "C:\\Games\\Other");
    }
}

TEST_F(FolderBoxes, AFolderThatIsNotThereIsNotTakenAndTheBoxSaysWhy) {
    for (const char* folder : {"C:\\Gone", "Q:\\"}) {
        open("C:\\Games");
        type(folder);
        enter();
        EXPECT_TRUE(stayed("There is no such folder. To make it, press New Folder.")) << folder;
        highlight("Other");
        EXPECT_FALSE(the<QLabel>("notice").isVisible());
    }
}

TEST_F(FolderBoxes, MakesTheFolderThatIsTyped) {
    open("C:\\Games");
    type("Mine");
    QTest::mouseClick(&the<QPushButton>("newFolder"), Qt::LeftButton);
    EXPECT_TRUE(world_.exists("C:\\Games\\Mine"));
    EXPECT_EQ(openFolder(), "C:\\Games\\Mine");
    enter();
    EXPECT_EQ(chosen(), "C:\\Games\\Mine");
}

TEST_F(FolderBoxes, SaysSoWhereAFolderCannotBeMade) {
    open("C:\\Games");
    for (const char* folder : {"Other", "C:\\Gone\\Deeper", "Q:\\Mine"}) {
        type(folder);
        QTest::mouseClick(&the<QPushButton>("newFolder"), Qt::LeftButton);
        EXPECT_TRUE(stayed("There is such a folder, or it cannot be made.")) << folder;
    }
    EXPECT_EQ(openFolder(), "C:\\Games");
}

TEST_F(FolderBoxes, GoesToTheRootOfADriveThatIsChosen) {
    open("C:\\Games");
    QTest::keyClick(&the<DriveList>("drives"), Qt::Key_Z);
    EXPECT_EQ(openFolder(), "Z:\\");
    EXPECT_EQ(path(), "Z:\\");
}

TEST_F(FolderBoxes, EscTakesNone) {
    open("C:\\Games");
    QTest::keyClick(box_.get(), Qt::Key_Escape);
    EXPECT_FALSE(box_->isVisible());
    EXPECT_EQ(box_->result(), QDialog::Rejected);
}

TEST_F(FolderBoxes, AScreenReaderIsToldWhatEachControlIs) {
    open("C:\\Games");
    EXPECT_EQ(nameFor(the<DriveList>("drives")), "Drive c:");
    EXPECT_EQ(nameFor(the<QLineEdit>("path")), "Folder");
    EXPECT_EQ(nameFor(the<FolderList>("folders")), "Folders");
}

}  // namespace
}  // namespace tessaro::test
