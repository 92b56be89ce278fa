#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/FileBackup.h"
#include "services/FileSystem.h"

namespace orlo {

// Which parkings get which radius. Texts are looked for without regard to case; empty ones leave all airports
// in.
struct GateResize {
    std::int32_t Class = 0;  // of the parking, as scenery files store it
    float Radius = 0;        // the new one, in metres
    std::string Search;      // part of an airport's city, region, country, name or state
    std::string ICAO;        // part of its code. With both texts, one is enough
};

// The parkings of a scenery file that get a new radius.
struct ResizedGates {
    std::vector<FilePatch> patches;  // in the order in which they are to be written
    std::int32_t count = 0;          // of parkings
    std::string skippedAirport;  // name of the first that isn't touched, since it counts more parkings than
                                 // its data hold; empty where there is none
};

// Finds them in the bytes of a file. Of an airport the first block of parkings counts alone; its code is read
// at byte 60 of its body. Nothing in a file without a section of airport data. Bytes between two radii of a
// patch are those of the file.
ResizedGates FindGates(std::string_view bytes, const GateResize& resize);

// What a run over all scenery files did.
struct ResizeOutcome {
    std::int32_t count = 0;  // of parkings with the new radius
    std::string notWritten;  // path of the first file that couldn't be written or backed up, or that path and
                             // the name of an airport that was left alone; empty where all went well
};

// Writes the radii into the scenery files of the folder, in place; all other bytes stay. `backUp` is called
// for each file first, also for one in which nothing changes; null for no backups.
ResizeOutcome ResizeAllFiles(FileSystem& files, const std::string& sceneryFolder, const GateResize& resize,
                             const BackUpFile& backUp);

}  // namespace orlo
