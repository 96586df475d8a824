// SPDX-License-Identifier: GPL-3.0-or-later
//
// The loss of magnetic cores by fitted powers of frequency and flux density: molypermalloy powder
// by its permeability, ferrite by its material. Pure functions.
#pragma once

#include <array>
#include <cstddef>
#include <limits>
#include <span>
#include <string_view>

namespace tallyforge {

/// The most that the curves of the powder cores are good for.
inline constexpr double kMostPowderGauss = 4000.0;
inline constexpr double kMostPowderKilohertz = 500.0;
inline constexpr double kMostPowderPermeability = 650.0;

/// a F^c B^d, F in kilohertz and B in kilogauss.
struct LossCurve {
    double a = 0.0;
    double c = 0.0;
    double d = 0.0;
};

/// A curve and the frequencies that it holds for, from the end of the one before.
struct FrequencyRange {
    double end = std::numeric_limits<double>::infinity();  ///< kilohertz
    bool endBelongs = false;
    LossCurve curve{};
};

/// Pc = a F^c B^d, watts a pound; B in kilogauss inside, a, c, d by the class of the permeability
/// (the powder cores' loss curves). Values beyond the limits above are the caller's to refuse.
/// Raises 5 for a negative value, 6.
[[nodiscard]] double powderCoreLoss(double gauss, double kilohertz, double permeability);

/// Ferrite materials as the catalogue names them, in the order of the dialog's rows.
inline constexpr std::array<std::string_view, 7> kFerriteMaterials{"K Matl", "R Matl", "P Matl", "F Matl",
                                                                   "J Matl", "W Matl", "H Matl"};

/// The curves of a material, from low frequencies to high ones; `material` 0 to 6.
[[nodiscard]] std::span<const FrequencyRange> ferriteCurves(std::size_t material);

/// PL = a F^c B^d, milliwatts a cubic centimetre; `material` 0 to 6. Raises 5 for a negative value, 6.
[[nodiscard]] double ferriteCoreLoss(std::size_t material, double kilohertz, double gauss);

}  // namespace tallyforge
