#pragma once

#include "services/FileSystem.h"

namespace orlo {

// The file system of Windows. Paths are UTF-8 (see WideText.h), of any length. Devices, pipes and streams are
// no files here: none is opened, replaced or waited for.
class WindowsFileSystem : public FileSystem {
  public:
    std::string Resolve(const std::string& path) override;
    std::string FullPath(const std::string& path) override;
    bool FileExists(const std::string& path) override;
    bool FolderExists(const std::string& path) override;
    std::optional<FileStamp> Stamp(const std::string& path) override;
    std::optional<std::uint64_t> FileSize(const std::string& path) override;
    std::unique_ptr<InputFile> OpenForReading(const std::string& path) override;
    std::unique_ptr<OutputFile> CreateReplacing(const std::string& path) override;
    std::unique_ptr<OutputFile> CreateInPlace(const std::string& path) override;
    std::unique_ptr<OutputFile> CreateNew(const std::string& path) override;
    bool PatchFile(const std::string& path, std::span<const FilePatch> patches) override;
    bool CopyFile(const std::string& from, const std::string& to) override;
    bool RenameFile(const std::string& from, const std::string& to) override;
    bool RenameFolder(const std::string& from, const std::string& to) override;
    bool DeleteEmptyFolder(const std::string& path) override;
    bool DeleteFile(const std::string& path) override;
    bool CreateFolders(const std::string& path) override;
    bool CreatePrivateFolders(const std::string& path) override;
    bool IsLink(const std::string& path) override;
    bool IsHeld(const std::string& path) override;
    std::vector<FolderEntry> ListFolder(const std::string& path) override;
};

}  // namespace orlo
