#include <algorithm>
#include <initializer_list>

#include "shell/hub/offer.h"
#include "shell/hub/screen_choice.h"
#include "shell/hub/screen_data.h"
#include "shell/hub/tabs.h"

namespace kelvor {

namespace {

constexpr const char* kSlabMissing =
    "needs modulus of rupture, modulus of elasticity, load transfer and k of the existing slab";
constexpr const char* kDepthMissing =
    "needs thickness, modulus of rupture, modulus of elasticity, load transfer and k of the existing slab";
constexpr const char* kSoilMissing = "needs the soil resilient modulus under the existing flexible pavement";

struct OverlayOption {
    const char* option;
    const char* screen;
};

bool AreFilled(const ScreenContext& context, std::initializer_list<const char*> variables) {
    return std::all_of(variables.begin(), variables.end(),
                       [&](const char* variable) { return IsFilled(context, variable); });
}

void OfferOverlays(const ScreenContext& context, Form& hub, std::initializer_list<OverlayOption> overlays,
                   bool enabled, const char* whyNot) {
    for (const OverlayOption& overlay : overlays) {
        if (IsDeclared(context, overlay.screen)) Offer(hub, overlay.option, enabled, whyNot);
    }
}

}  // namespace

HubPage OverlaysTab() {
    const LayoutElement existing = Section("FrameEx", "Existing Pavement",
                                           {Options({{"oExF", "Existing Flexible Pavement Information"},
                                                     {"oExR", "Existing Rigid Pavement Information"},
                                                     {"oExC", "Existing Composite Pavement Information"}})});
    const LayoutElement overlays = Section("FrameOv", "Overlay Design",
                                           {Options({{"oOvAA", "AC Overlay of AC Pavement"},
                                                     {"oOvAFP", "AC Overlay of Fractured PCC Pavement"},
                                                     {"oOvAP", "AC Overlay of PCC Pavement"},
                                                     {"oOvAAP", "AC Overlay of AC/PCC Pavement"},
                                                     {"oOvBP", "Bonded Overlay"},
                                                     {"oOvUP", "Unbonded PCC Overlay"},
                                                     {"oOvWT", "PCC Overlay of Asphalt (Whitetopping)"}})});
    const LayoutElement tests =
        Section("FrameNDT", "Deflection Tests",
                {Options({{"FPNDTCalc", "Flexible Pavement NDT Backcalculation"},
                          {"RPNDTCalc", "Rigid Pavement NDT Backcalculation"},
                          {"CPNDTCalc", "Composite Pavement (AC/PCC) NDT Backcalculation"}})});
    return {Page("Overlays",
                 {Columns({Rows({existing, overlays}), Rows({tests})}), Buttons({{"Command7", "&Overlay"}})}),
            {{FormEvent::Click, "Command7", HandlerOrder::Instead, OpenChosenScreen}}};
}

void UpdateOverlayReportOptions(const ScreenContext& context, Form& hub) {
    const bool slab = AreFilled(context, {"EXISTMR", "EXISTEC", "EXISTJ", "EXISTK"});
    const bool depth = slab && IsFilled(context, "EXISTDEPTH");
    const bool soil = IsFilled(context, "EXISTRM");
    OfferOverlays(context, hub, {{"oOvBP", "OvBP"}, {"oOvAP", "OvAP"}, {"oOvAFP", "OvAFP"}}, slab,
                  kSlabMissing);
    OfferOverlays(context, hub, {{"oOvAA", "OvAA"}, {"oOvWT", "OvWT"}}, soil, kSoilMissing);
    OfferOverlays(context, hub, {{"oOvAAP", "OvAAP"}, {"oOvUP", "OvUP"}}, depth, kDepthMissing);
}

}  // namespace kelvor
