// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/resistors.h"

#include "numbers/failure.h"
#include "unit/electrical/expect_failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>

namespace tallyforge {
namespace {

TEST(Resistors, TheTotalIsProductOverSum) {
    for (const double r1 : {1.0, 47.0, 1e6, 1e-6}) {
        for (const double r2 : {1.0, 100.0, 3.3e9}) {
            EXPECT_NEAR(parallelTotal(r1, r2) / (r1 * r2 / (r1 + r2)), 1.0, 1e-13);
            EXPECT_NEAR(parallelOther(parallelTotal(r1, r2), r2) / r1, 1.0, 1e-5);
        }
    }
    EXPECT_DOUBLE_EQ(parallelTotal(100, 100), 50.0);
    EXPECT_DOUBLE_EQ(parallelOther(50, 100), 100.0);
}

TEST(Resistors, ATotalAboveTheOneLeavesANegativeResistor) {
    EXPECT_DOUBLE_EQ(parallelOther(200, 100), -200.0);
}

TEST(Resistors, NothingAndCancellationAreRefused) {
    expectFailure(FailureNumber::DivisionByZero, [] { return parallelTotal(0, 5); });
    expectFailure(FailureNumber::DivisionByZero, [] { return parallelOther(5, 0); });
    expectFailure(FailureNumber::InvalidArgument, [] { return parallelOther(5, 5); });
    expectFailure(FailureNumber::InvalidArgument, [] { return parallelTotal(5, -5); });
    expectFailure(FailureNumber::Overflow, [] { return parallelTotal(1e-320, 1); });
}

// Terminated by the other impedance, each side of the pad shows its own impedance, and the power at
// Z2 is the loss below that at the source.
TEST(Resistors, ThePadMatchesBothSides) {
    for (const double z1 : {75.0, 300.0, 600.0}) {
        for (const double z2 : {50.0, 8.0, 74.0}) {
            const MinimumLossPad pad = minimumLossPad(z1, z2);
            EXPECT_NEAR(pad.series + parallelTotal(pad.shunt, z2), z1, 1e-9 * z1);
            EXPECT_NEAR(parallelTotal(pad.shunt, pad.series + z1), z2, 1e-9 * z2);
            const double volts = parallelTotal(pad.shunt, z2) / z1;  // at Z2, of 1 V at the pad's input
            EXPECT_NEAR(10 * std::log10((1 / z1) / (volts * volts / z2)), pad.lossInDb, 1e-9);
        }
    }
    const MinimumLossPad pad = minimumLossPad(75, 50);
    EXPECT_NEAR(pad.series, 43.3012701892, 1e-9);
    EXPECT_NEAR(pad.shunt, 86.6025403784, 1e-9);
    EXPECT_NEAR(pad.lossInDb, 5.7194756, 1e-6);
}

TEST(Resistors, APadNeedsTheLargerImpedanceFirst) {
    expectFailure(FailureNumber::InvalidArgument, [] { return minimumLossPad(50, 75).series; });
    expectFailure(FailureNumber::DivisionByZero, [] { return minimumLossPad(50, 50).series; });
    expectFailure(FailureNumber::DivisionByZero, [] { return minimumLossPad(50, 0).series; });
}

TEST(Resistors, ImpedancesInParallelGoByProductOverSumInAllQuadrants) {
    for (const std::complex<double> a : {std::complex{3.0, 4.0}, {-3.0, 4.0}, {3.0, -4.0}, {1e-9, -50.0}}) {
        for (const std::complex<double> b : {std::complex{10.0, -7.0}, {-20.0, -7.0}, {1e6, 1e-9}}) {
            const std::complex<double> expected = a * b / (a + b);
            const Impedance z = parallelImpedance(a.real(), a.imag(), b.real(), b.imag(), AngleMode::Radians);
            EXPECT_NEAR(z.real, expected.real(), 1e-12 * std::abs(expected));
            EXPECT_NEAR(z.imaginary, expected.imag(), 1e-12 * std::abs(expected));
            EXPECT_NEAR(z.magnitude, std::abs(expected), 1e-12 * std::abs(expected));
            EXPECT_NEAR(z.angle, std::arg(expected), 1e-12);
        }
    }
}

TEST(Resistors, TheAngleGoesByTheModeAndKeepsTheStretchedGrads) {
    EXPECT_NEAR(parallelImpedance(2, 2, 2, 2, AngleMode::Degrees).angle, 45.0, 1e-11);
    EXPECT_NEAR(parallelImpedance(2, 2, 2, 2, AngleMode::Radians).angle, std::numbers::pi / 4, 1e-14);
    EXPECT_NEAR(parallelImpedance(2, 2, 2, 2, AngleMode::Grads).angle, 50.0 * 10.0 / 9.0, 1e-11);
    EXPECT_NEAR(parallelImpedance(-2, 2, -2, 2, AngleMode::Degrees).angle, 135.0, 1e-11);
}

TEST(Resistors, ImpedancesNearTheEndsOfTheRangeAreComputed) {
    const Impedance z = parallelImpedance(1e200, 1e200, 1e200, 1e200, AngleMode::Degrees);
    EXPECT_NEAR(z.real / 5e199, 1.0, 1e-12);
    expectFailure(FailureNumber::DivisionByZero, [] { return parallelImpedance(0, 0, 1, 1, AngleMode::Degrees).real; });
    expectFailure(FailureNumber::DivisionByZero,
                  [] { return parallelImpedance(3, 4, -3, -4, AngleMode::Degrees).real; });
}

// Copper of 1.724 microhm-cm: a metre of 1 mm2 has 17.24 milliohms, in every unit.
TEST(Resistors, ResistivityTakesLengthAndAreaInOneUnit) {
    EXPECT_NEAR(resistanceOf(1.724, 1, 1e-6, 1e-8F), 0.01724, 1e-8);
    EXPECT_NEAR(resistanceOf(1.724, 100, 1e-2, 1e-6F), 0.01724, 1e-8);
    EXPECT_NEAR(resistanceOf(1.724, 1000, 1, 1e-5F), 0.01724, 1e-8);
    EXPECT_NEAR(resistanceOf(1.724, 1000 / 25.4, 1 / (25.4 * 25.4), 3.937e-7F), 0.01724, 1e-6);
    expectFailure(FailureNumber::DivisionByZero, [] { return resistanceOf(1, 1, 0, 1e-8F); });
}

}  // namespace
}  // namespace tallyforge
