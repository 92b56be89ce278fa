#include "operations/Mover.h"

#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/Application.h"
#include "core/Number.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "mainwindow/BusyForm.h"
#include "mainwindow/EnabledControls.h"
#include "mainwindow/PlanChange.h"
#include "mainwindow/SavePlan.h"
#include "mainwindow/StatusTexts.h"
#include "mainwindow/TreeSelection.h"
#include "operations/MoveTraffic.h"
#include "operations/MoverAction.h"

namespace orlo {
namespace {

constexpr std::string_view kActionFilter = "ORLO Action Files (*.orloa)|*.orloa";
constexpr std::int32_t kFirstPercent = 50;

// Checked nodes that stand for aircraft of the plan, as displayed.
std::vector<const TreeNode*> MovingNodes(const TreeView& tree) {
    std::vector<const TreeNode*> nodes;
    for (const std::int32_t place : tree.DisplayOrder()) {
        const TreeNode& node = tree.At(place);
        if (node.checked && !node.tag.empty()) nodes.push_back(&node);
    }
    return nodes;
}

bool EndsDiffer(Context& context) {
    MainForm& form = context.forms.frmMain;
    if (form.cmSource.index != form.cmDest.index) return true;
    ShowMessage(context.services.messages, "Source and destination should be different.", kMarkExclamation,
                &form);
    return false;
}

std::string MoveChecked(Context& context, std::int32_t percent) {
    MainForm& form = context.forms.frmMain;
    std::vector<std::string_view> numberLists;
    for (const TreeNode* node : MovingNodes(form.tvMoveAircrafts)) numberLists.push_back(node->tag);
    const std::string& source = form.cmSource.Text();
    const std::string& destination = form.cmDest.Text();
    const bool all = percent == kMoveAll;
    const MovedLegs legs =
        MoveTraffic(context.session.plan, {numberLists, source, destination, all ? 100 : percent});
    form.MovePercent = percent;
    form.ActionToSave = true;
    EnableMovePane(context);
    const std::string share = all ? "" : Concat(" of ", legs.seen);
    return Concat("Successfully moved ", legs.moved, share, " flights from ", source, " to ", destination,
                  ".");
}

void ChangeByMove(Context& context, std::int32_t percent) {
    PlanChange change;
    change.work = [&context, percent](BusyForm&) { return MoveChecked(context, percent); };
    ChangePlan(context, context.forms.frmMain, change);
}

// kMoveAll where nothing is to be done.
std::int32_t AskForPercent(Context& context) {
    MainForm& form = context.forms.frmMain;
    InputQuestion question;
    question.prompt = "Please enter the percent of traffic you want to move:";
    question.title = kApplicationTitle;
    question.text = std::to_string(form.MovePercent == kMoveAll ? kFirstPercent : form.MovePercent);
    question.quarterInside = &form;
    return ParseWholeNumber(context.services.windows.InputBox(question).value_or("")).value_or(kMoveAll);
}

MoverAction ActionOfForm(const MainForm& form, std::int32_t percent) {
    MoverAction action;
    for (const TreeNode* node : MovingNodes(form.tvMoveAircrafts)) action.Selection.push_back(node->text);
    action.Percent = percent;
    action.Source = form.cmSource.Text();
    action.Destination = form.cmDest.Text();
    return action;
}

void UncheckAll(TreeView& tree) {
    for (TreeNode& node : tree.nodes) {
        node.checked = false;
        if (node.colour != Colour::Blue && node.colour != Colour::Red) node.colour = Colour::WindowText;
    }
    ++tree.stateRevision;
}

void CheckTitles(Context& context, const std::vector<std::string>& titles) {
    MainForm& form = context.forms.frmMain;
    std::unordered_set<std::string> wanted;
    for (const std::string& title : titles) wanted.insert(UpperText(title));
    std::vector<std::int32_t> nodes;
    for (std::int32_t place = 0; place < form.tvMoveAircrafts.Count(); ++place) {
        if (wanted.contains(UpperText(form.tvMoveAircrafts.At(place).text))) nodes.push_back(place);
    }
    CheckNodes(form, context.session, form.tvMoveAircrafts, nodes);
}

void ShowAction(Context& context, const MoverAction& action) {
    const BusyForm busy(context, context.forms.frmMain);
    MainForm& form = context.forms.frmMain;
    form.MovePercent = action.Percent;
    if (!action.Source.empty()) form.cmSource.SelectTextNoCase(action.Source);
    if (!action.Destination.empty()) form.cmDest.SelectTextNoCase(action.Destination);
    UncheckAll(form.tvMoveAircrafts);
    CheckTitles(context, action.Selection);
}

}  // namespace

void MoveAll(Context& context) {
    if (EndsDiffer(context)) ChangeByMove(context, kMoveAll);
}

void MovePercentage(Context& context) {
    if (!EndsDiffer(context)) return;
    const MainForm& form = context.forms.frmMain;
    const std::int32_t percent = form.ExecutingAction ? form.MovePercent : AskForPercent(context);
    if (percent != kMoveAll) ChangeByMove(context, percent);
}

void ExecuteAction(Context& context) {
    MainForm& form = context.forms.frmMain;
    struct Executing {
        explicit Executing(bool& flagOf) : flag(flagOf) { flag = true; }
        ~Executing() { flag = false; }
        bool& flag;
    } const executing(form.ExecutingAction);
    if (form.MovePercent == kMoveAll) {
        MoveAll(context);
    } else {
        MovePercentage(context);
    }
}

bool SaveMoverAction(Context& context, std::int32_t percent) {
    Services& services = context.services;
    MainForm& form = context.forms.frmMain;
    const std::string path = AskForSavePath(context, "Save Action", "ORLO Action.orloa", kActionFilter);
    if (path.empty()) return false;
    {
        const BusyForm busy(context, form);
        ForgetNotWritten(context);
        const std::string text = MoverActionText(ActionOfForm(form, percent));
        if (!ReplaceWholeFile(services.files, path, text)) ReportNotWritten(context, path);
    }
    ShowMessage(services.messages, "Successfully saved Mover action.", kMarkInformation, &form);
    return true;
}

bool LoadMoverAction(Context& context) {
    Services& services = context.services;
    MainForm& form = context.forms.frmMain;
    FileDialog dialog;
    dialog.title = "Load Action";
    dialog.filter = kActionFilter;
    dialog.fileMustExist = true;
    const std::string path = services.windows.ShowOpenDialog(dialog);
    if (path.empty()) return false;
    const auto action = ReadMoverAction(ReadWholeFile(services.files, path).value_or(""));
    if (!action) {
        ShowMessage(services.messages, "This is not a valid ORLO Mover action file.", kMarkExclamation,
                    &form);
        return false;
    }
    ShowAction(context, *action);
    ShowMessage(services.messages, "Successfully loaded Mover action.", kMarkInformation, &form);
    return true;
}

void OnMoveSave(Context& context) {
    SaveMoverAction(context, context.forms.frmMain.MovePercent);
}

void OnMoveLoad(Context& context) {
    context.forms.frmMain.ActionLoaded = LoadMoverAction(context);
    EnableMovePane(context);
}

}  // namespace orlo
