#include "core/FlightArena.h"

#include <algorithm>

#include "core/FlightRow.h"

namespace orlo {
namespace {

constexpr std::size_t kFirstChunk = 16 * 1024;
constexpr std::size_t kMostInSmallChunks = 256 * 1024;
constexpr std::size_t kLargeChunk = 4 * 1024 * 1024;
constexpr std::size_t kLargePage = 2 * 1024 * 1024;

}  // namespace

FlightArena::~FlightArena() {
    for (const Chunk& chunk : chunks_) memory_->deallocate(chunk.start, chunk.size, chunk.alignment);
}

void FlightArena::AddChunk(std::size_t wanted) {
    // Small chunks first; a list that outgrows them goes on in whole large pages.
    const std::size_t usual = taken_ < kMostInSmallChunks ? kFirstChunk : kLargeChunk;
    const std::size_t size = std::max(wanted, usual);
    const std::size_t alignment = size >= kLargeChunk ? kLargePage : kRowAlignment;
    chunks_.reserve(chunks_.size() + 1);
    chunks_.push_back({memory_->allocate(size, alignment), size, alignment});
    next_ = static_cast<char*>(chunks_.back().start);
    end_ = next_ + size;
    taken_ += size;
}

}  // namespace orlo
