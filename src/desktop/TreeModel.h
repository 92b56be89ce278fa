#pragma once

#include <QAbstractItemModel>
#include <functional>
#include <vector>

#include "forms/TreeView.h"

namespace orlo {

// Reads a tree's nodes when the toolkit asks for them. The shape of the tree, a few numbers a node, is that
// of the last Reset, so that code may add and remove nodes between two drawings. A place is the node's in
// TreeView.
class TreeModel : public QAbstractItemModel {
  public:
    // `check` is called with the node's place when the user clicks its check mark.
    TreeModel(const TreeView& tree, std::function<void(std::int32_t)> check)
        : tree_(tree), check_(std::move(check)) {}

    void Reset();
    // Checks or colours changed, and the shape did not.
    void StateChanged();
    QModelIndex IndexOf(std::int32_t place) const;          // invalid for -1
    static std::int32_t PlaceOf(const QModelIndex& index);  // -1 for an invalid one

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& = QModelIndex()) const override { return 1; }
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    struct Shape {
        std::int32_t parent = -1;
        std::int32_t row = 0;
        std::size_t firstChild = 0;  // in children_
        std::int32_t childCount = 0;
    };
    const TreeNode* NodeAt(const QModelIndex& index) const;  // null for one that is gone
    void TakeChildren(const std::vector<std::int32_t>& places, std::int32_t parent, Shape& of);

    const TreeView& tree_;
    std::function<void(std::int32_t)> check_;
    std::vector<Shape> shapes_;
    Shape root_;
    std::vector<std::int32_t> children_;
};

}  // namespace orlo
