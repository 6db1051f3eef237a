#include "design/screens/composite_k_help.h"

#include <algorithm>
#include <array>

#include "design/calc/composite_k.h"
#include "forms/form.h"
#include "forms/form_builder.h"
#include "forms/side_screen.h"
#include "platform/number_picture.h"
#include "platform/number_text.h"
#include "platform/real.h"

namespace kelvor {

namespace {

constexpr const char* kResult = "K";
constexpr const char* kResultPicture = "#,##0.0";
constexpr std::array kInputs = {"MRSG", "MRSB", "SBD", "SGD", "LS"};

/// The screens of existing pavements, whose subgrade data have names of their own.
constexpr std::array<std::string_view, 2> kExistingScreens = {"ExC", "ExR"};
constexpr const char* kExistingStart = "EXIST";

bool IsInput(const Control& control) {
    return std::any_of(kInputs.begin(), kInputs.end(),
                       [&](const char* name) { return control.name == name; });
}

double Number(const Form& form, const char* name) { return ParseNumber(form.HiddenText(name)); }

/// Follows what the boxes show, while it is being typed and in the digits that they have afterwards.
void ComputeCompositeK(const ScreenContext& context, Form& form) {
    const SubgradeLayers layers{.roadbedModulus = Number(form, "MRSG"),
                                .subbaseModulus = Number(form, "MRSB"),
                                .subbaseThickness = Number(form, "SBD"),
                                .depthToFoundation = Number(form, "SGD"),
                                .lossOfSupport = Number(form, "LS")};
    form.workedOut = true;
    try {
        const auto k = context.units.bMetric() ? CompositeKMetric(layers) : CompositeKEnglish(layers);
        form.SetHiddenText(kResult, k ? FormatNumber(*k, kResultPicture) : "");
    } catch (const ArithmeticFault&) {
        // The k of before stays.
    }
}

void Bind(const ScreenContext& context, Form& form, const char* box, const std::string& variable) {
    BindBox(*form.Find(box), *form.FindUnitOf(box), variable, context.catalogue.FindVariable(variable));
}

void Load(ScreenContext& context, Form& form, Control* /*control*/) {
    const std::string caller = form.HiddenText("FormName");
    const bool existing = std::any_of(kExistingScreens.begin(), kExistingScreens.end(),
                                      [&](std::string_view screen) { return EqualNoCase(screen, caller); });
    for (const char* name : kInputs) {
        if (existing) Bind(context, form, name, std::string(kExistingStart) + name);
    }
    const std::string field = form.HiddenText("FieldName");
    if (!field.empty()) Bind(context, form, kResult, field);
}

/// An input is typed into, left, or stored by its own help.
void InputEvent(ScreenContext& context, Form& form, Control* control) {
    if (IsInput(*control)) ComputeCompositeK(context, form);
}

/// What the inputs have given stays, although the boxes were filled anew.
void Follow(ScreenContext& context, Form& form, Control* /*control*/) {
    if (form.workedOut) ComputeCompositeK(context, form);
}

void Closing(ScreenContext& context, Form& form, Control* /*control*/) {
    const std::string field = form.HiddenText("FieldName");
    const std::string value = form.HiddenText(kResult);
    bool taken = false;
    if (form.workedOut && !field.empty() && !value.empty()) {
        const CellValue before = CalledField(context, form);
        context.units.SetDisplayValue(field, 1, 1, value);
        taken = !IsSameValue(CalledField(context, form), before);
    }
    ReturnFromSideScreen(context, form, taken);
}

LayoutNode GuidanceTable() {
    return Table("Guide", {{"    Material Type", "Resilient Modulus (psi)               ", "(MPa)"},
                           {"Cement Treated Granular Base", "1,000,000 - 2,000,000", "6,900 - 13,800"},
                           {"Cement Aggregate Mixture", "500,000 - 1,000,000", "3,450 - 6,900"},
                           {"Asphalt Treated Base", "350,000 - 1,000,000", "2,410 - 6,900"},
                           {"Bituminous Stabilized Mixture", "40,000 - 300,000", "276 - 2,070"},
                           {"Lime Stabilized Base", "20,000 - 70,000", "138 - 483"},
                           {"Unbound Granular Materials", "15,000 - 45,000", "103 - 310"},
                           {"Fine Graded or Natural Subgrade", "3,000 - 40,000", "21 - 276"}});
}

}  // namespace

FormType CompositeKHelp() {
    FormType type;
    type.name = "H_K";
    type.tag = "H_K";
    type.caption = "Effective Modulus of Subgrade Reaction";
    type.isHelp = true;
    type.layout = Rows({
        Frame("Frame1", "Soil and Subbase",
              {Fields({{"MRSG"}, {"MRSB"}, {"SBD"}, {"SGD"}, {"LS"}, {.variable = "K", .computed = true}})}),
        Frame("Frame2", "Guidance", {GuidanceTable()}),
        Buttons({{"cmdAction", "&OK"}, {"SSHelp", "Hel&p"}}),
        Hidden({"FieldName", "FormName"}),
    });
    type.handlers = {{FormEvent::Load, "", HandlerOrder::After, Load},
                     {FormEvent::Activate, "", HandlerOrder::After, Follow},
                     {FormEvent::Change, "", HandlerOrder::After, InputEvent},
                     {FormEvent::LostFocus, "", HandlerOrder::After, InputEvent},
                     {FormEvent::Stored, "", HandlerOrder::After, InputEvent},
                     {FormEvent::UnitsSwitched, "", HandlerOrder::After, Follow},
                     {FormEvent::Unload, "", HandlerOrder::Before, Closing}};
    return type;
}

}  // namespace kelvor
