#include "kit/controls/wrappingoption.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QVBoxLayout>

namespace tessaro {
namespace {

class WrappingOptions : public ::testing::Test {
  protected:
    WrappingOptions() {
        auto* layout = new QVBoxLayout(&form_);
        layout->addWidget(&option_);
        layout->addStretch();
        option_.setText(QStringLiteral("A folder of its own for all the maps and textures"));
        form_.show();
    }
    void resize(int width) {
        form_.resize(width, 200);
        QCoreApplication::processEvents();
    }
    int oneLine() const { return QRadioButton(option_.text()).sizeHint().height(); }
    int wholeWidth() const { return QRadioButton(option_.text()).sizeHint().width(); }
    // Rows of the option's picture below its first line that hold letters.
    bool paintsBelowFirstLine() {
        const QImage picture = option_.grab().toImage();
        for (int y = oneLine(); y < picture.height(); ++y)
            for (int x = 30; x < picture.width(); ++x)
                if (picture.pixelColor(x, y).lightness() < 60) return true;
        return false;
    }

    QWidget form_;
    WrappingOption& option_ = *new WrappingOption;
};

TEST_F(WrappingOptions, TakeOneLineWhereThereIsRoom) {
    resize(wholeWidth() + 100);
    EXPECT_EQ(option_.height(), oneLine());
    EXPECT_FALSE(paintsBelowFirstLine());
}

TEST_F(WrappingOptions, TakeTwoLinesWhereThereIsNot) {
    resize(wholeWidth() * 3 / 4);
    EXPECT_GE(option_.height(), oneLine() + option_.fontMetrics().height());
    EXPECT_TRUE(paintsBelowFirstLine());
    resize(wholeWidth() + 100);
    EXPECT_EQ(option_.height(), oneLine());
}

TEST_F(WrappingOptions, NeedLittleMoreThanHalfTheWidth) {
    EXPECT_LT(option_.minimumSizeHint().width(), wholeWidth() * 2 / 3);
    EXPECT_EQ(option_.sizeHint().width(), wholeWidth());
}

TEST_F(WrappingOptions, KeepTheirTextAsItIs) {
    resize(wholeWidth() * 3 / 4);
    EXPECT_EQ(option_.text(), QStringLiteral("A folder of its own for all the maps and textures"));
}

TEST_F(WrappingOptions, AWordAloneStaysInOneLine) {
    option_.setText(QStringLiteral("Unbreakable"));
    EXPECT_EQ(option_.minimumSizeHint(), option_.sizeHint());
}

}  // namespace
}  // namespace tessaro
