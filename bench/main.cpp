#include <algorithm>
#include <array>
#include <cstring>
#include <exception>
#include <iostream>
#include <iterator>

#include "benchmarks.h"

namespace {

using namespace kelvor::bench;

constexpr int kStatusDone = 0;
constexpr int kStatusOver = 1;
constexpr int kStatusNotRun = 2;

void PrintUsage() {
    std::cout << "Usage: kelvor-bench [--strict] [OPTIONS OF GOOGLE BENCHMARK]\n\n"
                 "Measures the program beside a reference in the same run and prints the ratios.\n"
                 "  --strict                  exit status 1 if a ratio is over its limit\n"
                 "  --benchmark_filter=REGEX  runs only the in-process benchmarks whose name matches\n";
}

/// Takes a word out of the command line. False if it is not there.
bool TakeFlag(std::vector<char*>& arguments, const char* flag) {
    const auto found = std::find_if(arguments.begin() + 1, arguments.end(),
                                    [&](const char* word) { return std::strcmp(word, flag) == 0; });
    if (found == arguments.end()) return false;
    arguments.erase(found);
    return true;
}

/// Hands the rest of the command line to the library. False if it does not understand all of it. The
/// repetitions of all benchmarks are mixed, so that a busy machine slows ours and reference alike.
bool InitializeLibrary(std::vector<char*> arguments) {
    static char mixed[] = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, mixed);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data(), PrintUsage);
    return !benchmark::ReportUnrecognizedArguments(count, arguments.data());
}

std::vector<Pair> RegisterAll(BenchProgram& program, const kelvor::Path& home) {
    std::vector<Pair> pairs;
    for (const auto& some :
         {RegisterReads(program), RegisterSolves(program, home), RegisterWrites(program, home),
          RegisterSpectrum(program), RegisterDeflections(program), RegisterCosts(program),
          RegisterUndo(program), RegisterReports()}) {
        pairs.insert(pairs.end(), some.begin(), some.end());
    }
    return pairs;
}

/// What the pairs gave, without those that a filter left out.
std::vector<Comparison> Compare(const std::vector<Pair>& pairs, const MedianReporter& medians) {
    std::vector<Comparison> comparisons;
    for (const Pair& pair : pairs) {
        const auto ours = medians.Median(pair.ours, pair.measure);
        const auto reference =
            pair.longestSeconds ? pair.longestSeconds : medians.Median(pair.reference, pair.measure);
        if (!ours || !reference) continue;
        comparisons.push_back({pair.name, Quantity::Time, *ours, *reference, pair.limit});
    }
    return comparisons;
}

bool RunBenchmarks() {
    const TemporaryHome home;
    // Before this process grows; see the note on fork at the starts.
    std::vector<Comparison> starts = CompareStarts(home.path());
    const std::vector<Comparison> windows = CompareWindows(home.path());
    starts.insert(starts.end(), windows.begin(), windows.end());
    BenchProgram program(home.path());
    const std::vector<Pair> pairs = RegisterAll(program, home.path());
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::vector<Comparison> comparisons = Compare(pairs, reporter);
    comparisons.insert(comparisons.end(), starts.begin(), starts.end());
    comparisons.push_back(CompareReportSizes());
    std::cout << '\n';
    PrintSummary(std::cout, comparisons);
    const SolveCount solve = CountSolve(program);
    std::cout << "\nA project has " << program.ShuffledNames().size() << " names and " << program.CountCells()
              << " cells. One solve for SN evaluates the equation " << solve.evaluations
              << " times and reads the store " << solve.reads << " times.\n";
    return std::none_of(comparisons.begin(), comparisons.end(), std::mem_fn(&Comparison::IsOver));
}

}  // namespace

int main(int argc, char** argv) {
    try {
        std::vector<char*> arguments(argv, argv + argc);
        const bool strict = TakeFlag(arguments, "--strict");
        if (!InitializeLibrary(arguments)) return kStatusNotRun;
        const bool within = RunBenchmarks();
        benchmark::Shutdown();
        return strict && !within ? kStatusOver : kStatusDone;
    } catch (const std::exception& failure) {
        std::cerr << "kelvor-bench: " << failure.what() << '\n';
        return kStatusNotRun;
    }
}
