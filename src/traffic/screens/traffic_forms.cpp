#include "traffic/screens/traffic_forms.h"

#include "traffic/screens/axle_data_screen.h"
#include "traffic/screens/traffic_factor_screen.h"
#include "traffic/screens/traffic_helps.h"
#include "traffic/screens/traffic_inputs_screen.h"
#include "traffic/screens/vehicle_screen.h"

namespace kelvor {

std::vector<FormType> TrafficForms() {
    return {TrafficInputsForm(), AxleDataForm(),       VehicleForm(),     TrafficFactorForm(),
            TrafficInputHelp(),  TrafficFactorsHelp(), DistributionHelp()};
}

}  // namespace kelvor
