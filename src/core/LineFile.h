#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "services/FileSystem.h"

namespace orlo {

// A text file that is truncated and written in place, in large pieces, such as a log. Without an open file
// all calls do nothing.
class LineFile {
  public:
    // A file that can't be created leaves it closed.
    void Open(FileSystem& files, const std::string& path);
    // Takes a file that is open already; null leaves it closed.
    void Take(std::unique_ptr<OutputFile> file);
    bool IsOpen() const { return file_ != nullptr; }
    void Line(std::string_view text);  // adds the line end, CR LF
    // Writes what is waiting.
    void Flush();
    // False where a write failed since Open. Closed already: true.
    bool Close();

  private:
    std::unique_ptr<OutputFile> file_;
    std::string pending_;
    bool failed_ = false;
};

}  // namespace orlo
