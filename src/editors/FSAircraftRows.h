#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/KeyedIndex.h"
#include "core/Session.h"
#include "forms/RowSource.h"

namespace orlo {

// Columns of lvAircrafts in frmFSAircraftEdit.
enum FSAircraftColumn : std::int32_t {
    kFSTitle,
    kFSATCType,
    kFSATCModel,
    kFSAirline,
    kFSClass,
    kFSErrors,
};

// The installed aircraft but those whose title begins with "~", as the fleet has them at the moment of a
// look. The column "Errors" has an aircraft's problem, else "ERROR" where its airline, model or type stands
// in no list of names. Fleet and rules must outlive the rows; the fleet's places must not change.
class FSAircraftRows : public RowSource {
  public:
    FSAircraftRows(const Fleet& fleet, const Rules& rules);

    std::int32_t Count() const { return static_cast<std::int32_t>(places_.size()); }
    std::int32_t Place(std::int32_t row) const { return places_[static_cast<std::size_t>(row)]; }
    void AppendText(std::int32_t row, std::int32_t column, std::string& out) const override;
    RowFacts Facts(std::int32_t row) const override;

  private:
    // The names that were looked for in a list; a search walks through all of it.
    struct KnownNames {
        const NameList& list;
        mutable KeyedIndex<bool> asked;

        bool Allow(const std::string& name) const;
    };

    const FSAircraft& At(std::int32_t row) const;
    bool HasUnknownName(const FSAircraft& aircraft) const;

    const Fleet& fleet_;
    KnownNames airlines_;
    KnownNames models_;
    KnownNames types_;
    std::vector<std::int32_t> places_;  // in FSAircrafts
};

}  // namespace orlo
