#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Session.h"
#include "services/Services.h"

namespace orlo {

// In the program folder. Deleting it forces a new read of the simulator's scenery.
inline constexpr std::string_view kAFDCacheName = "AFDCache.dat";

// The folder of the scenery files below the simulator's.
std::string SceneryFolder(const std::string& simulatorFolder);
// Names of the files in it that may hold airport data: those longer than 3 characters that end in "BGL".
std::vector<std::string> SceneryFileNames(FileSystem& files, const std::string& sceneryFolder);

// Deletes the cache and empties the airports in memory: the next use reads the scenery anew.
void ForgetScenery(Session& session, FileSystem& files);

// Fills session.scenery.Airports, unless it is filled, from the cache alone. False, with nothing told, where
// there is no usable one.
bool ReadCachedScenery(Session& session, FileSystem& files);

// Fills session.scenery.Airports, unless it is filled, from the cache; where that is missing, of another
// version or damaged, from the simulator's scenery, and then writes the cache. False, with no cache written,
// when there are no airports afterwards. An unknown simulator is told to the user.
bool ReadScenery(Session& session, Services& services);

}  // namespace orlo
