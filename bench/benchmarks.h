#pragma once

#include <string>
#include <vector>

#include "bench_program.h"
#include "summary.h"

namespace kelvor::bench {

/// A pair of registered benchmarks that the summary compares; or one, beside the longest time that it may
/// take.
struct Pair {
    std::string name;  // for the summary
    std::string ours;  // the names of the two benchmarks
    std::string reference;
    Measure measure = Measure::Cpu;
    std::optional<double> limit;
    std::optional<double> longestSeconds = {};
};

/// Each of the following registers benchmarks and gives the pairs to compare. The program and the home
/// must outlive the run.

/// A keyed read by name, against a hash table of the standard library with the same names.
std::vector<Pair> RegisterReads(BenchProgram& program);

/// A solve for the structural number that writes nothing, and one of an overlay with its outputs, against the
/// same search on plain doubles, the second with the same cells written.
std::vector<Pair> RegisterSolves(BenchProgram& program, const Path& home);

/// A write through to the work copy inside an event, and the end of an event that wrote one cell, both
/// against SQLite alone.
std::vector<Pair> RegisterWrites(BenchProgram& program, const Path& home);

/// All ESALs of a spectrum of axles once a parameter of the traffic has changed.
std::vector<Pair> RegisterSpectrum(BenchProgram& program);

/// All deflection tests of a day once an input that they share has changed: 75, 150 and 300 of each kind,
/// against a plain loop that writes the same cells.
std::vector<Pair> RegisterDeflections(BenchProgram& program);

/// The cost summary and the histogram opened, and a cell of a page of costs written.
std::vector<Pair> RegisterCosts(BenchProgram& program);

/// A step of the undo history recorded, beside the event that it is a step of; and a paste of 300 rows
/// undone.
std::vector<Pair> RegisterUndo(BenchProgram& program);

/// All reports of a project staged and filled, and written as PDF, against as many empty pages.
std::vector<Pair> RegisterReports();

/// The largest report of a project as PDF, beside the most that it may be.
Comparison CompareReportSizes();

/// How often one solve for the structural number reads the store, and what it does meanwhile.
struct SolveCount {
    int reads = 0;
    int evaluations = 0;  // of the design equation, during the search
};
SolveCount CountSolve(BenchProgram& program);

/// Starts kelvor-cli and the reference in turns, to their first answer, and compares the medians of time
/// and of peak memory.
std::vector<Comparison> CompareStarts(const Path& home);

/// Starts the window in turns with an empty one, and with a plain one with as much in it, without a display,
/// and compares them; then how long screens take to open, a key to be seen and a block of tests to be pasted.
/// Nothing if the window was not built.
std::vector<Comparison> CompareWindows(const Path& home);

}  // namespace kelvor::bench
