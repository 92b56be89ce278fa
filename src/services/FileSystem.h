#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orlo {

// One file open for reading from its start to its end.
class InputFile {
  public:
    virtual ~InputFile() = default;

    // Bytes put into the front of `buffer`; 0 at the end of the file and after a failure.
    virtual std::size_t Read(std::span<char> buffer) = 0;

    // Size in bytes when the file was opened.
    virtual std::uint64_t Size() const = 0;
};

// One file being written. Unless it comes from CreateInPlace, nothing of it shows under its name before
// Commit: the bytes go to a file beside it, which Commit renames; where the folder takes no second file,
// Commit writes them in place. Destroyed without a Commit, it leaves what was there before.
class OutputFile {
  public:
    virtual ~OutputFile() = default;

    // False once any write failed (full disk, short write); later calls change nothing.
    virtual bool Write(std::string_view bytes) = 0;

    // True when the complete file stands under its name. False leaves the old file whole.
    virtual bool Commit() = 0;
};

// Where a file has been written since, one of the two differs.
struct FileStamp {
    std::uint64_t size = 0;
    std::int64_t time = 0;  // of the last write, in the system's finest units

    bool operator==(const FileStamp&) const = default;
};

// Bytes that are written over others of a file.
struct FilePatch {
    std::uint64_t position = 0;  // from the start of the file
    std::string bytes;
};

struct FolderEntry {
    std::string name;  // without a path, as the folder spells it
    bool isFolder = false;
};

// The file system as the program sees it. Paths are the system's bytes with its separators; every name is
// found without regard to case when no entry is spelled exactly so. Nothing here throws: what can't be done
// gives false, an empty result or null, and leaves the disk as it was.
class FileSystem {
  public:
    virtual ~FileSystem() = default;

    // False where the system offers no file service at all; the program then can't start.
    virtual bool Available() { return true; }

    // The path with each existing component spelled as the disk spells it; components that don't exist stay.
    virtual std::string Resolve(const std::string& path) = 0;

    // The path from the root; a relative one counts from the working folder.
    virtual std::string FullPath(const std::string& path) = 0;

    // A path of Windows, such as "C:\Plans\One.txt", as this system finds it: elsewhere than on Windows by
    // the drives of the user's Wine prefix. Any other path, and one on a drive that isn't there, comes back
    // as it is.
    virtual std::string FromDrivePath(const std::string& path) { return path; }

    virtual bool FileExists(const std::string& path) = 0;  // anything but a folder
    virtual bool FolderExists(const std::string& path) = 0;
    virtual std::optional<FileStamp> Stamp(const std::string& path) = 0;         // of a file, not of a folder
    virtual std::optional<std::uint64_t> FileSize(const std::string& path) = 0;  // of a file, not of a folder

    // Null when the path names no readable file.
    virtual std::unique_ptr<InputFile> OpenForReading(const std::string& path) = 0;

    // A file that replaces `path` whole on Commit. Links are followed. Null for a read-only target, and when
    // neither a file beside it nor the file itself can be opened.
    virtual std::unique_ptr<OutputFile> CreateReplacing(const std::string& path) = 0;

    // A file that is truncated at once and written in place, as logs and the outputs of a merge. Commit
    // closes it; without a Commit its end does.
    virtual std::unique_ptr<OutputFile> CreateInPlace(const std::string& path) = 0;

    // A new file written in place, in a folder where others may write too: what stands under its name, in any
    // case, is deleted, and no link is followed. Null where something still stands there then.
    virtual std::unique_ptr<OutputFile> CreateNew(const std::string& path) = 0;

    // Writes over the file in place, in this order. False, with nothing changed, where it can't be opened for
    // writing or a patch reaches beyond its end; false too where the disk failed in the middle.
    virtual bool PatchFile(const std::string& path, std::span<const FilePatch> patches) = 0;

    virtual bool CopyFile(const std::string& from, const std::string& to) = 0;  // replaces `to` whole
    // Replaces `to`, which is spelled as given.
    virtual bool RenameFile(const std::string& from, const std::string& to) = 0;
    // To a name where nothing stands.
    virtual bool RenameFolder(const std::string& from, const std::string& to) = 0;
    virtual bool DeleteEmptyFolder(const std::string& path) = 0;
    virtual bool DeleteFile(const std::string& path) = 0;
    virtual bool CreateFolders(const std::string& path) = 0;  // with its parents; true when it stands
    // The same, for a folder that no other user may look into. One that stands stays as it is.
    virtual bool CreatePrivateFolders(const std::string& path) = 0;
    virtual bool IsLink(const std::string& path) = 0;

    // Whether another program has the file open in a way that lets nobody write or replace it, as some
    // systems allow.
    virtual bool IsHeld(const std::string&) { return false; }

    // Entries without "." and "..", sorted by name with case folded so that a walk is repeatable. Empty when
    // the path is no readable folder.
    virtual std::vector<FolderEntry> ListFolder(const std::string& path) = 0;
};

}  // namespace orlo
