// SPDX-License-Identifier: GPL-3.0-or-later
//
// Triangles solved: values in, values out, or a Failure. Angles are radians.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace tallyforge {

/// Bits of the quantities of a right triangle.
enum RightTriangleBit : std::uint8_t {
    kHypotenuse = 1,
    kAbscissa = 2,
    kOrdinate = 4,
    kAngleOppositeX = 8,
    kAngleOppositeY = 16,
};

/// `x` and `y` are the legs, `oppositeX` and `oppositeY` the angles that lie opposite to them.
struct RightTriangle {
    double hypotenuse = 0.0;
    double x = 0.0;
    double y = 0.0;
    double oppositeX = 0.0;
    double oppositeY = 0.0;
};

/// Whether two quantities with the sum `bits` determine the triangle; two angles do not.
[[nodiscard]] bool determinesRightTriangle(std::uint8_t bits);

/// Those of the quantities `bits` whose value belongs to no right triangle, whatever the others: a
/// side that is not above 0, an angle that is not between 0 and a right one.
[[nodiscard]] std::uint8_t outOfRange(std::uint8_t bits, const RightTriangle& given);

/// The whole triangle from the two quantities of `given` that `bits` names. Raises 5 for one that
/// is out of range and for a leg that is not shorter than the hypotenuse; 6.
[[nodiscard]] RightTriangle solveRightTriangle(std::uint8_t bits, RightTriangle given);

/// Angle i lies between side i and side i + 1, so opposite to side i + 2, counted round from 0.
struct Triangle {
    std::array<double, 3> sides{};
    std::array<double, 3> angles{};
    double area = 0.0;
};

/// Two sides and the angle opposite to the shorter one belong to two triangles.
struct TriangleSolutions {
    Triangle first;
    std::optional<Triangle> second;
};

/// Those of the quantities `bits` whose value belongs to no triangle, whatever the others: a side
/// that is not above 0, an angle that is not between 0 and two right ones.
[[nodiscard]] std::uint8_t outOfRange(std::uint8_t bits, const Triangle& given);

/// The triangle from three quantities of `given`; bits 1, 2, 4 of `bits` name sides, 8, 16, 32
/// angles. Raises 5 where there is no such triangle, and for three angles, which fix no size; 6.
/// Laws of sines and cosines in the forms that keep their digits for thin triangles: half-angle
/// formula for three sides, arc tangent for two sides and their angle.
[[nodiscard]] TriangleSolutions solveTriangle(std::uint8_t bits, const Triangle& given);

}  // namespace tallyforge
