#pragma once

#include <string_view>

#include "mainwindow/Context.h"

namespace orlo {

// Keeps the open project as it stands in memory as an entry of the kept files, under the path to which a save
// would write it; one that has no path yet as "Project.orp" in the working folder. Nothing is written there,
// and no mark changes. False where that fails.
[[nodiscard]] bool KeepProjectInMemory(Context& context, std::string_view reason);

}  // namespace orlo
