#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "core/KeyedIndex.h"
#include "core/LineFile.h"
#include "services/FileSystem.h"

namespace orlo {

// Merges plans, one after the other, into two open outputs.
class PlanMerger {
  public:
    PlanMerger(FileSystem& files, LineFile& aircraft, LineFile& flights)
        : files_(files), aircraft_(aircraft), flights_(flights) {}

    // Begins the next plan: its replacements start empty.
    void BeginPlan() { replacements_.clear(); }
    // Adds the plan's aircraft. A line of other than three parts is left out. False where the file can't be
    // opened.
    bool AddAircraft(const std::string& path);
    // Adds its flights, with the numbers of their aircraft replaced.
    bool AddFlights(const std::string& path);

  private:
    template <typename Take>
    bool EachLine(const std::string& path, Take take);
    void TakeAircraft(std::string_view line);
    void TakeFlight(std::string_view line);

    FileSystem& files_;
    LineFile& aircraft_;
    LineFile& flights_;
    KeyedIndex<std::string> titleIndex_;                         // title to its number in the output
    KeyedIndex<bool> numberIndex_;                               // numbers of the output
    std::int64_t highestNumber_ = 0;                             // behind "AC#", read or given so far
    std::unordered_map<std::string, std::string> replacements_;  // of this plan: old number to new one
};

}  // namespace orlo
