#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/windows/SystemHeader.h"

namespace orlo::test {

// A real folder that goes with the test, and what tests do in it without the code under test. Its name has a
// letter beyond ASCII. Names given are wide.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        static int number = 0;
        folder_ =
            std::filesystem::temp_directory_path() /
            (L"orlo-t\u00E9st-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++number));
        std::filesystem::create_directory(folder_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    std::filesystem::path Wide(const std::wstring& name) const { return folder_ / name; }

    // As the program writes paths.
    std::string Path(const std::string& name = "") const {
        const std::u8string utf8 = folder_.u8string();
        return std::string(utf8.begin(), utf8.end()) + (name.empty() ? "" : "\\" + name);
    }
    void Put(const std::wstring& name, const std::string& content) const {
        std::ofstream(Wide(name), std::ios::binary) << content;
    }
    std::string Content(const std::wstring& name) const {
        std::ifstream file(Wide(name), std::ios::binary);
        if (!file) return "(missing)";
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::size_t Entries() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder_),
                                                      std::filesystem::directory_iterator()));
    }

  private:
    std::filesystem::path folder_;
};

}  // namespace orlo::test
