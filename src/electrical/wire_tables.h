// SPDX-License-Identifier: GPL-3.0-or-later
//
// The published tables of round wire by American Wire Gauge, -3 for 0000 up to 60: diameters over
// the film of the four builds, weight, half sizes and aluminum. Their sources stand in the tables.
#pragma once

#include "electrical/lookup_table.h"
#include "electrical/wire_build.h"

namespace tallyforge {

/// Largest diameter over the film, inches: -3 to 60 in single and heavy, 4 to 53 in triple and
/// quad. The rows of triple and quad from 45 up serve the way from a diameter to a gauge alone.
[[nodiscard]] const LookupTable& filmDiameters(WireBuild build);

/// Bare copper, pounds per 1000 feet, -3 to 60.
extern const LookupTable kCopperWeight;

/// Half sizes by the whole size below, 4 for 4 1/2: ohms per foot of copper at 20 °C, and the
/// largest diameters over the film, inches.
extern const LookupTable kHalfSizeOhms;
extern const LookupTable kHalfSizeSingle;
extern const LookupTable kHalfSizeHeavy;

/// Aluminum magnet wire, ohms per foot at 20 °C, AWG 8 to 44.
extern const LookupTable kAluminumOhms;

}  // namespace tallyforge
