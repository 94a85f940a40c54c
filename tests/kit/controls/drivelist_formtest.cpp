#include "kit/controls/drivelist.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include "kit/look/style.h"
#include "support/forms/formsfixture.h"

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

TEST_F(DriveLists, AWheelTurnWithoutFocusChangesNothing) {
    list_.clearFocus();
    QWheelEvent turn(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, -120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&list_, &turn);
    EXPECT_EQ(list_.drive(), "c:");
}

}  // namespace
}  // namespace tessaro
