#include <stdexcept>

#include "benchmarks.h"
#include "shell/calculations.h"

namespace kelvor::bench {

namespace {

constexpr int kRows = 50;
constexpr double kLongestSeconds = 0.002;

/// A load spectrum of single, tandem and tridem axles in every row, and the parameters of its traffic.
void FillSpectrum(ProjectStore& store) {
    const char* const types[] = {"Single", "Tandem", "Tridem"};
    store.BeginEvent();
    for (int row = 1; row <= kRows; ++row) {
        store.SetCell("AxleType", row, 1, {std::nullopt, types[row % 3]});
        store.SetVarDim("AxleWeight", row, 1, 2.0 + 0.8 * row);
        store.SetVarDim("NumOfAxles", row, 1, 1000.0 / row);
    }
    store.SetVar("TrafficDEPTH", 9.0);
    store.SetVar("TrafficSN", 5.0);
    store.SetVar("PT", 2.5);
    store.SetVar("Life", 20.0);
    store.SetVar("TrPer", 1.0);
    store.SetVar("TRFACTYPE", 2.0);
    store.SetVar("TRWAY", 2.0);
    store.SetVar("TRDIRDIS", 50.0);
    store.SetVar("TRLANDIS", 80.0);
    store.EndEvent();
}

/// One event: a new growth rate, then every row, then the totals. All 102 results differ from before, so all
/// are written to the work copy.
void ChangeGrowth(BenchProgram& program, const Dispatch& calculations, double growth) {
    ProjectStore& store = program.store();
    CalcContext context = program.MakeCalcContext();
    store.BeginEvent();
    store.SetVar("GrowthRate", growth);
    for (int row = 1; row <= kRows; ++row) calculations.CalcCell(context, "RE18", row, 1, "TrRE18");
    for (int row = 1; row <= kRows; ++row) calculations.CalcCell(context, "FE18", row, 1, "TrFE18");
    calculations.CalcField(context, "RIGE18", "TrRE18T");
    calculations.CalcField(context, "FLEXE18", "TrFE18T");
    store.EndEvent();
}

/// What is measured must be the whole work: another growth gives other ESALs in every row.
void CheckSpectrum(BenchProgram& program, const Dispatch& calculations) {
    ProjectStore& store = program.store();
    ChangeGrowth(program, calculations, 1.0);
    std::vector<double> before;
    for (int row = 1; row <= kRows; ++row) before.push_back(store.GetVarDim("FE18", row, 1).value());
    ChangeGrowth(program, calculations, 2.0);
    for (int row = 1; row <= kRows; ++row) {
        if (!(store.GetVarDim("FE18", row, 1) > before[static_cast<std::size_t>(row - 1)])) {
            throw std::runtime_error("the spectrum is not recalculated");
        }
    }
}

}  // namespace

std::vector<Pair> RegisterSpectrum(BenchProgram& program) {
    const Pair pair{.name = "a new growth rate for an axle spectrum of 50 rows, beside 2 ms",
                    .ours = "Spectrum/Store",
                    .reference = {},
                    .measure = Measure::Real,
                    .limit = 1.0,
                    .longestSeconds = kLongestSeconds};
    Repeat(benchmark::RegisterBenchmark(pair.ours.c_str(),
                                        [&program](auto& state) {
                                            const Dispatch calculations = JoinCalculations();
                                            FillSpectrum(program.store());
                                            CheckSpectrum(program, calculations);
                                            double growth = 2.0;
                                            for (auto _ : state) {
                                                growth = growth < 5.0 ? growth + 1e-4 : 2.0;
                                                ChangeGrowth(program, calculations, growth);
                                            }
                                        }),
           benchmark::kMicrosecond);
    return {pair};
}

}  // namespace kelvor::bench
