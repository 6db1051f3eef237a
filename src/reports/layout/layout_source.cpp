#include "reports/layout/layout_source.h"

#include <algorithm>

#include "platform/text.h"
#include "platform/translation.h"

namespace kelvor {

namespace {

/// More than a page of a report can take; a tree that is deeper was not meant.
constexpr int kDeepest = 100;

/// True if a node below this one stands deeper than a layout may be.
bool IsTooDeep(const pugi::xml_document& tree) {
    struct Depth : pugi::xml_tree_walker {
        bool for_each(pugi::xml_node&) override { return depth() < kDeepest; }
    } walker;
    // A walk that was not ended early comes to its end.
    pugi::xml_node start = tree;
    return !start.traverse(walker);
}

}  // namespace

bool IsNamed(pugi::xml_node node, std::string_view name) { return node.name() == name; }

bool HasClass(pugi::xml_node element, const std::string& word) {
    const std::string words = " " + std::string(element.attribute("class").value()) + " ";
    return words.find(" " + word + " ") != std::string::npos;
}

pugi::xml_document LayoutSource::Parse() const {
    pugi::xml_document tree;
    const pugi::xml_parse_result result =
        tree.load_buffer(text_.data(), text_.size(), pugi::parse_default, pugi::encoding_utf8);
    if (!result)
        throw ErrorInLine(LineOf(result.offset),
                          Filled(Translated("the markup is broken: %1"), {result.description()}));
    if (IsTooDeep(tree)) throw ErrorInLine(1, Translated("elements stand too deep in one another"));
    return tree;
}

std::size_t LayoutSource::LineOf(std::ptrdiff_t offset) const {
    const std::size_t end = std::min(offset < 0 ? 0 : static_cast<std::size_t>(offset), text_.size());
    return 1 + static_cast<std::size_t>(
                   std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(end), '\n'));
}

LayoutError LayoutSource::ErrorInLine(std::size_t line, const std::string& reason) const {
    return LayoutError(Filled(Translated("%1, line %2: %3."), {fileName_, std::to_string(line), reason}));
}

LayoutError LayoutSource::Error(pugi::xml_node node, const std::string& reason) const {
    // A text begins with the line breaks before it.
    const std::string_view text = node.value();
    const std::size_t blanks = std::min(text.find_first_not_of(" \t\n"), text.size());
    const auto breaks = std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(blanks), '\n');
    return ErrorInLine(LineOf(node.offset_debug()) + static_cast<std::size_t>(breaks), reason);
}

std::string LayoutSource::Fill(pugi::xml_node node, std::string_view text, const LayoutScope& scope) const {
    try {
        return FillPlaceholders(text, scope);
    } catch (const PlaceholderError& failure) {
        throw ErrorInLine(LineOf(node.offset_debug()) + failure.line(), failure.what());
    }
}

std::string LayoutSource::FilledText(pugi::xml_node element, const LayoutScope& scope) const {
    std::string filled;
    for (const pugi::xml_node child : element.children()) {
        if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) {
            filled += Fill(child, child.value(), scope);
        } else if (IsNamed(child, "br")) {
            filled += '\n';
        } else {
            throw Error(child,
                        Filled(Translated("the element \"%1\" cannot stand in a text"), {child.name()}));
        }
    }
    return std::string(TrimBlanks(filled));
}

std::string LayoutSource::FilledAttribute(pugi::xml_node element, const char* name,
                                          const LayoutScope& scope) const {
    return std::string(TrimBlanks(Fill(element, element.attribute(name).value(), scope)));
}

}  // namespace kelvor
