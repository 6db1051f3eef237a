#include <chrono>
#include <optional>
#include <stdexcept>
#include <string>

#include "benchmarks.h"
#include "shell/event_scope.h"

namespace kelvor::bench {

namespace {

constexpr int kRows = 300;
constexpr double kOfAnEvent = 0.1;
constexpr double kUndoSeconds = 0.1;

using SteadyTime = std::chrono::steady_clock::time_point;
using Kind = UserEvent::Kind;

SteadyTime Now() { return std::chrono::steady_clock::now(); }

void SetTime(benchmark::State& state, SteadyTime start) {
    state.SetIterationTime(std::chrono::duration<double>(Now() - start).count());
}

/// Reliabilities that follow each other and differ.
std::string Reliability(int turn) { return turn % 2 == 0 ? "90" : "95"; }

/// A value typed on a screen and left by Enter, with all that follows.
void TypeValue(BenchProgram& program, benchmark::State& state) {
    Program& run = program.program();
    run.Raise({Kind::OpenForm, "DeF"});
    int turn = 0;
    for (auto _ : state) {
        run.Raise({Kind::Focus, "FLEXREL"});
        run.Raise({Kind::Type, {}, Reliability(++turn)});
        const auto start = Now();
        run.Raise({Kind::Key, "Enter"});
        SetTime(state, start);
    }
    run.Raise({Kind::CloseForm, "DeF"});
}

/// The recording alone, of an event that writes one cell with the same screen open.
void RecordStep(BenchProgram& program, benchmark::State& state) {
    ProcessState& process = program.program().state();
    program.program().Raise({Kind::OpenForm, "DeF"});
    UndoHistory history;
    double value = 0.0;
    for (auto _ : state) {
        bool running = false;
        const EventScope event(process, running);
        process.dbWork.SetVar("FLEXREL", value += 1.0);
        process.act = "change of Reliability";
        const std::vector<CellChange> changes = process.dbWork.EventChanges();
        const auto start = Now();
        history.Record(process, event, changes);
        SetTime(state, start);
    }
    program.program().Raise({Kind::CloseForm, "DeF"});
}

/// Another load for each row and turn; pounds.
int LoadOf(int row, int turn) { return 10'000 + row + turn; }

/// Loads and deflections for all rows of the flexible deflection tests.
std::string Block(int turn) {
    std::string block;
    for (int row = 1; row <= kRows; ++row) block += std::to_string(LoadOf(row, turn)) + "\t18.0\t3.55\n";
    return block;
}

std::optional<double> LastLoad(BenchProgram& program) {
    return program.store().FindCell("NDTLOADF", kRows, 1)->number;
}

void UndoPaste(BenchProgram& program, benchmark::State& state) {
    Program& run = program.program();
    run.Raise({Kind::OpenForm, "ReDfF"});
    int turn = 0;
    for (auto _ : state) {
        run.Raise({Kind::MoveToCell, "NDTLOADF", {}, 1});
        const std::optional<double> before = LastLoad(program);
        run.Raise({Kind::PasteCells, {}, Block(++turn)});
        if (LastLoad(program) != LoadOf(kRows, turn)) throw std::runtime_error("nothing was pasted");
        const auto start = Now();
        const bool undone = run.Undo().has_value();
        SetTime(state, start);
        if (!undone || LastLoad(program) != before) throw std::runtime_error("the paste was not undone");
    }
    run.Raise({Kind::CloseForm, "ReDfF"});
}

void Register(const char* name, BenchProgram& program, void (*measure)(BenchProgram&, benchmark::State&)) {
    Repeat(benchmark::RegisterBenchmark(name, [&program, measure](auto& state) { measure(program, state); })
               ->UseManualTime(),
           benchmark::kMicrosecond);
}

}  // namespace

std::vector<Pair> RegisterUndo(BenchProgram& program) {
    Register("Undo/Record", program, RecordStep);
    Register("Undo/Event", program, TypeValue);
    Register("Undo/Paste", program, UndoPaste);
    return {{"recording a step, of a value typed", "Undo/Record", "Undo/Event", Measure::Real, kOfAnEvent},
            {.name = "undo of a paste of 300 tests, beside the longest time",
             .ours = "Undo/Paste",
             .reference = {},
             .measure = Measure::Real,
             .limit = 1.0,
             .longestSeconds = kUndoSeconds}};
}

}  // namespace kelvor::bench
