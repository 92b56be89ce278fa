#include "editors/AddPlanAircraft.h"

#include <algorithm>
#include <limits>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/PlanSideFiles.h"
#include "core/Text.h"
#include "core/TextLines.h"
#include "editors/PlanAircraftEditor.h"
#include "editors/PlanAircraftRows.h"

namespace orlo {
namespace {

// Numbers that no aircraft of the plan has: upwards from the greatest, and where that is the greatest there
// can be, the lowest free ones.
class FreeNumbers {
  public:
    explicit FreeNumbers(const Plan& plan) {
        for (const PlanAircraft& aircraft : plan.PlanAircrafts) {
            const std::int32_t number = AircraftNumber(aircraft.ACNumber);
            last_ = std::max(last_, number);
            used_.insert(number);
        }
    }

    std::int32_t Take() {
        if (last_ == std::numeric_limits<std::int32_t>::max()) last_ = 0;
        do {
            ++last_;
        } while (used_.contains(last_));
        used_.insert(last_);
        return last_;
    }

  private:
    std::int32_t last_ = 0;
    std::unordered_set<std::int32_t> used_;
};

// Adds installed aircraft to the plan and to the lists. The end selects what was added.
class PlanAircraftAdder {
  public:
    explicit PlanAircraftAdder(Context& context)
        : context_(context), form_(context.forms.frmAircraftEdit), numbers_(context.session.plan) {}

    void Add(std::int32_t fsPlace) {
        const FSAircraft& installed = context_.session.fleet.FSAircrafts[static_cast<std::size_t>(fsPlace)];
        PlanAircraft aircraft;
        aircraft.ACNumber = Concat("AC#", numbers_.Take());
        aircraft.CruiseSpeed = std::to_string(installed.CruiseSpeed);
        aircraft.Title = installed.Title;
        form_.Changed = true;
        form_.cmAircraft.Add(Concat(aircraft.ACNumber, " - ", aircraft.Title),
                             context_.session.plan.PlanAircraftCount());
        context_.session.plan.PlanAircrafts.push_back(std::move(aircraft));
        added_.push_back(form_.lvAircrafts.AddSourceRow());
        InstalledRows(form_).AddTitle(installed.Title);
        if (unwritable_.empty() && FieldText(installed.Title) != installed.Title)
            unwritable_ = installed.Title;
        form_.lvFSAircraft.SourceChanged();
    }

    void SelectAdded() {
        context_.forms.frmMain.sbMain.text =
            unwritable_.empty() ? std::string()
                                : Concat("Aircraft.txt can't hold the title [", unwritable_, "].");
        if (added_.empty()) return;
        ListView& list = form_.lvAircrafts;
        list.SelectAll(false);
        for (const std::int32_t place : added_) list.Select(place, true);
        list.current = added_.back();
        list.ensureVisibleRequest = true;
    }

  private:
    Context& context_;
    AircraftEditForm& form_;
    FreeNumbers numbers_;
    std::vector<std::int32_t> added_;
    std::string unwritable_;  // the first title whose line would be read as something else
};

}  // namespace

void AddPlanAircraft(Context& context) {
    const AircraftEditForm& form = context.forms.frmAircraftEdit;
    const ListView& list = form.lvFSAircraft;
    PlanAircraftAdder adder(context);
    for (const std::int32_t place : list.SelectedPlaces()) {
        if (InstalledRows(form).InPlan(place) &&
            !UserAgrees(context,
                        Concat("Aircraft '", list.Text(place, 0),
                               "' already in your 'Aircraft.txt'. Would you like to add it anyway?")))
            continue;
        adder.Add(place);
    }
    adder.SelectAdded();
}

void AddMissingAircraft(Context& context) {
    const AircraftEditForm& form = context.forms.frmAircraftEdit;
    const ListView& list = form.lvFSAircraft;
    PlanAircraftAdder adder(context);
    for (std::int32_t at = 0; at < list.Count(); ++at) {
        const std::int32_t place = list.PlaceAt(at);
        if (!InstalledRows(form).InPlan(place)) adder.Add(place);
    }
    adder.SelectAdded();
}

}  // namespace orlo
