#include "desktop/TreeViewBinder.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "desktop/EmptyHint.h"

namespace orlo {
namespace {

constexpr int kRowRoom = 4;

// Rows as high as those of a list, so that their check boxes stand apart.
class NodeDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRowRoom);
    }
};

// The space bar turns the check mark, but while a name is typed to find its node, a blank belongs to the
// name.
class NodeTree : public QTreeView {
  public:
    using QTreeView::QTreeView;
    void DrawHint(const TreeView& tree) {
        hint_.Draw(*this, tree.Count() == 0 ? tree.emptyHint : std::string());
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QTreeView::paintEvent(event);
        hint_.Paint(*this);
    }

    void keyPressEvent(QKeyEvent* event) override {
        const bool typing = typed_.isValid() && typed_.elapsed() < QApplication::keyboardInputInterval();
        const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
        const QString text = event->text();
        if (plain && typing && event->key() == Qt::Key_Space) {
            keyboardSearch(text);
            typed_.start();
            return;
        }
        if (plain && !text.isEmpty() && text.front().isLetterOrNumber()) typed_.start();
        QTreeView::keyPressEvent(event);
    }

  private:
    EmptyHint hint_;
    QElapsedTimer typed_;  // since the last letter or digit of a name
};

}  // namespace

TreeViewBinder::TreeViewBinder(TreeView& tree, QWidget& parent, EventSink& sink)
    : Binder(tree, *new NodeTree(&parent), sink),
      tree_(tree),
      shown_(static_cast<QTreeView&>(Widget())),
      model_(tree, [this](std::int32_t node) {
          UserActs(
              EventKind::CheckNode, [&] { tree_.At(node).checked = !tree_.At(node).checked; }, node);
      }) {
    shown_.setModel(&model_);
    shown_.setItemDelegate(new NodeDelegate(&shown_));
    shown_.setUniformRowHeights(true);
    shown_.setHeaderHidden(true);
    shown_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    shown_.setFocusPolicy(Qt::StrongFocus);
    QObject::connect(shown_.selectionModel(), &QItemSelectionModel::currentChanged, &life,
                     [this](const QModelIndex& index) {
                         const std::int32_t place = TreeModel::PlaceOf(index);
                         if (drawing_ || place >= tree_.Count()) return;
                         tree_.current = drawnCurrent_ = place;
                     });
    QObject::connect(&shown_, &QTreeView::expanded, &life,
                     [this](const QModelIndex& index) { NoteOpen(index, true); });
    QObject::connect(&shown_, &QTreeView::collapsed, &life,
                     [this](const QModelIndex& index) { NoteOpen(index, false); });
}

TreeViewBinder::~TreeViewBinder() {
    drawing_ = true;
    shown_.setModel(nullptr);
}

void TreeViewBinder::NoteOpen(const QModelIndex& index, bool open) {
    const std::int32_t place = TreeModel::PlaceOf(index);
    if (drawing_ || place < 0 || place >= tree_.Count()) return;
    if (open) {
        openKeys_.insert(tree_.At(place).key);
    } else {
        openKeys_.erase(tree_.At(place).key);
    }
}

void TreeViewBinder::DrawContent() {
    const QScopedValueRollback<bool> drawing(drawing_, true);
    if (drawnContent_ != tree_.contentRevision) {
        const int top = shown_.verticalScrollBar()->value();
        model_.Reset();
        OpenKeptNodes();
        shown_.verticalScrollBar()->setValue(top);
        drawnCurrent_ = -1;
    } else if (drawnState_ != tree_.stateRevision) {
        model_.StateChanged();
        shown_.viewport()->update();
    }
    drawnContent_ = tree_.contentRevision;
    drawnState_ = tree_.stateRevision;
    if (drawnCurrent_ != tree_.current) {
        drawnCurrent_ = tree_.current;
        shown_.setCurrentIndex(model_.IndexOf(tree_.current));
    }
    static_cast<NodeTree&>(shown_).DrawHint(tree_);
}

void TreeViewBinder::OpenKeptNodes() {
    for (const std::string& key : openKeys_) {
        const std::int32_t place = tree_.Find(key);
        if (place >= 0) shown_.setExpanded(model_.IndexOf(place), true);
    }
}

std::int32_t TreeViewBinder::HoverValue(const QPoint& place) const {
    const std::int32_t node = TreeModel::PlaceOf(shown_.indexAt(place));
    return node < tree_.Count() ? node : -1;
}

}  // namespace orlo
