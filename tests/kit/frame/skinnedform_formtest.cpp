#include "kit/frame/skinnedform.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>
#include <QVBoxLayout>

#include "kit/frame/placement.h"
#include "support/forms/formsfixture.h"

namespace tessaro {
namespace {

// Stands in for what a Designer file makes.
struct TwoBoxes {
    QLineEdit* Text1 = nullptr;
    QLineEdit* Text2 = nullptr;
    void setupUi(QWidget* content) {
        auto* layout = new QVBoxLayout(content);
        layout->addWidget(Text1 = new QLineEdit(content));
        layout->addWidget(Text2 = new QLineEdit(content));
        content->resize(320, 120);
    }
};

class Tool : public SkinnedForm {
  public:
    explicit Tool(Forms& forms, DragBy dragBy = DragBy::PlateAndTitle)
        : SkinnedForm(forms, {"UT Favorites", "UT IP Manager", true, dragBy}) {
        setUpContent(ui);
    }
    TwoBoxes ui;
};

class PlateTool : public Tool {
  public:
    explicit PlateTool(Forms& forms) : Tool(forms, DragBy::Plate) {}
};

class FixedTool : public Tool {
  public:
    explicit FixedTool(Forms& forms) : Tool(forms, DragBy::Nothing) {}
};

class HelpfulTool : public SkinnedForm {
  public:
    explicit HelpfulTool(Forms& forms)
        : SkinnedForm(forms, {.caption = "Chart",
                              .title = "Chart",
                              .secondButton = true,
                              .secondButtonTask = "Help on the chart"}) {}
};

class SkinnedForms : public test::FormsTest {
  protected:
    SkinnedForms() {
        forms_.add<Tool>();
        forms_.add<PlateTool>();
        forms_.add<FixedTool>();
        forms_.add<HelpfulTool>();
    }
    template <class T = Tool>
    T& shown() {
        forms_.show<T>();
        test::serveEvents();
        return forms_.get<T>();
    }

