#include <array>
#include <cmath>
#include <stdexcept>

#include "benchmarks.h"
#include "plain_deflections.h"
#include "shell/calculations.h"

namespace kelvor::bench {

namespace {

constexpr double kFlexibleSeconds = 0.015;
constexpr double kSlabSeconds = 0.005;
constexpr double kBesidePlainLoop = 3.0;
constexpr double kSlopeOfFour = 5.0;  // 4 is a straight line

/// A kind of tests: the columns of results in their order, and the averages.
struct TestKind {
    const char* name;
    std::vector<const char*> columns;
    std::vector<const char*> averages;
    const char* changed;  // an input of all tests that moves every result
    double from, to;
    double longestSeconds;
};

std::array<TestKind, 3> Kinds() {
    return {{{"Flexible",
              {"NDTRM", "NDTEFFEP"},
              {"AVGNDTRM", "AVGNDTEFFEP"},
              "NDTR",
              36.0,
              40.0,
              kFlexibleSeconds},
             {"Rigid",
              {"AREA", "BACKL", "DYNK", "STATK", "NDTE"},
              {"AVGBACKL", "AVGSTATK", "AVGNDTE"},
              "Radius",
              5.0,
              7.0,
              kSlabSeconds},
             {"Composite",
              {"AREAC", "BACKLC", "DYNKC", "STATKC", "NDTEC"},
              {"AVGBACKLC", "AVGSTATKC", "AVGNDTEC"},
              "ACACPCACT",
              3.0,
              5.0,
              kSlabSeconds}}};
}

void FillTests(ProjectStore& store, int tests) {
    store.BeginEvent();
    for (const auto& [name, value] : {std::pair{"NDTR", 36.0},
                                      {"NDTRMC", 0.33},
                                      {"Radius", 5.9},
                                      {"NDTEFFD", 12.0},
                                      {"Poisson", 0.15},
                                      {"EXISTDEPTH", 9.0},
                                      {"NDTEAC", 500'000.0},
                                      {"ACACPCACT", 4.0},
                                      {"BOND", 1.0}}) {
        store.SetVar(name, value);
    }
    for (int row = 1; row <= tests; ++row) {
        const double more = 1.0 + 0.001 * row;
        for (const auto& [name, value] : {std::pair{"NDTLOADF", 9000.0},
                                          {"D0F", 18.0},
                                          {"DR", 3.55},
                                          {"NDTLOAD", 9000.0},
                                          {"D0", 4.0},
                                          {"D12", 3.4},
                                          {"D24", 2.7},
                                          {"D36", 2.0},
                                          {"NDTLOADC", 9000.0},
                                          {"D0C", 4.5},
                                          {"D12C", 3.4},
                                          {"D24C", 2.7},
                                          {"D36C", 2.0}}) {
            store.SetVarDim(name, row, 1, value * more);
        }
    }
    store.EndEvent();
}

/// One event: another value of the shared input, then each column in every row, then the averages.
void ChangeInput(BenchProgram& program, const Dispatch& calculations, const TestKind& kind, int tests,
                 double value) {
    ProjectStore& store = program.store();
    CalcContext context = program.MakeCalcContext();
    store.BeginEvent();
    store.SetVar(kind.changed, value);
    for (const char* column : kind.columns) {
        for (int row = 1; row <= tests; ++row) calculations.CalcCell(context, column, row, 1, column);
    }
    for (const char* average : kind.averages) calculations.CalcField(context, average, average);
    store.EndEvent();
}

/// What is measured must be the whole work: another input gives another last test.
void CheckTests(BenchProgram& program, const Dispatch& calculations, const TestKind& kind, int tests) {
    const char* last = kind.columns.front();
    if (std::string_view(kind.name) == "Rigid") last = "DYNK";
    ChangeInput(program, calculations, kind, tests, kind.from);
    const Real before = program.store().GetVarDim(last, tests, 1);
    ChangeInput(program, calculations, kind, tests, kind.to);
    if (before == 0.0 || program.store().GetVarDim(last, tests, 1) == before) {
        throw std::runtime_error("the tests are not recalculated");
    }
}

/// Another value at each turn, so that every result is written.
double NextValue(const TestKind& kind, double value) {
    return value < kind.to ? value + (kind.to - kind.from) * 1e-4 : kind.from;
}

std::string NameOf(const TestKind& kind, int tests) {
    return std::string("Deflections/") + kind.name + "/" + std::to_string(tests);
}

void RegisterKind(BenchProgram& program, const TestKind& kind, int tests) {
    Repeat(benchmark::RegisterBenchmark(NameOf(kind, tests).c_str(),
                                        [&program, kind, tests](auto& state) {
                                            const Dispatch calculations = JoinCalculations();
                                            FillTests(program.store(), tests);
                                            CheckTests(program, calculations, kind, tests);
                                            double value = kind.from;
                                            for (auto _ : state) {
                                                value = NextValue(kind, value);
                                                ChangeInput(program, calculations, kind, tests, value);
                                            }
                                        }),
           benchmark::kMicrosecond);
}

// --- The same as plain loops on doubles, which write the same cells ------------------------------------

/// One event: an input of all tests, then the results of each row.
using PlainLoop = void (*)(ProjectStore& store, double value, int tests);

void LoopFlexible(ProjectStore& store, double distance, int tests) {
    for (int row = 1; row <= tests; ++row) {
        const double more = 1.0 + 0.001 * row;
        const PlainModuli moduli =
            BackcalculatePlain(PlainTest{9000.0 * more, 18.0 * more, 3.55 * more, distance, 0.33, 5.9, 12.0});
        store.SetVarDim("NDTRM", row, 1, moduli.subgrade);
        store.SetVarDim("NDTEFFEP", row, 1, moduli.pavement);
    }
}

void WriteSlab(ProjectStore& store, const TestKind& kind, int row, const PlainSlab& slab) {
    const double results[] = {slab.area, slab.radius, slab.dynamicK, slab.staticK, slab.modulus};
    for (std::size_t i = 0; i < std::size(results); ++i) store.SetVarDim(kind.columns[i], row, 1, results[i]);
}

void LoopRigid(ProjectStore& store, double plateRadius, int tests) {
    const TestKind kind = Kinds()[1];
    for (int row = 1; row <= tests; ++row) {
        const double more = 1.0 + 0.001 * row;
        WriteSlab(store, kind, row,
                  BackcalculatePlain(PlainSlabTest{9000.0 * more, 4.0 * more, 3.4 * more, 2.7 * more,
                                                   2.0 * more, plateRadius, 0.15, 9.0, 0.0, 0.0}));
    }
}

void LoopComposite(ProjectStore& store, double asphalt, int tests) {
    const TestKind kind = Kinds()[2];
    for (int row = 1; row <= tests; ++row) {
        const double more = 1.0 + 0.001 * row;
        WriteSlab(store, kind, row,
                  BackcalculatePlain(PlainSlabTest{9000.0 * more, 4.5 * more, 3.4 * more, 2.7 * more,
                                                   2.0 * more, 5.9, 0.15, 9.0, asphalt, 500'000.0}));
    }
}

constexpr PlainLoop kPlainLoops[] = {LoopFlexible, LoopRigid, LoopComposite};  // as in Kinds()

std::string PlainNameOf(const TestKind& kind) { return std::string("Deflections/PlainLoop") + kind.name; }

void RegisterPlainLoop(BenchProgram& program, const TestKind& kind, PlainLoop loop, int tests) {
    Repeat(benchmark::RegisterBenchmark(PlainNameOf(kind).c_str(),
                                        [&program, kind, loop, tests](auto& state) {
                                            FillTests(program.store(), tests);
                                            ProjectStore& store = program.store();
                                            double value = kind.from;
                                            for (auto _ : state) {
                                                value = NextValue(kind, value);
                                                store.BeginEvent();
                                                store.SetVar(kind.changed, value);
                                                loop(store, value, tests);
                                                store.EndEvent();
                                            }
                                        }),
           benchmark::kMicrosecond);
}

}  // namespace

std::vector<Pair> RegisterDeflections(BenchProgram& program) {
    std::vector<Pair> pairs;
    const std::array kinds = Kinds();
    for (const TestKind& kind : kinds) {
        for (const int tests : {75, 150, 300}) RegisterKind(program, kind, tests);
        const std::string what = std::string(kind.name) + " deflection tests";
        pairs.push_back({.name = what + ": 300 worked out anew, beside the longest time",
                         .ours = NameOf(kind, 300),
                         .reference = {},
                         .measure = Measure::Real,
                         .limit = 1.0,
                         .longestSeconds = kind.longestSeconds});
        pairs.push_back({.name = what + ": 300 beside 150",
                         .ours = NameOf(kind, 300),
                         .reference = NameOf(kind, 150),
                         .measure = Measure::Cpu,
                         .limit = {}});
        pairs.push_back({.name = what + ": 300 beside 75",
                         .ours = NameOf(kind, 300),
                         .reference = NameOf(kind, 75),
                         .measure = Measure::Cpu,
                         .limit = kSlopeOfFour});
        RegisterPlainLoop(program, kind, kPlainLoops[&kind - kinds.data()], 300);
        pairs.push_back({.name = what + ": 300 beside a plain loop with the same writes",
                         .ours = NameOf(kind, 300),
                         .reference = PlainNameOf(kind),
                         .measure = Measure::Cpu,
                         .limit = kBesidePlainLoop});
    }
    return pairs;
}

}  // namespace kelvor::bench
