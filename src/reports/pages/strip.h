#pragma once

#include <memory>
#include <vector>

#include "drawing/scene.h"
#include "reports/pages/type_setter.h"

namespace kelvor {

/// A line of text in a strip, in points from its upper left corner.
struct PlacedLine {
    SetLine line;
    double left = 0.0;
    double baseline = 0.0;
};

/// A level stroke in a strip.
struct Rule {
    double left = 0.0;
    double width = 0.0;
    double top = 0.0;
    double grey = 0.0;
};

/// A picture in a strip, at its upper left corner.
struct PlacedPicture {
    SharedSurface surface;
    double width = 0.0;
    double height = 0.0;
};

/// A drawing in a strip, at its upper left corner. It belongs to the document.
struct PlacedDrawing {
    const Scene* scene = nullptr;
    double scale = 1.0;
};

/// As much of a report as is never parted: a line of text across all columns, a picture or a drawing.
struct Strip {
    double spaceBefore = 0.0;  // left out at the head of a page
    double height = 0.0;
    std::vector<PlacedLine> lines;
    std::vector<Rule> rules;
    PlacedPicture picture;
    PlacedDrawing drawing;

    bool keepWithNext = false;  // on the same page

    /// The headings of the table that the strip is a row of, to stand above it on a new page.
    std::shared_ptr<const std::vector<Strip>> headings;
};

}  // namespace kelvor
