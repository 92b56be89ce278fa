#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "mainwindow/Context.h"

namespace orlo {

// The outside tools, which stand in the program's folder and run on copies of the files.
inline constexpr std::string_view kCompiler = "TCOMPILER.EXE";
inline constexpr std::string_view kDecompiler = "TDECOMPILER.EXE";

// The files that the compiler takes from its working folder.
inline constexpr std::string_view kFlightPlansName = "FlightPlans.txt";
inline constexpr std::string_view kAircraftName = "Aircraft.txt";
inline constexpr std::string_view kAirportsName = "Airports.txt";

// Whether the tool stands in the program's folder and this system can run it. Otherwise the user is told, by
// `missing` where the file isn't there.
bool ToolIsReady(Context& context, std::string_view tool, std::string_view missing);

// Whether a file that can be read stands there, and no pipe or device.
bool IsThere(FileSystem& files, const std::string& path);

// Whether both are one folder.
bool IsSameFolder(FileSystem& files, const std::string& a, const std::string& b);

// Copies a file into a folder where others may write too, in place of what stands there under that name; no
// link is followed. False where it can't be copied; the status bar then names the folder.
bool CopyInto(Context& context, const std::string& from, const std::string& folder, std::string_view name);
bool CopyToolInto(Context& context, std::string_view tool, const std::string& folder);

// What the compiler works on in the system's temporary folder, and the compiler itself. What was put there
// is deleted when this ends. A file that stands there under such a name is kept first, as another program's;
// one of the plan's or project's own folder is neither overwritten nor deleted. The status bar names the
// folder where something can't be put there.
class CompilerFolder {
  public:
    // `ownFolder` is that of the plan or project.
    CompilerFolder(Context& context, const std::string& ownFolder);
    ~CompilerFolder();
    CompilerFolder(const CompilerFolder&) = delete;
    CompilerFolder& operator=(const CompilerFolder&) = delete;

    const std::string& Path() const { return folder_; }
    void Copy(const std::string& from, std::string_view name);
    // A new file; null where there can be none.
    std::unique_ptr<OutputFile> Create(std::string_view name);
    void CopyCompiler();
    // The exit code. Without a copy of the compiler nothing is run, which counts as 0; nor is it where a file
    // of the user's or of others stands in the place of one that it needs, which counts as 1.
    std::int32_t Run();

  private:
    bool KeepLeftovers();
    bool MayPut(std::string_view name);

    Context& context_;
    std::string folder_;
    bool isOwn_;  // the user's files stand in it
    std::vector<std::string_view> names_;
    bool hasCompiler_ = false;
    bool refused_ = false;  // what stands under a name must stay
};

}  // namespace orlo
