#include <gtest/gtest.h>

#include "mainwindow/EnabledControls.h"
#include "mainwindow/PlanViews.h"
#include "operations/ExportFlights.h"
#include "operations/SearchWorld.h"

namespace orlo {
namespace {

// Seven flights between EDDF and EHAM whose tail numbers are N0 to N6, all found.
struct EditWorld : test::SearchWorld {
    EditWorld() {
        for (int i = 0; i < 7; ++i) {
            Add(Concat("AC#1,N", i,
                       ",5%,24Hr,IFR,10:00:00,11:00:00,350,F,1,EHAM,12:00:00,13:00:00,330,F,2,EDDF"));
        }
        session.plan.FlightplanPath = "/plan/FlightPlans.txt";
        ResetExportView(context);
        SearchFlights(context, "", "", SearchMode::Fields);
        EnableExportPane(context);
    }
    // The user's work in the editor: changes the tail number and accepts, or cancels.
    void EditorSays(std::string tail) {
        inModal = [this, tail] {
            FlightEditForm& editor = program.forms.frmFlightEdit;
            Type(editor.txtReg, tail);
            Leave(editor.txtReg);
            Press(tail.empty() ? editor.cmdCancel : editor.cmdOK);
        };
    }
    // Registrations of the plan, "-" behind removed ones.
    std::string Tails() const {
        const FlightList& flights = session.plan.Flights;
        std::string tails;
        for (std::int32_t i = 0; i < flights.Count(); ++i)
            tails.append(flights.At(i).TailNumber).append(flights.Removed(i) ? "- " : " ");
        return tails;
    }
    std::string LinesOf(const std::string& path) const {
        std::string tails;
        for (const std::string_view line : SplitText(world.files.files.at(path), '\n')) {
            if (line.size() > 1) tails.append(SplitText(line, ',')[1]).append(" ");
        }
        return tails;
    }
    std::string Said() const { return world.messages.shown.back().second; }
};

TEST(SingleEdits, DeletedFlightsLeaveTheListAndStayInThePlan) {
    EditWorld world;
    const auto remove = [&](const std::vector<std::int32_t>& places) {
        world.SelectRows(world.form.lvExPreview, places);
        world.world.messages.answers = {MessageAnswer::Yes};
        EXPECT_TRUE(world.Press(world.form.cmdDeleteFlight));
    };
    remove({1, 3});
    EXPECT_EQ(world.Tails(), "N0 N1- N2 N3- N4 N5 N6 ");
    EXPECT_EQ(world.session.search.SearchResultCount, 7);
    world.world.windows.paths = {"/plan/Out.txt"};
    ExportFlights(world.context);
    EXPECT_EQ(world.LinesOf("/plan/Out.txt"), "N0 N2 N4 N5 N6 ");
    EXPECT_EQ(world.LinesOf("/plan/Removed Flights.txt"), "N1 N3 ");

    remove({0, 2, 4, 5, 6});
    EXPECT_EQ(world.form.lblExPreview.caption, "Previe&w");
    EXPECT_FALSE(world.form.cmdExport.enabled);
    SearchFlights(world.context, "", "", SearchMode::Fields);
    EXPECT_EQ(world.form.lvExPreview.Count(), 0);
    ASSERT_TRUE(world.Press(world.form.mnuToolsUndo));
    EXPECT_EQ(world.Tails(), "N0 N1 N2 N3 N4 N5 N6 ") << "all deletions are one step";
}

TEST(SingleEdits, TheRemainderIsWhatWasNotFound) {
    EditWorld world;
    world.session.plan.Flights.SetRemoved(6, true);
    for (const std::int32_t place : {1, 4}) {
        Flight moved = world.session.plan.Flights.Unpack(place);
        moved.Legs.back().Destination = "KEDW";
        world.session.plan.Flights.Replace(place, moved);
    }
    SearchFlights(world.context, "KED", "", SearchMode::Fields);
    world.world.windows.paths = {"/plan/Rest.txt"};
    ExportRemainder(world.context);
    EXPECT_EQ(world.Said(), "Successfully exported 5 flights.");
    EXPECT_EQ(world.LinesOf("/plan/Rest.txt"), "N0 N2 N3 N5 ");
    EXPECT_EQ(world.LinesOf("/plan/Removed Flights.txt"), "N6 ");
    EXPECT_FALSE(world.session.plan.PlanModified);
}

TEST(SingleEdits, AnEditedFlightGoesBackToItsPlace) {
    EditWorld world;
    world.form.lvExPreview.current = 2;
    world.EditorSays("");
    ASSERT_TRUE(world.Press(world.form.cmdEditFlight));
    EXPECT_FALSE(world.session.plan.PlanModified);
    world.EditorSays("D-NEW");
    Event doubleClick{&world.form, &world.form.lvExPreview, EventKind::DoubleClick, 2};
    ASSERT_TRUE(world.program.pump.Deliver(doubleClick));
    EXPECT_EQ(world.Tails(), "N0 N1 D-NEW N3 N4 N5 N6 ");
    EXPECT_EQ(world.form.lvExPreview.Text(2, 3), "D-NEW");
    EXPECT_TRUE(world.session.plan.PlanModified);
    EXPECT_TRUE(world.form.enabled);
}

// A user may add flights before any search, and delete all that are shown in between. One that was given up
// is exported, uncounted, until the next search.
TEST(SingleEdits, FlightsAreAddedToAnEmptyList) {
    EditWorld world;
    ResetExportView(world.context);
    for (const char* tail : {"D-ONE", "D-TWO", ""}) {
        world.EditorSays(tail);
        ASSERT_TRUE(world.Press(world.form.cmdAddFlight));
        if (*tail == 0) continue;
        EXPECT_EQ(world.form.lvExPreview.Count(), 1);
        EXPECT_EQ(world.form.lvExPreview.Text(world.form.lvExPreview.current, 3), tail);
        EXPECT_TRUE(world.form.cmdExportPrint.enabled);
        world.form.lvExPreview.SelectAll(true);
        world.world.messages.answers = {MessageAnswer::Yes};
        ASSERT_TRUE(world.Press(world.form.cmdDeleteFlight));
    }
    EXPECT_EQ(world.Tails(), "N0 N1 N2 N3 N4 N5 N6 D-ONE- D-TWO- ");
    world.world.windows.paths = {"/plan/Out.txt", "/plan/Next.txt"};
    ExportFlights(world.context);
    EXPECT_EQ(world.Said(), "Successfully exported 0 flights.");
    EXPECT_EQ(world.LinesOf("/plan/Out.txt"), "N700MS ");
    SearchFlights(world.context, "", "", SearchMode::Fields);
    ExportFlights(world.context);
    EXPECT_EQ(world.LinesOf("/plan/Next.txt"), "N0 N1 N2 N3 N4 N5 N6 ");
}

}  // namespace
}  // namespace orlo
