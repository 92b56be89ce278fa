#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <random>

#include "core/Text.h"
#include "forms/MainForm.h"

namespace orlo {
namespace {

// The same list with a string for each text, every rule in its plainest form.
struct PlainRow {
    std::int32_t place;
    ListRow row;
    bool selected = false;
};

class PlainList {
  public:
    std::vector<PlainRow> rows;  // as displayed
    std::size_t columnCount = 3;
    std::int32_t current = -1;
    std::int32_t nextPlace = 0;
    bool sorted = false;
    std::size_t sortColumn = 0;
    bool ascending = true;

    std::int32_t PositionOf(std::int32_t place) const {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (rows[i].place == place) return static_cast<std::int32_t>(i);
        }
        return -1;
    }
    PlainRow& At(std::int32_t place) { return rows[static_cast<std::size_t>(PositionOf(place))]; }
    std::int32_t FindKey(std::string_view key) const {
        for (const PlainRow& row : rows) {
            if (!key.empty() && EqualNoCase(row.row.key, key)) return row.place;
        }
        return -1;
    }
    bool Before(const PlainRow& a, const PlainRow& b) const {
        const int order = CompareNoCase(a.row.texts[sortColumn], b.row.texts[sortColumn]);
        return ascending ? order < 0 : order > 0;
    }
    std::int32_t Add(ListRow row) {
        if (FindKey(row.key) >= 0) return -1;
        row.texts.resize(columnCount);
        PlainRow added{nextPlace, row, rows.empty()};
        auto at = rows.end();
        if (sorted)
            at = std::find_if(rows.begin(), rows.end(), [&](const auto& r) { return Before(added, r); });
        if (rows.empty()) current = nextPlace;
        rows.insert(at, added);
        return nextPlace++;
    }
    void Remove(std::int32_t place) {
        const std::int32_t position = PositionOf(place);
        if (position < 0) return;
        rows.erase(rows.begin() + position);
        if (rows.empty()) return Clear();
        const auto last = static_cast<std::int32_t>(rows.size()) - 1;
        if (current == place) current = rows[static_cast<std::size_t>(std::min(position, last))].place;
    }
    void Clear() {
        rows.clear();
        current = -1;
        nextPlace = 0;
    }
    void Sort() {
        sorted = true;
        std::stable_sort(rows.begin(), rows.end(),
                         [&](const auto& a, const auto& b) { return Before(a, b); });
    }
};

class ListViewAgainstPlainList : public ::testing::TestWithParam<unsigned> {
  protected:
    MainForm form;
    ListView& list = form.lvProject;
    PlainList plain;
    std::mt19937 random{GetParam()};

    std::size_t Draw(std::size_t below) { return random() % below; }

    std::string SomeText() {
        static const std::vector<std::string> kParts = {"",
                                                        "a",
                                                        "A",
                                                        "b",
                                                        "lufthansa",
                                                        "LUFTHANSA",
                                                        "lufthansa cargo",
                                                        "\xE4",
                                                        "\xC4",
                                                        "zz",
                                                        std::string(1, '\0'),
                                                        std::string(130, 'x'),
                                                        std::string(300, 'X') + "y"};
        return kParts[Draw(kParts.size())] + kParts[Draw(3)];
    }
    std::string SomeKey() {
        if (Draw(8) == 0) return "";
        return Concat(Draw(2) == 0 ? "#k" : "#K", Draw(40));
    }
    std::int32_t SomePlace() { return plain.rows[Draw(plain.rows.size())].place; }

    void AddRow() {
        ListRow row{SomeKey(), SomeText(), SomeText(), Draw(2) == 0 ? Colour::Red : Colour::Blue, {}};
        for (std::size_t count = Draw(plain.columnCount + 1); count > 0; --count)
            row.texts.push_back(SomeText());
        ASSERT_EQ(list.Add(row), plain.Add(row));
    }
    void RemoveSome() {
        std::vector<std::int32_t> places;
        for (std::size_t count = 1 + Draw(4); count > 0; --count) places.push_back(SomePlace());
        list.Remove(places);
        for (const std::int32_t place : places) plain.Remove(place);
    }
    void ChangeText() {
        const std::int32_t place = SomePlace();
        const std::size_t column = Draw(plain.columnCount);
        const std::string text = SomeText();
        list.SetText(place, static_cast<std::int32_t>(column), text);
        plain.At(place).row.texts[column] = text;
        if (plain.sorted && column == plain.sortColumn) {
            list.Sort();
            plain.Sort();
        }
    }
    void ChangeKey() {
        const std::int32_t place = SomePlace();
        const std::string key = SomeKey();
        const std::int32_t holder = plain.FindKey(key);
        const bool free = holder < 0 || holder == place;
        ASSERT_EQ(list.SetKey(place, key), free);
        if (free) plain.At(place).row.key = key;
    }
    void ClickColumn() {
        const std::size_t column = Draw(plain.columnCount);
        list.SortByColumn(static_cast<std::int32_t>(column));
        plain.ascending = plain.sorted && plain.sortColumn == column ? !plain.ascending : true;
        plain.sortColumn = column;
        plain.Sort();
    }
    void ToggleSorting() {
        const bool on = !plain.sorted;
        list.SwitchSorting(on);
        plain.sorted = on;
        if (on) plain.Sort();
    }
    void ToggleColumn() {
        if (plain.columnCount == 3) {
            list.AddColumn("ERROR", "Errors");
            plain.columnCount = 4;
            for (PlainRow& row : plain.rows) row.row.texts.emplace_back();
        } else if (plain.sortColumn != 3) {
            list.RemoveColumn("error");
            plain.columnCount = 3;
            for (PlainRow& row : plain.rows) row.row.texts.pop_back();
        }
    }
    void SelectOne() {
        const std::int32_t place = SomePlace();
        const bool on = Draw(2) == 0;
        list.Select(place, on);
        plain.At(place).selected = on;
        list.current = plain.current = SomePlace();
    }

