#pragma once

#include <cmath>
#include <compare>
#include <numbers>
#include <stdexcept>

namespace kelvor {

/// An operation without a result: a division by zero, a logarithm or power outside its domain, or an
/// overflow. It abandons the calculation in which it happens, so no cell ever holds infinity or NaN.
class ArithmeticFault : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

[[noreturn]] void RaiseArithmeticFault(const char* operation);

/// A double whose operations raise ArithmeticFault at the operation that has no finite result, even if
/// a later step would hide it. Underflow gives 0. Calculations compute in Real and store its value().
class Real {
  public:
    constexpr Real() = default;
    constexpr Real(double value) : value_(value) {}  // NOLINT(google-explicit-constructor)

    [[nodiscard]] constexpr double value() const { return value_; }

    Real operator-() const { return -value_; }
    friend Real operator+(Real a, Real b) { return Checked(a.value_ + b.value_, "+"); }
    friend Real operator-(Real a, Real b) { return Checked(a.value_ - b.value_, "-"); }
    friend Real operator*(Real a, Real b) { return Checked(a.value_ * b.value_, "*"); }
    friend Real operator/(Real a, Real b) {
        if (b.value_ == 0.0) RaiseArithmeticFault("division by zero");
        return Checked(a.value_ / b.value_, "/");
    }
    Real& operator+=(Real other) { return *this = *this + other; }

    friend constexpr bool operator==(Real a, Real b) { return a.value_ == b.value_; }
    friend constexpr auto operator<=>(Real a, Real b) { return a.value_ <=> b.value_; }

  private:
    static Real Checked(double result, const char* operation) {
        if (!std::isfinite(result)) RaiseArithmeticFault(operation);
        return result;
    }

    double value_ = 0.0;
};

/// The natural logarithm of 10. Every common logarithm is a natural one divided by it.
inline constexpr double Ln10 = std::numbers::ln10;

/// A result of the mathematical library; a fault if no double holds it.
inline Real Finite(double result, const char* operation) {
    if (!std::isfinite(result)) RaiseArithmeticFault(operation);
    return result;
}

/// Natural logarithm; a fault for zero and below.
inline Real Log(Real x) {
    if (x.value() <= 0.0) RaiseArithmeticFault("logarithm");
    return Finite(std::log(x.value()), "logarithm");
}

/// e to the power x; a fault on overflow.
inline Real Exp(Real x) { return Finite(std::exp(x.value()), "exponential"); }

/// base ^ exponent. Zero to a negative power and a negative base with a broken exponent are faults; a
/// negative base with a whole exponent and 0 ^ 0 = 1 are not.
inline Real Pow(Real base, Real exponent) {
    return Finite(std::pow(base.value(), exponent.value()), "power");
}

inline Real Floor(Real x) { return std::floor(x.value()); }

inline Real Abs(Real x) { return std::fabs(x.value()); }

}  // namespace kelvor
