#include "units/number_entry.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <utility>

#include "platform/number_text.h"
#include "platform/text.h"

namespace kelvor {

namespace {

// --- Units ------------------------------------------------------------------------------------------

enum class Measure { Length, Stress, Force, Gradient, Density, Share, Time };
enum class System { English, Metric, Both };

/// A unit by one of its names. Its size is in the first unit of its measure and system; between the systems
/// the catalogue's factors hold.
struct KnownUnit {
    std::string_view name;
    Measure measure;
    System system;
    double size;
};

constexpr std::array kKnownUnits = {
    KnownUnit{"in", Measure::Length, System::English, 1.0},
    KnownUnit{"in.", Measure::Length, System::English, 1.0},
    KnownUnit{"inch", Measure::Length, System::English, 1.0},
    KnownUnit{"inches", Measure::Length, System::English, 1.0},
    KnownUnit{"\"", Measure::Length, System::English, 1.0},
    KnownUnit{"mil", Measure::Length, System::English, 0.001},
    KnownUnit{"mils", Measure::Length, System::English, 0.001},
    KnownUnit{"ft", Measure::Length, System::English, 12.0},
    KnownUnit{"feet", Measure::Length, System::English, 12.0},
    KnownUnit{"'", Measure::Length, System::English, 12.0},
    KnownUnit{"yd", Measure::Length, System::English, 36.0},
    KnownUnit{"mi", Measure::Length, System::English, 63360.0},
    KnownUnit{"mile", Measure::Length, System::English, 63360.0},
    KnownUnit{"miles", Measure::Length, System::English, 63360.0},
    KnownUnit{"mm", Measure::Length, System::Metric, 1.0},
    KnownUnit{"cm", Measure::Length, System::Metric, 10.0},
    KnownUnit{"m", Measure::Length, System::Metric, 1000.0},
    KnownUnit{"km", Measure::Length, System::Metric, 1e6},
    KnownUnit{"microns", Measure::Length, System::Metric, 0.001},
    KnownUnit{"psi", Measure::Stress, System::English, 1.0},
    KnownUnit{"ksi", Measure::Stress, System::English, 1000.0},
    KnownUnit{"kPa", Measure::Stress, System::Metric, 1.0},
    KnownUnit{"MPa", Measure::Stress, System::Metric, 1000.0},
    KnownUnit{"GPa", Measure::Stress, System::Metric, 1e6},
    KnownUnit{"lb", Measure::Force, System::English, 1.0},
    KnownUnit{"lbs", Measure::Force, System::English, 1.0},
    KnownUnit{"lbf", Measure::Force, System::English, 1.0},
    KnownUnit{"kip", Measure::Force, System::English, 1000.0},
    KnownUnit{"kips", Measure::Force, System::English, 1000.0},
    KnownUnit{"N", Measure::Force, System::Metric, 1.0},
    KnownUnit{"kN", Measure::Force, System::Metric, 1000.0},
    KnownUnit{"psi/in", Measure::Gradient, System::English, 1.0},
    KnownUnit{"pci", Measure::Gradient, System::English, 1.0},
    KnownUnit{"kPa/mm", Measure::Gradient, System::Metric, 1.0},
    KnownUnit{"MPa/m", Measure::Gradient, System::Metric, 1.0},
    KnownUnit{"pcf", Measure::Density, System::English, 1.0},
    KnownUnit{"kg/m3", Measure::Density, System::Metric, 1.0},
    KnownUnit{"%", Measure::Share, System::Both, 1.0},
    KnownUnit{"percent", Measure::Share, System::Both, 1.0},
    KnownUnit{"years", Measure::Time, System::Both, 1.0},
    KnownUnit{"yr", Measure::Time, System::Both, 1.0},
};

/// A name of more than one letter may be written in any case.
const KnownUnit* FindUnit(std::string_view name) {
    const auto isSame = [&](const KnownUnit& unit) {
        return unit.name == name || (name.size() > 1 && EqualNoCase(unit.name, name));
    };
    const auto* found = std::find_if(kKnownUnits.begin(), kKnownUnits.end(), isSame);
    return found == kKnownUnits.end() ? nullptr : found;
}

/// How many of one unit another is; nothing if they are not known to measure the same in the same system.
std::optional<double> SizeIn(std::string_view unit, std::string_view other) {
    if (EqualNoCase(unit, other)) return 1.0;
    const KnownUnit* of = FindUnit(unit);
    const KnownUnit* in = FindUnit(other);
    if (of == nullptr || in == nullptr || of->measure != in->measure || of->system != in->system) return {};
    return of->size / in->size;
}

/// A value in a unit that was typed, in the variable's unit of the active system.
std::optional<double> InActiveUnit(const Units& units, std::string_view variable, double value,
                                   std::string_view unit) {
    const UnitPair* pair = units.PairOf(variable);
    if (pair == nullptr) return std::nullopt;
    if (const auto size = SizeIn(unit, pair->english))
        return value * *size * (units.bMetric() ? pair->factor : 1.0);
    if (const auto size = SizeIn(unit, pair->metric))
        return value * *size / (units.bMetric() ? 1.0 : pair->factor);
    return std::nullopt;
}

// --- Numbers ----------------------------------------------------------------------------------------

/// Reads from the front of a text what it can, and takes that off.
class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text) {}

