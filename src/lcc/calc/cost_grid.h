#pragma once

namespace kelvor {

/// The variables of a cost grid whose quantities follow from the geometry and from the unit system.
struct CostGrid {
    const char* items;  // the list behind the names of its items
    const char* item;
    const char* quantity;
    const char* unit;
};

inline constexpr CostGrid kInitialGrid = {"LayerType", "InitialItem", "InitialQuantity", "InitialUnit"};
inline constexpr CostGrid kRehabGrid = {"RehabItem", "RehabItem", "RehabQuantity", "RehabUnit"};

}  // namespace kelvor
