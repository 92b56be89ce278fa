#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Opens frmKeptFiles on what the folder of the kept files holds now.
void ShowKeptFiles(Context& context);

// The commands of the window.

// What is enabled, after the selection or the list changed.
void EnableKeptFiles(Context& context);
// Asks where the current file goes, by default to where it stood. A file that is replaced there is kept
// itself first, unless it is the same; where that can't be done, nothing is written.
void RestoreKeptFile(Context& context);
void ShowKeptFolder(Context& context);
// The selected ones, after a question.
void DeleteKeptFiles(Context& context);
void CloseKeptFiles(Context& context);

}  // namespace orlo
