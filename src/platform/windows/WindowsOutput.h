#pragma once

#include <memory>
#include <span>
#include <string>

#include "services/FileSystem.h"

namespace orlo {

// See FileSystem::CreateReplacing. `path` is resolved, so that the file keeps its spelling. Null for a link
// that leads nowhere.
std::unique_ptr<OutputFile> OpenReplacing(const std::string& path);

// See FileSystem::CreateInPlace. Destroyed without a Commit, it still writes what it was given.
std::unique_ptr<OutputFile> OpenInPlace(const std::string& path);

// See FileSystem::CreateNew. Null where anything stands there.
std::unique_ptr<OutputFile> OpenNew(const std::string& path);

// See FileSystem::PatchFile.
bool WritePatches(const std::string& path, std::span<const FilePatch> patches);

}  // namespace orlo
