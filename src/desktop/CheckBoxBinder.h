#pragma once

#include <QCheckBox>

#include "desktop/Binder.h"

namespace orlo {

class CheckBoxBinder : public Binder {
  public:
    CheckBoxBinder(CheckBox& box, QWidget& parent, EventSink& sink);

  protected:
    void DrawContent() override;
    void GoBack() override { shown_.setChecked(box_.checked); }

  private:
    CheckBox& box_;
    QCheckBox& shown_;
    DrawnText caption_;
};

}  // namespace orlo
