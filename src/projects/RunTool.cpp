#include "projects/RunTool.h"

#include "core/Application.h"
#include "core/Path.h"
#include "core/Text.h"

namespace orlo {
namespace {

constexpr int kPollMilliseconds = 100;

// While it lives the session tells of the tool.
class ToldTool {
  public:
    ToldTool(ToolState& state, const ToolStart& start) : state_(state) {
        state_ = {};
        state_.Running = FileName(start.program);
    }
    ToldTool(const ToldTool&) = delete;
    ToldTool& operator=(const ToldTool&) = delete;
    ~ToldTool() { state_ = {}; }

  private:
    ToolState& state_;
};

bool WantsToolEnded(Context& context) {
    ToolState& state = context.session.tool;
    if (!state.CloseRequested) return false;
    const bool agrees = UserAgrees(
        context.services.messages,
        Concat("'", state.Running, "' is still running. Would you like to end it?"), &context.forms.frmMain);
    state.CloseRequested = false;
    return agrees;
}

}  // namespace

std::int32_t RunAndWait(Context& context, const ToolStart& start) {
    const auto tool = context.services.processes.Start(start);
    if (!tool) return 0;
    const ToldTool told(context.session.tool, start);
    while (!tool->Wait(kPollMilliseconds)) {
        context.services.windows.ProcessEvents();
        if (tool->Interrupted() || WantsToolEnded(context)) tool->End();
    }
    // A close box that was pressed while the tool ended is not to close the window behind it.
    context.services.windows.ProcessEvents();
    return tool->ExitCode();
}

}  // namespace orlo
