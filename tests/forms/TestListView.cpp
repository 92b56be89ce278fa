#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <random>

#include "core/Text.h"
#include "forms/MainForm.h"

namespace orlo {
namespace {

// A list, and beside it the same list with a string for each text and every rule in its plainest form.
class TwoLists {
  public:
    explicit TwoLists(unsigned seed) : random_(seed) {}

    void Step() {
        const std::size_t action = rows_.empty() ? 0 : Draw(20);
        if (action < 9) return AddRow();
        if (action < 11) return RemoveSome();
        if (action < 14) return ChangeText();
        if (action == 14) return ChangeKey();
        if (action == 15) return ClickColumn();
        if (action == 16) return ToggleSorting();
        if (action == 17) return ToggleColumn();
        if (action == 18) return SelectOne();
        if (Draw(30) != 0) return;
        list_.Clear();
        Clear();
    }

    void Compare() {
        ASSERT_EQ(list_.Count(), static_cast<std::int32_t>(rows_.size()));
        ASSERT_EQ(list_.current, current_);
        ASSERT_EQ(list_.sortColumn, static_cast<std::int32_t>(sortColumn_));
        std::vector<std::int32_t> selected;
        for (std::int32_t position = 0; position < list_.Count(); ++position) {
            const Row& row = rows_[static_cast<std::size_t>(position)];
            const std::int32_t place = list_.PlaceAt(position);
            ASSERT_EQ(place, row.place);
            ASSERT_EQ(list_.PositionOf(place), position);
            ASSERT_EQ(Concat(list_.Key(place), '|', list_.Tag(place), '|', list_.ToolTip(place)),
                      Concat(row.row.key, '|', row.row.tag, '|', row.row.toolTip));
            ASSERT_EQ(list_.RowColour(place), row.row.colour);
            for (std::size_t column = 0; column < columnCount_; ++column) {
                ASSERT_EQ(list_.Text(place, static_cast<std::int32_t>(column)), row.row.texts[column]);
            }
            ASSERT_EQ(list_.FindKey(row.row.key), row.row.key.empty() ? -1 : place);
            if (row.selected) selected.push_back(place);
        }
        ASSERT_EQ(list_.SelectedPlaces(), selected);
    }

  private:
    struct Row {
        std::int32_t place;
        ListRow row;
        bool selected = false;
    };

    std::size_t Draw(std::size_t below) { return random_() % below; }
    std::string SomeText() {
        using namespace std::string_view_literals;
        static const auto kParts =
            SplitText("|a|A|b|lufthansa|LUFTHANSA|lufthansa cargo|\xE4|\xC4|zz|\0"sv, '|');
        const std::string_view start = kParts[Draw(kParts.size())], end = kParts[Draw(3)];
        return Draw(6) == 0 ? std::string(130 + 170 * Draw(2), 'x').append(end) : Concat(start, end);
    }
    std::string SomeKey() { return Draw(8) == 0 ? "" : Concat(Draw(2) == 0 ? "#k" : "#K", Draw(40)); }
    Row& SomeRow() { return rows_[Draw(rows_.size())]; }

    bool Before(const Row& a, const Row& b) const {
        const int order = CompareNoCase(a.row.texts[sortColumn_], b.row.texts[sortColumn_]);
        return ascending_ ? order < 0 : order > 0;
    }
    void Sort() {
        std::stable_sort(rows_.begin(), rows_.end(),
                         [&](const Row& a, const Row& b) { return Before(a, b); });
    }
    void Clear() {
        rows_.clear();
        current_ = -1;
        nextPlace_ = 0;
    }
    std::int32_t FindKey(std::string_view key) const {
        for (const Row& row : rows_) {
            if (!key.empty() && EqualNoCase(row.row.key, key)) return row.place;
        }
        return -1;
    }

