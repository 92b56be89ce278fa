#include "desktop/FormLayout.h"

#include <QBoxLayout>
#include <QGridLayout>

namespace orlo {
namespace {

using WidgetOf = std::function<QWidget&(const Control&)>;

constexpr double kTitleScale = 1.8;
constexpr int kGridColumns = 3;  // of one column of fields: label, field, and the gap behind them
constexpr int kGap = 12;
constexpr int kLeastLabelledWidth = 320;  // of a form of a fixed size

void MakeTitle(QWidget& label) {
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * kTitleScale);
    font.setBold(true);
    label.setFont(font);
}

// Fills one grid with the rows of a layout.
class GridRows {
  public:
    GridRows(QGridLayout& grid, const Layout& layout, const WidgetOf& widgetOf)
        : grid_(grid), layout_(layout), widgetOf_(widgetOf) {
        for (int i = 0; i < layout.columns; ++i) {
            grid.setColumnStretch(i * kGridColumns + 1, 1);
            if (i + 1 < layout.columns) grid.setColumnMinimumWidth(i * kGridColumns + 2, kGap);
        }
    }

    void Add() {
        for (const LayoutRow& row : layout_.rows) {
            AddRow(row);
            if (row.fills) grid_.setRowStretch(line_, 1);
            ++line_;
        }
    }

  private:
    void AddRow(const LayoutRow& row) {
        switch (row.kind) {
            case RowKind::Fields:
                return AddFields(row);
            case RowKind::Wide:
                return AddWide(row.items.front());
            case RowKind::Title:
                AddWide(row.items.front());
                return MakeTitle(widgetOf_(*row.items.front().control));
            case RowKind::Left:
            case RowKind::Centre:
            case RowKind::Right:
                return AddLine(row);
            case RowKind::Panes:
                return AddPanes(row);
            case RowKind::Turns:
                for (const LayoutItem& pane : row.items) AddWide(pane);
                return;
        }
    }

    // What follows a frame in the row is lowered by the height of the frame's title.
    void AddFields(const LayoutRow& row) {
        int lowered = 0;
        int column = 0;
        for (const LayoutItem& item : row.items) {
            FillInside(item);
            if (Label* label = BroughtLabel(*item.control)) {
                Put(*label, column, 1, lowered);
                Put(item, column + 1, 1, lowered);
            } else {
                Put(item, column, 2, lowered);
            }
            if (!item.inside.empty()) lowered = widgetOf_(*item.control).fontMetrics().height();
            column += kGridColumns;
        }
    }

    void AddWide(const LayoutItem& item) {
        FillInside(item);
        Label* label = BroughtLabel(*item.control);
        if (label != nullptr && IsLineField(*item.control)) {
            Put(*label, 0, 1, 0);
            return Put(item, 1, -1, 0);
        }
        if (label != nullptr) {
            Put(*label, 0, -1, 0);
            ++line_;
        }
        Put(item, 0, -1, 0);
    }

    void AddLine(const LayoutRow& row) {
        auto* line = new QHBoxLayout;
        if (row.kind != RowKind::Left) line->addStretch();
        for (const LayoutItem& item : row.items) {
            if (const Label* label = BroughtLabel(*item.control)) line->addWidget(&widgetOf_(*label));
            line->addWidget(&widgetOf_(*item.control));
            if (item.button != nullptr) line->addWidget(&widgetOf_(*item.button));
        }
        if (row.kind != RowKind::Right) line->addStretch();
        grid_.addLayout(line, line_, 0, 1, -1);
    }

    void AddPanes(const LayoutRow& row) {
        auto* line = new QHBoxLayout;
        grid_.addLayout(line, line_, 0, 1, -1);
        for (const Layout& pane : row.panes) {
            auto* grid = new QGridLayout;
            line->addLayout(grid, Fills(pane) || !row.fills ? pane.share : 0);
            if (!Fills(pane)) line->setAlignment(grid, Qt::AlignTop);
            GridRows(*grid, pane, widgetOf_).Add();
        }
    }

    // Puts the control, with its button behind it, below `lowered` pixels of room.
    void Put(const LayoutItem& item, int column, int columns, int lowered) {
        QWidget& widget = widgetOf_(*item.control);
        if (item.button == nullptr && lowered == 0)
            return grid_.addWidget(&widget, line_, column, 1, columns);
        auto* box = new QHBoxLayout;
        box->setContentsMargins(0, lowered, 0, 0);
        box->addWidget(&widget, 1);
        if (item.button != nullptr) box->addWidget(&widgetOf_(*item.button));
        grid_.addLayout(box, line_, column, 1, columns);
    }

    void FillInside(const LayoutItem& item) {
        for (const Layout& inside : item.inside) {
            auto* grid = new QGridLayout;
            widgetOf_(*item.control).setLayout(grid);
            GridRows(*grid, inside, widgetOf_).Add();
        }
    }

    QGridLayout& grid_;
    const Layout& layout_;
    const WidgetOf& widgetOf_;
    int line_ = 0;
};

}  // namespace

void LayOut(const Form& form, QWidget& window, QWidget* menuBar, const WidgetOf& widgetOf) {
    auto* grid = new QGridLayout;
    window.setLayout(grid);
    if (menuBar != nullptr) grid->setMenuBar(menuBar);
    GridRows(*grid, form.layout, widgetOf).Add();
    if (!form.fixedSize) return;
    grid->setColumnMinimumWidth(1, kLeastLabelledWidth);
    grid->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace orlo
