#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "core/Text.h"

namespace orlo {

struct NoCaseHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return HashNoCase(text); }
};
struct NoCaseEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return EqualNoCase(a, b); }
};

// A keyed collection: keys compare without regard to case, and adding a duplicate key is refused, so the
// first value of a key stays.
template <typename Value>
class KeyedIndex {
  public:
    // False when the key stands already; its value is then untouched.
    bool Add(std::string_view key, Value value) {
        return entries_.try_emplace(std::string(key), std::move(value)).second;
    }

    // Null when missing. The pointer holds until the next Add, Remove or Clear.
    const Value* Find(std::string_view key) const {
        const auto found = entries_.find(key);
        return found == entries_.end() ? nullptr : &found->second;
    }
    Value* Find(std::string_view key) {
        const auto found = entries_.find(key);
        return found == entries_.end() ? nullptr : &found->second;
    }

    bool Contains(std::string_view key) const { return Find(key) != nullptr; }
    bool Remove(std::string_view key) {
        const auto found = entries_.find(key);
        if (found == entries_.end()) return false;
        entries_.erase(found);
        return true;
    }
    void Reserve(std::size_t count) { entries_.reserve(count); }
    void Clear() { entries_.clear(); }
    std::size_t Count() const { return entries_.size(); }

  private:
    std::unordered_map<std::string, Value, NoCaseHash, NoCaseEqual> entries_;
};

}  // namespace orlo
