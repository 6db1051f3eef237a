#include "ndt/screens/test_rows.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/recalculation.h"
#include "forms/screen_context.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// True if a column of results holds one.
bool HasResults(const ScreenContext& context, const Form& form) {
    const auto& columns = form.FindGrid()->grid->columns;
    return std::any_of(columns.begin(), columns.end(), [&](const GridColumn& column) {
        return column.locked && context.calc.store.SQLCount(column.variable) > 0;
    });
}

/// Names in one text.
constexpr const char* kBetweenNames = "; ";

/// Which inputs have changed is said by name of one, by number of several.
std::string OutdatedText(const std::string& names, int count) {
    if (count == 0) return {};
    if (count == 1) {
        return Filled(Translated("Worked out before %1 changed: edit a test, or open the screen again."),
                      {names});
    }
    return Filled(Translated("Worked out before %1 inputs changed: edit a test, or open the screen again."),
                  {std::to_string(count)});
}

void ShowOutdated(Form& form, const std::string& names, int count) {
    Control& line = form.Get(kOutdatedLine);
    line.text = OutdatedText(names, count);
    line.toolTip = count == 0 ? "" : Filled(Translated("Changed: %1"), {names});
}

/// An input that has changed already is not counted again.
void TellOutdated(ScreenEvent& event) {
    if (!HasResults(event.context, event.form)) return;
    const Variable* variable = event.context.catalogue.FindVariable(event.control->tag);
    if (variable == nullptr) return;
    std::string changed = event.form.TextOf(kOutdatedInputs);
    if (changed.find(variable->desc) != std::string::npos) return;
    changed += (changed.empty() ? "" : kBetweenNames) + variable->desc;
    event.form.SetText(kOutdatedInputs, changed);
    const auto semicolons = std::count(changed.begin(), changed.end(), ';');
    ShowOutdated(event.form, changed, static_cast<int>(semicolons) + 1);
}

void AllUpToDate(ScreenEvent& event) {
    event.form.SetText(kOutdatedInputs, "");
    ShowOutdated(event.form, "", 0);
}

}  // namespace

LayoutElement InputsOfAllTests(std::vector<FieldItem> fields) {
    for (FieldItem& field : fields) field.letters = kInputLetters;
    return Fields(std::move(fields));
}

void RecalcTests(ScreenContext& context, Form& form) {
    RecalcFilledRows(context, form);
    RecalcOutputs(context, form, "", 0);
}

void RecalcTests(ScreenEvent& event) { RecalcTests(event.context, event.form); }

void SetIfBlank(ScreenContext& context, Form& form, std::string_view variable, double value) {
    if (!context.units.GetDisplayValue(variable).empty()) return;
    context.units.SetDisplayNumber(variable, 1, 1, value);
    form.SetText(variable, context.units.GetDisplayValue(variable));
}

std::vector<Handler> RecalcWhenLeft(const std::vector<std::string>& inputs) {
    std::vector<Handler> handlers;
    handlers.reserve(inputs.size());
    for (const std::string& input : inputs) {
        handlers.push_back({FormEvent::Stored, input, HandlerOrder::After, RecalcTests});
    }
    return handlers;
}

std::vector<Handler> TellWhenOutdated(const std::vector<std::string>& inputs) {
    std::vector<Handler> handlers = {{FormEvent::Activate, "", HandlerOrder::After, AllUpToDate},
                                     {FormEvent::RowDeleted, "", HandlerOrder::After, AllUpToDate}};
    for (const std::string& input : inputs) {
        handlers.push_back({FormEvent::Stored, input, HandlerOrder::After, TellOutdated});
    }
    return handlers;
}

std::vector<Handler> AfterResults(void (*show)(ScreenEvent& event)) {
    std::vector<Handler> handlers;
    for (const FormEvent event :
         {FormEvent::Activate, FormEvent::LostFocus, FormEvent::Stored, FormEvent::RowsWritten,
          FormEvent::RowDeleted, FormEvent::UnitsSwitched, FormEvent::Click}) {
        handlers.push_back({event, "", HandlerOrder::After, show});
    }
    return handlers;
}

void Append(std::vector<Handler>& handlers, const std::vector<Handler>& more) {
    handlers.insert(handlers.end(), more.begin(), more.end());
}

}  // namespace kelvor
