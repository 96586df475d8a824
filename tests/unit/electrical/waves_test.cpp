// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/waves.h"

#include "unit/electrical/expect_failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tallyforge {
namespace {

TEST(Waves, WavelengthFrequencyAndPeriodGoRound) {
    for (const double metres : {2.0, 0.125, 1500.0, 3e-9}) {
        const double hertz = wavelengthOrFrequency(metres);
        EXPECT_NEAR(hertz * metres, 3e8, 1e-6);
        EXPECT_NEAR(wavelengthOrFrequency(hertz) / metres, 1.0, 1e-14);
        EXPECT_NEAR(periodOfWavelength(metres) * hertz, 1.0, 1e-14);
        EXPECT_NEAR(periodOrFrequency(hertz) / periodOfWavelength(metres), 1.0, 1e-14);
        EXPECT_NEAR(wavelengthOfPeriod(periodOfWavelength(metres)) / metres, 1.0, 1e-14);
    }
    EXPECT_DOUBLE_EQ(wavelengthOrFrequency(3), 1e8);
    expectFailure(FailureNumber::DivisionByZero, [] { return wavelengthOrFrequency(0); });
    expectFailure(FailureNumber::DivisionByZero, [] { return periodOrFrequency(0); });
    expectFailure(FailureNumber::Overflow, [] { return wavelengthOrFrequency(1e-305); });
    expectFailure(FailureNumber::Overflow, [] { return wavelengthOfPeriod(1e305); });
}

TEST(Waves, AngularFrequencyIsATurnAPeriod) {
    EXPECT_NEAR(angularFrequency(60), 376.99111843077, 1e-10);
    expectFailure(FailureNumber::Overflow, [] { return angularFrequency(1e308); });
}

TEST(Waves, DecibelsCountTenthsOfAPowerOfTen) {
    EXPECT_DOUBLE_EQ(decibelsOfPower(100, 1), 20.0);
    EXPECT_DOUBLE_EQ(decibelsOfPower(1, 1000), -30.0);
    EXPECT_NEAR(decibelsOfPower(2, 1), 10 * std::numbers::ln2 / std::numbers::ln10, 1e-14);
    // The power of a voltage over its impedance says the same.
    for (const double z1 : {50.0, 75.0}) {
        for (const double e2 : {0.1, 3.0}) {
            const double powers = decibelsOfPower(5.0 * 5.0 / z1, e2 * e2 / 600.0);
            EXPECT_NEAR(decibelsOfVoltage(5.0, z1, e2, 600.0), powers, 1e-12);
        }
    }
}

TEST(Waves, DecibelsRefuseWhatHasNoLogarithm) {
    expectFailure(FailureNumber::DivisionByZero, [] { return decibelsOfPower(1, 0); });
    expectFailure(FailureNumber::InvalidArgument, [] { return decibelsOfPower(0, 1); });
    expectFailure(FailureNumber::InvalidArgument, [] { return decibelsOfPower(-1, 1); });
    expectFailure(FailureNumber::InvalidArgument, [] { return decibelsOfVoltage(1, -50, 1, 50); });
    expectFailure(FailureNumber::DivisionByZero, [] { return decibelsOfVoltage(1, 0, 1, 50); });
}

}  // namespace
}  // namespace tallyforge
