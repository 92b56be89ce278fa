#include "desktop/FormLayout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <vector>

namespace orlo {
namespace {

using WidgetOf = std::function<QWidget*(const Control&)>;
using Children = std::vector<const Control*>;

// What the order of the controls alone doesn't tell of a form, or of a frame in it.
struct Hint {
    std::string_view form;
    std::string_view container;  // empty: the form itself
    int columns = 1;             // of fields with their labels
    std::string_view wideField;  // takes a whole row, with its label
    std::string_view title;      // a label in large letters
    bool fixedSize = false;
};

constexpr std::array kHints = {
    Hint{"frmFlightEdit", "", 3, "cmAircraft", "", false},
    Hint{"frmFlightEdit", "frLeg", 3, "", "", false},
    Hint{"frmAbout", "", 1, "", "lblTitle", true},
};

constexpr double kTitleScale = 1.8;
constexpr int kGridColumns = 3;  // of one column of fields: label, field, and the gap behind them
constexpr int kGap = 12;
constexpr int kLeastLabelledWidth = 320;  // of a form without lists

Hint HintOf(const Form& form, const Control* container) {
    const std::string_view name = container == nullptr ? std::string_view() : container->name;
    for (const Hint& hint : kHints) {
        if (hint.form == form.name && hint.container == name) return hint;
    }
    return {};
}

bool FillsThePane(const Control& control) {
    switch (control.kind) {
        case ControlKind::ListView:
        case ControlKind::TreeView:
        case ControlKind::Picture:
            return true;
        case ControlKind::TextBox:
            return static_cast<const TextBox&>(control).style != TextBoxStyle::SingleLine;
        default:
            return false;
    }
}

bool StandsBesideItsLabel(const Control& control) {
    return control.kind == ControlKind::ComboBox ||
           (control.kind == ControlKind::TextBox && !FillsThePane(control));
}

bool IsTick(const Control& control) {
    return control.kind == ControlKind::CheckBox || control.kind == ControlKind::OptionButton;
}

bool HoldsOthers(const Control& control) {
    return control.kind == ControlKind::Frame || control.kind == ControlKind::Picture;
}

Children ChildrenOf(const Form& form, const Control* container, const WidgetOf& widgetOf) {
    Children children;
    for (const Control* control : form.Controls()) {
        if (control->parent == container && widgetOf(*control) != nullptr) children.push_back(control);
    }
    return children;
}

// A frame around a choice is as small as a field.
bool IsSmallFrame(const Control& control, const WidgetOf& widgetOf) {
    if (control.kind != ControlKind::Frame) return false;
    const Children children = ChildrenOf(control.form, &control, widgetOf);
    return std::all_of(children.begin(), children.end(), [](const Control* child) { return IsTick(*child); });
}

class ContainerLayout {
  public:
    ContainerLayout(QWidget& container, int columns) : grid_(*new QGridLayout), columns_(columns) {
        for (int i = 0; i < columns; ++i) {
            grid_.setColumnStretch(i * kGridColumns + 1, 1);
            if (i + 1 < columns) grid_.setColumnMinimumWidth(i * kGridColumns + 2, kGap);
        }
        container.setLayout(&grid_);
    }
    QGridLayout& Grid() { return grid_; }

    // Into the next place for a field; `label` may be null.
    void AddField(QWidget* label, QWidget& field) {
        if (column_ == columns_) EndRow();
        const int at = column_++ * kGridColumns;
        if (label != nullptr) {
            AddLowered(*label, at);
            AddLowered(field, at + 1);
        } else {
            grid_.addWidget(&field, row_, at, 1, 2);
        }
    }
    // A frame as small as a field, with its title above. What follows in the row stands on the line of its
    // content.
    void AddSmallFrame(QWidget& frame) {
        AddField(nullptr, frame);
        lowered_ = frame.fontMetrics().height();
    }
    void AddWideField(QWidget& label, QWidget& field) {
        EndRow();
        grid_.addWidget(&label, row_, 0);
        grid_.addWidget(&field, row_++, 1, 1, -1);
    }
    void AddRow(QWidget& widget, bool fills) {
        EndRow();
        grid_.addWidget(&widget, row_, 0, 1, -1);
        if (fills) grid_.setRowStretch(row_, 1);
        ++row_;
    }
    // Takes turns with the row before.
    void AddTurn(QWidget& widget) { grid_.addWidget(&widget, row_ - 1, 0, 1, -1); }
    void AddLine(const std::vector<QWidget*>& widgets, bool atTheEnd) {
        EndRow();
        auto* line = new QHBoxLayout;
        if (atTheEnd) line->addStretch();
        for (QWidget* widget : widgets) line->addWidget(widget);
        if (!atTheEnd) line->addStretch();
        grid_.addLayout(line, row_++, 0, 1, -1);
    }

