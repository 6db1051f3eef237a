// Runs a fuzz target on its corpus and on mutants of its good inputs:
//
//   script_fuzz CORPUS_FOLDER                 everything
//   script_fuzz CORPUS_FOLDER flip 17         one mutant again
//
// Each input is announced on standard error before it runs, so the last line names the culprit.

#include <algorithm>
#include <cstring>
#include <exception>
#include <filesystem>

#include "fuzz_target.h"
#include "mutator.h"
#include "support/test_home.h"

namespace kelvor::test {
namespace {

constexpr unsigned kMutantsOfEachKind = 200;

/// KELVOR_MUTANTS makes a long run of it.
unsigned MutantsOfEachKind() {
    const char* given = std::getenv("KELVOR_MUTANTS");
    return given == nullptr ? kMutantsOfEachKind : static_cast<unsigned>(std::strtoul(given, nullptr, 10));
}

void Run(const std::string& name, const std::string& input) {
    std::fprintf(stderr, "%s\n", name.c_str());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

std::vector<Path> FilesIn(const Path& folder) {
    std::vector<Path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

void RunMutant(const std::vector<std::string>& seeds, Mutation mutation, unsigned number) {
    const std::string& good = seeds[number % seeds.size()];
    Run(std::string(NameOf(mutation)) + " " + std::to_string(number), Mutate(good, mutation, number));
}

int Replay(int argc, char** argv) {
    const std::vector<std::string> seeds = Seeds();
    if (argc == 4) {
        for (const Mutation mutation : kMutations) {
            if (std::strcmp(argv[2], NameOf(mutation)) == 0) {
                RunMutant(seeds, mutation, static_cast<unsigned>(std::stoul(argv[3])));
                return 0;
            }
        }
    }
    if (argc != 2) throw std::invalid_argument("it takes the corpus folder, and a mutation with a number");
    const std::vector<Path> corpus = FilesIn(argv[1]);
    if (corpus.empty()) throw std::invalid_argument("the corpus is empty");
    for (const Path& file : corpus) Run(file.filename().string(), ReadFile(file));
    for (std::size_t i = 0; i < seeds.size(); ++i) Run("good " + std::to_string(i), seeds[i]);
    const unsigned most = MutantsOfEachKind();
    for (const Mutation mutation : kMutations) {
        for (unsigned number = 0; number < most; ++number) RunMutant(seeds, mutation, number);
    }
    return 0;
}

}  // namespace
}  // namespace kelvor::test

int main(int argc, char** argv) {
    try {
        return kelvor::test::Replay(argc, argv);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s: %s\n", argv[0], failure.what());
        return 1;
    }
}
