// The editor of the simulator's aircraft, with 10,000 of them: 200 files of 50 variants, 300 class entries,
// 500 airlines. The limit of a command that looks at all aircraft is to copy them, as cmdUndo does.

#include <benchmark/benchmark.h>

#include "core/Path.h"
#include "core/Text.h"
#include "editors/FSAircraftClass.h"
#include "editors/FSAircraftEditor.h"
#include "simulator/AircraftScan.h"
#include "support/FakeProgram.h"

namespace orlo {
namespace {

constexpr int kFiles = 200;
constexpr int kVariants = 50;
constexpr int kEntries = 300;
constexpr int kAirlines = 500;

std::string Config(int number) {
    std::string text;
    for (int i = 0; i < kVariants; ++i) {
        text += Concat("[fltsim.", i, "]\r\ntitle=Traffic Jet ", number, " paint ", i,
                       "\r\nsim=jet\r\nmodel=\r\ntexture=", i, "\r\natc_airline=Airline ",
                       (number + i) % kAirlines,
                       "\r\nui_manufacturer=Maker\r\nui_type=Jet\r\ndescription=A jet.\\nIt flies.\r\n\r\n");
    }
    return text + Concat("[General]\r\natc_type=JETS\r\natc_model=J", number, "\r\n");
}

struct EditorWorld : test::FakeProgram {
    EditorWorld() {
        for (int i = 0; i < kFiles; ++i) {
            world.files.files[Concat("/sim/Aircraft/Jet ", i, "/aircraft.cfg")] = Config(i);
        }
        session.SimulatorFolder = "/sim";
        for (int i = 0; i < kEntries; ++i) {
            ClassEntry entry;
            entry.ID = Concat('J', i);
            session.rules.Classes.Entries[static_cast<std::size_t>(kClassMicroProp + i % 7)].push_back(entry);
        }
        for (int i = 0; i < kAirlines; ++i) {
            session.rules.AirlineNames.Names.push_back(Concat("Airline ", i));
            session.rules.AirlineNames.SearchText += Concat("*Airline ", i, '*');
        }
    }
    FSAircraftEditForm& editor = program.forms.frmFSAircraftEdit;

    // Runs the loop while the editor is open.
    void InEditor(std::function<void()> loop) {
        inModal = std::move(loop);
        ShowFSAircraftEditor(context);
    }
};

void BenchAircraftEditorScan(benchmark::State& state) {
    EditorWorld program;
    for (auto _ : state) {
        ScanAircraft(program.session.fleet, program.session.rules.Classes, program.world.files, "/sim", true);
    }
}
BENCHMARK(BenchAircraftEditorScan)->Unit(benchmark::kMillisecond);

// With the scan and the end.
void BenchAircraftEditorOpen(benchmark::State& state) {
    EditorWorld program;
    for (auto _ : state) ShowFSAircraftEditor(program.context);
}
BENCHMARK(BenchAircraftEditorOpen)->Unit(benchmark::kMillisecond);

void BenchAircraftEditorCopy(benchmark::State& state) {
    EditorWorld program;
    program.InEditor([&] {
        std::vector<FSAircraft> copy;
        for (auto _ : state) copy = program.session.fleet.FSAircrafts;
    });
}
BENCHMARK(BenchAircraftEditorCopy)->Unit(benchmark::kMillisecond);

template <void (*Act)(EditorWorld& program, std::int64_t round)>
void BenchAircraftEditor(benchmark::State& state) {
    EditorWorld program;
    program.InEditor([&] {
        std::int64_t round = 0;
        for (auto _ : state) Act(program, round++);
    });
}

void TypeTitle(EditorWorld& program, std::int64_t round) {
    program.Type(program.editor.txtTitle, Concat("Title ", static_cast<long long>(round)));
}
void TypeModel(EditorWorld& program, std::int64_t round) {
    program.Type(program.editor.cmATCModel, Concat("J", static_cast<long long>(round % kEntries)));
}
void MoveClass(EditorWorld& program, std::int64_t round) {
    program.ChooseEntry(program.editor.cmClass, static_cast<std::int32_t>(round % 8));
}
void SortErrors(EditorWorld& program, std::int64_t) {
    program.ClickColumn(program.editor.lvAircrafts, 5);
}
void SelectRow(EditorWorld& program, std::int64_t round) {
    program.ClickRow(program.editor.lvAircrafts, static_cast<std::int32_t>(round * 7 % (kFiles * kVariants)));
}
void UndoAll(EditorWorld& program, std::int64_t) {
    UndoFSAircraft(program.context);
}
void SaveTitle(EditorWorld& program, std::int64_t round) {
    TypeTitle(program, round);
    program.Press(program.editor.cmdSave);
}
BENCHMARK(BenchAircraftEditor<TypeTitle>)->Unit(benchmark::kMillisecond);
BENCHMARK(BenchAircraftEditor<TypeModel>)->Unit(benchmark::kMillisecond);
BENCHMARK(BenchAircraftEditor<MoveClass>)->Unit(benchmark::kMillisecond);
BENCHMARK(BenchAircraftEditor<SortErrors>)->Unit(benchmark::kMillisecond);
BENCHMARK(BenchAircraftEditor<SelectRow>)->Unit(benchmark::kMillisecond);
BENCHMARK(BenchAircraftEditor<UndoAll>)->Unit(benchmark::kMillisecond);
BENCHMARK(BenchAircraftEditor<SaveTitle>)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orlo
