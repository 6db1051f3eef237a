#include "design/calc/material_coefficient.h"

#include <array>

namespace kelvor {

namespace {

struct MaterialCoefficient {
    std::string_view material;
    double coefficient;
};

constexpr std::array kCoefficients = {
    MaterialCoefficient{"Cement Fly Ash", 0.2},
    MaterialCoefficient{"Graded Stone Base", 0.14},
    MaterialCoefficient{"Crushed Stone Base", 0.12},
    MaterialCoefficient{"Granular Subbase", 0.1},
};

}  // namespace

double CoefficientOfMaterial(std::string_view material) {
    for (const MaterialCoefficient& row : kCoefficients) {
        if (row.material == material) return row.coefficient;
    }
    return 0.0;
}

void SetLayerCoefFromMaterial(Units& units, int row, std::string_view material) {
    units.SetDisplayNumber("ACSURFLC", row, 1, CoefficientOfMaterial(material));
}

}  // namespace kelvor
