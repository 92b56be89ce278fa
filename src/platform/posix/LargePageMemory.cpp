#include "platform/posix/LargePageMemory.h"

#include <sys/mman.h>

#include <cstdint>
#include <new>

namespace orlo {
namespace {

constexpr std::size_t kLargePage = 2 * 1024 * 1024;

class LargePageResource : public std::pmr::memory_resource {
  private:
    static std::size_t RoundedUp(std::size_t bytes) {
        return (bytes + kLargePage - 1) / kLargePage * kLargePage;
    }
    static bool IsLarge(std::size_t bytes) { return bytes >= kLargePage; }

    // Maps one large page more than wanted and gives back what lies outside the aligned block.
    static void* MapLarge(std::size_t size) {
        void* mapped =
            mmap(nullptr, size + kLargePage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (mapped == MAP_FAILED) throw std::bad_alloc();
        const auto start = reinterpret_cast<std::uintptr_t>(mapped);
        const std::uintptr_t aligned = RoundedUp(start);
        const std::size_t before = aligned - start;
        if (before > 0) munmap(mapped, before);
        if (before < kLargePage) munmap(reinterpret_cast<void*>(aligned + size), kLargePage - before);
        auto* block = reinterpret_cast<void*>(aligned);
#ifdef MADV_HUGEPAGE
        madvise(block, size, MADV_HUGEPAGE);
#endif
        return block;
    }

    void* do_allocate(std::size_t bytes, std::size_t alignment) override {
        if (!IsLarge(bytes) || alignment > kLargePage)
            return std::pmr::new_delete_resource()->allocate(bytes, alignment);
        return MapLarge(RoundedUp(bytes));
    }
    void do_deallocate(void* block, std::size_t bytes, std::size_t alignment) override {
        if (!IsLarge(bytes) || alignment > kLargePage) {
            std::pmr::new_delete_resource()->deallocate(block, bytes, alignment);
        } else {
            munmap(block, RoundedUp(bytes));
        }
    }
    bool do_is_equal(const memory_resource& other) const noexcept override {
        return this == &other;
    }
};

}  // namespace

std::pmr::memory_resource& LargePageMemory() {
    // Never destroyed: lists in static variables may still hold memory at the very end.
    static auto* const resource = new LargePageResource;
    return *resource;
}

}  // namespace orlo
