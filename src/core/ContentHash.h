#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "services/FileSystem.h"

namespace orlo {

// A number that equal contents have in common and different ones, but by rare chance, not. It takes the bytes
// in pieces, of which it doesn't depend, at a small part of the time that reading them takes.
class ContentHash {
  public:
    void Add(std::string_view bytes);
    std::uint64_t Value() const;

  private:
    static constexpr std::size_t kBlock = 32;

    void Mix(const char* block);

    // Of their own, so that the processor works on all at once.
    std::array<std::uint64_t, kBlock / sizeof(std::uint64_t)> lanes_{};
    std::array<char, kBlock> rest_{};  // not yet a block
    std::size_t restSize_ = 0;
    std::uint64_t size_ = 0;
};

// A file that is hashed while it is read.
class HashedInput final : public InputFile {
  public:
    explicit HashedInput(InputFile& file) : file_(file) {}

    std::size_t Read(std::span<char> buffer) override {
        const std::size_t count = file_.Read(buffer);
        hash_.Add({buffer.data(), count});
        return count;
    }
    std::uint64_t Size() const override { return file_.Size(); }

    std::uint64_t Hash() const { return hash_.Value(); }  // of what was read so far

  private:
    InputFile& file_;
    ContentHash hash_;
};

std::uint64_t HashOf(std::string_view bytes);

}  // namespace orlo
