#include "kit/controls/drivelist.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include "kit/look/style.h"
#include "support/forms/formsfixture.h"
#include "support/forms/reader.h"

namespace tessaro {
namespace {

class DriveLists : public ::testing::Test {
  protected:
    DriveLists() {
        list_.use(world_.files);
        list_.show();
    }
    test::TestWorld world_;
    DriveList list_;
    QSignalSpy changes_{&list_, &DriveList::changed};
};

TEST_F(DriveLists, ListsTheDrivesWithTheCurrentOneChosen) {
    ASSERT_EQ(list_.count(), 2);
    EXPECT_EQ(list_.itemText(0), QStringLiteral("c:"));
    EXPECT_EQ(list_.itemText(1), QStringLiteral("z:"));
    EXPECT_EQ(list_.drive(), "c:");
}

TEST_F(DriveLists, ADriveIsChosenByTheFirstLetterOfAText) {
    list_.setDrive("Z:\\home");
    EXPECT_EQ(list_.drive(), "z:");
    EXPECT_EQ(changes_.count(), 1);
    list_.setDrive("z");
    EXPECT_EQ(changes_.count(), 1);
}

TEST_F(DriveLists, ADriveThatIsNotThereRaises68) {
    EXPECT_EQ(test::errorOf([&] { list_.setDrive("q:"); }), 68);
    EXPECT_EQ(test::errorOf([&] { list_.setDrive(""); }), 68);
    EXPECT_EQ(list_.drive(), "c:");
}

TEST_F(DriveLists, TheKeyboardChooses) {
    QTest::keyClick(&list_, Qt::Key_Down);
    EXPECT_EQ(list_.drive(), "z:");
    QTest::keyClick(&list_, Qt::Key_C);
    EXPECT_EQ(list_.drive(), "c:");
    EXPECT_EQ(changes_.count(), 2);
}

TEST_F(DriveLists, TheGroundOfASkinIsReallyPainted) {
    list_.resize(150, 30);
    setFieldGround(list_, QColor(192, 0, 0));
    EXPECT_EQ(list_.grab().toImage().pixelColor(75, 15), QColor(192, 0, 0));
}

TEST_F(DriveLists, AScreenReaderIsToldTheNameAndTheChosenDrive) {
    list_.setAccessibleName(QStringLiteral("Drive"));
    EXPECT_EQ(test::nameFor(list_), "Drive c:");
    list_.setDrive("z:");
    EXPECT_EQ(test::nameFor(list_), "Drive z:");
    EXPECT_EQ(test::reader(list_).text(QAccessible::Value), QStringLiteral("z:"));
}

TEST_F(DriveLists, AScreenReaderOpensTheListAndFindsTheDrivesInIt) {
    QAccessibleInterface& heard = test::reader(list_);
    EXPECT_EQ(heard.role(), QAccessible::ComboBox);
    test::act(list_, QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(heard.state().expanded);
    ASSERT_EQ(heard.childCount(), 1);
    EXPECT_EQ(heard.indexOfChild(heard.child(0)), 0);
    EXPECT_EQ(heard.child(0)->child(1)->text(QAccessible::Name), QStringLiteral("z:"));
    test::act(list_, QAccessibleActionInterface::showMenuAction());
    EXPECT_FALSE(heard.state().expanded);
}

TEST_F(DriveLists, AWheelTurnWithoutFocusChangesNothing) {
    list_.clearFocus();
    QWheelEvent turn(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, -120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&list_, &turn);
    EXPECT_EQ(list_.drive(), "c:");
}

}  // namespace
}  // namespace tessaro
