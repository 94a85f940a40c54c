#include "kit/controls/option.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTest>
#include <QVBoxLayout>

#include "kit/forms/handler.h"
#include "support/forms/formsfixture.h"
#include "support/forms/reader.h"

namespace tessaro::test {
namespace {

using Heard = std::vector<std::string>;

// A window with a check box and two options, which write down what they were set to.
class Options : public FormsTest {
  protected:
    Options() {
        auto* layout = new QVBoxLayout(&window_);
        for (QAbstractButton* button :
             std::initializer_list<QAbstractButton*>{&first_, &second_, &check_}) {
            layout->addWidget(button);
            onSet(*button, forms_, [this, button] {
                heard_.push_back(button->text().toStdString() + (button->isChecked() ? "+" : "-"));
            });
        }
        window_.show();
        QApplication::setActiveWindow(&window_);
        serveEvents();
    }

    QWidget window_;
    QRadioButton& first_ = *new QRadioButton(QStringLiteral("first"));
    QRadioButton& second_ = *new QRadioButton(QStringLiteral("second"));
    QCheckBox& check_ = *new QCheckBox(QStringLiteral("check"));
    Heard heard_;
};

TEST_F(Options, AClickOfTheMouseIsHeardOnce) {
    QTest::mouseClick(&second_, Qt::LeftButton, {}, QPoint(8, second_.height() / 2));
    QTest::mouseClick(&check_, Qt::LeftButton, {}, QPoint(8, check_.height() / 2));
    EXPECT_EQ(heard_, (Heard{"second+", "check+"}));
}

TEST_F(Options, AClickOnAnOptionThatIsChosenIsHeardToo) {
    first_.click();
    first_.click();
    EXPECT_EQ(heard_, (Heard{"first+", "first+"}));
}

TEST_F(Options, KeysAreHeardOnce) {
    first_.setFocus();
    QTest::keyClick(&first_, Qt::Key_Space);
    QTest::keyClick(&first_, Qt::Key_Down);
    QTest::keyClick(&check_, Qt::Key_Space);
    EXPECT_EQ(heard_, (Heard{"first+", "second+", "check+"}));
}

TEST_F(Options, AScreenReadersToggleIsHeardOnceAndTakesTheFocus) {
    toggle(second_);
    EXPECT_TRUE(second_.hasFocus());
    toggle(first_);
    toggle(check_);
    EXPECT_TRUE(check_.hasFocus());
    toggle(check_);
    EXPECT_EQ(heard_, (Heard{"second+", "first+", "check+", "check-"}));
}

TEST_F(Options, AScreenReadersPressIsHeardOnce) {
    act(second_, QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !heard_.empty() && !second_.isDown(); }));
    EXPECT_EQ(heard_, (Heard{"second+"}));
}

TEST_F(Options, AScreenReaderThatOnlyMovesTheFocusIsNotHeard) {
    act(second_, QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(second_.hasFocus());
    EXPECT_EQ(heard_, Heard{});
}

TEST_F(Options, WhatIsSetOtherwiseIsHeardOnce) {
    second_.setChecked(true);
    check_.setChecked(true);
    check_.setChecked(true);
    EXPECT_EQ(heard_, (Heard{"second+", "check+"}));
}

TEST_F(Options, APressThatIsNoClickLeavesNoTrace) {
    QTest::mousePress(&check_, Qt::LeftButton, {}, QPoint(8, check_.height() / 2));
    QTest::mouseMove(&check_, QPoint(-50, -50));
    QTest::mouseRelease(&check_, Qt::LeftButton, {}, QPoint(-50, -50));
    EXPECT_EQ(heard_, Heard{});
    toggle(check_);
    EXPECT_EQ(heard_, (Heard{"check+"}));
}

TEST_F(Options, WhatTheProgramFillsInWithItsSignalsBlockedIsNotHeard) {
    const QSignalBlocker unheard(second_);
    first_.setChecked(true);
    second_.setChecked(true);
    EXPECT_EQ(heard_, (Heard{"first+"}));
}

}  // namespace
}  // namespace tessaro::test
