#include "Options.h"

#include <charconv>
#include <string_view>

namespace orlo::world {

const char* const UsageText =
    "usage: orlo-sample-world DIR [--airports N] [--aircraft N] [--airlines N] [--flights N] [--seed N]\n"
    "\n"
    "Writes a small world to try the planner on: DIR/Simulator, DIR/Program, DIR/Plan and DIR/Project.\n"
    "DIR must be empty or not exist yet.\n"
    "\n"
    "  --airports N   airports in the scenery, 2 to 40000 (60); those beyond 60 are invented\n"
    "  --aircraft N   aircraft variants, 1 to 20000 (120)\n"
    "  --airlines N   airlines, 1 to 1000 (12); some seven airline sets come with each\n"
    "  --flights N    flights in the plan, 0 to 10000000 (2000)\n"
    "  --seed N       another world of the same size (1); the same seed gives the same bytes\n"
    "\n"
    "The project file tells full paths. Stand-ins for the outside tools that stand beside this program are\n"
    "copied to DIR/Program.\n";

namespace {

template <class Number>
bool ParseNumber(std::string_view text, Number low, Number high, Number& result) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || value < low || value > high) return false;
    result = value;
    return true;
}

bool ParseOption(std::string_view name, std::string_view value, Options& options) {
    if (name == "--airports") return ParseNumber(value, 2, 40000, options.AirportCount);
    if (name == "--aircraft") return ParseNumber(value, 1, 20000, options.AircraftCount);
    if (name == "--airlines") return ParseNumber(value, 1, 1000, options.AirlineCount);
    if (name == "--flights") return ParseNumber(value, 0, 10000000, options.FlightCount);
    if (name == "--seed") return ParseNumber<std::uint64_t>(value, 0, UINT64_MAX, options.Seed);
    return false;
}

}  // namespace

std::optional<Options> ParseOptions(int argumentCount, const char* const* arguments) {
    Options options;
    for (int i = 0; i < argumentCount; ++i) {
        const std::string_view argument = arguments[i];
        if (argument.substr(0, 1) == "-") {
            if (i + 1 >= argumentCount || !ParseOption(argument, arguments[i + 1], options))
                return std::nullopt;
            ++i;
        } else {
            if (argument.empty() || !options.Folder.empty()) return std::nullopt;
            options.Folder = argument;
        }
    }
    if (options.Folder.empty()) return std::nullopt;
    return options;
}

}  // namespace orlo::world
