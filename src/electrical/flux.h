// SPDX-License-Identifier: GPL-3.0-or-later
//
// Flux of a winding: volt-seconds, the flux that a voltage needs, flux density. Flux in lines
// (maxwells), flux density in gauss, areas in square centimetres. Pure functions.
#pragma once

#include "numbers/checked_math.h"

namespace tallyforge {

/// Lines of a weber: a volt-second is 1e8 lines through one turn.
inline constexpr double kLinesPerVoltSecond = 1e8;
/// E = 2.22 phi F n 1e-8 of a sine, phi from peak to peak (half of 4.44).
inline constexpr double kSineVolts = 2.22;

/// V-S = phi n 1e-8. Raises 6.
[[nodiscard]] inline double voltSeconds(double lines, double turns) {
    return checked(lines * turns / kLinesPerVoltSecond);
}
/// The same for the flux, given the turns, or for the turns, given the flux. Raises 11.
[[nodiscard]] inline double otherOfVoltSeconds(double voltSecondsGiven, double one) {
    return quotient(kLinesPerVoltSecond * voltSecondsGiven, one);
}

/// Volts of a sine: phi 2.22e-8 F n. Raises 6.
[[nodiscard]] inline double sineVolts(double lines, double hertz, double turns) {
    return checked(lines * (kSineVolts / kLinesPerVoltSecond) * hertz * turns);
}
/// The same for the third of flux, frequency and turns: 1e8 E / (2.22 a b). Raises 11.
[[nodiscard]] inline double otherOfSineVolts(double volts, double a, double b) {
    return quotient(kLinesPerVoltSecond * volts, a * kSineVolts * b);
}

/// Peak flux density of a flux from peak to peak through `area`: phi = 2 B A. Raises 11.
[[nodiscard]] inline double fluxDensity(double lines, double area) {
    return quotient(lines, 2.0 * area);
}
[[nodiscard]] inline double fluxOfDensity(double gauss, double area) {
    return checked(2.0 * gauss * area);
}

/// Form factors of half a cycle: volt-seconds = k E / F.
inline constexpr double kSineHalfCycle = 0.451;
inline constexpr double kSquareHalfCycle = 0.5;

}  // namespace tallyforge
