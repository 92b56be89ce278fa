#include "StandIn.h"

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <string_view>
#include <thread>

namespace orlo::standin {

bool TakesSwitch(int argumentCount, const char* const* arguments, bool shownToo) {
    if (argumentCount != 2) return false;
    const std::string_view word = arguments[1];
    return word == "/NP" || (shownToo && word == "/EP");
}

int WantedExitCode() {
    std::string text;
    std::ifstream("exit-code.txt") >> text;
    while (text == "never") std::this_thread::sleep_for(std::chrono::seconds(1));
    return std::atoi(text.c_str());
}

}  // namespace orlo::standin
