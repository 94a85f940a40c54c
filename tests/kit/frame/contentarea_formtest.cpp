#include "kit/frame/contentarea.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include "kit/frame/skinnedform.h"
#include "support/forms/formsfixture.h"

namespace tessaro {
namespace {

TEST(ScrolledSize, IsTheSizeWantedWhereThereIsRoom) {
    EXPECT_EQ(scrolledSize({300, 200}, {640, 480}, 14), QSize(300, 200));
    EXPECT_EQ(scrolledSize({640, 480}, {640, 480}, 14), QSize(640, 480));
}

TEST(ScrolledSize, WhatIsCutOneWayTakesAScrollBarTheOtherWay) {
    EXPECT_EQ(scrolledSize({300, 500}, {640, 480}, 14), QSize(314, 480));
    EXPECT_EQ(scrolledSize({700, 200}, {640, 480}, 14), QSize(640, 214));
}

TEST(ScrolledSize, IsNeverMoreThanTheRoom) {
    EXPECT_EQ(scrolledSize({700, 500}, {640, 480}, 14), QSize(640, 480));
    EXPECT_EQ(scrolledSize({635, 500}, {640, 480}, 14), QSize(640, 480));
}

// A list over a row of buttons one below the other, the last of which is hidden at first.
struct Column {
    QListWidget* list = nullptr;
    QLabel* wrapped = nullptr;
    std::vector<QPushButton*> buttons;

    void setupUi(QWidget* content) {
        auto* layout = new QVBoxLayout(content);
        wrapped = new QLabel(QStringLiteral("A line that may be wrapped."), content);
        wrapped->setWordWrap(true);
        layout->addWidget(wrapped);
        layout->addWidget(list = new QListWidget(content));
        for (int i = 0; i < 40; ++i) {
            buttons.push_back(new QPushButton(QString::number(i), content));
            layout->addWidget(buttons.back());
        }
    }
    void show(std::size_t count) {
        for (std::size_t i = 0; i < buttons.size(); ++i) buttons[i]->setVisible(i < count);
    }
};

class Tall : public SkinnedForm {
  public:
    explicit Tall(Forms& forms) : SkinnedForm(forms, {.caption = "Tall", .title = "Tall"}) {
        setUpContent(ui);
        ui.show(3);
        refit(*ui.list);
    }
    using SkinnedForm::refit;
    Column ui;
};

class TallForm : public test::FormsTest {
  protected:
    TallForm() { forms_.add<Tall>(); }

    Tall& shown(std::size_t buttons) {
        auto& form = forms_.get<Tall>();
        form.ui.show(buttons);
        forms_.show(form);
        QApplication::setActiveWindow(&form);
        test::serveEvents();
        return form;
    }
    ContentArea& area() { return *forms_.get<Tall>().findChild<ContentArea*>(); }
    bool scrolls() { return area().verticalScrollBar()->isVisible(); }
    // Whether all of a control is seen.
    bool inSight(const QWidget& control) {
        const QRect place(control.mapTo(area().viewport(), QPoint()), control.size());
        return area().viewport()->rect().contains(place);
    }
    QSize room() { return forms_.get<Tall>().screen()->availableSize(); }
};

TEST_F(TallForm, OpensAsLargeAsItsContentWants) {
    const Tall& form = shown(3);
    EXPECT_FALSE(scrolls());
    EXPECT_GE(form.ui.list->height(), form.ui.list->sizeHint().height());
    EXPECT_TRUE(inSight(*form.ui.buttons[2]));
}

TEST_F(TallForm, ShrinksBeforeItScrolls) {
    shown(3);
    const int spare = room().height() - forms_.get<Tall>().height();
    const Column& ui = forms_.get<Tall>().ui;
    const int step = ui.buttons[0]->sizeHint().height() + 6;
    const Tall& form = shown(std::size_t(3 + spare / step + 2));
    EXPECT_FALSE(scrolls());
    EXPECT_LT(form.ui.list->height(), form.ui.list->sizeHint().height());
    EXPECT_LE(form.height(), room().height());
}

TEST_F(TallForm, ScrollsWhereTheScreenHasNoRoomForIt) {
    const Tall& form = shown(40);
    EXPECT_TRUE(scrolls());
    EXPECT_TRUE(form.screen()->availableGeometry().contains(form.geometry()));
    EXPECT_FALSE(area().horizontalScrollBar()->isVisible());
    EXPECT_FALSE(inSight(*form.ui.buttons[39]));
    EXPECT_TRUE(form.CommandX->isVisible());
}

TEST_F(TallForm, AControlWiderThanTheRoomIsShownFromItsBeginning) {
    Tall& form = shown(3);
    QListWidget& list = *form.ui.list;
    list.setMinimumWidth(2 * room().width());
    test::serveEvents();
    const auto beginsInSight = [&] {
        return area().viewport()->rect().contains(list.mapTo(area().viewport(), QPoint()));
    };
    form.ui.buttons[0]->setFocus();
    list.setFocus();
    EXPECT_TRUE(beginsInSight());
    QTest::keyClick(&list, Qt::Key_Tab);
    QTest::keyClick(form.ui.buttons[0], Qt::Key_Backtab);
    EXPECT_TRUE(list.hasFocus());
    EXPECT_TRUE(beginsInSight());
}

TEST_F(TallForm, TheFocusScrollsItsControlIntoSight) {
    Tall& form = shown(40);
    form.ui.buttons[39]->setFocus();
    EXPECT_TRUE(inSight(*form.ui.buttons[39]));
    QTest::keyClick(form.ui.buttons[39], Qt::Key_Tab);
    EXPECT_TRUE(form.CommandX->hasFocus());
    QTest::keyClick(form.CommandX, Qt::Key_Tab);
    EXPECT_TRUE(form.ui.list->hasFocus());
    EXPECT_TRUE(inSight(*form.ui.list));
}

TEST_F(TallForm, GrowsWithWhatIsShownLater) {
    Tall& form = shown(3);
    form.ui.list->setFixedHeight(form.ui.list->height());
    test::serveEvents();
    const int before = form.height();
    form.ui.show(6);
    test::serveEvents();
    EXPECT_GT(form.height(), before);
    test::serveEvents();  // the scroll bar learns of the room that this made
    EXPECT_FALSE(scrolls());
    EXPECT_TRUE(inSight(*form.ui.buttons[5]));
}

TEST_F(TallForm, StaysOnTheScreenAsItGrows) {
    Tall& form = shown(3);
    const QRect screen = form.screen()->availableGeometry();
    form.move(screen.bottomRight() - form.rect().bottomRight());
    form.ui.list->setFixedHeight(form.ui.list->height());
    form.ui.show(5);
    test::serveEvents();
    EXPECT_TRUE(screen.contains(form.geometry()));
}

TEST_F(TallForm, IsRefittedToAControlThatHasComeToWantMore) {
    auto& form = forms_.get<Tall>();
    const int before = form.width();
    form.ui.wrapped->setMinimumWidth(before + 50);
    form.refit(*form.ui.wrapped);
    EXPECT_GE(form.width(), before + 50);
}

}  // namespace
}  // namespace tessaro
