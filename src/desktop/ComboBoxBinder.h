#pragma once

#include <QAbstractListModel>
#include <QComboBox>

#include "desktop/Binder.h"

namespace orlo {

// Reads the entries when the toolkit asks for them. Their number is that of the last Reset, so that code may
// add and remove entries between two drawings.
class ComboModel : public QAbstractListModel {
  public:
    explicit ComboModel(const ComboBox& combo) : combo_(combo) {}
    void Reset();
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    const ComboBox& combo_;
    int count_ = 0;
};

class ComboBoxBinder : public Binder {
  public:
    ComboBoxBinder(ComboBox& combo, QWidget& parent, EventSink& sink);
    ~ComboBoxBinder() override;

  protected:
    void DrawContent() override;
    void GoBack() override;

  private:
    void MakeEditable();

    ComboBox& combo_;
    QComboBox& shown_;
    ComboModel model_;
    DrawnText text_;  // of an editable one
    std::int64_t drawnRevision_ = -1;
};

}  // namespace orlo
