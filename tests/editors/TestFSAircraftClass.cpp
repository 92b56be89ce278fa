#include "editors/FSAircraftClass.h"

#include <gtest/gtest.h>

#include "config/AircraftClasses.h"
#include "editors/FSAircraftEditor.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

ClassEntry Entry(std::string_view line) {
    ClassEntry entry;
    ParseClassEntry(entry, line);
    return entry;
}

TEST(FSAircraftClass, AnEntryMovesToTheEndWithItsLimitsAndTheGapCloses) {
    ClassLists lists;
    lists.Entries[kClassSmallJet] = {Entry("A"), Entry("B,1,2,3,4,5,6,HARD,7,GATE,8"), Entry("b")};
    lists.Entries[kClassNotUsed] = {Entry("C")};
    EXPECT_FALSE(MoveClassEntry(lists, kClassSmallJet, kClassNotUsed, "c"));
    EXPECT_FALSE(MoveClassEntry(lists, kClassNone, kClassNotUsed, ""));
    EXPECT_TRUE(MoveClassEntry(lists, kClassSmallJet, kClassNotUsed, "B"));
    EXPECT_EQ(lists.Entries[kClassSmallJet], (std::vector{Entry("A"), Entry("b")}));
    EXPECT_EQ(lists.Entries[kClassNotUsed], (std::vector{Entry("C"), Entry("B,1,2,3,4,5,6,HARD,7,GATE,8")}));
}

TEST(FSAircraftClass, AnIDBecomesALineOfTheFile) {
    const struct {
        std::string_view typed, id;
    } cases[] = {{" 737 ", "737"}, {"A,B", "A B"}, {"[[ X]", "X]"}, {" , [,", ""}, {"", ""}, {"a;b", "a;b"}};
    for (const auto& c : cases) EXPECT_EQ(EntryID(c.typed), c.id) << c.typed;
}

// The classes can't be written: what was written before stays written, the rest can be undone.
TEST(FSAircraftEditor, AfterAFailedSaveUndoBringsBackWhatIsNotInTheFiles) {
    test::FakeProgram program;
    auto& files = program.world.files;
    files.files["/sim/Aircraft/a/aircraft.cfg"] = "[fltsim.0]\ntitle=A\natc_model=M\n";
    files.files["/program/ORLO_AC.CFG"] = "old";
    program.session.SimulatorFolder = "/sim";
    program.session.rules.Classes.Entries[kClassMidProp] = {Entry("M")};
    program.inModal = [&] {
        auto& form = program.program.forms.frmFSAircraftEdit;
        program.Type(form.txtTitle, "B");
        program.Choose(form.cmClass, "Huge Jet");
        EXPECT_EQ(program.session.fleet.FSAircrafts[0].Class, kClassHugeJet);
        files.commitsBeforeKill = 3;  // aircraft.cfg and both backups
        program.Press(form.cmdSave);
        EXPECT_TRUE(form.cmdSave.enabled);
        program.Press(form.cmdUndo);
        files.commitsBeforeKill = -1;
    };
    ShowFSAircraftEditor(program.context);
    const FSAircraft& aircraft = program.session.fleet.FSAircrafts.at(0);
    EXPECT_EQ(files.files["/sim/Aircraft/a/aircraft.cfg"], "[fltsim.0]\ntitle=B\natc_model=M\n");
    EXPECT_EQ(files.files["/program/ORLO_AC.CFG"], "old");
    EXPECT_EQ(aircraft.Title, "B");
    EXPECT_EQ(aircraft.Class, kClassMidProp);
    EXPECT_EQ(program.session.rules.Classes.Entries[kClassMidProp].size(), 1u);
    EXPECT_EQ(program.form.sbMain.text, "Not written: [/program/ORLO_AC.CFG].");
}

TEST(FSAircraftEditor, AFolderIsCopiedWholeOrNotAtAll) {
    for (const bool fails : {false, true}) {
        test::FakeProgram program;
        auto& files = program.world.files;
        files.files["/sim/Aircraft/a/aircraft.cfg"] = "[fltsim.0]\ntitle=A\ntexture=old\n";
        files.files["/sim/Aircraft/a/texture.old/one.bmp"] = "1";
        files.files["/sim/Aircraft/a/texture.old/night/two.bmp"] = "22";
        const auto before = files.files;
        program.session.SimulatorFolder = "/sim";
        program.inModal = [&] {
            auto& form = program.program.forms.frmFSAircraftEdit;
            files.failAfterBytes = fails ? 1 : -1;
            program.world.messages.answers = {MessageAnswer::Yes};
            program.Type(form.txtTexture, "new");
            program.Leave(form.txtTexture);
            files.failAfterBytes = -1;
        };
        ShowFSAircraftEditor(program.context);
        EXPECT_EQ(files.files.contains("/sim/Aircraft/a/texture.new/night/two.bmp"), !fails);
        EXPECT_EQ(files.FolderExists("/sim/Aircraft/a/texture.new"), !fails);
        EXPECT_EQ(files.files.size(), before.size() + (fails ? 0 : 2));
    }
}

}  // namespace
}  // namespace orlo
