#pragma once

namespace kelvor {

/// The variables of a cost grid whose quantities follow from the geometry and from the unit system.
struct CostGrid {
    const char* items;  // the list behind the names of its items
    const char* item;
    const char* quantity;
    const char* unit;
    const char* unitCost;
    const char* itemCost;
};

inline constexpr CostGrid kInitialGrid = {"LayerType",   "InitialItem",     "InitialQuantity",
                                          "InitialUnit", "InitialUnitCost", "InitialItemCost"};
inline constexpr CostGrid kRehabGrid = {"RehabItem", "RehabItem",     "RehabQuantity",
                                        "RehabUnit", "RehabUnitCost", "RehabItemCost"};

}  // namespace kelvor
