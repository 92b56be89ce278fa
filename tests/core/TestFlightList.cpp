#include "core/FlightList.h"

#include <gtest/gtest.h>

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

TEST(FlightList, FlightsComeOutAsTheyWentIn) {
    Flight odd = MakeFlight(2, 2);
    odd.ACNumber = "AC#2,//;@";
    odd.TailNumber = "D-\xC4\xD6\xFF,\x80";
    odd.Percent = "";
    odd.Legs[0] = {"", "", true, ",", "@", "", ","};
    odd.Legs[1] = {"@1", "", false, "", "", std::string("\0", 1), ""};
    odd.Removed = true;
    Flight bare;
    FlightList list;
    const Flight flights[] = {MakeFlight(1, 3), odd, bare, MakeFlight(4, 0), MakeFlight(5, 1)};
    for (const Flight& flight : flights) list.Append(flight);
    ASSERT_EQ(list.Count(), 5);
    for (std::int32_t i = 0; i < list.Count(); ++i) EXPECT_EQ(list.Unpack(i), flights[i]) << i;
    EXPECT_EQ(list.At(0).StartAirport(), "K2");
    EXPECT_EQ(list.At(1).StartAirport(), "");
    EXPECT_EQ(list.At(2).StartAirport(), "");
    EXPECT_EQ(list.At(4).StartAirport(), "K0");
    EXPECT_EQ(list.Row(4), "AC#5\nN5\n50%\nWEEK\nIFR\n1/08:00:00\n1/09:00:00\n310\nF\n0\nK0");
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
}

TEST(FlightList, TheRemovedMarkIsEachListsOwn) {
    FlightList list;
    list.Append(MakeFlight(1, 2));
    list.Append(MakeFlight(2, 2));
    FlightList copy = list;
    list.SetRemoved(0, true);
    EXPECT_TRUE(list.Removed(0));
    EXPECT_TRUE(list.At(0).Removed);
    EXPECT_FALSE(list.Removed(1));
    EXPECT_FALSE(copy.Removed(0));
    EXPECT_EQ(list.Row(0), copy.Row(0));
    list.SetRemoved(0, false);
    EXPECT_EQ(list.Unpack(0), MakeFlight(1, 2));
}

TEST(FlightList, CopiesShareRowsAndChangesDoNotReachThem) {
    FlightList list;
    for (int i = 0; i < 1000; ++i) list.Append(MakeFlight(i, 3));
    const FlightList snapshot = list;
    EXPECT_EQ(snapshot.Row(500).data(), list.Row(500).data());

    list.Replace(500, MakeFlight(9999, 1));
    list.Append(MakeFlight(1000, 2));
    list.Truncate(600);
    EXPECT_EQ(list.Unpack(500), MakeFlight(9999, 1));
    EXPECT_EQ(list.Row(499).data(), snapshot.Row(499).data());
    list.Clear();
    EXPECT_TRUE(list.Empty());

    ASSERT_EQ(snapshot.Count(), 1000);
    for (std::int32_t i = 0; i < snapshot.Count(); ++i) ASSERT_EQ(snapshot.Unpack(i), MakeFlight(i, 3));
}

TEST(FlightList, AppendFromSharesOnOneArenaAndCopiesAcrossTwo) {
    FlightList list;
    list.Append(MakeFlight(1, 2));
    list.Append(MakeFlight(2, 0));
    list.SetRemoved(0, true);
    FlightList selection = FlightList::SharingRowsOf(list);
    FlightList apart;
    for (const std::int32_t index : {1, 0}) {
        selection.AppendFrom(list, index);
        apart.AppendFrom(list, index);
    }
    EXPECT_EQ(selection.Row(1).data(), list.Row(0).data());
    EXPECT_NE(apart.Row(1).data(), list.Row(0).data());
    list = FlightList();
    Flight first = MakeFlight(1, 2);
    first.Removed = true;
    for (const FlightList* other : {&selection, &apart}) {
        ASSERT_EQ(other->Count(), 2);
        EXPECT_EQ(other->Unpack(0), MakeFlight(2, 0));
        EXPECT_EQ(other->Unpack(1), first);
    }
    apart.AppendFrom(apart, 1);
    EXPECT_EQ(apart.Unpack(2), first);
}

}  // namespace
}  // namespace orlo
