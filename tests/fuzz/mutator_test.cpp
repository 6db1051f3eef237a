#include "mutator.h"

#include <gtest/gtest.h>

#include <set>

namespace kelvor::test {
namespace {

std::string Good() {
    std::string good;
    for (int i = 0; i < 20000; ++i) good.push_back(static_cast<char>(i * i / 7));
    return good;
}

TEST(MutatorTest, AMutantDiffersFromTheGoodInputAndIsTheSameEachTime) {
    const std::string good = Good();
    for (const Mutation mutation : kMutations) {
        for (unsigned number = 0; number < 50; ++number) {
            const std::string mutant = Mutate(good, mutation, number);
            EXPECT_NE(mutant, good) << NameOf(mutation) << number;
            EXPECT_EQ(mutant, Mutate(good, mutation, number)) << NameOf(mutation) << number;
        }
    }
}

TEST(MutatorTest, MutantsDifferFromEachOther) {
    const std::string good = Good();
    for (const Mutation mutation : kMutations) {
        std::set<std::string> mutants;
        for (unsigned number = 0; number < 200; ++number) mutants.insert(Mutate(good, mutation, number));
        // Few blocks can change places in few ways.
        EXPECT_GT(mutants.size(), mutation == Mutation::SwapBlocks ? 5U : 50U) << NameOf(mutation);
    }
}

TEST(MutatorTest, EachKindDoesWhatItSays) {
    const std::string good = Good();
    for (unsigned number = 0; number < 50; ++number) {
        EXPECT_EQ(Mutate(good, Mutation::FlipBytes, number).size(), good.size());
        const std::string cut = Mutate(good, Mutation::Truncate, number);
        EXPECT_EQ(cut, good.substr(0, cut.size()));
        EXPECT_EQ(Mutate(good, Mutation::SwapBlocks, number).size(), good.size());
        EXPECT_EQ(Mutate(good, Mutation::InsertBlock, number).size(), good.size() + 4096);
        EXPECT_EQ(Mutate(good, Mutation::ChangeHeader, number).substr(100), good.substr(100));
    }
}

TEST(MutatorTest, SmallInputsHaveMutantsToo) {
    for (const char* good : {"", "a", "ab", "aaaaaaaaaa"}) {
        for (const Mutation mutation : kMutations) {
            for (unsigned number = 0; number < 50; ++number) EXPECT_NE(Mutate(good, mutation, number), good);
        }
    }
}

}  // namespace
}  // namespace kelvor::test
