#include "desktop/ListViewBinder.h"

#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimer>

#include "desktop/ColourMark.h"
#include "desktop/EmptyHint.h"
#include "desktop/ScreenText.h"

namespace orlo {
namespace {

// For each cell that it paints the toolkit walks all ranges that are selected.
constexpr std::size_t kMostRanges = 1000;
constexpr int kHeaderRoom = 24;
constexpr int kLeastWidth = 70;
constexpr int kRowRoom = 4;
constexpr int kCellRoom = 12;
constexpr int kMarkGap = 6;
constexpr int kMostHintCharacters = 75;
constexpr int kWideHintCharacters = 105;
constexpr std::int32_t kMostHintRows = 16;
constexpr int kMostCellCharacters = 36;
constexpr int kWideCellCharacters = 64;  // of the first column of a wide list
constexpr std::int32_t kRowsMeasured = 200;
constexpr int kSortKey = Qt::Key_F3;  // sorts by the current cell's column

// Paints a row as selected where the form says so.
class RowDelegate : public QStyledItemDelegate {
  public:
    RowDelegate(QObject* parent, const ListView& list) : QStyledItemDelegate(parent), list_(list) {}

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const bool selected = index.row() < list_.Count() && list_.Selected(list_.PlaceAt(index.row()));
        option->state.setFlag(QStyle::State_Selected, selected);
        if (!HasMark(index)) return;
        // An icon without a picture keeps the room.
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = ColourMarkSize(option->font);
    }

    // The row that keys act on has a line above and below while the list has the focus.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        if (HasMark(index) && index.row() < list_.Count()) PaintMark(*painter, option, index);
        const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
        if (view == nullptr || !view->hasFocus() || view->currentIndex().row() != index.row()) return;
        if (index.row() >= list_.Count()) return;  // gone since the last drawing
        const bool selected = list_.Selected(list_.PlaceAt(index.row()));
        painter->setPen(QPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text), 1,
                             Qt::DotLine));
        painter->drawLine(option.rect.topLeft(), option.rect.topRight());
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }

  private:
    bool HasMark(const QModelIndex& index) const { return list_.colourMarks && index.column() == 0; }

    void PaintMark(QPainter& painter, QStyleOptionViewItem option, const QModelIndex& index) const {
        initStyleOption(&option, index);
        const std::int32_t place = list_.PlaceAt(index.row());
        const QRect room =
            option.widget->style()->subElementRect(QStyle::SE_ItemViewItemDecoration, &option, option.widget);
        PaintColourMark(painter, room, list_.RowColour(place),
                        list_.Selected(place) ? option.palette.color(QPalette::HighlightedText) : QColor());
    }

    const ListView& list_;
};

// Keeps what the user's last act does to the selection.
class ListTable : public QTableView {
  public:
    ListTable(QWidget* parent, const ListView& list) : QTableView(parent), list_(list) {}
    QItemSelectionModel::SelectionFlags LastCommand() const { return command_; }
    void NeedColumns(int width) { columnsWidth_ = width; }
    void DrawHint() { hint_.Draw(*this, list_.Count() == 0 ? list_.emptyHint : std::string()); }

    // Of a dialog's list when the window opens: its columns and rows whole, but for very many.
    QSize sizeHint() const override {
        const int character = fontMetrics().averageCharWidth();
        const int width = list_.wide ? kWideHintCharacters * character
                                     : std::min(columnsWidth_, kMostHintCharacters * character);
        const int edges = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
        const std::int32_t rows = list_.wide ? kMostHintRows : std::min(list_.Count(), kMostHintRows);
        const int height =
            rows * verticalHeader()->defaultSectionSize() + horizontalHeader()->sizeHint().height() + edges;
        return QTableView::sizeHint().expandedTo({width + edges, height});
    }

    // Scrolls sideways only for a key that moves from column to column.
    void scrollTo(const QModelIndex& index, ScrollHint hint) override {
        const int left = horizontalScrollBar()->value();
        QTableView::scrollTo(index, hint);
        if (!alongColumns_) horizontalScrollBar()->setValue(left);
    }

