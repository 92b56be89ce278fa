#pragma once

#include <QAbstractTableModel>

#include "forms/ListView.h"

namespace orlo {

// Reads a list's packed rows when they are asked for. Its size is the one of the last drawing, so that rows
// may come and go in between.
class ListModel : public QAbstractTableModel {
  public:
    explicit ListModel(const ListView& list) : list_(list) {}

    void Reset();
    // The same size, other texts or colours.
    void ContentChanged();
    bool SameSize() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const ListView& list_;
    int rows_ = 0;
    int columns_ = 0;
};

}  // namespace orlo
