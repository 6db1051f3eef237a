#include <memory>
#include <stdexcept>

#include "benchmarks.h"
#include "design/calc/bracket_search.h"
#include "design/calc/design_equations.h"
#include "design/calc/solve_for.h"
#include "plain_search.h"
#include "raw_project.h"
#include "shell/calculations.h"

namespace kelvor::bench {

namespace {

const char* const kScreen = "DeF";

constexpr PlainTerms kDesign = {
    .W18 = 5e6, .reliability = 95.0, .S0 = 0.45, .MR = 5000.0, .P0 = 4.2, .Pt = 2.5, .SN = 0.0};

/// Writes the design's terms and solves once. Every later solve finds the same structural number, and a
/// value that a cell has already is not written.
double PrepareSolve(BenchProgram& program) {
    const Dispatch calculations = JoinCalculations();
    const TermNames names = calculations.FindEquation(kScreen, kStructuralNumber)->terms;
    const double values[] = {kDesign.SN, kDesign.W18, kDesign.reliability, kDesign.S0,
                             kDesign.MR, kDesign.P0,  kDesign.Pt};
    for (std::size_t i = 0; i < names.size(); ++i) program.store().SetVar(names[i], values[i]);
    CalcContext context = program.MakeCalcContext();
    if (calculations.SolveForVariable(context, kScreen, kStructuralNumber) != 0) {
        throw std::runtime_error("the structural number is not solved");
    }
    return program.store().GetVar(names[0]).value();
}

void SolveThroughStore(benchmark::State& state, BenchProgram& program) {
    const Dispatch calculations = JoinCalculations();
    PrepareSolve(program);  // other benchmarks may have written since
    CalcContext context = program.MakeCalcContext();
    for (auto _ : state)
        benchmark::DoNotOptimize(calculations.SolveForVariable(context, kScreen, kStructuralNumber));
}

void SolvePlain(benchmark::State& state, PlainTerms terms) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(terms);
        benchmark::DoNotOptimize(SearchStructuralNumber(terms));
    }
}

// --- An overlay with its outputs ------------------------------------------------------------------------

const char* const kOverlay = "OvAA";
constexpr double kLongestOverlayRatio = 6.0;

/// Solves for the future structural number, then works out the effective one and the thickness.
void SolveOverlay(CalcContext& context, const Dispatch& calculations) {
    if (calculations.SolveForVariable(context, kOverlay, kStructuralNumber) != 0) {
        throw std::runtime_error("the overlay is not solved");
    }
    for (const char* output : {"ACACEFFSN", "ACACTHICK"}) calculations.CalcField(context, output, output);
}

void PrepareOverlay(BenchProgram& program) {
    const Dispatch calculations = JoinCalculations();
    const TermNames names = calculations.FindEquation(kOverlay, kStructuralNumber)->terms;
    const double values[] = {kDesign.SN, kDesign.W18, kDesign.reliability, kDesign.S0,
                             kDesign.MR, kDesign.P0,  kDesign.Pt};
    ProjectStore& store = program.store();
    for (std::size_t i = 0; i < names.size(); ++i) store.SetVar(names[i], values[i]);
    store.SetVar("NDTEFFSN", 3.0);
    store.SetVar("ACACOLLC", 0.44);
    CalcContext context = program.MakeCalcContext();
    SolveOverlay(context, calculations);
    const double lack = store.GetVar(names[0]).value() - 3.0;
    if (store.GetVar("ACACTHICK") != lack / 0.44) throw std::runtime_error("the overlay has no thickness");
}

/// Each solve starts and ends an event, and finds and writes another thickness.
void SolveOverlays(benchmark::State& state, BenchProgram& program) {
    PrepareOverlay(program);
    const Dispatch calculations = JoinCalculations();
    CalcContext context = program.MakeCalcContext();
    ProjectStore& store = program.store();
    double effective = 3.0;
    for (auto _ : state) {
        effective = effective < 4.0 ? effective + 1e-4 : 3.0;
        store.BeginEvent();
        store.SetVar("NDTEFFSN", effective);
        SolveOverlay(context, calculations);
        store.EndEvent();
    }
}

