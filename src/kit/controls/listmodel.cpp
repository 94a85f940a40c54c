#include "kit/controls/listmodel.h"

#include "kit/look/text.h"

namespace tessaro {

ListModel::ListModel(const ListItems& items, QObject* parent)
    : QAbstractTableModel(parent), items_(items), rows_(static_cast<int>(items.count())) {}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(items_.columns().size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || !index.isValid()) return {};
    const ListItem& row = items_.item(static_cast<std::size_t>(index.row()) + 1);
    if (index.column() == 0) return toQt(row.text);
    const auto subItem = static_cast<std::size_t>(index.column()) - 1;
    return subItem < row.subItems.size() ? toQt(row.subItems[subItem]) : QString();
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto column = static_cast<std::size_t>(section);
    if (orientation != Qt::Horizontal || column >= items_.columns().size()) return {};
    if (role == Qt::DisplayRole) return toQt(items_.columns()[column].caption);
    if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

void ListModel::followCount() {
    const int count = static_cast<int>(items_.count());
    // Which rows came or went does not matter: all of them are painted anew, and the highlight is
    // set from the items.
    if (count > rows_) {
        beginInsertRows({}, rows_, count - 1);
        rows_ = count;
        endInsertRows();
    } else if (count < rows_) {
        beginRemoveRows({}, count, rows_ - 1);
        rows_ = count;
        endRemoveRows();
    }
}

void ListModel::followTexts() {
    if (rows_ > 0) Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
}

}  // namespace tessaro
