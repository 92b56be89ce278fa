#pragma once

#include "core/FlightplanFile.h"
#include "mainwindow/Context.h"

namespace orlo {

// The filter of the dialogs for text files.
inline constexpr std::string_view kTextFileFilter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";

// Asks a question about unsaved work, with Yes, No and Cancel.
MessageAnswer AskToSave(Context& context, std::string_view question);
MessageAnswer AskToSavePlan(Context& context);

// Says in the status bar which file of a written plan is missing, if one is.
void ReportPlanNotWritten(Context& context, const std::string& path, const PlanWriteResult& written);

// Writes the plan and Aircraft.txt, clears PlanModified and says so. The message comes whatever the writers
// did; what could not be written stands in the status bar, and the old file stays whole.
void SaveFlightplan(Context& context);

// The same in the frame of a busy window: the menu entry.
void SaveFlightplanCommand(Context& context);

// Asks for a path first; a cancel changes nothing.
void SaveFlightplanAs(Context& context);

}  // namespace orlo
