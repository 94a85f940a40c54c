#include "kit/controls/wrapping.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QVBoxLayout>
#include <algorithm>

namespace tessaro {
namespace {

template <class Control>
struct Plain;
template <>
struct Plain<WrappingOption> : QRadioButton {};
template <>
struct Plain<WrappingLabel> : QLabel {};

template <class Control>
class WrappingControls : public ::testing::Test {
  protected:
    WrappingControls() {
        auto* layout = new QVBoxLayout(&form_);
        layout->addWidget(&control_);
        layout->addStretch();
        control_.setText(QStringLiteral("A folder of its own for all the maps and textures"));
        form_.show();
    }
    void resize(int width) {
        form_.resize(width, 200);
        QCoreApplication::processEvents();
    }
    QSize plainSize() const {
        Plain<Control> plain;
        plain.setText(control_.text());
        return plain.sizeHint();
    }
    int oneLine() const { return plainSize().height(); }
    int wholeWidth() const { return plainSize().width(); }
    // Whether letters stand in more rows of pixels than one line has, past an option's mark.
    bool paintsTwoLines() {
        const QImage picture = control_.grab().toImage();
        int first = picture.height();
        int last = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 30; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y).lightness() >= 60) continue;
                first = std::min(first, y);
                last = y;
            }
        return last - first > control_.fontMetrics().height();
    }

    QWidget form_;
    Control& control_ = *new Control;
};

using Controls = ::testing::Types<WrappingOption, WrappingLabel>;
TYPED_TEST_SUITE(WrappingControls, Controls);

TYPED_TEST(WrappingControls, TakeOneLineWhereThereIsRoom) {
    this->resize(this->wholeWidth() + 100);
    EXPECT_EQ(this->control_.height(), this->oneLine());
    EXPECT_FALSE(this->paintsTwoLines());
}

TYPED_TEST(WrappingControls, TakeTwoLinesWhereThereIsNot) {
    this->resize(this->wholeWidth() * 3 / 4);
    EXPECT_GE(this->control_.height(), this->oneLine() + this->control_.fontMetrics().height());
    EXPECT_TRUE(this->paintsTwoLines());
    this->resize(this->wholeWidth() + 100);
    EXPECT_EQ(this->control_.height(), this->oneLine());
}

TYPED_TEST(WrappingControls, NeedLittleMoreThanHalfTheWidth) {
    EXPECT_LT(this->control_.minimumSizeHint().width(), this->wholeWidth() * 2 / 3);
    EXPECT_EQ(this->control_.sizeHint().width(), this->wholeWidth());
}

TYPED_TEST(WrappingControls, KeepTheirTextAsItIs) {
    this->resize(this->wholeWidth() * 3 / 4);
    EXPECT_EQ(this->control_.text(),
              QStringLiteral("A folder of its own for all the maps and textures"));
}

TYPED_TEST(WrappingControls, AWordAloneStaysInOneLine) {
    this->control_.setText(QStringLiteral("Unbreakable"));
    EXPECT_EQ(this->control_.minimumSizeHint(), this->control_.sizeHint());
}

}  // namespace
}  // namespace tessaro