    // The toolkit's own would toggle the rows, since Ctrl is held with the key that calls it.
    void selectAll() override {
        if (model() == nullptr || model()->rowCount() == 0 || model()->columnCount() == 0) return;
        command_ = QItemSelectionModel::ClearAndSelect;
        const QItemSelection all(model()->index(0, 0),
                                 model()->index(model()->rowCount() - 1, model()->columnCount() - 1));
        selectionModel()->select(all, command_);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QTableView::paintEvent(event);
        hint_.Paint(*this);
    }

    // Home and End go to the first and last row, and stay in the column.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override {
        const int rows = model() == nullptr ? 0 : model()->rowCount();
        if (rows == 0 || (action != MoveHome && action != MoveEnd))
            return QTableView::moveCursor(action, modifiers);
        return model()->index(action == MoveHome ? 0 : rows - 1, std::max(0, currentIndex().column()));
    }

    // A double click of another button does nothing.
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) QTableView::mouseDoubleClickEvent(event);
    }

    // The toolkit's own copy takes the current cell alone.
    void keyPressEvent(QKeyEvent* event) override {
        const bool plain = event->modifiers() == Qt::NoModifier;
        if (plain && event->key() == kSortKey && currentIndex().isValid()) {
            Q_EMIT horizontalHeader()->sectionClicked(currentIndex().column());
            return;
        }
        const QScopedValueRollback<bool> alongColumns(
            alongColumns_, event->key() == Qt::Key_Left || event->key() == Qt::Key_Right);
        if (!event->matches(QKeySequence::Copy)) return QTableView::keyPressEvent(event);
        const std::string text = list_.SelectedText();
        if (!text.empty()) QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    }

    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override {
        command_ = QTableView::selectionCommand(index, event);
        return command_;
    }

  private:
    const ListView& list_;
    EmptyHint hint_;
    int columnsWidth_ = 0;       // that shows them whole
    bool alongColumns_ = false;  // while a key moves from column to column
    mutable QItemSelectionModel::SelectionFlags command_ = QItemSelectionModel::ClearAndSelect;
};

std::vector<PositionRange> RangesOf(const QItemSelection& selection) {
    std::vector<PositionRange> ranges;
    ranges.reserve(static_cast<std::size_t>(selection.size()));
    for (const QItemSelectionRange& range : selection) ranges.push_back({range.top(), range.bottom()});
    return ranges;
}

int MarkRoom(const QWidget& list) {
    return ColourMarkSize(list.font()).width() + kMarkGap;
}

QItemSelection SelectionOf(const QAbstractItemModel& model, const std::vector<PositionRange>& ranges) {
    QItemSelection selection;
    const int lastColumn = model.columnCount() - 1;
    for (const PositionRange& range : ranges) {
        selection.append(
            QItemSelectionRange(model.index(range.first, 0), model.index(range.last, lastColumn)));
    }
    return selection;
}

}  // namespace

ListViewBinder::ListViewBinder(ListView& list, QWidget& parent, EventSink& sink)
    : Binder(list, *new ListTable(&parent, list), sink),
      list_(list),
      shown_(static_cast<QTableView&>(Widget())),
      model_(list) {
    shown_.setModel(&model_);
    shown_.setItemDelegate(new RowDelegate(&shown_, list));
    shown_.setSelectionBehavior(QAbstractItemView::SelectRows);
    shown_.setSelectionMode(QAbstractItemView::ExtendedSelection);
    shown_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    shown_.setFocusPolicy(Qt::StrongFocus);
    shown_.setTabKeyNavigation(false);
    shown_.setShowGrid(false);
    shown_.setWordWrap(false);
    shown_.setCornerButtonEnabled(false);
    shown_.verticalHeader()->hide();
    shown_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    shown_.verticalHeader()->setDefaultSectionSize(QFontMetrics(shown_.font()).height() + kRowRoom);
    shown_.horizontalHeader()->setSectionsClickable(true);
    shown_.horizontalHeader()->setHighlightSections(false);
    shown_.horizontalHeader()->setStretchLastSection(true);
    shown_.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    Connect();
}

ListViewBinder::~ListViewBinder() {
    drawing_ = true;
    shown_.setItemDelegate(nullptr);
    shown_.setModel(nullptr);
}

