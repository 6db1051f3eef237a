#include <algorithm>
#include <array>

#include "shell/hub/offer.h"
#include "shell/hub/screen_choice.h"
#include "shell/hub/screen_data.h"
#include "shell/hub/tabs.h"

namespace kelvor {

namespace {

/// What every route needs, but for the distribution.
constexpr std::array kSharedInputs = {"TrafficDEPTH", "TrafficSN", "PT", "Life", "GrowthRate", "TrPer"};

struct Route {
    const char* option;
    const char* screen;
};

constexpr std::array kRoutes = {Route{"AxleData", "TrAx"}, Route{"VehicleType", "TrVe"},
                                Route{"TrafficFactor", "TrTr"}};

}  // namespace

HubPage TrafficTab() {
    return {Page("Traffic", {Options({{"PavementTrafficFactors", "Pavement && Traffic Inputs"},
                                      {"AxleData", "ESAL Determination by Axle Data"},
                                      {"VehicleType", "ESAL Determination by Vehicle Type"},
                                      {"TrafficFactor", "ESAL Determination by Traffic Factor"}}),
                             Buttons({{"Command1", "&Traffic"}})}),
            {{FormEvent::Click, "Command1", HandlerOrder::Instead, OpenChosenScreen}}};
}

bool TrafficInputsFilled(const ScreenContext& context) {
    return std::all_of(kSharedInputs.begin(), kSharedInputs.end(),
                       [&](const char* variable) { return IsFilled(context, variable); });
}

void OfferTrafficRoutes(const ScreenContext& context, Form& hub) {
    const bool filled = TrafficInputsFilled(context);
    for (const Route& route : kRoutes) {
        if (IsDeclared(context, route.screen)) Offer(hub, route.option, filled, kInputsMissing);
    }
}

}  // namespace kelvor
