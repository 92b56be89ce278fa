#include "editors/PlanAircraftRows.h"

namespace orlo {
namespace {

// In the order of the columns.
enum PlanColumn : std::int32_t { kPlanNumber, kPlanSpeed, kPlanTitle };
enum InstalledColumn : std::int32_t { kInstalledTitle, kInstalledType, kInstalledModel, kInstalledAirline };

template <typename Record>
const Record& At(const std::vector<Record>& records, std::int32_t row) {
    return records[static_cast<std::size_t>(row)];
}

}  // namespace

void PlanAircraftRows::AppendText(std::int32_t row, std::int32_t column, std::string& out) const {
    const PlanAircraft& aircraft = At(plan_.PlanAircrafts, row);
    switch (column) {
        case kPlanNumber:
            out.append(aircraft.ACNumber);
            return;
        case kPlanSpeed:
            out.append(aircraft.CruiseSpeed);
            return;
        case kPlanTitle:
            out.append(aircraft.Title);
            return;
    }
}

RowFacts PlanAircraftRows::Facts(std::int32_t row) const {
    const bool found = installed_.Find(At(plan_.PlanAircrafts, row).Title) >= 0;
    return {{}, {}, found ? Colour::WindowText : Colour::Red};
}

AvailableAircraftRows::AvailableAircraftRows(const Plan& plan, const Fleet& fleet) : fleet_(fleet) {
    planTitles_.Reserve(plan.PlanAircrafts.size());
    for (const PlanAircraft& aircraft : plan.PlanAircrafts) AddTitle(aircraft.Title);
}

void AvailableAircraftRows::AppendText(std::int32_t row, std::int32_t column, std::string& out) const {
    const FSAircraft& aircraft = At(fleet_.FSAircrafts, row);
    switch (column) {
        case kInstalledTitle:
            out.append(aircraft.Title);
            return;
        case kInstalledType:
            out.append(aircraft.ATCType);
            return;
        case kInstalledModel:
            out.append(aircraft.ATCModel);
            return;
        case kInstalledAirline:
            out.append(aircraft.Airline);
            return;
    }
}

RowFacts AvailableAircraftRows::Facts(std::int32_t row) const {
    return {{}, {}, InPlan(row) ? Colour::Blue : Colour::WindowText};
}

bool AvailableAircraftRows::InPlan(std::int32_t row) const {
    return planTitles_.Contains(At(fleet_.FSAircrafts, row).Title);
}

void AvailableAircraftRows::AddTitle(std::string_view title) {
    if (std::int32_t* count = planTitles_.Find(title)) {
        ++*count;
    } else {
        planTitles_.Add(title, 1);
    }
}

void AvailableAircraftRows::DropTitle(std::string_view title) {
    std::int32_t* count = planTitles_.Find(title);
    if (count != nullptr && --*count == 0) planTitles_.Remove(title);
}

}  // namespace orlo
