#pragma once

#include <string>
#include <vector>

#include "operations/SearchFlights.h"
#include "support/FakeProgram.h"

namespace orlo::test {

// A program with a small plan open. Flights start at the last of their codes.
struct SearchWorld : FakeProgram {
    SearchWorld() {
        AddInstalled("Jet One", "Lufthansa", kClassLargeJet);
        AddInstalled("Prop Two", "", kClassMidProp);
        AddInstalled("Jet Tre", "KLM Cityhopper", kClassHugeJet);
        session.plan.PlanAircrafts = {{"AC#1", "JET ONE", "450", 0},
                                      {"AC#2", "Prop Two", "200", 0},
                                      {"AC#3", "Gone", "400", 0},
                                      {"AC#4", "jet tre", "480", 0}};
        AddAirport("EDDF", "Europe", "Germany", "N50* 2.0'", "E8* 34.0'");
        AddAirport("KEDW", "North America", "United States", "N34* 54.0'", "W117* 53.0'");
        AddAirport("EHAM", "Europe", "Netherlands", "N52* 18.0'", "E4* 45.0'");
        session.rules.FlightLevelRules = {{0, 9999, 0, 359, 250, 390, 20}};
        session.plan.PlanLoaded = true;
    }

    void AddInstalled(std::string_view title, std::string_view airline, std::int32_t aircraftClass) {
        FSAircraft& aircraft = FakeProgram::AddInstalled(title);
        aircraft.Airline = airline;
        aircraft.Class = aircraftClass;
        aircraft.MinFL = 100;
        aircraft.MaxFL = 410;
    }

    void AddAirport(std::string code, std::string region, std::string country, std::string latitude,
                    std::string longitude) {
        AddPlanAirport(code, std::move(latitude), std::move(longitude));
        AirportRecord& record = session.scenery.Airports.emplace_back();
        record.ICAO = std::move(code);
        record.Region = std::move(region);
        record.Country = std::move(country);
    }

    void Add(const std::string& line, bool removed = false) {
        AddFlight(line);
        session.plan.Flights.SetRemoved(session.plan.FlightCount() - 1, removed);
    }

    // Places of the results.
    const std::vector<std::int32_t>& Found() const { return session.search.SearchResultIndex; }

    // A row of the list as displayed, texts joined by "|".
    std::string Row(std::int32_t position) const {
        const ListView& list = form.lvExPreview;
        std::string row;
        for (std::size_t i = 0; i < list.columns.size(); ++i) {
            row.append(i == 0 ? "" : "|");
            row.append(list.Text(list.PlaceAt(position), static_cast<std::int32_t>(i)));
        }
        return row;
    }
};

}  // namespace orlo::test
