#pragma once

#include <QSize>
#include <vector>

#include "desktop/ControlSizes.h"

namespace orlo {

// One place in a row, in pixels. The wide ones of a row share the width that is left over.
struct RowItem {
    Control* control = nullptr;  // null for empty space
    int width = 0;               // the least width of a wide one
    int height = 0;
    bool wide = false;
};

// Without a width or size: the natural one (NaturalSize).
RowItem Fixed(Control& control);
RowItem Fixed(Control& control, int width);
RowItem Fixed(Control& control, QSize size);
RowItem Wide(Control& control, int leastWidth);
RowItem Space(int leastWidth = 0);  // empty and wide
RowItem Gap(int width);             // empty, of a fixed width

// Gives the controls of a pane or frame their boxes for one size of it, in rows from the top down and from
// the bottom up, and tells the least size at which nothing overlaps. For a smaller size only Least() is of
// use.
class PaneDesign {
  public:
    PaneDesign(QSize size, QMargins edges);

    // Adds the next row from the top or from the bottom. It ends `inset` pixels before the right edge.
    void FromTop(const std::vector<RowItem>& row, int inset = 0);
    void FromBottom(const std::vector<RowItem>& row, int inset = 0);
    // A row of labels, close above the next row.
    void LabelsFromTop(const std::vector<RowItem>& row);
    // A label alone in its row. Its box is as wide as a pane of `paneWidth` allows, since its caption can
    // grow.
    void LabelFromTop(Control& label, int paneWidth);
    // Gives a control all that is left between the rows; to be called last.
    void Fill(Control& control, int leastHeight);

    // Where the next row from the top begins; setting it back starts another column.
    int Top() const { return top_; }
    void SetTop(int top) { top_ = top; }

    QSize Least() const { return least_; }

  private:
    enum class Stand { Middle, Bottom };
    int Place(const std::vector<RowItem>& row, int top, int inset, Stand stand);

    QSize size_;
    QMargins edges_;
    LayoutSpace space_;
    int top_;
    int fromBottom_;  // height of the rows at the bottom with the pane's edge
    QSize least_;
};

}  // namespace orlo
