#pragma once

#include <array>
#include <string_view>

#include "platform/real.h"
#include "units/units.h"

namespace kelvor {

/// How many items the geometry of a pavement gives a quantity for. They are known by their number from 1: the
/// place, Sort, of their name in the list of items.
inline constexpr int kMeasuredItems = 24;

/// How much of an item a pavement takes, and in which unit of the active system.
struct ItemQuantity {
    Real quantity;
    std::string_view unit;
};

/// By the number of the item, less 1.
using QuantityTable = std::array<ItemQuantity, kMeasuredItems>;

/// The quantities of all items of a pavement, in the active unit system, from its geometry as the screens
/// show it, rounded by its pictures: project length `ProjectLength` and layer width `LayerWidth` in feet or
/// metres, layer thickness `LayerThickness` in inches or millimetres, unit weight `UnitWeight` in pcf or
/// kg/m3, joint spacing `JointSpacing` in feet or metres. What was not entered counts as 0, and a number that
/// no double can hold is passed over.
///
/// - 1 to 8: the area of a layer, "sq yd" or "sq m"; 9: of layers 1, 7 and 8 together.
/// - 10 to 17: the weight of layers 1 to 8, "ton (e)" (2000 lb) or "ton (m)"; 18: of 1, 7 and 8 together.
/// - 19 and 20: the length of the project and twice that; 21: that of all transverse joints, "In feet" or
///   "In cm". Without a joint spacing above 0 item 21 is an area of 0.
/// - 22 to 24: the weight of an overlay of 1, 2 and 3 inches, or metres, on layer 1.
///
/// Pavement B has the items 21 to 24 of a second layer of pavement A: width and unit weight come from that
/// layer, and in metric units its joints are divided by 100 where those of A are multiplied.
QuantityTable BuildQuantityTable(const Units& units, int pavement);

}  // namespace kelvor
