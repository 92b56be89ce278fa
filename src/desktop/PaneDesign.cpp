#include "desktop/PaneDesign.h"

#include <algorithm>

namespace orlo {
namespace {

int HeightOf(const std::vector<RowItem>& row) {
    int height = 0;
    for (const RowItem& item : row) height = std::max(height, item.height);
    return height;
}

}  // namespace

RowItem Fixed(Control& control) {
    return Fixed(control, NaturalSize(control));
}

RowItem Fixed(Control& control, int width) {
    return Fixed(control, QSize(width, NaturalSize(control).height()));
}

RowItem Fixed(Control& control, QSize size) {
    return {&control, size.width(), size.height(), false};
}

RowItem Wide(Control& control, int leastWidth) {
    return {&control, leastWidth, NaturalSize(control).height(), true};
}

RowItem Space(int leastWidth) {
    return {nullptr, leastWidth, 0, true};
}

RowItem Gap(int width) {
    return {nullptr, width, 0, false};
}

PaneDesign::PaneDesign(QSize size, QMargins edges)
    : size_(size),
      edges_(edges),
      space_(SpaceOfStyle()),
      top_(edges.top()),
      fromBottom_(edges.bottom()),
      least_(edges.left() + edges.right(), edges.top() + edges.bottom()) {}

int PaneDesign::Place(const std::vector<RowItem>& row, int top, int inset, Stand stand) {
    int needed = 0;
    int wides = 0;
    const auto gapAfter = [&](std::size_t i) {
        const bool between = i + 1 < row.size() && row[i].control != nullptr && row[i + 1].control != nullptr;
        return between ? space_.across : 0;
    };
    for (std::size_t i = 0; i < row.size(); ++i) {
        needed += row[i].width + gapAfter(i);
        wides += row[i].wide ? 1 : 0;
    }
    const int outside = edges_.left() + edges_.right() + inset;
    least_.setWidth(std::max(least_.width(), needed + outside));
    int extra = std::max(0, size_.width() - outside - needed);

    const int height = HeightOf(row);
    int left = edges_.left();
    for (std::size_t i = 0; i < row.size(); ++i) {
        int width = row[i].width;
        if (row[i].wide) {
            const int share = extra / wides--;
            extra -= share;
            width += share;
        }
        if (row[i].control != nullptr) {
            const int room = height - row[i].height;
            row[i].control->box = {left, top + (stand == Stand::Bottom ? room : room / 2), width,
                                   row[i].height};
        }
        left += width + gapAfter(i);
    }
    return height;
}

void PaneDesign::FromTop(const std::vector<RowItem>& row, int inset) {
    top_ += Place(row, top_, inset, Stand::Middle);
    least_.setHeight(std::max(least_.height(), top_ + fromBottom_));
    top_ += space_.down;
}

void PaneDesign::LabelsFromTop(const std::vector<RowItem>& row) {
    top_ += Place(row, top_, 0, Stand::Bottom) + space_.down / 2;
}

void PaneDesign::LabelFromTop(Control& label, int paneWidth) {
    const QSize natural = NaturalSize(label);
    LabelsFromTop({Fixed(label, natural)});
    label.box.width = std::max(natural.width(), paneWidth - edges_.left() - edges_.right());
}

void PaneDesign::FromBottom(const std::vector<RowItem>& row, int inset) {
    const int height = HeightOf(row);
    Place(row, size_.height() - fromBottom_ - height, inset, Stand::Middle);
    fromBottom_ += height;
    least_.setHeight(std::max(least_.height(), top_ + fromBottom_));
    fromBottom_ += space_.down;
}

void PaneDesign::Fill(Control& control, int leastHeight) {
    least_.setHeight(std::max(least_.height(), top_ + leastHeight + fromBottom_));
    const int width = std::max(NaturalSize(control).width(), size_.width() - edges_.left() - edges_.right());
    least_.setWidth(std::max(least_.width(), NaturalSize(control).width() + edges_.left() + edges_.right()));
    control.box = {edges_.left(), top_, width, std::max(leastHeight, size_.height() - top_ - fromBottom_)};
}

}  // namespace orlo
