#pragma once

#include <QLabel>

namespace orlo {

// A line of text that is shortened where it does not fit. "&" is a character of it. It keeps its indent from
// both sides.
class ElidedLabel : public QLabel {
  public:
    // `cut` says which end, or the middle, is left out.
    ElidedLabel(QWidget& parent, Qt::TextElideMode cut);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return QSize(0, sizeHint().height()); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Qt::TextElideMode cut_;
};

}  // namespace orlo
