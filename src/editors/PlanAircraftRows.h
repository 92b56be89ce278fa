#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/KeyedIndex.h"
#include "core/Session.h"
#include "forms/AircraftEditForm.h"
#include "forms/RowSource.h"
#include "simulator/TitleIndex.h"

namespace orlo {

// The rows of the two lists of frmAircraftEdit, drawn from the records. So a change of an aircraft, and of
// the colours that follow from it, needs no pass over the rows.

// A row for each of PlanAircrafts, red where no installed aircraft has its title. The fleet must stay as it
// is; the plan may change.
class PlanAircraftRows : public RowSource {
  public:
    PlanAircraftRows(const Plan& plan, const Fleet& fleet) : plan_(plan), installed_(fleet.FSAircrafts) {}

    void AppendText(std::int32_t row, std::int32_t column, std::string& out) const override;
    RowFacts Facts(std::int32_t row) const override;

  private:
    const Plan& plan_;
    const TitleIndex installed_;
};

// A row for each of FSAircrafts, blue where an aircraft of the plan has its title. The plan's titles are
// counted at the start; whoever changes them later tells it here.
class AvailableAircraftRows : public RowSource {
  public:
    AvailableAircraftRows(const Plan& plan, const Fleet& fleet);

    void AppendText(std::int32_t row, std::int32_t column, std::string& out) const override;
    RowFacts Facts(std::int32_t row) const override;
    bool InPlan(std::int32_t row) const;

    void AddTitle(std::string_view title);
    void DropTitle(std::string_view title);

  private:
    const Fleet& fleet_;
    KeyedIndex<std::int32_t> planTitles_;  // how many aircraft of the plan have the title
};

// Those of lvFSAircraft while the dialog is open.
inline AvailableAircraftRows& InstalledRows(const AircraftEditForm& form) {
    return static_cast<AvailableAircraftRows&>(*form.lvFSAircraft.Source());
}

}  // namespace orlo
