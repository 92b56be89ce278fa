#pragma once

#include <sys/types.h>

#include <memory>
#include <span>
#include <string>

#include "services/FileSystem.h"

namespace orlo {

// See FileSystem::CreateReplacing. `path` is resolved but may be a link; `newMode` are the permissions,
// before the user's mask, of a file that does not exist yet.
std::unique_ptr<OutputFile> OpenReplacing(const std::string& path, mode_t newMode);

// See FileSystem::CreateInPlace. Destroyed without a Commit, it still writes what it was given.
std::unique_ptr<OutputFile> OpenInPlace(const std::string& path);

// See FileSystem::CreateNew. Null where anything stands there.
std::unique_ptr<OutputFile> OpenNew(const std::string& path);

// See FileSystem::PatchFile.
bool WritePatches(const std::string& path, std::span<const FilePatch> patches);

}  // namespace orlo
