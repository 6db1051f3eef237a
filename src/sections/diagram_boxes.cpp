#include "sections/diagram_boxes.h"

#include <algorithm>
#include <cmath>

#include "platform/number_picture.h"

namespace kelvor {

namespace {

constexpr const char* kPicture = "#,##0.0";
constexpr const char* kGround = "LabSubgrade";
constexpr double kTwipsOfPoint = 20.0;
constexpr int kLeastHeight = 240;
constexpr int kGreatestHeight = 500;

std::string ThicknessText(double thickness, const char* unit) {
    return FormatNumber(thickness, kPicture) + " " + unit;
}

/// Shows a layer below what is stacked already, or hides it. The height that it takes.
int PlaceLayer(Form& form, const DiagramLayer& layer, const DiagramStyle& style, int top) {
    Control& box = form.Get(layer.box);
    Control& label = form.Get(layer.label);
    const bool shown = layer.thickness > 0.0;
    const int height = shown ? DiagramBoxHeight(layer.thickness, style.scale) : 0;
    box.visible = shown;
    label.visible = shown;
    label.text = layer.name;
    box.text = shown ? DiagramBoxText(layer, style.unit) : std::string();
    box.stacked = {top, height};
    return height;
}

}  // namespace

int DiagramBoxHeight(double thickness, double scale) {
    const double twips = kTwipsOfPoint * (thickness * scale);
    return static_cast<int>(std::lround(std::clamp<double>(twips, kLeastHeight, kGreatestHeight)));
}

std::string DiagramBoxText(const DiagramLayer& layer, const char* unit) {
    return ThicknessText(layer.thickness, unit) + layer.name;
}

Real StackDiagram(Form& form, const std::vector<DiagramLayer>& layers, const DiagramStyle& style) {
    Real total = 0.0;
    int top = 0;
    for (const DiagramLayer& layer : layers) {
        total += layer.thickness;
        top += PlaceLayer(form, layer, style, top);
    }
    form.Get(kGround).stacked = {top, kLeastHeight};
    return total;
}

std::string DiagramTotal(Real total, const char* unit) { return ThicknessText(total.value(), unit); }

}  // namespace kelvor
