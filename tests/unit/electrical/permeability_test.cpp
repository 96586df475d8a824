// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tables stand here a second time, written down on their own.
#include "electrical/permeability.h"

#include "unit/electrical/expect_failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tallyforge {
namespace {

TEST(Permeability, FollowsThePolynomialOfItsClass) {
    struct Row {
        double least, most, c0, c1, c2, c3;
    };
    const Row rows[] = {{1, 42, 0.9995, 0.00001186, 0.000000005096, -0.000000000002727},
                        {42.001, 92.5, 0.999, 0.00001708, 0.000000006675, -0.000000000001792},
                        {92.501, 136, 0.999, 0.0000296, 0.00000001561, 0.00000000000082543},
                        {136.001, 186.5, 0.998, 0.00004393, 0.00000002591, 0.000000000003446},
                        {186.501, 250, 0.999, 0.00005145, 0.00000002688, 0.000000000003308},
                        {250.001, 333, 0.998, 0.00009038, 0.00000005112, 0.000000000007055},
                        {333.001, 600, 0.991, 0.0004042, 0.000000224, 0.00000000003123}};
    for (const Row& row : rows) {
        for (const double permeability : {row.least, row.most}) {
            for (const double b : {10.0, 1000.0, 5000.0}) {
                const double p = row.c0 + row.c1 * b - row.c2 * std::pow(b, 2) + row.c3 * std::pow(b, 3);
                EXPECT_NEAR(permeabilityChangePercent(b, permeability), (p - 1) * 100, 1e-11) << permeability;
            }
        }
    }
    // Between two classes the next one begins.
    EXPECT_DOUBLE_EQ(relativePermeability(1000, 92.5005), relativePermeability(1000, 100));
    expectFailure(FailureNumber::InvalidArgument, [] { return permeabilityChangePercent(-5, 60); });
    expectFailure(FailureNumber::InvalidArgument, [] { return permeabilityChangePercent(5, -60); });
    expectFailure(FailureNumber::Overflow, [] { return permeabilityChangePercent(1e150, 60); });
}

// L = mu0 mu N^2 A / l in SI, times p(B).
TEST(Permeability, InductanceAtFluxAgreesWithTheSiFormula) {
    const double si = 4e-7 * std::numbers::pi * 125 * 40 * 40 * (1.25e-4 / 8.5e-2);
    EXPECT_NEAR(inductanceAtFlux(2000, 125, 40, 1.25 / 8.5) / (si * relativePermeability(2000, 125)), 1.0, 1e-13);
}

TEST(Permeability, UnderBiasFollowsTheFittedCurve) {
    constexpr float a = -0.0001505F;
    constexpr float b = 6.1e-9F;
    constexpr float c = -0.0001277F;
    constexpr float d = 2.74e-8F;
    for (const double mu : {14.0, 26.0, 60.0, 125.0, 147.0, 200.0, 300.0, 350.0}) {
        for (const double h : {0.1, 1.0, 10.0, 35.0}) {
            const double top = mu * mu + a * mu * mu * mu * h + b * std::pow(mu, 4) * h * h;
            const double p = std::sqrt(top / (1 + c * mu * h + d * mu * mu * h * h));
            EXPECT_NEAR(permeabilityUnderBias(h, mu), 100 * p / mu, 1e-9) << mu << " at " << h;
        }
    }
    // Without a field next to nothing is lost, also on the core of 550.
    EXPECT_NEAR(permeabilityUnderBias(1e-9, 60), 100.0, 1e-6);
    EXPECT_NEAR(permeabilityUnderBias(0.01, 550), 98.3, 0.01);
    const double field = std::pow(2.5, -1.8919818);
    EXPECT_NEAR(permeabilityUnderBias(2.5, 550), (98.30942 * field + 0.04736836 * 3.790382) / (field + 0.04736836),
                1e-10);
}

TEST(Permeability, TheFieldHasALimitForEachPermeability) {
    struct Row {
        double permeability, oersteds;
    };
    const Row rows[] = {{20, 750}, {43, 400}, {93, 180}, {136, 85}, {186.5, 60}, {250, 50}, {350, 35}, {550, 30}};
    for (const Row& row : rows) {
        EXPECT_TRUE(biasInRange(row.oersteds, row.permeability)) << row.permeability;
        EXPECT_FALSE(biasInRange(row.oersteds + 0.01, row.permeability)) << row.permeability;
        EXPECT_FALSE(biasInRange(-1, row.permeability));
    }
    EXPECT_TRUE(biasInRange(0.01, 550));
    EXPECT_FALSE(biasInRange(0.009, 550));
    EXPECT_FALSE(biasInRange(1, 400));
    EXPECT_TRUE(biasInRange(400, 20.5));
}

TEST(Permeability, EffectivePermeabilityAndInductanceGoRound) {
    const double mu = permeabilityByInductance(68, 5.67, 0.388);
    EXPECT_NEAR(mu, 68e-9 * 0.0567 / (4e-7 * std::numbers::pi * 0.388e-4), 1e-9);
    EXPECT_NEAR(inductanceByPermeability(mu, 5.67, 0.388), 68, 1e-12);
    expectFailure(FailureNumber::DivisionByZero, [] { return permeabilityByInductance(1, 1, 0); });
    expectFailure(FailureNumber::DivisionByZero, [] { return inductanceByPermeability(1, 0, 1); });
}

}  // namespace
}  // namespace tallyforge
