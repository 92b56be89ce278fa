#include <algorithm>
#include <array>
#include <functional>
#include <memory_resource>

#include "core/PlaceIndex.h"
#include "core/Text.h"
#include "forms/ListView.h"

namespace orlo {
namespace {

// Numbers texts, case folded. Equal ones share a number, so that columns of few different texts sort fast;
// once too many differ, each further text gets a number of its own. This changes the time alone, not the
// order.
class TextNumbers {
  public:
    explicit TextNumbers(std::size_t rows) {
        texts_.reserve(rows);
        for (std::size_t i = 0; i < fold_.size(); ++i) fold_[i] = UpperChar(static_cast<char>(i));
    }

    // Folds the text in place. At most once a row.
    std::uint32_t NumberOf(std::string& text) {
        for (char& character : text) character = fold_[static_cast<unsigned char>(character)];
        shares_ = shares_ && texts_.size() < kFewTexts + rowsSeen_++ / kRowsPerText;
        if (!shares_) return Add(text);
        const auto next = static_cast<std::int32_t>(texts_.size());
        const std::int32_t number =
            index_.FindOrAdd(std::hash<std::string_view>()(text), next,
                             [&](std::int32_t at) { return texts_[static_cast<std::size_t>(at)] == text; });
        return number == next ? Add(text) : static_cast<std::uint32_t>(number);
    }
    // By number.
    const std::pmr::vector<std::string_view>& Texts() const { return texts_; }

  private:
    static constexpr std::size_t kFewTexts = 16 * 1024;
    static constexpr std::size_t kRowsPerText = 4;

    std::uint32_t Add(std::string_view text) {
        auto* const bytes = static_cast<char*>(memory_.allocate(text.size(), 1));
        text.copy(bytes, text.size());
        texts_.emplace_back(bytes, text.size());
        return static_cast<std::uint32_t>(texts_.size() - 1);
    }

