#include "rehab/screens/overlay_family.h"

#include <algorithm>
#include <utility>

#include "forms/section_button.h"
#include "platform/translation.h"
#include "rehab/screens/overlay_routines.h"

namespace kelvor {

namespace {

/// The survey of joints and cracks, whose rows a screen that leads there clears when it closes.
constexpr const char* kSurveyScreen = "FjcHelp";

bool LeadsToSurvey(const HelpRoute& route) { return route.form == kSurveyScreen; }

}  // namespace

FormType MakeOverlay(OverlayScreen overlay) {
    FormType type;
    type.name = overlay.name;
    type.caption = overlay.caption;
    type.equations = {{.flag = overlay.flag, .button = overlay.button}};
    std::vector<LayoutElement> right = std::move(overlay.effective);
    std::vector<LayoutElement> answer = {Statement("GOVERNS", 5, 46.0)};
    if (!overlay.thickness.empty()) answer.insert(answer.begin(), Fields(std::move(overlay.thickness)));
    right.push_back(Frame("Frame3", overlay.answer, std::move(answer)));
    right.push_back(SolveForFrame("Frame4", type.equations[0], FrameShape::Wide));
    type.layout = Columns({std::move(overlay.future), Rows(std::move(right))});
    type.handlers = OverlayHandlers(overlay.button);
    type.handlers.insert(type.handlers.end(), overlay.handlers.begin(), overlay.handlers.end());
    const bool surveys = std::any_of(overlay.helpRoutes.begin(), overlay.helpRoutes.end(), LeadsToSurvey);
    if (surveys) type.handlers.push_back(ClearingOfSurvey());
    type.handlers.push_back(OpeningCrossSection());
    type.foot.insert(type.foot.begin(), CrossSectionButton());
    type.helpRoutes = std::move(overlay.helpRoutes);
    type.takeOvers = std::move(overlay.takeOvers);
    type.governs = overlay.governs;
    return type;
}

HelpRoute WorkOutJointFactor(const char* factor) {
    return {factor, kSurveyScreen, Translated("Work out the joint and crack factor")};
}

LayoutElement OnSlab(const char* future, const char* reliability, const char* deviation, FieldItem initial,
                     FieldItem terminal) {
    return Frame("Frame1", Translated("Slab Thickness for Future Traffic"),
                 {Fields({{future, "Future Thickness"},
                          {"RIGE18", "Future ESAL"},
                          {reliability, "Reliability"},
                          {deviation, "Overall Deviation"},
                          {"EXISTMR", "Modulus of Rupture"},
                          {"EXISTEC", "Modulus of Elasticity"},
                          {"EXISTJ", "Load Transfer, J"},
                          {"EXISTK", "Mod. Sub. Reaction, k"},
                          {"EXISTC", "Drainage Coefficient"},
                          std::move(initial),
                          std::move(terminal)})});
}

LayoutElement OfConcrete(const char* future, const char* label, const char* rupture, const char* elasticity,
                         const char* transfer) {
    return Frame("Frame1", Translated("Slab Thickness for Future Traffic"),
                 {Fields({{future, label},
                          {"RIGE18", "Future ESALs"},
                          {"OLRIGREL", "Reliabilty"},
                          {"OLRIGDEV", "Overall Deviation"},
                          {rupture, "Modulus of Rupture"},
                          {elasticity, "Modulus of Elasticity"},
                          {transfer, "Load Transfer, J"},
                          {"EXISTK", "Mod. Subgrade Reaction, k"},
                          {"EXISTC", "Drainage Coefficient"},
                          {"OLFUTPO", "Initial Serviceability"},
                          {"OLFUTPT", "Terminal Serviceability"}})});
}

LayoutElement OnLayers(Items terms) {
    return Frame("Frame1", "Structural Number for Future Traffic", {Fields(std::move(terms))});
}

LayoutElement OfLayer(const char* frame, const char* title, const char* thickness, const char* coefficient,
                      const char* drainage) {
    return Frame(frame, title,
                 {Fields({{thickness, "Thickness"},
                          {coefficient, "Layer Coefficient"},
                          {drainage, "Drainage Coefficient"}})});
}

LayoutElement Effective(std::string title, Items items) {
    return Frame("Frame2", std::move(title), {Fields(std::move(items))});
}

LayoutElement EffectiveSlab(Items factors) {
    factors.insert(factors.begin(), {"EXISTDEPTH", "Existing PCC Thickness"});
    return Effective(Translated("Effective Slab Thickness"), std::move(factors));
}

}  // namespace kelvor
