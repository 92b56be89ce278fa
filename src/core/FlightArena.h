#pragma once

#include <cstddef>
#include <memory_resource>
#include <vector>

namespace orlo {

// Memory of packed rows: chunks that only grow, so that a row never moves.
class FlightArena {
  public:
    FlightArena() = default;
    FlightArena(const FlightArena&) = delete;
    FlightArena& operator=(const FlightArena&) = delete;
    ~FlightArena();

    // Room for so many bytes. It holds until the next call; what Commit takes of it holds for good.
    char* Reserve(std::size_t bytes) {
        if (static_cast<std::size_t>(end_ - next_) < bytes) AddChunk(bytes);
        return next_;
    }
    // Takes the bytes that a row used of the room, a multiple of kRowAlignment.
    void Commit(std::size_t bytes) {
        next_ += bytes;
        used_ += bytes;
    }

    std::size_t UsedBytes() const { return used_; }    // of all rows
    std::size_t TakenBytes() const { return taken_; }  // of the system

  private:
    struct Chunk {
        void* start;
        std::size_t size;
        std::size_t alignment;
    };

    void AddChunk(std::size_t wanted);

    // The first touch of fresh memory costs more than filling it; a default resource of large pages saves
    // most of that.
    std::pmr::memory_resource* memory_ = std::pmr::get_default_resource();
    std::vector<Chunk> chunks_;
    char* next_ = nullptr;
    char* end_ = nullptr;
    std::size_t used_ = 0;
    std::size_t taken_ = 0;
};

}  // namespace orlo
