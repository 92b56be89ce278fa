#pragma once

#include "core/FlightplanFile.h"
#include "mainwindow/Context.h"

namespace orlo {

// The filter of the dialogs for text files.
inline constexpr std::string_view kTextFileFilter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";

// Who keeps a copy of the file that a save dialog has chosen and that is overwritten.
enum class ChosenFile { IsKept, IsKeptByCaller };

// Asks where to save; the path is full, and empty on a cancel. A file that stands there is kept first, with
// the title as the reason; where it can't be, that counts as a cancel, and the status bar names the file.
std::string AskForSavePath(Context& context, std::string_view title, std::string_view startFile,
                           std::string_view filter = kTextFileFilter, ChosenFile chosen = ChosenFile::IsKept);

// Asks a question about unsaved work, with Yes, No and Cancel.
MessageAnswer AskToSave(Context& context, std::string_view question);
MessageAnswer AskToSavePlan(Context& context);

// Says in the status bar which file of a plan could not be written, if any.
void ReportPlanNotWritten(Context& context, const std::string& path, const PlanWriteResult& written);

// Writes the plan and Aircraft.txt, clears PlanModified and says that the plan is saved, whether or not the
// files could be written; one that could not is named in the status bar, the old file stays whole, and
// DiffersFromFile is set. Files that would lose something, and those whose backup can't be made, are kept
// first, as one entry; where they can't be, nothing is written.
void SaveFlightplan(Context& context);

// Whether the plan has changes that stand in no file.
bool IsUnsaved(const Plan& plan);
// For the Yes of a question before the plan goes: saves it, and where that can't be done keeps it from
// memory. False where that fails too; the plan must then not go.
bool SaveBeforeItGoes(Context& context);
// The same while the window is disabled under the hourglass.
bool SaveInFrameBeforeItGoes(Context& context);

// The menu entry: the same while the window is disabled under the hourglass.
void SaveFlightplanCommand(Context& context);

// Asks for a path first; a cancel changes nothing.
void SaveFlightplanAs(Context& context);

}  // namespace orlo
