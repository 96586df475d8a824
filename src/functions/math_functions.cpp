// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/math_functions.h"

#include "numbers/checked_math.h"

#include <cmath>

namespace tallyforge {

namespace {

constexpr double kHalfTurn = 180.0;  ///< degrees
// Tenths of a full turn: 40 grads are 36 degrees.
constexpr double kTenthInGrads = 40.0;
constexpr double kTenthInDegrees = 36.0;

/// pi/2 of the inverse functions, to the last bit.
double quarterTurn() {
    return 2.0 * std::atan(1.0);
}

/// e^x and e^-x; 6 where either is beyond the range.
struct Exponentials {
    explicit Exponentials(double x) : up(expOf(x)), down(expOf(-x)) {}
    double up;
    double down;
};

double squared(double x) {
    return checked(x * x);
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
        return quarterTurn();
    }
    return std::atan(x / std::sqrt(1.0 - x * x));
}

std::optional<double> ArcCos(double x) {
    if (std::abs(x) > 1.0) {
        return std::nullopt;
    }
    if (std::abs(x) == 1.0) {
        return 0.0;
    }
    return std::atan(-x / std::sqrt(1.0 - x * x)) + quarterTurn();
}

double ArcSec(double x) {
    return quarterTurn() - ArcCsc(x);
}

double ArcCsc(double x) {
    return std::atan(quotient(signOf(x), rootOf(squared(x) - 1.0)));
}

double ArcCot(double x) {
    return quarterTurn() - std::atan(x);
}

double Sinh(double x) {
    const Exponentials e{x};
    return (e.up - e.down) / 2.0;
}

double Cosh(double x) {
    const Exponentials e{x};
    return checked(e.up + e.down) / 2.0;
}

double Tanh(double x) {
    const Exponentials e{x};
    return quotient(e.up - e.down, e.up + e.down);
}

double Sech(double x) {
    const Exponentials e{x};
    return quotient(2.0, e.up + e.down);
}

double Csch(double x) {
    const Exponentials e{x};
    return quotient(2.0, e.up - e.down);
}

double Coth(double x) {
    const Exponentials e{x};
    return quotient(e.up + e.down, e.up - e.down);
}

double ArcSinh(double x) {
    return lnOf(x + rootOf(squared(x) + 1.0));
}

double ArcCosh(double x) {
    return lnOf(x + rootOf(squared(x) - 1.0));
}

double ArcTanh(double x) {
    return lnOf(quotient(1.0 + x, 1.0 - x)) / 2.0;
}

double ArcSech(double x) {
    return lnOf(quotient(rootOf(1.0 - squared(x)) + 1.0, x));
}

double ArcCsch(double x) {
    return lnOf(quotient(signOf(x) * rootOf(squared(x) + 1.0) + 1.0, x));
}

double ArcCoth(double x) {
    return lnOf(quotient(x + 1.0, x - 1.0)) / 2.0;
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
    const double r = rootOf(squared(x) + squared(jy));
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
