// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pure mathematics: values in, values out, or a Failure. Angles are radians unless told.
// Domain faults raise what the textbook formulas by logarithms and roots (Abramowitz and Stegun,
// chapter 4) raise: 5 (logarithm of 0 and below, root of a negative number) and 11 (division by
// zero); a result beyond the range of a double raises 6. The values are computed in forms that keep
// all digits wherever the result is in range.
#pragma once

#include "engine/engine_state.h"
#include "numbers/circle.h"

#include <optional>

namespace tallyforge {

namespace MathFunctions {

[[nodiscard]] double Sec(double x);
[[nodiscard]] double Csc(double x);
[[nodiscard]] double Cot(double x);

/// Empty where the argument is refused, beyond -1 to 1. Keeps +pi/2 for -1 as for 1, by the
/// calculator's own pi, so that it is a right angle in every unit.
[[nodiscard]] std::optional<double> ArcSin(double x);
/// Empty where the argument is refused, beyond -1 to 1. Keeps 0 for -1 as for 1.
[[nodiscard]] std::optional<double> ArcCos(double x);
/// Raises 11 at 1 and -1, 5 between them.
[[nodiscard]] double ArcSec(double x);
/// Raises 11 at 1 and -1, 5 between them.
[[nodiscard]] double ArcCsc(double x);
/// From 0 to pi.
[[nodiscard]] double ArcCot(double x);

[[nodiscard]] double Sinh(double x);
[[nodiscard]] double Cosh(double x);
[[nodiscard]] double Tanh(double x);
[[nodiscard]] double Sech(double x);
[[nodiscard]] double Csch(double x);
[[nodiscard]] double Coth(double x);

[[nodiscard]] double ArcSinh(double x);
[[nodiscard]] double ArcCosh(double x);
[[nodiscard]] double ArcTanh(double x);
[[nodiscard]] double ArcSech(double x);
[[nodiscard]] double ArcCsch(double x);
[[nodiscard]] double ArcCoth(double x);

/// Common logarithm.
[[nodiscard]] double Log10(double x);

[[nodiscard]] double DegToRad(double degrees);
[[nodiscard]] double RadToDeg(double radians);

struct Rectangular {
    double x = 0.0;
    double jy = 0.0;
};
struct Polar {
    double r = 0.0;
    double theta = 0.0;
};

/// Keeps taking the radius by its absolute value. `theta` in the unit of `mode`.
[[nodiscard]] Rectangular PolarToRect(double r, double theta, AngleMode mode);
/// The angle comes in the unit of `mode`. Keeps doing without the quadrant: it lies within a
/// quarter turn of 0 whatever the signs.
[[nodiscard]] Polar RectToPolar(double x, double jy, AngleMode mode);

}  // namespace MathFunctions

[[nodiscard]] double degreesToGrads(double degrees);
[[nodiscard]] double gradsToDegrees(double grads);
/// An angle of the user's, in degrees, radians or grads, as radians.
[[nodiscard]] double toRadians(double angle, AngleMode mode);
/// Radians in the user's unit.
[[nodiscard]] double fromRadians(double radians, AngleMode mode);

}  // namespace tallyforge
