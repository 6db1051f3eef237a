#include "traffic/screens/traffic_words.h"

#include <array>
#include <cstddef>

#include "traffic/calc/traffic_codes.h"

namespace kelvor {

namespace {

template <std::size_t Words>
std::vector<LetterWord> WithLetters(const std::array<const char*, Words>& words,
                                    const std::array<char, Words>& letters) {
    std::vector<LetterWord> result;
    for (std::size_t i = 0; i < Words; ++i) result.push_back({letters.at(i), words.at(i)});
    return result;
}

}  // namespace

std::vector<LetterWord> AxleTypes() { return WithLetters(kAxleTypeWords, {'S', 'T', 'R'}); }

std::vector<LetterWord> CountPeriods() { return WithLetters(kPeriodWords, {'D', 'M', 'Y'}); }

}  // namespace kelvor
