#pragma once

#include <string>
#include <vector>

namespace kelvor::bench {

/// What one run of a program gave.
struct Started {
    double seconds = 0.0;  // from its start to the first byte of its answer
    double peakBytes = 0.0;
    std::string answer;
};

/// Runs a program to its end. Throws std::runtime_error if it fails.
Started Start(const std::vector<std::string>& command);

/// The median of one member over some runs.
double Median(const std::vector<Started>& runs, double Started::*member);

/// Runs two programs in turns, so that a busy machine slows both alike, and gives the runs of each. The first
/// run of each, which brings the files into memory, does not count, but both must answer the same.
struct BothStarted {
    std::vector<Started> ours;
    std::vector<Started> reference;
};
BothStarted StartInTurns(const std::vector<std::string>& ours, const std::vector<std::string>& reference,
                         int times);

}  // namespace kelvor::bench
