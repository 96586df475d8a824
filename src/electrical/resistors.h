// SPDX-License-Identifier: GPL-3.0-or-later
//
// Resistors and impedances: in parallel, as a pad between two impedances, from the resistivity of
// their material. Pure functions, values in, values out or a failure.
#pragma once

#include "engine/engine_state.h"

#include <array>

namespace tallyforge {

/// Total of two resistors in parallel, RT = (1/R2 + 1/R1)^-1, ohms (Kirchhoff). Raises 11 for a
/// resistor of 0, 5 where the two cancel.
[[nodiscard]] double parallelTotal(double r1, double r2);
/// The other one of two resistors in parallel, (1/RT - 1/R)^-1, ohms; negative where the total is
/// above the one. Raises 11 for a value of 0, 5 where total and resistor are equal.
[[nodiscard]] double parallelOther(double total, double one);

/// The two resistors that match Z1 to the smaller Z2 with the least loss.
struct MinimumLossPad {
    double series = 0.0;    ///< R1, ohms, on the side of Z1
    double shunt = 0.0;     ///< R2, ohms, across Z2
    double lossInDb = 0.0;  ///< of the power, dB
};
/// R1 = sqrt((Z1 - Z2) Z1), R2 = Z2 Z1 / R1, loss = 20 log10(sqrt(Z1/Z2) + sqrt(Z1/Z2 - 1)); the
/// L-pad of the textbooks on attenuators. Raises 5 where Z1 is below Z2, 11 where they are equal or
/// Z2 is 0.
[[nodiscard]] MinimumLossPad minimumLossPad(double z1, double z2);

struct Impedance {
    double real = 0.0;
    double imaginary = 0.0;
    double magnitude = 0.0;
    double angle = 0.0;  ///< in the unit of the angle mode
};
/// Two impedances x + jy in parallel, ohms: the inverse of the sum of the inverses. Keeps the angle
/// in grads too large by 10/9. Raises 11 where one of them is 0, or their admittances cancel.
[[nodiscard]] Impedance parallelImpedance(double xa, double jya, double xb, double jyb, AngleMode mode);

/// Of microhm-centimetres, by the unit of length: m, in, cm, mm. Keeps their single precision.
inline constexpr std::array<float, 4> kResistivityFactors{1e-8F, 3.937e-7F, 1e-6F, 1e-5F};
/// R = factor rho L / A, ohms: L in the unit of the factor and A in its square. Raises 11.
[[nodiscard]] double resistanceOf(double microhmCentimetres, double length, double area, float factor);

}  // namespace tallyforge
