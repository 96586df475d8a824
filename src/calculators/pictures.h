// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pictures beside the fields of the calculators: circuits, bands, cores, arcs, roots, balances.
// They follow the values, which are in base units; what is not known yet is drawn in its usual shape.
#pragma once

#include "dialogs/calculator_table.h"
#include "platform/drawing.h"

#include <complex>
#include <span>
#include <string>

namespace tallyforge {

[[nodiscard]] Drawing ohmsLawPicture(const Values& values, bool solved);
[[nodiscard]] Drawing resonancePicture(const Values& values, bool solved);
[[nodiscard]] Drawing bandPicture(const Values& values, bool solved);
[[nodiscard]] Drawing seriesPicture(const Values& values, bool solved);
[[nodiscard]] Drawing parallelPicture(const Values& values, bool solved);
[[nodiscard]] Drawing windingPicture(const Values& values, bool solved);
[[nodiscard]] Drawing corePicture(const Values& values, bool solved);
[[nodiscard]] Drawing temperaturePicture(const Values& values, bool solved);
[[nodiscard]] Drawing arcPicture(const Values& values, bool solved);

/// Roots in the complex plane, real part and imaginary part of each.
[[nodiscard]] Drawing rootsPicture(std::span<const std::complex<double>> roots);
/// What is owed after each payment of a loan, 1 at the start; `rate` is a fraction a period.
[[nodiscard]] Drawing balancePicture(double rate, double periods);
/// A network from its load, on the right, to its input; two letters an element: "Rp", "Ls".
[[nodiscard]] Drawing ladderPicture(std::span<const std::string> elements);

}  // namespace tallyforge
