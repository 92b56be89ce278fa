#include <gtest/gtest.h>

#include <set>

#include "core/Text.h"
#include "shell/FormFacts.h"
#include "support/FakeProgram.h"
#include "support/LayoutFaults.h"

namespace orlo {
namespace {

std::vector<Form*> FormsOf(Forms& forms) {
    std::vector<Form*> all;
    for (const FormFacts& facts : AllForms()) all.push_back(&facts.form(forms));
    return all;
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
    Forms forms;
    for (const Form* form : FormsOf(forms)) {
        std::set<std::string> names;
        for (Control* control : form->Controls()) {
            EXPECT_TRUE(names.insert(UpperText(control->name)).second) << control->name;
            EXPECT_EQ(form->Find(UpperText(control->name)), control) << control->name;
            EXPECT_EQ(&control->form, form) << control->name;
        }
        EXPECT_EQ(form->Find("cmdNowhere"), nullptr);
    }
}

TEST(Forms, EveryControlThatActsHasACaptionALabelOrAnAccessibleName) {
    using enum ControlKind;
    const std::set<ControlKind> fields = {TextBox, ComboBox, ListView, TreeView, TabStrip};
    const std::set<ControlKind> buttons = {Button, CheckBox, OptionButton, MenuEntry};
    Forms forms;
    for (const Form* form : FormsOf(forms)) {
        for (const Control* control : form->Controls()) {
            const bool named = LabelOf(*control) != nullptr || !control->accessibleName.empty();
            EXPECT_TRUE(!fields.contains(control->kind) || named) << form->name << "." << control->name;
            const bool button = buttons.contains(control->kind);
            EXPECT_TRUE(!button || !control->visible || !control->caption.empty()) << control->name;
        }
    }
}

TEST(Forms, MnemonicsOfFreelyChosenCaptionsClashWithNoOther) {
    Forms forms;
    for (const std::string_view name : SplitText(
             "ckIFRVFR lblMoveAircrafts cmdPreview cmdExport cmdExportPrint cmdExportRemainder cmdEditFlight "
             "cmdAddFlight cmdDeleteFlight cmdTTShow cmdTTPrint cmdTTSave cmdTTStatistics "
             "lblProjectDescription lblProjectFile lblProjectAC cmdProjectFile cmdProjectAC cmdProjectAdd "
             "cmdProjectDelete cmdProjectMerge cmdProjectCompile mnuFile mnuTools mnuView mnuHelp cmdSysInfo "
             "cmdAdd cmdDelete cmdUndo cmdPrint mnuToolsSimulatorFolder mnuHelpKeptFiles cmdRestore "
             "cmdShowFolder mnuViewShares cmdSavePicture",
             ' ')) {
        const Control* mine = nullptr;
        for (const Form* form : FormsOf(forms)) {
            if (mine == nullptr) mine = form->Find(name);
        }
        ASSERT_NE(mine, nullptr) << name;
        ASSERT_NE(Mnemonic(mine->caption), '\0') << name;
        const bool isEntry = mine->kind == ControlKind::MenuEntry;
        for (const Control* other : mine->form.Controls()) {
            if (other == mine || Mnemonic(other->caption) != Mnemonic(mine->caption)) continue;
            const bool bothOrNone = isEntry == (other->kind == ControlKind::MenuEntry);
            const bool sameScope = bothOrNone && MnemonicScope(*other) == MnemonicScope(*mine);
            EXPECT_FALSE(sameScope || (!isEntry && IsMenuBarEntry(*other))) << name << " and " << other->name;
        }
    }
}

TEST(Forms, TheRowsOfADialogNameEachControlOnceInTheOrderOfTheTabKey) {
    Forms forms;
    for (const Form* form : FormsOf(forms)) {
        if (form == &forms.frmMain) continue;  // it has boxes
        EXPECT_EQ(test::LayoutFaults(*form), "");
    }
}

TEST(MainForm, NothingThatNeedsAPlanOrAProjectIsEnabledAtTheStart) {
    const test::FakeProgram fake;
    const MainForm& form = fake.form;
    const auto names = SplitText(
        "mnuFileSave mnuFileSaveAs mnuFileSaveProject mnuFileSaveProjectAs mnuRecentFlightPlan "
        "mnuRecentProjects mnuToolsUndo mnuToolsCompileCurrent mnuToolsFPAirportsTXT mnuToolsRemoveMinus "
        "mnuToolsRandPerc mnuToolsRandFlightNumbers mnuToolsRandPlan mnuToolsCheckFL mnuToolsCheckFT "
        "mnuToolsReports mnuToolsEditPlanAircraft mnuViewShares cmdShuffle cmdACTypeDat cmdCalcStartNumber "
        "cmdMove "
        "cmdMovePercent cmdMoveSave cmdMoveExecute cmdMoveLoad cmdPreview cmdExport cmdExportRemainder "
        "cmdExportPrint cmdEditFlight cmdAddFlight cmdDeleteFlight cmdTTShow cmdTTPrint cmdTTSave "
        "cmdTTStatistics cmdProjectAdd cmdProjectDelete cmdProjectMerge cmdProjectCompile frProject "
        "lblProjectFile lblProjectDescription lblProjectAC txtProjectDescription cmdProjectFile cmdProjectAC",
        ' ');
    const std::set<std::string_view> disabled(names.begin(), names.end());
    for (const Control* control : form.Controls()) {
        EXPECT_EQ(control->enabled, !disabled.contains(control->name)) << control->name;
    }
    EXPECT_FALSE(form.txtProjectAC.EffectivelyEnabled()) << "its frame is disabled";
    EXPECT_FALSE(form.mnuReportsNotFound.EffectivelyEnabled()) << "its menu is disabled";
    EXPECT_TRUE(form.cmShufflerView.EffectivelyVisible() && !form.cmMoveView.EffectivelyVisible());
}

}  // namespace
}  // namespace orlo
