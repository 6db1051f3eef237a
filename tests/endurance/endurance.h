#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "support/test_host.h"

namespace kelvor::test {

/// How a line of the endurance run is to be run, and how it came out.
struct Trial {
    unsigned seed = 0;
    int count = 0;  // of repetitions
};

/// What ends a run: something that always holds did not.
class Broken : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Throws Broken with the property that does not hold.
inline void Hold(bool holds, std::string_view property) {
    if (!holds) throw Broken(std::string(property));
}

/// Drops what was asked so far.
inline void Forget(QuestionRecord& record) {
    record.messages.clear();
    record.answers.clear();
    record.inputs.clear();
    record.files.clear();
}

/// Kills the program at random moments of work and save, and starts it again: the project file is whole, and
/// all that was entered before the last event ended is there. What was reached, in words.
std::string KillAndRecover(const Trial& trial);

/// Lets each call by which a session of the program touches a file fail once: every step of it comes about or
/// says why not, comes about the second time, and no work is lost. Of `count` calls, spread over the session;
/// of all of them if it has no more.
std::string FailOnce(const Trial& trial);

/// Starts the program on mutants of the catalogue, the lists and the settings: it starts or says why not,
/// within five seconds, and leaves a good project file as it was.
std::string StartOnMutants(const Trial& trial);

/// Random acts on the model; every hundred acts the work copy is compared with the cells.
std::string ActAtRandom(const Trial& trial);

/// Runs into a disk that is full at a random size, while working and saving; after there is room again the
/// work is saved whole.
std::string FillTheDisk(const Trial& trial);

/// Opens and closes screens, saves and solves, and measures the memory and the open files.
std::string HoldSteady(const Trial& trial);

/// Makes every report of a whole project again and again, and measures the same.
std::string ReportOverAndOver(const Trial& trial);

}  // namespace kelvor::test
