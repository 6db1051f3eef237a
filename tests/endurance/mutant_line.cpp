#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdlib>

#include "endurance/endurance.h"
#include "fuzz/mutator.h"
#include "support/project_fixture.h"
#include "support/small_home.h"

namespace kelvor::test {

namespace {

constexpr unsigned kSecondsToAHang = 5;

/// Starts on what lies in a home, opens a good project and works a little. Ends the process with 0.
void Use(const Home& home, const std::string& project) {
    TestHost host;
    host.clock.gain = 1.0;
    Program program(host.host(), home);
    try {
        if (program.Start(project) != StartResult::Running) return;
        for (const char* form : {"DeF", "LayDet", "TrAx"}) program.Raise({UserEvent::Kind::OpenForm, form});
        for (int tab = 0; tab < 8; ++tab) program.Raise({UserEvent::Kind::SwitchTab, {}, {}, tab});
    } catch (
        const ProgramStop&) {  // NOLINT(bugprone-empty-catch): a cell that the catalogue has not: it says so
    }
}

/// How a process ended that used a home: 0 well, or the signal.
int SignalOfUse(const Home& home, const std::string& project) {
    const pid_t child = ::fork();
    Hold(child >= 0, "a process can be made");
    if (child == 0) {
        ::alarm(kSecondsToAHang);
        try {
            Use(home, project);
        } catch (...) {
            std::abort();
        }
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

}  // namespace

std::string StartOnMutants(const Trial& trial) {
    static constexpr std::array kFiles = {"DataBase/Kelvor.mdb", "DataBase/custom.tpl", "kvor.ini",
                                          "kvrwork.tpl"};
    const SmallHome home;
    const TemporaryFolder folder;
    const std::string project = folder / "plan.kvr";
    const std::string good = ReadFile(home / "kvrwork.tpl");
    WriteFile(project, good);
    for (int i = 0; i < trial.count; ++i) {
        const Path file = home / kFiles[static_cast<std::size_t>(i) % kFiles.size()];
        const Mutation mutation = kMutations[static_cast<std::size_t>(i) / kFiles.size() % kMutations.size()];
        const unsigned number = trial.seed + static_cast<unsigned>(i);
        const std::string content = ReadFile(file);
        WriteFile(file, Mutate(content, mutation, number));
        const int signal = SignalOfUse(home.home(), project);
        Hold(signal == 0, file.filename().string() + ", " + NameOf(mutation) + " " + std::to_string(number) +
                              ": ended by signal " + std::to_string(signal));
        Hold(ReadFile(project) == good, "the good file stands");
        WriteFile(file, content);
        std::filesystem::remove_all(home / "Kept");
    }
    return std::to_string(trial.count) + " mutants of 4 files";
}

}  // namespace kelvor::test
