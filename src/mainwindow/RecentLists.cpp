#include "mainwindow/RecentLists.h"

#include <algorithm>
#include <array>

#include "core/Text.h"
#include "mainwindow/EnabledControls.h"

namespace orlo {
namespace {

using RecentPaths = std::array<std::string, 5>;
using RecentEntries = std::array<MenuEntry*, 5>;

void AddRecent(RecentPaths& paths, const std::string& path) {
    const auto found =
        std::find_if(paths.begin(), paths.end(), [&](const auto& entry) { return EqualNoCase(entry, path); });
    if (found == paths.begin()) return;
    const auto last = found == paths.end() ? paths.end() - 1 : found;
    std::move_backward(paths.begin(), last, last + 1);
    paths.front() = path;
}

void RebuildMenu(const RecentPaths& paths, const RecentEntries& entries) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i]->visible = !paths[i].empty();
        entries[i]->caption = paths[i];
    }
}

}  // namespace

void AddRecentFlightplan(Context& context, const std::string& path) {
    AddRecent(context.session.RecentFlightplans, path);
    RebuildRecentMenus(context);
}

void AddRecentProject(Context& context, const std::string& path) {
    AddRecent(context.session.RecentProjects, path);
    RebuildRecentMenus(context);
}

void RebuildRecentMenus(Context& context) {
    MainForm& form = context.forms.frmMain;
    RebuildMenu(context.session.RecentFlightplans,
                {&form.mnuRecentFlightPlan1, &form.mnuRecentFlightPlan2, &form.mnuRecentFlightPlan3,
                 &form.mnuRecentFlightPlan4, &form.mnuRecentFlightPlan5});
    RebuildMenu(context.session.RecentProjects,
                {&form.mnuRecentProjects1, &form.mnuRecentProjects2, &form.mnuRecentProjects3,
                 &form.mnuRecentProjects4, &form.mnuRecentProjects5});
    EnableMenus(context);
}

}  // namespace orlo
