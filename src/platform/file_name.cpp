#include "platform/file_name.h"

#include "platform/text.h"

namespace kelvor {

namespace {

constexpr std::string_view kForbidden = "/\\:*?\"<>|";
constexpr std::string_view kNotAtAnEnd = " .";
constexpr std::size_t kLongest = 60;
constexpr char kFirstPrintable = ' ';
constexpr char kDeletion = '\x7F';

bool MayStand(char letter) {
    const bool control = (letter >= 0 && letter < kFirstPrintable) || letter == kDeletion;
    return !control && kForbidden.find(letter) == std::string_view::npos;
}

std::string_view WithoutEnds(std::string_view name) {
    const std::size_t first = name.find_first_not_of(kNotAtAnEnd);
    if (first == std::string_view::npos) return {};
    return name.substr(first, name.find_last_not_of(kNotAtAnEnd) - first + 1);
}

std::size_t CutBefore(std::string_view name, std::size_t limit) {
    std::size_t end = 0;
    while (end < name.size() && NextCharacter(name, end) <= limit) end = NextCharacter(name, end);
    return end;
}

}  // namespace

std::string FileNameFrom(std::string_view title) {
    std::string name;
    for (const char letter : title) {
        const char next = MayStand(letter) ? letter : ' ';
        if (next != ' ' || !name.ends_with(' ')) name += next;
    }
    const std::string_view whole = WithoutEnds(name);
    return std::string(WithoutEnds(whole.substr(0, CutBefore(whole, kLongest))));
}

}  // namespace kelvor
