#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/Path.h"
#include "core/Text.h"
#include "services/FileSystem.h"

namespace orlo::test {

// A file system in memory, with case-insensitive names, that fails on demand. Folders exist by their files.
// Tests name them with "/"; where the system has another separator, it finds the same.
class MemoryFileSystem : public FileSystem {
  public:
    std::map<std::string, std::string> files;  // full path to content
    std::vector<std::string> folders;          // empty ones
    std::string heldFile;                      // which another program has open
    int failAfterBytes = -1;                   // writes beyond this many bytes fail (a full disk)
    bool failCommit = false;                   // the rename at the end fails
    bool failCreate = false;
    std::size_t touches = 0;  // each turns the times of all files
    // The process dies after this many files are complete: nothing later reaches the disk.
    int commitsBeforeKill = -1;

    std::string Resolve(const std::string& path) override {
        const std::string key = Key(path);
        for (const auto& [name, content] : files) {
            if (EqualNoCase(name, key)) return name;
        }
        return key;
    }
    std::string FullPath(const std::string& path) override { return path; }
    bool FileExists(const std::string& path) override { return files.contains(Resolve(path)); }
    bool FolderExists(const std::string& path) override {
        const auto isIt = [key = Key(path)](std::string_view name) {
            return EqualNoCase(WithoutTrailingSeparator(name), WithoutTrailingSeparator(key));
        };
        return std::any_of(folders.begin(), folders.end(), isIt) || !ListFolder(path).empty();
    }
    std::optional<FileStamp> Stamp(const std::string& path) override {
        const auto found = files.find(Resolve(path));
        if (found == files.end()) return std::nullopt;
        const auto time = static_cast<std::int64_t>(std::hash<std::string>()(found->second) + touches);
        return FileStamp{found->second.size(), time};
    }
    std::optional<std::uint64_t> FileSize(const std::string& path) override {
        const auto found = files.find(Resolve(path));
        if (found == files.end()) return std::nullopt;
        return found->second.size();
    }
    std::unique_ptr<InputFile> OpenForReading(const std::string& path) override {
        const auto found = files.find(Resolve(path));
        if (found == files.end()) return nullptr;
        return std::make_unique<Reader>(found->second);
    }
    std::unique_ptr<OutputFile> CreateReplacing(const std::string& path) override {
        if (failCreate) return nullptr;
        return std::make_unique<Writer>(*this, Resolve(path), false);
    }
    std::unique_ptr<OutputFile> CreateInPlace(const std::string& path) override {
        if (failCreate) return nullptr;
        return std::make_unique<Writer>(*this, Resolve(path), true);
    }
    std::unique_ptr<OutputFile> CreateNew(const std::string& path) override {
        if (failCreate) return nullptr;
        files.erase(Resolve(path));
        return std::make_unique<Writer>(*this, Key(path), true);
    }
    bool PatchFile(const std::string& path, std::span<const FilePatch> patches) override {
        const auto found = files.find(Resolve(path));
        if (found == files.end() || failCreate) return false;
        std::string patched = found->second;
        for (const FilePatch& patch : patches) {
            if (patch.position + patch.bytes.size() > patched.size()) return false;
            patched.replace(patch.position, patch.bytes.size(), patch.bytes);
        }
        found->second = std::move(patched);
        return true;
    }
    bool CopyFile(const std::string& from, const std::string& to) override {
        if (!FileExists(from) || failCreate) return false;
        Writer copy(*this, Resolve(to), false);
        return copy.Write(files[Resolve(from)]) && copy.Commit();
    }
    bool RenameFile(const std::string& from, const std::string& to) override {
        const auto found = files.find(Resolve(from));
        if (found == files.end()) return false;
        std::string text = std::move(found->second);
        files.erase(found);
        files[Key(to)] = std::move(text);
        return true;
    }
    bool RenameFolder(const std::string& from, const std::string& to) override {
        if (FolderExists(to) || failCommit || commitsBeforeKill == 0) return false;
        std::map<std::string, std::string> renamed;
        for (auto& [name, text] : files) {
            const bool inside = StartsWithNoCase(name, Key(JoinPath(from, "")));
            renamed[inside ? Key(to) + name.substr(from.size()) : name] = text;
        }
        files = std::move(renamed);
        std::erase(folders, Key(from));
        folders.push_back(Key(to));
        return true;
    }
    bool DeleteEmptyFolder(const std::string& path) override { return std::erase(folders, Key(path)) > 0; }
    bool DeleteFile(const std::string& path) override {
        return commitsBeforeKill != 0 && files.erase(Resolve(path)) > 0;
    }
    bool CreatePrivateFolders(const std::string& path) override { return CreateFolders(path); }
    bool IsHeld(const std::string& path) override { return Key(path) == heldFile; }
    bool IsLink(const std::string& path) override { return links.contains(Key(path)); }
    std::set<std::string> links;  // those of the files that are links
    bool CreateFolders(const std::string& path) override {
        folders.push_back(Key(path));
        return true;
    }
    std::vector<FolderEntry> ListFolder(const std::string& path) override {
        const std::string folder = Key(JoinPath(WithoutTrailingSeparator(path), ""));
        std::map<std::string, FolderEntry> entries;  // by folded name
        const auto add = [&](std::string_view full, bool isFile) {
            if (!StartsWithNoCase(full, folder) || full.size() == folder.size()) return;
            const std::string_view rest = full.substr(folder.size());
            const std::string_view name = rest.substr(0, rest.find('/'));
            const bool isFolder = !isFile || name.size() < rest.size();
            entries.try_emplace(UpperText(name), FolderEntry{std::string(name), isFolder});
        };
        for (const auto& [name, content] : files) add(name, true);
        for (const std::string& name : folders) add(name, false);
        std::vector<FolderEntry> list;
        for (auto& [key, entry] : entries) list.push_back(std::move(entry));
        return list;
    }

  private:
    static std::string Key(std::string path) {
        for (char& character : path) {
            if (IsPathSeparator(character)) character = '/';
        }
        return path;
    }

    class Reader : public InputFile {
      public:
        explicit Reader(std::string content) : content_(std::move(content)) {}
        std::size_t Read(std::span<char> buffer) override {
            const std::size_t count = content_.copy(buffer.data(), buffer.size(), at_);
            at_ += count;
            return count;
        }
        std::uint64_t Size() const override { return content_.size(); }

      private:
        std::string content_;
        std::size_t at_ = 0;
    };

    class Writer : public OutputFile {
      public:
        Writer(MemoryFileSystem& owner, std::string path, bool inPlace)
            : owner_(owner), path_(std::move(path)), inPlace_(inPlace) {
            if (inPlace_) owner_.files[path_].clear();
        }
        bool Write(std::string_view bytes) override {
            if (owner_.failAfterBytes >= 0 &&
                content_.size() + bytes.size() > static_cast<std::size_t>(owner_.failAfterBytes)) {
                failed_ = true;
            }
            if (failed_) return false;
            content_.append(bytes);
            if (inPlace_) owner_.files[path_] = content_;
            return true;
        }
        bool Commit() override {
            if (failed_ || owner_.failCommit || owner_.commitsBeforeKill == 0) return false;
            if (owner_.commitsBeforeKill > 0) --owner_.commitsBeforeKill;
            owner_.files[path_] = content_;
            return true;
        }

      private:
        MemoryFileSystem& owner_;
        std::string path_;
        bool inPlace_;
        std::string content_;
        bool failed_ = false;
    };

    friend class Writer;
};

}  // namespace orlo::test
