// The benchmarks run on the same memory as the programs.

#include <benchmark/benchmark.h>

#include <memory_resource>

#include "platform/posix/LargePageMemory.h"

int main(int count, char** words) {
    std::pmr::set_default_resource(&orlo::LargePageMemory());
    benchmark::Initialize(&count, words);
    if (benchmark::ReportUnrecognizedArguments(count, words)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
