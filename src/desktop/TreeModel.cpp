#include "desktop/TreeModel.h"

#include <QBrush>

#include "desktop/ScreenText.h"

namespace orlo {

void TreeModel::Reset() {
    beginResetModel();
    shapes_.assign(tree_.nodes.size(), {});
    children_.clear();
    children_.reserve(tree_.nodes.size());
    TakeChildren(tree_.roots, -1, root_);
    for (std::size_t i = 0; i < tree_.nodes.size(); ++i) {
        TakeChildren(tree_.nodes[i].children, static_cast<std::int32_t>(i), shapes_[i]);
    }
    endResetModel();
}

void TreeModel::TakeChildren(const std::vector<std::int32_t>& places, std::int32_t parent, Shape& of) {
    of.firstChild = children_.size();
    of.childCount = static_cast<std::int32_t>(places.size());
    for (std::size_t row = 0; row < places.size(); ++row) {
        Shape& child = shapes_[static_cast<std::size_t>(places[row])];
        child.parent = parent;
        child.row = static_cast<std::int32_t>(row);
    }
    children_.insert(children_.end(), places.begin(), places.end());
}

void TreeModel::StateChanged() {
    if (root_.childCount == 0) return;
    Q_EMIT dataChanged(index(0, 0), index(root_.childCount - 1, 0));
}

QModelIndex TreeModel::IndexOf(std::int32_t place) const {
    if (place < 0 || static_cast<std::size_t>(place) >= shapes_.size()) return QModelIndex();
    return createIndex(shapes_[static_cast<std::size_t>(place)].row, 0, static_cast<quintptr>(place));
}

std::int32_t TreeModel::PlaceOf(const QModelIndex& index) {
    return index.isValid() ? static_cast<std::int32_t>(index.internalId()) : -1;
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
    const Shape& of = parent.isValid() ? shapes_[static_cast<std::size_t>(PlaceOf(parent))] : root_;
    if (column != 0 || row < 0 || row >= of.childCount) return QModelIndex();
    const std::int32_t place = children_[of.firstChild + static_cast<std::size_t>(row)];
    return createIndex(row, 0, static_cast<quintptr>(place));
}

QModelIndex TreeModel::parent(const QModelIndex& index) const {
    return index.isValid() ? IndexOf(shapes_[static_cast<std::size_t>(PlaceOf(index))].parent)
                           : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? shapes_[static_cast<std::size_t>(PlaceOf(parent))].childCount
                            : root_.childCount;
}

const TreeNode* TreeModel::NodeAt(const QModelIndex& index) const {
    const std::int32_t place = PlaceOf(index);
    return place >= 0 && place < tree_.Count() ? &tree_.At(place) : nullptr;
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
    const TreeNode* node = NodeAt(index);
    if (node == nullptr) return QVariant();
    switch (role) {
        case Qt::DisplayRole:
            return ShownText(node->text);
        case Qt::ForegroundRole:
            if (const auto colour = ScreenColour(node->colour)) return QBrush(*colour);
            return QVariant();
        case Qt::CheckStateRole:
            if (!tree_.checkBoxes) return QVariant();
            if (node->checked) return Qt::Checked;
            return node->colour == Colour::Gray ? Qt::PartiallyChecked : Qt::Unchecked;
        default:
            return QVariant();
    }
}

// The value is ignored: whatever the toolkit makes of a partly checked node, the form decides.
bool TreeModel::setData(const QModelIndex& index, const QVariant&, int role) {
    if (role != Qt::CheckStateRole || NodeAt(index) == nullptr) return false;
    check_(PlaceOf(index));
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags TreeModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return tree_.checkBoxes ? flags | Qt::ItemIsUserCheckable : flags;
}

}  // namespace orlo
