#include "kit/controls/listview.h"

#include <gmock/gmock.h>

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "support/forms/formsfixture.h"

namespace tessaro {
namespace {

using test::serveEvents;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ListViews : public ::testing::Test {
  protected:
    ListViews() {
        for (const char* name : {"Alpha", "Beta", "Gamma"}) rows_.add(name);
        view_.resize(400, 300);
        view_.show(rows_);
        static_cast<QWidget&>(view_).show();
        serveEvents();
    }

    QString shown(int row, int column = 0) const {
        return view_.model()->index(row, column).data().toString();
    }
    std::vector<int> highlightedRows() const {
        std::vector<int> rows;
        for (const QModelIndex& index : view_.selectionModel()->selectedRows())
            rows.push_back(index.row());
        std::sort(rows.begin(), rows.end());
        return rows;
    }
    std::vector<std::size_t> selectedItems() const {
        std::vector<std::size_t> selected;
        for (std::size_t i = 1; i <= rows_.count(); ++i)
            if (rows_.item(i).selected) selected.push_back(i);
        return selected;
    }
    void click(int row, Qt::KeyboardModifiers modifiers = {}) {
        const QRect place = view_.visualRect(view_.model()->index(row, 0));
        QTest::mouseClick(view_.viewport(), Qt::LeftButton, modifiers, place.center());
    }

    ListItems rows_{{{"name", "Name"}, {"ip", "IP"}}};
    ListView view_;
};

TEST_F(ListViews, ShowsColumnsRowsAndSubItems) {
    rows_.setSubItem(2, 1, "10.0.0.1");
    EXPECT_EQ(view_.header()->count(), 2);
    EXPECT_EQ(view_.model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("IP"));
    EXPECT_EQ(view_.model()->rowCount(), 3);
    EXPECT_EQ(shown(1), QStringLiteral("Beta"));
    EXPECT_EQ(shown(1, 1), QStringLiteral("10.0.0.1"));
    EXPECT_EQ(shown(0, 1), QString());
}

TEST_F(ListViews, FollowsRowsThatComeAndGoAtOnce) {
    rows_.add(1, "New");
    EXPECT_EQ(view_.model()->rowCount(), 4);
    EXPECT_EQ(shown(0), QStringLiteral("New"));
    rows_.remove(2);
    EXPECT_EQ(shown(1), QStringLiteral("Beta"));
    rows_.clear();
    EXPECT_EQ(view_.model()->rowCount(), 0);
}

TEST_F(ListViews, NoRowIsHighlightedUntilTheUserPicksOne) {
    EXPECT_THAT(highlightedRows(), IsEmpty());
    EXPECT_EQ(rows_.selectedItem(), 1u);
}

TEST_F(ListViews, AClickPicksARow) {
    click(1);
    EXPECT_EQ(rows_.selectedItem(), 2u);
    EXPECT_THAT(selectedItems(), ElementsAre(2u));
    click(2);
    EXPECT_THAT(selectedItems(), ElementsAre(3u));
}

TEST_F(ListViews, TheArrowKeysPickARow) {
    click(0);
    QTest::keyClick(&view_, Qt::Key_Down);
    EXPECT_EQ(rows_.selectedItem(), 2u);
    EXPECT_THAT(selectedItems(), ElementsAre(2u));
}

TEST_F(ListViews, SeveralRowsCanBeHighlightedWhereThatIsAllowed) {
    view_.setSelectionMode(QAbstractItemView::ExtendedSelection);
    click(0);
    click(2, Qt::ControlModifier);
    EXPECT_THAT(selectedItems(), ElementsAre(1u, 3u));
    EXPECT_EQ(rows_.selectedItem(), 3u);
}

TEST_F(ListViews, NeighboursAreHighlightedAsOneRange) {
    view_.setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (int i = 0; i < 10; ++i) rows_.add("more");
    click(4);
    QTest::keyClick(&view_, Qt::Key_A, Qt::ControlModifier);
    rows_.setSelected(3, false);
    serveEvents();
    EXPECT_EQ(view_.selectionModel()->selection().size(), 2);
    EXPECT_THAT(highlightedRows(), ElementsAre(0, 1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12));
    EXPECT_THAT(selectedItems(), ElementsAre(1u, 2u, 4u, 5u, 6u, 7u, 8u, 9u, 10u, 11u, 12u, 13u));
}

TEST_F(ListViews, ARangePickedWithShiftIsTakenOverWhole) {
    view_.setSelectionMode(QAbstractItemView::ExtendedSelection);
    click(0);
    click(1, Qt::ShiftModifier);
    EXPECT_THAT(selectedItems(), ElementsAre(1u, 2u));
    click(2);
    EXPECT_THAT(selectedItems(), ElementsAre(3u));
}

TEST_F(ListViews, TheSelectedItemMayStandWithoutHighlight) {
    view_.setSelectionMode(QAbstractItemView::ExtendedSelection);
    click(1);
    click(1, Qt::ControlModifier);
    EXPECT_THAT(selectedItems(), IsEmpty());
    EXPECT_EQ(rows_.selectedItem(), 2u);
}

TEST_F(ListViews, TheHighlightFollowsTheItems) {
    rows_.pick(3);
    serveEvents();
    EXPECT_THAT(highlightedRows(), ElementsAre(2));
    rows_.add(1, "New");
    serveEvents();
    EXPECT_THAT(highlightedRows(), ElementsAre(3));
    rows_.remove(4);
    serveEvents();
    EXPECT_THAT(highlightedRows(), IsEmpty());
    EXPECT_THAT(selectedItems(), IsEmpty());
}

TEST_F(ListViews, TheHighlightFollowsASort) {
    click(0);
    rows_.sort(0, 1);
    serveEvents();
    EXPECT_EQ(shown(0), QStringLiteral("Gamma"));
    EXPECT_THAT(highlightedRows(), ElementsAre(2));
}

TEST_F(ListViews, RemovingRowsIsNoPickOfTheUser) {
    click(2);
    rows_.remove(1);
    EXPECT_EQ(rows_.item(rows_.selectedItem()).text, "Gamma");
}

TEST_F(ListViews, AClickOnAColumnsHeadIsReportedByItsNumber) {
    QSignalSpy clicks(&view_, &ListView::columnClicked);
    const QHeaderView* header = view_.header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      QPoint(header->sectionViewportPosition(1) + 5, header->height() / 2));
    ASSERT_EQ(clicks.count(), 1);
    EXPECT_EQ(clicks[0][0].toInt(), 2);
}

// Where on the screen menus were asked for.
class MenusOfListViews : public ListViews {
  protected:
    QSignalSpy menus_{&view_, &ListView::menuWanted};

