#include "forms/work_out_help.h"

namespace kelvor {

HelpRoute WorkOutK(const std::string& variable) {
    return {variable, "H_K", "Work out the modulus of subgrade reaction"};
}

HelpRoute WorkOutSoilModulus(const std::string& variable) {
    return {variable, "H_SRM", "Work out the soil resilient modulus"};
}

}  // namespace kelvor
