#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orlo {

// Appends a text behind its length. A length has seven bits a byte, the low ones first; all its bytes but the
// last have the high bit set.
void AppendField(std::string& out, std::string_view text);

// Walks the fields of a packed row; past the last one all are empty.
class PackedReader {
  public:
    explicit PackedReader(std::string_view row) : rest_(row) {}
    bool AtEnd() const { return rest_.empty(); }
    std::string_view Next();

  private:
    std::string_view rest_;
};

// The field at `index`, counted from 0; empty past the last one.
std::string_view FieldAt(std::string_view row, std::size_t index);

// Bytes in large pages that never move, so that growing copies nothing.
class BytePages {
  public:
    char* Add(std::string_view bytes);
    void Clear();
    std::size_t Bytes() const { return allocated_; }

  private:
    std::vector<std::unique_ptr<char[]>> pages_;
    char* at_ = nullptr;
    std::size_t left_ = 0;
    std::size_t allocated_ = 0;
};

}  // namespace orlo
