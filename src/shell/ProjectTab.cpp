#include "shell/ProjectTab.h"

#include "projects/ProjectCommands.h"
#include "shell/Tabs.h"

namespace orlo {
namespace {

void ShowProjectTab(Context& context) {
    context.forms.frmMain.tabMain.selectedKey = "PROJECT";
    ActivateTab(context);
}

}  // namespace

void OnNewProject(Context& context) {
    if (NewProject(context)) ShowProjectTab(context);
}

void OpenProjectAndShow(Context& context, const std::string& path) {
    if (OpenProject(context, path)) ShowProjectTab(context);
}

}  // namespace orlo
