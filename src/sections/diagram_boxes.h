#pragma once

#include <string>
#include <vector>

#include "forms/form.h"
#include "platform/real.h"

namespace kelvor {

/// A layer of a diagram: the controls that show it, and what they show.
struct DiagramLayer {
    std::string box;
    std::string label;
    std::string name;        // the text of the label
    double thickness = 0.0;  // in the active unit system
};

/// How a diagram is drawn in the active unit system.
struct DiagramStyle {
    double scale = 1.0;  // points for one unit of thickness
    const char* unit = "";
};

/// The height of a layer's box in twips, between 240 and 500: a diagram names the layers, and is not to
/// scale.
int DiagramBoxHeight(double thickness, double scale);

/// The text of a layer's box: the thickness with its unit, and the text of the label behind it.
std::string DiagramBoxText(const DiagramLayer& layer, const char* unit);

/// Stacks the boxes of the layers, the top one first, with the subgrade below, and returns the total
/// thickness. A layer without thickness is hidden with its label, and takes no room.
Real StackDiagram(Form& form, const std::vector<DiagramLayer>& layers, const DiagramStyle& style);

/// The total as the diagrams show it, without the words before it.
std::string DiagramTotal(Real total, const char* unit);

}  // namespace kelvor
