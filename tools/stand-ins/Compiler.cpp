// Stands in for the traffic compiler: checks its switch and its files, and lists what it read.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "StandIn.h"

namespace {

using namespace orlo::standin;

constexpr const char* kInputs[] = {"FlightPlans.txt", "Aircraft.txt", "Airports.txt"};
constexpr const char* kListing = "Traffic Listing.txt";

std::filesystem::path ListingPath() {
    const char* folder = std::getenv("ORLO_LISTING_FOLDER");
    return folder != nullptr ? std::filesystem::path(folder) / kListing : std::filesystem::path(kListing);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (!TakesSwitch(argumentCount, arguments, true)) return kWrongSwitch;
    std::string listing = std::string("switch ") + arguments[1] + '\n';
    for (const char* name : kInputs) {
        std::ifstream file(name, std::ios::binary);
        if (!file) return kFileMissing;
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        listing += std::string(name) + ": " + std::to_string(std::count(bytes.begin(), bytes.end(), '\n')) +
                   " lines, " + std::to_string(bytes.size()) + " bytes\n";
    }
    std::ofstream output(ListingPath(), std::ios::binary);
    output << listing << std::flush;
    return output ? WantedExitCode() : kCannotWrite;
}
