#include <initializer_list>
#include <string>

#include "shell/hub/offer.h"
#include "shell/hub/screen_choice.h"
#include "shell/hub/screen_data.h"
#include "shell/hub/tabs.h"

namespace kelvor {

namespace {

struct OverlayOption {
    const char* option;
    const char* screen;
};

/// The fields that are still empty, by their labels and in the order in which they are given; empty if none
/// is.
std::string MissingFields(const ScreenContext& context, std::initializer_list<const char*> fields) {
    std::string missing;
    for (const char* field : fields) {
        if (IsFilled(context, field)) continue;
        const Variable* variable = context.catalogue.FindVariable(field);
        missing += (missing.empty() ? "" : "; ") + (variable == nullptr ? field : variable->desc);
    }
    return missing;
}

void OfferOverlays(const ScreenContext& context, Form& hub, std::initializer_list<OverlayOption> overlays,
                   std::initializer_list<const char*> fields) {
    const std::string missing = MissingFields(context, fields);
    for (const OverlayOption& overlay : overlays) {
        if (IsDeclared(context, overlay.screen))
            Offer(hub, overlay.option, missing.empty(), "needs " + missing);
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
    OfferOverlays(context, hub, {{"oOvBP", "OvBP"}, {"oOvAP", "OvAP"}, {"oOvAFP", "OvAFP"}},
                  {"EXISTMR", "EXISTEC", "EXISTJ", "EXISTK"});
    OfferOverlays(context, hub, {{"oOvAA", "OvAA"}, {"oOvWT", "OvWT"}}, {"EXISTRM"});
    OfferOverlays(context, hub, {{"oOvAAP", "OvAAP"}, {"oOvUP", "OvUP"}},
                  {"EXISTDEPTH", "EXISTMR", "EXISTEC", "EXISTJ", "EXISTK"});
}

}  // namespace kelvor