    /// Terms with a plus between them, the first of which may be below 0.
    std::optional<double> Sum() {
        const double sign = Take('-') ? -1.0 : 1.0;
        auto sum = Term();
        if (sum) *sum *= sign;
        while (sum && Take('+')) {
            const auto term = Term();
            sum = term ? std::optional(*sum + *term) : std::nullopt;
        }
        return sum;
    }

    /// What is left, without the blanks around it.
    std::string_view Rest() {
        SkipBlanks();
        while (!text_.empty() && text_.back() == ' ') text_.remove_suffix(1);
        return text_;
    }

  private:
    void SkipBlanks() {
        while (!text_.empty() && text_.front() == ' ') text_.remove_prefix(1);
    }

    bool Take(char mark) {
        SkipBlanks();
        if (text_.empty() || text_.front() != mark) return false;
        text_.remove_prefix(1);
        return true;
    }

    /// A number, a fraction, or a number and a fraction behind it.
    std::optional<double> Term() {
        const auto number = Number();
        if (!number) return std::nullopt;
        if (TakeSlash()) return Divide(*number, Number());
        const std::string_view before = text_;
        if (!text_.empty() && text_.front() == ' ') {
            const auto numerator = Number();
            if (numerator && TakeSlash()) {
                const auto fraction = Divide(*numerator, Number());
                return fraction ? std::optional(*number + *fraction) : std::nullopt;
            }
        }
        text_ = before;
        return number;
    }

    bool TakeSlash() {
        if (text_.empty() || text_.front() != '/') return false;
        text_.remove_prefix(1);
        return true;
    }

    static std::optional<double> Divide(double numerator, std::optional<double> denominator) {
        if (!denominator || *denominator == 0.0) return std::nullopt;
        return numerator / *denominator;
    }

    /// Digits with a fraction and an exponent, and the letter of a multiple directly behind them.
    std::optional<double> Number() {
        SkipBlanks();
        const std::size_t length = LengthOfNumber();
        const std::string_view digits = text_.substr(0, length);
        if (length == 0 || !IsNumeric(digits) || !IsGrouped(digits)) return std::nullopt;
        text_.remove_prefix(length);
        return ParseNumber(digits) * Multiple();
    }

    [[nodiscard]] bool DigitAt(std::size_t i) const {
        return i < text_.size() && std::isdigit(static_cast<unsigned char>(text_[i])) != 0;
    }

    [[nodiscard]] std::size_t LengthOfNumber() const {
        std::size_t end = 0;
        while (DigitAt(end) || (end < text_.size() && (text_[end] == '.' || text_[end] == ','))) ++end;
        if (end == 0 || end == text_.size() || (text_[end] != 'e' && text_[end] != 'E')) return end;
        std::size_t exponent = end + 1;
        if (exponent < text_.size() && (text_[exponent] == '+' || text_[exponent] == '-')) ++exponent;
        if (!DigitAt(exponent)) return end;
        while (DigitAt(exponent)) ++exponent;
        return exponent;
    }

    /// False for a comma that does not stand before three digits.
    static bool IsGrouped(std::string_view digits) {
        const std::string_view whole = digits.substr(0, digits.find_first_of(".eE"));
        if (digits.substr(whole.size()).find(',') != std::string_view::npos) return false;
        std::size_t behind = 0;
        for (auto c = whole.rbegin(); c != whole.rend(); ++c) {
            if (*c != ',') {
                ++behind;
            } else if (std::exchange(behind, 0) != 3) {
                return false;
            }
        }
        return true;
    }

    /// A thousand or a million, if its letter stands here and no other behind it.
    double Multiple() {
        const bool alone = text_.size() < 2 || std::isalpha(static_cast<unsigned char>(text_[1])) == 0;
        if (text_.empty() || !alone) return 1.0;
        const double multiple = text_[0] == 'M' ? 1e6 : text_[0] == 'k' || text_[0] == 'K' ? 1e3 : 1.0;
        if (multiple > 1.0) text_.remove_prefix(1);
        return multiple;
    }

    std::string_view text_;
};

}  // namespace

std::optional<std::string> ReadNumberEntry(const Units& units, std::string_view variable,
                                           std::string_view text) {
    Reader reader(text);
    std::optional<double> value = reader.Sum();
    if (!value) return std::nullopt;
    const std::string_view unit = reader.Rest();
    if (!unit.empty()) value = InActiveUnit(units, variable, *value, unit);
    if (!value || !std::isfinite(*value)) return std::nullopt;
    return NumberToText(*value);
}

}  // namespace kelvor
