#include "child_program.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <stdexcept>

namespace kelvor::bench {

namespace {

using Clock = std::chrono::steady_clock;

/// Runs a program in a process of its own, with its output going to `output`. By fork rather than
/// posix_spawn: what the system reports as the peak memory of a process includes what it had before it
/// became another program, and that is then only the little that this process has touched of its own.
pid_t Launch(const std::vector<std::string>& command, int output) {
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const pid_t child = ::fork();
    if (child < 0) throw std::runtime_error("no process can be started");
    if (child == 0) {
        ::dup2(output, STDOUT_FILENO);
        ::execv(arguments.front(), arguments.data());
        ::_exit(127);
    }
    return child;
}

/// The next part of an output; empty at its end.
std::string ReadSome(int fd) {
    std::array<char, 4096> buffer{};
    for (;;) {
        const ssize_t count = ::read(fd, buffer.data(), buffer.size());
        if (count >= 0) return {buffer.data(), static_cast<std::size_t>(count)};
        if (errno != EINTR) throw std::runtime_error("an answer cannot be read");
    }
}

/// Waits for the end of a program and gives its peak memory in bytes.
double WaitForEnd(pid_t child, const std::string& program) {
    int status = 0;
    rusage usage{};
    while (::wait4(child, &status, 0, &usage) < 0) {
        if (errno != EINTR) throw std::runtime_error("the end of " + program + " cannot be waited for");
    }
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) throw std::runtime_error(program + " failed");
    return 1024.0 * static_cast<double>(usage.ru_maxrss);
}

}  // namespace

Started Start(const std::vector<std::string>& command) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe can be made");
    Started started;
    const auto start = Clock::now();
    const pid_t child = Launch(command, ends[1]);
    ::close(ends[1]);
    started.answer = ReadSome(ends[0]);
    started.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    for (std::string more = ReadSome(ends[0]); !more.empty(); more = ReadSome(ends[0]))
        started.answer += more;
    ::close(ends[0]);
    started.peakBytes = WaitForEnd(child, command.front());
    return started;
}

double Median(const std::vector<Started>& runs, double Started::*member) {
    std::vector<double> values;
    values.reserve(runs.size());
    for (const Started& run : runs) values.push_back(run.*member);
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

BothStarted StartInTurns(const std::vector<std::string>& ours, const std::vector<std::string>& reference,
                         int times) {
    if (Start(ours).answer != Start(reference).answer) {
        throw std::runtime_error(ours.front() + " and its reference answer differently");
    }
    BothStarted runs;
    for (int i = 0; i < times; ++i) {
        runs.ours.push_back(Start(ours));
        runs.reference.push_back(Start(reference));
    }
    return runs;
}

}  // namespace kelvor::bench
