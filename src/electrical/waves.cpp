// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/waves.h"

#include "numbers/checked_math.h"
#include "numbers/circle.h"

#include <cmath>

namespace tallyforge {

namespace {

double positive(double ratio) {
    if (ratio <= 0.0) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    return ratio;
}

}  // namespace

double wavelengthOrFrequency(double value) {
    return quotient(kWaveSpeed, value);
}

double periodOfWavelength(double metres) {
    return metres / kWaveSpeed;
}

double wavelengthOfPeriod(double seconds) {
    return checked(seconds * kWaveSpeed);
}

double periodOrFrequency(double value) {
    return quotient(1.0, value);
}

double angularFrequency(double hertz) {
    return checked(kTwoPi * hertz);
}

double decibelsOfPower(double p1, double p2) {
    return 10.0 * std::log10(positive(quotient(p1, p2)));
}

double decibelsOfVoltage(double e1, double z1, double e2, double z2) {
    return 20.0 * std::log10(positive(quotient(e1 * rootOf(z2), e2 * rootOf(z1))));
}

}  // namespace tallyforge
