// SPDX-License-Identifier: GPL-3.0-or-later
//
// The capacitor behind a full-wave rectifier. Pure functions.
#pragma once

namespace tallyforge {

struct SupplyLoad {
    double vac = 0.0;        ///< of the transformer, volts rms
    double vdc = 0.0;        ///< lowest voltage of the capacitor, volts
    double amps = 0.0;       ///< of the load
    double frequency = 0.0;  ///< of the line, hertz
};

/// C = I Vdc / ((2 Vac^2 - Vdc^2) F), farads: the energy that the load takes in half a cycle comes
/// out of the capacitor between the peak and Vdc. Not above 0 where Vdc is out of reach. Raises 11
/// where Vdc is the peak itself or F is 0.
[[nodiscard]] double supplyCapacitance(const SupplyLoad& load);

/// Watts that each ohm of the capacitor's series resistance takes: the mean square of its current.
/// The charge C dV flows in during t1 = acos(Vdc / (Vac sqrt 2)) / (2 pi F) and out during
/// t2 = 1/(2F) - t1; each square counts for its part of the half cycle. Keeps 1.414 for the root
/// of 2 in dV = 1.414 Vac - Vdc. `farads` is what supplyCapacitance gave and above 0.
[[nodiscard]] double supplyRippleWattsPerOhm(const SupplyLoad& load, double farads);

}  // namespace tallyforge
