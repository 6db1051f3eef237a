#include "ndt/calc/ndt_keys.h"

#include <array>

#include "ndt/calc/column_average.h"
#include "ndt/calc/composite_backcalculation.h"
#include "ndt/calc/flexible_backcalculation.h"
#include "ndt/calc/rigid_backcalculation.h"

namespace kelvor {

namespace {

constexpr char kSubgradeModulus[] = "NDTRM";
constexpr char kPavementModulus[] = "NDTEFFEP";
constexpr char kStiffnessRadius[] = "BACKL";
constexpr char kStaticK[] = "STATK";
constexpr char kSlabModulus[] = "NDTE";
constexpr char kStiffnessRadiusComposite[] = "BACKLC";
constexpr char kStaticKComposite[] = "STATKC";
constexpr char kSlabModulusComposite[] = "NDTEC";

/// The routine that averages one column.
template <const char* column>
void Average(CalcContext& context, std::string_view target) {
    AverageColumn(context, target, column);
}

constexpr std::array kFields = {
    FieldKey{"AVGNDTRM", Average<kSubgradeModulus>},
    FieldKey{"AVGNDTEFFEP", Average<kPavementModulus>},
    FieldKey{"AVGBACKL", Average<kStiffnessRadius>},
    FieldKey{"AVGSTATK", Average<kStaticK>},
    FieldKey{"AVGNDTE", Average<kSlabModulus>},
    FieldKey{"AVGBACKLC", Average<kStiffnessRadiusComposite>},
    FieldKey{"AVGSTATKC", Average<kStaticKComposite>},
    FieldKey{"AVGNDTEC", Average<kSlabModulusComposite>},
};
constexpr std::array kCells = {
    CellKeyRoutine{"NDTRM", CalcSubgradeModulus},
    CellKeyRoutine{"NDTEFFEP", CalcEffectivePavementModulus},
    CellKeyRoutine{"AREA", CalcArea},
    CellKeyRoutine{"BACKL", CalcRadiusOfStiffness},
    CellKeyRoutine{"DYNK", CalcDynamicK},
    CellKeyRoutine{"STATK", CalcStaticK},
    CellKeyRoutine{"NDTE", CalcSlabModulus},
    CellKeyRoutine{"AREAC", CalcAreaComposite},
    CellKeyRoutine{"BACKLC", CalcRadiusOfStiffnessComposite},
    CellKeyRoutine{"DYNKC", CalcDynamicKComposite},
    CellKeyRoutine{"STATKC", CalcStaticKComposite},
    CellKeyRoutine{"NDTEC", CalcSlabModulusComposite},
};

}  // namespace

KeyTable NdtKeys() { return {kFields, kCells}; }

}  // namespace kelvor
