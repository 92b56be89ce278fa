#pragma once

#include <optional>
#include <string>

#include "core/InitialisationFile.h"
#include "services/FileSystem.h"
#include "services/SettingsStore.h"

namespace orlo {

// A settings store in a text file (see ReadSettingsText). The file is read at the first use and written by
// Flush when something was changed; a missing file is an empty store, and its folder is made with it.
class TextSettingsStore : public SettingsStore {
  public:
    TextSettingsStore(FileSystem& files, std::string path);

    std::optional<std::string> Get(std::string_view keyPath, std::string_view name) override;
    // False for a key path that holds a line end or a zero byte.
    bool Set(std::string_view keyPath, std::string_view name, std::string_view value) override;
    // False also when the file exists but could not be read: it is not replaced then.
    bool Flush() override;

  private:
    InitialisationFile& Loaded();

    FileSystem& files_;
    std::string path_;
    std::optional<InitialisationFile> text_;  // nothing until the first use
    bool unreadable_ = false;
    bool changed_ = false;
};

}  // namespace orlo
