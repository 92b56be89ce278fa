#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

#include "core/FlightplanFile.h"
#include "shell/Program.h"
#include "support/FakeHosts.h"

namespace orlo::test {

// A program on fakes, with its main window open, and its user. Each of his acts writes the form and delivers
// the event; it is false when the event was dropped or refused.
struct FakeProgram {
    FakeWorld world;
    Program program{world.services, "/program"};
    Context& context = program.context;
    Session& session = program.session;
    MainForm& form = program.forms.frmMain;
    std::function<void()> inModal;  // what the user does while a modal form is open; it closes afterwards

    FakeProgram() {
        program.pump.Windows().Show(form);
        world.windows.onModal = [this](Form& shown) { RunModal(shown); };
    }

    void AddFlight(std::string_view line) {
        if (!AppendFlightplanLine(line, session.plan.Flights)) throw std::runtime_error(std::string(line));
    }
    void AddPlanAirport(const std::string& code, std::string latitude, std::string longitude) {
        session.plan.PlanAirportIndex.Add(code, session.plan.PlanAirportCount());
        session.plan.PlanAirports.push_back({code, std::move(latitude), std::move(longitude), "0"});
    }

    bool Press(Control& control) {
        if (control.kind == ControlKind::CheckBox && program.pump.TakesInput(control.form)) {
            auto& box = static_cast<CheckBox&>(control);
            box.checked = !box.checked;
        }
        if (control.kind == ControlKind::OptionButton) static_cast<OptionButton&>(control).Check();
        return Deliver(control, EventKind::Click);
    }
    bool Type(TextBox& field, std::string_view text) {
        field.text = text;
        return Deliver(field, EventKind::Change);
    }
    bool Leave(TextBox& field) { return Deliver(field, EventKind::Leave); }
    bool Choose(ComboBox& combo, std::string_view text) {
        return combo.SelectText(text) && Deliver(combo, EventKind::Change);
    }
    bool ClickRow(ListView& list, std::int32_t place) {
        list.SelectAll(false);
        list.Select(place, true);
        list.current = place;
        return Deliver(list, EventKind::SelectRow);
    }
    bool ReleaseKey(Control& control, EventKey key) { return Deliver(control, EventKind::KeyUp, key); }
    bool CloseBox(Form& shown) {
        Event event{&shown, nullptr, EventKind::Close};
        return program.pump.Deliver(event);
    }

  private:
    bool Deliver(Control& control, EventKind kind, std::int32_t value = 0) {
        Event event{&control.form, &control, kind, value};
        return program.pump.Deliver(event);
    }
    void RunModal(Form& shown) {
        OpenForms& windows = program.pump.Windows();
        shown.closeRequest = false;
        windows.Show(shown);
        windows.modal.insert(windows.modal.begin(), &shown);
        const int outer = program.pump.EnterModal();
        if (inModal) inModal();
        program.pump.LeaveModal(outer);
        windows.Unload(shown);
    }
};

}  // namespace orlo::test
