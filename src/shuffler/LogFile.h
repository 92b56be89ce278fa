#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "services/FileSystem.h"

namespace orlo {

// A log that is written in place, in large pieces. Without an open file all calls do nothing.
class LogFile {
  public:
    // A file that can't be created gives a closed log.
    void Open(FileSystem& files, const std::string& path);
    bool IsOpen() const { return file_ != nullptr; }
    void Line(std::string_view text);  // adds the line end
    void Close();

  private:
    std::unique_ptr<OutputFile> file_;
    std::string pending_;
};

}  // namespace orlo