    QPoint middleOf(int row) const {
        return view_.visualRect(view_.model()->index(row, 0)).center();
    }
    QPoint place(int menu) const { return menus_[menu][0].toPoint(); }
    // What the system makes of the key for the control with the focus.
    void pressMenuKey() {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
        QCoreApplication::sendEvent(&view_, &event);
    }
    bool contains(const QRect& partOfViewport, const QPoint& onScreen) const {
        return partOfViewport.contains(view_.viewport()->mapFromGlobal(onScreen));
    }
};

TEST_F(MenusOfListViews, ThePressOfTheRightButtonPicksTheRowAndAsksForAMenuThere) {
    QTest::mousePress(view_.viewport(), Qt::RightButton, {}, middleOf(1));
    ASSERT_EQ(menus_.count(), 1);
    EXPECT_EQ(place(0), view_.viewport()->mapToGlobal(middleOf(1)));
    EXPECT_THAT(selectedItems(), ElementsAre(2u));
    QTest::mouseRelease(view_.viewport(), Qt::RightButton, {}, middleOf(1));
    EXPECT_EQ(menus_.count(), 1);
}

TEST_F(MenusOfListViews, ARightPressBesideTheRowsAsksForAMenuToo) {
    QTest::mousePress(view_.viewport(), Qt::RightButton, {}, QPoint(10, 200));
    EXPECT_EQ(menus_.count(), 1);
    EXPECT_THAT(selectedItems(), IsEmpty());
}

TEST_F(MenusOfListViews, OtherButtonsAskForNone) {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::BackButton})
        QTest::mouseClick(view_.viewport(), button, {}, middleOf(1));
    EXPECT_EQ(menus_.count(), 0);
}

TEST_F(MenusOfListViews, WhatTheSystemMakesOfTheButtonAsksForNoSecondOne) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, middleOf(1), QPoint(1, 1));
    QCoreApplication::sendEvent(view_.viewport(), &event);
    EXPECT_EQ(menus_.count(), 0);
}

TEST_F(MenusOfListViews, TheMenuKeyAsksForOneAtTheCurrentRow) {
    click(2);
    pressMenuKey();
    ASSERT_EQ(menus_.count(), 1);
    EXPECT_TRUE(contains(view_.visualRect(view_.model()->index(2, 0)), place(0)));
    EXPECT_THAT(selectedItems(), ElementsAre(3u));
}

