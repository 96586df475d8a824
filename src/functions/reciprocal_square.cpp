// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/reciprocal_square.h"

#include "engine/engine.h"

#include <cmath>

namespace tallyforge {

namespace {

double inRange(double value) {
    if (!std::isfinite(value)) {
        throw Failure{FailureNumber::Overflow};
    }
    return value;
}

}  // namespace

void reciprocal(Engine& calc) {
    calc.s.FnLabel = "1/X";
    const double x = calc.xNumber();
    if (x == 0.0) {
        throw Failure{FailureNumber::DivisionByZero};
    }
    calc.s.Xreg = inRange(1.0 / x);
}

void square(Engine& calc) {
    calc.s.FnLabel = "Xý"_t;
    const double x = calc.xNumber();
    calc.s.Xreg = inRange(x * x);
}

void squareRoot(Engine& calc) {
    calc.s.FnLabel = "ûx"_t;
    const double x = calc.xNumber();
    if (x < 0.0) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    calc.s.Xreg = std::sqrt(x);
}

}  // namespace tallyforge
