#include "core/FlightplanFile.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/Application.h"
#include "core/ContentHash.h"
#include "core/FieldScan.h"
#include "core/Number.h"
#include "core/Path.h"
#include "core/Text.h"
#include "core/TextLines.h"

namespace orlo {
namespace {

constexpr std::size_t kFewestFields = kFlightFields + 2 * kLegFields;  // two complete legs
constexpr std::size_t kPercentField = 2;
constexpr std::size_t kLongestLevel = 3;
constexpr std::size_t kLongestNumber = 4;
constexpr std::size_t kLongestLine = 0xFFFFFFFF - 16;  // positions in a line have 32 bits
constexpr int kLinesBetweenProgress = 201;
constexpr std::string_view kMostPercent = "99%";

// An activity of 100 is never kept, and neither is one that doesn't read.
bool KeepsPercent(std::string_view percent) {
    // Nearly all are two digits and the sign.
    if (percent.size() == 3 && IsDigit(percent[0]) && IsDigit(percent[1])) return true;
    const auto value = ParseWholeNumber(percent.substr(0, percent.empty() ? 0 : percent.size() - 1));
    return value && *value != 100;
}

// A level given in feet becomes hundreds of feet: 3500 is "035", 10000 is "100".
std::string NormalLevel(std::string_view level) {
    if (level.size() <= kLongestLevel) return std::string(level);
    if (level.size() == kLongestLevel + 1) return Concat("0", level.substr(0, 2));
    return std::string(level.substr(0, kLongestLevel));
}

std::string_view FieldOf(std::string_view line, const FieldScan& fields, std::size_t index) {
    return line.substr(fields.Start(index), fields.FieldLength(index));
}

// Whether nothing in the line has to be normalised.
bool IsNormal(std::string_view line, const FieldScan& fields, std::size_t legs) {
    if (!KeepsPercent(FieldOf(line, fields, kPercentField))) return false;
    for (std::size_t leg = 0, field = kFlightFields; leg < legs; ++leg, field += kLegFields) {
        if (fields.FieldLength(field + 2) > kLongestLevel || fields.FieldLength(field + 4) > kLongestNumber)
            return false;
    }
    return true;
}

// Appends lines to a list with one scan buffer for all of them.
class LinePacker {
  public:
    explicit LinePacker(FlightList& flights) : flights_(flights) {}

    // Whether the flights so far would be written as their lines were, but for blanks.
    bool Whole() const { return whole_; }

    bool Append(std::string_view line) {
        if (line.empty()) return false;
        const bool taken = Take(line);
        whole_ = whole_ && (taken || TrimBlanks(line).empty());
        return taken;
    }

  private:
    bool Take(std::string_view line) {
        if (line.front() == ';' || line.substr(0, 2) == "//") return false;
        if (line.size() > kLongestLine) return false;
        fields_.Scan(line);
        if (fields_.Count() < kFewestFields) return false;
        const std::size_t legs = (fields_.Count() - kFlightFields) / kLegFields;
        if (fields_.Length() != line.size() || fields_.Count() != kFlightFields + legs * kLegFields)
            whole_ = false;
        if (!fields_.HasBlanks() && IsNormal(line, fields_, legs)) {
            const std::size_t kept = kFlightFields + legs * kLegFields;
            flights_.AppendLine(line.substr(0, fields_.End(kept - 1)), static_cast<std::int32_t>(legs));
        } else {
            AppendNormalised(line, legs);
        }
        return true;
    }

    void AppendNormalised(std::string_view line, std::size_t legs) {
        const auto field = [&](std::size_t index) { return TrimBlanks(FieldOf(line, fields_, index)); };
        const std::string_view percent = field(kPercentField);
        flight_.ACNumber = field(0);
        flight_.TailNumber = field(1);
        flight_.Percent = KeepsPercent(percent) ? percent : kMostPercent;
        flight_.Period = field(3);
        flight_.FlightType = field(4);
        flight_.Legs.resize(legs);
        levels_.resize(legs);
        for (std::size_t leg = 0, i = kFlightFields; leg < legs; ++leg, i += kLegFields) {
            std::string_view eta = field(i + 1);
            const bool fixed = eta.starts_with(kFixedMark);
            if (fixed) eta.remove_prefix(1);
            levels_[leg] = NormalLevel(field(i + 2));
            const std::string_view number = field(i + 4).substr(0, kLongestNumber);
            flight_.Legs[leg] = {field(i), eta, fixed, levels_[leg], field(i + 3), number, field(i + 5)};
            whole_ = whole_ && levels_[leg] == field(i + 2) && number == field(i + 4);
        }
        whole_ = whole_ && KeepsPercent(percent);
        flights_.Append(flight_);
    }

