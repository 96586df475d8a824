// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/coils.h"

#include "unit/electrical/expect_failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tallyforge {
namespace {

// Nagaoka's factor by the elliptic integrals of his paper of 1909; r and l in metres.
double nagaokaMicrohenries(double turns, double r, double l) {
    const double k2 = 4 * r * r / (4 * r * r + l * l);
    const double k = std::sqrt(k2);
    const double factor = 4 / (3 * std::numbers::pi * std::sqrt(1 - k2)) *
                          ((1 - k2) / k2 * std::comp_ellint_1(k) - (1 - 2 * k2) / k2 * std::comp_ellint_2(k) - k);
    return 4e-7 * std::numbers::pi * turns * turns * std::numbers::pi * r * r / l * factor * 1e6;
}

TEST(Coils, WheelersSolenoidAgreesWithNagaokaWithinAPercent) {
    for (const double ratio : {0.8, 1.0, 2.0, 5.0, 20.0}) {
        const double inches = solenoidInductance(50, 0.5, 0.5 * ratio, 1);
        EXPECT_NEAR(inches / nagaokaMicrohenries(50, 0.5 * 0.0254, 0.5 * 0.0254 * ratio), 1.0, 0.01) << ratio;
    }
}

TEST(Coils, TheSolenoidIsTheSameInEveryUnitAndItsTurnsComeBack) {
    for (const double units : {1.0, 25.4, 2.54, 0.0254}) {
        EXPECT_NEAR(solenoidInductance(50, 0.5 * units, 2 * units, units), 25.5102040816, 1e-9);
        EXPECT_NEAR(solenoidTurns(25.510204081632654, 0.5 * units, 2 * units, units), 50, 1e-11);
    }
    expectFailure(FailureNumber::DivisionByZero, [] { return solenoidInductance(5, 0, 0, 1); });
    expectFailure(FailureNumber::DivisionByZero, [] { return solenoidTurns(5, 0, 1, 1); });
    expectFailure(FailureNumber::InvalidArgument, [] { return solenoidTurns(-5, 1, 1, 1); });
    expectFailure(FailureNumber::Overflow, [] { return solenoidInductance(1e200, 1e200, 1, 1); });
}

// The factors stand here a second time, by their permeability.
TEST(Coils, QIsTheReactanceOverTheLosses) {
    struct Row {
        int permeability;
        double a, b, c, d;
    };
    const Row rows[] = {{14, 0.09, 0.0000000065, 0.000007, 0.000143},   {26, 0.075, 0.000000007, 0.000004, 0.000096},
                        {60, 0.042, 0.0000000075, 0.0000015, 0.00005},  {125, 0.012, 0.000000015, 0.0000009, 0.000032},
                        {147, 0.012, 0.000000016, 0.0000009, 0.000028}, {160, 0.012, 0.000000017, 0.0000009, 0.000025},
                        {173, 0.012, 0.00000002, 0.0000008, 0.000023},  {200, 0.012, 0.000000025, 0.0000007, 0.000021},
                        {300, 0.012, 0.00000003, 0.0000008, 0.00003},   {550, 0.012, 0.000000027, 0.0000015, 0.000088}};
    int found = 0;
    for (const Row& row : rows) {
        for (std::size_t i = 0; i < kCoilPermeabilities.size(); ++i) {
            if (kCoilPermeabilities.at(i) != row.permeability) {
                continue;
            }
            ++found;
            const double f = 20000;
            const double l = 0.01;
            const double w = 6.28318530717958 * f;
            const double rw = std::pow(w, 3) * row.a * l * l * 100e-12;
            const double rc = (row.c * 20 + row.d + row.b * f) * row.permeability * l * f;
            EXPECT_NEAR(coilQ(i, {f, 1.5, l, 20, 100e-12}), w * l / (rc + 1.5 + rw), 1e-9) << row.permeability;
        }
    }
    EXPECT_EQ(found, 10);
    EXPECT_EQ(kCoilPermeabilities.front(), 550);
    EXPECT_EQ(kCoilPermeabilities.back(), 125);
    expectFailure(FailureNumber::DivisionByZero, [] { return coilQ(0, {0, 0, 0, 0, 0}); });
    expectFailure(FailureNumber::Overflow, [] { return coilQ(0, {1e200, 1, 1, 1, 1}); });
}

TEST(Coils, TheMeanTurnOfAFrameIsItsPathHalfTheHeightOut) {
    EXPECT_NEAR(meanTurnFeet(TurnShape::Rectangular, 2, 1, 0.5), (2 + 4 + 1.5707963) / 12, 1e-8);
    // Half way out, a round winding's circle has the mean of the two diameters.
    EXPECT_NEAR(meanTurnFeet(TurnShape::Round, 1, 2, 99), std::numbers::pi * 1.5 / 12, 1e-13);
}

TEST(Coils, AToroidChangesItsFitAboveARatioOfHeightToHole) {
    // 0.6 / 0.5 is exactly 1.2 and still the second line.
    const double section = 2 * 0.6 + 1 - 0.5;
    EXPECT_NEAR(meanTurnFeet(TurnShape::Toroid, 1, 0.5, 0.6), (0.1038 - 0.0151 * 1.2) * section, 1e-14);
    EXPECT_NEAR(meanTurnFeet(TurnShape::Toroid, 1, 0.5, 0.61), (0.0902 - 0.00214 * 1.22) * (section + 0.02), 1e-14);
    expectFailure(FailureNumber::DivisionByZero, [] { return meanTurnFeet(TurnShape::Toroid, 1, 0, 1); });
}

}  // namespace
}  // namespace tallyforge
