#include <cmath>
#include <limits>

#include "console/script/driver.h"
#include "forms/control.h"

namespace kelvor {

PropertyValue NumberProperty(double number) {
    const bool whole = number == std::floor(number) && std::fabs(number) < std::numeric_limits<int>::max();
    return whole ? PropertyValue(static_cast<int>(number)) : PropertyValue(number);
}

std::string LetterColour(std::string_view colour) {
    return std::string(colour == colours::kWindowText ? colours::kBlack : colour);
}

}  // namespace kelvor
