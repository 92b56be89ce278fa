#pragma once

#include <QAbstractTableModel>

#include "forms/ListView.h"

namespace orlo {

// Reads a list's packed rows when the toolkit asks for them. The number of rows and columns is that of the
// last Reset, so that code may add and remove rows between two drawings.
class ListModel : public QAbstractTableModel {
  public:
    explicit ListModel(const ListView& list) : list_(list) {}

    void Reset();
    // Texts or colours changed, and the size did not.
    void ContentChanged();
    // Whether the list still has the rows and columns of the last Reset.
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
