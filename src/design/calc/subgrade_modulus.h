#pragma once

namespace kelvor {

/// The resilient modulus of the roadbed soil, psi, from two tests of it.
struct SubgradeModulus {
    double byCbr = 0.0;
    double byRValue = 0.0;
    double governing = 0.0;  // the smaller of those whose test is at least 1; 0 if neither is
};

/// Correlations of NCHRP Project 128 for the California Bearing Ratio and the R-value; 0: no such test.
/// Throws ArithmeticFault for a negative CBR and for an overflow.
SubgradeModulus ComputeSubgradeModulus(double cbr, double rValue);

}  // namespace kelvor
