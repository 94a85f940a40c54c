#pragma once

#include <QHelpEvent>
#include <QPointer>
#include <QTreeView>
#include <vector>

#include "kit/controls/listmodel.h"

namespace tessaro {

/// A report list that shows a ListItems and keeps step with it both ways: rows, texts and
/// highlight follow the items, the items' `selected` flags and selected item follow the user.
///
/// The number of rows follows at once, texts and highlight before the next event of the user, so
/// that a batch of changes costs one pass. One row can be highlighted unless the selection mode is
/// set to `ExtendedSelection`.
///
/// The columns share the list's width by what they hold, until the user moves one of them; a text
/// that is cut nevertheless is told whole by a tooltip.
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

    /// As wide as all columns want to be.
    QSize viewportSizeHint() const override;

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
    void resizeEvent(QResizeEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    void itemsChanged();
    void follow();
    QItemSelection highlightOfItems() const;
    void highlightItems();
    void takeFromUser();
    int wantedWidth(int column) const;
    void measureColumns();
    void shareWidth();
    bool tellCutText(const QHelpEvent& event);

    ListItems* items_ = nullptr;
    ListModel* model_ = nullptr;
    bool following_ = false;  // the view changes because the items did
    bool posted_ = false;
    std::vector<int> wanted_;  // the widest text that each column has had, and its head
    bool sharing_ = false;
    bool movedByUser_ = false;
};

}  // namespace tessaro
