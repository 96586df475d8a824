// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/temperature_rise.h"

#include "numbers/checked_math.h"
#include "numbers/circle.h"

namespace tallyforge {

double blockSurface(double height, double length, double width) {
    return checked(2.0 * ((height + width) * length + height * width));
}

double cylinderSurface(double height, double diameter) {
    return checked(kPi * diameter * (diameter / 2.0 + height));
}

double temperatureRise(double watts, double squareInches) {
    constexpr double kFittedPower = 0.83;
    return 100.0 * power(quotient(watts, squareInches), kFittedPower);
}

}  // namespace tallyforge
