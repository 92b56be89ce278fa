#include <gtest/gtest.h>

#include <random>

#include "core/Text.h"
#include "mainwindow/AircraftTrees.h"
#include "mainwindow/TreeSelection.h"

namespace orlo {
namespace {

FSAircraft Installed(std::string title, std::string airline, std::string manufacturer, std::string type,
                     std::int32_t aircraftClass = kClassLargeJet) {
    FSAircraft aircraft;
    aircraft.Title = std::move(title);
    aircraft.Airline = std::move(airline);
    aircraft.UIManufacturer = std::move(manufacturer);
    aircraft.UIType = std::move(type);
    aircraft.Class = aircraftClass;
    return aircraft;
}

struct Trees : ::testing::Test {
    MainForm form;
    Session session;
    TreeView& shuffle = form.tvShuffleAircraft;
    TreeView& move = form.tvMoveAircrafts;

    Trees() {
        SetViews(2, 1);
        Flight flight;
        flight.Legs.resize(2);
        session.plan.Flights.Append(flight);
        session.fleet.FSAircrafts = {
            Installed("Jumbo", "Hansa", "Boeing", "747", kClassHugeJet),
            Installed("Piper", "", "", "", kClassMicroProp),
            Installed("jumbo", "Other", "Boeing", "777", kClassHugeJet),
            Installed("Beech", "Hansa", "Boeing", "", 0),
        };
        session.plan.PlanAircrafts = {{"AC#7", "JUMBO", "480"}, {"AC#3", "Nowhere", "100"}};
    }
    void SetViews(std::int32_t shufflerView, std::int32_t moveView) {
        form.cmShufflerView.index = shufflerView;
        form.cmShufflerView.tag = std::to_string(shufflerView);
        form.cmMoveView.index = moveView;
        form.cmMoveView.tag = std::to_string(moveView);
    }
};

TEST_F(Trees, TheCheckedAircraftAreTheCheckedLeavesWithoutTheirAirlines) {
    const auto add = [&](std::int32_t parent, std::string_view text, Colour colour, std::string_view tag,
                         bool checked) {
        const std::int32_t place = shuffle.Add(parent, text, text, colour);
        shuffle.At(place).tag = tag;
        shuffle.At(place).checked = checked;
        return place;
    };
    const std::int32_t group = add(-1, "Maker (all)", Colour::WindowText, "", true);
    add(group, "Jet (large) (Alpha)", Colour::Blue, "2", true);
    add(group, "Unchecked (Alpha)", Colour::Blue, "1", false);
    add(group, "Prop", Colour::Blue, "0", true);
    add(group, "Points nowhere", Colour::Blue, Concat(session.fleet.FSAircrafts.size()), true);
    EXPECT_EQ(CheckedShuffleAircraft(form, session),
              (std::vector<CheckedAircraft>{{2, "Jet (large)"}, {0, "Prop"}}));
}

TEST_F(Trees, GroupByClassInEachOfItsNames) {
    session.fleet.FSAircrafts.clear();
    for (std::int32_t code = -1; code <= 9; ++code) {
        session.fleet.FSAircrafts.push_back(Installed(Concat("T", code), "", "", "", code));
    }
    SetViews(0, 0);
    FillAircraftTrees(form, session);
    const auto groups = SplitText(
        "Unkown|Unkown|Not Used|Micro Prop|Mid Prop|Large Prop|Micro Jet|Small Jet|Large Jet|Huge Jet|Unkown",
        '|');
    for (const TreeView* tree : {&shuffle, &move}) {
        for (std::size_t i = 0; i < groups.size(); ++i) {
            const std::int32_t leaf = tree->Find(Concat("T", static_cast<int>(i) - 1, "##"));
            EXPECT_EQ(tree->At(tree->At(leaf).parent).key, Concat("#", groups[i])) << i;
        }
    }
}

TEST_F(Trees, AViewOrACheckThatIsNoChangeChangesNothing) {
    FillAircraftTrees(form, session);
    form.HandlingNodeCheck = true;
    shuffle.At(shuffle.Find("#BOEING")).checked = true;
    HandleNodeCheck(form, session, shuffle, shuffle.Find("#BOEING"));
    EXPECT_FALSE(shuffle.At(shuffle.Find("BEECH##")).checked) << "one run at a time";
    form.HandlingNodeCheck = false;

    const std::int64_t shown = move.contentRevision;
    ChangeMoveView(form, session);
    EXPECT_EQ(move.contentRevision, shown) << "the same view again rebuilds nothing";
    session.plan.Flights.Clear();
    form.cmMoveView.index = 0;
    ChangeMoveView(form, session);
    EXPECT_EQ(move.contentRevision, shown) << "nor does another one without flights";
    EXPECT_EQ(form.cmMoveView.tag, "0");
}

TEST_F(Trees, SelectCommandsReachEveryNode) {
    FillAircraftTrees(form, session);
    SelectAll(form, shuffle);
    EXPECT_EQ(form.lblShuffleAircraft.caption,
              "&Select Aircraft to use for the Flightplan (3 aircraft selected)");
    EXPECT_EQ(shuffle.At(shuffle.Find("#BOEING")).colour, Colour::WindowText);
    SelectAll(form, move);
    EXPECT_EQ(move.At(move.Find("JUMBO##")).colour, Colour::WindowText) << "black is neither blue nor red";
    EXPECT_EQ(move.At(move.Find("PIPER##")).colour, Colour::Red);

    ListView& list = form.lvExPreview;
    for (const char* key : {"#0", "#1", "#2"}) list.Add({key, "", "", Colour::WindowText, {}});
    EXPECT_TRUE(OffersSelectMenu(form, session, list));
    InverseSelection(list);
    EXPECT_EQ(list.SelectedPlaces(), (std::vector<std::int32_t>{1, 2}));
    EXPECT_FALSE(OffersSelectMenu(form, session, form.lvTimetable));
    session.plan.Flights.Clear();
    EXPECT_FALSE(OffersSelectMenu(form, session, move));
}

// A tree of any shape and state, the same one for the same seed.
void FillRandomly(TreeView& tree, unsigned seed) {
    std::mt19937 random(seed);
    const auto count = static_cast<std::int32_t>(1 + random() % 40);
    for (std::int32_t i = 0; i < count; ++i) {
        const auto parent = static_cast<std::int32_t>(random() % static_cast<unsigned>(i + 1)) - 1;
        tree.Add(parent, Concat("#", i), "", random() % 3 == 0 ? Colour::Gray : Colour::Blue);
        tree.At(i).checked = random() % 2 == 0;
    }
}

std::string State(const TreeView& tree) {
    std::string state;
    for (const TreeNode& node : tree.nodes) {
        state += Concat(node.checked ? "x" : "-", ColourWord(node.colour), " ");
    }
    return state;
}

// Each node in tree order is inverted, and then its ancestors look at their children.
void InvertNodeByNode(TreeView& tree) {
    for (TreeNode& node : tree.nodes) {
        node.checked = !node.checked;
        for (std::int32_t up = node.parent; up >= 0; up = tree.At(up).parent) {
            std::size_t checked = 0;
            std::size_t marked = 0;
            for (const std::int32_t place : tree.At(up).children) {
                const TreeNode& child = tree.At(place);
                checked += child.checked ? 1 : 0;
                marked += child.checked || child.colour == Colour::Gray ? 1 : 0;
            }
            tree.At(up).checked = checked == tree.At(up).children.size();
            tree.At(up).colour = marked > 0 && !tree.At(up).checked ? Colour::Gray : Colour::WindowText;
        }
    }
}

TEST(TreeSelection, ManyNodesInOnePassEndAsOneByOne) {
    Session session;
    session.plan.PlanLoaded = true;
    for (unsigned seed = 1; seed <= 2000; ++seed) {
        MainForm one;
        MainForm each;
        for (MainForm* form : {&one, &each}) {
            FillRandomly(form->tvShuffleAircraft, seed);
            FillRandomly(form->tvMoveAircrafts, seed);
        }
        std::mt19937 random(seed);
        std::vector<std::int32_t> nodes(random() % 12);
        for (std::int32_t& node : nodes) {
            node = static_cast<std::int32_t>(random() % each.tvShuffleAircraft.nodes.size());
        }
        CheckNodes(one, session, one.tvShuffleAircraft, nodes);
        for (const std::int32_t node : nodes) {
            each.tvShuffleAircraft.At(node).checked = true;
            HandleNodeCheck(each, session, each.tvShuffleAircraft, node);
        }
        InverseSelection(one, one.tvMoveAircrafts);
        InvertNodeByNode(each.tvMoveAircrafts);
        ASSERT_EQ(State(one.tvShuffleAircraft), State(each.tvShuffleAircraft)) << "seed " << seed;
        ASSERT_EQ(one.lblShuffleAircraft.caption, each.lblShuffleAircraft.caption) << "seed " << seed;
        ASSERT_EQ(State(one.tvMoveAircrafts), State(each.tvMoveAircrafts)) << "seed " << seed;
    }
}

}  // namespace
}  // namespace orlo
