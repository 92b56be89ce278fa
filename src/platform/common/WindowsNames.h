#pragma once

#include <string_view>

namespace orlo {

// Whether `path` can name a file or folder of a disk on Windows, relative or full, by drive or by server.
// False when it is empty, leads to a device ("NUL", "con.txt", "\\.\COM1"), a pipe, a mailslot or a stream
// inside a file ("plan.txt:more"), starts with "\\?\", or holds a character that no name may hold.
bool IsDiskPath(std::string_view path);

}  // namespace orlo
