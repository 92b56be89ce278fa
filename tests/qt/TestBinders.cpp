#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabBar>
#include <QTableView>
#include <QTreeView>

#include "desktop/ColourMark.h"
#include "desktop/ControlSizes.h"
#include "qt/DesktopProgram.h"
#include "shell/FormFacts.h"

namespace orlo {
namespace {

using test::DesktopProgram;
using Binders = test::DesktopTest;

constexpr std::int32_t kManyRows = 1000000;

void AddRows(ListView& list, std::int32_t count) {
    list.Reserve(count);
    for (std::int32_t i = 0; i < count; ++i)
        list.Add({"", "", "", Colour::WindowText, {std::to_string(i), "b"}});
}

QPoint RowPlace(const QTableView& table, int row) {
    return table.viewport()->mapTo(&table, table.visualRect(table.model()->index(row, 0)).center());
}

TEST_F(Binders, AChangeByCodeIsDrawnAndFiresNoHandler) {
    AddRows(form.lvRows, 3);
    desktop.CatchUp();
    form.caption = "Other";
    form.lblName.caption = "&Names";
    form.txtName.text = form.txtNotes.text = "text";
    form.ckSwitch.checked = true;
    form.opSecond.Check();
    form.cmZone.index = 2;
    form.tabViews.selectedKey = "TWO";
    form.mnuTick.checked = form.mnuTick.plainCaption = true;
    form.mnuTick.caption = "/R&D/plan.txt";
    form.lvRows.SelectAll(true);
    form.lvRows.current = form.lvRows.PlaceAt(2);
    form.tvNodes.At(1).checked = true;
    form.tvNodes.current = 0;
    ++form.tvNodes.stateRevision;
    form.cmdGo.enabled = false;
    form.sbState.text = "state";
    form.SetFocus(form.lvRows);
    desktop.CatchUp();
    EXPECT_EQ(desktop.WindowOf(form).windowTitle(), "Other");
    EXPECT_EQ(desktop.Find<QLabel>(form.lblName).text(), "&Names");
    EXPECT_TRUE(desktop.Find<QCheckBox>(form.ckSwitch).isChecked());
    EXPECT_FALSE(desktop.Find<QRadioButton>(form.opFirst).isChecked());
    EXPECT_TRUE(desktop.Find<QRadioButton>(form.opSecond).isChecked());
    EXPECT_EQ(desktop.Find<QComboBox>(form.cmZone).currentText(), "Gamma");
    EXPECT_EQ(desktop.Find<QTabBar>(form.tabViews).currentIndex(), 1);
    const auto* tick = desktop.WindowOf(form).findChild<QAction*>("mnuTick");
    EXPECT_TRUE(tick->isChecked());
    EXPECT_EQ(tick->text(), "/R&&D/plan.txt") << "a path keeps its ampersands";
    EXPECT_EQ(desktop.Find<QTableView>(form.lvRows).currentIndex().row(), 2);
    EXPECT_FALSE(desktop.Find<QWidget>(form.cmdGo).isEnabled());
    EXPECT_EQ(desktop.Find<QLabel>(form.sbState).text(), "state");

    form.cmZone.Clear();
    form.cmZone.Add("Delta");
    form.tabViews.pages.pop_back();
    form.tabViews.selectedKey = "ONE";
    form.lvRows.Clear();
    form.tvNodes.Clear();
    desktop.CatchUp();
    DesktopProgram::Settle();
    EXPECT_EQ(desktop.Find<QComboBox>(form.cmZone).count(), 1);
    EXPECT_EQ(desktop.Find<QComboBox>(form.cmZone).currentIndex(), -1);
    EXPECT_EQ(desktop.Find<QTabBar>(form.tabViews).count(), 1);
    EXPECT_EQ(desktop.Find<QTableView>(form.lvRows).model()->rowCount(), 0);
    EXPECT_EQ(form.ran, std::vector<std::string>{});
}

TEST_F(Binders, AMillionRowsAreSelectedAsOneRange) {
    AddRows(form.lvRows, kManyRows);
    desktop.CatchUp();
    auto& table = desktop.Find<QTableView>(form.lvRows);
    EXPECT_EQ(table.model()->index(kManyRows - 1, 0).data().toString(),
              std::to_string(kManyRows - 1).c_str());
    desktop.Focus(form.lvRows);
    desktop.Key(form, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.Ran("SelectRow lvRows"), 1);
    EXPECT_EQ(form.lvRows.SelectedPlaces().size(), static_cast<std::size_t>(kManyRows));
    EXPECT_EQ(table.selectionModel()->selection().size(), 1);

    form.ran.clear();
    form.lvRows.SelectAll(false);
    desktop.CatchUp();
    EXPECT_TRUE(table.selectionModel()->selection().isEmpty());
    form.lvRows.SelectAll(true);
    desktop.CatchUp();
    EXPECT_EQ(table.selectionModel()->selection().size(), 1);

    // Sorting keeps the selection, the current row and the place in view that is asked for.
    form.lvRows.SelectAll(false);
    form.lvRows.current = form.lvRows.PlaceAt(kManyRows - 1);
    form.lvRows.Select(form.lvRows.current, true);
    form.lvRows.SortByColumn(0);
    form.lvRows.ensureVisibleRequest = true;
    desktop.CatchUp();
    EXPECT_EQ(table.currentIndex().data().toString(), std::to_string(kManyRows - 1).c_str());
    EXPECT_TRUE(table.viewport()->rect().intersects(table.visualRect(table.currentIndex())));
    EXPECT_EQ(table.selectionModel()->selection().front().top(), table.currentIndex().row());
    EXPECT_FALSE(form.lvRows.ensureVisibleRequest);
    EXPECT_TRUE(form.ran.empty());
}

// Every other row of many is half a million ranges, which the toolkit can't hold.
TEST_F(Binders, ASelectionInPiecesIsKeptByTheForm) {
    AddRows(form.lvRows, 100000);
    const auto selectEveryOther = [&] {
        for (std::int32_t i = 0; i < form.lvRows.Count(); ++i) form.lvRows.Select(i, i % 2 == 1);
        desktop.CatchUp();
    };
    selectEveryOther();
    auto& table = desktop.Find<QTableView>(form.lvRows);
    desktop.ClickAt(table, RowPlace(table, 2), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_TRUE(form.lvRows.Selected(2));
    EXPECT_EQ(form.lvRows.SelectedPlaces().size(), 50001u);
    for (const bool on : {false, true}) {
        desktop.ClickAt(table, RowPlace(table, 1), Qt::LeftButton, Qt::ControlModifier);
        EXPECT_EQ(form.lvRows.Selected(1), on);
    }
    desktop.ClickAt(table, RowPlace(table, 4));
    EXPECT_EQ(form.lvRows.SelectedPlaces(), std::vector{4});
    selectEveryOther();
    desktop.ClickAt(table, RowPlace(table, 0));
    desktop.ClickAt(table, RowPlace(table, 3), Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(form.lvRows.SelectedPlaces(), (std::vector{0, 1, 2, 3}));
    selectEveryOther();
    desktop.Key(form, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.lvRows.SelectedPlaces().size(), 100000u);
}

TEST_F(Binders, ATreeShowsChecksGroupsAndColours) {
    TreeView& tree = form.tvNodes;
    auto& shown = desktop.Find<QTreeView>(tree);
    const QModelIndex group = shown.model()->index(0, 0);
    const auto check = [&] { return shown.model()->index(0, 0).data(Qt::CheckStateRole).toInt(); };
    const auto colour = [](const QModelIndex& at) {
        return at.data(Qt::ForegroundRole).value<QBrush>().color();
    };
    EXPECT_EQ(check(), Qt::Unchecked);
    EXPECT_FALSE(group.data(Qt::ForegroundRole).isValid());
    tree.At(0).colour = Colour::Gray;
    ++tree.stateRevision;
    desktop.CatchUp();
    EXPECT_EQ(check(), Qt::PartiallyChecked);
    EXPECT_EQ(colour(group), QColor(0x70, 0x70, 0x70));
    EXPECT_EQ(colour(shown.model()->index(0, 0, group)), QColor(Qt::blue));
    EXPECT_EQ(colour(shown.model()->index(1, 0, group)), QColor(Qt::red));

    // A partly checked group is unchecked: the first click checks it.
    desktop.Focus(form.tvNodes);
    shown.setCurrentIndex(group);
    desktop.Key(form, Qt::Key_Space);
    EXPECT_TRUE(tree.At(0).checked);

    // Nodes that are filled anew stay open by key; the old shape is never asked of the new nodes.
    shown.expand(group);
    tree.Clear();
    shown.viewport()->repaint();
    EXPECT_FALSE(shown.model()->index(1, 0, shown.model()->index(0, 0)).data().isValid());
    tree.Add(-1, "#A", "A", Colour::WindowText);
    tree.Add(tree.Add(-1, "#G", "Group", Colour::WindowText), "x", "X", Colour::Blue);
    desktop.CatchUp();
    EXPECT_FALSE(shown.isExpanded(shown.model()->index(0, 0)));
    EXPECT_TRUE(shown.isExpanded(shown.model()->index(1, 0)));
    EXPECT_TRUE(form.Ran("CheckNode tvNodes") == 1);
}

// Drawn at the frame itself it can hardly be read.
TEST_F(Binders, ATextOfTheStatusBarKeepsItsDistanceFromTheEdges) {
    auto& bar = desktop.Find<QLabel>(form.sbState);
    const int space = SpaceOfStyle().edges.left();
    const auto drawn = [&](int from, int width) {
        return bar.grab(QRect(from, 0, width, bar.height())).toImage();
    };
    const QImage left = drawn(0, space), right = drawn(bar.width() - space, space),
                 all = drawn(0, bar.width());
    form.sbState.text = std::string(500, 'H');
    desktop.CatchUp();
    EXPECT_EQ(drawn(0, space), left);
    EXPECT_EQ(drawn(bar.width() - space, space), right);
    EXPECT_NE(drawn(0, bar.width()), all);
}

TEST_F(Binders, AMarkTellsRowsOfAListByItsShapeWhereTheirColourIsNotSeen) {
    form.lvRows.colourMarks = true;
    for (const Colour colour : {Colour::WindowText, Colour::Red, Colour::Blue})
        form.lvRows.Add({"", "", "", colour, {"text", "b"}});
    form.lvRows.SelectAll(false);
    const auto& table = desktop.Find<QTableView>(form.lvRows);
    // Pixels in front of the row's text that aren't of its ground; inside, those of the topmost line.
    const auto marked = [&](int row, bool topOnly) {
        desktop.CatchUp();
        const QRect cell = table.visualRect(table.model()->index(row, 0));
        const int text = ColourMarkSize(table.font()).width() + 4;
        const QImage drawn =
            table.viewport()->grab(QRect(cell.topLeft(), QSize(text, cell.height()))).toImage();
        int count = 0;
        for (int y = 2; y < drawn.height() - 2; ++y) {
            for (int x = 1; x < drawn.width(); ++x)
                count += drawn.pixel(x, y) != drawn.pixel(drawn.width() - 1, 2) ? 1 : 0;
            if (topOnly && count > 0) break;
        }
        return count;
    };
    for (const bool selected : {false, true}) {
        form.lvRows.SelectAll(selected);
        EXPECT_EQ(marked(0, false), 0);
        EXPECT_GT(marked(1, false), 10);
        EXPECT_GT(marked(2, false), marked(1, false)) << "a disc fills more of its square than a triangle";
        EXPECT_LT(marked(1, true), marked(2, true)) << "and has a broader top";
    }
}

TEST_F(Binders, EveryControlOfEveryFormHasItsWidgetNameAndBuddy) {
    for (const FormFacts& facts : AllForms()) {
        Form* of = &facts.form(desktop.program.forms);
        desktop.host.ShowForm(*of);
        FormWindow& window = desktop.WindowOf(*of);
        for (const Control* control : of->Controls()) {
            SCOPED_TRACE(control->name);
            const QString name = QString::fromStdString(control->name);
            if (control->kind == ControlKind::MenuEntry) {
                EXPECT_NE(window.findChild<QAction*>(name), nullptr);
                continue;
            }
            const auto* widget = window.findChild<QWidget*>(name);
            ASSERT_NE(widget, nullptr);
            EXPECT_EQ(widget->isVisibleTo(&window), control->EffectivelyVisible());
            EXPECT_EQ(widget->isEnabled(), control->EffectivelyEnabled());
            const Label* label = control->kind == ControlKind::ProgressBar ? nullptr : LabelOf(*control);
            if (label != nullptr) {
                EXPECT_EQ(window.findChild<QLabel*>(QString::fromStdString(label->name))->buddy(), widget);
            }
        }
        desktop.host.UnloadForm(*of);
    }
}

}  // namespace
}  // namespace orlo
