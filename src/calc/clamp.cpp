#include "calc/clamp.h"

namespace kelvor {

Real ClampValue(Real value, Real minimum, Real maximum) {
    if (value == 0.0) return value;
    if (value < minimum) return minimum;
    if (value > maximum) return maximum;
    return value;
}

}  // namespace kelvor
