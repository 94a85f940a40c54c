#pragma once

#include <QAbstractTableModel>

#include "platform/outside/listitems.h"

namespace tessaro {

/// Lets a Qt view read a ListItems. Texts are read when they are painted; only the number of rows
/// is kept, so that adding many rows stays cheap.
class ListModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    ListModel(const ListItems& items, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Takes over the number of rows.
    void followCount();
    /// Has every text painted anew.
    void followTexts();

  private:
    const ListItems& items_;
    int rows_ = 0;
};

}  // namespace tessaro
