#include "platform/posix/WineDrives.h"

#include <cstdlib>
#include <memory>

#include "core/Path.h"
#include "core/Text.h"
#include "platform/common/WineRegistry.h"

namespace orlo {
namespace {

// The path without links; empty where nothing is.
std::string RealPath(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr), &std::free);
    return real ? std::string(real.get()) : std::string();
}

}  // namespace

std::string FromWineDrive(FileSystem& files, const std::string& winePrefix, const std::string& path) {
    const auto parts = SplitDrivePath(path);
    if (!parts || winePrefix.empty()) return path;
    std::string drive = RealPath(JoinPath(winePrefix, Concat("dosdevices/", parts->drive, ":")));
    if (drive.empty()) drive = RealPath(JoinPath(winePrefix, Concat("drive_", parts->drive)));
    if (drive.empty()) return path;
    return files.Resolve(JoinPath(drive, parts->rest));
}

}  // namespace orlo
