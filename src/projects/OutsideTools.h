#pragma once

#include <cstdint>
#include <string>
#include <string_view>

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

// Copies a file into a folder where others may write too, in place of what stands there under that name; no
// link is followed. False where it can't be copied; the status bar then names the folder.
bool CopyInto(Context& context, const std::string& from, const std::string& folder, std::string_view name);
bool CopyToolInto(Context& context, std::string_view tool, const std::string& folder);
void DeleteFrom(Context& context, const std::string& folder, std::string_view name);

// Whether a file that can be read stands there, and no pipe or device.
bool IsThere(FileSystem& files, const std::string& path);

// Runs the compiler that stands in the folder on the files there. The result is its exit code.
std::int32_t RunCompiler(Context& context, const std::string& folder);

}  // namespace orlo
