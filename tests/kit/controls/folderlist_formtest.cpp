#include "kit/controls/folderlist.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <QTest>
#include <filesystem>

#include "support/forms/formsfixture.h"

namespace tessaro {
namespace {

using ::testing::ElementsAre;

class FolderLists : public ::testing::Test {
  protected:
    FolderLists() {
        for (const char* folder : {"C:\\Games\\UT\\Cache", "C:\\Games\\UT\\Maps",
                                   "C:\\Games\\UT\\System", "C:\\Games\\UT\\.hidden"})
            world_.makeFolder(folder);
        world_.host.hide(".hidden");
        world_.write("C:\\Games\\UT\\readme.txt", "no folder");
        list_.use(world_.files);
        list_.setPath("C:\\Games\\UT");
        list_.resize(300, 300);
        list_.show();
    }

    // Names in the order shown, each with two blanks per level.
    std::vector<std::string> shown() const {
        std::vector<std::string> rows;
        for (QTreeWidgetItemIterator it(const_cast<FolderList*>(&list_)); *it; ++it) {
            int level = 0;
            for (const auto* above = (*it)->parent(); above != nullptr; above = above->parent())
                ++level;
            rows.push_back(std::string(static_cast<std::size_t>(2 * level), ' ') +
                           (*it)->text(0).toStdString());
        }
        return rows;
    }
    QPoint placeOf(const char* name) const {
        const auto items =
            list_.findItems(QLatin1String(name), Qt::MatchExactly | Qt::MatchRecursive);
        return list_.visualItemRect(items.value(0)).center();
    }

    test::TestWorld world_;
    FolderList list_;
};

TEST_F(FolderLists, ShowsTheWayFromTheRootAndTheFoldersBelow) {
    EXPECT_EQ(list_.path(), "C:\\Games\\UT");
    EXPECT_THAT(shown(), ElementsAre("C:\\", "  Games", "    UT", "      Cache", "      Maps",
                                     "      System"));
    EXPECT_EQ(list_.currentItem()->text(0), QStringLiteral("UT"));
}

TEST_F(FolderLists, NamesAreSpelledAsOnTheDisk) {
    list_.setPath("c:/GAMES/ut/maps");
    EXPECT_EQ(list_.path(), "C:\\Games\\UT\\Maps");
}

TEST_F(FolderLists, AFolderThatIsNotThereRaises76AndADrive68) {
    EXPECT_EQ(test::errorOf([&] { list_.setPath("C:\\Games\\Other"); }), 76);
    EXPECT_EQ(test::errorOf([&] { list_.setPath("C:\\Games\\UT\\readme.txt"); }), 76);
    EXPECT_EQ(test::errorOf([&] { list_.setPath("Q:\\"); }), 68);
    EXPECT_EQ(list_.path(), "C:\\Games\\UT");
}

TEST_F(FolderLists, OnlyAnotherFolderIsAChange) {
    QSignalSpy changes(&list_, &FolderList::changed);
    list_.setPath("C:\\Games\\UT");
    EXPECT_EQ(changes.count(), 0);
    list_.setPath("C:\\Games");
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(FolderLists, OpeningAFolderAgainReadsItAnew) {
    world_.makeFolder("C:\\Games\\UT\\Textures");
    list_.setPath("C:\\Games\\UT");
    EXPECT_EQ(shown().back(), "      Textures");
}

TEST_F(FolderLists, ARootIsAFolder) {
    list_.setPath("C:\\");
    EXPECT_EQ(list_.path(), "C:\\");
    EXPECT_THAT(shown(), ElementsAre("C:\\", "  Games"));
}

TEST_F(FolderLists, ASingleClickOnlySelectsAndADoubleClickOpens) {
    QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, placeOf("Maps"));
    EXPECT_EQ(list_.path(), "C:\\Games\\UT");
    EXPECT_EQ(list_.currentItem()->text(0), QStringLiteral("Maps"));
    QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, placeOf("Maps"));
    EXPECT_EQ(list_.path(), "C:\\Games\\UT\\Maps");
}

TEST_F(FolderLists, ADoubleClickOnAFolderAboveGoesUp) {
    QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, placeOf("Games"));
    QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, placeOf("Games"));
    EXPECT_EQ(list_.path(), "C:\\Games");
}

TEST_F(FolderLists, TheKeyboardSelectsOpensAndGoesUp) {
    QTest::keyClick(&list_, Qt::Key_Down);
    EXPECT_EQ(list_.path(), "C:\\Games\\UT");
    QTest::keyClick(&list_, Qt::Key_Return);
    EXPECT_EQ(list_.path(), "C:\\Games\\UT\\Cache");
    QTest::keyClick(&list_, Qt::Key_Backspace);
    EXPECT_EQ(list_.path(), "C:\\Games\\UT");
    QTest::keyClick(&list_, Qt::Key_Backspace);
    QTest::keyClick(&list_, Qt::Key_Backspace);
    QTest::keyClick(&list_, Qt::Key_Backspace);
    EXPECT_EQ(list_.path(), "C:\\");
}

TEST_F(FolderLists, TypedLettersFindAFolder) {
    QTest::keyClicks(&list_, QStringLiteral("sy"));
    EXPECT_EQ(list_.currentItem()->text(0), QStringLiteral("System"));
}

TEST_F(FolderLists, AFolderThatMayNotBeEnteredLeavesTheListAsItIs) {
    world_.host.refuse(test::Call::Status, errors::PermissionDenied, "Maps/.");
    EXPECT_EQ(test::errorOf([&] { list_.setPath("C:\\Games\\UT\\Maps"); }),
              errors::PermissionDenied);
    QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, placeOf("Maps"));
    EXPECT_EQ(list_.path(), "C:\\Games\\UT");
}

TEST_F(FolderLists, AFolderThatHasGoneLeavesTheListAsItIs) {
    std::filesystem::remove(world_.at("C:\\Games\\UT\\Maps"));
    QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, placeOf("Maps"));
    QTest::keyClick(&list_, Qt::Key_Return);
    EXPECT_EQ(list_.path(), "C:\\Games\\UT");
}

TEST_F(FolderLists, TheHighlightedFolderIsPickedTheOpenOneAtFirst) {
    EXPECT_EQ(list_.picked(), "C:\\Games\\UT");
    QTest::keyClick(&list_, Qt::Key_Down);
    EXPECT_EQ(list_.picked(), "C:\\Games\\UT\\Cache");
    EXPECT_EQ(list_.path(), "C:\\Games\\UT");
}

}  // namespace
}  // namespace tessaro
