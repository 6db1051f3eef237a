#include "ndt/screens/test_rows.h"

#include <algorithm>
#include <cstdint>
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
std::string OutdatedText(const std::string& names, std::int64_t count) {
    if (count == 1) {
        return Filled(Translated("Worked out before %1 changed: edit a test, or open the screen again."),
                      {names});
    }
    return Filled(Translated("Worked out before %1 inputs changed: edit a test, or open the screen again."),
                  {std::to_string(count)});
}

/// The line says what the hidden box of changed inputs holds.
void ShowOutdated(ScreenEvent& event) {
    const std::string names = event.form.TextOf(kOutdatedInputs);
    const auto between = std::count(names.begin(), names.end(), kBetweenNames[0]);
    Control& line = event.form.Get(kOutdatedLine);
    line.text = names.empty() ? "" : OutdatedText(names, between + 1);
    line.toolTip = names.empty() ? "" : Filled(Translated("Changed: %1"), {names});
}

void KeepOutdatedInputs(ScreenEvent& event) { event.form.Get(kOutdatedInputs).travels = true; }

/// An input that has changed already is not counted again.
void TellOutdated(ScreenEvent& event) {
    if (!HasResults(event.context, event.form)) return;
    const Variable* variable = event.context.catalogue.FindVariable(event.control->tag);
    if (variable == nullptr) return;
    std::string changed = event.form.TextOf(kOutdatedInputs);
    if (changed.find(variable->desc) != std::string::npos) return;
    changed += (changed.empty() ? "" : kBetweenNames) + variable->desc;
    event.form.SetText(kOutdatedInputs, changed);
    ShowOutdated(event);
}

void AllUpToDate(ScreenEvent& event) {
    event.form.SetText(kOutdatedInputs, "");
    ShowOutdated(event);
}

/// True if a row of results holds one.
bool HasResults(const ScreenContext& context, const GridData& grid, int row, int dim2) {
    return std::any_of(grid.columns.begin(), grid.columns.end(), [&](const GridColumn& column) {
        const CellValue* cell =
            column.locked ? context.calc.store.FindCell(column.variable, row, dim2) : nullptr;
        return cell != nullptr && cell->number.has_value();
    });
}

/// The rows that an act has written are worked out anew with it: where there are no others, none is old.
void RowsRenewed(ScreenEvent& event) {
    const GridData& grid = *event.form.FindGrid()->grid;
    for (int row = 1; row <= grid.rows; ++row) {
        if (std::binary_search(grid.writtenRows.begin(), grid.writtenRows.end(), row)) continue;
        if (HasResults(event.context, grid, row, event.form.dim2().value_or(1))) return;
    }
    AllUpToDate(event);
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

std::vector<Handler> TellWhenOutdated(const std::vector<std::string>& inputs,
                                      const std::vector<std::string>& renewing) {
    std::vector<Handler> handlers = {{FormEvent::Load, "", HandlerOrder::After, KeepOutdatedInputs},
                                     {FormEvent::Activate, "", HandlerOrder::After, AllUpToDate},
                                     {FormEvent::RowDeleted, "", HandlerOrder::After, AllUpToDate},
                                     {FormEvent::RowsWritten, "", HandlerOrder::After, RowsRenewed},
                                     {FormEvent::Travelled, "", HandlerOrder::After, ShowOutdated}};
    for (const std::string& input : inputs) {
        handlers.push_back({FormEvent::Stored, input, HandlerOrder::After, TellOutdated});
    }
    for (const std::string& input : renewing) {
        handlers.push_back({FormEvent::Stored, input, HandlerOrder::After, AllUpToDate});
    }
    return handlers;
}

std::vector<Handler> AfterResults(void (*show)(ScreenEvent& event)) {
    std::vector<Handler> handlers;
    for (const FormEvent event :
         {FormEvent::Activate, FormEvent::LostFocus, FormEvent::Stored, FormEvent::RowsWritten,
          FormEvent::RowDeleted, FormEvent::UnitsSwitched, FormEvent::Click, FormEvent::Travelled}) {
        handlers.push_back({event, "", HandlerOrder::After, show});
    }
    return handlers;
}

void Append(std::vector<Handler>& handlers, const std::vector<Handler>& more) {
    handlers.insert(handlers.end(), more.begin(), more.end());
}

}  // namespace kelvor
