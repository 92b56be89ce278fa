#include <gtest/gtest.h>

#include "qt/DesktopProgram.h"
#include "support/LayoutFaults.h"

namespace orlo {
namespace {

using test::DesktopProgram;

// The rows that the dialogs so far have no use for.
struct RowsForm : Form {
    RowsForm() : Form("frmRows", "Rows") {
        layout.columns = 2;
        layout.rows = {
            WideRow(WithButton(txtFile, cmdFile)),
            FieldRow({txtFirst, WithButton(txtSecond, cmdSecond)}),
            PaneRow({{{FillingRow(lvLeft), CentredRow({cmdAdd, cmdDelete})}},
                     {{RightRow({cmdMove})}},
                     {{FillingRow(lvRight)}, 1, 2}}),
            TurnRow({Holding(picOne, {{WideRow(txtOne)}}), Holding(picTwo, {{FillingRow(txtTwo)}})}),
        };
    }

    Label lblFile{*this, "lblFile", "File"};
    TextBox txtFile{*this, "txtFile"};
    Button cmdFile{*this, "cmdFile", "Change..."};
    Label lblFirst{*this, "lblFirst", "First"};
    TextBox txtFirst{*this, "txtFirst"};
    Label lblSecond{*this, "lblSecond", "Second"};
    TextBox txtSecond{*this, "txtSecond"};
    Button cmdSecond{*this, "cmdSecond", "Change..."};
    Label lblLeft{*this, "lblLeft", "Left"};
    ListView lvLeft{*this, "lvLeft"};
    Button cmdAdd{*this, "cmdAdd", "Add"};
    Button cmdDelete{*this, "cmdDelete", "Delete"};
    Button cmdMove{*this, "cmdMove", "Move"};
    Label lblRight{*this, "lblRight", "Right"};
    ListView lvRight{*this, "lvRight"};
    Picture picOne{*this, "picOne"};
    TextBox txtOne{picOne, "txtOne"};
    Picture picTwo{*this, "picTwo"};
    TextBox txtTwo{picTwo, "txtTwo", TextBoxStyle::MultiLine};
};

struct FormLayout : testing::Test {
    DesktopProgram desktop;
    RowsForm rows;
    FormLayout() {
        rows.picTwo.visible = false;
        desktop.host.ShowForm(rows);
        DesktopProgram::WindowOf(rows).resize(700, 600);
        DesktopProgram::Settle();
    }

    QRect PlaceOf(const Control& control) const {
        auto& widget = DesktopProgram::Find<QWidget>(control);
        return QRect(widget.mapTo(widget.window(), QPoint()), widget.size());
    }
    void ExpectBeside(const Control& left, const Control& right) const {
        EXPECT_LT(PlaceOf(left).right(), PlaceOf(right).left()) << left.name << " " << right.name;
        EXPECT_LE(std::abs(PlaceOf(left).center().y() - PlaceOf(right).center().y()), 1) << left.name;
    }
};

TEST_F(FormLayout, AButtonStandsBehindItsFieldAndTheFieldTakesTheRoom) {
    EXPECT_EQ(test::LayoutFaults(rows) + test::LayoutFaults(desktop.form), "");
    const int edge = PlaceOf(rows.cmdFile).right();
    for (const auto& [label, field, button] :
         {std::tuple(&rows.lblFile, &rows.txtFile, &rows.cmdFile),
          std::tuple(&rows.lblSecond, &rows.txtSecond, &rows.cmdSecond)}) {
        ExpectBeside(*label, *field);
        ExpectBeside(*field, *button);
        EXPECT_EQ(PlaceOf(*button).right(), edge);
        EXPECT_EQ(PlaceOf(*button).width(), DesktopProgram::Find<QWidget>(*button).sizeHint().width());
    }
    ExpectBeside(rows.txtFirst, rows.lblSecond);
    EXPECT_GT(PlaceOf(rows.txtFile).width(), PlaceOf(rows.txtFirst).width());
}

TEST_F(FormLayout, PanesStandBesideEachOtherAndShareTheRoomWithTheOneOfTurns) {
    const QRect left = PlaceOf(rows.lvLeft), right = PlaceOf(rows.lvRight), move = PlaceOf(rows.cmdMove);
    EXPECT_EQ(left.top(), right.top());
    EXPECT_LT(PlaceOf(rows.lblRight).bottom(), right.top()) << "the label of a list stands above it";
    EXPECT_LT(left.right(), move.left());
    EXPECT_LT(move.right(), right.left());
    EXPECT_LE(std::abs(2 * left.width() - right.width()), 2) << "it has two shares";
    EXPECT_GT(left.width(), 170);
    EXPECT_LT(move.top(), left.top()) << "a pane that fills nothing begins at the top";
    const int middle = (PlaceOf(rows.cmdAdd).left() + PlaceOf(rows.cmdDelete).right()) / 2;
    EXPECT_LE(std::abs(middle - left.center().x()), 1);
    EXPECT_EQ(right.bottom(), PlaceOf(rows.cmdAdd).bottom());

    const QRect one = PlaceOf(rows.picOne);
    EXPECT_GT(one.height(), 150);
    rows.picOne.visible = false;
    rows.picTwo.visible = true;
    desktop.host.CatchUp(DesktopProgram::WindowOf(rows));
    DesktopProgram::Settle();
    EXPECT_EQ(PlaceOf(rows.picTwo).bottomRight(), one.bottomRight());
    EXPECT_EQ(PlaceOf(rows.picTwo).left(), one.left());
    EXPECT_TRUE(PlaceOf(rows.picTwo).contains(PlaceOf(rows.txtTwo)));
}

}  // namespace
}  // namespace orlo
