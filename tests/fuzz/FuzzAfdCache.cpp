#include <cstddef>
#include <cstdint>

#include "simulator/AfdCache.h"
#include "support/MemoryFileSystem.h"

// The input is a cache. One that reads is written and read again to the same bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace orlo;
    test::MemoryFileSystem files;
    files.files["a"] = std::string(reinterpret_cast<const char*>(data), size);
    std::vector<AirportRecord> records;
    AFDCacheHeader header;
    if (!ReadAFDCache(files, "a", records, header)) return 0;
    if (!WriteAFDCache(files, "b", records, header)) __builtin_trap();
    if (!ReadAFDCache(files, "b", records, header)) __builtin_trap();
    if (!WriteAFDCache(files, "c", records, header)) __builtin_trap();
    if (files.files["b"] != files.files["c"]) __builtin_trap();
    return 0;
}
