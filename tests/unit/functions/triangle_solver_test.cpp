// SPDX-License-Identifier: GPL-3.0-or-later
//
// Triangles that are known whole: the solver is given every three quantities that fix one and must
// find the rest. The list holds Pythagorean and Heronian triangles (areas by Heron's formula, a
// whole number for each), the halves of the square and of the equilateral triangle, and a thin one.
#include "functions/triangle_solver.h"
#include "functions/math_functions.h"
#include "numbers/failure.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <numbers>
#include <string>

namespace tallyforge {
namespace {

struct Known {
    std::array<double, 3> sides;
    double area;
};

// The angle between sides a and b, opposite to c, by the law of cosines.
double angleBetween(double a, double b, double c) {
    return std::acos((a * a + b * b - c * c) / (2.0 * a * b));
}

Triangle whole(const Known& known) {
    const auto& [a, b, c] = known.sides;
    return {.sides = known.sides,
            .angles = {angleBetween(a, b, c), angleBetween(b, c, a), angleBetween(c, a, b)},
            .area = known.area};
}

const Known kKnown[] = {
    {{3, 4, 5}, 6},
    {{5, 12, 13}, 30},
    {{13, 14, 15}, 84},
    {{15, 13, 4}, 24},
    {{25, 39, 56}, 420},
    {{9, 10, 17}, 36},
    {{1, 1, std::numbers::sqrt2}, 0.5},
    {{1, 2, std::numbers::sqrt3}, std::numbers::sqrt3 / 2.0},
    {{2, 2, 2}, std::numbers::sqrt3},
};

void expectSame(const Triangle& found, const Triangle& expected) {
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(found.sides.at(i), expected.sides.at(i), 1e-11 * expected.sides.at(i)) << "side " << i;
        EXPECT_NEAR(found.angles.at(i), expected.angles.at(i), 1e-11) << "angle " << i;
    }
    EXPECT_NEAR(found.area, expected.area, 1e-11 * expected.area);
}

bool same(const Triangle& left, const Triangle& right) {
    for (std::size_t i = 0; i < 3; ++i) {
        if (std::abs(left.sides.at(i) - right.sides.at(i)) > 1e-9 * right.sides.at(i)) {
            return false;
        }
    }
    return true;
}

/// What is not named by `bits` is left out.
Triangle only(std::uint8_t bits, const Triangle& t) {
    Triangle given;
    for (std::size_t i = 0; i < 3; ++i) {
        given.sides.at(i) = (bits >> i & 1) != 0 ? t.sides.at(i) : 0.0;
        given.angles.at(i) = (bits >> (i + 3) & 1) != 0 ? t.angles.at(i) : 0.0;
    }
    return given;
}

bool isOpposite(std::uint8_t bits) {
    for (const int sum : {13, 14, 19, 21, 35, 38}) {
        if (bits == sum) {
            return true;
        }
    }
    return false;
}

constexpr std::uint8_t kThreeAngles = 56;

TEST(TriangleSolver, FindsTheRestFromEveryThreeQuantities) {
    for (const Known& known : kKnown) {
        const Triangle expected = whole(known);
        for (std::uint8_t bits = 1; bits < 64; ++bits) {
            if (std::popcount(bits) != 3 || bits == kThreeAngles) {
                continue;
            }
            SCOPED_TRACE("sides " + std::to_string(known.sides[0]) + " " + std::to_string(known.sides[1]) + " " +
                         std::to_string(known.sides[2]) + ", bits " + std::to_string(bits));
            const auto found = solveTriangle(bits, only(bits, expected));
            if (found.second && !same(found.first, expected)) {
                EXPECT_TRUE(isOpposite(bits));
                expectSame(*found.second, expected);
            } else {
                expectSame(found.first, expected);
            }
        }
    }
}

// Both triangles with sides 8 (opposite to 30 degrees: 5) have sine 0.8: their third sides are
// 8 cos 30 - 3 and 8 cos 30 + 3.
TEST(TriangleSolver, FindsBothTrianglesWhereThereAreTwo) {
    Triangle given;
    given.sides = {8.0, 0.0, 5.0};
    given.angles = {MathFunctions::DegToRad(30.0), 0.0, 0.0};
    const auto found = solveTriangle(1 + 4 + 8, given);
    EXPECT_NEAR(found.first.sides[1], 4.0 * std::numbers::sqrt3 + 3.0, 1e-13);
    ASSERT_TRUE(found.second.has_value());
    EXPECT_NEAR(found.second->sides[1], 4.0 * std::numbers::sqrt3 - 3.0, 1e-12);
    EXPECT_NEAR(found.first.angles[1] + found.second->angles[1], std::numbers::pi, 1e-13);
    EXPECT_NEAR(found.second->area, 0.5 * 8.0 * found.second->sides[1] * 0.5, 1e-12);
}

TEST(TriangleSolver, OneTriangleWhereTheOppositeSideIsTheLongerOneOrTheAngleRight) {
    Triangle given;
    given.sides = {3.0, 0.0, 5.0};
    given.angles = {MathFunctions::DegToRad(30.0), 0.0, 0.0};
    EXPECT_FALSE(solveTriangle(13, given).second.has_value());
    given.sides = {2.0, 0.0, 1.0};
    const auto right = solveTriangle(13, given);
    EXPECT_FALSE(right.second.has_value());
    EXPECT_NEAR(right.first.sides[1], std::numbers::sqrt3, 1e-12);
}

FailureNumber failureOf(std::uint8_t bits, const Triangle& given) {
    try {
        (void)solveTriangle(bits, given);
    } catch (const Failure& failure) {
        return failure.number();
    }
    return {};
}

TEST(TriangleSolver, WhatIsNoTriangleFails) {
    EXPECT_EQ(failureOf(7, {.sides = {1, 2, 3}}), FailureNumber::InvalidArgument);
    EXPECT_EQ(failureOf(7, {.sides = {1, 2, 9}}), FailureNumber::InvalidArgument);
    EXPECT_EQ(failureOf(7, {.sides = {-3, 4, 5}}), FailureNumber::InvalidArgument);
    EXPECT_EQ(failureOf(13, {.sides = {8, 0, 1}, .angles = {0.6, 0, 0}}), FailureNumber::InvalidArgument);
    EXPECT_EQ(failureOf(25, {.sides = {1, 0, 0}, .angles = {2.0, 1.2, 0}}), FailureNumber::InvalidArgument);
    EXPECT_EQ(failureOf(11, {.sides = {1, 1, 0}, .angles = {3.2, 0, 0}}), FailureNumber::InvalidArgument);
    EXPECT_EQ(failureOf(kThreeAngles, {.angles = {1.0, 1.0, 1.14}}), FailureNumber::InvalidArgument);
}

TEST(TriangleSolver, ARightTriangleFollowsFromEveryTwoQuantities) {
    const RightTriangle expected{
        .hypotenuse = 5, .x = 3, .y = 4, .oppositeX = std::asin(0.6), .oppositeY = std::asin(0.8)};
    for (std::uint8_t bits = 1; bits < 32; ++bits) {
        if (!determinesRightTriangle(bits)) {
            EXPECT_TRUE(std::popcount(bits) != 2 || bits == 24) << int{bits};
            continue;
        }
        SCOPED_TRACE(int{bits});
        const RightTriangle given{.hypotenuse = (bits & kHypotenuse) != 0 ? 5.0 : 0.0,
                                  .x = (bits & kAbscissa) != 0 ? 3.0 : 0.0,
                                  .y = (bits & kOrdinate) != 0 ? 4.0 : 0.0,
                                  .oppositeX = (bits & kAngleOppositeX) != 0 ? std::asin(0.6) : 0.0,
                                  .oppositeY = (bits & kAngleOppositeY) != 0 ? std::asin(0.8) : 0.0};
        const RightTriangle found = solveRightTriangle(bits, given);
        EXPECT_NEAR(found.hypotenuse, 5.0, 1e-13);
        EXPECT_NEAR(found.x, 3.0, 1e-13);
        EXPECT_NEAR(found.y, 4.0, 1e-13);
        EXPECT_NEAR(found.oppositeX, expected.oppositeX, 1e-14);
        EXPECT_NEAR(found.oppositeY, expected.oppositeY, 1e-14);
    }
}

TEST(TriangleSolver, WhatIsNoRightTriangleFails) {
    struct Row {
        std::uint8_t bits;
        RightTriangle given;
    };
    const double third = std::numbers::pi / 3.0;
    const Row rows[] = {
        {kHypotenuse | kAbscissa, {.hypotenuse = 3, .x = 5}},
        {kHypotenuse | kAbscissa, {.hypotenuse = 3, .x = 3}},
        {kHypotenuse | kOrdinate, {.hypotenuse = 3, .y = 5}},
        {kHypotenuse | kAbscissa, {.hypotenuse = -5, .x = 3}},
        {kAbscissa | kOrdinate, {.x = -3, .y = 4}},
        {kHypotenuse | kAngleOppositeX, {.hypotenuse = 10, .oppositeX = 2 * third}},
        {kHypotenuse | kAngleOppositeX, {.hypotenuse = 10, .oppositeX = -third}},
        {kAbscissa | kAngleOppositeY, {.x = 3, .oppositeY = 2.5 * third}},
        {kOrdinate | kAngleOppositeX, {.y = 3, .oppositeX = MathFunctions::DegToRad(90.0)}},
        {kOrdinate | kAngleOppositeX, {.y = 3, .oppositeX = toRadians(100.0, AngleMode::Grads)}},
    };
    for (const Row& row : rows) {
        try {
            (void)solveRightTriangle(row.bits, row.given);
            ADD_FAILURE() << int{row.bits};
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), FailureNumber::InvalidArgument) << int{row.bits};
        }
    }
}

}  // namespace
}  // namespace tallyforge
