#include "ndt/calc/composite_backcalculation.h"

#include "ndt/calc/slab_basin.h"

namespace kelvor {

namespace {

/// How far the asphalt is compressed below the plate, mils, by its thickness over its modulus, inches/psi.
Real Compression(Real thicknessOverModulus, bool bonded) {
    if (bonded) return Pow(thicknessOverModulus, 1.0798) * 121500.6 - 0.0328;
    return Pow(thicknessOverModulus, 0.94551) * 38687.2 - 0.02132;
}

/// The deflections beside the plate, mils.
struct OuterBasin {
    Real d12, d24, d36;

    [[nodiscard]] bool IsWhole() const { return d12 != 0.0 && d24 != 0.0 && d36 != 0.0; }
};

OuterBasin ReadOuterBasin(const CalcContext& context, int row, int dim2) {
    return {context.Get("D12C", row, dim2), context.Get("D24C", row, dim2), context.Get("D36C", row, dim2)};
}

}  // namespace

Real CorrectedD0(const CalcContext& context, int row, int dim2) {
    const Real modulus = context.Get("NDTEAC");
    if (modulus == 0.0 || context.Get("NDTLOADC", row, dim2) == 0.0) return 0.0;
    const bool bonded = context.Get("BOND") != 0.0;
    return context.Get("D0C", row, dim2) - Compression(context.Get("ACACPCACT") / modulus, bonded);
}

void CalcAreaComposite(CalcContext& context, std::string_view /*target*/, int row, int dim2) {
    const OuterBasin basin = ReadOuterBasin(context, row, dim2);
    const bool isLoaded = context.Get("NDTLOADC", row, dim2) != 0.0 && context.Get("D0C", row, dim2) != 0.0;
    if (!isLoaded || !basin.IsWhole()) {
        context.Clear("AREAC", row, dim2);
        return;
    }
    const Real d0 = CorrectedD0(context, row, dim2);
    context.Put("AREAC", row, dim2, BasinArea(d0, basin.d12, basin.d24, basin.d36));
}

void CalcRadiusOfStiffnessComposite(CalcContext& context, std::string_view /*target*/, int row, int dim2) {
    const std::optional<Real> radius = RadiusOfStiffness(context.Get("AREAC", row, dim2));
    if (radius) {
        context.Put("BACKLC", row, dim2, *radius);
    } else {
        context.Clear("BACKLC", row, dim2);
    }
}

void CalcDynamicKComposite(CalcContext& context, std::string_view target, int row, int dim2) {
    const Real d0 = CorrectedD0(context, row, dim2);
    const Real stiffnessRadius = context.Get("BACKLC", row, dim2);
    const Real plateRadius = context.Get("Radius");
    const Real load = context.Get("NDTLOADC", row, dim2);
    if (d0 == 0.0 || stiffnessRadius == 0.0 || plateRadius == 0.0 || load == 0.0 ||
        !ReadOuterBasin(context, row, dim2).IsWhole()) {
        context.Clear("DYNKC", row, dim2);
        return;
    }
    context.Put(target, row, dim2, DynamicK(load, d0, stiffnessRadius, plateRadius));
}

void CalcStaticKComposite(CalcContext& context, std::string_view target, int row, int dim2) {
    const Real k = StaticK(context.Get("DYNKC", row, dim2));
    if (k != 0.0) {
        context.Put(target, row, dim2, k);
    } else {
        context.Clear("STATKC", row, dim2);
    }
}

void CalcSlabModulusComposite(CalcContext& context, std::string_view /*target*/, int row, int dim2) {
    const Real poisson = context.Get("POISSON");
    const Real thickness = context.Get("EXISTDEPTH");
    const Real stiffnessRadius = context.Get("BACKLC", row, dim2);
    const Real dynamicK = context.Get("DYNKC", row, dim2);
    if (poisson == 0.0 || thickness == 0.0 || stiffnessRadius == 0.0 || dynamicK == 0.0) {
        context.Clear("NDTEC", row, dim2);
        return;
    }
    context.Put("NDTEC", row, dim2, SlabModulus(poisson, thickness, stiffnessRadius, dynamicK));
}

}  // namespace kelvor
