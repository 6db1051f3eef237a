#include "lcc/screens/pavement_page.h"

#include "forms/field_entry.h"
#include "forms/form.h"
#include "lcc/screens/cost_page.h"
#include "platform/number_picture.h"
#include "platform/real.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

constexpr const char* kLength = "ProjectLength";
constexpr const char* kLongLength = "ProjectLength2";  // the same in miles or kilometres

constexpr double kFeetPerMile = 5280.0;
constexpr double kMetresPerKilometre = 1000.0;

Real UnitsOfLength(const ScreenContext& context) {
    return context.units.bMetric() ? kMetresPerKilometre : kFeetPerMile;
}

/// The layers are numbered; the rows below them hold names of items alone.
std::string ReadLayerNumber(const ScreenContext& context, const Form& form, int row) {
    const bool isLayer = context.calc.store.FindCell("LayerWidth", row, PavementOf(form)) != nullptr;
    return isLayer ? std::to_string(row) : "";
}

/// The cursor begins where something can be entered.
void Loaded(ScreenEvent& event) {
    GridData& grid = *event.form.FindGrid()->grid;
    grid.column = grid.Find("LayerType").value_or(0);
}

/// Stores a length as its picture shows it, and shows it.
void StoreLength(ScreenEvent& event, const char* variable, Real length) {
    Control& box = event.form.Get(variable);
    event.context.units.SetDisplayValue(variable, 1, PavementOf(event.form),
                                        FormatNumber(length.value(), box.picture));
    ShowStoredValue(event.context, event.form, box);
}

void EmptyLength(ScreenEvent& event, const char* variable) {
    event.context.units.SetDisplayValue(variable, 1, PavementOf(event.form), "");
    ShowStoredValue(event.context, event.form, event.form.Get(variable));
}

/// The length gives the other one whenever it is left.
void LengthLeft(ScreenEvent& event) {
    if (event.form.refused || event.control->text.empty()) return;
    const Real length = FieldNumber(event.context, event.form, *event.control);
    StoreLength(event, kLongLength, length / UnitsOfLength(event.context));
}

void LengthStored(ScreenEvent& event) {
    if (event.control->text.empty()) EmptyLength(event, kLongLength);
}

/// Miles or kilometres give the length only where they were typed: those that follow from it are rounded.
void LongLengthStored(ScreenEvent& event) {
    if (event.control->text.empty()) {
        EmptyLength(event, kLength);
        return;
    }
    const Real length = FieldNumber(event.context, event.form, *event.control);
    StoreLength(event, kLength, length * UnitsOfLength(event.context));
}

}  // namespace

FormType PavementPage() {
    constexpr int kRowsShown = 10;
    FormType type =
        CostPage("LcA1", {
                             {FormEvent::Load, "", HandlerOrder::After, Loaded},
                             {FormEvent::LostFocus, kLength, HandlerOrder::After, LengthLeft},
                             {FormEvent::Stored, kLength, HandlerOrder::After, LengthStored},
                             {FormEvent::Stored, kLongLength, HandlerOrder::After, LongLengthStored},
                         });
    type.caption = "Pavement (A) Information";
    type.rowName = {ToTranslate("layer"), ToTranslate("layers")};
    type.layout = Rows({
        Fields({{"PavDesc"}}),
        Columns({Fields({{kLength}, {kLongLength}}), Fields({{"JointSpacing"}})}),
        Grid(
            "Grid",
            {{.variable = "LayerItem", .locked = true, .letters = 8.0, .routines = {.read = ReadLayerNumber}},
             {.variable = "LayerType", .list = true, .letters = 32.0},
             {"LayerWidth"},
             {"LayerThickness"},
             {"UnitWeight"}},
            kRowsShown, {.mayEdit = HasCell}),
    });
    return type;
}

}  // namespace kelvor
