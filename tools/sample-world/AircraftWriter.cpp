#include "AircraftWriter.h"

#include <algorithm>
#include <string>

#include "Output.h"

namespace orlo::world {

namespace {

constexpr std::size_t VariantsPerFolder = 12;

// A model file that holds a radius, in feet, where its layout keeps it, and nothing to draw. Layout 1 is a
// RIFF file with the radius at byte 28; layouts 2 and 3 are older files that carry a marker behind the
// radius.
void WriteModelFile(const std::filesystem::path& path, int layout, int radius) {
    Bytes bytes;
    bytes.Fill(4700);
    const auto size = static_cast<std::uint32_t>(radius);
    if (layout == 1) {
        bytes.Set32(0, 0x46464952);  // "RIFF"
        bytes.Set32(4, bytes.Size() - 8);
        bytes.Set32(28, size);
    } else {
        const std::uint32_t marker = layout == 2 ? 4268 : 4612;
        bytes.Set32(marker - 4, size);
        bytes.Set32(marker, 0x003A0076);
        bytes.Set32(marker + 4, 0xFF84);
    }
    WriteBytes(path, bytes.Data());
}

void WriteModelFolder(const std::filesystem::path& folder, int layout, int radius) {
    std::filesystem::create_directories(folder);
    WriteBytes(folder / "model.cfg", "[models]\r\nnormal=main\r\n");
    WriteModelFile(folder / "main.mdl", layout, radius);
}

void WriteAirFile(const std::filesystem::path& path) {
    WriteBytes(path, "sample flight model\r\n");
}

// One section of an aircraft.cfg. Every text can be empty.
struct Section {
    std::string Title, Sim = "sample", Model, Texture, Airline, Variation;
};

void WriteSection(TextFile& file, int number, const AircraftType& type, const Section& section) {
    file.Put(number % 3 == 2 ? "[FLTSIM." : "[fltsim.").PutNumber(number).Line("]");
    file.Put("title=").Line(section.Title);
    file.Put("sim=").Line(section.Sim);
    file.Put("model=").Line(section.Model);
    file.Line("panel=");
    file.Line("sound=");
    file.Put("texture=").Line(section.Texture);
    file.Line("kb_checklists=");
    file.Line("kb_reference=");
    file.Put("atc_id=SMP").PutNumber(number * 7 % 1000, 3).EndLine();
    if (!section.Airline.empty())
        file.Put("atc_airline=").Put(section.Airline).Line(number % 4 == 1 ? " ; call sign" : "");
    file.Put("atc_flight_number=").PutNumber(100 + number).EndLine();
    file.Put("atc_heavy=").PutNumber(type.Heavy ? 1 : 0).EndLine();
    file.Line("ui_manufacturer=Sample Aircraft");
    file.Put("ui_type=").Line(type.Name);
    file.Put("ui_variation=").Line(section.Variation);
    file.Line("visual_damage=0");
    file.Put("description=")
        .Put(type.Name)
        .Line(", an invented aircraft.\\nIt flies in the sample world only.");
    file.EndLine();
}

// Where an aircraft names its type differs from maker to maker: for both in [General], as the type alone, or
// in each section.
enum class Naming { General, TypeAlone, EachSection };

Naming NamingOf(const AircraftType& type) {
    const std::string model = type.Model;
    if (model == "DP34") return Naming::TypeAlone;
    return model == "MP18" ? Naming::EachSection : Naming::General;
}

void WriteGeneral(TextFile& file, const AircraftType& type) {
    file.Line("[General]");
    if (NamingOf(type) == Naming::General) {
        file.Put("atc_type=").Line(type.Maker);
        file.Put("atc_model=").Line(type.Model);
    } else if (NamingOf(type) == Naming::TypeAlone) {
        file.Put("atc_type=").Line(type.Model);
    }
    const Performance& can = PerformanceOf(type);
    file.Put("Performance=Cruise speed\\n").PutNumber(can.CruiseSpeed).Put(" kts\\nRange\\n");
    file.PutNumber(can.MaxRange).Line(" nm");
    file.EndLine();
    file.Line("[Reference Speeds]");
    file.Put("cruise_speed=").Line(type.ConfigSpeed);
    file.EndLine();
}

void WriteSections(const std::filesystem::path& folder, const AircraftType& type,
                   const std::vector<Section>& sections, bool cut = false) {
    TextFile file(folder / "aircraft.cfg");
    file.Put("; ").Put(type.Name).Line(", invented for the sample world");
    file.EndLine();
    for (std::size_t i = 0; i < sections.size(); ++i) {
        WriteSection(file, static_cast<int>(i), type, sections[i]);
        if (NamingOf(type) != Naming::EachSection) continue;
        file.Put("atc_type=").Line(type.Maker);
        file.Put("atc_model=").Line(type.Model);
        file.EndLine();
    }
    WriteGeneral(file, type);
    if (cut) file.Put("[contact_poi");  // as if the maker's editor had died here
    file.Close();
}

Section SectionOf(const Variant& variant, const Fleet& fleet, std::size_t number) {
    Section section;
    section.Title = variant.Title;
    if (number > 0) section.Texture = std::to_string(number);
    if (number % 5 == 4) section.Model.push_back('b');
    if (variant.AirlineIndex >= 0) section.Airline = AirlineOf(fleet, variant).Name;
    section.Variation = variant.AirlineIndex >= 0 ? section.Airline : std::string("Private");
    return section;
}

void WriteTextureFolders(const std::filesystem::path& folder, const std::vector<Section>& sections) {
    for (const Section& section : sections) {
        std::filesystem::create_directories(
            folder / (section.Texture.empty() ? "texture" : "texture." + section.Texture));
    }
}

void WriteTypeFolder(const std::filesystem::path& folder, const AircraftType& type,
                     const std::vector<Section>& sections) {
    WriteModelFolder(folder / "model", type.ModelLayout, type.Radius);
    if (sections.size() > 4) WriteModelFolder(folder / "model.b", type.ModelLayout % 3 + 1, type.Radius + 1);
    WriteTextureFolders(folder, sections);
    WriteAirFile(folder / "sample.air");
    WriteSections(folder, type, sections);
}

// Each of these sections has one fault, which its title names.
void WriteFaultyVariants(const std::filesystem::path& folder, const AircraftType& type,
                         const std::string& takenTitle) {
    std::vector<Section> sections(9);
    sections[0] = {"Sample Oddity - no texture folder", "sample", "", "lost", "", "Oddity"};
    sections[1] = {"Sample Oddity - no model folder", "sample", "none", "", "", "Oddity"};
    sections[2] = {"Sample Oddity - no air file", "missing", "", "", "", "Oddity"};
    sections[3] = {"Sample Oddity - no sim", "", "", "", "", "Oddity"};
    sections[4] = {takenTitle, "sample", "", "", "", "a title that another aircraft has"};
    sections[5] = {"~Sample Oddity - hidden by its first character", "sample", "", "", "", "Oddity"};
    sections[6] = {"", "sample", "", "", "", "no title"};
    sections[7] = {"Sample Oddity - airline without a set",
                   "sample",
                   "",
                   "",
                   AirlineWithoutSet,
                   "Jubil\xE9"
                   "e"};
    sections[8] = {"Sample Oddity - lost model file", "sample", "lost", "", "", "Oddity"};
    WriteModelFolder(folder / "model", type.ModelLayout, type.Radius);
    std::filesystem::create_directories(folder / "model.lost");
    WriteBytes(folder / "model.lost" / "model.cfg", "[models]\r\nnormal=lost\r\n");
    std::filesystem::create_directories(folder / "texture");
    WriteAirFile(folder / "sample.air");
    WriteSections(folder, type, sections, true);
}

void WriteFaultyFolders(const std::filesystem::path& folder, const std::string& takenTitle) {
    AircraftType type = AircraftTypes[9];
    type.Name = "Sample Oddity";
    WriteFaultyVariants(folder / "Sample Oddity", type, takenTitle);

    AircraftType airship = AircraftTypes[0];
    airship.Model = "ZZ01";
    airship.Name = "Sample Airship";
    WriteTypeFolder(folder / "Sample Airship", airship,
                    {{"Sample Airship - of no class", "sample", "", "", "", "Oddity"}});

    AircraftType glider = AircraftTypes[0];
    glider.Model = "GL01";
    glider.Name = "Sample Glider";
    WriteTypeFolder(folder / "Sample Glider", glider,
                    {{"Sample Glider - not used", "sample", "", "", "", "Oddity"}});

    std::filesystem::create_directories(folder / "Sample Empty");
    WriteBytes(folder / "Sample Empty" / "aircraft.cfg", "");
    std::filesystem::create_directories(folder / "Sample Notes");
    WriteBytes(folder / "Sample Notes" / "notes.txt", "A folder without an aircraft.\r\n");
}

}  // namespace

void WriteAircraft(const std::filesystem::path& folder, const Fleet& fleet) {
    for (std::size_t t = 0; t < AircraftTypes.size(); ++t) {
        std::vector<const Variant*> variants;
        for (const Variant& variant : fleet.Variants) {
            if (static_cast<std::size_t>(variant.TypeIndex) == t) variants.push_back(&variant);
        }
        for (std::size_t first = 0; first < variants.size(); first += VariantsPerFolder) {
            std::vector<Section> sections;
            for (std::size_t i = first; i < std::min(variants.size(), first + VariantsPerFolder); ++i) {
                sections.push_back(SectionOf(*variants[i], fleet, i - first));
            }
            std::string name = AircraftTypes[t].Name;
            if (first > 0) name += " (" + std::to_string(first / VariantsPerFolder + 1) + ")";
            WriteTypeFolder(folder / name, AircraftTypes[t], sections);
        }
    }
    if (fleet.FaultyVariants > 0) WriteFaultyFolders(folder, fleet.Variants.front().Title);
}

}  // namespace orlo::world