    void AddRow() {
        ListRow row{SomeKey(), SomeText(), SomeText(), Draw(2) == 0 ? Colour::Red : Colour::Blue, {}};
        for (std::size_t count = Draw(columnCount_ + 1); count > 0; --count) row.texts.push_back(SomeText());
        const std::int32_t added = list_.Add(row);
        const bool stands = FindKey(row.key) >= 0;
        ASSERT_EQ(added, stands ? -1 : nextPlace_);
        if (stands) return;
        row.texts.resize(columnCount_);
        const Row plain{nextPlace_++, row, rows_.empty()};
        if (rows_.empty()) current_ = plain.place;
        const auto behind = [&](const Row& other) { return sorted_ && Before(plain, other); };
        rows_.insert(std::find_if(rows_.begin(), rows_.end(), behind), plain);
    }
    void RemoveSome() {
        std::vector<std::int32_t> places;
        for (std::size_t count = 1 + Draw(4); count > 0; --count) places.push_back(SomeRow().place);
        list_.Remove(places);
        for (const std::int32_t place : places) {
            const auto at =
                std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) { return row.place == place; });
            if (at == rows_.end()) continue;
            const auto next = rows_.erase(at);
            if (rows_.empty()) return Clear();
            if (current_ == place) current_ = next != rows_.end() ? next->place : rows_.back().place;
        }
    }
    void ChangeText() {
        Row& row = SomeRow();
        const std::size_t column = Draw(columnCount_);
        row.row.texts[column] = SomeText();
        list_.SetText(row.place, static_cast<std::int32_t>(column), row.row.texts[column]);
        if (!sorted_ || column != sortColumn_) return;
        list_.Sort();
        Sort();
    }
    void ChangeKey() {
        Row& row = SomeRow();
        const std::string key = SomeKey();
        const std::int32_t holder = FindKey(key);
        const bool free = holder < 0 || holder == row.place;
        ASSERT_EQ(list_.SetKey(row.place, key), free);
        if (free) row.row.key = key;
    }
    void ClickColumn() {
        const std::size_t column = Draw(columnCount_);
        list_.SortByColumn(static_cast<std::int32_t>(column));
        ascending_ = sorted_ && sortColumn_ == column ? !ascending_ : true;
        sortColumn_ = column;
        sorted_ = true;
        Sort();
    }
    void ToggleSorting() {
        sorted_ = !sorted_;
        list_.SwitchSorting(sorted_);
        if (sorted_) Sort();
    }
    void ToggleColumn() {
        if (columnCount_ == 3) {
            list_.AddColumn(Concat("Added", nextColumn_++), "Added");
            ++columnCount_;
        } else {
            const std::size_t gone = Draw(columnCount_--);
            list_.RemoveColumn(UpperText(list_.columns[gone].key));
            for (Row& row : rows_) row.row.texts.erase(row.row.texts.begin() + static_cast<int>(gone));
            if (sortColumn_ == gone) sortColumn_ = 0;
            if (sortColumn_ > gone) --sortColumn_;
            if (sorted_) list_.Sort();
            if (sorted_) Sort();
        }
        for (Row& row : rows_) row.row.texts.resize(columnCount_);
    }
    void SelectOne() {
        Row& row = SomeRow();
        row.selected = Draw(2) == 0;
        list_.Select(row.place, row.selected);
        list_.current = current_ = SomeRow().place;
    }

    MainForm form_;
    ListView& list_ = form_.lvProject;
    std::vector<Row> rows_;  // as displayed
    std::size_t columnCount_ = 3;
    int nextColumn_ = 0;
    std::int32_t current_ = -1;
    std::int32_t nextPlace_ = 0;
    bool sorted_ = false;
    std::size_t sortColumn_ = 0;
    bool ascending_ = true;
    std::mt19937 random_;
};

TEST(ListView, GivesTheRowsOrderAndSelectionOfAPlainList) {
    for (unsigned seed = 1; seed < 9; ++seed) {
        TwoLists lists(seed);
        for (int step = 0; step < 1000; ++step) {
            ASSERT_NO_FATAL_FAILURE(lists.Step()) << "seed " << seed << " step " << step;
            ASSERT_NO_FATAL_FAILURE(lists.Compare()) << "seed " << seed << " step " << step;
        }
    }
}

TEST(ListView, ChangedTextsDoNotPileUp) {
    MainForm form;
    ListView& list = form.lvProject;
    ListRow row;
    row.texts = {std::string(100, 'a'), "x", "y"};
    for (int i = 0; i < 1000; ++i) list.Add(row);
    for (int round = 0; round < 200; ++round) {
        for (std::int32_t place = 0; place < list.Count(); ++place) {
            list.SetText(place, 1, std::string(static_cast<std::size_t>(round % 7), 'b'));
        }
    }
    EXPECT_LT(list.MemoryBytes(), 6u * 1024 * 1024);
}

// Rows of texts in memory, as a source of a list.
struct TableSource : RowSource {
    std::vector<std::vector<std::string>> rows;

