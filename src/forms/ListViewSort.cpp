#include <algorithm>

#include "forms/ListView.h"

namespace orlo {
namespace {

// Texts are compared seven folded characters at a time, so that each text is read once a chunk and not once a
// comparison.
constexpr std::size_t kChunkCharacters = 7;
constexpr std::uint64_t kGoesOn = kChunkCharacters + 1;

struct SortEntry {
    std::uint64_t chunk;    // characters from the high byte down; in the low byte their count, or kGoesOn
    std::int32_t position;  // before sorting
    std::int32_t place;
};

struct SortRange {
    std::size_t begin;
    std::size_t end;
    std::size_t skip;  // characters in front that are all equal
};

std::uint64_t ChunkOf(std::string_view text) {
    const std::size_t count = std::min(text.size(), kChunkCharacters);
    std::uint64_t chunk = 0;
    for (std::size_t i = 0; i < count; ++i) {
        chunk |= static_cast<std::uint64_t>(static_cast<unsigned char>(UpperChar(text[i]))) << (56 - 8 * i);
    }
    return chunk | (text.size() > kChunkCharacters ? kGoesOn : count);
}

bool GoesOn(std::uint64_t chunk) {
    return (chunk & 0xFF) == kGoesOn;
}

void SortByChunk(SortEntry* begin, SortEntry* end, bool ascending) {
    std::sort(begin, end, [ascending](const SortEntry& a, const SortEntry& b) {
        if (a.chunk != b.chunk) return (a.chunk < b.chunk) == ascending;
        return a.position < b.position;
    });
}

}  // namespace

void ListView::Sort() {
    sorted = true;
    std::vector<SortEntry> entries;
    entries.reserve(order_.size());
    for (const std::int32_t place : order_) {
        entries.push_back({0, static_cast<std::int32_t>(entries.size()), place});
    }
    std::vector<SortRange> ranges = {{0, entries.size(), 0}};
    while (!ranges.empty()) {
        const SortRange range = ranges.back();
        ranges.pop_back();
        for (std::size_t i = range.begin; i < range.end; ++i) {
            entries[i].chunk = ChunkOf(Text(entries[i].place, sortColumn).substr(range.skip));
        }
        SortByChunk(entries.data() + range.begin, entries.data() + range.end, ascending);
        for (std::size_t first = range.begin, next = 0; first < range.end; first = next) {
            const std::uint64_t chunk = entries[first].chunk;
            next = first + 1;
            while (next < range.end && entries[next].chunk == chunk) ++next;
            if (next - first > 1 && GoesOn(chunk)) {
                ranges.push_back({first, next, range.skip + kChunkCharacters});
            }
        }
    }
    for (std::size_t i = 0; i < entries.size(); ++i) order_[i] = entries[i].place;
    ++orderRevision;
}

void ListView::SortByColumn(std::int32_t column) {
    ascending = sorted && column == sortColumn ? !ascending : true;
    sortColumn = column;
    Sort();
}

void ListView::SwitchSorting(bool on) {
    sorted = on;
    if (on) Sort();
}

std::size_t ListView::SortedPosition(std::string_view text) const {
    const auto goesBefore = [this](std::string_view added, std::int32_t place) {
        const int order = CompareNoCase(added, Text(place, sortColumn));
        return ascending ? order < 0 : order > 0;
    };
    return static_cast<std::size_t>(std::upper_bound(order_.begin(), order_.end(), text, goesBefore) -
                                    order_.begin());
}

}  // namespace orlo
