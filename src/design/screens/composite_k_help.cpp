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
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kForm = "H_K";
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

double Number(const Form& form, const char* name) { return ParseNumber(form.TextOf(name)); }

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
        form.SetText(kResult, k ? FormatNumber(*k, kResultPicture) : "");
    } catch (const ArithmeticFault&) {
        // The k of before stays.
    }
}

void Bind(const ScreenContext& context, Form& form, const char* box, const std::string& variable) {
    BindBox(form.Get(box), *form.FindUnitOf(box), variable, context.catalogue.FindVariable(variable));
}

void Load(ScreenEvent& event) {
    const std::string caller = event.form.TextOf("FormName");
    const bool existing = std::any_of(kExistingScreens.begin(), kExistingScreens.end(),
                                      [&](std::string_view screen) { return EqualNoCase(screen, caller); });
    for (const char* name : kInputs) {
        if (existing) Bind(event.context, event.form, name, std::string(kExistingStart) + name);
    }
    const std::string field = event.form.TextOf("FieldName");
    if (!field.empty()) Bind(event.context, event.form, kResult, field);
}

/// An input is typed into, left, or stored by its own help.
void InputEvent(ScreenEvent& event) {
    if (IsInput(*event.control)) ComputeCompositeK(event.context, event.form);
}

/// What the inputs have given stays, although the boxes were filled anew.
void Follow(ScreenEvent& event) {
    if (event.form.workedOut) ComputeCompositeK(event.context, event.form);
}

/// Hands the k over to the field for which the screen was opened, unless nobody changed an input of it: a k
/// typed by hand survives a look at what k would be.
void Closing(ScreenEvent& event) {
    const std::string field = event.form.TextOf("FieldName");
    const std::string value = event.form.TextOf(kResult);
    bool taken = false;
    if (event.form.edited && !field.empty() && !value.empty()) {
        const CellValue before = CalledField(event.context, event.form);
        event.context.units.SetDisplayValue(field, 1, 1, value);
        taken = !IsSameValue(CalledField(event.context, event.form), before);
    }
    ReturnFromSideScreen(event.context, event.form, taken);
}

LayoutElement GuidanceTable() {
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
    type.name = kForm;
    type.caption = Translated("Effective Modulus of Subgrade Reaction");
    type.isHelp = true;
    type.layout = Rows({
        Frame("Frame1", Translated("Soil and Subbase"),
              {Fields({{"MRSG"}, {"MRSB"}, {"SBD"}, {"SGD"}, {"LS"}, {.variable = "K", .computed = true}})}),
        Frame("Frame2", Translated("Guidance"), {GuidanceTable()}),
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
