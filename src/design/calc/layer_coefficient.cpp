#include "design/calc/layer_coefficient.h"

namespace kelvor {

namespace {

constexpr double kPsiPerKsi = 1000.0;

}  // namespace

Real AsphaltCoefficient(Real modulusKsi) { return 0.171 * Log(modulusKsi * kPsiPerKsi) - 1.784; }

}  // namespace kelvor
