#pragma once

#include "core/FlightplanFile.h"
#include "mainwindow/Context.h"

namespace orlo {

// The filter of the dialogs for text files.
inline constexpr std::string_view kTextFileFilter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";

// Asks where to save; the path is full, and empty on a cancel.
std::string AskForSavePath(Context& context, std::string_view title, std::string_view startFile,
                           std::string_view filter = kTextFileFilter);

// Asks a question about unsaved work, with Yes, No and Cancel.
MessageAnswer AskToSave(Context& context, std::string_view question);
MessageAnswer AskToSavePlan(Context& context);

// Says in the status bar which file of a plan could not be written, if any.
void ReportPlanNotWritten(Context& context, const std::string& path, const PlanWriteResult& written);

// Writes the plan and Aircraft.txt, clears PlanModified and says that the plan is saved, whether or not the
// files could be written; one that could not is named in the status bar, and the old file stays whole.
void SaveFlightplan(Context& context);

// The menu entry: the same while the window is disabled under the hourglass.
void SaveFlightplanCommand(Context& context);

// Asks for a path first; a cancel changes nothing.
void SaveFlightplanAs(Context& context);

}  // namespace orlo
