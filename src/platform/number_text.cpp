#include "platform/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <system_error>

#include "platform/text.h"

namespace kelvor {

namespace {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsExponentLetter(char c) { return FoldLetter(c) == 'e' || FoldLetter(c) == 'd'; }

/// Takes number elements from the head of a text.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : text_(text) {}

    [[nodiscard]] bool AtEnd() const { return position_ == text_.size(); }
    [[nodiscard]] std::size_t position() const { return position_; }

    bool TakeSign() {
        return TakeIf([](char c) { return c == '+' || c == '-'; });
    }
    bool TakePoint() {
        return TakeIf([](char c) { return c == '.'; });
    }

    /// Takes a run of digits and gives its length; with `commas`, single commas between digits too.
    std::size_t TakeDigits(bool commas) {
        std::size_t count = 0;
        while (!AtEnd()) {
            if (IsDigit(text_[position_])) {
                ++count;
            } else if (!(commas && CommaBetweenDigits())) {
                break;
            }
            ++position_;
        }
        return count;
    }

    /// Takes an exponent if a whole one stands here.
    bool TakeExponent() {
        const std::size_t start = position_;
        if (!TakeIf(IsExponentLetter)) return false;
        TakeSign();
        if (TakeDigits(false) > 0) return true;
        position_ = start;
        return false;
    }

  private:
    template <typename Predicate>
    bool TakeIf(Predicate wanted) {
        if (AtEnd() || !wanted(text_[position_])) return false;
        ++position_;
        return true;
    }

    [[nodiscard]] bool CommaBetweenDigits() const {
        return text_[position_] == ',' && position_ > 0 && IsDigit(text_[position_ - 1]) &&
               position_ + 1 < text_.size() && IsDigit(text_[position_ + 1]);
    }

    std::string_view text_;
    std::size_t position_ = 0;
};

/// Which end of a double's range a number has crossed: true if it is too small, false if too large. The
/// exponent alone does not tell, as there may be many digits before or after the point.
bool IsTiny(std::string_view number) {
    const std::size_t exponentAt = std::min(number.find('e'), number.size());
    const std::string_view digits = number.substr(0, exponentAt);
    const auto point = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size()));
    const auto first = static_cast<std::int64_t>(digits.find_first_of("123456789"));
    std::string_view exponentText = number.substr(std::min(exponentAt + 1, number.size()));
    if (exponentText.starts_with('+')) exponentText.remove_prefix(1);
    std::int64_t exponent = 0;
    const auto result =
        std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
    // An exponent of so many digits outweighs any text.
    if (result.ec == std::errc::result_out_of_range) return exponentText.starts_with('-');
    return exponent < first - point;
}

/// The value of a text that holds one number, commas and exponent letter d allowed; nothing if a
/// double cannot hold it. Below the smallest double the value is 0.
std::optional<double> ToDouble(std::string_view number) {
    std::string plain;
    plain.reserve(number.size());
    for (const char c : number) {
        if (c == ',' || (c == '+' && plain.empty())) continue;
        plain.push_back(IsExponentLetter(c) ? 'e' : c);
    }
    double value = 0.0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (error == std::errc::result_out_of_range) return IsTiny(plain) ? std::optional(0.0) : std::nullopt;
    if (error != std::errc{} || end != plain.data() + plain.size()) return std::nullopt;
    return value;
}

/// The length of the number at the head of a text; 0 if none stands there.
std::size_t NumberLength(std::string_view text, bool commas) {
    Scanner scanner(text);
    scanner.TakeSign();
    std::size_t digits = scanner.TakeDigits(commas);
    if (scanner.TakePoint()) digits += scanner.TakeDigits(false);
    if (digits == 0) return 0;
    scanner.TakeExponent();
    return scanner.position();
}

std::string Digits(double value, std::chars_format format, int precision) {
    std::array<char, 400> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
    return {buffer.data(), result.ptr};
}

/// True where plain digits read better than a power of ten.
bool IsPlainMagnitude(double value) {
    const double magnitude = std::fabs(value);
    return value == 0.0 || (magnitude >= 1e-5 && magnitude < 1e15);
}

}  // namespace

bool IsNumeric(std::string_view text) {
    const std::string_view number = TrimBlanks(text);
    return !number.empty() && NumberLength(number, true) == number.size() && ToDouble(number).has_value();
}

double Val(std::string_view text) {
    std::string compact;
    compact.reserve(text.size());
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n') compact.push_back(c);
    }
    const std::size_t length = NumberLength(compact, false);
    if (length == 0) return 0.0;
    return ToDouble(std::string_view(compact).substr(0, length)).value_or(0.0);
}

double ParseNumber(std::string_view text) {
    std::string plain;
    plain.reserve(text.size());
    for (const char c : text) {
        if (c != ',') plain.push_back(c);
    }
    return Val(plain);
}

std::optional<int> ParseSubscript(std::string_view text) {
    std::int16_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::string NumberToText(double value) {
    // The largest numbers round up to what no double can hold; this is the largest of 15 digits.
    double rounded = std::copysign(1.79769313486231e308, value);
    const std::string scientific = Digits(value, std::chars_format::scientific, 14);
    std::from_chars(scientific.data(), scientific.data() + scientific.size(), rounded);
    return ExactNumberText(rounded);
}

std::string ExactNumberText(double value) {
    if (value == 0.0) return "0";
    std::array<char, 400> buffer{};
    const auto format = IsPlainMagnitude(value) ? std::chars_format::fixed : std::chars_format::scientific;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format);
    return {buffer.data(), result.ptr};
}

}  // namespace kelvor