    bool whole_ = true;
    FlightList& flights_;
    FieldScan fields_;
    LentFlight flight_;
    std::vector<std::string> levels_;  // of its legs
};

void AppendLine(const FlightList& flights, std::int32_t index, std::string& text) {
    flights.WriteLine(index, text);
    text.append("\r\n");
}

// Collects flights as lines and hands them on in large pieces.
class LineWriter {
  public:
    explicit LineWriter(OutputFile& file) : file_(file) { buffer_.reserve(kPiece + kPiece / 4); }

    void Add(const FlightList& flights, std::int32_t index) {
        AppendLine(flights, index, buffer_);
        if (buffer_.size() >= kPiece) Flush();
    }
    // The hash of all lines; nothing where a write failed.
    std::optional<std::uint64_t> Finish() {
        Flush();
        if (failed_) return std::nullopt;
        return hash_.Value();
    }

  private:
    static constexpr std::size_t kPiece = 1024 * 1024;

    void Flush() {
        if (!failed_ && !buffer_.empty()) failed_ = !file_.Write(buffer_);
        hash_.Add(buffer_);
        buffer_.clear();
    }

    OutputFile& file_;
    std::string buffer_;
    ContentHash hash_;
    bool failed_ = false;
};

// The hash of what was written; nothing, with the old file whole, where it can't be written.
std::optional<std::uint64_t> WriteLines(FileSystem& files, const std::string& path, const FlightList& flights,
                                        bool removed) {
    const auto file = files.CreateReplacing(path);
    if (!file) return std::nullopt;
    LineWriter writer(*file);
    for (std::int32_t i = 0; i < flights.Count(); ++i) {
        if (flights.Removed(i) == removed) writer.Add(flights, i);
    }
    const auto hash = writer.Finish();
    return hash && file->Commit() ? hash : std::nullopt;
}

}  // namespace

bool AppendFlightplanLine(std::string_view line, FlightList& flights) {
    return LinePacker(flights).Append(line);
}

void ReadFlightplan(Plan& plan, Services& services) {
    plan.Flights.Clear();
    services.progress.SetMax(100);
    services.progress.SetValue(0);
    services.windows.ProcessEvents();

    const auto stamp = services.files.Stamp(plan.FlightplanPath);
    const auto file = services.files.OpenForReading(plan.FlightplanPath);
    if (!file) {
        ShowMessage(services.messages, "Flightplan file not found or access denied.", kMarkCritical);
        return;
    }
    const std::uint64_t size = std::max<std::uint64_t>(file->Size(), 1);
    HashedInput hashed(*file);
    LineReader lines(hashed);
    LinePacker packer(plan.Flights);
    std::uint64_t total = 0;
    int lineCounter = 0;
    while (const auto line = lines.Next()) {
        total += line->size();
        if (lineCounter == kLinesBetweenProgress) {
            lineCounter = 0;
            services.progress.SetValue(static_cast<int>(std::min<std::uint64_t>(total * 100 / size, 100)));
            services.windows.ProcessEvents();
        } else {
            ++lineCounter;
        }
        packer.Append(*line);
    }
    plan.Known.Know(plan.FlightplanPath, stamp, hashed.Hash(), packer.Whole());
}

std::string RemovedFlightsPath(const std::string& path) {
    return JoinPath(ParentFolder(path), kRemovedFlightsName);
}

std::string FormatFlights(const FlightList& flights, bool removed) {
    std::string text;
    for (std::int32_t i = 0; i < flights.Count(); ++i) {
        if (flights.Removed(i) == removed) AppendLine(flights, i, text);
    }
    return text;
}

PlanWriteResult WriteFlightplan(FileSystem& files, const std::string& path, const FlightList& flights) {
    PlanWriteResult result;
    for (std::int32_t i = 0; i < flights.Count(); ++i) result.RemovedCount += flights.Removed(i) ? 1 : 0;

    const std::string removedPath = RemovedFlightsPath(path);
    // The removed flights first, so that a kill between the two files loses none of them.
    if (result.RemovedCount > 0) result.RemovedHash = WriteLines(files, removedPath, flights, true);
    result.PlanHash = WriteLines(files, path, flights, false);
    if (result.RemovedCount == 0 && result.PlanWritten()) {
        files.DeleteFile(removedPath);
        result.OldRemovedGone = !files.FileExists(removedPath);
    }
    return result;
}

}  // namespace orlo
