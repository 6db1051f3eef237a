#include <stdexcept>

#include "benchmarks.h"
#include "design/calc/bracket_search.h"
#include "design/calc/design_equations.h"
#include "design/calc/solve_for.h"
#include "plain_search.h"
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

}  // namespace

std::vector<Pair> RegisterSolves(BenchProgram& program) {
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
    return {pair};
}

SolveCount CountSolve(BenchProgram& program) {
    SolveCount count;
    const Dispatch calculations = JoinCalculations();
    const double solved = PrepareSolve(program);
    const ProjectStore& store = program.store();
    CalcContext context = program.MakeCalcContext();
    const std::uint64_t before = store.readCount();
    calculations.SolveForVariable(context, kScreen, kStructuralNumber);
    count.byName = static_cast<int>(store.readCount() - before);

    // The search once more of the same parts, counting.
    const TermNames names = calculations.FindEquation(kScreen, kStructuralNumber)->terms;
    const CellHandle traffic = store.Resolve(names[1]);
    const FlexibleInputs inputs = {store.Resolve(names[3]), store.Resolve(names[4]), store.Resolve(names[5]),
                                   store.Resolve(names[6])};
    int targets = 0;
    SearchProblem problem{.low = 0.01, .high = 30.0, .lowers = true, .traffic = {}, .target = {}};
    problem.traffic = [&](Real SN, Real& w18) {
        ++count.evaluations;
        EvaluateFlexible(context, inputs, SN, w18);
    };
    problem.target = [&]() -> Real {
        ++targets;
        return store.Number(traffic).value();
    };
    if (SearchBracket(problem, program.clock()).x != solved) {
        throw std::runtime_error("the counted search finds another structural number");
    }
    constexpr int kReadsOfEvaluation = 4;    // S0, MR, P0, Pt
    constexpr int kReadsBefore = 1 + 6 + 5;  // the reliability; the terms that must be there; shared parts
    count.byHandle = kReadsBefore + kReadsOfEvaluation * count.evaluations + targets;
    return count;
}

}  // namespace kelvor::bench