void ListViewBinder::Connect() {
    const QItemSelectionModel* selection = shown_.selectionModel();
    QObject::connect(selection, &QItemSelectionModel::selectionChanged, &life,
                     [this](const QItemSelection& selected, const QItemSelection& deselected) {
                         if (!drawing_) UserSelects(selected, deselected);
                     });
    QObject::connect(selection, &QItemSelectionModel::currentRowChanged, &life,
                     [this](const QModelIndex& index) {
                         if (!drawing_) UserMoves(index);
                     });
    QObject::connect(&shown_, &QTableView::doubleClicked, &life, [this](const QModelIndex& index) {
        if (index.row() >= list_.Count()) return;
        PostSelection();
        Post(EventKind::DoubleClick, list_.PlaceAt(index.row()));
    });
    QObject::connect(shown_.horizontalHeader(), &QHeaderView::sectionClicked, &life,
                     [this](int column) { Post(EventKind::ClickColumn, column); });
    QObject::connect(shown_.horizontalHeader(), &QHeaderView::sectionResized, &life,
                     [this](int column, int, int width) {
                         const auto place = static_cast<std::size_t>(column);
                         // The last column follows the list's width and isn't kept.
                         if (!drawing_ && place + 1 < drawnKeys_.size())
                             list_.columnWidths[drawnKeys_[place]] = width;
                     });
}

void ListViewBinder::DrawContent() {
    const QScopedValueRollback<bool> drawing(drawing_, true);
    DrawRows();
    DrawHeader();
    DrawSelection();
    DrawCurrent();
    static_cast<ListTable&>(shown_).DrawHint();
}

void ListViewBinder::DrawRows() {
    if (drawnContent_ == list_.contentRevision && drawnOrder_ == list_.orderRevision) return;
    if (model_.SameSize() && drawnOrder_ == list_.orderRevision) {
        model_.ContentChanged();
        if (list_.Count() <= kRowsMeasured) FitColumns(Fit::Grow);
    } else {
        const int top = shown_.verticalScrollBar()->value();
        const int left = shown_.horizontalScrollBar()->value();
        currentColumn_ = std::max(0, shown_.currentIndex().column());
        model_.Reset();
        shown_.verticalScrollBar()->setValue(top);
        shown_.horizontalScrollBar()->setValue(left);
        drawnSelection_ = -1;
        drawnCurrent_ = -1;
    }
    drawnContent_ = list_.contentRevision;
    drawnOrder_ = list_.orderRevision;
}

// A column is as wide as the user made it, else as its caption and some of its rows need.
void ListViewBinder::FitColumns(Fit fit) {
    const QFontMetrics headerMetrics(shown_.horizontalHeader()->font());
    const QFontMetrics metrics(shown_.font());
    const std::int32_t rows = std::min(list_.Count(), kRowsMeasured);
    int total = 0;
    for (std::size_t i = 0; i < list_.columns.size(); ++i) {
        const auto column = static_cast<int>(i);
        const auto kept = list_.columnWidths.find(list_.columns[i].key);
        const int characters = list_.wide && column == 0 ? kWideCellCharacters : kMostCellCharacters;
        const int most = characters * metrics.averageCharWidth();
        int needed = std::max(
            kLeastWidth, headerMetrics.horizontalAdvance(ToQString(list_.columns[i].caption)) + kHeaderRoom);
        for (std::int32_t row = 0; row < rows; ++row) {
            // Spread over the list, since sorting can put empty texts first.
            const auto position = static_cast<std::int32_t>(std::int64_t{row} * list_.Count() / rows);
            const int text =
                metrics.horizontalAdvance(ShownText(list_.Text(list_.PlaceAt(position), column)));
            const int mark = list_.colourMarks && column == 0 ? MarkRoom(shown_) : 0;
            needed = std::max(needed, std::min(text, most) + mark + kCellRoom);
        }
        if (kept != list_.columnWidths.end()) {
            shown_.setColumnWidth(column, kept->second);
        } else if (fit == Fit::Anew || needed > shown_.columnWidth(column)) {
            shown_.setColumnWidth(column, needed);
        }
        total += needed;
    }
    static_cast<ListTable&>(shown_).NeedColumns(total);
}

