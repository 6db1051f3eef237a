#include "reports/staging/rating_texts.h"

#include <algorithm>
#include <array>
#include <span>

namespace kelvor {

namespace {

struct Band {
    double low;
    double high;
    const char* text;
};

constexpr std::array kDurability = {
    Band{1.0, 1.0, "No sign of PCC durability problems."},
    Band{0.96, 0.99, "Durability cracking exists, but no spalling."},
    Band{0.88, 0.95, "Substancial cracking and some spalling exists."},
    Band{0.80, 0.87, "Extensive cracking and severe spalling exists."},
};

constexpr std::array kFatigue = {
    Band{0.97, 1.0, "Few transverse cracks/punchouts exist."},
    Band{0.94, 0.96, "A significant number of transverse cracks/punchouts exist."},
    Band{0.90, 0.93, "A large number of transverse cracks punchouts exist."},
};

std::string TextOf(std::span<const Band> bands, double factor) {
    const auto band = std::find_if(bands.begin(), bands.end(),
                                   [&](const Band& b) { return factor >= b.low && factor <= b.high; });
    return band == bands.end() ? "" : band->text;
}

}  // namespace

std::string DurabilityText(double factor) { return TextOf(kDurability, factor); }

std::string FatigueText(double factor) { return TextOf(kFatigue, factor); }

std::string AxleTypeName(double type) {
    if (type == 1.0) return "Single";
    if (type == 2.0) return "Tandem";
    if (type == 3.0) return "Tridem";
    return "";
}

}  // namespace kelvor
