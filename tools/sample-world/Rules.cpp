#include "Rules.h"

#include "AirlineSets.h"
#include "Output.h"

namespace orlo::world {

const std::vector<LevelRule> LevelRules = {
    {-1, -1, 0, 179, 35, 75, 20},       {-1, -1, 180, 359, 45, 65, 20},
    {0, 99, 0, 179, 90, 130, 20},       {0, 99, 180, 359, 80, 140, 20},
    {100, 399, 0, 179, 110, 250, 20},   {100, 399, 180, 359, 120, 240, 20},
    {400, 12000, 0, 179, 290, 410, 20}, {400, 12000, 180, 359, 280, 400, 20},
};

std::string_view TailPatternOf(std::string_view country) {
    struct Row {
        std::string_view Country, Pattern;
    };
    static const Row rows[] = {
        {"United States", "N!!!.."}, {"Canada", "C-F..."},      {"United Kingdom", "G-...."},
        {"Germany", "D-A..."},       {"France", "F-G..."},      {"Norway", "LN-..."},
        {"Switzerland", "HB-I.."},   {"Australia", "VH-..."},   {"Spain", "EC-..."},
        {"Italy", "I-...."},         {"Netherlands", "PH-..."}, {"United Arab Emirates", "A6-..."},
    };
    for (const Row& row : rows) {
        if (row.Country == country) return row.Pattern;
    }
    return "SMP-!!!!";
}

namespace {

const char* const Rule = ";---------------------------------------------------------------------------------";

void PutPerformance(TextFile& file, const char* name, const Performance& can) {
    file.Put(name).Put(',').PutNumber(can.CruiseSpeed).Put(',').PutNumber(can.MinLevel).Put(',');
    file.PutNumber(can.MaxLevel).Put(',').PutNumber(can.MinRange).Put(',').PutNumber(can.MaxRange).Put(',');
    file.PutNumber(can.RunwayLength).Put(',').Put(can.RunwayTypes).Put(',').PutNumber(can.MinParkingRadius);
    file.Put(',').Put(can.ParkingTypes).Put(',').PutNumber(can.IfrPercent);
}

void WriteClasses(const std::filesystem::path& path) {
    TextFile file(path);
    file.Line(Rule);
    file.Line(";------------------------------- A I R C R A F T ---------------------------------");
    file.Line(Rule);
    file.Line(";Format:");
    file.Line(";  ID , Cruise speed , Min. Flight Level , Max. Flight Level ,");
    file.Line(";     Min. Range , Max. Range , Runway Length , Runway Types ,");
    file.Line(";     Min. Parking Radius ,Parking Types , IFR%");
    file.Line(";");
    file.Line(";Runway lengths are compared with the scenery's as they stand there: metres in this");
    file.Line(";world. Parking radii are metres too, and the smallest parking of each airport on the");
    file.Line(";route counts: keep them small.");
    file.Line(Rule);
    for (int c = 0; c < ClassCount; ++c) {
        file.EndLine();
        file.Put('[');
        PutPerformance(file, ClassRows[c].Name, ClassRows[c].Profile);
        file.Line("]");
        for (const AircraftType& type : AircraftTypes) {
            if (type.TypeClass != c) continue;
            if (type.OwnLine) {
                PutPerformance(file, type.Model, type.Own);
                file.EndLine();
            } else {
                file.Line(type.Model);
            }
        }
    }
    file.EndLine();
    file.Line("[Not Used]");
    file.Line("GL01");
    file.Close();
}

void WriteAirlineNames(const std::filesystem::path& path, const Fleet& fleet) {
    TextFile file(path);
    file.Line("; Airlines that an aircraft may carry. All are invented.");
    for (const Airline& airline : fleet.Airlines) file.Line(airline.Name);
    file.Line(AirlineWithoutAircraft);
    file.Close();
}

void WriteModelNames(const std::filesystem::path& path) {
    TextFile file(path);
    file.Line("; Models that an aircraft may carry. All are invented.");
    for (const AircraftType& type : AircraftTypes) file.Line(type.Model);
    file.Line("GL01");
    file.Close();
}

void WriteTypeNames(const std::filesystem::path& path) {
    TextFile file(path);
    file.Line("; Types that an aircraft may carry. All are invented.");
    std::string_view last;
    for (const AircraftType& type : AircraftTypes) {
        if (type.Maker != last) file.Line(type.Maker);
        last = type.Maker;
    }
    file.Line("DP34");
    file.Close();
}

void WriteLevels(const std::filesystem::path& path) {
    TextFile file(path);
    file.Line("; Distance from , Distance to , Course from , Course to , Level from , Level to , Step");
    file.Line("; Distances are nautical miles; -1 stands for VFR flights. The first line that fits counts.");
    for (const LevelRule& rule : LevelRules) {
        const int values[] = {rule.DistanceFrom, rule.DistanceTo, rule.CourseFrom, rule.CourseTo,
                              rule.LevelFrom,    rule.LevelTo,    rule.LevelStep};
        for (const int& value : values) {
            if (&value != values) file.Put(',');
            file.PutNumber(value);
        }
        file.EndLine();
    }
    file.Close();
}

}  // namespace

void WriteRules(const std::filesystem::path& folder, const std::vector<Airport>& airports, const Fleet& fleet,
                std::uint64_t seed) {
    WriteClasses(folder / "ORLO_AC.CFG");
    WriteAirlineSets(folder / "ORLO_AL.CFG", airports, fleet, seed);
    WriteAirlineNames(folder / "ORLO_NAL.CFG", fleet);
    WriteModelNames(folder / "ORLO_NMD.CFG");
    WriteTypeNames(folder / "ORLO_NTP.CFG");
    WriteLevels(folder / "ORLO_FL.CFG");
}

}  // namespace orlo::world
