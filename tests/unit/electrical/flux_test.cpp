// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/flux.h"

#include "electrical/temperature_rise.h"
#include "unit/electrical/expect_failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tallyforge {
namespace {

TEST(Flux, VoltSecondsAreWebersOfAllTurns) {
    EXPECT_NEAR(voltSeconds(25000, 40), 25000e-8 * 40, 1e-15);
    EXPECT_NEAR(otherOfVoltSeconds(0.01, 40), 25000, 1e-9);
    EXPECT_NEAR(otherOfVoltSeconds(0.01, 25000), 40, 1e-12);
    expectFailure(FailureNumber::DivisionByZero, [] { return otherOfVoltSeconds(1, 0); });
}

// The peak of d/dt of a sine of half the flux from peak to peak, over the root of 2: 2.2214, which
// the handbooks round to 2.22.
TEST(Flux, TheVoltsOfASineAreItsSlope) {
    const double exact = std::sqrt(2.0) * std::numbers::pi * 5000e-8 / 2 * 60 * 100;
    EXPECT_NEAR(sineVolts(5000, 60, 100) / exact, 1.0, 1e-3);
    const double volts = sineVolts(5000, 60, 100);
    EXPECT_NEAR(otherOfSineVolts(volts, 5000, 60), 100, 1e-11);
    EXPECT_NEAR(otherOfSineVolts(volts, 60, 100), 5000, 1e-9);
    expectFailure(FailureNumber::DivisionByZero, [] { return otherOfSineVolts(1, 0, 1); });
    // The same as 4.44 B A F n of the flux density.
    EXPECT_NEAR(volts, 4.44e-8 * fluxDensity(5000, 6.45) * 6.45 * 60 * 100, 1e-9);
}

TEST(Flux, DensityIsHalfTheFluxFromPeakToPeak) {
    EXPECT_DOUBLE_EQ(fluxDensity(12000, 2), 3000);
    EXPECT_DOUBLE_EQ(fluxOfDensity(3000, 2), 12000);
    expectFailure(FailureNumber::DivisionByZero, [] { return fluxDensity(1, 0); });
}

// Half a cycle of E sin has E sqrt(2) / (pi F) volt-seconds, E rms: 0.450.
TEST(Flux, HalfACycleOfASineKeepsItsRoundedFactor) {
    EXPECT_NEAR(kSineHalfCycle, std::sqrt(2.0) / std::numbers::pi, 1e-3);
    EXPECT_DOUBLE_EQ(kSineHalfCycle, 0.451);
    EXPECT_DOUBLE_EQ(kSquareHalfCycle, 0.5);
}

TEST(TemperatureRise, TheSurfaceIsTheSumOfItsFaces) {
    EXPECT_DOUBLE_EQ(blockSurface(2, 3, 4), 2 * (2 * 3 + 2 * 4 + 3 * 4));
    EXPECT_NEAR(cylinderSurface(5, 2), 2 * std::numbers::pi * 1 * 1 + 2 * std::numbers::pi * 5, 1e-12);
    expectFailure(FailureNumber::Overflow, [] { return blockSurface(1e200, 1e200, 1); });
}

TEST(TemperatureRise, GrowsWithTheLossOfASquareInch) {
    EXPECT_DOUBLE_EQ(temperatureRise(3, 3), 100.0);
    EXPECT_NEAR(temperatureRise(1, 10), 100 * std::exp(0.83 * std::log(0.1)), 1e-12);
    expectFailure(FailureNumber::DivisionByZero, [] { return temperatureRise(1, 0); });
    expectFailure(FailureNumber::InvalidArgument, [] { return temperatureRise(-1, 2); });
}

}  // namespace
}  // namespace tallyforge
