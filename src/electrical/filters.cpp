// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/filters.h"

#include "numbers/checked_math.h"

#include <cmath>

namespace tallyforge {

namespace {

// 10 log10(1 + excess), to the last digits of a small excess.
double decibelsAbove(double excess) {
    return 10.0 * std::log1p(checked(excess)) / std::log(10.0);
}

// T(n, x) by the recurrence of the polynomials that are written out term by term in tables; exact
// to the last digits where the terms cancel.
double chebyshevPolynomial(int degree, double x) {
    double before = 1.0;
    double value = x;
    for (int n = 1; n < degree; ++n) {
        const double next = 2.0 * x * value - before;
        before = value;
        value = next;
    }
    return checked(value);
}

}  // namespace

double butterworthLoss(double degree, double ratio) {
    return decibelsAbove(power(ratio, degree + degree));
}

ChebyshevLoss chebyshevLoss(const Chebyshev& filter, double ratio) {
    const double squaredRipple = std::pow(10.0, filter.rippleInDb / 10.0) - 1.0;
    const double inverseRipple = quotient(1.0, rootOf(squaredRipple));
    const double halfPower = std::cosh(std::acosh(inverseRipple) / filter.degree);
    const auto loss = [&](double x) {
        const double t = chebyshevPolynomial(filter.degree, x);
        return decibelsAbove(squaredRipple * t * t);
    };
    return {.fromRippleEdge = loss(ratio), .fromHalfPower = loss(ratio * halfPower)};
}

ScaledElement scaleElement(bool givenAsInductor, double g, FilterForm form, const FilterScale& scale) {
    if (scale.impedance == 0.0 || scale.cutOff == 0.0) {
        throw Failure{FailureNumber::DivisionByZero};
    }
    const bool turned = form == FilterForm::HighPass || form == FilterForm::BandStop;
    const double perImpedance = givenAsInductor ? scale.impedance : quotient(1.0, scale.impedance);
    // The reactance (of a coil) or susceptance (of a capacitor) of the arm at the cut-off; turned
    // round, that of the other kind.
    const double atCutOff = checked(g * perImpedance);
    ScaledElement element{.inductor = givenAsInductor != turned};
    element.value = quotient(turned ? quotient(1.0, atCutOff) : atCutOff, scale.cutOff);
    if (form == FilterForm::BandPass || form == FilterForm::BandStop) {
        element.hasPartner = true;
        element.partner = power(checked(scale.centre * scale.centre * element.value), -1.0);
    }
    return element;
}

}  // namespace tallyforge