/// As one solve for SN above: each finds what the cells have already, and a value that a cell has is not
/// written.
void SolveOverlayAgain(benchmark::State& state, BenchProgram& program) {
    PrepareOverlay(program);
    const Dispatch calculations = JoinCalculations();
    CalcContext context = program.MakeCalcContext();
    for (auto _ : state) SolveOverlay(context, calculations);
}

/// The same search on plain doubles, and the same cells written with SQLite alone.
void SearchAndWrite(benchmark::State& state, PlainTerms terms, RawProject& project) {
    double effective = 3.0;
    for (auto _ : state) {
        effective = effective < 4.0 ? effective + 1e-4 : 3.0;
        project.Begin();
        project.Write("NDTEFFSN", effective);
        benchmark::DoNotOptimize(terms);
        const double future = SearchStructuralNumber(terms);
        project.Write("ACACEFFSN", effective);
        project.Write("ACACTHICK", (future - effective) / 0.44);
        project.Commit();
    }
}

}  // namespace

std::vector<Pair> RegisterSolves(BenchProgram& program, const Path& home) {
    PlainTerms terms = kDesign;
    terms.SN = PrepareSolve(program);
    if (SearchStructuralNumber(terms) != terms.SN) {
        throw std::runtime_error("the plain search finds another structural number");
    }
    const Pair pair{"solve for SN, nothing written", "SolveSN/Store", "SolveSN/PlainDoubles", Measure::Cpu,
                    2.0};
    Repeat(benchmark::RegisterBenchmark(pair.ours.c_str(),
                                        [&program](auto& state) { SolveThroughStore(state, program); }),
           benchmark::kMicrosecond);
    Repeat(benchmark::RegisterBenchmark(pair.reference.c_str(),
                                        [terms](auto& state) { SolvePlain(state, terms); }),
           benchmark::kMicrosecond);
    const Pair again{"an overlay solved, with its outputs, nothing written", "SolveOverlayAgain/Store",
                     "SolveSN/PlainDoubles", Measure::Cpu, kLongestOverlayRatio};
    Repeat(benchmark::RegisterBenchmark(again.ours.c_str(),
                                        [&program](auto& state) { SolveOverlayAgain(state, program); }),
           benchmark::kMicrosecond);
    const Pair overlay{"an overlay solved, with its outputs, beside plain doubles with the same writes",
                       "SolveOverlay/Store", "SolveOverlay/PlainDoubles", Measure::Cpu, kLongestOverlayRatio};
    Repeat(benchmark::RegisterBenchmark(overlay.ours.c_str(),
                                        [&program](auto& state) { SolveOverlays(state, program); }),
           benchmark::kMicrosecond);
    const auto project = std::make_shared<RawProject>(home, "overlay.tmp");
    Repeat(benchmark::RegisterBenchmark(
               overlay.reference.c_str(),
               [terms, project](auto& state) { SearchAndWrite(state, terms, *project); }),
           benchmark::kMicrosecond);
    return {pair, again, overlay};
}

SolveCount CountSolve(BenchProgram& program) {
    SolveCount count;
    const Dispatch calculations = JoinCalculations();
    const double solved = PrepareSolve(program);
    const ProjectStore& store = program.store();
    CalcContext context = program.MakeCalcContext();
    const std::uint64_t before = store.readCount();
    calculations.SolveForVariable(context, kScreen, kStructuralNumber);
    count.reads = static_cast<int>(store.readCount() - before);

    // The search once more of the same parts, counting.
    SearchProblem problem{.low = 0.01, .high = 30.0, .lowers = true, .traffic = {}, .target = kDesign.W18};
    const FlexibleInputs inputs = {kDesign.S0, kDesign.MR, kDesign.P0, kDesign.Pt};
    problem.traffic = [&](Real SN, Real& w18) {
        ++count.evaluations;
        EvaluateFlexible(context, inputs, SN, w18);
    };
    if (SearchBracket(problem, program.clock()).x != solved) {
        throw std::runtime_error("the counted search finds another structural number");
    }
    return count;
}

}  // namespace kelvor::bench
