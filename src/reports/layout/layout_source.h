#pragma once

#include <cstddef>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "reports/layout/layout_error.h"
#include "reports/layout/placeholders.h"

namespace kelvor {

/// True for an element of this name.
bool IsNamed(pugi::xml_node node, std::string_view name);

/// True if one of the words in the attribute `class` of an element is this one.
bool HasClass(pugi::xml_node element, const std::string& word);

/// The text of a layout with the name of its file: what turns a place in it into a message.
class LayoutSource {
  public:
    LayoutSource(std::string_view text, std::string fileName) : text_(text), fileName_(std::move(fileName)) {}

    /// The tree of the page. Throws LayoutError with the line where the markup is broken.
    [[nodiscard]] pugi::xml_document Parse() const;

    /// What is wrong at a node.
    [[nodiscard]] LayoutError Error(pugi::xml_node node, const std::string& reason) const;

    /// The text of an element, filled, without blanks at its ends. Throws LayoutError for a placeholder that
    /// means nothing, and for an element in it other than `br`.
    [[nodiscard]] std::string FilledText(pugi::xml_node element, const LayoutScope& scope) const;

    /// An attribute, filled.
    [[nodiscard]] std::string FilledAttribute(pugi::xml_node element, const char* name,
                                              const LayoutScope& scope) const;

  private:
    [[nodiscard]] std::size_t LineOf(std::ptrdiff_t offset) const;
    [[nodiscard]] LayoutError ErrorInLine(std::size_t line, const std::string& reason) const;
    [[nodiscard]] std::string Fill(pugi::xml_node node, std::string_view text,
                                   const LayoutScope& scope) const;

    std::string_view text_;
    std::string fileName_;
};

}  // namespace kelvor
