#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Reads settings and rule files, shows the main window and the splash. False where the program has to end: a
// message has said why, the main window was not shown, and no settings are written.
bool StartUp(Context& context);

// The name of the timer that closes the splash window.
inline constexpr std::string_view kSplashTimer = "tmrSplash";
void CloseSplash(Context& context);

}  // namespace orlo
