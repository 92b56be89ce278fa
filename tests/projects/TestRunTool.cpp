#include "projects/RunTool.h"

#include <gtest/gtest.h>

#include <array>

#include "support/FakeProgram.h"

namespace orlo {
namespace {

// An operation that runs the compiler from an event, so that the pump knows that an operation runs.
struct Operation : Form {
    Operation() : Form("frmOperation", "Operation") {}
    std::int32_t code = -1;
};

void RunCompiler(Context& context, Event& event) {
    static_cast<Operation&>(*event.form).code = RunAndWait(context, {"/temp/TCOMPILER.EXE", "/NP", "/temp"});
}

void CloseOperation(Context&, Event& event) {
    event.form->closeRequest = true;
}

constexpr std::array kOperationEvents = {EventEntry{nullptr, EventKind::Help, RunCompiler},
                                         EventEntry{nullptr, EventKind::Close, CloseOperation}};

TEST(RunTool, AToolEndsByItselfByTheCloseBoxOrByAnInterruptAndTheWindowStays) {
    constexpr int kEnded = 143;
    enum class User { Waits, ClosesAndSaysNo, ClosesAndSaysYes, Interrupts };
    const struct {
        const char* name;
        User user;
        bool canStart, neverEnds;
        int waits;
        std::int32_t ownCode, code;
        int eventsProcessed;
    } cases[] = {
        {"ends with its code", User::Waits, true, false, 3, 7, 7, 4},
        {"can't be started", User::Waits, false, false, 0, 7, 0, 0},
        {"is let go on", User::ClosesAndSaysNo, true, false, 3, 0, 0, 4},
        {"is ended", User::ClosesAndSaysYes, true, true, 0, 0, kEnded, 2},
        {"is ended unasked", User::Interrupts, true, true, 0, 0, kEnded, 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        test::FakeProgram fake;
        Operation operation;
        fake.program.pump.AddTable(operation, kOperationEvents);
        fake.program.pump.Windows().Show(operation);
        test::FakeWorld& world = fake.world;
        world.processes.canStart = c.canStart;
        world.processes.neverEnds = c.neverEnds;
        world.processes.waitsBeforeEnd = c.waits;
        world.processes.exitCodes = {c.ownCode};
        if (c.user == User::ClosesAndSaysYes) world.messages.answers = {MessageAnswer::Yes};
        fake.form.enabled = false;
        world.windows.onEvents = [&] {
            if (world.windows.eventsProcessed == 1) {
                EXPECT_EQ(fake.session.tool.Running, "TCOMPILER.EXE");
                EXPECT_FALSE(fake.PressCloseBox(operation)) << "another form's";
                if (c.user == User::Interrupts) world.processes.interrupted = true;
            }
            // The last press comes when the tool has ended.
            const bool closes = c.user == User::ClosesAndSaysNo || c.user == User::ClosesAndSaysYes;
            if (closes && (world.windows.eventsProcessed == 1 || !c.neverEnds)) {
                EXPECT_FALSE(fake.PressCloseBox(fake.form));
            }
        };
        fake.AskForHelp(operation);
        world.windows.onEvents = nullptr;
        EXPECT_EQ(operation.code, c.code);
        EXPECT_EQ(world.windows.eventsProcessed, c.eventsProcessed);
        EXPECT_EQ(fake.session.tool.Running, "");
        const std::string question = "'TCOMPILER.EXE' is still running. Would you like to end it?";
        std::size_t asked = 0;
        if (c.user == User::ClosesAndSaysNo) asked = 3;
        if (c.user == User::ClosesAndSaysYes) asked = 1;
        EXPECT_EQ(world.messages.shown,
                  decltype(world.messages.shown)(asked, {kButtonsYesNo | kMarkQuestion, question}));
        EXPECT_TRUE(fake.PressCloseBox(fake.form)) << "no tool runs any more";
    }
}

}  // namespace
}  // namespace orlo
