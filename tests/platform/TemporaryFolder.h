#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "core/Path.h"

#ifdef _WIN32
#include "platform/windows/SystemHeader.h"
// Behind the system's header, whose macros it would fall to.
#include "platform/windows/WindowsFileSystem.h"
#else
#include "platform/posix/PosixFileSystem.h"
#endif

namespace orlo::test {

#ifdef _WIN32
using SystemFileSystem = WindowsFileSystem;
#else
using SystemFileSystem = PosixFileSystem;
#endif

// A real folder that goes with the test, and what tests do in it without the code under test. Names are given
// in UTF-8, and its own has a letter beyond ASCII.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::random_device number;
        do {
            folder_ = std::filesystem::temp_directory_path() / Wide("orlo-t\xC3\xA9st-");
            folder_ += std::to_string(number());
        } while (!std::filesystem::create_directory(folder_));
        std::filesystem::permissions(folder_, std::filesystem::perms(0755));
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    // As the program writes paths, and as the standard library does.
    std::string Path(const std::string& name = "") const {
        const std::u8string utf8 = folder_.u8string();
        const std::string path(utf8.begin(), utf8.end());
        return name.empty() ? path : JoinPath(path, name);
    }
    std::filesystem::path Place(const std::string& name = "") const { return folder_ / Wide(name); }

    std::string Put(const std::string& name, const std::string& content) const {
        std::filesystem::create_directories(Place(name).parent_path());
        std::ofstream(Place(name), std::ios::binary) << content;
        return Path(name);
    }
    std::string Content(const std::string& name) const {
        std::ifstream file(Place(name), std::ios::binary);
        if (!file) return "(missing)";
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::size_t Entries(const std::string& name = "") const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(Place(name)),
                                                      std::filesystem::directory_iterator()));
    }

  private:
    static std::filesystem::path Wide(const std::string& name) {
        return std::u8string(name.begin(), name.end());
    }

    std::filesystem::path folder_;
};

// The entries of a folder, with "/" behind folders and a blank behind each.
inline std::string Listed(FileSystem& files, const std::string& path) {
    std::string listed;
    for (const FolderEntry& entry : files.ListFolder(path))
        listed.append(entry.name).append(entry.isFolder ? "/ " : " ");
    return listed;
}

// Writes a file whole; 0 on success, else the step that failed.
inline int Replace(const std::string& path, std::string_view content) {
    SystemFileSystem files;
    const auto file = files.CreateReplacing(path);
    if (!file) return 1;
    if (!file->Write(content)) return 2;
    return file->Commit() ? 0 : 3;
}

}  // namespace orlo::test
