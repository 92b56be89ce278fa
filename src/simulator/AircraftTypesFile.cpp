#include "simulator/AircraftTypesFile.h"

#include "core/AircraftLimits.h"
#include "core/KeyedIndex.h"
#include "core/Text.h"

namespace orlo {
namespace {

class TypeKeys {
  public:
    std::string Next(const FSAircraft& aircraft) {
        std::string key = aircraft.ATCModel.empty() ? aircraft.ATCType : aircraft.ATCModel;
        if (!aircraft.Texture.empty()) key.append(Concat(".", aircraft.Texture));
        if (counts_.Add(key, 1)) return key;
        return Concat(key, "#", ++*counts_.Find(key));
    }

  private:
    KeyedIndex<int> counts_;  // how often each was seen
};

}  // namespace

std::string FormatAircraftTypes(const std::vector<FSAircraft>& aircraft,
                                const std::function<bool(const FSAircraft&)>& isListed) {
    std::string out;
    TypeKeys keys;
    for (const FSAircraft& variant : aircraft) {
        if (!isListed(variant)) continue;
        out.append(FormatLimits(Concat(keys.Next(variant), ",", variant.Title), variant)).append("\r\n");
    }
    return out;
}

}  // namespace orlo
