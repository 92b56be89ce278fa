#pragma once

#include "mainwindow/Context.h"

namespace orlo {

// Reads settings and rule files and shows the main window. False when the program has to end: a message has
// said why, and nothing is saved.
bool StartUp(Context& context);

// The timer that closes the splash window.
inline constexpr std::string_view kSplashTimer = "tmrSplash";
void CloseSplash(Context& context);

}  // namespace orlo
