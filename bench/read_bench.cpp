#include <unordered_map>

#include "benchmarks.h"

namespace kelvor::bench {

namespace {

void ReadStore(benchmark::State& state, const ProjectStore& store, const std::vector<std::string>& names) {
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(store.GetVar(names[next]));
        if (++next == names.size()) next = 0;
    }
}

void ReadMap(benchmark::State& state, const std::vector<std::string>& names) {
    std::unordered_map<std::string, double> values;
    for (const std::string& name : names) values.emplace(name, 1.0);
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(values.find(names[next])->second);
        if (++next == names.size()) next = 0;
    }
}

}  // namespace

std::vector<Pair> RegisterReads(BenchProgram& program) {
    const std::vector<std::string> names = program.ShuffledNames();
    const Pair pair{"keyed read by name", "Read/Store", "Read/UnorderedMap", Measure::Cpu, 2.0};
    const ProjectStore& store = program.store();
    Repeat(benchmark::RegisterBenchmark(pair.ours.c_str(),
                                        [&store, names](auto& state) { ReadStore(state, store, names); }),
           benchmark::kNanosecond);
    Repeat(
        benchmark::RegisterBenchmark(pair.reference.c_str(), [names](auto& state) { ReadMap(state, names); }),
        benchmark::kNanosecond);
    return {pair};
}

}  // namespace kelvor::bench