void ListViewBinder::DrawHeader() {
    std::vector<std::string> keys;
    for (const ListColumn& column : list_.columns) keys.push_back(column.key);
    const bool firstRows = !fittedToRows_ && list_.Count() > 0;
    if (keys != drawnKeys_ || firstRows) {
        drawnKeys_ = keys;
        fittedToRows_ = list_.Count() > 0;
        FitColumns(Fit::Anew);
    }
    QHeaderView& header = *shown_.horizontalHeader();
    const Qt::SortOrder order = list_.ascending ? Qt::AscendingOrder : Qt::DescendingOrder;
    if (header.isSortIndicatorShown() != list_.sorted) header.setSortIndicatorShown(list_.sorted);
    if (list_.sorted &&
        (header.sortIndicatorSection() != list_.sortColumn || header.sortIndicatorOrder() != order)) {
        header.setSortIndicator(list_.sortColumn, order);
    }
}

void ListViewBinder::DrawSelection() {
    if (drawnSelection_ == list_.selectionRevision) return;
    drawnSelection_ = list_.selectionRevision;
    const std::vector<PositionRange> ranges = list_.SelectedRanges();
    inPieces_ = ranges.size() > kMostRanges;
    QItemSelectionModel& selection = *shown_.selectionModel();
    selection.select(inPieces_ ? QItemSelection() : SelectionOf(model_, ranges),
                     QItemSelectionModel::ClearAndSelect);
    shown_.viewport()->update();
}

void ListViewBinder::DrawCurrent() {
    if (drawnCurrent_ == list_.current) return;
    drawnCurrent_ = list_.current;
    const int position = list_.current < 0 ? -1 : list_.PositionOf(list_.current);
    const bool hasCurrent = shown_.currentIndex().isValid();
    const int column = hasCurrent ? shown_.currentIndex().column() : currentColumn_;
    shown_.selectionModel()->setCurrentIndex(model_.index(position, column), QItemSelectionModel::NoUpdate);
}

void ListViewBinder::TakeRequests() {
    if (!list_.ensureVisibleRequest) return;
    list_.ensureVisibleRequest = false;
    const QScopedValueRollback<bool> drawing(drawing_, true);
    const QModelIndex current = shown_.currentIndex();
    if (current.isValid()) shown_.scrollTo(current);
}

void ListViewBinder::UserSelects(const QItemSelection& selected, const QItemSelection& deselected) {
    if (!Takes(EventKind::SelectRow) || !model_.SameSize()) return GoBack();
    const auto command = static_cast<ListTable&>(shown_).LastCommand();
    if (!inPieces_ || command.testFlag(QItemSelectionModel::Clear)) {
        list_.SelectOnly(RangesOf(shown_.selectionModel()->selection()));
        inPieces_ = false;
    } else if (command.testFlag(QItemSelectionModel::Toggle)) {
        // The toolkit doesn't know which of the rows were selected; the form does.
        Toggle(RangesOf(selected));
        Toggle(RangesOf(deselected));
    } else {
        list_.SelectRanges(RangesOf(deselected), false);
        list_.SelectRanges(RangesOf(selected), true);
    }
    drawnSelection_ = list_.selectionRevision;
    shown_.viewport()->update();
    AnnounceSelection();
}

void ListViewBinder::Toggle(const std::vector<PositionRange>& ranges) {
    for (const PositionRange& range : ranges) {
        for (std::int32_t position = range.first; position <= range.last; ++position) {
            const std::int32_t place = list_.PlaceAt(position);
            list_.Select(place, !list_.Selected(place));
        }
    }
}

void ListViewBinder::UserMoves(const QModelIndex& index) {
    if (!Takes(EventKind::SelectRow) || !model_.SameSize()) return GoBack();
    list_.current = index.isValid() ? list_.PlaceAt(index.row()) : -1;
    drawnCurrent_ = list_.current;
    shown_.viewport()->update();
    AnnounceSelection();
}

void ListViewBinder::AnnounceSelection() {
    if (announced_) return;
    announced_ = true;
    QTimer::singleShot(0, &life, [this] { PostSelection(); });
}

void ListViewBinder::PostSelection() {
    if (!announced_) return;
    announced_ = false;
    Post(EventKind::SelectRow);
}

// Draws later, since the toolkit is still changing its selection.
void ListViewBinder::GoBack() {
    drawnSelection_ = -1;
    drawnCurrent_ = -2;
    QTimer::singleShot(0, &life, [this] {
        if (list_.form.frozen == 0) Draw();
    });
}

}  // namespace orlo
