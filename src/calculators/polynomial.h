// SPDX-License-Identifier: GPL-3.0-or-later
//
// Roots and values of polynomials of degree 1 to 3. Coefficients count as the decimals that were
// typed: whether roots are real, double or triple is decided exactly.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace tallyforge {

/// Roots of a polynomial. Real ones have `imaginary` 0 and stand larger in size first; a pair of
/// complex ones is first ± i·imaginary, with first = second.
struct Roots {
    double imaginary = 0.0;
    double first = 0.0;
    double second = 0.0;  ///< degree 2 and 3
    double third = 0.0;   ///< degree 3: the root that the cubic step finds, always real
};

/// Roots by the texts of the coefficients, a0 first; as many as the degree and one. `decimal` is the
/// locale's. Raises 13 for a text that is no number, 11 for a leading coefficient of 0, 6.
[[nodiscard]] Roots SolvePoly(std::span<const std::string> coefficients, char decimal);

/// Value of the polynomial with the coefficients, a0 first, at x. Raises 6.
[[nodiscard]] double CalcPoly(std::span<const double> coefficients, double x);

/// The polynomial as it is written: "(x² -3x +2)"; coefficients a0 first.
[[nodiscard]] std::string equationText(std::span<const double> coefficients, char decimal);

}  // namespace tallyforge