    void Step() {
        const std::size_t action = plain.rows.empty() ? 0 : Draw(20);
        if (action < 9) return AddRow();
        switch (action) {
            case 9:
            case 10:
                return RemoveSome();
            case 11:
            case 12:
            case 13:
                return ChangeText();
            case 14:
                return ChangeKey();
            case 15:
                return ClickColumn();
            case 16:
                return ToggleSorting();
            case 17:
                return ToggleColumn();
            case 18:
                return SelectOne();
            default:
                if (Draw(30) != 0) return;
                list.Clear();
                plain.Clear();
        }
    }

    void Compare() {
        ASSERT_EQ(list.Count(), static_cast<std::int32_t>(plain.rows.size()));
        ASSERT_EQ(list.current, plain.current);
        std::vector<std::int32_t> selected;
        for (std::int32_t position = 0; position < list.Count(); ++position) {
            const PlainRow& row = plain.rows[static_cast<std::size_t>(position)];
            const std::int32_t place = list.PlaceAt(position);
            ASSERT_EQ(place, row.place);
            ASSERT_EQ(list.PositionOf(place), position);
            ASSERT_EQ(list.Key(place), row.row.key);
            ASSERT_EQ(list.Tag(place), row.row.tag);
            ASSERT_EQ(list.ToolTip(place), row.row.toolTip);
            ASSERT_EQ(list.RowColour(place), row.row.colour);
            for (std::size_t column = 0; column < plain.columnCount; ++column) {
                ASSERT_EQ(list.Text(place, static_cast<std::int32_t>(column)), row.row.texts[column]);
            }
            ASSERT_EQ(list.FindKey(row.row.key), row.row.key.empty() ? -1 : place);
            if (row.selected) selected.push_back(place);
        }
        ASSERT_EQ(list.SelectedPlaces(), selected);
    }
};

TEST_P(ListViewAgainstPlainList, GivesTheSameRowsOrderAndSelection) {
    for (int step = 0; step < 1500; ++step) {
        ASSERT_NO_FATAL_FAILURE(Step()) << "step " << step;
        ASSERT_NO_FATAL_FAILURE(Compare()) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ListViewAgainstPlainList, ::testing::Range(1u, 9u));

TEST(ListView, KeysAreFoundAfterManyRemovals) {
    MainForm form;
    ListView& list = form.lvProject;
    std::vector<std::int32_t> odd;
    for (std::int32_t i = 0; i < 5000; ++i) {
        ListRow row;
        row.key = Concat("#", i);
        ASSERT_EQ(list.Add(row), i);
        if (i % 2 == 1) odd.push_back(i);
    }
    list.Remove(odd);
    for (std::int32_t i = 0; i < 5000; ++i) {
        ASSERT_EQ(list.FindKey(Concat("#", i)), i % 2 == 1 ? -1 : i);
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
    EXPECT_EQ(list.Text(999, 0), std::string(100, 'a'));
    EXPECT_EQ(list.Text(999, 1), "bbb");
    EXPECT_EQ(list.Text(0, 2), "y");
}

TEST(ListView, TheSortColumnMovesWithRemovedColumns) {
    MainForm form;
    ListView& list = form.lvProject;
    list.Add({"", "", "", Colour::WindowText, {"b", "1", "x"}});
    list.Add({"", "", "", Colour::WindowText, {"a", "2", "w"}});
    list.SortByColumn(2);
    EXPECT_EQ(list.PlaceAt(0), 1);
    list.RemoveColumn("FLIGHTPLAN");
    EXPECT_EQ(list.sortColumn, 1);
    EXPECT_EQ(list.Text(1, list.sortColumn), "w");
    list.RemoveColumn("AIRCRAFT FILE");
    EXPECT_EQ(list.sortColumn, 0);
    EXPECT_EQ(list.Text(1, 1), "");
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
    EXPECT_EQ(list.Key(4), "#4");
    EXPECT_EQ(list.Tag(4), "4");
    EXPECT_EQ(list.ToolTip(4), "");
    EXPECT_EQ(list.RowColour(0), Colour::WindowText);
    EXPECT_EQ(list.Text(4, 0), "b");

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

    const PositionRange middle = {1, 3};
    list.SelectOnly(std::span(&middle, 1));
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
