// SPDX-License-Identifier: GPL-3.0-or-later
//
// Factorial by direct product, and gamma by one of three methods that the argument chooses.
#pragma once

namespace tallyforge {

class Engine;

namespace MathFunctions {

/// The product of the whole number `n` and all below it to 1. Keeps 0 for 0, which the factorial
/// key never asks for and the gamma of 1 shows. Raises 6 from 171 on.
[[nodiscard]] double productDownFrom(double n);

/// Gamma of `x`, 0 < x <= 169, with about seven good digits where x is not whole: Stirling's
/// series below 1 (poor near 0), the product for whole numbers, else the polynomial of Abramowitz
/// and Stegun 6.1.36. Raises 6 where a product leaves the range (not whole and above 35), 11.
[[nodiscard]] double gammaOf(double x);

}  // namespace MathFunctions

// These show their own failures: after them X is 0 under "No Data!".

/// X!, of a whole number only.
void factorialOfX(Engine& calc);
void factorialOfWholePart(Engine& calc);
void gammaOfX(Engine& calc);

}  // namespace tallyforge
