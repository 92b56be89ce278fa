#include <gtest/gtest.h>

#include "mainwindow/UndoSnapshot.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

struct UndoWorld : test::FakeProgram {
    UndoWorld() {
        AddFlight("AC#1,N1,50%,24Hr,IFR,10:00:00,11:00:00,350,F,1,EDDF,12:00:00,13:00:00,350,F,2,EDDM");
        session.plan.PlanAircrafts.push_back({"AC#1", "Jet One", "450", 0});
        session.plan.PlanLoaded = true;
    }
    void Change(std::string tail) {
        Flight flight = session.plan.Flights.Unpack(0);
        flight.TailNumber = std::move(tail);
        session.plan.Flights.Replace(0, flight);
        session.plan.PlanAircrafts.clear();
    }
    std::string Tail() const { return std::string(session.plan.Flights.At(0).TailNumber); }
};

TEST(Undo, SingleEditsAreOneStepAndABulkOperationStartsANewOne) {
    UndoWorld world;
    TakeFirstUndoSnapshot(world.context);
    world.Change("N2");
    TakeFirstUndoSnapshot(world.context);
    world.Change("N3");
    ASSERT_TRUE(world.Press(world.form.mnuToolsUndo));
    EXPECT_EQ(world.Tail(), "N1");
    EXPECT_EQ(world.session.plan.PlanAircraftCount(), 1);
    EXPECT_FALSE(world.Press(world.form.mnuToolsUndo)) << "there is nothing left to undo";

    TakeFirstUndoSnapshot(world.context);
    world.Change("N4");
    TakeUndoSnapshot(world.context);
    world.Change("N5");
    world.Press(world.form.mnuToolsUndo);
    EXPECT_EQ(world.Tail(), "N4");
}

TEST(Undo, TheSwitchTakesTheSnapshotAwayForGood) {
    UndoWorld world;
    world.form.mnuToolsUndoOn.checked = true;
    TakeUndoSnapshot(world.context);
    world.Press(world.form.mnuToolsUndoOn);
    EXPECT_FALSE(world.form.mnuToolsUndo.enabled);
    TakeUndoSnapshot(world.context);
    EXPECT_FALSE(world.form.mnuToolsUndo.enabled);
    world.Press(world.form.mnuToolsUndoOn);
    EXPECT_FALSE(world.form.mnuToolsUndo.enabled);
    EXPECT_TRUE(world.context.undo.Flights.Empty());
}

}  // namespace
}  // namespace orlo
