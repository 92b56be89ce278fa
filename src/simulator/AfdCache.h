#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/AirportRecord.h"
#include "services/FileSystem.h"

namespace orlo {

inline constexpr std::string_view kAFDCacheVersion = "1.2";

// What stands in front of the records; docs/scenery-cache.md shows the whole layout.
struct AFDCacheHeader {
    std::string Version{kAFDCacheVersion};
    double Date = 0;         // moment of writing in days since 1899-12-30 00:00, local time
    std::int32_t Count = 0;  // airports
};

// Days since 1899-12-30 00:00 of a moment in seconds since 1970-01-01 00:00.
double DayCount(std::int64_t seconds);

// Replaces the cache whole. The count written is that of the records. False leaves the old file whole.
bool WriteAFDCache(FileSystem& files, const std::string& path, const std::vector<AirportRecord>& records,
                   const AFDCacheHeader& header);

// True when the whole file reads as a cache of the present version; records and header are then the file's.
// False, with both as they were, for any other version and a damaged or missing file.
bool ReadAFDCache(FileSystem& files, const std::string& path, std::vector<AirportRecord>& records,
                  AFDCacheHeader& header);

}  // namespace orlo
