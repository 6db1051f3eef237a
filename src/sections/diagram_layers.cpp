#include "sections/diagram_layers.h"

#include <algorithm>
#include <array>

#include "platform/text.h"
#include "sections/shown_thickness.h"

namespace kelvor {

namespace {

constexpr const char* kNotEntered = "Not entered yet";

/// A box of `CSec`: its label, the variable that it shows, and its place in the stack.
struct DiagramPart {
    const char* label = "";
    const char* variable = nullptr;
    int level = 0;         // counted from the subgrade
    bool isTable = false;  // the sum of the layers of a table
};

constexpr std::size_t kParts = 3;

struct DiagramMember {
    std::string_view screen;
    std::array<DiagramPart, kParts> parts;
};

constexpr std::array kMembers = {
    DiagramMember{"DeR", {DiagramPart{"Base Thickness", "SBD", 1}, {"PCC Thickness", "DEPTH", 2}, {}}},
    DiagramMember{"OvBP",
                  {DiagramPart{"Base Thickness", "SBD", 1},
                   {"Existing PCC Thickness", "EXISTDEPTH", 2},
                   {"Bonded PCC Thickness", "BOLDEPTH", 3}}},
    DiagramMember{"OvUP",
                  {DiagramPart{"Base Thickness", "SBD", 1},
                   {"Unbonded Thickness", "UBOLDEPTH", 3},
                   {"Existing PCC Thickness", "EXISTDEPTH", 2}}},
    DiagramMember{"OvAP",
                  {DiagramPart{"Base Thickness", "SBD", 1},
                   {"Existing PCC Thickness", "EXISTDEPTH", 2},
                   {"AC Overlay Thickness", "ACPCOLT", 3}}},
    DiagramMember{"OvAFP",
                  {DiagramPart{"Subbase ", "SUBLT", 1},
                   {"Fract Slab ", "CSPCLT", 2},
                   {"AC Thickness", "ACCSTHICK", 3}}},
    DiagramMember{"OvWT",
                  {DiagramPart{"Flexible Layer Thickness", "EXISTLT", 1, true},
                   {"Whitetopping Thickness", "WTDEPTH", 2},
                   {}}},
    DiagramMember{"OvAAP",
                  {DiagramPart{"Existing Thickness", "EXISTDEPTH", 1},
                   {"Future Layer Thickness", "ACACPCFUTD", 2},
                   {}}},
};

constexpr DiagramMember kAnyOther = {"", {DiagramPart{kNotEntered}, {kNotEntered}, {kNotEntered}}};

const DiagramMember& MemberOf(std::string_view screen) {
    const auto found = std::find_if(kMembers.begin(), kMembers.end(), [&](const DiagramMember& member) {
        return EqualNoCase(member.screen, screen);
    });
    return found == kMembers.end() ? kAnyOther : *found;
}

double ThicknessOf(const Units& units, const DiagramPart& part) {
    if (part.variable == nullptr) return 0.0;
    return part.isTable ? ShownThicknessOfTable(units, part.variable) : ShownThickness(units, part.variable);
}

/// The member of one of the control arrays of `CSec2`.
std::string Member(const char* name, int layer) {
    return std::string(name) + "(" + std::to_string(layer) + ")";
}

std::vector<DiagramLayer> TableLayers(const Units& units, const char* variable) {
    std::vector<DiagramLayer> layers;
    for (int row = 1; row <= kDrawnLayers; ++row) {
        layers.push_back(
            {Member("CSLayer", row), Member("LabCSLayer", row), {}, ShownThickness(units, variable, row)});
    }
    return layers;
}

LayerList DesignedLayers(const Units& units) {
    LayerList list{"LDLayerThick", TableLayers(units, "LDLayerThick"), {}};
    for (int row = kDrawnLayers; row >= 1; --row) {
        DiagramLayer& layer = list.layers[static_cast<std::size_t>(row - 1)];
        layer.name = units.GetDisplayValue("LDLayerMat", row, 1);
        if (layer.thickness > 0.0) list.top = layer.name;
    }
    return list;
}

/// The overlay lies on the layers of the existing pavement, in a box of its own.
LayerList OverlaidLayers(const Units& units) {
    LayerList list{"EXISTLT", TableLayers(units, "EXISTLT"), "AC Overlay "};
    int row = 0;
    for (DiagramLayer& layer : list.layers) {
        ++row;
        layer.name = row == 1 ? "Existing Flex Thick" : "Layer " + std::to_string(row);
    }
    list.layers.insert(list.layers.begin(),
                       {"CSLayer1", "LabCSLayer1", list.top, ShownThickness(units, "ACACTHICK")});
    return list;
}

}  // namespace

std::vector<DiagramLayer> LayersOfScreen(const Units& units, std::string_view screen) {
    const DiagramMember& member = MemberOf(screen);
    std::vector<DiagramLayer> layers(kParts);
    std::size_t unplaced = 0;  // boxes without a variable stand for nothing, wherever they are
    for (std::size_t i = 0; i < kParts; ++i) {
        const DiagramPart& part = member.parts[i];
        const std::size_t place = part.level > 0 ? kParts - static_cast<std::size_t>(part.level) : unplaced++;
        const std::string number = std::to_string(i + 1);
        layers[place] = {"CSLayer" + number, "LabCSLayer" + number, part.label, ThicknessOf(units, part)};
    }
    layers.push_back({"ExtraLayer", "LabExtraLayer", "Extra Layer", ShownThickness(units, "ExtraLayer")});
    return layers;
}

std::string GroundOfScreen(std::string_view screen) {
    return EqualNoCase(screen, "OvWT") ? "Existing AC Pavement" : "Subgrade";
}

LayerList ListOfScreen(const Units& units, std::string_view screen) {
    if (EqualNoCase(screen, "DeF") || EqualNoCase(screen, "DeS")) return DesignedLayers(units);
    if (EqualNoCase(screen, "OvAA")) return OverlaidLayers(units);
    return {};
}

}  // namespace kelvor
