#pragma once

namespace kelvor::bench {

/// The terms of the flexible design equation as plain numbers.
struct PlainTerms {
    double W18 = 0.0;
    double reliability = 0.0;  // per cent
    double S0 = 0.0;
    double MR = 0.0;  // psi
    double P0 = 0.0;
    double Pt = 0.0;
    double SN = 0.0;  // as it was before
};

/// What a solve for the structural number computes, on plain doubles: the same operations in the same
/// order, but no cells, no checks for faults, no calls through a pointer and no clock. 0 if nothing is found.
double SearchStructuralNumber(const PlainTerms& terms);

}  // namespace kelvor::bench
