#pragma once

#include <QTreeView>
#include <set>
#include <string>

#include "desktop/Binder.h"
#include "desktop/TreeModel.h"

namespace orlo {

// Draws a tree with its check marks. Which nodes are expanded is kept here alone, by their keys, so that they
// are expanded again when the tree is filled anew.
class TreeViewBinder : public Binder {
  public:
    TreeViewBinder(TreeView& tree, QWidget& parent, EventSink& sink);
    ~TreeViewBinder() override;
    std::int32_t HoverValue(const QPoint& place) const override;

  protected:
    void DrawContent() override;

  private:
    void OpenKeptNodes();
    void NoteOpen(const QModelIndex& index, bool open);

    TreeView& tree_;
    QTreeView& shown_;
    TreeModel model_;
    std::set<std::string> openKeys_;
    std::int64_t drawnContent_ = -1;
    std::int64_t drawnState_ = -1;
    std::int32_t drawnCurrent_ = -1;
    bool drawing_ = false;
};

}  // namespace orlo
