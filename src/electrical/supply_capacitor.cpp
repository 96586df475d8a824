// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/supply_capacitor.h"

#include "numbers/checked_math.h"
#include "numbers/circle.h"

#include <cmath>
#include <numbers>

namespace tallyforge {

double supplyCapacitance(const SupplyLoad& load) {
    const double squares = checked(2.0 * load.vac * load.vac - load.vdc * load.vdc);
    return quotient(load.amps * load.vdc, squares * load.frequency);
}

double supplyRippleWattsPerOhm(const SupplyLoad& load, double farads) {
    constexpr double kPeakOfRms = 1.414;
    const double charging = quotient(std::acos(load.vdc / (load.vac * std::numbers::sqrt2)), kTwoPi * load.frequency);
    const double discharging = 1.0 / (2.0 * load.frequency) - charging;
    const double charge = farads * (load.vac * kPeakOfRms - load.vdc);
    const double squareByHalfCycle = charge * charge * 2.0 * load.frequency;
    return checked(quotient(squareByHalfCycle, charging) + quotient(squareByHalfCycle, discharging));
}

}  // namespace tallyforge
