#include "desktop/ListModel.h"

#include <QBrush>

#include "desktop/ScreenText.h"

namespace orlo {

void ListModel::Reset() {
    beginResetModel();
    rows_ = list_.Count();
    columns_ = static_cast<int>(list_.columns.size());
    endResetModel();
}

void ListModel::ContentChanged() {
    if (rows_ == 0 || columns_ == 0) return;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
    Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
}

bool ListModel::SameSize() const {
    return rows_ == list_.Count() && columns_ == static_cast<int>(list_.columns.size());
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (index.row() < 0 || index.row() >= list_.Count()) return QVariant();
    const std::int32_t place = list_.PlaceAt(index.row());
    switch (role) {
        case Qt::DisplayRole:
            return ShownText(list_.Text(place, index.column()));
        case Qt::ForegroundRole:
            if (const auto colour = ScreenColour(list_.RowColour(place))) return QBrush(*colour);
            return QVariant();
        case Qt::AccessibleDescriptionRole: {
            const Colour colour = list_.RowColour(place);
            if (!list_.colourMarks || colour == Colour::WindowText || index.column() != 0) return QVariant();
            return ToQString(ColourWord(colour));
        }
        case Qt::ToolTipRole: {
            const std::string tip = list_.ToolTip(place);
            return tip.empty() ? QVariant() : QVariant(TipText(tip));
        }
        default:
            return QVariant();
    }
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto column = static_cast<std::size_t>(section);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || column >= list_.columns.size())
        return QVariant();
    return ToQString(list_.columns[column].caption);
}

}  // namespace orlo
