#include "desktop/ComboBoxBinder.h"

#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>
#include <QStandardItemModel>

#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr int kLeastCharacters = 12;
constexpr int kWideCharacters = 56;
constexpr int kMostShown = 20;  // entries, without scrolling

}  // namespace

void ComboModel::Reset() {
    beginResetModel();
    count_ = static_cast<int>(combo_.entries.size());
    endResetModel();
}

int ComboModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

QVariant ComboModel::data(const QModelIndex& index, int role) const {
    const auto row = static_cast<std::size_t>(index.row());
    // An editable box asks for what is edited.
    const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
    if (!isText || row >= combo_.entries.size()) return QVariant();
    return ShownText(combo_.entries[row].text);
}

ComboBoxBinder::ComboBoxBinder(ComboBox& combo, QWidget& parent, EventSink& sink)
    : Binder(combo, *new QComboBox(&parent), sink),
      combo_(combo),
      shown_(static_cast<QComboBox&>(Widget())),
      model_(combo) {
    // The width isn't fitted to the entries: it takes long to measure many. The wheel gives no focus.
    shown_.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    shown_.setMinimumContentsLength(combo.wide ? kWideCharacters : kLeastCharacters);
    shown_.setFocusPolicy(Qt::StrongFocus);
    shown_.setMaxVisibleItems(kMostShown);
    shown_.setModel(&model_);
    if (auto* list = qobject_cast<QListView*>(shown_.view())) list->setUniformItemSizes(true);
    if (combo.style == ComboStyle::Editable) MakeEditable();
    // Not `currentIndexChanged`, which a drawing causes too.
    QObject::connect(&shown_, &QComboBox::activated, &life,
                     [this](int index) { UserActs(EventKind::Change, [&] { combo_.index = index; }); });
}

// What is typed is neither completed nor made an entry.
void ComboBoxBinder::MakeEditable() {
    shown_.setEditable(true);
    shown_.setInsertPolicy(QComboBox::NoInsert);
    shown_.setCompleter(nullptr);
    QObject::connect(shown_.lineEdit(), &QLineEdit::textEdited, &life, [this](const QString& text) {
        UserActs(EventKind::Change, [&] {
            combo_.Type(FromQString(text));
            text_.Changes(combo_.Text());
        });
    });
}

ComboBoxBinder::~ComboBoxBinder() {
    shown_.setModel(new QStandardItemModel(&shown_));
}

void ComboBoxBinder::DrawContent() {
    if (drawnRevision_ != combo_.revision) {
        drawnRevision_ = combo_.revision;
        model_.Reset();
        text_ = DrawnText();
    }
    // What the user typed is in the field already; a drawing writes only what code has changed.
    if (!shown_.isEditable() || text_.Changes(combo_.Text())) GoBack();
}

void ComboBoxBinder::GoBack() {
    if (shown_.currentIndex() != combo_.index) shown_.setCurrentIndex(combo_.index);
    if (shown_.isEditable()) shown_.setEditText(ToQString(combo_.Text()));
}

}  // namespace orlo
