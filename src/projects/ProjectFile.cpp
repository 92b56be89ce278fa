#include "projects/ProjectFile.h"

#include "core/ContentHash.h"
#include "core/LittleEndian.h"
#include "core/Path.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "simulator/ByteReader.h"

namespace orlo {
namespace {

constexpr std::string_view kVersion = "1.1";
constexpr std::string_view kVersionWithoutAircraft = "1.0";
constexpr std::size_t kLongestText = 0xFFFF;

std::string ReadText(ByteReader& reader) {
    const std::uint16_t length = reader.Word();
    return std::string(reader.Bytes(length));
}

void AppendText(std::string& out, std::string_view text) {
    const std::string_view kept = text.substr(0, kLongestText);
    AppendLittleEndian(out, static_cast<std::uint32_t>(kept.size()), 2);
    out.append(kept);
}

// On Windows a path inside the program is UTF-8, in the file it has the code page.
std::string PathOfFile(std::string text) {
    return kPathSeparator == '\\' ? ToScreen(text) : text;
}
std::string PathForFile(const std::string& path) {
    return kPathSeparator == '\\' ? FromScreen(path) : path;
}

ProjectEntry ReadEntry(ByteReader& reader, bool withAircraft) {
    ProjectEntry entry;
    entry.Flightplan = PathOfFile(ReadText(reader));
    if (withAircraft) entry.AircraftFile = PathOfFile(ReadText(reader));
    entry.Description = ReadText(reader);
    entry.Reserved = static_cast<std::int16_t>(reader.Word());
    return entry;
}

// Whether the entries, written in the file's version, are the file.
bool HoldsAll(const std::vector<ProjectEntry>& entries, std::string_view bytes) {
    ByteReader reader(bytes);
    const std::string version = ReadText(reader);
    if (version == kVersion) return FormatProject(entries) == bytes;
    if (version != kVersionWithoutAircraft || reader.Int32() != static_cast<std::int32_t>(entries.size()))
        return false;
    for (std::size_t i = 0; i < entries.size(); ++i) ReadEntry(reader, false);
    return reader.Ok() && reader.Left() == 0;
}

}  // namespace

std::vector<ProjectEntry> ParseProject(std::string_view bytes) {
    ByteReader reader(bytes);
    const bool withAircraft = ReadText(reader) != kVersionWithoutAircraft;
    const std::int32_t count = reader.Int32();
    std::vector<ProjectEntry> entries;
    for (std::int32_t i = 0; i < count; ++i) {
        ProjectEntry entry = ReadEntry(reader, withAircraft);
        if (!reader.Ok()) break;
        entries.push_back(std::move(entry));
    }
    return entries;
}

std::string FormatProject(const std::vector<ProjectEntry>& entries) {
    std::string bytes;
    AppendText(bytes, kVersion);
    AppendLittleEndian(bytes, static_cast<std::uint32_t>(entries.size()), 4);
    for (const ProjectEntry& entry : entries) {
        AppendText(bytes, PathForFile(entry.Flightplan));
        AppendText(bytes, PathForFile(entry.AircraftFile));
        AppendText(bytes, entry.Description);
        AppendLittleEndian(bytes, static_cast<std::uint16_t>(entry.Reserved), 2);
    }
    return bytes;
}

void ReadProject(ProjectState& project, FileSystem& files, const std::string& path) {
    project.ProjectVersion = kVersion;
    const auto stamp = files.Stamp(path);
    const std::string bytes = ReadWholeFile(files, path).value_or("");
    project.ProjectEntries = ParseProject(bytes);
    project.Known.Know(path, stamp, HashOf(bytes), HoldsAll(project.ProjectEntries, bytes));
}

bool WriteProject(ProjectState& project, FileSystem& files, const std::string& path) {
    return project.Known.Replace(files, path, FormatProject(project.ProjectEntries));
}

std::string UsablePath(FileSystem& files, const std::string& path) {
    const std::string local = files.FromDrivePath(path);
    for (const std::string& form : {path, local, ToScreen(local)}) {
        if (files.FileExists(form)) return form;
    }
    return path;
}

}  // namespace orlo
