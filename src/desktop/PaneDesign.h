#pragma once

#include <QSize>
#include <vector>

#include "desktop/ControlSizes.h"

namespace orlo {

// One place in a row: a control or empty space. What is wide shares the room that the row has left over.
struct RowItem {
    Control* control = nullptr;
    int width = 0;  // the least one of what is wide
    int height = 0;
    bool wide = false;
};

RowItem Fixed(Control& control);
RowItem Fixed(Control& control, int width);
RowItem Fixed(Control& control, QSize size);
RowItem Wide(Control& control, int leastWidth);
RowItem Space(int leastWidth = 0);  // grows
RowItem Gap(int width);             // does not

// Gives the controls of a pane or frame their boxes for one size of it, in rows from the top down and from
// the bottom up, and tells the least size at which they all have their place. A size below that one is taken
// for it.
class PaneDesign {
  public:
    PaneDesign(QSize size, QMargins edges);

    // The rows end `inset` before the right edge.
    void FromTop(const std::vector<RowItem>& row, int inset = 0);
    void FromBottom(const std::vector<RowItem>& row, int inset = 0);
    // A row of labels that stand close over what comes next.
    void LabelsFromTop(const std::vector<RowItem>& row);
    // A label that has a row of its own: as wide as a pane of `paneWidth` allows, for the longest captions.
    void LabelFromTop(Control& label, int paneWidth);
    // What is left between both goes to one control.
    void Fill(Control& control, int leastHeight);

    // Where the next row from the top stands; for columns beside one another.
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
    int fromBottom_;  // height taken by the rows at the bottom, with their edge
    QSize least_;
};

}  // namespace orlo
