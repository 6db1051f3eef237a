#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <random>
#include <thread>

#include "endurance/endurance.h"
#include "support/project_fixture.h"
#include "support/small_home.h"

namespace kelvor::test {

namespace {

constexpr int kEventsToASave = 7;
constexpr int kLongestLife = 20'000;  // microseconds of work

/// Works for ever: enters 1, 2, 3 …, now and then saves, and tells each number once its event has ended.
[[noreturn]] void Work(const Home& home, const std::string& project, int tell) {
    TestHost host;
    host.dialogs.QueueAnswer("no");
    Program program(host.host(), home);
    if (program.Start(project) != StartResult::Running) ::_exit(2);
    for (int number = 1;; ++number) {
        program.SetValue("SN", 1, 1, std::to_string(number));
        if (::write(tell, &number, sizeof number) != sizeof number) ::_exit(3);
        if (number % kEventsToASave == 0) program.Save();
    }
}

/// The last number that was told before the process was killed, a while after the first.
int KillSomewhere(const Home& home, const std::string& project, int microseconds) {
    std::array<int, 2> ends{};
    Hold(::pipe(ends.data()) == 0, "a pipe can be made");
    const pid_t child = ::fork();
    Hold(child >= 0, "a process can be made");
    if (child == 0) {
        ::close(ends[0]);
        Work(home, project, ends[1]);
    }
    ::close(ends[1]);
    int last = 0;
    Hold(::read(ends[0], &last, sizeof last) == sizeof last, "the program works");
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
    ::kill(child, SIGKILL);
    for (int number = 0; ::read(ends[0], &number, sizeof number) == sizeof number;) last = number;
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    Hold(WIFSIGNALED(status), "the program worked until it was killed");
    return last;
}

/// The number in the project file and, if there is one, in the work that was recovered: the later one.
double NumberAfterRestart(const Home& home, const std::string& project) {
    TestHost host;
    Program program(host.host(), home);
    Hold(program.Start("") == StartResult::Running, "the program starts after a kill");
    const bool said = !host.record.TakeTexts().empty();
    Hold(said == program.state().bProjectChanged, "what was not saved is offered, and nothing else");
    const double recovered = program.state().dbWork.GetVar("SN").value();
    Hold(program.OpenProject(project), "the project file is whole");
    Hold(host.record.TakeTexts().empty(), "the project file opens without a message");
    return std::max(recovered, program.state().dbWork.GetVar("SN").value());
}

}  // namespace

std::string KillAndRecover(const Trial& trial) {
    std::mt19937 random(trial.seed);
    const SmallHome home;
    const TemporaryFolder folder;
    const std::string project = folder / "plan.kvr";
    int events = 0;
    for (int kill = 0; kill < trial.count; ++kill) {
        std::filesystem::remove_all(home / "Kept");
        WriteFile(project, ReadFile(home / "kvrwork.tpl"));
        const int last =
            KillSomewhere(home.home(), project, std::uniform_int_distribution<int>(0, kLongestLife)(random));
        const double number = NumberAfterRestart(home.home(), project);
        Hold(number == last || number == last + 1, "the work up to the last event is there: entered " +
                                                       std::to_string(last) + ", found " +
                                                       std::to_string(number));
        events += last;
    }
    return std::to_string(trial.count) + " kills, after " + std::to_string(events) + " events";
}

}  // namespace kelvor::test
