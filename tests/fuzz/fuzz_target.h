#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

// A fuzz target defines these two; a driver calls them: the replay of every test run, or libFuzzer.

/// Runs the target on one input. Ends the process if something that always holds does not.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace kelvor::test {

/// Good inputs, from which mutants are made.
std::vector<std::string> Seeds();

/// Ends the process, with the property that does not hold.
inline void Require(bool holds, std::string_view property) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %.*s\n", static_cast<int>(property.size()), property.data());
    std::abort();
}

inline std::string ToText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

}  // namespace kelvor::test
