// SPDX-License-Identifier: GPL-3.0-or-later
//
// The surface of a component and how much warmer its loss makes it. Pure functions.
#pragma once

namespace tallyforge {

/// 2 ((H + W) L + H W), in the square of the lengths' unit. Raises 6.
[[nodiscard]] double blockSurface(double height, double length, double width);
/// pi D (D/2 + H), in the square of the lengths' unit. Raises 6.
[[nodiscard]] double cylinderSurface(double height, double diameter);

/// 100 (P / A)^0.83 degrees Celsius above the surroundings, P in watts and A in square inches (fitted
/// to the convection of small components). Raises 11 for an area of 0, 5 for a negative one, 6.
[[nodiscard]] double temperatureRise(double watts, double squareInches);

}  // namespace tallyforge
