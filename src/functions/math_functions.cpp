// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/math_functions.h"

#include "numbers/checked_math.h"

#include <cmath>
#include <numbers>

namespace tallyforge {

namespace {

constexpr double kHalfTurn = 180.0;  ///< degrees
// Tenths of a full turn: 40 grads are 36 degrees.
constexpr double kTenthInGrads = 40.0;
constexpr double kTenthInDegrees = 36.0;

[[noreturn]] void outsideDomain() {
    throw Failure{FailureNumber::InvalidArgument};
}

/// At a pole and beyond it the functions fail as their textbook formulas do: dividing by zero there.
[[noreturn]] void atPole() {
    throw Failure{FailureNumber::DivisionByZero};
}

/// Root of x^2 - 1 for x from 1 on, without the square.
double rootOfSquareLessOne(double x) {
    return std::sqrt(x - 1.0) * std::sqrt(x + 1.0);
}

/// Below this a square is nothing beside 1.
constexpr double kNoSquare = 1e-8;

/// ln(2 / x) for an x whose reciprocal may be out of range.
double lnOfTwoOver(double x) {
    return std::log(2.0) - std::log(x);
}

/// Arc secant of 1 and the like: 11 at 1, 5 below.
void refuseWithinOne(double size) {
    if (size == 1.0) {
        atPole();
    }
    if (size < 1.0) {
        outsideDomain();
    }
}

}  // namespace

namespace MathFunctions {

double Sec(double x) {
    return quotient(1.0, std::cos(x));
}

double Csc(double x) {
    return quotient(1.0, std::sin(x));
}

double Cot(double x) {
    return quotient(1.0, std::tan(x));
}

std::optional<double> ArcSin(double x) {
    if (std::abs(x) > 1.0) {
        return std::nullopt;
    }
    if (std::abs(x) == 1.0) {
        return kPi / 2.0;
    }
    return std::asin(x);
}

std::optional<double> ArcCos(double x) {
    if (std::abs(x) > 1.0) {
        return std::nullopt;
    }
    if (std::abs(x) == 1.0) {
        return 0.0;
    }
    return std::acos(x);
}

double ArcSec(double x) {
    refuseWithinOne(std::abs(x));
    const double root = rootOfSquareLessOne(std::abs(x));
    return x > 0.0 ? std::atan(root) : std::numbers::pi / 2.0 + std::atan(1.0 / root);
}

double ArcCsc(double x) {
    refuseWithinOne(std::abs(x));
    return std::atan(signOf(x) / rootOfSquareLessOne(std::abs(x)));
}

double ArcCot(double x) {
    return std::atan2(1.0, x);
}

double Sinh(double x) {
    return checked(std::sinh(x));
}

double Cosh(double x) {
    return checked(std::cosh(x));
}

double Tanh(double x) {
    return std::tanh(x);
}

double Sech(double x) {
    const double down = std::exp(-std::abs(x));
    return 2.0 * down / (1.0 + down * down);
}

double Csch(double x) {
    const double size = std::abs(x);
    return signOf(x) * quotient(-2.0 * std::exp(-size), std::expm1(-2.0 * size));
}

double Coth(double x) {
    return quotient(1.0, std::tanh(x));
}

double ArcSinh(double x) {
    return std::asinh(x);
}

double ArcCosh(double x) {
    if (x < 1.0) {
        outsideDomain();
    }
    return std::acosh(x);
}

double ArcTanh(double x) {
    if (x == 1.0) {
        atPole();
    }
    if (std::abs(x) >= 1.0) {
        outsideDomain();
    }
    return std::atanh(x);
}

double ArcSech(double x) {
    if (x == 0.0) {
        atPole();
    }
    if (x < 0.0 || x > 1.0) {
        outsideDomain();
    }
    if (x < kNoSquare) {
        return lnOfTwoOver(x);
    }
    // 1/x less 1, of which no digit is lost near 1.
    const double excess = (1.0 - x) / x;
    return std::log1p(excess + std::sqrt(excess * (excess + 2.0)));
}

double ArcCsch(double x) {
    if (x == 0.0) {
        atPole();
    }
    return std::abs(x) < kNoSquare ? signOf(x) * lnOfTwoOver(std::abs(x)) : std::asinh(1.0 / x);
}

double ArcCoth(double x) {
    if (x == 1.0) {
        atPole();
    }
    const double size = std::abs(x);
    if (size <= 1.0) {
        outsideDomain();
    }
    return signOf(x) * std::log1p(2.0 / (size - 1.0)) / 2.0;
}

double Log10(double x) {
    return lnOf(x) / std::log(10.0);
}

double DegToRad(double degrees) {
    return checked(degrees * kPi) / kHalfTurn;
}

double RadToDeg(double radians) {
    return checked(radians * kHalfTurn) / kPi;
}

Rectangular PolarToRect(double r, double theta, AngleMode mode) {
    const double angle = toRadians(theta, mode);
    const double radius = std::abs(r);
    return {.x = radius * std::cos(angle), .jy = radius * std::sin(angle)};
}

Polar RectToPolar(double x, double jy, AngleMode mode) {
    const double r = checked(std::hypot(x, jy));
    if (x == 0.0) {
        const double quarter = fromRadians(kPi / 2.0, mode);
        return {.r = r, .theta = jy < 0.0 ? -quarter : quarter};
    }
    return {.r = r, .theta = fromRadians(std::atan(jy / x), mode)};
}

}  // namespace MathFunctions

double degreesToGrads(double degrees) {
    return checked(degrees * kTenthInGrads) / kTenthInDegrees;
}

double gradsToDegrees(double grads) {
    return checked(grads * kTenthInDegrees) / kTenthInGrads;
}

double toRadians(double angle, AngleMode mode) {
    switch (mode) {
        case AngleMode::Radians:
            return angle;
        case AngleMode::Grads:
            return MathFunctions::DegToRad(gradsToDegrees(angle));
        case AngleMode::Degrees:
            break;
    }
    return MathFunctions::DegToRad(angle);
}

double fromRadians(double radians, AngleMode mode) {
    switch (mode) {
        case AngleMode::Radians:
            return radians;
        case AngleMode::Grads:
            return degreesToGrads(MathFunctions::RadToDeg(radians));
        case AngleMode::Degrees:
            break;
    }
    return MathFunctions::RadToDeg(radians);
}

}  // namespace tallyforge
