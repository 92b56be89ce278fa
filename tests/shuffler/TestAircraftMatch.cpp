#include <gtest/gtest.h>

#include "shuffler/AircraftMatch.h"
#include "shuffler/BuildAircraftList.h"
#include "shuffler/ShuffleWorld.h"

namespace orlo::test {
namespace {

struct EntryCase {
    std::int32_t percent;
    bool hasAircraft;
    std::int32_t expectedPercent;
    std::int32_t expectedPlanned;
};

constexpr std::int32_t kUntouched = 777;

TEST(AircraftMatch, PercentsAreNormalisedByWhatIsStatedAndWhoHasAircraft) {
    const std::vector<std::pair<std::string, std::vector<EntryCase>>> cases = {
        {"past 100 loses its share and gets the rest", {{70, true, 70, 70}, {50, true, -1, 30}}},
        {"a later one may still fit", {{70, true, 70, 70}, {50, true, -1, 20}, {10, true, 10, 10}}},
        {"the rest is spread over stated ones", {{40, true, 40, 50}, {40, true, 40, 50}}},
        {"what doesn't divide is dropped", {{30, true, 30, 36}, {30, true, 30, 36}, {21, true, 21, 27}}},
        {"unstated ones share evenly", {{-1, true, -1, 33}, {-1, true, -1, 33}, {-1, true, -1, 33}}},
        {"0 counts as unstated and stays 0", {{0, true, 0, 0}, {-1, true, -1, 25}, {50, true, 50, 50}}},
        {"without aircraft no share", {{60, false, -1, kUntouched}, {60, true, 60, 100}}},
        {"no aircraft at all", {{60, false, -1, kUntouched}, {-1, false, -1, kUntouched}}},
        {"0 without aircraft beside an unstated one", {{0, false, 0, 0}, {-1, true, -1, 100}}},
        {"exactly 100", {{60, true, 60, 60}, {40, true, 40, 40}}},
        {"nothing left to share", {{100, true, 100, 100}, {-1, true, -1, 0}}},
        {"below 0, as read", {{-5, true, -5, -5}, {50, true, 50, 50}}},
    };
    for (const auto& [name, entries] : cases) {
        SCOPED_TRACE(name);
        AirlineSet set;
        for (const EntryCase& entry : entries) {
            AirlineEntry& added = set.Airlines.emplace_back();
            added.Percent = entry.percent;
            added.PlannedPercent = kUntouched;
            if (entry.hasAircraft) added.Aircraft.emplace_back();
        }
        NormalisePercents(set);
        for (std::size_t i = 0; i < entries.size(); ++i) {
            EXPECT_EQ(set.Airlines[i].Percent, entries[i].expectedPercent) << i;
            EXPECT_EQ(set.Airlines[i].PlannedPercent, entries[i].expectedPlanned) << i;
        }
    }
}

std::string PlanPlaces(const std::vector<AirlineAircraft>& list) {
    std::string text;
    for (const AirlineAircraft& aircraft : list) {
        text += Concat(aircraft.PlanAircraftIndex, ":", aircraft.AircraftIndex, " ");
    }
    return text;
}

TEST(AircraftMatch, AircraftGoIntoEveryEntryOfTheirAirlineInPlanOrder) {
    ShuffleWorld made;
    made.AddAircraft("One", "Alpha");
    made.AddAircraft("Two", "");
    made.AddAircraft("ONE", "Beta");  // a second variant of the title: the first one stands for it
    made.AddAircraft("Three", "ALPHA");
    made.session.PlanAircrafts[3].Title = "three";
    made.session.PlanAircrafts.push_back({"AC#5", "Gone", "100", 0});

    AirlineSets sets;
    sets.Global = MakeSet("", {{"alpha", 50}, {"Beta", 50}});
    sets.Cities = {MakeSet("R/C/T", {{"Gamma"}, {"Alpha"}, {"Alpha"}})};
    sets.Global.Airlines[1].Aircraft.emplace_back();  // of an earlier run
    const auto noAirline = MatchAircraft(made.session.PlanAircrafts, made.session.FSAircrafts, sets);

    EXPECT_EQ(PlanPlaces(noAirline), "1:1 ");
    EXPECT_EQ(PlanPlaces(sets.Global.Airlines[0].Aircraft), "0:0 2:0 3:3 ");
    EXPECT_EQ(PlanPlaces(sets.Global.Airlines[1].Aircraft), "");
    EXPECT_EQ(PlanPlaces(sets.Cities[0].Airlines[0].Aircraft), "");
    EXPECT_EQ(PlanPlaces(sets.Cities[0].Airlines[1].Aircraft), "0:0 2:0 3:3 ");
    EXPECT_EQ(PlanPlaces(sets.Cities[0].Airlines[2].Aircraft), "0:0 2:0 3:3 ");
    EXPECT_EQ(sets.Global.Airlines[0].PlannedPercent, 100);
}

TEST(BuildAircraftList, CheckedAircraftAreNumberedFromTheStartNumber) {
    Session session;
    session.PlanAircrafts.push_back({"AC#900", "Old", "1", 5});
    session.FSAircrafts.resize(4);
    for (std::int32_t i = 0; i < 4; ++i)
        session.FSAircrafts[static_cast<std::size_t>(i)].CruiseSpeed = 100 + i;
    session.StartNumber = 41;

    MainForm form;
    TreeView& tree = form.tvShuffleAircraft;
    const auto add = [&](std::int32_t parent, std::string_view text, Colour colour, std::string_view tag,
                         bool checked) {
        const std::int32_t place = tree.Add(parent, text, text, colour);
        tree.nodes[static_cast<std::size_t>(place)].tag = tag;
        tree.nodes[static_cast<std::size_t>(place)].checked = checked;
        return place;
    };
    const std::int32_t group = add(-1, "Maker (all)", Colour::WindowText, "", true);
    add(group, "Jet (large) (Alpha)", Colour::Blue, "2", true);
    add(group, "Unchecked (Alpha)", Colour::Blue, "1", false);
    add(group, "Prop", Colour::Blue, "0", true);
    add(group, "Points nowhere", Colour::Blue, "4", true);

    BuildAircraftList(form, session);
    EXPECT_EQ(session.PlanAircrafts,
              (std::vector<PlanAircraft>{{"AC#41", "Jet (large)", "102", 0}, {"AC#42", "Prop", "100", 0}}));
    EXPECT_EQ(session.MaxACNumber, 42);
    EXPECT_EQ(NextStartNumber(session), 43);
    session.PlanAircrafts = {{"AC#7", "", "", 0}, {"AC#2147483647", "", "", 0}, {"odd", "", "", 0}};
    EXPECT_EQ(NextStartNumber(session), 2147483647);
}

}  // namespace
}  // namespace orlo::test
