#pragma once

#include <memory_resource>

namespace orlo {

// A memory resource that takes large blocks straight from the system and asks for large pages, since touching
// fresh pages of 4 KB one by one can cost more than filling them. Small blocks come from the heap. A
// program's main sets it as the default resource before any list is made. It lives to the end of the program.
std::pmr::memory_resource& LargePageMemory();

}  // namespace orlo
