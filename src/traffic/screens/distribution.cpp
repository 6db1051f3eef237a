#include "traffic/screens/distribution.h"

#include <array>

#include "traffic/calc/traffic_codes.h"

namespace kelvor {

namespace {

constexpr std::array kOfTotalTraffic = {"Frame2",  "TRONEWAY", "TRTWOWAY", "TRLANDIS",
                                        "Label10", "Label11",  "Label12",  "Label13"};

}  // namespace

void OfferDistribution(const ScreenContext& context, Form& form) {
    const bool total = context.calc.store.GetVar("TRFACTYPE") == kTotalTraffic;
    const bool twoWay = context.calc.store.GetVar("TRWAY") == kTwoWay;
    for (const char* name : kOfTotalTraffic) {
        if (Control* control = form.Find(name)) control->enabled = total;
    }
    Control& direction = form.Get("TRDIRDIS");
    direction.enabled = total && twoWay;
    if (total) direction.backColor = twoWay ? colours::kWindow : colours::kResting;
}

}  // namespace kelvor