  private:
    void AddLowered(QWidget& widget, int column) {
        if (lowered_ == 0) return grid_.addWidget(&widget, row_, column);
        auto* box = new QVBoxLayout;
        box->setSpacing(0);
        box->addSpacing(lowered_);
        box->addWidget(&widget);
        grid_.addLayout(box, row_, column);
    }

    void EndRow() {
        if (column_ > 0) ++row_;
        column_ = 0;
        lowered_ = 0;
    }

    QGridLayout& grid_;
    int columns_;
    int row_ = 0;
    int column_ = 0;
    int lowered_ = 0;  // pixels, behind a small frame in the row
};

// How many controls from this one on satisfy the condition.
template <typename Condition>
std::size_t RunOf(const Children& children, std::size_t from, Condition condition) {
    std::size_t length = 0;
    while (from + length < children.size() && condition(*children[from + length])) ++length;
    return length;
}

// Lays out what begins at this place; how many controls that were.
std::size_t AddNext(ContainerLayout& layout, const Children& children, std::size_t at, const Hint& hint,
                    const WidgetOf& widgetOf) {
    const Control& control = *children[at];
    QWidget& shown = *widgetOf(control);
    const auto widgets = [&](std::size_t length) {
        std::vector<QWidget*> found;
        for (std::size_t i = at; i < at + length; ++i) found.push_back(widgetOf(*children[i]));
        return found;
    };
    const std::size_t ticks = RunOf(children, at, IsTick);
    const std::size_t buttons =
        RunOf(children, at, [](const Control& other) { return other.kind == ControlKind::Button; });
    if (ticks > 1 || buttons > 0) {
        layout.AddLine(widgets(std::max(ticks, buttons)), buttons > 0);
        return std::max(ticks, buttons);
    }
    if (control.kind == ControlKind::Label && at + 1 < children.size()) {
        const Control& next = *children[at + 1];
        if (LabelOf(next) == &control && StandsBesideItsLabel(next)) {
            if (next.name == hint.wideField) {
                layout.AddWideField(shown, *widgetOf(next));
            } else {
                layout.AddField(&shown, *widgetOf(next));
            }
            return 2;
        }
    }
    const bool takesTurn =
        control.kind == ControlKind::Picture && at > 0 && children[at - 1]->kind == ControlKind::Picture;
    if (takesTurn) {
        layout.AddTurn(shown);
    } else if (IsSmallFrame(control, widgetOf)) {
        layout.AddSmallFrame(shown);
    } else if (IsTick(control) || StandsBesideItsLabel(control)) {
        layout.AddField(nullptr, shown);
    } else {
        layout.AddRow(shown, FillsThePane(control));
    }
    return 1;
}

void MakeTitle(QWidget& label) {
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * kTitleScale);
    font.setBold(true);
    label.setFont(font);
}

void Fill(const Form& form, const Control* container, QWidget& widget, QWidget* menuBar,
          const WidgetOf& widgetOf) {
    const Children children = ChildrenOf(form, container, widgetOf);
    if (children.empty()) return;
    const Hint hint = HintOf(form, container);
    ContainerLayout layout(widget, hint.columns);
    if (menuBar != nullptr) layout.Grid().setMenuBar(menuBar);
    for (std::size_t at = 0; at < children.size();) at += AddNext(layout, children, at, hint, widgetOf);
    for (const Control* child : children) {
        if (HoldsOthers(*child)) Fill(form, child, *widgetOf(*child), nullptr, widgetOf);
        if (child->name == hint.title) MakeTitle(*widgetOf(*child));
    }
    if (hint.fixedSize) {
        layout.Grid().setColumnMinimumWidth(1, kLeastLabelledWidth);
        layout.Grid().setSizeConstraint(QLayout::SetFixedSize);
    }
}

}  // namespace

void LayOut(const Form& form, QWidget& window, QWidget* menuBar, const WidgetOf& widgetOf) {
    Fill(form, nullptr, window, menuBar, widgetOf);
}

}  // namespace orlo
