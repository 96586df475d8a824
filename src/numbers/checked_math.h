// SPDX-License-Identifier: GPL-3.0-or-later
//
// Arithmetic on doubles that raises the calculator's numbered failures where a result would be
// infinite or no number at all: 5 outside a function's domain, 6 beyond the range of a double, 11
// for a division by zero.
#pragma once

#include "numbers/failure.h"

#include <cmath>

namespace tallyforge {

/// `value`, or 6 where it is not finite.
[[nodiscard]] inline double checked(double value) {
    if (!std::isfinite(value)) {
        throw Failure{FailureNumber::Overflow};
    }
    return value;
}

/// Raises 11 and 6.
[[nodiscard]] inline double quotient(double dividend, double divisor) {
    if (divisor == 0.0) {
        throw Failure{FailureNumber::DivisionByZero};
    }
    return checked(dividend / divisor);
}

/// Square root. Raises 5 for a negative number.
[[nodiscard]] inline double rootOf(double value) {
    if (value < 0.0) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    return std::sqrt(checked(value));
}

/// Natural logarithm. Raises 5 for 0 and below.
[[nodiscard]] inline double lnOf(double value) {
    if (value <= 0.0) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    return std::log(checked(value));
}

/// e^value. Raises 6.
[[nodiscard]] inline double expOf(double value) {
    return checked(std::exp(value));
}

/// base^exponent; 0^0 is 1. Raises 5 for a negative base with a broken exponent and for 0 with a
/// negative one, and 6.
[[nodiscard]] inline double power(double base, double exponent) {
    const bool broken = exponent != std::trunc(exponent);
    if ((base < 0.0 && broken) || (base == 0.0 && exponent < 0.0)) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    return checked(std::pow(base, exponent));
}

/// -1, 0 or 1.
[[nodiscard]] inline double signOf(double value) {
    return value > 0.0 ? 1.0 : (value < 0.0 ? -1.0 : 0.0);
}

}  // namespace tallyforge
