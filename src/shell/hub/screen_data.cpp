#include "shell/hub/screen_data.h"

#include <algorithm>
#include <array>

namespace kelvor {

namespace {

constexpr std::array kMiddleAxles = {"AT52", "AT55", "AT58", "AW52", "AW55", "AW58"};

bool IsNotZero(const ScreenContext& context, std::string_view variable) {
    return context.calc.store.GetVar(variable) != 0.0;
}

template <typename Counts>
bool AnyField(const ScreenContext& context, std::string_view screen, Counts counts) {
    if (!context.calc.store.IsOpen()) return false;
    const auto fields = context.catalogue.FieldsOfScreen(screen);
    return std::any_of(fields.begin(), fields.end(),
                       [&](const Field* field) { return counts(*field) && IsNotZero(context, field->name); });
}

}  // namespace

bool AnyCellCounts(const Catalogue& catalogue, const ProjectStore& project, std::string_view name) {
    const Variable* variable = catalogue.FindVariable(name);
    if (variable == nullptr || project.SQLCount(name) == 0) return false;
    for (int dim1 = 1; dim1 <= variable->dim1; ++dim1) {
        for (int dim2 = 1; dim2 <= variable->dim2; ++dim2) {
            const CellValue* cell = project.FindCell(name, dim1, dim2);
            if (cell != nullptr && cell->number.value_or(0.0) != 0.0) return true;
        }
    }
    return false;
}

bool ScreenHasData(const ScreenContext& context, std::string_view screen) {
    return AnyField(context, screen, [](const Field&) { return true; });
}

bool ScreenHasCells(const ScreenContext& context, std::string_view screen) {
    return AnyField(context, screen,
                    [](const Field& field) { return !EqualNoCase(field.name, "LayerItem"); });
}

bool ScreenHasAnyCell(const ScreenContext& context, std::string_view screen) {
    if (!context.calc.store.IsOpen()) return false;
    const auto fields = context.catalogue.FieldsOfScreen(screen);
    return std::any_of(fields.begin(), fields.end(), [&](const Field* field) {
        return !EqualNoCase(field->name, "LayerItem") &&
               AnyCellCounts(context.catalogue, context.calc.store, field->name);
    });
}

bool ScreenHasAxleCells(const ScreenContext& context) {
    if (!context.calc.store.IsOpen()) return false;
    return std::any_of(kMiddleAxles.begin(), kMiddleAxles.end(),
                       [&](const char* variable) { return IsNotZero(context, variable); });
}

bool IsFilled(const ScreenContext& context, std::string_view variable) {
    return context.calc.store.IsOpen() && !context.units.GetDisplayValue(variable).empty();
}

}  // namespace kelvor
