#pragma once

#include <string_view>

namespace orlo {

enum class ProgramKind {
    Other,             // of this system, a script, or no program at all
    WindowsConsole,    // one that writes to a console, and any of DOS
    WindowsGraphical,  // one with windows of its own
};

// How many of a file's first bytes ProgramKindOf wants to see; a shorter file is given whole.
inline constexpr std::size_t kProgramHeadSize = 4096;

// What the first bytes of a file say of it.
ProgramKind ProgramKindOf(std::string_view head);

}  // namespace orlo