    void AppendText(std::int32_t row, std::int32_t column, std::string& out) const override {
        out.append(rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
    }
};

std::vector<std::int32_t> DisplayedPlaces(const ListView& list) {
    std::vector<std::int32_t> places;
    for (std::int32_t position = 0; position < list.Count(); ++position)
        places.push_back(list.PlaceAt(position));
    return places;
}

TEST(ListView, PackedRowsAndThoseOfASourceSortAlikeInBothDirections) {
    std::mt19937 random(1);
    const auto draw = [&](std::size_t below) { return static_cast<std::size_t>(random() % below); };
    const auto shout = [&](std::string text) { return draw(2) == 0 ? UpperText(text) : text; };
    const struct {
        const char* name;
        std::function<std::string()> text;
        std::size_t most = 2000;  // rows
    } kinds[] = {
        {"few texts", [&] { return shout(Concat("airline ", draw(20))); }},
        {"texts that come twice or thrice", [&] { return shout(Concat("d-a", draw(1000))); }},
        {"more texts than are worth sharing", [&] { return shout(Concat("n", draw(80000))); }, 40000},
        {"all one text", [&] { return shout("week"); }},
        {"long beginnings that are equal",
         [&] { return std::string(500, 'x') + shout(Concat("e", draw(900))); }},
        {"prefixes of each other", [&] { return shout(std::string(draw(40), 'a')); }},
        {"any bytes", [&] { return std::string(draw(12), static_cast<char>(draw(256))); }},
    };
    for (const auto& kind : kinds) {
        for (const std::size_t rows : {std::size_t{0}, std::size_t{1}, std::size_t{3}, kind.most}) {
            SCOPED_TRACE(Concat(kind.name, ", rows: ", rows));
            MainForm form;
            ListView& packed = form.lvProject;
            ListView& drawn = form.lvExPreview;
            auto source = std::make_shared<TableSource>();
            for (std::size_t i = 0; i < rows; ++i) {
                source->rows.push_back({kind.text(), std::to_string(draw(3))});
                packed.Add({"", "", "", Colour::WindowText, source->rows.back()});
            }
            drawn.ShowSource(source, static_cast<std::int32_t>(rows));
            std::vector<std::int32_t> expected = DisplayedPlaces(drawn);
            for (const std::int32_t column : {1, 0, 0, 1, 0}) {
                packed.SortByColumn(column);
                drawn.SortByColumn(column);
                std::stable_sort(expected.begin(), expected.end(), [&](std::int32_t a, std::int32_t b) {
                    const int order = CompareNoCase(drawn.Text(a, column), drawn.Text(b, column));
                    return drawn.ascending ? order < 0 : order > 0;
                });
                ASSERT_EQ(DisplayedPlaces(packed), expected);
                ASSERT_EQ(DisplayedPlaces(drawn), expected);
            }
        }
    }
}

TEST(ListView, RowsOfASourceAreAddedFoundSelectedAndRemoved) {
    MainForm form;
    ListView& list = form.lvExPreview;
    auto source = std::make_shared<TableSource>();
    for (const char* text : {"c", "B", "d", "a", "b"}) source->rows.push_back({text});
    list.Add({"#old", "", "", Colour::Red, {"old"}});
    list.sorted = true;
    list.ShowSource(source, 4);
    EXPECT_EQ(DisplayedPlaces(list), (std::vector<std::int32_t>{3, 1, 0, 2}));
    EXPECT_EQ(list.current, 0);
    EXPECT_EQ(list.SelectedPlaces(), std::vector<std::int32_t>{0});
    EXPECT_EQ(list.AddSourceRow(), 4);
    EXPECT_EQ(DisplayedPlaces(list), (std::vector<std::int32_t>{3, 1, 4, 0, 2}));
    EXPECT_EQ(list.Key(4) + list.Tag(4) + list.ToolTip(4) + list.Text(4, 0), "#44b");

    EXPECT_FALSE(list.SetKey(4, "#new"));
    EXPECT_EQ(list.Add({"#x", "", "", Colour::Red, {"x"}}), -1);
    list.SetText(4, 0, "z");
    EXPECT_EQ(list.Text(4, 0), "b");
    const std::int64_t revision = list.contentRevision;
    source->rows[4][0] = "z";
    list.SourceChanged();
    EXPECT_GT(list.contentRevision, revision);
    EXPECT_EQ(list.Text(4, 0), "z");
    EXPECT_EQ(list.PositionOf(4), 2);

    const PositionRange ranges[] = {{-3, 0}, {4, 9}};
    list.SelectOnly(ranges);
    EXPECT_EQ(list.SelectedPlaces(), (std::vector<std::int32_t>{3, 2}));
    const PositionRange middle[] = {{1, 3}};
    list.SelectOnly(middle);
    EXPECT_EQ(list.SelectedPlaces(), (std::vector<std::int32_t>{1, 4, 0}));
    list.Remove(list.SelectedPlaces());
    EXPECT_EQ(DisplayedPlaces(list), (std::vector<std::int32_t>{3, 2}));
    EXPECT_EQ(list.current, 2);
    for (const char* key :
         {"", "#", "#0", "#02", "#2 ", "# 2", "#+2", "#2.0", "#-1", "#5", "2", "#99999999999"})
        EXPECT_EQ(list.FindKey(key), -1) << key;
    EXPECT_EQ(list.FindKey("#2"), 2);

    const std::int32_t rest[] = {2, 3};
    list.Remove(rest);
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.current, -1);
    source->rows.push_back({"e"});
    EXPECT_EQ(list.AddSourceRow(), 5);
    EXPECT_EQ(list.current, 5);
    EXPECT_TRUE(list.Selected(5));
    list.Sort();
    EXPECT_EQ(DisplayedPlaces(list), std::vector<std::int32_t>{5});

    list.Clear();
    EXPECT_EQ(source.use_count(), 1);
    EXPECT_EQ(list.AddSourceRow(), -1);
    EXPECT_EQ(list.Add({"#x", "", "", Colour::Red, {"x"}}), 0);
    EXPECT_EQ(list.FindKey("#X"), 0);
}

}  // namespace
}  // namespace orlo
