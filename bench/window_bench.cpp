#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): setenv

#include <array>
#include <sstream>

#include "benchmarks.h"
#include "child_program.h"
#include "platform/executable_folder.h"

namespace kelvor::bench {

namespace {

constexpr int kStarts = 21;

/// What the window may cost beside another one.
constexpr double kLongestRatio = 2.2;
constexpr double kLargestRatio = 1.6;  // in memory

/// What painting a grid may cost beside a plain table of the toolkit.
constexpr double kLongestGridRatio = 2.0;

constexpr double kOpeningSeconds = 0.030;
constexpr double kKeySeconds = 0.005;
constexpr double kPasteSeconds = 0.100;
constexpr double kPreviewSeconds = 1.0;

/// A time beside the longest that a user shall wait.
Comparison Wait(const std::string& name, double milliseconds, double longestSeconds) {
    return {name, Quantity::Time, milliseconds / 1e3, longestSeconds, 1.0};
}

/// The start and the memory of the window beside those of another program's.
std::array<Comparison, 2> BesideWindow(const std::string& program, const Path& home, const char* other,
                                       const std::string& what) {
    const BothStarted runs =
        StartInTurns({program, home.string()}, {(ExecutableFolder() / other).string()}, kStarts);
    return {Comparison{"window, start to shown, beside " + what, Quantity::Time,
                       Median(runs.ours, &Started::seconds), Median(runs.reference, &Started::seconds),
                       kLongestRatio},
            Comparison{"window, peak memory, beside " + what, Quantity::Memory,
                       Median(runs.ours, &Started::peakBytes), Median(runs.reference, &Started::peakBytes),
                       kLargestRatio}};
}

}  // namespace

std::vector<Comparison> CompareWindows(const Path& home) {
    const Path programs = ExecutableFolder();
    const std::string program = (programs / "kelvor-bench-window").string();
    if (!std::filesystem::exists(program)) return {};  // built without the toolkit
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    std::istringstream answer(Start({program, home.string(), "--timings"}).answer);
    std::string shown;
    double opening = 0.0;
    double key = 0.0;
    double grid = 0.0;
    double plainTable = 0.0;
    std::string slowest;
    double slowestOpening = 0.0;
    double paste = 0.0;
    double previews = 0.0;
    answer >> shown >> opening >> key >> grid >> plainTable >> slowest >> slowestOpening >> paste >> previews;
    const auto empty = BesideWindow(program, home, "kelvor-bench-empty-window", "an empty one");
    const auto plain =
        BesideWindow(program, home, "kelvor-bench-plain-window", "a plain one with as much in it");
    return {empty[0],
            empty[1],
            plain[0],
            plain[1],
            Wait("a design screen opened, beside 30 ms", opening, kOpeningSeconds),
            Wait("a key to the painted field, beside 5 ms", key, kKeySeconds),
            {"a grid of 50 x 10 painted, beside a plain table", Quantity::Time, grid / 1e3, plainTable / 1e3,
             kLongestGridRatio},
            Wait("the slowest of overlays, tests and costs opened (" + slowest + "), beside 30 ms",
                 slowestOpening, kOpeningSeconds),
            Wait("300 x 5 deflections pasted and shown, beside 100 ms", paste, kPasteSeconds),
            Wait("all 14 reports previewed, one after the other, beside 1 s", previews, kPreviewSeconds)};
}

}  // namespace kelvor::bench
