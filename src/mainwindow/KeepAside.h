#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/KeptFiles.h"
#include "mainwindow/Context.h"

namespace orlo {

// Keeps a copy of the files before a step that would lose them, all as one entry of the kept files; `reason`
// names the step to the user, as "Merge". Paths where no file stands are passed over. False where a copy
// could not be kept: the step must then not be done. What was kept stands behind the text of the status bar
// when the event ends, whatever the event writes there. `spared` is the name of an entry that stays whatever
// the limits of the store.
[[nodiscard]] bool KeepAside(Context& context, std::string_view reason, std::span<const std::string> paths,
                             std::string_view spared = {});
[[nodiscard]] bool KeepAside(Context& context, std::string_view reason, const std::string& path);
// The same for what stands in memory alone.
[[nodiscard]] bool KeepAside(Context& context, std::string_view reason, std::span<const KeptText> texts);

// The same for those of the files of which `known` tells that something would be lost.
[[nodiscard]] bool KeepWhatGoes(Context& context, const KnownFiles& known, std::string_view reason,
                                std::span<const std::string> paths);
[[nodiscard]] bool KeepWhatGoes(Context& context, const KnownFiles& known, std::string_view reason,
                                const std::string& path);

// Backs the file up once (core/FileBackup.h); where that can't be done a kept copy stands in for the backup.
// False where there can be neither, and after 20 kept files in one event, since more would push each other
// out of the store: the file must then not be changed.
[[nodiscard]] bool BackUpOrKeep(Context& context, std::string_view reason, const std::string& path);

// For a file that is made anew in one piece: keeps what goes, replaces it and knows it. False, with the old
// file whole, where it can't be kept or written.
[[nodiscard]] bool ReplaceAndKeep(Context& context, std::string_view reason, const std::string& path,
                                  std::string_view text);

}  // namespace orlo