    static void send(QWidget& target, QEvent::Type type, const QPoint& global,
                     Qt::MouseButton button, Qt::MouseButtons buttons) {
        QMouseEvent event(type, target.mapFromGlobal(QPointF(global)), global, button, buttons,
                          Qt::NoModifier);
        QApplication::sendEvent(&target, &event);
    }
    // Presses a button on a handle and moves the mouse. Gives how far the form went from the
    // first movement on.
    static QPoint dragged(QWidget& form, QWidget& handle, Qt::MouseButton button) {
        const QPoint grip = handle.mapToGlobal(QPoint(5, 5));
        const QPoint before = form.pos();
        send(handle, QEvent::MouseButtonPress, grip, button, button);
        send(handle, QEvent::MouseMove, grip, Qt::NoButton, button);
        send(handle, QEvent::MouseMove, grip + QPoint(30, 20), Qt::NoButton, button);
        send(handle, QEvent::MouseButtonRelease, grip + QPoint(30, 20), button, Qt::NoButton);
        return form.pos() - before;
    }
};

TEST_F(SkinnedForms, NothingLiesBetweenTheMouseAndTheFramesControls) {
    Tool& form = shown();
    const QPoint plate(form.timg->x() + 5, form.timg->geometry().center().y());
    EXPECT_EQ(form.childAt(plate), form.timg);
    for (const QWidget* control :
         {static_cast<QWidget*>(form.Title), static_cast<QWidget*>(form.CommandX)})
        EXPECT_EQ(form.childAt(control->geometry().center()), control)
            << control->objectName().toStdString();
}

TEST_F(SkinnedForms, OpensWithTheFocusOnItsFirstControl) {
    Tool& form = shown();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_EQ(form.focusWidget(), form.ui.Text1);
}

TEST_F(SkinnedForms, TheFramesControlsBearTheNamesThatSkinsLookFor) {
    Tool& form = shown();
    for (const char* name :
         {"timg", "bimg", "leftimg", "rightimg", "Title", "CommandX", "CommandQ"})
        EXPECT_NE(form.findChild<QWidget*>(QLatin1String(name)), nullptr) << name;
    EXPECT_EQ(form.Title->text(), QStringLiteral("UT IP Manager"));
    EXPECT_EQ(form.windowTitle(), QStringLiteral("UT Favorites"));
    EXPECT_TRUE(form.windowFlags() & Qt::FramelessWindowHint);
}

TEST_F(SkinnedForms, TheFrameSurroundsTheContent) {
    Tool& form = shown();
    EXPECT_EQ(form.leftimg->width(), 12);
    EXPECT_EQ(form.rightimg->geometry().right(), form.width() - 2);
    EXPECT_EQ(form.bimg->height(), 14);
    EXPECT_EQ(form.bimg->geometry().bottom(), form.height() - 2);
    EXPECT_GE(form.leftimg->y(), form.timg->geometry().bottom());
}

TEST_F(SkinnedForms, PlateAndTitleStandInTheMiddle) {
    Tool& form = shown();
    EXPECT_EQ(form.timg->x(), form.width() / 2 - form.timg->width() / 2);
    EXPECT_EQ(form.Title->x(), form.width() / 2 - form.Title->width() / 2);
    form.resize(600, 300);
    test::serveEvents();
    EXPECT_EQ(form.timg->width(), 360);
    EXPECT_EQ(form.timg->x(), 120);
    EXPECT_EQ(form.Title->x(), 300 - form.Title->width() / 2);
}

TEST_F(SkinnedForms, ALargeFontClipsNoTitle) {
    Tool& form = shown();
    QFont large = form.font();
    large.setPointSize(40);
    form.setFont(large);
    test::serveEvents();
    EXPECT_GE(form.Title->width(), form.Title->sizeHint().width());
    EXPECT_GE(form.timg->width(), form.Title->width() + 48);
    EXPECT_GE(form.timg->height(), form.Title->height());
    EXPECT_GE(form.width(), form.timg->width());
    EXPECT_GE(form.CommandX->height(), form.fontMetrics().height());
}

TEST_F(SkinnedForms, TheCloseButtonClosesAndTellsWhatItIs) {
    Tool& form = shown();
    EXPECT_EQ(form.CommandX->text(), QStringLiteral("X"));
    EXPECT_EQ(form.CommandX->accessibleName(), QStringLiteral("Close"));
    EXPECT_EQ(form.CommandX->toolTip(), QStringLiteral("Close"));
    QTest::mouseClick(form.CommandX, Qt::LeftButton);
    EXPECT_EQ(forms_.loaded<Tool>(), nullptr);
}

TEST_F(SkinnedForms, ASecondButtonWithATaskBearsAQuestionMarkAndTellsTheTask) {
    const HelpfulTool& form = shown<HelpfulTool>();
    EXPECT_EQ(form.CommandQ->text(), QStringLiteral("?"));
    EXPECT_EQ(form.CommandQ->accessibleName(), QStringLiteral("Help on the chart"));
    EXPECT_EQ(form.CommandQ->toolTip(), QStringLiteral("Help on the chart"));
}

TEST_F(SkinnedForms, ASecondButtonWithoutATaskIsAMinimiseButtonThatCannotBePressed) {
    const Tool& form = shown();
    EXPECT_EQ(form.CommandQ->text(), QStringLiteral("_"));
    EXPECT_EQ(form.CommandQ->accessibleName(), QStringLiteral("Minimise"));
    EXPECT_FALSE(form.CommandQ->isEnabled());
    QTest::mouseClick(form.CommandQ, Qt::LeftButton);
    EXPECT_FALSE(form.isMinimized());
}

TEST_F(SkinnedForms, EnterInATextBoxDoesNotClose) {
    Tool& form = shown();
    QTest::keyClick(form.ui.Text1, Qt::Key_Return);
    EXPECT_NE(forms_.loaded<Tool>(), nullptr);
}

TEST_F(SkinnedForms, TheFrameButtonsComeLastInTabOrder) {
    Tool& form = shown();
    form.ui.Text1->setFocus();
    std::vector<QWidget*> order;
    for (int i = 0; i < 3; ++i) {
        order.push_back(form.focusWidget());
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, (std::vector<QWidget*>{form.ui.Text1, form.ui.Text2, form.CommandX}));
}

TEST_F(SkinnedForms, ASecondButtonWithATaskComesBeforeTheCloseButton) {
    HelpfulTool& form = shown<HelpfulTool>();
    form.CommandQ->setFocus();
    QTest::keyClick(form.CommandQ, Qt::Key_Tab);
    EXPECT_EQ(form.focusWidget(), form.CommandX);
}

TEST_F(SkinnedForms, TextBoxesHaveWhiteLettersOnADarkGroundBeforeAnySkin) {
    const QPalette palette = shown().ui.Text1->palette();
    EXPECT_EQ(palette.color(QPalette::Text), QColor(Qt::white));
    EXPECT_EQ(palette.color(QPalette::Base), QColor(64, 64, 64));
    EXPECT_GT(palette.color(QPalette::Disabled, QPalette::Text).lightness(), 200);
}

TEST_F(SkinnedForms, PlateAndTitleMoveTheFormWithAnyButton) {
    Tool& form = shown();
    EXPECT_EQ(dragged(form, *form.timg, Qt::LeftButton), QPoint(30, 20));
    EXPECT_EQ(dragged(form, *form.Title, Qt::RightButton), QPoint(30, 20));
    EXPECT_EQ(dragged(form, *form.bimg, Qt::LeftButton), QPoint(0, 0));
}

TEST_F(SkinnedForms, APressWithoutMovementMovesNothing) {
    Tool& form = shown();
    const QPoint before = form.pos();
    QTest::mouseClick(form.timg, Qt::LeftButton);
    send(*form.timg, QEvent::MouseMove, QPoint(500, 500), Qt::NoButton, Qt::LeftButton);
    EXPECT_EQ(form.pos(), before);
}

TEST_F(SkinnedForms, SomeFormsAreMovedByThePlateAlone) {
    PlateTool& form = shown<PlateTool>();
    EXPECT_EQ(dragged(form, *form.timg, Qt::LeftButton), QPoint(30, 20));
    EXPECT_EQ(dragged(form, *form.Title, Qt::LeftButton), QPoint(0, 0));
}

TEST_F(SkinnedForms, AFormMayBeFixedOrHaveOneMoreHandle) {
    FixedTool& form = shown<FixedTool>();
    EXPECT_EQ(dragged(form, *form.timg, Qt::LeftButton), QPoint(0, 0));
    form.addDragHandle(*form.bimg);
    EXPECT_EQ(dragged(form, *form.bimg, Qt::LeftButton), QPoint(30, 20));
}

TEST_F(SkinnedForms, AFormPlacedOffTheScreenOpensOnIt) {
    Tool& form = forms_.get<Tool>();
    form.move(-500, 5000);
    forms_.show<Tool>();
    EXPECT_TRUE(form.screen()->availableGeometry().contains(form.geometry()));
}

TEST(FittedInto, AWindowLargerThanTheScreenShrinks) {
    const QRect screen(0, 0, 800, 600);
    EXPECT_EQ(fittedInto(screen, QRect(100, 100, 200, 100)), QRect(100, 100, 200, 100));
    EXPECT_EQ(fittedInto(screen, QRect(-50, 590, 200, 100)), QRect(0, 500, 200, 100));
    EXPECT_EQ(fittedInto(screen, QRect(10, 10, 900, 100)), QRect(0, 10, 800, 100));
}

}  // namespace
}  // namespace tessaro
