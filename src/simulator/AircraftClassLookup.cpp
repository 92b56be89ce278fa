#include "simulator/AircraftClassLookup.h"

#include "core/Text.h"

namespace orlo {
namespace {

bool UsesProfile(const ClassEntry& entry) {
    return entry.MinFL == -1 && entry.MaxFL == -1 && entry.MinRange == -1 && entry.MaxRange == -1;
}

void ClearLimits(FSAircraft& aircraft) {
    aircraft.CruiseSpeed = aircraft.FileCruiseSpeed;
    aircraft.MinFL = aircraft.MaxFL = -1;
    aircraft.MinRange = aircraft.MaxRange = -1;
    aircraft.RunwayLength = -1;
    aircraft.RunwayTypes.clear();
    aircraft.MinParkingRadius = -1;
    aircraft.ParkingTypes.clear();
    aircraft.IFRPercent = -1;
}

// Entries and profiles name their values alike.
template <typename Source>
void TakeLimits(FSAircraft& aircraft, const Source& source) {
    aircraft.CruiseSpeed = source.CruiseSpeed;
    aircraft.MinFL = source.MinFL;
    aircraft.MaxFL = source.MaxFL;
    aircraft.MinRange = source.MinRange;
    aircraft.MaxRange = source.MaxRange;
    aircraft.RunwayLength = source.RunwayLength;
    aircraft.RunwayTypes = source.RunwayTypes;
    aircraft.MinParkingRadius = source.MinParkingRadius;
    aircraft.ParkingTypes = source.ParkingTypes;
    aircraft.IFRPercent = source.IFRPercent;
}

// Two values depart from the profile, and have to, since plans were tuned with them: a Micro Prop's shortest
// range is its lowest level, and the share of IFR flights is Large Jet's for every class.
void TakeProfile(FSAircraft& aircraft, std::int32_t code, const ClassLists& lists) {
    const ClassProfile& profile = lists.Profiles[static_cast<std::size_t>(code)];
    TakeLimits(aircraft, profile);
    if (code == kClassMicroProp) aircraft.MinRange = profile.MinFL;
    aircraft.IFRPercent = lists.Profiles[kClassLargeJet].IFRPercent;
}

}  // namespace

ClassMatch GetAircraftClass(const ClassLists& lists, std::string_view text) {
    for (std::int32_t code = kClassNotUsed; code <= kClassHugeJet; ++code) {
        for (const ClassEntry& entry : lists.Entries[static_cast<std::size_t>(code)]) {
            if (!entry.ID.empty() && ContainsNoCase(text, entry.ID)) return {code, &entry};
        }
    }
    return {};
}

ClassMatch ClassLookup::OfText(const std::string& model, const std::string& type) {
    const std::string& text = model.empty() ? type : model;
    if (text.empty()) return {};
    if (const ClassMatch* known = known_.Find(text)) return *known;
    const ClassMatch match = GetAircraftClass(lists_, text);
    known_.Add(text, match);
    return match;
}

ClassMatch ClassLookup::Find(const FSAircraft& aircraft) {
    const ClassMatch ofFile = OfText(aircraft.FileATCModel, aircraft.FileATCType);
    return ofFile.Class != kClassNone ? ofFile : OfText(aircraft.ATCModel, aircraft.ATCType);
}

void ApplyAircraftClass(FSAircraft& aircraft, const ClassMatch& match, const ClassLists& lists) {
    aircraft.Class = match.Class;
    aircraft.ClassID = match.Entry != nullptr ? match.Entry->ID : std::string();
    if (match.Entry == nullptr || match.Class == kClassNotUsed) {
        ClearLimits(aircraft);
    } else if (UsesProfile(*match.Entry)) {
        TakeProfile(aircraft, match.Class, lists);
    } else {
        TakeLimits(aircraft, *match.Entry);
    }
}

}  // namespace orlo
