#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessaro {

/// A row of a list: its text and the sub-items under the columns after the first.
struct ListItem {
    std::string text;
    std::vector<std::string> subItems;
    bool selected = false;  ///< highlighted by the user
};

/// A column: its caption and the key by which code finds it.
struct ListColumn {
    std::string key;
    std::string caption;
};

/// The data of a list control, and a tool's data model while its form is open. Rows and columns
/// count from 1; an index past the end raises error 35600.
class ListItems {
  public:
    explicit ListItems(std::vector<ListColumn> columns);
    ListItems(ListItems&&) = default;
    ListItems& operator=(ListItems&&) = default;

    const std::vector<ListColumn>& columns() const { return columns_; }
    std::size_t count() const { return rows_.size(); }
    const ListItem& item(std::size_t index) const;
    /// The text under a column counted from 0, empty where the row has none.
    const std::string& text(std::size_t index, int column) const;

    /// Inserts a row so that it stands at `index`, which may be one past the last row; gives the
    /// index. In a sorted list the row goes where its text sorts, and that index is given.
    std::size_t add(std::size_t index, std::string text);
    /// Adds a row at the end.
    std::size_t add(std::string text) { return add(count() + 1, std::move(text)); }
    /// Adds a row with its sub-items at the end, as one change. In a sorted list it goes where its
    /// text in the sorted column belongs.
    std::size_t addRow(ListItem row);
    /// Sub-item of a column counted from 1, the row's text being column 0.
    void setSubItem(std::size_t index, std::size_t column, std::string text);
    /// Sub-item of the column with that key. Raises 35600 if there is none.
    void setSubItem(std::size_t index, std::string_view columnKey, std::string text);
    /// Inserts a sub-item so that it stands under that column; those from there on move one column
    /// on. Raises 35600 for a column behind the first free one.
    void addSubItem(std::size_t index, std::size_t column, std::string text);
    void setText(std::size_t index, std::string text);
    void remove(std::size_t index);
    void clear();

    void setSelected(std::size_t index, bool selected);
    /// The row that the list counts as its selected item: the user's pick, or the first row of a
    /// filled list until there is one; 0 if the list is empty. It need not be highlighted.
    std::size_t selectedItem() const;
    /// What a click on a row does: it becomes the selected item, and the only highlighted one.
    void pick(std::size_t index);

    /// Sorts by the text of a column counted from 0, without regard to case; `order` 0 ascending, 1
    /// descending. The list stays sorted: rows added later go to their places.
    void sort(int key, int order);
    int sortKey() const { return sortKey_; }
    int sortOrder() const { return sortOrder_; }
    void setSortKey(int key) { sort(key, sortOrder_); }
    void setSortOrder(int order) { sortOrder_ = order; }
    bool sorted() const { return sorted_; }
    /// The rows keep their places; those added later go where they are added.
    void stopSorting() { sorted_ = false; }

    /// Called after each change, so that a view can follow.
    std::function<void()> changed;

  private:
    using Rows = std::vector<ListItem*>;

    ListItem& at(std::size_t index);
    std::size_t insert(std::size_t index, ListItem&& row);
    ListItem* keep(ListItem&& row);
    std::size_t placeOf(const ListItem& row) const;
    void notify() const;

    std::vector<ListColumn> columns_;
    // Rows stay where they are in memory, so that one can be put between thousands at little cost.
    std::deque<ListItem> kept_;
    Rows rows_;
    Rows removed_;  // room in `kept_` for others
    std::size_t picked_ = 0;
    int sortKey_ = 0;
    int sortOrder_ = 0;
    bool sorted_ = false;
};

/// Whether any row of a list is highlighted.
bool anyItemSelected(const ListItems& items);

}  // namespace tessaro
