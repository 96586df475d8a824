// SPDX-License-Identifier: GPL-3.0-or-later
//
// Permeability of molypermalloy powder cores: what is left of it at a flux density and under a
// steady field, and what it is by the inductance of a core. Pure functions.
#pragma once

namespace tallyforge {

inline constexpr double kMostFluxPermeability = 600.0;

/// p(B), the permeability at a flux density in gauss over the initial one: c0 + c1 B - c2 B^2 + c3
/// B^3, by the class of the permeability (the powder cores' curves). Raises 5 for negative values.
[[nodiscard]] double relativePermeability(double gauss, double permeability);
/// The change of the permeability at a flux density, percent: (p(B) - 1) 100. Raises 6.
[[nodiscard]] double permeabilityChangePercent(double gauss, double permeability);

/// Inductance in henries of n turns on a core of `areaPerLength` (Ae / le in cm) at a flux density:
/// 0.4 pi 1e-8 mu p(B) n^2 Ae / le. Raises 6.
[[nodiscard]] double inductanceAtFlux(double gauss, double permeability, double turns, double areaPerLength);

/// Permeabilities of which the curves under a steady field are known: kLeast to kMostBelowGap as
/// given; above kGapEnd to kMost the core of 550.
inline constexpr double kLeastBiasPermeability = 12.0;
inline constexpr double kMostBiasBelowGap = 350.0;
inline constexpr double kBiasGapEnd = 500.0;
inline constexpr double kMostBiasPermeability = 600.0;
inline constexpr double kHighestCore = 550.0;

/// Whether the curve of a permeability holds at `oersteds`.
[[nodiscard]] bool biasInRange(double oersteds, double permeability);
/// The permeability under a steady field, percent of the initial one; for a core other than 550
/// 100/mu sqrt((mu^2 + a mu^3 H + b mu^4 H^2) / (1 + c mu H + d mu^2 H^2)). Keeps the single
/// precision of its constants. `oersteds` in range. Raises 5, 6.
[[nodiscard]] double permeabilityUnderBias(double oersteds, double permeability);

/// Lo (nH per turn squared) times le (cm) over 4 pi Ae (cm squared): effective permeability.
/// Raises 11.
[[nodiscard]] double permeabilityByInductance(double nanohenries, double pathLength, double area);
/// The same relation, for Lo. Raises 11.
[[nodiscard]] double inductanceByPermeability(double permeability, double pathLength, double area);

}  // namespace tallyforge
