#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "core/FlightplanFile.h"
#include "shell/Program.h"
#include "shell/UserHands.h"
#include "support/FakeHosts.h"

namespace orlo::test {

struct FakeProgramParts {
    FakeWorld world;
    Program program{world.services, "/program", "/state"};
};

// A program on fakes, with its main window open, and its user.
struct FakeProgram : FakeProgramParts, UserHands {
    Context& context = program.context;
    Session& session = program.session;
    MainForm& form = program.forms.frmMain;
    std::function<void()> inModal;  // what the user does while a modal form is open; it closes afterwards

    FakeProgram() : UserHands(program.pump) {
        program.pump.Windows().Show(form);
        world.windows.onModal = [this](Form& shown) { RunModal(shown); };
    }

    void AddFlight(std::string_view line) {
        if (!AppendFlightplanLine(line, session.plan.Flights)) throw std::runtime_error(std::string(line));
    }
    // An aircraft that may fly at any level and over any distance.
    FSAircraft& AddInstalled(std::string_view title) {
        FSAircraft& aircraft = session.fleet.FSAircrafts.emplace_back();
        aircraft.Title = title;
        aircraft.MinFL = aircraft.MinRange = 0;
        aircraft.MaxFL = 999;
        aircraft.MaxRange = 9999;
        return aircraft;
    }
    void AddPlanAirport(const std::string& code, std::string latitude, std::string longitude) {
        session.plan.PlanAirportIndex.Add(code, session.plan.PlanAirportCount());
        session.plan.PlanAirports.push_back({code, std::move(latitude), std::move(longitude), "0"});
    }

    bool Choose(ComboBox& combo, std::string_view text) {
        return combo.SelectText(text) && ChooseEntry(combo, combo.index);
    }

  private:
    void RunModal(Form& shown) {
        const int outer = program.pump.EnterModal(shown, nullptr);
        if (inModal) inModal();
        program.pump.LeaveModal(shown, outer);
    }
};

}  // namespace orlo::test
