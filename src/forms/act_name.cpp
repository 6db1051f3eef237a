#include "forms/act_name.h"

#include "platform/translation.h"

namespace kelvor {

std::string ChangeOf(const ScreenContext& context, std::string_view variable, int row) {
    const Variable* known = context.catalogue.FindVariable(variable);
    const bool named = known != nullptr && !known->desc.empty();
    const std::string name = named ? known->desc : std::string(variable);
    if (row == 0) return Filled(Translated("change of %1"), {name});
    return Filled(Translated("change of %1, row %2"), {name, std::to_string(row)});
}

std::string PasteOf(std::size_t count, const RowName& rows) {
    return Filled(Translated("paste of %1 %2"),
                  {std::to_string(count), Translated(count == 1 ? rows.one : rows.several)});
}

std::string EmptyingOf(std::size_t cells) {
    return Filled(cells == 1 ? Translated("emptying of %1 cell") : Translated("emptying of %1 cells"),
                  {std::to_string(cells)});
}

std::string PlainCaption(std::string_view caption) {
    std::string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size()) break;
        plain += caption[i];
    }
    return plain;
}

}  // namespace kelvor
