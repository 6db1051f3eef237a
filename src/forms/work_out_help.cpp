#include "forms/work_out_help.h"

#include "platform/translation.h"

namespace kelvor {

HelpRoute WorkOutK(const std::string& variable) {
    return {variable, "H_K", Translated("Work out the modulus of subgrade reaction")};
}

HelpRoute WorkOutSoilModulus(const std::string& variable) {
    return {variable, "H_SRM", Translated("Work out the soil resilient modulus")};
}

}  // namespace kelvor
