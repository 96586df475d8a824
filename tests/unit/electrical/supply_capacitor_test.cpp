// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/supply_capacitor.h"

#include "unit/electrical/expect_failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tallyforge {
namespace {

TEST(SupplyCapacitor, GivesTheWorkedValues) {
    const auto expect = [](const SupplyLoad& load, double microfarads, double watts) {
        const double farads = supplyCapacitance(load);
        EXPECT_NEAR(farads * 1e6 / microfarads, 1.0, 3e-6);
        EXPECT_NEAR(supplyRippleWattsPerOhm(load, farads) / watts, 1.0, 1e-6);
    };
    expect({120, 140, 1, 60}, 253.623, 5.276444);
    expect({24, 28, 2, 60}, 2536.23, 21.105776);
    expect({230, 280, 0.5, 50}, 102.190, 1.513754);
}

TEST(SupplyCapacitor, HoldsTheEnergyOfHalfACycle) {
    for (const double vdc : {1.0, 20.0, 33.0}) {
        const SupplyLoad load{24, vdc, 0.7, 50};
        const double peak = 24 * std::numbers::sqrt2;
        const double energy = supplyCapacitance(load) / 2 * (peak * peak - vdc * vdc);
        EXPECT_NEAR(energy, load.vdc * load.amps / (2 * load.frequency), 1e-12);
    }
}

// The mean square of the current, summed in small steps over half a cycle.
TEST(SupplyCapacitor, RippleIsTheMeanSquareOfItsCurrent) {
    const SupplyLoad load{120, 140, 1, 60};
    const double farads = supplyCapacitance(load);
    const double half = 1 / (2 * load.frequency);
    const double charging = std::acos(140 / (120 * std::numbers::sqrt2)) / (2 * std::numbers::pi * 60);
    const double swing = 1.414 * 120 - 140;
    double sum = 0;
    constexpr int kSteps = 200000;
    for (int step = 0; step < kSteps; ++step) {
        const double t = (step + 0.5) * half / kSteps;
        const double current = farads * swing / (t < charging ? charging : half - charging);
        sum += current * current / kSteps;
    }
    EXPECT_NEAR(supplyRippleWattsPerOhm(load, farads) / sum, 1.0, 1e-5);
}

TEST(SupplyCapacitor, AnOutOfReachVoltageHasNoCapacitor) {
    EXPECT_LT(supplyCapacitance({100, 150, 1, 60}), 0.0);
    expectFailure(FailureNumber::DivisionByZero, [] { return supplyCapacitance({5, 0, 1, 0}); });
    expectFailure(FailureNumber::DivisionByZero, [] { return supplyCapacitance({0.0, 0.0, 1, 60}); });
    expectFailure(FailureNumber::Overflow, [] { return supplyCapacitance({1e200, 1, 1, 60}); });
}

}  // namespace
}  // namespace tallyforge
