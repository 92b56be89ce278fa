#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Opens frmTTStatistics on the rows that lvTimetable shows. Hours outside the times of the tab get no line; a
// time there that can't be read leaves no hour out at its end.
void ShowTimetableStatistics(Context& context);

// The commands of the window, on the text or the picture that it shows.
void PrintTimetableStatistics(Context& context);
void SaveTimetableStatistics(Context& context);
void SaveTimetablePicture(Context& context);
void CloseTimetableStatistics(Context& context);

}  // namespace orlo
