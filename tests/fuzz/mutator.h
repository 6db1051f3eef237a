#pragma once

#include <array>
#include <string>

namespace kelvor::test {

/// The ways in which a good input is spoilt.
enum class Mutation {
    FlipBytes,     // a few bytes anywhere
    Truncate,      // cut short
    SwapBlocks,    // two blocks change places
    InsertBlock,   // a block comes in: a copy of one, or zeros, or noise
    ChangeHeader,  // a field among the first 100 bytes gets a value that programs trip over
};

inline constexpr std::array kMutations = {Mutation::FlipBytes, Mutation::Truncate, Mutation::SwapBlocks,
                                          Mutation::InsertBlock, Mutation::ChangeHeader};

const char* NameOf(Mutation mutation);

/// A mutant of a good input, which differs from it; always the same for the same number. An empty input
/// has none but an inserted block.
std::string Mutate(const std::string& good, Mutation mutation, unsigned number);

}  // namespace kelvor::test
