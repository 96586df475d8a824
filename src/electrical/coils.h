// SPDX-License-Identifier: GPL-3.0-or-later
//
// Coils: the inductance of an air-core solenoid, the Q of a coil on a powder core, the mean length
// of a turn. Pure functions.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tallyforge {

/// Inductance of a single-layer air-core coil, microhenries: (r n)^2 / ((10 l + 9 r) d), lengths in
/// a unit of which `unitsPerInch` (d) make an inch (Wheeler 1928; within 1 % for l above 0.8 r).
/// Raises 11, 6.
[[nodiscard]] double solenoidInductance(double turns, double radius, double length, double unitsPerInch);
/// The turns of it: sqrt(L (10 l + 9 r) d) / r. Raises 5 for a negative product, 11 for a radius of 0.
[[nodiscard]] double solenoidTurns(double microhenries, double radius, double length, double unitsPerInch);

/// Permeabilities whose losses are known, in the order of the dialog's rows.
inline constexpr std::array<int, 10> kCoilPermeabilities{550, 300, 200, 173, 160, 147, 14, 26, 60, 125};

/// Loss factors of a permeability: dielectric, eddy current, hysteresis, residual.
struct LossFactors {
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    double d = 0.0;
};
/// `row` is one of kCoilPermeabilities.
[[nodiscard]] const LossFactors& coilLossFactors(std::size_t row);

struct CoilLosses {
    double hertz = 0.0;
    double dcOhms = 0.0;
    double henries = 0.0;
    double gauss = 0.0;
    double farads = 0.0;  ///< distributed capacitance
};
/// Q = w L / (Rc + Rdc + Rw), with Rw = w^3 a L^2 Cd of the winding's capacitance and Rc = (c B + d
/// + b F) mu L F of the core (hysteresis, residual and eddy losses after Legg). `row` is one of
/// kCoilPermeabilities. Raises 11, 6.
[[nodiscard]] double coilQ(std::size_t row, const CoilLosses& coil);

enum class TurnShape : std::uint8_t { Toroid, Rectangular, Round };
/// Mean length of a turn, feet, from inches: outer and inner diameter and height of a toroid (fitted
/// to the winding's growth, another line above a ratio of height to inner diameter of 1.2); length,
/// width and winding height of a rectangular core, (2 a + 2 b + pi c) / 12; start and winding
/// diameter of a round one, (a + b) pi / 24. Raises 11 for an inner diameter of 0, 6.
[[nodiscard]] double meanTurnFeet(TurnShape shape, double a, double b, double c);

}  // namespace tallyforge
