#include "operations/PlanCorrection.h"

#include "mainwindow/BulkOperation.h"
#include "mainwindow/PlanViews.h"

namespace orlo {

void RunPlanCorrection(Context& context, void (*correct)(Context&), std::string_view done) {
    {
        const BusyMainWindow busy(context);
        TakeUndoSnapshot(context);
        correct(context);
        ResetTimetableView(context);
        ResetExportView(context);
        MarkPlanModified(context);
    }
    ShowMessage(context.services.messages, done, kMarkInformation, &context.forms.frmMain);
}

}  // namespace orlo
