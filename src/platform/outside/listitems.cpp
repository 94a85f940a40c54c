#include "platform/outside/listitems.h"

#include <algorithm>

#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"

namespace tessaro {
namespace {

const std::string& textOf(const ListItem& row, int column) {
    static const std::string none;
    if (column <= 0) return row.text;
    const auto subItem = static_cast<std::size_t>(column) - 1;
    return subItem < row.subItems.size() ? row.subItems[subItem] : none;
}

void requireIndex(std::size_t index, std::size_t last) {
    if (index < 1 || index > last) throw RunTimeError(errors::IndexOutOfBounds);
}

// A row with what a sort needs: its folded text, and where it stood.
struct Keyed {
    std::string key;
    std::size_t index;
};

// Rows of equal text keep the order they had.
void sortKeys(std::vector<Keyed>& keys, bool descending) {
    std::stable_sort(keys.begin(), keys.end(), [descending](const Keyed& a, const Keyed& b) {
        return descending ? b.key < a.key : a.key < b.key;
    });
}

}  // namespace

ListItems::ListItems(std::vector<ListColumn> columns) : columns_(std::move(columns)) {}

const ListItem& ListItems::item(std::size_t index) const {
    requireIndex(index, count());
    return *rows_[index - 1];
}

const std::string& ListItems::text(std::size_t index, int column) const {
    return textOf(item(index), column);
}

ListItem& ListItems::at(std::size_t index) {
    requireIndex(index, count());
    return *rows_[index - 1];
}

void ListItems::notify() const {
    if (changed) changed();
}

std::size_t ListItems::add(std::size_t index, std::string text) {
    return insert(index, {std::move(text), {}, false});
}

std::size_t ListItems::addRow(ListItem row) {
    return insert(count() + 1, std::move(row));
}

std::size_t ListItems::insert(std::size_t index, ListItem&& row) {
    requireIndex(index, count() + 1);
    if (sorted_) index = placeOf(row);
    rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(index - 1), keep(std::move(row)));
    if (picked_ >= index) ++picked_;
    notify();
    return index;
}

ListItem* ListItems::keep(ListItem&& row) {
    if (removed_.empty()) return &kept_.emplace_back(std::move(row));
    ListItem* const room = removed_.back();
    removed_.pop_back();
    *room = std::move(row);
    return room;
}

std::size_t ListItems::placeOf(const ListItem& row) const {
    const std::string key = lowerCase(textOf(row, sortKey_));
    const auto goesBefore = [this](const std::string& added, const ListItem* other) {
        const std::string text = lowerCase(textOf(*other, sortKey_));
        return sortOrder_ == 0 ? added < text : text < added;
    };
    const auto place = std::upper_bound(rows_.begin(), rows_.end(), key, goesBefore);
    return static_cast<std::size_t>(place - rows_.begin()) + 1;
}

void ListItems::setSubItem(std::size_t index, std::size_t column, std::string text) {
    ListItem& row = at(index);
    if (column < 1) throw RunTimeError(errors::IndexOutOfBounds);
    if (row.subItems.size() < column) row.subItems.resize(column);
    row.subItems[column - 1] = std::move(text);
    notify();
}

void ListItems::setSubItem(std::size_t index, std::string_view columnKey, std::string text) {
    const auto column = std::find_if(columns_.begin(), columns_.end(), [&](const ListColumn& one) {
        return sameName(one.key, columnKey);
    });
    // The first column holds the row's own text, which is no sub-item.
    if (column == columns_.begin() || column == columns_.end())
        throw RunTimeError(errors::IndexOutOfBounds, std::string(columnKey));
    setSubItem(index, static_cast<std::size_t>(column - columns_.begin()), std::move(text));
}

void ListItems::addSubItem(std::size_t index, std::size_t column, std::string text) {
    std::vector<std::string>& subItems = at(index).subItems;
    requireIndex(column, subItems.size() + 1);
    subItems.insert(subItems.begin() + static_cast<std::ptrdiff_t>(column - 1), std::move(text));
    notify();
}

void ListItems::setText(std::size_t index, std::string text) {
    at(index).text = std::move(text);
    notify();
}

void ListItems::remove(std::size_t index) {
    removed_.push_back(&at(index));
    *removed_.back() = {};
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(index - 1));
    // The row that moves up takes the pick over, so that several can be removed one after another.
    if (picked_ > index) --picked_;
    picked_ = std::min(picked_, count());
    notify();
}

void ListItems::clear() {
    rows_.clear();
    removed_.clear();
    kept_.clear();
    picked_ = 0;
    notify();
}

void ListItems::setSelected(std::size_t index, bool selected) {
    at(index).selected = selected;
    notify();
}

std::size_t ListItems::selectedItem() const {
    return picked_ == 0 ? std::min<std::size_t>(1, count()) : picked_;
}

void ListItems::pick(std::size_t index) {
    requireIndex(index, count());
    for (ListItem* row : rows_) row->selected = false;
    rows_[index - 1]->selected = true;
    picked_ = index;
    notify();
}

void ListItems::sort(int key, int order) {
    sortKey_ = key;
    sortOrder_ = order;
    sorted_ = true;
    std::vector<Keyed> keys;
    keys.reserve(count());
    for (const ListItem* row : rows_)
        keys.push_back({lowerCase(textOf(*row, key)), keys.size() + 1});
    sortKeys(keys, order != 0);
    Rows sortedRows;
    sortedRows.reserve(rows_.size());
    std::size_t picked = 0;
    for (const Keyed& from : keys) {
        sortedRows.push_back(rows_[from.index - 1]);
        if (from.index == picked_) picked = sortedRows.size();
    }
    rows_ = std::move(sortedRows);
    picked_ = picked;
    notify();
}

bool anyItemSelected(const ListItems& items) {
    bool any = false;
    for (std::size_t i = 1; i <= items.count(); ++i) any = any || items.item(i).selected;
    return any;
}

}  // namespace tessaro
