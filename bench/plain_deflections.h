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

}  // namespace kelvor::bench
