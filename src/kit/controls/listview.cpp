#include "kit/controls/listview.h"

#include <QHeaderView>
#include <QScopedValueRollback>

namespace tessaro {

ListView::ListView(QWidget* parent) : QTreeView(parent) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);  // without it a long list measures every row
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    connect(header(), &QHeaderView::sectionClicked, this,
            [this](int section) { Q_EMIT columnClicked(section + 1); });
}

void ListView::show(ListItems& items) {
    const QScopedValueRollback following(following_, true);
    items_ = &items;
    delete model_;
    model_ = new ListModel(items, this);
    setModel(model_);
    items.changed = [view = QPointer(this)] {
        if (view) view->itemsChanged();
    };
    follow();
}

std::size_t ListView::rowAt(const QPoint& point) const {
    return static_cast<std::size_t>(indexAt(point).row() + 1);
}

void ListView::itemsChanged() {
    {
        const QScopedValueRollback following(following_, true);
        model_->followCount();
    }
    if (std::exchange(posted_, true)) return;
    QMetaObject::invokeMethod(
        this, [this] { follow(); }, Qt::QueuedConnection);
}

void ListView::follow() {
    posted_ = false;
    const QScopedValueRollback following(following_, true);
    model_->followTexts();
    highlightItems();
}

void ListView::highlightItems() {
    QItemSelection highlighted;
    const int lastColumn = model_->columnCount() - 1;
    for (int row = 0; row < model_->rowCount(); ++row) {
        if (!items_->item(static_cast<std::size_t>(row) + 1).selected) continue;
        highlighted.select(model_->index(row, 0), model_->index(row, lastColumn));
    }
    selectionModel()->select(highlighted, QItemSelectionModel::ClearAndSelect);
    const int current = static_cast<int>(items_->selectedItem()) - 1;
    selectionModel()->setCurrentIndex(model_->index(current, 0), QItemSelectionModel::NoUpdate);
}

void ListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    takeFromUser();
}

void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    takeFromUser();
}

void ListView::takeFromUser() {
    if (following_ || items_ == nullptr) return;
    if (currentIndex().isValid()) items_->pick(static_cast<std::size_t>(currentIndex().row()) + 1);
    for (int row = 0; row < model_->rowCount(); ++row) {
        const auto index = static_cast<std::size_t>(row) + 1;
        const bool highlighted = selectionModel()->isRowSelected(row, {});
        if (items_->item(index).selected != highlighted) items_->setSelected(index, highlighted);
    }
}

void setColumnWidths(ListView& list, std::initializer_list<int> letters) {
    list.setTextElideMode(Qt::ElideMiddle);
    list.header()->setStretchLastSection(false);
    int column = 0;
    for (const int count : letters) {
        if (count == 0) list.header()->setSectionResizeMode(column, QHeaderView::Stretch);
        list.header()->resizeSection(column++, count * list.fontMetrics().averageCharWidth());
    }
}

}  // namespace tessaro
