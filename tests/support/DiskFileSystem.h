#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "core/Text.h"
#include "services/FileSystem.h"

namespace orlo::test {

// Reads the real disk with names as they are spelled; writes nothing. For tests and benchmarks over folders
// that lie beside the checkout.
class DiskFileSystem : public FileSystem {
  public:
    std::string Resolve(const std::string& path) override { return path; }
    bool FileExists(const std::string& path) override {
        std::error_code error;
        return std::filesystem::exists(path, error) && !std::filesystem::is_directory(path, error);
    }
    bool FolderExists(const std::string& path) override {
        std::error_code error;
        return std::filesystem::is_directory(path, error);
    }
    std::optional<std::uint64_t> FileSize(const std::string& path) override {
        std::error_code error;
        const std::uint64_t size = std::filesystem::file_size(path, error);
        if (error) return std::nullopt;
        return size;
    }
    std::unique_ptr<InputFile> OpenForReading(const std::string& path) override {
        const auto size = FileSize(path);
        if (!size) return nullptr;
        auto file = std::make_unique<Reader>(path, *size);
        if (!file->IsOpen()) return nullptr;
        return file;
    }
    std::unique_ptr<OutputFile> CreateReplacing(const std::string&) override { return nullptr; }
    std::unique_ptr<OutputFile> CreateInPlace(const std::string&) override { return nullptr; }
    bool CopyFile(const std::string&, const std::string&) override { return false; }
    bool DeleteFile(const std::string&) override { return false; }
    bool CreateFolders(const std::string&) override { return false; }
    std::vector<FolderEntry> ListFolder(const std::string& path) override {
        std::vector<FolderEntry> list;
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(path, error)) {
            list.push_back({entry.path().filename().string(), entry.is_directory(error)});
        }
        std::sort(list.begin(), list.end(), [](const FolderEntry& a, const FolderEntry& b) {
            return CompareNoCase(a.name, b.name) < 0;
        });
        return list;
    }

  private:
    class Reader : public InputFile {
      public:
        Reader(const std::string& path, std::uint64_t size) : stream_(path, std::ios::binary), size_(size) {}
        bool IsOpen() const { return stream_.is_open(); }
        std::size_t Read(std::span<char> buffer) override {
            stream_.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
            return static_cast<std::size_t>(stream_.gcount());
        }
        std::uint64_t Size() const override { return size_; }

      private:
        std::ifstream stream_;
        std::uint64_t size_;
    };
};

}  // namespace orlo::test