TEST_F(MenusOfListViews, TheMenuKeyAsksForOneInTheListIfItsRowIsOutOfSightOrThereIsNone) {
    for (int i = 0; i < 100; ++i) rows_.add("more");
    click(0);
    view_.scrollToBottom();
    pressMenuKey();
    rows_.clear();
    serveEvents();
    pressMenuKey();
    ASSERT_EQ(menus_.count(), 2);
    EXPECT_TRUE(contains(view_.viewport()->rect(), place(0)));
    EXPECT_TRUE(contains(view_.viewport()->rect(), place(1)));
}

TEST_F(ListViews, ARowIsFoundUnderAPoint) {
    EXPECT_EQ(view_.rowAt(view_.visualRect(view_.model()->index(1, 0)).center()), 2u);
    EXPECT_EQ(view_.rowAt(QPoint(10, 290)), 0u);
}

TEST_F(ListViews, ABatchIsFollowedInOnePass) {
    rows_.clear();
    serveEvents();
    QSignalSpy repaints(view_.model(), &QAbstractItemModel::dataChanged);
    for (int i = 0; i < 32000; ++i) rows_.setSubItem(rows_.add("Map"), 1, "1,000");
    EXPECT_EQ(view_.model()->rowCount(), 32000);
    EXPECT_EQ(repaints.count(), 0);
    serveEvents();
    EXPECT_EQ(repaints.count(), 1);
}

TEST(ListViewLife, ItemsMayChangeAfterTheViewHasGone) {
    ListItems rows(std::vector<ListColumn>{{"name", "Name"}});
    {
        ListView view;
        view.show(rows);
    }
    rows.add("later");
    EXPECT_EQ(rows.count(), 1u);
}

TEST(ListViewLife, TheViewMayOutliveItsItemsAsInAForm) {
    ListView view;
    {
        ListItems rows(std::vector<ListColumn>{{"name", "Name"}});
        view.show(rows);
        rows.add("row");
    }
    EXPECT_NE(view.items(), nullptr);
}

// A list with long names and longer addresses.
class ListColumns : public ListViews {
  protected:
    ListColumns() {
        rows_.setText(2, std::string(24, 'n'));
        rows_.setSubItem(2, 1, std::string(60, 'a'));
        serveEvents();
    }
    int width(int column) const { return view_.columnWidth(column); }
    int needed(char letter, int count) const {
        return view_.fontMetrics().horizontalAdvance(QString(count, QLatin1Char(letter)));
    }
    void resize(int width) {
        view_.resize(width, 300);
        serveEvents();
    }
    QString told(int row, int column) {
        const QRect cell = view_.visualRect(view_.model()->index(row, column));
        QHelpEvent help(QEvent::ToolTip, cell.center(),
                        view_.viewport()->mapToGlobal(cell.center()));
        QApplication::sendEvent(view_.viewport(), &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
};

TEST_F(ListColumns, ShowNamesWholeAndCutTheRest) {
    EXPECT_GT(width(0), needed('n', 24));
    EXPECT_LT(width(1), needed('a', 60));
    EXPECT_EQ(width(0) + width(1), view_.viewport()->width());
}

TEST_F(ListColumns, ShowEverythingWholeWhereThereIsRoom) {
    resize(1000);
    EXPECT_GT(width(0), needed('n', 24));
    EXPECT_GT(width(1), needed('a', 60));
    EXPECT_EQ(width(0) + width(1), view_.viewport()->width());
}

TEST_F(ListColumns, LeaveEveryHeadWholeWhereTheListIsNarrow) {
    resize(60);
    EXPECT_GE(width(0), view_.header()->sectionSizeHint(0));
    EXPECT_GE(width(1), view_.header()->sectionSizeHint(1));
}

TEST_F(ListColumns, KeepTheirWidthsWhenLongTextsGo) {
    const int before = width(0);
    rows_.setText(2, "short");
    serveEvents();
    EXPECT_EQ(width(0), before);
}

TEST_F(ListColumns, StayWhereTheUserMovedThem) {
    view_.header()->resizeSection(0, 77);
    rows_.setText(1, std::string(40, 'n'));
    resize(700);
    EXPECT_EQ(width(0), 77);
}

TEST_F(ListColumns, AListThatFitsItsColumnsWantsTheWidthOfAll) {
    view_.setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    EXPECT_GT(view_.sizeHint().width(), needed('n', 24) + needed('a', 60));
    rows_.setText(3, std::string(50, 'n'));
    EXPECT_GT(view_.sizeHint().width(), needed('n', 50) + needed('a', 60));
}

TEST_F(ListColumns, ATextThatIsCutIsToldWhole) {
    EXPECT_EQ(told(1, 0), QString());
    EXPECT_EQ(told(1, 1), QString(60, QLatin1Char('a')));
}

}  // namespace
}  // namespace tessaro