    std::array<char, 256> fold_;
    bool shares_ = true;
    std::size_t rowsSeen_ = 0;
    PlaceIndex index_;
    std::pmr::monotonic_buffer_resource memory_;
    std::pmr::vector<std::string_view> texts_;
};

// Texts are compared seven characters at a time, so that each text is read once a chunk and not once a
// comparison.
constexpr std::size_t kChunkCharacters = 7;
constexpr std::uint64_t kGoesOn = kChunkCharacters + 1;

struct SortEntry {
    std::uint64_t chunk;   // characters from the high byte down; in the low byte their count, or kGoesOn
    std::uint32_t number;  // of the text
    bool differs;          // from the one in front
};

// Entries of texts that are equal up to the present depth.
struct SortRange {
    std::size_t begin;
    std::size_t end;
};

std::uint64_t ChunkOf(std::string_view text) {
    const std::size_t count = std::min(text.size(), kChunkCharacters);
    std::uint64_t chunk = 0;
    for (std::size_t i = 0; i < count; ++i) {
        chunk |= static_cast<std::uint64_t>(static_cast<unsigned char>(text[i])) << (56 - 8 * i);
    }
    return chunk | (text.size() > kChunkCharacters ? kGoesOn : count);
}

bool GoesOn(std::uint64_t chunk) {
    return (chunk & 0xFF) == kGoesOn;
}

// A range that is in order already, as one of texts that begin alike, takes one pass.
void SortByChunk(SortEntry* begin, SortEntry* end) {
    const auto before = [](const SortEntry& a, const SortEntry& b) { return a.chunk < b.chunk; };
    if (!std::is_sorted(begin, end, before)) std::sort(begin, end, before);
}

// Sorts a range by its chunks, marks which texts differ from the one in front, and adds what is still open.
void SortRangeByChunk(SortEntry* entries, const SortRange& range, std::pmr::vector<SortRange>& open) {
    SortByChunk(entries + range.begin, entries + range.end);
    for (std::size_t first = range.begin, next = 0; first < range.end; first = next) {
        const std::uint64_t chunk = entries[first].chunk;
        entries[first].differs = true;
        for (next = first + 1; next < range.end && entries[next].chunk == chunk; ++next)
            entries[next].differs = false;
        if (next - first > 1 && GoesOn(chunk)) open.push_back({first, next});
    }
}

// All chunks at one depth are read before any is sorted: the texts lie scattered in memory, and so many of
// them are fetched at a time.
std::pmr::vector<SortEntry> SortedTexts(const std::pmr::vector<std::string_view>& texts) {
    std::pmr::vector<SortEntry> entries(texts.size());
    for (std::size_t i = 0; i < entries.size(); ++i) entries[i].number = static_cast<std::uint32_t>(i);
    std::pmr::vector<SortRange> ranges = {{0, entries.size()}};
    std::pmr::vector<SortRange> open;
    for (std::size_t skip = 0; !ranges.empty(); skip += kChunkCharacters) {
        for (const SortRange& range : ranges) {
            for (std::size_t i = range.begin; i < range.end; ++i)
                entries[i].chunk = ChunkOf(texts[entries[i].number].substr(skip));
        }
        open.clear();
        for (const SortRange& range : ranges) SortRangeByChunk(entries.data(), range, open);
        ranges.swap(open);
    }
    return entries;
}

// The rank of each text in the sorted order, by its number; equal texts have one rank.
struct TextRanks {
    std::pmr::vector<std::uint32_t> rankOf;
    std::uint32_t count = 0;
};

TextRanks RanksOf(const std::pmr::vector<std::string_view>& texts, bool ascending) {
    TextRanks ranks;
    ranks.rankOf.resize(texts.size());
    const std::pmr::vector<SortEntry> entries = SortedTexts(texts);
    for (const SortEntry& entry : entries) {
        if (entry.differs) ++ranks.count;
        ranks.rankOf[entry.number] = ranks.count - 1;
    }
    if (!ascending) {
        for (std::uint32_t& rank : ranks.rankOf) rank = ranks.count - 1 - rank;
    }
    return ranks;
}

}  // namespace

// The texts are made in the order of places, side by side in their source; the rows are then put in the order
// of the ranks of their texts, in one pass that keeps the order of equal ones.
void ListView::Sort() {
    sorted = true;
    TextNumbers numbers(order_.size());
    std::pmr::vector<std::uint32_t> rowRanks(slots_.size());
    std::string text;
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        if (!slots_[i].stands) continue;
        text.clear();
        AppendText(static_cast<std::int32_t>(i), sortColumn, text);
        rowRanks[i] = numbers.NumberOf(text);
    }
    const TextRanks ranks = RanksOf(numbers.Texts(), ascending);
    std::pmr::vector<std::uint32_t> starts(ranks.count + 1u);
    for (std::size_t i = 0; i < slots_.size(); ++i) {
        if (!slots_[i].stands) continue;
        rowRanks[i] = ranks.rankOf[rowRanks[i]];
        ++starts[rowRanks[i] + 1];
    }
    for (std::size_t i = 1; i < starts.size(); ++i) starts[i] += starts[i - 1];
    std::vector<std::int32_t> order(order_.size());
    for (const std::int32_t place : order_)
        order[starts[rowRanks[static_cast<std::size_t>(place)]]++] = place;
    order_.swap(order);
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

void ListView::ForgetSorting() {
    sorted = false;
    sortColumn = 0;
    ascending = true;
}

// Behind equal ones; `place` itself isn't displayed yet.
std::size_t ListView::SortedPosition(std::int32_t place) const {
    const std::string text = Text(place, sortColumn);
    std::string other;
    const auto goesBefore = [&](std::string_view added, std::int32_t displayed) {
        other.clear();
        AppendText(displayed, sortColumn, other);
        const int order = CompareNoCase(added, other);
        return ascending ? order < 0 : order > 0;
    };
    return static_cast<std::size_t>(
        std::upper_bound(order_.begin(), order_.end(), std::string_view(text), goesBefore) - order_.begin());
}

}  // namespace orlo
