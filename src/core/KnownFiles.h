#pragma once

#include <string>

#include "core/KeyedIndex.h"
#include "services/FileSystem.h"

namespace orlo {

// Files that were read or written, as they stood then.
class KnownFiles {
  public:
    // To be called right after a file was read or written. `whole`: what is in memory holds all of it, so
    // that a later write loses nothing. A file that isn't there is forgotten.
    void Know(FileSystem& files, const std::string& path, bool whole);
    // Whether nothing is lost where the file is replaced or deleted: none stands there, or it is known whole
    // and nobody has written it since.
    bool MayGo(FileSystem& files, const std::string& path) const;

  private:
    struct Known {
        FileStamp stamp;
        bool whole = false;
    };
    KeyedIndex<Known> files_;
};

}  // namespace orlo
