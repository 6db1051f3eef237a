#pragma once

#include <functional>
#include <map>
#include <string>

#include "drawing/scene.h"

namespace kelvor {

/// A drawing of a report, with the words that stand for it where drawings cannot be shown.
struct ReportDrawing {
    Scene scene = {};
    std::string words = {};

    [[nodiscard]] bool IsEmpty() const { return scene.shapes.empty(); }
};

/// The drawings that a layout may show, by name.
using ReportDrawings = std::map<std::string, ReportDrawing, std::less<>>;

}  // namespace kelvor
