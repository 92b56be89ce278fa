#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/Text.h"
#include "editors/FlightEditor.h"
#include "support/FakeProgram.h"

namespace orlo::test {

// A program with a small plan whose flight editor is open on one flight while its user acts. Airports lie on
// the equator, 300 nautical miles apart, from west to east.
struct FlightEditProgram : FakeProgram {
    FlightEditForm& editor = program.forms.frmFlightEdit;
    std::vector<std::string> said;  // all messages of the last opening
    Flight edited;                  // the plan's flight after it

    FlightEditProgram() {
        session.plan.PlanLoaded = true;
        AddPlanAirport("AAAA", "N0* 00.00'", "E0* 00.00'");
        AddPlanAirport("BBBB", "N0* 00.00'", "E5* 00.00'");
        AddPlanAirport("CCCC", "N0* 00.00'", "E10* 00.00'");
        session.plan.PlanAircrafts = {{"AC#1", "Jet (fast)", "300"}, {"AC#2", "Glider", "100"}};
        FSAircraft& jet = AddInstalled("JET (FAST)");
        jet.MinRange = jet.MaxRange = 300;
        jet.MinFL = 50;
        jet.MaxFL = 400;
        session.rules.FlightLevelRules = {{0, 9999, 0, 179, 50, 250, 20}, {0, 9999, 180, 359, 60, 260, 20}};
        session.switches.TATime = session.switches.MaxTATime = kNoTurnAroundLimit;
    }

    // A leg with a fixed arrival, which keeps its time whatever the user changes.
    static Leg FixedLeg(std::string_view depart, std::string_view arrive, std::string_view to = "BBBB") {
        return {std::string(depart), std::string(arrive), true, "100", "F", "0001", std::string(to)};
    }
    static Leg FreeLeg(std::string_view depart, std::string_view to) {
        Leg leg = FixedLeg(depart, depart, to);
        leg.FixedETA = false;
        return leg;
    }
    static Flight FlightOf(std::string_view period, std::vector<Leg> legs) {
        return {"AC#1", "N1", "50%", std::string(period), "IFR", std::move(legs), false};
    }

    // The editor's result. Questions are answered in order, further ones with No.
    std::string Edit(const Flight& flight, std::function<void()> acts,
                     const std::vector<MessageAnswer>& answers = {}, std::int32_t leg = 0) {
        session.plan.Flights.Clear();
        session.plan.Flights.Append(flight);
        world.messages.shown.clear();
        world.messages.answers.assign(answers.begin(), answers.end());
        inModal = std::move(acts);
        const std::string result = EditFlight(context, 0, false, leg);
        said.clear();
        for (const auto& [flags, text] : world.messages.shown) said.push_back(text);
        edited = session.plan.Flights.Unpack(0);
        return result;
    }
    void Accept() { Press(editor.cmdOK); }
    void SwitchChecksOff() {
        session.switches.CheckAircraftRange = session.switches.CheckFlightLevels =
            session.switches.CheckFlightTimes = false;
    }

    std::string Row(std::int32_t place) const {
        std::string text;
        for (std::int32_t column = 0; column < 6; ++column)
            text += Concat(column == 0 ? "" : " ", editor.lvLegs.Text(place, column));
        return text;
    }
};

}  // namespace orlo::test
