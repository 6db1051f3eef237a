#include <chrono>
#include <memory>
#include <stdexcept>

#include "benchmarks.h"
#include "raw_project.h"

namespace kelvor::bench {

namespace {

/// The program's own project, with the same operations.
class StoreProject {
  public:
    explicit StoreProject(ProjectStore& store) : store_(store) {}

    void Begin() { store_.BeginEvent(); }
    void Commit() { store_.EndEvent(); }
    void Write(const std::string& name, double value) { store_.SetVar(name, value); }

  private:
    ProjectStore& store_;
};

/// Values that no cell has yet.
class FreshValues {
  public:
    double Next() { return value_ += 1.0; }

  private:
    double value_ = 1e6;
};

/// One write each time, all of them in one event. The first one, which begins the transaction, does not
/// count.
template <typename Project>
void Write(benchmark::State& state, Project& project, const std::vector<std::string>& names,
           FreshValues& values) {
    project.Begin();
    project.Write(names.front(), values.Next());
    std::size_t next = 0;
    for (auto _ : state) {
        project.Write(names[next], values.Next());
        if (++next == names.size()) next = 0;
    }
    project.Commit();
}

/// The end of an event that wrote one cell; its beginning and its write do not count.
template <typename Project>
void Commit(benchmark::State& state, Project& project, const std::vector<std::string>& names,
            FreshValues& values) {
    std::size_t next = 0;
    for (auto _ : state) {
        project.Begin();
        project.Write(names[next], values.Next());
        if (++next == names.size()) next = 0;
        const auto start = std::chrono::steady_clock::now();
        project.Commit();
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(taken.count());
    }
}

template <typename Project>
void RegisterProject(const Pair& write, const Pair& commit, std::string Pair::*name,
                     const std::shared_ptr<Project>& project, const std::vector<std::string>& names) {
    const auto values = std::make_shared<FreshValues>();
    Repeat(benchmark::RegisterBenchmark((write.*name).c_str(),
                                        [=](auto& state) { Write(state, *project, names, *values); }),
           benchmark::kMicrosecond);
    Repeat(benchmark::RegisterBenchmark((commit.*name).c_str(),
                                        [=](auto& state) { Commit(state, *project, names, *values); })
               ->UseManualTime(),
           benchmark::kMicrosecond);
}

}  // namespace

std::vector<Pair> RegisterWrites(BenchProgram& program, const Path& home) {
    const Pair write{"write through, inside an event", "Write/Store", "Write/SQLite", Measure::Real, {}};
    const Pair commit{"commit of one event", "Commit/Store", "Commit/SQLite", Measure::Real, {}};
    const std::vector<std::string> names = program.ShuffledNames();
    RegisterProject(write, commit, &Pair::ours, std::make_shared<StoreProject>(program.store()), names);
    RegisterProject(write, commit, &Pair::reference, std::make_shared<RawProject>(home, "reference.tmp"),
                    names);
    return {write, commit};
}

}  // namespace kelvor::bench
