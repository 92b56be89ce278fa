#pragma once

#include <QLabel>

namespace orlo {

// A label of one line that shortens its text with an ellipsis where it doesn't fit. "&" is an ordinary
// character. The indent counts on both sides.
class ElidedLabel : public QLabel {
  public:
    // `cut`: the part that is left out, an end or the middle.
    ElidedLabel(QWidget& parent, Qt::TextElideMode cut);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return QSize(0, sizeHint().height()); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Qt::TextElideMode cut_;
};

}  // namespace orlo
