#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orlo {

// The command line of orlo-console.
struct ConsoleOptions {
    std::optional<std::string> program;
    std::optional<std::string> simulator;
    std::optional<std::string> settings;
    std::optional<std::string> state;  // none: beside the settings, or where the system has it
    std::optional<std::uint64_t> seed;
    bool strict = false;
    bool trace = false;
    bool help = false;
    bool version = false;
    std::optional<std::string> script;  // none: standard input
    std::string fault;                  // what is wrong with the command line; empty when nothing is
};

// Without the program's own name. Of several faults the last one is told.
ConsoleOptions ParseConsoleOptions(const std::vector<std::string>& arguments);

// What --help prints.
std::string ConsoleHelp();

}  // namespace orlo
