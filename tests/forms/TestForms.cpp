#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "core/Text.h"
#include "core/TimeZoneNames.h"
#include "forms/Forms.h"

namespace orlo {
namespace {

using Names = std::set<std::string>;

std::vector<const Form*> AllForms(const Forms& forms) {
    return {&forms.frmMain, &forms.frmProgress, &forms.frmSplash, &forms.frmAbout, &forms.frmFlightEdit};
}

char Mnemonic(std::string_view caption) {
    const std::size_t mark = caption.find('&');
    return mark == std::string_view::npos || mark + 1 == caption.size() ? '\0' : UpperChar(caption[mark + 1]);
}

// What shares its mnemonics: the menu of an entry, else the pane or form of a control.
const Control* MnemonicScope(const Control& control) {
    if (control.kind == ControlKind::MenuEntry) return control.parent;
    const Control* scope = control.parent;
    while (scope != nullptr && scope->parent != nullptr) scope = scope->parent;
    return scope;
}

bool IsMenuBarEntry(const Control& control) {
    return control.kind == ControlKind::MenuEntry && control.parent == nullptr &&
           !static_cast<const MenuEntry&>(control).popup;
}

TEST(Forms, NoNameStandsTwiceAndEachIsFoundWithoutRegardToCase) {
    const Forms forms;
    for (const Form* form : AllForms(forms)) {
        Names names;
        for (Control* control : form->Controls()) {
            EXPECT_TRUE(names.insert(UpperText(control->name)).second) << control->name;
            EXPECT_EQ(form->Find(UpperText(control->name)), control) << control->name;
            EXPECT_EQ(&control->form, form) << control->name;
        }
        EXPECT_EQ(form->Find("cmdNowhere"), nullptr);
    }
}

TEST(Forms, EveryControlThatActsHasACaptionALabelOrAnAccessibleName) {
    const Forms forms;
    for (const Form* form : AllForms(forms)) {
        for (const Control* control : form->Controls()) {
            const std::string where = Concat(form->name, ".", control->name);
            switch (control->kind) {
                case ControlKind::TextBox:
                case ControlKind::ComboBox:
                case ControlKind::ListView:
                case ControlKind::TreeView:
                case ControlKind::TabStrip:
                    EXPECT_TRUE(LabelOf(*control) != nullptr || !control->accessibleName.empty()) << where;
                    break;
                case ControlKind::Button:
                case ControlKind::CheckBox:
                case ControlKind::OptionButton:
                case ControlKind::MenuEntry:
                    EXPECT_TRUE(!control->visible || !control->caption.empty()) << where;
                    break;
                default:
                    break;
            }
        }
    }
}

TEST(Forms, MnemonicsOfFreelyChosenCaptionsClashWithNoOther) {
    const Forms forms;
    const Names chosen = {"ckIFRVFR",        "lblMoveAircrafts",
                          "cmdPreview",      "cmdExport",
                          "cmdExportPrint",  "cmdExportRemainder",
                          "cmdEditFlight",   "cmdAddFlight",
                          "cmdDeleteFlight", "cmdTTShow",
                          "cmdTTPrint",      "cmdTTSave",
                          "cmdTTStatistics", "lblProjectDescription",
                          "lblProjectFile",  "lblProjectAC",
                          "cmdProjectFile",  "cmdProjectAC",
                          "cmdProjectAdd",   "cmdProjectDelete",
                          "cmdProjectMerge", "cmdProjectCompile",
                          "mnuFile",         "mnuTools",
                          "mnuView",         "mnuHelp",
                          "cmdSysInfo",      "cmdAdd",
                          "cmdDelete",       "cmdUndo",
                          "cmdPrint",        "mnuToolsSimulatorFolder"};
    for (const std::string& name : chosen) {
        const Control* mine = nullptr;
        for (const Form* form : AllForms(forms)) {
            if (mine == nullptr) mine = form->Find(name);
        }
        ASSERT_NE(mine, nullptr) << name;
        ASSERT_NE(Mnemonic(mine->caption), '\0') << name;
        for (const Control* other : mine->form.Controls()) {
            if (other == mine || Mnemonic(other->caption) != Mnemonic(mine->caption)) continue;
            const bool sameScope = MnemonicScope(*other) == MnemonicScope(*mine);
            const bool menuBar = mine->kind != ControlKind::MenuEntry && IsMenuBarEntry(*other);
            EXPECT_FALSE(sameScope && other->kind == mine->kind) << name << " and " << other->name;
            EXPECT_FALSE(sameScope && mine->kind != ControlKind::MenuEntry &&
                         other->kind != ControlKind::MenuEntry)
                << name << " and " << other->name;
            EXPECT_FALSE(menuBar) << name << " and " << other->name;
        }
    }
}

TEST(MainForm, NothingThatNeedsAPlanOrAProjectIsEnabledAtTheStart) {
    const MainForm form;
    const Names disabled = {"mnuFileSave",
                            "mnuFileSaveAs",
                            "mnuFileSaveProject",
                            "mnuFileSaveProjectAs",
                            "mnuRecentFlightPlan",
                            "mnuRecentProjects",
                            "mnuToolsUndo",
                            "mnuToolsCompileCurrent",
                            "mnuToolsFPAirportsTXT",
                            "mnuToolsRemoveMinus",
                            "mnuToolsRandPerc",
                            "mnuToolsRandFlightNumbers",
                            "mnuToolsRandPlan",
                            "mnuToolsCheckFL",
                            "mnuToolsCheckFT",
                            "mnuToolsReports",
                            "mnuToolsEditPlanAircraft",
                            "cmdShuffle",
                            "cmdACTypeDat",
                            "cmdCalcStartNumber",
                            "cmdMove",
                            "cmdMovePercent",
                            "cmdMoveSave",
                            "cmdMoveExecute",
                            "cmdMoveLoad",
                            "cmdPreview",
                            "cmdExport",
                            "cmdExportRemainder",
                            "cmdExportPrint",
                            "cmdEditFlight",
                            "cmdAddFlight",
                            "cmdDeleteFlight",
                            "cmdTTShow",
                            "cmdTTPrint",
                            "cmdTTSave",
                            "cmdTTStatistics",
                            "cmdProjectAdd",
                            "cmdProjectDelete",
                            "cmdProjectMerge",
                            "cmdProjectCompile",
                            "frProject",
                            "lblProjectFile",
                            "lblProjectDescription",
                            "lblProjectAC",
                            "txtProjectDescription",
                            "cmdProjectFile",
                            "cmdProjectAC"};
    for (const Control* control : form.Controls()) {
        EXPECT_EQ(control->enabled, !disabled.contains(control->name)) << control->name;
    }
    EXPECT_FALSE(form.txtProjectAC.EffectivelyEnabled()) << "its frame is disabled";
    EXPECT_FALSE(form.mnuReportsNotFound.EffectivelyEnabled()) << "its menu is disabled";
    EXPECT_TRUE(form.cmShufflerView.EffectivelyVisible());
    EXPECT_FALSE(form.cmMoveView.EffectivelyVisible()) << "its pane is behind";
}

TEST(MainForm, ListsAndFieldsHoldTheirFirstContent) {
    const MainForm form;
    const auto entries = [](const ComboBox& combo) {
        std::string text;
        for (const ComboEntry& entry : combo.entries) text += Concat(entry.itemData, "=", entry.text, ";");
        return text;
    };
    EXPECT_EQ(entries(form.cmExClass),
              "-1=#None#;2=Micro Prop;3=Mid Prop;4=Large Prop;5=Micro Jet;6=Small Jet;7=Large Jet;8=Huge "
              "Jet;");
    EXPECT_EQ(entries(form.cmTTDay),
              "-1=#Week#;0=Sunday;1=Monday;2=Tuesday;3=Wednesday;4=Thursday;5=Friday;6=Saturday;");
    EXPECT_EQ(form.cmTTZone.entries.size(), kTimeZoneNames.size());
    EXPECT_EQ(form.cmExZone.Text(), "GMT");
    EXPECT_TRUE(std::is_sorted(kTimeZoneNames.begin(), kTimeZoneNames.begin() + 14, std::greater<>()));
    EXPECT_TRUE(std::is_sorted(kTimeZoneNames.begin() + 14, kTimeZoneNames.end()));
    EXPECT_TRUE(form.opANDSearch.checked && !form.opORSearch.checked);
    EXPECT_TRUE(form.ckTTArrival.checked && form.ckTTDeparture.checked && form.ckTTIFR.checked &&
                form.ckTTVFR.checked);
    EXPECT_FALSE(form.ckExportIFR.checked || form.ckExportVFR.checked);
    EXPECT_EQ(form.lvExPreview.columns.size(), 12u);
    EXPECT_EQ(form.lvExPreview.FindColumn("error"), -1) << "only two kinds of search show it";
    EXPECT_EQ(form.lvProject.FindColumn("Aircraft File"), 2);
    EXPECT_EQ(LabelOf(form.lvExPreview), &form.lblExPreview);
    EXPECT_EQ(LabelOf(form.ckExportIFR), nullptr);
}

TEST(ComboBox, SelectsExactTextsAndKeepsItsSelectionOtherwise) {
    MainForm form;
    ComboBox& combo = form.cmSource;
    combo.Add("EDDF", 1);
    combo.Add("EDDM", 2);
    EXPECT_EQ(combo.Text(), "");
    EXPECT_TRUE(combo.SelectText("EDDM"));
    EXPECT_FALSE(combo.SelectText("eddf"));
    EXPECT_EQ(combo.Text(), "EDDM");
    combo.Clear();
    EXPECT_EQ(combo.index, -1);
    combo.SelectFirst();
    EXPECT_EQ(combo.index, -1);
}

TEST(TreeView, KeysAreFoundWithoutRegardToCaseAndSortingKeepsEqualOnes) {
    MainForm form;
    TreeView& tree = form.tvMoveAircrafts;
    const std::int32_t group = tree.Add(-1, "#B", "b", Colour::WindowText);
    EXPECT_EQ(tree.Add(-1, "#b", "again", Colour::Red), -1);
    const std::int32_t other = tree.Add(-1, "#A", "A", Colour::WindowText);
    const std::int32_t first = tree.Add(group, "1", "Z\xE4", Colour::Red);
    const std::int32_t second = tree.Add(group, "2", "y", Colour::Red);
    const std::int32_t third = tree.Add(group, "3", "z\xC4", Colour::Red);
    EXPECT_EQ(tree.Count(), 5);
    tree.SortChildren();
    EXPECT_EQ(tree.DisplayOrder(), (std::vector<std::int32_t>{other, group, second, first, third}));
    EXPECT_EQ(tree.Find("#a"), other);
    tree.Clear();
    EXPECT_EQ(tree.Find("#a"), -1);
    EXPECT_TRUE(tree.DisplayOrder().empty());
}

}  // namespace
}  // namespace orlo
