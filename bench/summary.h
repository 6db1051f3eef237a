#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace kelvor::bench {

enum class Quantity { Time, Memory };

/// One line of the summary: ours beside its reference, in seconds or in bytes. A line without a limit
/// only informs.
struct Comparison {
    std::string name;
    Quantity quantity = Quantity::Time;
    double ours = 0.0;
    double reference = 0.0;
    std::optional<double> limit;

    [[nodiscard]] double Ratio() const { return ours / reference; }
    [[nodiscard]] bool IsOver() const { return limit && !(Ratio() <= *limit); }
};

/// Prints the comparisons as one aligned table.
void PrintSummary(std::ostream& output, const std::vector<Comparison>& comparisons);

/// Which of a benchmark's two times counts.
enum class Measure { Cpu, Real };

/// Prints the benchmarks as they are run and keeps the median of each one's repetitions.
class MedianReporter : public benchmark::ConsoleReporter {
  public:
    MedianReporter() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& runs) override;

    /// The median in seconds; nothing if the benchmark was not run.
    [[nodiscard]] std::optional<double> Median(std::string_view benchmark, Measure measure) const;

  private:
    struct Times {
        double cpu = 0.0;
        double real = 0.0;
    };
    std::map<std::string, Times, std::less<>> medians_;
};

/// Repeats a benchmark so often that its median is worth comparing.
void Repeat(benchmark::internal::Benchmark* benchmark, benchmark::TimeUnit unit);

}  // namespace kelvor::bench
