#include "rehab/calc/rehab_keys.h"

#include <array>

#include "rehab/calc/asphalt_on_concrete.h"
#include "rehab/calc/asphalt_on_layers.h"
#include "rehab/calc/concrete_overlay.h"
#include "rehab/calc/effective_sn.h"
#include "rehab/calc/existing_layers.h"

namespace kelvor {

namespace {

constexpr std::array kFields = {
    FieldKey{"EXISTEFSNSUM", SumSixLayers},
    FieldKey{"SNEFFTOT", SumAllLayers},
    FieldKey{"ACACEFFSN", ChooseEffectiveSN},
    FieldKey{"ACACTHICK", CalcOverlayOfAsphalt},
    FieldKey{"ACACFUTSN", CalcFutureSNOfAsphalt},
    FieldKey{"ACCSEFFSN", CalcFracturedSlabSN},
    FieldKey{"ACCSTHICK", CalcOverlayOfFracturedSlab},
    FieldKey{"ACCSFUTSN", CalcFutureSNOfFracturedSlab},
    FieldKey{"ACPCEFFD", CalcEffectiveSlab},
    FieldKey{"ACPCOLT", CalcOverlayOfSlab},
    FieldKey{"ACACPCEFFD", CalcEffectiveComposite},
    FieldKey{"ACACPCOLT", CalcOverlayOfComposite},
    FieldKey{"BOLEFFDEPTH", CalcBondedEffective},
    FieldKey{"BOLDEPTH", CalcBondedOverlay},
    FieldKey{"BOLFUTDEPTH", CalcBondedFuture},
    FieldKey{"UBOLEFFDEPTH", CalcUnbondedEffective},
    FieldKey{"UBOLDEPTH", CalcUnbondedOverlay},
    FieldKey{"UBOLFUTDEPTH", CalcUnbondedFuture},
};
constexpr std::array kCells = {CellKeyRoutine{"EXISTEFSN", CalcLayerEffectiveSN}};

}  // namespace

KeyTable RehabKeys() { return {kFields, kCells}; }

}  // namespace kelvor
