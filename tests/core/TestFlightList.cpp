#include "core/FlightList.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

namespace orlo {
namespace {

Flight MakeFlight(int number, int legs) {
    const std::string text = std::to_string(number);
    Flight flight{"AC#" + text, "N" + text, "50%", "WEEK", "IFR", {}, false};
    for (int i = 0; i < legs; ++i) {
        const std::string leg = std::to_string(i);
        flight.Legs.push_back({"1/08:00:00", "1/09:00:00", i % 2 == 1, "310", "F", leg, "K" + leg});
    }
    return flight;
}

// Rows never move, so that shared ones stand at one place.
const char* RowOf(const FlightList& list, std::int32_t index) {
    return list.At(index).ACNumber.data();
}

TEST(FlightList, FlightsComeOutAsTheyWentIn) {
    Flight odd = MakeFlight(2, 2);
    odd.ACNumber = "AC#2,//;@";
    odd.TailNumber = "D-\xC4\xD6\xFF,\x80";
    odd.Percent = "";
    odd.Legs[0] = {"", "", true, ",", "@", "", ","};
    odd.Legs[1] = {"@1", "", false, "", "", std::string("\0", 1), ""};
    odd.Removed = true;
    Flight bare;
    Flight wide = MakeFlight(6, 2);  // each of these fields is more than the memory that is taken at first
    for (std::string* field : {&wide.ACNumber, &wide.TailNumber, &wide.Percent, &wide.Legs[0].DepartTime,
                               &wide.Legs[1].FlightNumber, &wide.Legs[1].Destination})
        field->assign(20000, 'x');
    FlightList list;
    const Flight flights[] = {MakeFlight(1, 3), odd, bare, MakeFlight(4, 0), MakeFlight(5, 1), wide};
    for (const Flight& flight : flights) list.Append(flight);
    ASSERT_EQ(list.Count(), 6);
    for (std::int32_t i = 0; i < list.Count(); ++i) EXPECT_EQ(list.Unpack(i), flights[i]) << i;
    EXPECT_EQ(list.At(0).StartAirport(), "K2");
    EXPECT_EQ(list.At(1).StartAirport(), "");
    EXPECT_EQ(list.At(2).StartAirport(), "");
    EXPECT_EQ(list.At(4).StartAirport(), "K0");
    EXPECT_EQ(list.Line(4), "AC#5,N5,50%,WEEK,IFR,1/08:00:00,1/09:00:00,310,F,0,K0");
}

// A line feed is the separator, and either would end the line in the file.
TEST(FlightList, ALineEndTypedIntoAFieldBecomesABlank) {
    Flight flight = MakeFlight(1, 1);
    flight.TailNumber = "N1\nX\r\n";
    flight.Legs[0].Destination = "\nEDDF";
    FlightList list;
    list.Append(flight);
    flight.TailNumber = "N1 X  ";
    flight.Legs[0].Destination = " EDDF";
    EXPECT_EQ(list.Unpack(0), flight);
    flight.Percent = "5\r";
    list.Append(flight);
    EXPECT_EQ(list.At(1).Percent, "5 ");
}

FlightList MakeList(int count) {
    FlightList list;
    for (int i = 0; i < count; ++i) list.Append(MakeFlight(i, i % 4));
    return list;
}

TEST(FlightList, CopiesShareRowsAndNeitherChangesNorMarksReachThem) {
    FlightList list = MakeList(1000);
    const FlightList snapshot = list;
    list.SetRemoved(0, true);
    EXPECT_TRUE(list.Removed(0) && list.At(0).Removed);
    EXPECT_FALSE(list.Removed(1) || snapshot.Removed(0));
    for (std::int32_t i : {0, 500}) EXPECT_EQ(RowOf(snapshot, i), RowOf(list, i));
    list.SetRemoved(0, false);
    EXPECT_EQ(list.Unpack(0), MakeFlight(0, 0));

    list.Replace(500, MakeFlight(9999, 1));
    list.Append(MakeFlight(1000, 2));
    list.Truncate(600);
    EXPECT_EQ(list.Unpack(500), MakeFlight(9999, 1));
    EXPECT_EQ(RowOf(list, 499), RowOf(snapshot, 499));
    list.Clear();
    EXPECT_TRUE(list.Empty());

    ASSERT_EQ(snapshot.Count(), 1000);
    for (std::int32_t i = 0; i < snapshot.Count(); ++i) ASSERT_EQ(snapshot.Unpack(i), MakeFlight(i, i % 4));
}

TEST(FlightList, ASelectionSharesRowsAndOutlivesItsList) {
    FlightList list = MakeList(2);
    list.SetRemoved(0, true);
    FlightList selection = list.Selection(std::vector<std::int32_t>{1, 0});
    EXPECT_EQ(RowOf(selection, 1), RowOf(list, 0));
    list = FlightList();
    selection.Append(MakeFlight(2, 1));
    Flight first = MakeFlight(0, 0);
    first.Removed = true;
    ASSERT_EQ(selection.Count(), 3);
    EXPECT_EQ(selection.Unpack(0), MakeFlight(1, 1));
    EXPECT_EQ(selection.Unpack(1), first);
    EXPECT_EQ(selection.Unpack(2), MakeFlight(2, 1));
}

// Gives every flight whose number divides by `step` a tail number of so many characters.
void RewriteEach(FlightList& list, int step, std::size_t characters) {
    const std::string tail(characters, 'X');
    list.Rewrite([&](std::int32_t index, const FlightView& flight, LentFlight& changed) {
        if (index % step != 0) return false;
        changed = flight;
        changed.TailNumber = tail;
        return true;
    });
}

TEST(FlightList, ARewriteChangesWhatIsToldAndSharesTheRest) {
    FlightList list = MakeList(1000);
    list.SetRemoved(0, true);
    const FlightList before = list;
    RewriteEach(list, 3, 40);
    for (std::int32_t i = 0; i < list.Count(); ++i) {
        Flight expected = MakeFlight(i, i % 4);
        if (i % 3 == 0) expected.TailNumber = std::string(40, 'X');
        expected.Removed = i == 0;
        ASSERT_EQ(list.Unpack(i), expected) << i;
        ASSERT_EQ(RowOf(list, i) == RowOf(before, i), i % 3 != 0) << i;
    }
    const auto failing = [&](std::int32_t index, const FlightView& flight, LentFlight& changed) {
        if (index == 500) throw std::bad_alloc();
        changed = flight;
        changed.Period = "1Hr";
        return true;
    };
    const FlightList rewritten = list;
    EXPECT_THROW(list.Rewrite(failing), std::bad_alloc);
    for (std::int32_t i = 0; i < list.Count(); ++i) ASSERT_EQ(RowOf(list, i), RowOf(rewritten, i)) << i;
}

// A plan that was corrected or edited again and again would hold the rows of all its earlier states.
TEST(FlightList, DeadRowsNeverOutweighTheLiveOnes) {
    FlightList list = MakeList(1000);
    FlightList snapshot;
    const auto expectFew = [&](const char* after) {
        ASSERT_LE(list.HeldBytes(), 2 * list.LiveBytes()) << after;
        ASSERT_LE(list.MemoryBytes(), 4 * list.LiveBytes() + 64 * 1024) << after;
        ASSERT_LE(snapshot.HeldBytes(), 2 * snapshot.LiveBytes()) << after;
        std::size_t live = 0;
        for (std::int32_t i = 0; i < list.Count(); ++i) live += RowBytes(list.Line(i).size());
        ASSERT_EQ(list.LiveBytes(), live) << after;
    };
    for (const int step : {1, 2, 1000, 3, 2, 1}) {
        for (std::size_t round = 0; round < 20; ++round) {
            snapshot = list;
            RewriteEach(list, step, round);
            expectFew("a rewrite");
        }
    }
    for (int i = 0; i < 3000; ++i) {
        if (i % 700 == 0) snapshot = list;
        list.Replace(i % 7, MakeFlight(i, 3));
        expectFew("an edit");
    }
    for (int count = 1000; count > 0; count -= 99) {
        list.Truncate(count);
        expectFew("a truncation");
    }
    list.Truncate(0);
    EXPECT_EQ(list.HeldBytes(), 0u);
}

}  // namespace
}  // namespace orlo
