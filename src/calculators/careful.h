// SPDX-License-Identifier: GPL-3.0-or-later
//
// Products, quotients and roots that leave the range of a double only where the result does.
#pragma once

#include "numbers/checked_math.h"

#include <cmath>
#include <limits>

namespace tallyforge {

/// Whether a step has kept all its digits: neither beyond the range nor in the sparse numbers near 0.
[[nodiscard]] inline bool keepsDigits(double step) {
    return std::isfinite(step) && std::abs(step) >= std::numeric_limits<double>::min();
}

/// a² / b. Raises 11 and 6.
[[nodiscard]] inline double squareOver(double a, double b) {
    return keepsDigits(a * a) ? quotient(a * a, b) : checked(quotient(a, b) * a);
}

/// a² · b. Raises 6.
[[nodiscard]] inline double squareTimes(double a, double b) {
    return checked(keepsDigits(a * a) ? a * a * b : a * b * a);
}

/// a / b². Raises 11 and 6.
[[nodiscard]] inline double overSquare(double a, double b) {
    return keepsDigits(b * b) ? quotient(a, b * b) : quotient(quotient(a, b), b);
}

/// sqrt(a · b). Raises 5 and 6.
[[nodiscard]] inline double rootOfProduct(double a, double b) {
    if (keepsDigits(a * b) || (a < 0.0) != (b < 0.0)) {
        return rootOf(a * b);
    }
    return checked(rootOf(std::abs(a)) * rootOf(std::abs(b)));
}

/// sqrt(a / b). Raises 5, 6 and 11.
[[nodiscard]] inline double rootOfQuotient(double a, double b) {
    if (b == 0.0) {
        throw Failure{FailureNumber::DivisionByZero};
    }
    if (keepsDigits(a / b) || (a < 0.0) != (b < 0.0)) {
        return rootOf(a / b);
    }
    return quotient(rootOf(std::abs(a)), rootOf(std::abs(b)));
}

}  // namespace tallyforge
