#include "platform/outside/listitems.h"

#include <gmock/gmock.h>

#include "support/testworld.h"

namespace tessaro {
namespace {

using test::errorOf;
using ::testing::ElementsAre;

std::vector<std::string> texts(const ListItems& items) {
    std::vector<std::string> all;
    for (std::size_t i = 1; i <= items.count(); ++i) all.push_back(items.item(i).text);
    return all;
}

ListItems filled(const std::vector<std::string>& names) {
    ListItems items({{"name", "Name"}, {"ip", "IP"}, {"port", "Port"}});
    for (const std::string& name : names) items.add(name);
    return items;
}

TEST(ListItems, RowsCountFromOne) {
    const ListItems items = filled({"first", "second"});
    EXPECT_EQ(items.count(), 2u);
    EXPECT_EQ(items.item(1).text, "first");
    EXPECT_EQ(items.item(2).text, "second");
}

TEST(ListItems, AnIndexPastTheEndRaises35600) {
    ListItems items = filled({"only"});
    EXPECT_EQ(errorOf([&] { items.item(0); }), 35600);
    EXPECT_EQ(errorOf([&] { items.item(2); }), 35600);
    EXPECT_EQ(errorOf([&] { items.add(3, "far"); }), 35600);
    EXPECT_EQ(errorOf([&] { items.remove(2); }), 35600);
    EXPECT_EQ(errorOf([&] { items.setText(2, "x"); }), 35600);
    EXPECT_EQ(errorOf([&] { items.setSelected(2, true); }), 35600);
    EXPECT_EQ(errorOf([&] { items.pick(2); }), 35600);
    EXPECT_EQ(errorOf([&] { items.setSubItem(2, 1, "x"); }), 35600);
    EXPECT_EQ(texts(items), std::vector<std::string>{"only"});
}

TEST(ListItems, ARowIsInsertedAtItsIndexAndOthersMoveDown) {
    ListItems items = filled({"a", "c"});
    EXPECT_EQ(items.add(2, "b"), 2u);
    EXPECT_THAT(texts(items), ElementsAre("a", "b", "c"));
}

TEST(ListItems, SubItemsAreSetByColumnOrByItsKey) {
    ListItems items = filled({"server"});
    items.setSubItem(1, 2, "7777");
    items.setSubItem(1, "IP", "10.0.0.1");
    EXPECT_THAT(items.item(1).subItems, ElementsAre("10.0.0.1", "7777"));
}

TEST(ListItems, ASubItemAddedAtATakenPlacePushesTheOthersOn) {
    ListItems items = filled({"other", "server"});
    items.addSubItem(2, 1, "7777");
    items.addSubItem(2, 1, "10.0.0.1");
    items.addSubItem(2, 3, "last");
    EXPECT_THAT(items.item(2).subItems, ElementsAre("10.0.0.1", "7777", "last"));
    EXPECT_TRUE(items.item(1).subItems.empty());
}

TEST(ListItems, ASubItemIsNotAddedWithAGapBeforeIt) {
    ListItems items = filled({"server"});
    EXPECT_EQ(errorOf([&] { items.addSubItem(1, 2, "7777"); }), 35600);
    EXPECT_EQ(errorOf([&] { items.addSubItem(1, 0, "7777"); }), 35600);
    EXPECT_EQ(errorOf([&] { items.addSubItem(2, 1, "7777"); }), 35600);
    EXPECT_TRUE(items.item(1).subItems.empty());
}

TEST(ListItems, AColumnKeyThatIsNotThereRaises35600) {
    ListItems items = filled({"server"});
    EXPECT_EQ(errorOf([&] { items.setSubItem(1, "ping", "5"); }), 35600);
    EXPECT_EQ(errorOf([&] { items.setSubItem(1, "name", "the row's own text"); }), 35600);
}

TEST(ListItems, TheSelectedItemOfAFilledListIsItsFirstRowWithoutHighlight) {
    const ListItems items = filled({"a", "b"});
    EXPECT_EQ(items.selectedItem(), 1u);
    EXPECT_FALSE(anyItemSelected(items));
}

TEST(ListItems, AnEmptyListHasNoSelectedItem) {
    EXPECT_EQ(filled({}).selectedItem(), 0u);
}

TEST(ListItems, APickIsTheSelectedItemAndTheOnlyHighlightedOne) {
    ListItems items = filled({"a", "b", "c"});
    items.setSelected(1, true);
    items.pick(3);
    EXPECT_EQ(items.selectedItem(), 3u);
    EXPECT_FALSE(items.item(1).selected);
    EXPECT_TRUE(items.item(3).selected);
    EXPECT_TRUE(anyItemSelected(items));
}

TEST(ListItems, ThePickFollowsItsRowWhenRowsComeAndGo) {
    ListItems items = filled({"a", "b", "c"});
    items.pick(2);
    items.add(1, "new");
    EXPECT_EQ(items.selectedItem(), 3u);
    items.remove(1);
    EXPECT_EQ(items.selectedItem(), 2u);
}

TEST(ListItems, RemovingThePickedRowPassesThePickToItsNeighbour) {
    ListItems items = filled({"a", "b", "c"});
    items.pick(2);
    items.remove(2);
    EXPECT_EQ(items.item(items.selectedItem()).text, "c");
    items.remove(2);
    EXPECT_EQ(items.item(items.selectedItem()).text, "a");
    EXPECT_FALSE(anyItemSelected(items));
    items.remove(1);
    EXPECT_EQ(items.selectedItem(), 0u);
}

TEST(ListItems, ClearForgetsThePick) {
    ListItems items = filled({"a", "b"});
    items.pick(2);
    items.clear();
    EXPECT_EQ(items.count(), 0u);
    items.add("x");
    items.add("y");
    EXPECT_EQ(items.selectedItem(), 1u);
}

TEST(ListItems, SortsByTextWithoutRegardToCase) {
    ListItems items = filled({"beta", "Gamma", "ALPHA"});
    items.sort(0, 0);
    EXPECT_THAT(texts(items), ElementsAre("ALPHA", "beta", "Gamma"));
    items.sort(0, 1);
    EXPECT_THAT(texts(items), ElementsAre("Gamma", "beta", "ALPHA"));
}

TEST(ListItems, SortsASubItemAsTextAndNotAsANumber) {
    ListItems items = filled({"a", "b"});
    items.setSubItem(1, 2, "900");
    items.setSubItem(2, 2, "8000");
    items.sort(2, 0);
    EXPECT_THAT(texts(items), ElementsAre("b", "a"));
}

TEST(ListItems, RowsWithoutTheSubItemSortAsEmptyTexts) {
    ListItems items = filled({"a", "b"});
    items.setSubItem(1, 1, "x");
    items.sort(1, 0);
    EXPECT_THAT(texts(items), ElementsAre("b", "a"));
}

TEST(ListItems, ThePickAndTheHighlightFollowASort) {
    ListItems items = filled({"c", "a", "b"});
    items.pick(1);
    items.sort(0, 0);
    EXPECT_EQ(items.selectedItem(), 3u);
    EXPECT_TRUE(items.item(3).selected);
}

TEST(ListItems, RowsAddedToASortedListGoToTheirPlaces) {
    ListItems items = filled({"d", "b"});
    items.sort(0, 0);
    EXPECT_EQ(items.add("c"), 2u);
    EXPECT_EQ(items.add(1, "e"), 4u);
    EXPECT_THAT(texts(items), ElementsAre("b", "c", "d", "e"));
    items.sort(0, 1);
    EXPECT_EQ(items.add("C"), 4u);
    EXPECT_THAT(texts(items), ElementsAre("e", "d", "c", "C", "b"));
}

TEST(ListItems, RowsAddedAfterTheSortingStoppedStayWhereTheyAreAdded) {
    ListItems items = filled({"d", "b"});
    items.sort(0, 0);
    items.stopSorting();
    EXPECT_FALSE(items.sorted());
    EXPECT_EQ(items.add("c"), 3u);
    EXPECT_EQ(items.add(1, "e"), 1u);
    EXPECT_THAT(texts(items), ElementsAre("e", "b", "d", "c"));
}

TEST(ListItems, ARowAddedWithItsSubItemsIsOneChangeAtTheEnd) {
    ListItems items = filled({"a", "c"});
    items.pick(2);
    int changes = 0;
    items.changed = [&] { ++changes; };
    EXPECT_EQ(items.addRow({"b", {"10.0.0.1", "7777"}}), 3u);
    EXPECT_EQ(changes, 1);
    EXPECT_THAT(texts(items), ElementsAre("a", "c", "b"));
    EXPECT_THAT(items.item(3).subItems, ElementsAre("10.0.0.1", "7777"));
    EXPECT_EQ(items.selectedItem(), 2u);
}

TEST(ListItems, ARowAddedWithItsSubItemsGoesToItsPlaceInTheSortedColumn) {
    ListItems items = filled({"x", "y"});
    items.setSubItem(1, 1, "10.0.0.1");
    items.setSubItem(2, 1, "10.0.0.3");
    items.sort(1, 0);
    EXPECT_EQ(items.addRow({"a", {"10.0.0.2"}}), 2u);
    EXPECT_THAT(texts(items), ElementsAre("x", "a", "y"));
}

TEST(ListItems, EqualRowsKeepTheirOrderInBothDirections) {
    ListItems items = filled({"same", "SAME"});
    items.sort(0, 1);
    EXPECT_THAT(texts(items), ElementsAre("same", "SAME"));
}

TEST(ListItems, ASortKeyUsesTheOrderSetBefore) {
    ListItems items = filled({"a", "b"});
    items.setSortOrder(1);
    EXPECT_FALSE(items.sorted());
    items.setSortKey(0);
    EXPECT_TRUE(items.sorted());
    EXPECT_EQ(items.sortOrder(), 1);
    EXPECT_THAT(texts(items), ElementsAre("b", "a"));
}

TEST(ListItems, TextsAreToldByTheirColumn) {
    ListItems items = filled({"other", "name"});
    items.setSubItem(2, 1, "10.0.0.1");
    EXPECT_EQ(items.text(2, 0), "name");
    EXPECT_EQ(items.text(2, 1), "10.0.0.1");
    EXPECT_EQ(items.text(2, 2), "");
    EXPECT_EQ(errorOf([&] { items.text(3, 0); }), 35600);
}

TEST(ListItems, EveryChangeIsAnnounced) {
    ListItems items = filled({"a"});
    int changes = 0;
    items.changed = [&] { ++changes; };
    items.add("b");
    items.setText(1, "x");
    items.setSubItem(1, 1, "y");
    items.addSubItem(1, 1, "z");
    items.setSelected(1, true);
    items.pick(2);
    items.sort(0, 1);
    items.remove(1);
    items.clear();
    EXPECT_EQ(changes, 9);
}

}  // namespace
}  // namespace tessaro
