#include "kit/look/style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyle>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOption>

#include "support/forms/contrast.h"

namespace tessaro {
namespace {

TEST(ProgramStyle, IsFixedAndDoesNotFollowTheDesktop) {
    const auto* style = qobject_cast<QProxyStyle*>(QApplication::style());
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(style->baseStyle()->name(), QStringLiteral("fusion"));
    EXPECT_FALSE(QGuiApplication::quitOnLastWindowClosed());
    EXPECT_FALSE(QApplication::windowIcon().isNull());
}

TEST(ProgramStyle, HasThePictureThatAMenuBarAsksFor) {
    const QIcon icon =
        QApplication::style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
    EXPECT_FALSE(icon.pixmap(16).isNull());
}

TEST(ProgramStyle, EveryTextStandsOutFromItsGround) {
    const QPalette palette = QApplication::palette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::HighlightedText, QPalette::Highlight}};
    for (const auto& [text, ground] : pairs) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            EXPECT_GE(test::contrast(palette.color(group, text), palette.color(group, ground)),
                      test::readable)
                << text << " on " << ground << " in " << group;
        }
    }
}

TEST(ProgramStyle, LeavesACaptionRoomOnItsButton) {
    const QPushButton button(QStringLiteral("C&lear My UT Cache and Temp Files Now!"));
    const QFontMetrics letters = button.fontMetrics();
    const int caption = letters.size(Qt::TextShowMnemonic, button.text()).width();
    EXPECT_GE(button.sizeHint().width(), caption + 2 * letters.height());
}

// Qt keeps what it paints by the number of the palette.
quint64 paletteThatPaints(const QColor& ground) {
    QStyleOptionButton option;
    option.rect = {0, 0, 80, 24};
    option.palette.setColor(QPalette::Button, ground);
    QPixmap picture(80, 24);
    QPainter painter(&picture);
    QApplication::style()->drawControl(QStyle::CE_PushButton, &option, &painter);
    return quint64(option.palette.cacheKey());
}

TEST(ProgramStyle, PaintsInOnePaletteWhatIsPaintedAlike) {
    const quint64 red = paletteThatPaints(Qt::red);
    const quint64 blue = paletteThatPaints(Qt::blue);
    EXPECT_NE(red, blue);
    EXPECT_EQ(paletteThatPaints(Qt::red), red);
    EXPECT_EQ(paletteThatPaints(Qt::blue), blue);
}

TEST(DressedFields, ABoxThatCannotBeWrittenInIsFlat) {
    QWidget form;
    auto* written = new QLineEdit(&form);
    auto* shown = new QLineEdit(&form);
    shown->setReadOnly(true);
    dressFields(form);
    EXPECT_TRUE(written->hasFrame());
    EXPECT_FALSE(shown->hasFrame());
    EXPECT_EQ(shown->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(written->palette().color(QPalette::Text), QColor(Qt::white));
    EXPECT_LT(shown->palette().color(QPalette::Text).lightness(), 230);
}

TEST(FieldGround, IsReallyPaintedOnADropDownList) {
    QComboBox box;
    box.addItem(QStringLiteral("c:"));
    box.resize(120, 30);
    setFieldGround(box, QColor(0, 0, 192));
    const QColor painted = box.grab().toImage().pixelColor(60, 15);
    EXPECT_GT(painted.blue(), 150);
    EXPECT_LT(painted.red(), 90);
}

}  // namespace
}  // namespace tessaro
