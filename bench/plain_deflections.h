#pragma once

namespace kelvor::bench {

/// A test on flexible pavement as plain numbers: pounds, mils, inches.
struct PlainTest {
    double load, d0, dr, distance, correction, plateRadius, thickness;
};

struct PlainModuli {
    double subgrade, pavement;  // psi
};

/// What the two columns of a test compute, on plain doubles: the same operations in the same order, but no
/// cells and no checks for faults.
PlainModuli BackcalculatePlain(const PlainTest& test);

/// A test on a slab, bare or under asphalt, as plain numbers: pounds, mils, inches, psi.
struct PlainSlabTest {
    double load, d0, d12, d24, d36, plateRadius, poisson, slab;
    double asphalt, asphaltModulus;  // 0: a bare slab
};

struct PlainSlab {
    double area, radius, dynamicK, staticK, modulus;  // inches, inches, psi/in twice, ksi
};

/// What the five columns of a test compute, the same way.
PlainSlab BackcalculatePlain(const PlainSlabTest& test);

}  // namespace kelvor::bench
