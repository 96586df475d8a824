// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/rounding.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "numbers/number_format.h"

#include <algorithm>
#include <cmath>

namespace tallyforge {

namespace {

double roundAt(double value, double places) {
    // No double has a digit behind this place.
    constexpr double kLastPlace = 340.0;
    const double whole = roundHalfEven(places, 0);
    if (whole < 0.0) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    return roundHalfEven(value, static_cast<int>(std::min(whole, kLastPlace)));
}

}  // namespace

double MathFunctions::Floor(double x) {
    return x < 0.0 ? std::trunc(x - 1.0) : roundHalfEven(x - 0.5, 0);
}

double MathFunctions::Ceiling(double x) {
    return x < 0.0 ? std::trunc(x) : roundHalfEven(x + 0.5, 0);
}

void roundToPlaces(Engine& calc) {
    replaceOperands(calc, 2, {roundAt(operandBelow(calc, 1), calc.xNumber()), "Rnd"});
}

void wholePart(Engine& calc) {
    replaceX(calc, {std::trunc(calc.xNumber()), "Int"});
}

void fractionalPart(Engine& calc) {
    const double x = calc.xNumber();
    replaceX(calc, {x - std::trunc(x), "Frac"});
}

void floorOfX(Engine& calc) {
    replaceX(calc, {MathFunctions::Floor(calc.xNumber()), "Floor"});
}

void ceilingOfX(Engine& calc) {
    replaceX(calc, {MathFunctions::Ceiling(calc.xNumber()), "Ceil"});
}

}  // namespace tallyforge
