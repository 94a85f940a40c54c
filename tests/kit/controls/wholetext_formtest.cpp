#include "kit/controls/wholetext.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>
#include <QVBoxLayout>

namespace tessaro {
namespace {

class WholeTexts : public ::testing::Test {
  protected:
    WholeTexts() {
        auto* layout = new QVBoxLayout(&form_);
        layout->addWidget(&box_);
        showWholeTexts(form_);
        form_.resize(200, 60);
        form_.show();
    }
    ~WholeTexts() override { QToolTip::hideText(); }

    // What the tooltip says that the mouse brings up.
    QString told() {
        QToolTip::hideText();
        QCoreApplication::processEvents();
        const QPoint place = box_.rect().center();
        QHelpEvent help(QEvent::ToolTip, place, box_.mapToGlobal(place));
        QApplication::sendEvent(&box_, &help);
        return QToolTip::text();
    }

    QWidget form_;
    QLineEdit& box_ = *new QLineEdit;
    const QString path_ =
        QStringLiteral("C:\\Games\\Unreal Tournament\\and\\so\\on\\and\\so\\forth");
};

TEST_F(WholeTexts, ATextThatIsCutIsToldWhole) {
    box_.setText(path_);
    EXPECT_EQ(cutText(box_), path_);
    EXPECT_EQ(told(), path_);
}

TEST_F(WholeTexts, TheBoxsOwnTooltipFollows) {
    box_.setText(path_);
    box_.setToolTip(QStringLiteral("Where the game is"));
    EXPECT_EQ(told(), path_ + QStringLiteral("\nWhere the game is"));
    EXPECT_EQ(box_.toolTip(), QStringLiteral("Where the game is"));
}

TEST_F(WholeTexts, WhereAllIsSeenTheTooltipIsTheBoxsOwn) {
    box_.setText(QStringLiteral("C:\\UT"));
    box_.setToolTip(QStringLiteral("Where the game is"));
    EXPECT_EQ(cutText(box_), QString());
    EXPECT_EQ(told(), QStringLiteral("Where the game is"));
}

TEST_F(WholeTexts, ABoxThatGrowsTellsNoMore) {
    box_.setText(path_);
    const int needed = box_.fontMetrics().horizontalAdvance(path_);
    form_.resize(needed + 60, 60);
    EXPECT_EQ(cutText(box_), QString());
    form_.resize(needed, 60);
    EXPECT_EQ(cutText(box_), path_);
}

TEST_F(WholeTexts, TagsInATextAreToldAsTheyAre) {
    box_.setText(QStringLiteral("C:\\<b>bold</b>") + path_);
    EXPECT_EQ(told(), box_.text().toHtmlEscaped());
}

}  // namespace
}  // namespace tessaro
