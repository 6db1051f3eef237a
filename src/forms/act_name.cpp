#include "forms/act_name.h"

namespace kelvor {

std::string ChangeOf(const ScreenContext& context, std::string_view variable, int row) {
    const Variable* known = context.catalogue.FindVariable(variable);
    const bool named = known != nullptr && !known->desc.empty();
    std::string act = "change of " + (named ? known->desc : std::string(variable));
    if (row > 0) act += ", row " + std::to_string(row);
    return act;
}

std::string CountOf(std::string_view act, std::size_t count, std::string_view thing) {
    return std::string(act) + " of " + std::to_string(count) + " " + std::string(thing) +
           (count == 1 ? "" : "s");
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
