#include "desktop/FormLayout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLayout>
#include <vector>

namespace orlo {
namespace {

constexpr int kLabelColumn = 0;
constexpr int kFieldColumn = 1;
constexpr int kColumns = 2;

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

class ContainerLayout {
  public:
    explicit ContainerLayout(QWidget& container) : grid_(*new QGridLayout) {
        grid_.setColumnStretch(kFieldColumn, 1);
        container.setLayout(&grid_);
    }
    QGridLayout& Grid() { return grid_; }

    void Add(const Control& control, QWidget& widget, bool hasLabel) {
        if (control.kind == ControlKind::Button) return AddButton(widget);
        buttons_ = nullptr;
        // Panes that follow one another take turns in one place.
        const bool takesTurn = control.kind == ControlKind::Picture && lastIsPane_;
        lastIsPane_ = control.kind == ControlKind::Picture;
        if (takesTurn) --row_;
        if (hasLabel && StandsBesideItsLabel(control)) {
            // In the label's row.
            grid_.addWidget(&widget, row_ - 1, kFieldColumn);
            return;
        }
        grid_.addWidget(&widget, row_, kLabelColumn, 1, kColumns);
        if (FillsThePane(control)) grid_.setRowStretch(row_, 1);
        ++row_;
    }
    void AddLabel(QWidget& widget, bool besideItsField) {
        buttons_ = nullptr;
        grid_.addWidget(&widget, row_++, kLabelColumn, 1, besideItsField ? 1 : kColumns);
    }

  private:
    void AddButton(QWidget& widget) {
        if (buttons_ == nullptr) {
            buttons_ = new QHBoxLayout;
            buttons_->addStretch();
            grid_.addLayout(buttons_, row_++, kLabelColumn, 1, kColumns);
        }
        buttons_->addWidget(&widget);
    }

    QGridLayout& grid_;
    QHBoxLayout* buttons_ = nullptr;
    bool lastIsPane_ = false;
    int row_ = 0;
};

// The field that the label stands for: the one declared directly behind it.
const Control* FieldOf(const std::vector<const Control*>& children, std::size_t label) {
    if (label + 1 >= children.size()) return nullptr;
    const Control* next = children[label + 1];
    return LabelOf(*next) == children[label] ? next : nullptr;
}

void Fill(const Form& form, const Control* container, QWidget& widget, QWidget* menuBar,
          const std::function<QWidget*(const Control&)>& widgetOf) {
    std::vector<const Control*> children;
    for (const Control* control : form.Controls()) {
        if (control->parent == container && widgetOf(*control) != nullptr) children.push_back(control);
    }
    if (children.empty()) return;
    ContainerLayout layout(widget);
    if (menuBar != nullptr) layout.Grid().setMenuBar(menuBar);
    for (std::size_t i = 0; i < children.size(); ++i) {
        const Control& control = *children[i];
        QWidget& shown = *widgetOf(control);
        if (control.kind == ControlKind::Label) {
            const Control* field = FieldOf(children, i);
            layout.AddLabel(shown, field != nullptr && StandsBesideItsLabel(*field));
        } else {
            layout.Add(control, shown, LabelOf(control) != nullptr);
        }
        if (control.kind == ControlKind::Frame || control.kind == ControlKind::Picture)
            Fill(form, &control, shown, nullptr, widgetOf);
    }
}

}  // namespace

void LayOut(const Form& form, QWidget& window, QWidget* menuBar,
            const std::function<QWidget*(const Control&)>& widgetOf) {
    Fill(form, nullptr, window, menuBar, widgetOf);
}

}  // namespace orlo
