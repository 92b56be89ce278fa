#include "AirlineSets.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "Output.h"
#include "Random.h"
#include "Rules.h"

namespace orlo::world {

namespace {

// A place that can have a set of its own.
struct Place {
    std::string Key;  // as a set names it
    std::string Region, Country;
};

// The places of each level in the order of the airports, each once.
struct Places {
    std::vector<Place> Regions, Countries, States, Cities, Airports;
};

Places CollectPlaces(const std::vector<Airport>& airports) {
    Places places;
    std::unordered_set<std::string> seen;
    const auto add = [&](std::vector<Place>& list, char level, const std::string& key,
                         const Airport& airport) {
        if (seen.insert(level + key).second) list.push_back({key, airport.Region, airport.Country});
    };
    for (const Airport& airport : airports) {
        const std::string country = airport.Region + "/" + airport.Country;
        add(places.Regions, 'R', airport.Region, airport);
        add(places.Countries, 'C', country, airport);
        if (!airport.State.empty()) add(places.States, 'S', country + "/" + airport.State, airport);
        add(places.Cities, 'T', country + "/" + airport.City, airport);
        add(places.Airports, 'A', airport.Code, airport);
    }
    return places;
}

// Keeps `count` of the places, spread over the whole list.
void Thin(std::vector<Place>& places, std::size_t count) {
    if (places.size() <= count) return;
    std::vector<Place> kept;
    for (std::size_t i = 0; i < count; ++i) kept.push_back(places[(2 * i + 1) * places.size() / (2 * count)]);
    places = std::move(kept);
}

// Leaves every `step`th place out, so that its flights fall through to the next wider set.
void LeaveOut(std::vector<Place>& places, std::size_t step) {
    std::vector<Place> kept;
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (i % step != step - 2) kept.push_back(places[i]);
    }
    places = std::move(kept);
}

// Chooses which places get sets, so that all sets together are about `total`, and adds airports that no
// scenery has when there are too few. Small worlds keep most flights for the sets of countries, whose shares
// can then be watched.
void Apportion(Places& places, std::size_t total) {
    LeaveOut(places.Regions, 6);
    LeaveOut(places.Countries, 5);
    Thin(places.Countries, total * 45 / 100);
    Thin(places.States, total / 12);
    Thin(places.Cities, total / 8);
    const std::size_t others =
        1 + places.Regions.size() + places.Countries.size() + places.States.size() + places.Cities.size();
    const std::size_t left = total > others ? total - others : 0;
    Thin(places.Airports, total < 150 ? total / 8 : left);
    if (total < 150) return;
    constexpr int unusedCodes = 40000;  // no world has as many airports
    for (int index = unusedCodes; places.Airports.size() < left; ++index) {
        places.Airports.push_back({InventedCode(index), "", ""});
    }
}

class SetWriter {
  public:
    SetWriter(TextFile& file_, const Fleet& fleet_, std::uint64_t seed)
        : file(file_), fleet(fleet_), random(seed, Random::Stream::Rules) {
        for (std::size_t i = 0; i < fleet.Airlines.size(); ++i) {
            const Airline& airline = fleet.Airlines[i];
            if (!airline.HasAircraft) continue;
            equipped.push_back(i);
            atHome[airline.Region].push_back(i);
            atHome[airline.Region + "/" + airline.Country].push_back(i);
        }
    }

    // The widest set: some airlines with stated shares, one of them without aircraft, the rest without.
    void WriteGlobal() {
        file.Line("[Global]");
        file.Line("#SMP-!!!!");
        const std::size_t count = std::min<std::size_t>(equipped.size(), 24);
        for (std::size_t i = 0; i < count; ++i) PutAirline(NameOf(equipped[i]), i < 4 ? 15 : -1);
        PutAirline(AirlineWithoutAircraft, 10);
        file.EndLine();
    }

    // A region lists its own airlines in capitals and without shares, so that they share alike.
    void WriteRegion(const Place& place) {
        file.Put("[Region:").Put(place.Key).Line("]");
        std::vector<std::size_t> airlines = Choose(atHome[place.Region], 8);
        for (const std::size_t airline : airlines) {
            std::string name = NameOf(airline);
            for (char& character : name) {
                if (character >= 'a' && character <= 'z')
                    character = static_cast<char>(character - 'a' + 'A');
            }
            PutAirline(name, -1);
        }
        file.EndLine();
    }

