#pragma once

namespace kelvor {

/// The resilient modulus of the roadbed soil, psi, from two tests of it.
struct SubgradeModulus {
    double byCbr = 0.0;
    double byRValue = 0.0;
    double governing = 0.0;  // of one test, its estimate; of both, the smaller; 0 if one that was
                             // made is below 1, or none was
};

/// Correlations of NCHRP Project 128 for the California Bearing Ratio and the R-value; 0: no such test.
/// Throws ArithmeticFault for a negative CBR and for an overflow.
SubgradeModulus ComputeSubgradeModulus(double cbr, double rValue);

}  // namespace kelvor
