// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/resistors.h"

#include "numbers/checked_math.h"
#include "numbers/circle.h"

#include <algorithm>
#include <cmath>
#include <complex>

namespace tallyforge {

namespace {

using Complex = std::complex<double>;

// By the larger part, so that neither a square nor a quotient leaves the range on the way.
Complex inverse(Complex z) {
    const double size = std::max(std::abs(z.real()), std::abs(z.imag()));
    const Complex scaled(quotient(z.real(), size), quotient(z.imag(), size));
    const double squares = scaled.real() * scaled.real() + scaled.imag() * scaled.imag();
    return {checked(scaled.real() / squares / size), checked(-scaled.imag() / squares / size)};
}

double inMode(double radians, AngleMode mode) {
    constexpr double kDegreesOfPi = 180.0;
    // A quirk that is kept: the grads come out too large by 10/9.
    constexpr double kGradsOfPi = 200.0 * 10.0 / 9.0;
    switch (mode) {
        case AngleMode::Degrees:
            return radians * kDegreesOfPi / kPi;
        case AngleMode::Grads:
            return radians * kGradsOfPi / kPi;
        case AngleMode::Radians:
            break;
    }
    return radians;
}

}  // namespace

double parallelTotal(double r1, double r2) {
    return power(quotient(1.0, r2) + quotient(1.0, r1), -1.0);
}

double parallelOther(double total, double one) {
    return power(quotient(1.0, total) - quotient(1.0, one), -1.0);
}

MinimumLossPad minimumLossPad(double z1, double z2) {
    const double ratio = quotient(z1, z2);
    const double series = rootOf((z1 - z2) * z1);
    const double shunt = quotient(z2 * z1, series);
    return {.series = series, .shunt = shunt, .lossInDb = 20.0 * std::log10(rootOf(ratio) + rootOf(ratio - 1.0))};
}

Impedance parallelImpedance(double xa, double jya, double xb, double jyb, AngleMode mode) {
    const Complex total = inverse(inverse({xa, jya}) + inverse({xb, jyb}));
    return {.real = total.real(),
            .imaginary = total.imag(),
            .magnitude = checked(std::hypot(total.real(), total.imag())),
            .angle = inMode(std::atan2(total.imag(), total.real()), mode)};
}

double resistanceOf(double microhmCentimetres, double length, double area, float factor) {
    return quotient(static_cast<double>(factor) * microhmCentimetres * length, area);
}

}  // namespace tallyforge
