#include "kit/controls/listview.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QToolTip>
#include <algorithm>

#include "kit/controls/columnwidths.h"
#include "kit/look/text.h"

namespace tessaro {
namespace {

constexpr int measuredRows = 100;  // to measure all of a long list would take too long

}  // namespace

ListView::ListView(QWidget* parent) : QTreeView(parent) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);  // without it a long list measures every row
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setStretchLastSection(false);
    header()->setResizeContentsPrecision(measuredRows);
    setTextElideMode(Qt::ElideMiddle);  // paths tell most at their ends
    connect(header(), &QHeaderView::sectionResized, this,
            [this] { movedByUser_ = movedByUser_ || !(sharing_ || following_); });
    connect(header(), &QHeaderView::sectionClicked, this,
            [this](int section) { Q_EMIT columnClicked(section + 1); });
}

void ListView::show(ListItems& items) {
    const QScopedValueRollback following(following_, true);
    items_ = &items;
    delete model_;
    model_ = new ListModel(items, this);
    setModel(model_);
    wanted_.assign(items.columns().size(), 0);
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
    measureColumns();
    shareWidth();
}

// Neighbours as one range: Qt compares each range with each other one.
QItemSelection ListView::highlightOfItems() const {
    QItemSelection highlight;
    const int rows = model_->rowCount();
    for (int row = 0; row < rows; ++row) {
        const int first = row;
        while (row < rows && items_->item(static_cast<std::size_t>(row) + 1).selected) ++row;
        if (row > first)
            highlight.select(model_->index(first, 0),
                             model_->index(row - 1, model_->columnCount() - 1));
    }
    return highlight;
}

void ListView::highlightItems() {
    selectionModel()->select(highlightOfItems(), QItemSelectionModel::ClearAndSelect);
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

void ListView::mousePressEvent(QMouseEvent* event) {
    QTreeView::mousePressEvent(event);  // picks the row
    if (event->button() == Qt::RightButton) Q_EMIT menuWanted(event->globalPosition().toPoint());
}

// By the mouse it comes with the press on some systems and with the release on others.
void ListView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Mouse) return;
    const QRect row = visualRect(currentIndex()).intersected(viewport()->rect());
    const QPoint place = row.isEmpty() ? QPoint() : row.bottomLeft();
    Q_EMIT menuWanted(viewport()->mapToGlobal(place));
}

void ListView::takeFromUser() {
    if (following_ || items_ == nullptr) return;
    if (currentIndex().isValid()) items_->pick(static_cast<std::size_t>(currentIndex().row()) + 1);
    // Asking the selection for each row would cost milliseconds at each key in a long list.
    std::vector<bool> highlighted(items_->count());
    for (const QItemSelectionRange& range : selectionModel()->selection())
        std::fill(highlighted.begin() + range.top(), highlighted.begin() + range.bottom() + 1,
                  true);
    for (std::size_t row = 0; row < highlighted.size(); ++row)
        if (items_->item(row + 1).selected != highlighted[row])
            items_->setSelected(row + 1, highlighted[row]);
}

int ListView::wantedWidth(int column) const {
    return std::max({wanted_[static_cast<std::size_t>(column)], sizeHintForColumn(column),
                     header()->sectionSizeHint(column)});
}

void ListView::measureColumns() {
    for (int column = 0; column < header()->count(); ++column)
        wanted_[static_cast<std::size_t>(column)] = wantedWidth(column);
}

void ListView::shareWidth() {
    if (items_ == nullptr || movedByUser_) return;
    const QScopedValueRollback sharing(sharing_, true);
    std::vector<int> heads;
    for (int column = 0; column < header()->count(); ++column)
        heads.push_back(header()->sectionSizeHint(column));
    int column = 0;
    for (const int width : sharedWidths(wanted_, heads, viewport()->width()))
        header()->resizeSection(column++, width);
}

QSize ListView::viewportSizeHint() const {
    int width = 0;
    for (int column = 0; column < header()->count(); ++column) width += wantedWidth(column);
    return {width, 0};
}

void ListView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    shareWidth();
}

bool ListView::viewportEvent(QEvent* event) {
    return (event->type() == QEvent::ToolTip && tellCutText(static_cast<QHelpEvent&>(*event))) ||
           QTreeView::viewportEvent(event);
}

bool ListView::tellCutText(const QHelpEvent& event) {
    const QModelIndex cell = indexAt(event.pos());
    if (!cell.isValid() || sizeHintForIndex(cell).width() <= columnWidth(cell.column()))
        return false;
    QToolTip::showText(event.globalPos(), toolTipText(cell.data().toString()), viewport(),
                       visualRect(cell));
    return true;
}

}  // namespace tessaro
