#pragma once

#include <string>

#include "services/FileSystem.h"

namespace orlo {

// The system's path for one of Windows, such as "C:\folder", by the drives of the Wine prefix in that folder.
// Any other path, and one on a drive that the prefix doesn't have, comes back as it is.
std::string FromWineDrive(FileSystem& files, const std::string& winePrefix, const std::string& path);

}  // namespace orlo
