#include "ndt/calc/rigid_backcalculation.h"

#include "calc/ignore_faults.h"
#include "ndt/calc/slab_basin.h"

namespace kelvor {

namespace {

/// The deflections of a row, mils.
struct Basin {
    Real d0, d12, d24, d36;

    [[nodiscard]] bool IsWhole() const { return d0 != 0.0 && d12 != 0.0 && d24 != 0.0 && d36 != 0.0; }
};

Basin ReadBasin(const CalcContext& context, int row, int dim2) {
    return {context.Get("D0", row, dim2), context.Get("D12", row, dim2), context.Get("D24", row, dim2),
            context.Get("D36", row, dim2)};
}

void WriteDynamicK(CalcContext& context, std::string_view target, int row, int dim2) {
    const Basin basin = ReadBasin(context, row, dim2);
    const Real stiffnessRadius = context.Get("BACKL", row, dim2);
    const Real plateRadius = context.Get("Radius");
    const Real load = context.Get("NDTLOAD", row, dim2);
    if (!basin.IsWhole() || stiffnessRadius == 0.0 || plateRadius == 0.0 || load == 0.0) {
        context.Clear(target, row, dim2);
        return;
    }
    context.Put(target, row, dim2, DynamicK(load, basin.d0, stiffnessRadius, plateRadius));
}

}  // namespace

void CalcArea(CalcContext& context, std::string_view target, int row, int dim2) {
    const Basin basin = ReadBasin(context, row, dim2);
    if (!basin.IsWhole()) {
        context.Clear(target, row, dim2);
        return;
    }
    context.Put(target, row, dim2, BasinArea(basin.d0, basin.d12, basin.d24, basin.d36));
}

void CalcRadiusOfStiffness(CalcContext& context, std::string_view target, int row, int dim2) {
    const std::optional<Real> radius = RadiusOfStiffness(context.Get("AREA", row, dim2));
    if (radius) {
        context.Put(target, row, dim2, *radius);
    } else {
        context.Clear(target, row, dim2);
    }
}

void CalcDynamicK(CalcContext& context, std::string_view target, int row, int dim2) {
    IgnoreFaults([&] { WriteDynamicK(context, target, row, dim2); });
}

void CalcStaticK(CalcContext& context, std::string_view target, int row, int dim2) {
    const Real k = StaticK(context.Get("DYNK", row, dim2));
    if (k != 0.0) {
        context.Put(target, row, dim2, k);
    } else {
        context.Clear(target, row, dim2);
    }
}

void CalcSlabModulus(CalcContext& context, std::string_view target, int row, int dim2) {
    const Real poisson = context.Get("POISSON");
    const Real thickness = context.Get("EXISTDEPTH");
    const Real stiffnessRadius = context.Get("BACKL", row, dim2);
    const Real dynamicK = context.Get("DYNK", row, dim2);
    if (poisson == 0.0 || thickness == 0.0 || stiffnessRadius == 0.0 || dynamicK == 0.0) {
        context.Clear(target, row, dim2);
        return;
    }
    context.Put("NDTE", row, dim2, SlabModulus(poisson, thickness, stiffnessRadius, dynamicK));
}

}  // namespace kelvor
