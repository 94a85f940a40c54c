#pragma once

#include <QPointer>
#include <QTreeView>
#include <initializer_list>

#include "kit/controls/listmodel.h"

namespace tessaro {

/// A report list that shows a ListItems and keeps step with it both ways: rows, texts and
/// highlight follow the items, the items' `selected` flags and selected item follow the user.
///
/// The number of rows follows at once, texts and highlight before the next event of the user, so
/// that a batch of changes costs one pass. One row can be highlighted unless the selection mode is
/// set to `ExtendedSelection`.
class ListView : public QTreeView {
    Q_OBJECT
  public:
    explicit ListView(QWidget* parent = nullptr);

    /// Shows these items from now on; they have to live as long as the view is used.
    void show(ListItems& items);
    using QWidget::show;
    ListItems* items() const { return items_; }

    /// Row (from 1) under a point of the viewport, or 0.
    std::size_t rowAt(const QPoint& point) const;

  Q_SIGNALS:
    /// The user clicked a column's head; columns count from 1.
    void columnClicked(int column);
    /// The user pressed the right mouse button, on a row or beside the rows, or the menu key;
    /// `place` is where on the screen a menu belongs.
    void menuWanted(const QPoint& place);

  protected:
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void itemsChanged();
    void follow();
    QItemSelection highlightOfItems() const;
    void highlightItems();
    void takeFromUser();

    ListItems* items_ = nullptr;
    ListModel* model_ = nullptr;
    bool following_ = false;  // the view changes because the items did
    bool posted_ = false;
};

/// Sets the widths of a list's columns, in letters of its font. A width of 0 takes what is left;
/// its texts are cut in the middle, since paths tell most at their ends.
void setColumnWidths(ListView& list, std::initializer_list<int> letters);

}  // namespace tessaro
