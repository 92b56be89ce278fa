#pragma once

#include <string>

namespace orlo::standin {

// What the stand-ins for the outside tools share. They work on the files of their working folder.

// Exit codes of their own.
inline constexpr int kFileMissing = 2;
inline constexpr int kWrongSwitch = 3;
inline constexpr int kCannotWrite = 4;

// Whether the one argument is a switch that the tools take. `shownToo`: the one for a window that stays, too.
bool TakesSwitch(int argumentCount, const char* const* arguments, bool shownToo);

// The exit code that the file "exit-code.txt" asks for, 0 without one; where its text is "never", this does
// not return.
int WantedExitCode();

}  // namespace orlo::standin
