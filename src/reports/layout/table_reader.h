#pragma once

#include <pugixml.hpp>

#include "reports/document/document.h"
#include "reports/layout/layout_source.h"

namespace kelvor {

/// What the placeholders in an element mean: those of its parent's scope, unless its attribute `data-table`
/// names a table. Throws LayoutError for a table that is not there.
LayoutScope InnerScope(const LayoutSource& source, pugi::xml_node element, const LayoutScope& outer);

/// Reads an element `table`: a `thead` with one `tr` of `th`, and a `tbody` of `tr` of `td`, each of which
/// has a cell for every column. Throws LayoutError.
blocks::Table ReadTable(const LayoutSource& source, pugi::xml_node element, const LayoutScope& scope);

}  // namespace kelvor
