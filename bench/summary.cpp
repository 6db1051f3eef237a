#include "summary.h"

#include <fmt/format.h>

#include <algorithm>

namespace kelvor::bench {

namespace {

constexpr int kRepetitions = 21;
constexpr double kSecondsOfOne = 0.05;
constexpr double kMebibyte = 1024.0 * 1024.0;

std::string Amount(double value, Quantity quantity) {
    if (quantity == Quantity::Memory && value < kMebibyte) return fmt::format("{:.1f} kB", value / 1e3);
    if (quantity == Quantity::Memory) return fmt::format("{:.1f} MiB", value / kMebibyte);
    if (value < 1e-6) return fmt::format("{:.1f} ns", value * 1e9);
    if (value < 1e-3) return fmt::format("{:.2f} us", value * 1e6);
    return fmt::format("{:.2f} ms", value * 1e3);
}

std::string Verdict(const Comparison& comparison) {
    if (!comparison.limit) return "";
    return comparison.IsOver() ? "over" : "ok";
}

}  // namespace

void PrintSummary(std::ostream& output, const std::vector<Comparison>& comparisons) {
    std::size_t width = 0;
    for (const Comparison& comparison : comparisons) width = std::max(width, comparison.name.size());
    output << fmt::format("{:{}}  {:>10}  {:>10}  {:>6}  {:>5}  {}\n", "median", width, "ours", "reference",
                          "ratio", "limit", "verdict");
    for (const Comparison& comparison : comparisons) {
        const std::string limit = comparison.limit ? fmt::format("{:g}", *comparison.limit) : "-";
        output << fmt::format("{:{}}  {:>10}  {:>10}  {:>6.2f}  {:>5}  {}\n", comparison.name, width,
                              Amount(comparison.ours, comparison.quantity),
                              Amount(comparison.reference, comparison.quantity), comparison.Ratio(), limit,
                              Verdict(comparison));
    }
}

void MedianReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median") continue;
        const double unit = benchmark::GetTimeUnitMultiplier(run.time_unit);
        medians_[run.run_name.function_name] = {run.GetAdjustedCPUTime() / unit,
                                                run.GetAdjustedRealTime() / unit};
    }
}

std::optional<double> MedianReporter::Median(std::string_view benchmark, Measure measure) const {
    const auto found = medians_.find(benchmark);
    if (found == medians_.end()) return std::nullopt;
    return measure == Measure::Cpu ? found->second.cpu : found->second.real;
}

void Repeat(benchmark::internal::Benchmark* benchmark, benchmark::TimeUnit unit) {
    benchmark->Unit(unit)->Repetitions(kRepetitions)->MinTime(kSecondsOfOne)->ReportAggregatesOnly();
}

}  // namespace kelvor::bench
