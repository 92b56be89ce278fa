#include <gtest/gtest.h>

#include "mainwindow/PlanViews.h"
#include "operations/PrintFlights.h"
#include "operations/SearchRows.h"
#include "operations/SearchWorld.h"

namespace orlo {
namespace {

using test::SearchWorld;
using Places = std::vector<std::int32_t>;

struct SampleSearch : SearchWorld {
    SampleSearch() {
        Add("AC#1,D-ONE,5%,24Hr,IFR,10:00:00,11:00:00,350,F,1,EHAM,12:00:00,13:00:00,330,F,2,EDDF");
        Add("AC#2,N-TWO,99%,8Hr,VFR,10:00:00,20:00:00,350,F,1,EDDF,21:00:00,07:00:00,330,F,2,KEDW");
        Add("AC#3,N-TRE,12%,WEEK,IFR,3/23:30:00,4/00:30:00,350,F,1,KEDW,5/10:00:00,5/11:00:00,350,F,2,EDDF,"
            "6/23:30:00,0/00:30:00,330,F,3,EHAM");
        Add("AC#4,N-FOR,50%,24Hr,ifr,10:00:00,11:00:00,250,F,1,EHAM,12:00:00,13:00:00,270,F,2,ZZZZ");
        Add("AC#9,N-NIN,50%,24Hr,VFR,10:00:00,11:00:00,350,F,1,EHAM,12:00:00,13:00:00,330,F,2,EDDF");
        Add("AC#1,D-ONE,5%,24Hr,IFR,10:00:00,11:00:00,350,F,1,EHAM,12:00:00,13:00:00,330,F,2,EDDF", true);
        Add("ac#1,d-one,5%,24Hr,IFR,10:00:00,@11:00:00,350,F,1,EHAM,12:00:00,13:00:00,330,F,2,EDDF");
        Add("AC#1,D-ONE,5%,24Hr,IFR,10:00:00,11:00:00,350,F,1,EHAM,12:00:00,13:00:00,330,F,2,EDDF");
        ResetExportView(context);
    }
    void Report(SearchMode mode) { SearchFlights(context, "", "", mode); }
};

TEST(Search, CombinesTheFieldsOfTheTab) {
    struct Case {
        bool all = true;
        std::string departure = {}, leg = {}, continent = {}, country = {}, airline = {};
        std::string types = {};  // "I", "V" or both
        int aircraft = 0;        // entry of cmExportAircraft
        std::string className = "#None#";
        Places found = {};
    };
    const std::vector<Case> cases = {
        {.found = {0, 1, 2, 3, 4, 6, 7}},
        {.all = false, .found = {}},
        {.departure = "ed", .found = {0, 1, 4, 6, 7}},
        {.leg = "eddf", .found = {1, 2}},
        {.departure = "ham", .leg = "KED", .found = {2}},
        {.all = false, .departure = "ham", .leg = "EDDF", .found = {1, 2}},
        {.continent = "EURO", .found = {0, 2, 4, 6, 7}},
        {.country = "united", .found = {1}},
        {.departure = "zz", .continent = "e", .found = {}},
        {.all = false, .departure = "zz", .continent = "north", .found = {1, 3}},
        {.airline = "lufthansa", .found = {0, 6, 7}},
        {.airline = "c", .found = {3}},
        {.types = "I", .found = {0, 2, 3, 6, 7}},
        {.types = "V", .found = {1, 4}},
        {.types = "IV", .found = {}},
        {.all = false, .types = "IV", .found = {0, 1, 2, 3, 4, 6, 7}},
        {.aircraft = 1, .found = {0, 6, 7}},
        // An unknown aircraft leaves the test of the class undecided. "ac#1" is unknown: the join has regard
        // to case.
        {.className = "Large Jet", .found = {0, 2, 4, 6, 7}},
        {.all = false, .className = "Large Jet", .found = {0, 7}},
        {.all = false, .types = "V", .className = "Huge Jet", .found = {1, 3, 4}},
    };
    int number = 0;
    for (const Case& one : cases) {
        SampleSearch world;
        MainForm& form = world.form;
        (one.all ? form.opANDSearch : form.opORSearch).Check();
        form.txtExDeparture.text = one.departure;
        form.txtExLeg.text = one.leg;
        form.txtExContinent.text = one.continent;
        form.txtExCountry.text = one.country;
        form.txtExAirline.text = one.airline;
        form.ckExportIFR.checked = one.types.find('I') != std::string::npos;
        form.ckExportVFR.checked = one.types.find('V') != std::string::npos;
        form.cmExportAircraft.index = one.aircraft;
        ASSERT_TRUE(form.cmExClass.SelectText(one.className));
        ASSERT_TRUE(world.Press(form.cmdPreview));
        EXPECT_EQ(world.Found(), one.found) << "case " << number;
        EXPECT_EQ(form.lblExPreview.caption, Concat("Previe&w (", one.found.size(), " flights found)"));
        EXPECT_EQ(form.cmdExportRemainder.enabled, !one.found.empty());
        EXPECT_TRUE(form.enabled);
        ++number;
    }
}

TEST(Search, ReportsFindTheirFaults) {
    const std::vector<std::pair<SearchMode, Places>> cases = {
        {SearchMode::AircraftNotFound, {2, 4, 6}},
        {SearchMode::WrongFlightLevel, {0, 1, 6, 7}},
        {SearchMode::DuplicateFlights, {6, 7}},
        {SearchMode::UnknownAirports, {3}},
    };
    for (const auto& [mode, found] : cases) {
        SampleSearch world;
        world.session.rules.FlightLevelRules.front().LevelFrom = 260;
        world.form.opORSearch.Check();
        world.form.txtExDeparture.text = "nowhere";
        world.Report(mode);
        EXPECT_EQ(world.Found(), found) << "mode " << static_cast<int>(mode);
    }
    SampleSearch world;
    world.session.switches.TATime = 90;
    world.Report(SearchMode::WrongTime);
    EXPECT_EQ(world.Found(), (Places{0, 1, 2, 3, 4, 6, 7}));
    EXPECT_EQ(world.form.lvExPreview.columns.back().caption, "Errors");
    world.form.lvExPreview.SortByColumn(kColumnNumber);
    EXPECT_EQ(world.Row(0).substr(world.Row(0).rfind('|')), "|min. Turn-Around");
    world.Report(SearchMode::UnknownAirports);
    EXPECT_EQ(world.form.lvExPreview.Text(0, kColumnErrors), "ZZZZ");
    world.Report(SearchMode::DuplicateFlights);
    EXPECT_EQ(world.form.lvExPreview.columns.size(), 12u) << "the column of errors goes again";
}

TEST(Search, ALevelThatIsNoNumberIsWrongAndAnUnknownRouteIsRight) {
    SearchWorld world;
    world.Add("AC#1,N1,5%,24Hr,IFR,10:00:00,11:00:00,250,F,1,EHAM,12:00:00,13:00:00,abc,F,2,EDDF");
    world.Add("AC#1,N1,5%,24Hr,IFR,10:00:00,11:00:00,251,F,1,ZZZZ,12:00:00,13:00:00,abc,F,2,EDDF");
    SearchFlights(world.context, "", "", SearchMode::WrongFlightLevel);
    EXPECT_EQ(world.Found(), (Places{0}));
}

TEST(Search, AnAircraftThatIsNotFoundIsShownAsSuch) {
    SampleSearch world;
    ASSERT_TRUE(world.form.cmExZone.SelectText("GMT +01:00"));
    SearchFlights(world.context, "", "", SearchMode::Fields);
    world.form.lvExPreview.SortByColumn(kColumnRegistration);
    EXPECT_EQ(world.Row(0), "# NOT FOUND #||0001|d-one|EDDF|EHAM|24Hr|11:00:00|14:00:00|IFR|330|05%");
    EXPECT_EQ(world.Row(5),
              "# NOT FOUND #||0003|N-TRE|EHAM|KEDW - EDDF|WEEK|4/00:30:00|0/01:30:00|IFR|330|12%");
    PrintFlights(world.context);
    EXPECT_NE(world.world.windows.printed.back().find("AC#3 # NOT FOUND # - N-TRE/12%/WEEK/IFR\r\n"),
              std::string::npos);
}

TEST(Search, WithoutSceneryItEndsAndLeavesTheListAsItWas) {
    SampleSearch world;
    SearchFlights(world.context, "", "", SearchMode::Fields);
    world.session.scenery.Airports.clear();
    world.form.txtExCountry.text = "Germany";
    SearchFlights(world.context, "", "", SearchMode::Fields);
    EXPECT_FALSE(world.form.enabled);
    EXPECT_NE(world.world.progress.lines.back(), "close");
    EXPECT_EQ(world.form.lvExPreview.Count(), 7);
    EXPECT_EQ(world.Row(6).substr(0, 10), "Lufthansa|") << "the rows can still be drawn";
    EXPECT_EQ(world.session.search.SearchResultCount, 0);
}

TEST(Search, EmptyPlanGivesAnEmptyList) {
    SearchWorld world;
    for (const SearchMode mode : {SearchMode::Fields, SearchMode::DuplicateFlights, SearchMode::WrongTime}) {
        SearchFlights(world.context, "", "", mode);
        EXPECT_EQ(world.form.lblExPreview.caption, "Previe&w (0 flights found)");
    }
}

}  // namespace
}  // namespace orlo