    void WritePlace(const char* level, const Place& place, std::size_t airlineCount, bool pattern) {
        file.Put('[').Put(level).Put(':').Put(place.Key).Line("]");
        if (pattern) file.Put('#').Line(TailPatternOf(place.Country));
        if (random.Percent(10)) file.Line("; shares as a test pilot would like them");
        PutShares(Choose(atHome[place.Region + "/" + place.Country], airlineCount));
        if (random.Percent(6)) PutAirline(AirlineWithoutAircraft, 20);
        file.EndLine();
    }

  private:
    const std::string& NameOf(std::size_t airline) const { return fleet.Airlines[airline].Name; }

    // Airlines of the place first, then visitors, up to `count`.
    std::vector<std::size_t> Choose(const std::vector<std::size_t>& home, std::size_t count) {
        std::vector<std::size_t> chosen(
            home.begin(), home.begin() + static_cast<std::ptrdiff_t>(std::min(count, home.size())));
        for (int tries = 0; chosen.size() < std::min(count, equipped.size()) && tries < 50; ++tries) {
            const std::size_t visitor = random.Pick(equipped);
            if (std::find(chosen.begin(), chosen.end(), visitor) == chosen.end()) chosen.push_back(visitor);
        }
        return chosen;
    }

    // Shares that add up to 100, the last airline of a long list taking what is left.
    void PutShares(const std::vector<std::size_t>& airlines) {
        static const std::vector<int> shares[] = {{100}, {60, 40}, {50, 30, 20}, {40, 25, 20, -1}};
        if (airlines.empty()) return;
        const std::vector<int>& plan = shares[std::min<std::size_t>(airlines.size(), 4) - 1];
        for (std::size_t i = 0; i < std::min<std::size_t>(airlines.size(), 4); ++i)
            PutAirline(NameOf(airlines[i]), plan[i]);
    }

    void PutAirline(const std::string& name, int percent) {
        file.Put(name);
        if (percent >= 0) file.Put(',').PutNumber(percent);
        file.EndLine();
    }

    TextFile& file;
    const Fleet& fleet;
    Random random;
    std::vector<std::size_t> equipped;
    std::unordered_map<std::string, std::vector<std::size_t>> atHome;  // by region and by region/country
};

void PutHead(TextFile& file, const char* title) {
    file.Line(";---------------------------------------------------------------------------------");
    file.Put("; ").Line(title);
    file.Line(";---------------------------------------------------------------------------------");
    file.EndLine();
}

}  // namespace

void WriteAirlineSets(const std::filesystem::path& path, const std::vector<Airport>& airports,
                      const Fleet& fleet, std::uint64_t seed) {
    Places places = CollectPlaces(airports);
    Apportion(places, fleet.Airlines.size() * 20 / 3);
    TextFile file(path);
    file.Line("; Invented airlines. Line: AIRLINE,PERCENT, or AIRLINE alone for what the others leave.");
    file.Line("; Tail numbers: # and a pattern, where ! is a digit, . a letter, ? one of both.");
    file.EndLine();
    SetWriter sets(file, fleet, seed);
    sets.WriteGlobal();
    PutHead(file, "Regions");
    for (const Place& place : places.Regions) sets.WriteRegion(place);
    PutHead(file, "Countries");
    for (std::size_t i = 0; i < places.Countries.size(); ++i)
        sets.WritePlace("Country", places.Countries[i], 2 + i % 3, true);
    PutHead(file, "States");
    for (const Place& place : places.States) sets.WritePlace("State", place, 3, true);
    PutHead(file, "Cities");
    for (const Place& place : places.Cities) sets.WritePlace("City", place, 2, true);
    PutHead(file, "Airports");
    for (std::size_t i = 0; i < places.Airports.size(); ++i)
        sets.WritePlace("Airport", places.Airports[i], 1 + i % 3, i % 2 == 0);
    file.Close();
}

}  // namespace orlo::world
