#include "desktop/ComboBoxBinder.h"

#include <QListView>
#include <QSignalBlocker>
#include <QStandardItemModel>

#include "desktop/ScreenText.h"

namespace orlo {
namespace {

constexpr int kLeastCharacters = 12;

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
    if (role != Qt::DisplayRole || row >= combo_.entries.size()) return QVariant();
    return ToQString(combo_.entries[row].text);
}

ComboBoxBinder::ComboBoxBinder(ComboBox& combo, QWidget& parent, EventSink& sink)
    : Binder(combo, *new QComboBox(&parent), sink),
      combo_(combo),
      shown_(static_cast<QComboBox&>(Widget())),
      model_(combo) {
    // Measuring all entries takes long where they are many. The wheel alone moves no focus.
    shown_.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    shown_.setMinimumContentsLength(kLeastCharacters);
    shown_.setFocusPolicy(Qt::StrongFocus);
    shown_.setModel(&model_);
    if (auto* list = qobject_cast<QListView*>(shown_.view())) list->setUniformItemSizes(true);
    // Not `currentIndexChanged`, which a drawing causes too.
    QObject::connect(&shown_, &QComboBox::activated, &life,
                     [this](int index) { UserActs(EventKind::Change, [&] { combo_.index = index; }); });
}

ComboBoxBinder::~ComboBoxBinder() {
    shown_.setModel(new QStandardItemModel(&shown_));
}

void ComboBoxBinder::DrawContent() {
    if (drawnRevision_ != combo_.revision) {
        drawnRevision_ = combo_.revision;
        model_.Reset();
    }
    GoBack();
}

void ComboBoxBinder::GoBack() {
    if (shown_.currentIndex() != combo_.index) shown_.setCurrentIndex(combo_.index);
}

}  // namespace orlo
