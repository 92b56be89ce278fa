#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Opens frmShares on what the last shuffle left in the session, at the set that gave the most flights. An
// undo or a correction since then changes nothing here.
void ShowShares(Context& context);

// The commands of the window.

// Draws the current row's set, after another one became current.
void ShowSharesOfSet(Context& context);
void SaveSharesPicture(Context& context);
void CloseShares(Context& context);

}  // namespace orlo
