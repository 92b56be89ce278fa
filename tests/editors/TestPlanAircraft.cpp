#include <gtest/gtest.h>

#include <random>

#include "editors/PlanAircraftEditor.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

using enum MessageAnswer;

// A plan as lists of plain records, changed row by row as the commands are told.
struct PlainPlan {
    std::vector<Flight> flights;
    std::vector<PlanAircraft> aircraft;

    explicit PlainPlan(const Plan& plan) : aircraft(plan.PlanAircrafts) {
        for (std::int32_t i = 0; i < plan.FlightCount(); ++i) flights.push_back(plan.Flights.Unpack(i));
    }
    bool operator==(const PlainPlan&) const = default;

    void Add(const FSAircraft& installed) {
        int greatest = 0;
        for (const PlanAircraft& old : aircraft)
            greatest = std::max(greatest, std::stoi(old.ACNumber.substr(3)));
        aircraft.push_back({Concat("AC#", greatest + 1), installed.Title, "250", 0});
    }
    bool Has(std::string_view title) const {
        return std::any_of(aircraft.begin(), aircraft.end(),
                           [&](const PlanAircraft& one) { return EqualNoCase(one.Title, title); });
    }
    void Renumber(const std::string& from, const std::string& to) {
        for (Flight& flight : flights) {
            if (flight.ACNumber == from) flight.ACNumber = to;
        }
    }
    void Delete(const std::vector<std::int32_t>& places) {
        for (auto place = places.rbegin(); place != places.rend(); ++place) {
            for (Flight& flight : flights) {
                if (flight.ACNumber == aircraft[static_cast<std::size_t>(*place)].ACNumber)
                    flight.Removed = true;
            }
            aircraft.erase(aircraft.begin() + *place);
        }
    }
};

class EditorUser : public test::FakeProgram {
  public:
    explicit EditorUser(unsigned seed) : engine_(seed) {
        for (const std::string_view title : {"One", "Two", "TWO", "~Three", "Four", "Five"})
            AddInstalled(title).CruiseSpeed = 250;
        for (int i = 1; i <= 6; ++i)
            session.plan.PlanAircrafts.push_back({Concat("AC#", i), Concat("Old ", i % 4), "300", 0});
        for (int i = 0; i < 40; ++i) {
            AddFlight(Concat("AC#", Below(9), ",N", i,
                             ",5%,24Hr,IFR,10:00:00,11:00:00,350,F,1,EHAM,12:00:00,13:00:00,330,F,2,EDDF"));
        }
    }

    // Many commands, each checked against the plain plan, and the button at the end.
    void WorkAndPress(Button& last) {
        inModal = [this, &last] {
            PlainPlan plain(session.plan);
            for (int i = 0; i < 60; ++i) {
                ClickColumn(Below(2) == 0 ? editor.lvAircrafts : editor.lvFSAircraft, Below(3));
                Command(plain);
                ASSERT_EQ(PlainPlan(session.plan), plain);
                ASSERT_TRUE(ColoursAreRight(plain));
                ASSERT_EQ(editor.cmAircraft.entries.size(), plain.aircraft.size());
            }
            Press(last);
        };
    }

    AircraftEditForm& editor = program.forms.frmAircraftEdit;

  private:
    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine_); }

    std::vector<std::int32_t> SelectSome(ListView& list) {
        std::vector<std::int32_t> places;
        for (std::int32_t at = 0; at < list.Count(); ++at) {
            if (Below(3) == 0) places.push_back(list.PlaceAt(at));
        }
        SelectRows(list, places);
        return places;
    }

    void Command(PlainPlan& plain) {
        world.messages.answers.assign(20, Yes);
        std::vector<std::int32_t> places = SelectSome(editor.lvAircrafts);
        const std::int32_t current = editor.lvAircrafts.current;
        switch (Below(5)) {
            case 0:
                for (const std::int32_t place : SelectSome(editor.lvFSAircraft))
                    plain.Add(session.fleet.FSAircrafts[static_cast<std::size_t>(place)]);
                Press(editor.cmdAdd);
                break;
            case 1:
                for (std::int32_t at = 0; at < editor.lvFSAircraft.Count(); ++at) {
                    const FSAircraft& installed =
                        session.fleet.FSAircrafts[static_cast<std::size_t>(editor.lvFSAircraft.PlaceAt(at))];
                    if (!plain.Has(installed.Title)) plain.Add(installed);
                }
                Press(editor.cmdAddMissing);
                break;
            case 2:
                std::sort(places.begin(), places.end());
                plain.Delete(places);
                Press(editor.cmdDelete);
                break;
            default:
                if (current >= 0) EditCurrent(plain, plain.aircraft[static_cast<std::size_t>(current)]);
        }
    }

    void EditCurrent(PlainPlan& plain, PlanAircraft& aircraft) {
        if (Below(2) == 0) {
            const std::string number = std::to_string(100 + Below(1000000));
            world.windows.inputs = {number};
            plain.Renumber(aircraft.ACNumber, "AC#" + number);
            aircraft.ACNumber = "AC#" + number;
            Press(editor.cmdNumber);
            world.windows.inputs = {Below(2) == 0 ? "four" : "Gone"};
            aircraft.Title = world.windows.inputs.front();
            Press(editor.cmdTitle);
        } else {
            ChooseEntry(editor.cmAircraft, Below(static_cast<int>(plain.aircraft.size())));
            plain.Renumber(aircraft.ACNumber,
                           plain.aircraft[static_cast<std::size_t>(editor.cmAircraft.index)].ACNumber);
            Press(editor.cmdSubstitute);
        }
    }

    bool ColoursAreRight(const PlainPlan& plain) const {
        const std::vector<FSAircraft>& fleet = session.fleet.FSAircrafts;
        for (std::int32_t i = 0; i < editor.lvAircrafts.Count(); ++i) {
            const std::string& title = plain.aircraft[static_cast<std::size_t>(i)].Title;
            const bool installed = std::any_of(fleet.begin(), fleet.end(), [&](const FSAircraft& one) {
                return EqualNoCase(one.Title, title);
            });
            if ((editor.lvAircrafts.RowColour(i) == Colour::Red) == installed) return false;
        }
        for (std::int32_t at = 0; at < editor.lvFSAircraft.Count(); ++at) {
            const std::int32_t place = editor.lvFSAircraft.PlaceAt(at);
            const bool used = plain.Has(fleet[static_cast<std::size_t>(place)].Title);
            if ((editor.lvFSAircraft.RowColour(place) == Colour::Blue) != used) return false;
        }
        return true;
    }

    std::mt19937 engine_;
};

TEST(PlanAircraftEditor, RandomCommandsChangeThePlanAsRowByRowAndCancelBringsAllBack) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        EditorUser user(seed);
        const PlainPlan before(user.session.plan);
        user.WorkAndPress(user.editor.cmdCancel);
        EXPECT_FALSE(EditPlanAircraft(user.context));
        EXPECT_EQ(PlainPlan(user.session.plan), before) << seed;
        user.WorkAndPress(user.editor.cmdSave);
        EXPECT_TRUE(EditPlanAircraft(user.context));
        EXPECT_NE(PlainPlan(user.session.plan), before) << seed;
    }
}

}  // namespace
}  // namespace orlo
