#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/AircraftRecords.h"
#include "core/KeyedIndex.h"

namespace orlo {

// The class entry that an aircraft's model or type falls under.
struct ClassMatch {
    std::int32_t Class = kClassNone;
    const ClassEntry* Entry = nullptr;  // in the lists; null with kClassNone
};

// The first entry, by class and then by its place in the list, whose ID is part of the text without regard to
// case. An entry without an ID matches nothing.
ClassMatch GetAircraftClass(const ClassLists& lists, std::string_view text);

// The entries of many aircraft, each text looked up once. The lists must not change while it lives.
class ClassLookup {
  public:
    explicit ClassLookup(const ClassLists& lists) : lists_(lists) {}

    // By the model or type of [General]; where that gives no class, by the aircraft's own model, or by its
    // type where it has none.
    ClassMatch Find(const FSAircraft& aircraft);

  private:
    ClassMatch OfText(const std::string& model, const std::string& type);

    const ClassLists& lists_;
    KeyedIndex<ClassMatch> known_;
};

// Sets the aircraft's class and the values that depend on it: those of the entry, or of the class profile
// when the entry leaves levels and ranges unset. Without a class, and in Not Used, the limits are unset and
// the cruise speed is the file's.
void ApplyAircraftClass(FSAircraft& aircraft, const ClassMatch& match, const ClassLists& lists);

}  // namespace orlo
