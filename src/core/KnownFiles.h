#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/KeyedIndex.h"
#include "services/FileSystem.h"

namespace orlo {

// Files that were read or written, as they stood then.
class KnownFiles {
  public:
    // `stamp` is that of before the reading, or of after the writing; without one the file is forgotten.
    // `hash` is the ContentHash of all bytes. `whole`: what is in memory holds all of them, so that a later
    // write loses nothing.
    void Know(const std::string& path, const std::optional<FileStamp>& stamp, std::uint64_t hash, bool whole);
    // The same of a file that was just written whole.
    void KnowWritten(FileSystem& files, const std::string& path, std::uint64_t hash);
    // Replaces the file by the text and knows it. False, with the old file whole, where it can't be written.
    bool Replace(FileSystem& files, const std::string& path, std::string_view text);
    // Whether nothing is lost where the file is replaced or deleted: none stands there, or it is known whole
    // and has the same content still.
    bool MayGo(FileSystem& files, const std::string& path) const;

  private:
    struct Known {
        FileStamp stamp;
        std::uint64_t hash = 0;
        bool whole = false;
    };
    KeyedIndex<Known> files_;
};

}  // namespace orlo
