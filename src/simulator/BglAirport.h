#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/AirportRecord.h"
#include "services/FileSystem.h"
#include "simulator/BglFile.h"

namespace orlo {

// Appends the airports of one scenery file, with their limits. False, with nothing appended, when the file
// can't be read or has no section of airport data. Of an airport whose body is missing or cut, what could be
// read is appended.
bool ReadAFDFile(FileSystem& files, const std::string& path, std::vector<AirportRecord>& records);
bool ReadAFDBytes(std::string_view bytes, std::vector<AirportRecord>& records);

// For a walk over a file's entries: sets the level that the entry tells, clears the lower ones and gives
// true. False, with the place as it was, for an entry that is no level.
bool EnterLevel(const BglEntry& entry, AirportRecord& place);

// Fills what an airport's body tells: code, reference point, runways, parkings and frequencies. A missing
// body leaves the record as it is.
void ReadAirportBody(BglFile& file, std::uint32_t bodyPosition, AirportRecord& record);

// Parking radii and the longest runways for takeoff and landing with their surfaces, from the record's lists.
// Radii are rounded to whole metres, halves to even.
void ComputeAirportLimits(AirportRecord& record);

}  // namespace orlo
