// Runs what wears the program out, and prints a table of what was reached:
//
//   endurance_run                     every line in its short form, as in every test run
//   endurance_run SCALE [SEED]        SCALE times as much
//   endurance_run SCALE SEED LINE     one line alone, by its place from 1
//
// A line that breaks is told with its seed, and the exit status is 1.

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "endurance/endurance.h"

namespace kelvor::test {
namespace {

struct Line {
    const char* what;
    std::string (*run)(const Trial&);
    int shortCount;
};

constexpr std::array kLines = {
    Line{"kill at random moments of work and save", KillAndRecover, 10},
    Line{"every file and database operation fails once", FailOnce, 40},
    Line{"mutated catalogue, lists, settings, template", StartOnMutants, 40},
    Line{"random acts on the model", ActAtRandom, 1000},
    Line{"full disk during work and save", FillTheDisk, 20},
    Line{"memory and open files", HoldSteady, 200},
    Line{"memory and open files of reports", ReportOverAndOver, 20},
};

/// False if the line broke.
bool Run(const Line& line, const Trial& trial) {
    const auto start = std::chrono::steady_clock::now();
    std::string reached;
    bool held = true;
    try {
        reached = line.run(trial);
    } catch (const std::exception& broken) {
        held = false;
        reached = std::string("BROKEN, seed ") + std::to_string(trial.seed) + ": " + broken.what();
    }
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    std::printf("| %s | %s | %.0f s |\n", line.what, reached.c_str(), time.count());
    std::fflush(stdout);
    return held;
}

}  // namespace
}  // namespace kelvor::test

int main(int argc, char** argv) {
    using namespace kelvor::test;
    const int scale = argc > 1 ? std::atoi(argv[1]) : 1;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 20010203U;
    std::printf("seed %u\n\n| What | Reached | Time |\n|---|---|---|\n", seed);
    bool held = true;
    const int only = argc > 3 ? std::atoi(argv[3]) : 0;
    int place = 0;
    for (const Line& line : kLines) {
        if (only != 0 && ++place != only) continue;
        held = Run(line, {seed, line.shortCount * scale}) && held;
    }
    return held ? EXIT_SUCCESS : EXIT_FAILURE;
}
