#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "reports/document/document.h"
#include "reports/layout/layout_error.h"
#include "reports/layout/placeholders.h"

namespace kelvor {

/// Reads a picture that stands beside the layout, by its name. Throws FileError.
using PictureReader = std::function<std::string(const std::string& name)>;

/// What a layout is filled from.
struct LayoutData {
    const StagedTables& tables;
    const LayoutTexts& texts;
    PictureReader pictures;
    const ReportDrawings* drawings = nullptr;  // null: none
};

/// Fills a layout, a well-formed XHTML page with placeholders (placeholders.h), and makes a document of it.
/// Its elements:
///
///     title                  in the head: the title of the document
///     header, footer         one to three `p`: at the left, in the middle, at the right of each page's edge
///     h1 h2 h3               headings; h1 is the title of the report
///     p                      a paragraph; left out if its text is empty
///     dl, of dt dd           labels and values; `dl class="number"` sets the values to the right, and
///                            `dd class="unit"` behind a value is its unit
///     table, of thead tbody  `th class="number"` heads a column that is set to the right
///     img src alt width      a PNG file beside the layout, so many 1/96 in wide; 96 dots an inch without it
///     figure, of figcaption  `data-drawing="Section"`: a drawing below its heading; without one there is
///                            neither
///     div section            hold others
///     br                     a line break in a text
///
/// `data-table="Rigid"` on an element names the table whose first row its placeholders mean;
/// `data-rows="TrAx"` on a `tr` repeats it for each row of the table. Comments are left out. `fileName` is
/// for the messages. Throws LayoutError.
Document FillLayout(std::string_view layout, const std::string& fileName, const LayoutData& data);

}  // namespace kelvor
