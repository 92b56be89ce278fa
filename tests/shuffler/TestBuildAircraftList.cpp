#include "shuffler/BuildAircraftList.h"

#include <gtest/gtest.h>

#include "core/Text.h"

namespace orlo {
namespace {

TEST(BuildAircraftList, CheckedAircraftAreNumberedFromTheStartNumber) {
    Session session;
    session.PlanAircrafts.push_back({"AC#900", "Old", "1", 5});
    session.FSAircrafts.resize(4);
    session.FSAircrafts[0].CruiseSpeed = 100;
    session.FSAircrafts[2].CruiseSpeed = 102;
    session.StartNumber = 41;

    MainForm form;
    TreeView& tree = form.tvShuffleAircraft;
    const auto add = [&](std::int32_t parent, std::string_view text, Colour colour, std::string_view tag,
                         bool checked) {
        const std::int32_t place = tree.Add(parent, text, text, colour);
        tree.At(place).tag = tag;
        tree.At(place).checked = checked;
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
}  // namespace orlo
