#include "traffic/screens/traffic_forms.h"

#include "traffic/screens/axle_data_screen.h"
#include "traffic/screens/traffic_factor_screen.h"
#include "traffic/screens/traffic_helps.h"
#include "traffic/screens/traffic_inputs_screen.h"
#include "traffic/screens/vehicle_screen.h"

namespace kelvor {

std::vector<FormDeclaration> TrafficForms() {
    return {{"TrFa", TrafficInputsForm},  {"TrAx", AxleDataForm},       {"TrVe", VehicleForm},
            {"TrTr", TrafficFactorForm},  {"H_TrIn", TrafficInputHelp}, {"H_TrFa", TrafficFactorsHelp},
            {"H_TrDLD", DistributionHelp}};
}

}  // namespace kelvor
